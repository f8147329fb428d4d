#include <doctest/doctest.h>

#include <optional>

#include "runtime/number.h"
#include "runtime/signs.h"

using runtime::IsNumeric;
using runtime::NumberSigns;
using runtime::ParseNumber;

namespace {

bool Reads(const char* text, double number, const NumberSigns& signs = German) {
    CAPTURE(text);
    return ParseNumber(text, signs) == std::optional<double>(number);
}

void CheckNone(std::initializer_list<std::string_view> texts) {
    for (std::string_view text : texts) {
        CAPTURE(text);
        CHECK_FALSE(IsNumeric(text, German));
    }
}

}  // namespace

TEST_CASE("plain digits are numeric") {
    CHECK(Reads("0", 0));
    CHECK(Reads("1500", 1500));
    CHECK(Reads("007", 7));
    CHECK(IsNumeric("1500", German));
}

TEST_CASE("nothing, blanks and letters are not numeric") {
    CheckNone({"", " ", "    ", "abc", "12abc", "a12", "1 2", "12 Byte", "e3", "ä", "1ß"});
}

TEST_CASE("blanks around a number are ignored") {
    CHECK(Reads(" 12", 12));
    CHECK(Reads("12 ", 12));
    CHECK(Reads("   12   ", 12));
    CHECK(Reads("  &HFF  ", 255));
}

TEST_CASE("tabs, line ends and other control characters make a text no number") {
    using namespace std::string_view_literals;
    CheckNone({"\t12", "12\r\n", "12\n", "\v12", "12\0"sv, "\0"sv, "1\0002"sv, "\x01"});
}

TEST_CASE("one sign stands before or behind") {
    CHECK(Reads("-12", -12));
    CHECK(Reads("+5", 5));
    CHECK(Reads("12-", -12));
    CHECK(Reads("5+", 5));
    CHECK(Reads(" -12 ", -12));
    CHECK(Reads("- 5", -5));
    CHECK(Reads("5 -", -5));
}

TEST_CASE("two signs, or a sign alone, are not numeric") {
    CheckNone({"-12-", "+12-", "--12", "+-12", "12--", "-", "+", " - "});
}

TEST_CASE("the locale's decimal sign begins the fraction") {
    CHECK(Reads("1,5", 1.5));
    CHECK(Reads(",5", 0.5));
    CHECK(Reads("5,", 5));
    CHECK(Reads("-0,25", -0.25));
    CHECK(Reads("1.5", 1.5, English));
    CheckNone({",", "1,2,3", "-,"});
}

TEST_CASE("the locale's grouping sign parts the digits of the whole part only") {
    CHECK(Reads("1.000", 1000));
    CHECK(Reads("1.234.567,5", 1234567.5));
    CHECK(Reads("1.5", 15));
    CHECK(Reads("1,000", 1000, English));
    CheckNone({".", ".5", "1,0.0"});
}

TEST_CASE("a grouping sign of several bytes counts as one sign") {
    CHECK(
        Reads("1\xC2\xA0"
              "000,5",
              1000.5, {.decimal = ",", .grouping = "\xC2\xA0"}));
}

TEST_CASE("a locale without a grouping sign has none in its numbers") {
    CHECK(Reads("1000", 1000, {.decimal = ",", .grouping = ""}));
    CHECK_FALSE(IsNumeric("1.000", {.decimal = ",", .grouping = ""}));
}

TEST_CASE("an exponent follows e, E, d or D") {
    CHECK(Reads("1e3", 1000));
    CHECK(Reads("1E3", 1000));
    CHECK(Reads("1d3", 1000));
    CHECK(Reads("1D3", 1000));
    CHECK(Reads("1,5e+2", 150));
    CHECK(Reads("15e-1", 1.5));
    CHECK(Reads("-1e3", -1000));
    CHECK(Reads("1e3-", -1000));
    CheckNone({"1e", "1e+", "1e-", "1e1,5", "1 e3", "1e 3", "1f3", "1e3e3"});
}

TEST_CASE("hexadecimal and octal forms are numeric") {
    CHECK(Reads("&HFF", 255));
    CHECK(Reads("&hff", 255));
    CHECK(Reads("&O17", 15));
    CHECK(Reads("&o17", 15));
    CHECK(Reads("&17", 15));
    CheckNone({"&", "&H", "&O", "&HG", "&8", "&O8", "& HFF", "&H F", "-&HFF", "&HFF-", "0xFF"});
}

TEST_CASE("up to 16 bits the topmost of them is the sign of a hexadecimal or octal form") {
    CHECK(Reads("&h7FFF", 32767));
    CHECK(Reads("&h8000", -32768));
    CHECK(Reads("&hFFFF", -1));
    CHECK(Reads("&O177777", -1));
    CHECK(Reads("&H10000", 65536));
    CHECK(Reads("&H7FFFFFFF", 2147483647));
    CHECK(Reads("&H80000000", -2147483648.0));
    CHECK(Reads("&HFFFFFFFF", -1));
    CheckNone({"&H100000000", "&HFFFFFFFFFFFFFFFFFFFFFFFF"});
}

TEST_CASE("a number beyond the range of a double is not numeric, one too small for it is 0") {
    CheckNone({"1e400", "-1e400", "1e309", "1e99999999999999999999"});
    CHECK(Reads("1e308", 1e308));
    CHECK(Reads("1e-400", 0));
    CHECK(Reads("1e-99999999999999999999", 0));
    CHECK(Reads("0e99999999999999999999", 0));
}

TEST_CASE("a number is read to the last bit of a double") {
    CHECK(Reads("0,1", 0.1));
    CHECK(Reads("9007199254740993", 9007199254740992.0));
    CHECK(Reads("9007199254740993,0000000000000000000000001", 9007199254740994.0));
    CHECK(Reads("1,7976931348623157e308", 1.7976931348623157e308));
    CHECK(Reads("0,00000000000000000000015", 1.5e-22));
}

TEST_CASE("of more digits than a double can tell apart the last still rounds a half up") {
    const std::string half = "9007199254740993," + std::string(2000, '0');
    CHECK(ParseNumber(half, German) == 9007199254740992.0);
    CHECK(ParseNumber(half + "1", German) == 9007199254740994.0);
}
