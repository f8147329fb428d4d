#include <doctest/doctest.h>

#include "runtime/number.h"
#include "runtime/signs.h"
#include "support/failureof.h"

using runtime::NumberSigns;
using runtime::ToShortNumber;
using runtime::ToSingle;
using runtime::ToWholeNumber;

namespace {

constexpr int OverflowNumber = 6;
constexpr int MismatchNumber = 13;

int FailureOfWhole(std::string_view text) {
    return FailureOf([&] { ToWholeNumber(text, German); });
}

int FailureOfShort(std::string_view text) {
    return FailureOf([&] { ToShortNumber(text, German); });
}

int FailureOfSingle(std::string_view text) {
    return FailureOf([&] { ToSingle(text, German); });
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
    CHECK(FailureOfWhole("2147483647,5") == OverflowNumber);
    CHECK(FailureOfWhole("2147483648") == OverflowNumber);
    CHECK(FailureOfWhole("-2147483649") == OverflowNumber);
}

TEST_CASE("a well-formed number beyond all ranges is an overflow, not a wrong type") {
    CHECK(FailureOfWhole("1e400") == OverflowNumber);
    CHECK(FailureOfWhole("-1e400") == OverflowNumber);
    CHECK(FailureOfWhole("&H100000000") == OverflowNumber);
    CHECK(FailureOfWhole(std::string(400, '9')) == OverflowNumber);
}

TEST_CASE("a text that is no number is a wrong type") {
    CHECK(FailureOfWhole("") == MismatchNumber);
    CHECK(FailureOfWhole("abc") == MismatchNumber);
    CHECK(FailureOfWhole("12abc") == MismatchNumber);
    CHECK(FailureOfWhole("1e400x") == MismatchNumber);
}

TEST_CASE("a short number reaches to the ends of 16 bits and no further") {
    CHECK(ToShortNumber("32767,4", German) == 32767);
    CHECK(ToShortNumber("-32768", German) == -32768);
    CHECK(ToShortNumber("2", German) == 2);
    CHECK(FailureOfShort("32767,5") == OverflowNumber);
    CHECK(FailureOfShort("32768") == OverflowNumber);
    CHECK(FailureOfShort("-32769") == OverflowNumber);
    CHECK(FailureOfShort("x") == MismatchNumber);
}

TEST_CASE("a single-precision number keeps its fraction") {
    CHECK(ToSingle("-120", German) == -120.0f);
    CHECK(ToSingle("0,5", German) == 0.5f);
    CHECK(ToSingle("0,1", German) == 0.1f);
}

TEST_CASE("a single-precision number ends at 3,402823E+38") {
    CHECK(ToSingle("3,402823E+38", German) == 3.402823e38f);
    CHECK(FailureOfSingle("3,5E+38") == OverflowNumber);
    CHECK(FailureOfSingle("-3,5E+38") == OverflowNumber);
    CHECK(FailureOfSingle("1e400") == OverflowNumber);
    CHECK(FailureOfSingle("links") == MismatchNumber);
    CHECK(FailureOfSingle("") == MismatchNumber);
}
