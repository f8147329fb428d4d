#include <doctest/doctest.h>

#include "runtime/failurenumber.h"
#include "runtime/number.h"

using runtime::NumberSigns;
using runtime::ToShortNumber;
using runtime::ToSingle;
using runtime::ToWholeNumber;

namespace {

constexpr int Overflow = 6;
constexpr int TypeMismatch = 13;
const NumberSigns German;

int FailureOfWhole(std::string_view text) {
    return FailureNumberOf([&] { ToWholeNumber(text, German); });
}

int FailureOfShort(std::string_view text) {
    return FailureNumberOf([&] { ToShortNumber(text, German); });
}

int FailureOfSingle(std::string_view text) {
    return FailureNumberOf([&] { ToSingle(text, German); });
}

}  // namespace

TEST_CASE("a half rounds to the even neighbour") {
    CHECK(ToWholeNumber("0,5", German) == 0);
    CHECK(ToWholeNumber("1,5", German) == 2);
    CHECK(ToWholeNumber("2,5", German) == 2);
    CHECK(ToWholeNumber("3,5", German) == 4);
    CHECK(ToWholeNumber("-0,5", German) == 0);
    CHECK(ToWholeNumber("-1,5", German) == -2);
    CHECK(ToWholeNumber("-2,5", German) == -2);
}

TEST_CASE("what is not a half rounds to the nearer neighbour") {
    CHECK(ToWholeNumber("1,49", German) == 1);
    CHECK(ToWholeNumber("2,51", German) == 3);
    CHECK(ToWholeNumber("-2,51", German) == -3);
}

TEST_CASE("every form of a number converts") {
    CHECK(ToWholeNumber("1e3", German) == 1000);
    CHECK(ToWholeNumber("1d3", German) == 1000);
    CHECK(ToWholeNumber("12-", German) == -12);
    CHECK(ToWholeNumber("1.000", German) == 1000);
    CHECK(ToWholeNumber(" 12 ", German) == 12);
    CHECK(ToWholeNumber("&hFFFF", German) == -1);
    CHECK(ToWholeNumber("1,000", {.decimal = ".", .grouping = ","}) == 1000);
}

TEST_CASE("a whole number reaches to the ends of 32 bits and no further") {
    CHECK(ToWholeNumber("2147483647", German) == 2147483647);
    CHECK(ToWholeNumber("2147483647,4", German) == 2147483647);
    CHECK(ToWholeNumber("-2147483648", German) == -2147483647 - 1);
    CHECK(FailureOfWhole("2147483647,5") == Overflow);
    CHECK(FailureOfWhole("2147483648") == Overflow);
    CHECK(FailureOfWhole("-2147483649") == Overflow);
}

TEST_CASE("a well-formed number beyond all ranges is an overflow, not a wrong type") {
    CHECK(FailureOfWhole("1e400") == Overflow);
    CHECK(FailureOfWhole("-1e400") == Overflow);
    CHECK(FailureOfWhole("&H100000000") == Overflow);
    CHECK(FailureOfWhole(std::string(400, '9')) == Overflow);
}

TEST_CASE("a text that is no number is a wrong type") {
    CHECK(FailureOfWhole("") == TypeMismatch);
    CHECK(FailureOfWhole("abc") == TypeMismatch);
    CHECK(FailureOfWhole("12abc") == TypeMismatch);
    CHECK(FailureOfWhole("1e400x") == TypeMismatch);
}

TEST_CASE("a short number reaches to the ends of 16 bits and no further") {
    CHECK(ToShortNumber("32767,4", German) == 32767);
    CHECK(ToShortNumber("-32768", German) == -32768);
    CHECK(ToShortNumber("2", German) == 2);
    CHECK(FailureOfShort("32767,5") == Overflow);
    CHECK(FailureOfShort("32768") == Overflow);
    CHECK(FailureOfShort("-32769") == Overflow);
    CHECK(FailureOfShort("x") == TypeMismatch);
}

TEST_CASE("a single-precision number keeps its fraction") {
    CHECK(ToSingle("-120", German) == -120.0f);
    CHECK(ToSingle("0,5", German) == 0.5f);
    CHECK(ToSingle("0,1", German) == 0.1f);
}

TEST_CASE("a single-precision number ends at 3,402823E+38") {
    CHECK(ToSingle("3,402823E+38", German) == 3.402823e38f);
    CHECK(FailureOfSingle("3,5E+38") == Overflow);
    CHECK(FailureOfSingle("-3,5E+38") == Overflow);
    CHECK(FailureOfSingle("1e400") == Overflow);
    CHECK(FailureOfSingle("links") == TypeMismatch);
    CHECK(FailureOfSingle("") == TypeMismatch);
}
