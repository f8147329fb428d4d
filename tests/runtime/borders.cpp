// The last value on each side of a border, and the first one beyond it.
#include <doctest/doctest.h>

#include <limits>
#include <vector>

#include "runtime/number.h"
#include "runtime/signs.h"
#include "runtime/text.h"
#include "support/failureof.h"

using namespace runtime;

namespace {

// A copy with nothing around it, so that the sanitizers see a look behind its end.
class Alone {
  public:
    explicit Alone(std::string_view text) : bytes_(text.begin(), text.end()) {}
    std::string_view Text() const { return {bytes_.data(), bytes_.size()}; }

  private:
    std::vector<char> bytes_;
};

}  // namespace

TEST_CASE("the lower end of the 32 bits counts after rounding, too") {
    CHECK(ToWholeNumber("-2147483648,5", German) == std::numeric_limits<std::int32_t>::min());
    CHECK(FailureOf([] { ToWholeNumber("-2147483648,51", German); }) == Overflow);
}

TEST_CASE("16 bits round halves to even and count after rounding") {
    CHECK(ToShortNumber("0,5", German) == 0);
    CHECK(ToShortNumber("2,5", German) == 2);
    CHECK(ToShortNumber("-3,5", German) == -4);
    CHECK(ToShortNumber("-32768,5", German) == -32768);
    CHECK(FailureOf([] { ToShortNumber("-32768,51", German); }) == Overflow);
}

TEST_CASE("a hexadecimal number of 16 bits is a short number and one of 17 bits is too large") {
    CHECK(ToShortNumber("&HFFFF", German) == -1);
    CHECK(ToShortNumber("&H8000", German) == -32768);
    CHECK(FailureOf([] { ToShortNumber("&H10000", German); }) == Overflow);
}

TEST_CASE("the largest single-precision number converts, a smaller one than all of them is 0") {
    const float largest = std::numeric_limits<float>::max();
    CHECK(ToSingle("340282346638528859811704183484516925440", German) == largest);
    CHECK(ToSingle("-340282346638528859811704183484516925440", German) == -largest);
    CHECK(ToSingle("16777217", German) == 16777216.0f);
    CHECK(ToSingle("1e-60", German) == 0.0f);
    CHECK(ToText(largest, German) == "3,402823E+38");
}

TEST_CASE("the smallest and the largest double are numbers") {
    CHECK(ParseNumber("5e-324", German) == std::numeric_limits<double>::denorm_min());
    CHECK(ParseNumber("-1,7976931348623157e308", German) == std::numeric_limits<double>::lowest());
    CHECK(FailureOf([] { ToWholeNumber("1,8e308", German); }) == Overflow);
}

TEST_CASE("an exponent of more than 64 bits is huge, not what is left of it in 64 bits") {
    CHECK(FailureOf([] { ToWholeNumber("1e18446744073709551617", German); }) == Overflow);
    CHECK(ParseNumber("1e-18446744073709551617", German) == 0.0);
}

// The number lies in the middle between 2 to the power of 120 and the next double.
TEST_CASE("a half between two doubles goes by its last digit, however many it has") {
    const std::string half = "1329227995784916020477759649956757504";
    const double below = 0x1p120;
    const double above = 0x1.0000000000001p120;
    CHECK(ParseNumber(half, German) == below);
    CHECK(ParseNumber(half + ",00000000000000000001", German) == above);
    CHECK(ParseNumber("1329227995784916020477759649956757503", German) == below);
    CHECK(ParseNumber("1329227995784916020477759649956757505", German) == above);
}

TEST_CASE("digits of other scripts, hard blanks and words for numbers are no numbers") {
    for (const char* text : {"٣", "３", "1²",
                             "\u00A0"
                             "5",
                             "inf", "nan", "True", "Wahr"}) {
        CAPTURE(text);
        CHECK_FALSE(IsNumeric(text, German));
    }
}

TEST_CASE("a leading number is parted by hard blanks and by control characters but three") {
    CHECK(LeadingNumber("1\v5") == 1);
    CHECK(LeadingNumber("1\f5") == 1);
    CHECK(LeadingNumber("1\u00A0"
                        "5") == 1);
}

TEST_CASE("the first and the last letter of the alphabet change their case, too") {
    CHECK(ToLower("AZ") == "az");
    CHECK(ToUpper("az") == "AZ");
    CHECK(EqualsIgnoringCase("AZ", "az"));
    CHECK_FALSE(EqualsIgnoringCase("@", "`"));
}

TEST_CASE("the sharp s and the signs for times and divided by have no other case") {
    CHECK(ToLower("ß×÷ÿ") == "ß×÷ÿ");
    CHECK(ToUpper("ß×÷ÿ") == "ß×÷ÿ");
}

TEST_CASE("any count of characters may be asked for") {
    const std::size_t most = std::numeric_limits<std::size_t>::max();
    CHECK(Left("grün", most) == "grün");
    CHECK(Mid("grün", 2, most) == "ün");
    CHECK(Mid("grün", 2, most - 1) == "ün");
    CHECK(Mid("grün", most, most) == "");
}

TEST_CASE("no function looks behind the end of its text") {
    for (const char* text : {"\xE2", "\xE2\x82", "\xC3", "\xF0\x9F\x98", "a\xC3", "1", "-", "1e",
                             "1e+", "&", "&H", "1,", "1.", " "}) {
        CAPTURE(text);
        const Alone alone(text);
        CHECK(Length(alone.Text()) == std::string_view(text).size());
        CHECK(ToUpper(ToLower(alone.Text())) == ToUpper(text));
        CHECK(Left(alone.Text(), 9) == text);
        CHECK(ParseNumber(alone.Text(), German) == ParseNumber(text, German));
        CHECK(LeadingNumber(alone.Text()) == LeadingNumber(text));
    }
    CHECK(LeadingNumber(std::string_view("123").substr(0, 2)) == 12);
    CHECK(Length(std::string_view("ä").substr(0, 1)) == 1);
    CHECK(Trim(std::string_view(" a ").substr(0, 2)) == "a");
}
