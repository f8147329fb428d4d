#include <doctest/doctest.h>

#include <limits>

#include "runtime/number.h"
#include "runtime/signs.h"
#include "support/failureof.h"

using runtime::NumberSigns;
using runtime::ToText;

namespace {}  // namespace

TEST_CASE("a whole number becomes its decimal digits without a leading blank") {
    CHECK(ToText(0) == "0");
    CHECK(ToText(255) == "255");
    CHECK(ToText(-160) == "-160");
    CHECK(ToText(std::numeric_limits<std::int32_t>::max()) == "2147483647");
    CHECK(ToText(std::numeric_limits<std::int32_t>::min()) == "-2147483648");
}

TEST_CASE("a double without a fraction becomes text without a decimal sign") {
    CHECK(ToText(5840.0, German) == "5840");
    CHECK(ToText(-160.0, German) == "-160");
    CHECK(ToText(0.0, German) == "0");
    CHECK(ToText(-0.0, German) == "0");
}

TEST_CASE("a fraction has a zero in front and the locale's decimal sign") {
    CHECK(ToText(0.5, German) == "0,5");
    CHECK(ToText(-0.5, German) == "-0,5");
    CHECK(ToText(1234.5, German) == "1234,5");
    CHECK(ToText(0.5, {.decimal = ".", .grouping = ","}) == "0.5");
}

TEST_CASE("a double shows at most 15 digits") {
    CHECK(ToText(1.0 / 3, German) == "0,333333333333333");
    CHECK(ToText(0.1 + 0.2, German) == "0,3");
    CHECK(ToText(123456789012345.0, German) == "123456789012345");
    CHECK(ToText(123456789012345.6, German) == "123456789012346");
}

TEST_CASE("very large and very small numbers have an exponent") {
    CHECK(ToText(999999999999999.0, German) == "999999999999999");
    CHECK(ToText(1e15, German) == "1E+15");
    CHECK(ToText(1e20, German) == "1E+20");
    CHECK(ToText(-1.5e300, German) == "-1,5E+300");
    CHECK(ToText(0.0001, German) == "0,0001");
    CHECK(ToText(0.00001, German) == "1E-05");
}

TEST_CASE("a single-precision number shows at most 7 digits") {
    CHECK(ToText(-120.0f, German) == "-120");
    CHECK(ToText(9990.0f, German) == "9990");
    CHECK(ToText(0.1f, German) == "0,1");
    CHECK(ToText(1234.5f, German) == "1234,5");
    CHECK(ToText(16777216.0f, German) == "1,677722E+07");
}

TEST_CASE("the text of a number reads back as that number") {
    for (double number : {0.0, 0.5, -2.75, 1e15, 1e-5, 123456.789, -1e300}) {
        CAPTURE(number);
        CHECK(runtime::ParseNumber(ToText(number, German), German) == number);
    }
}

TEST_CASE("a number beyond every text is an overflow: infinite on either side, or none at all") {
    const double infinite = std::numeric_limits<double>::infinity();
    for (double number : {infinite, -infinite, std::numeric_limits<double>::quiet_NaN()}) {
        CAPTURE(number);
        CHECK(FailureOf([&] { ToText(number, German); }) == runtime::Overflow);
        CHECK(FailureOf([&] { ToText(static_cast<float>(number), German); }) == runtime::Overflow);
    }
    CHECK(ToText(std::numeric_limits<double>::max(), German) == "1,79769313486232E+308");
    CHECK(ToText(std::numeric_limits<double>::lowest(), German) == "-1,79769313486232E+308");
    CHECK(ToText(std::numeric_limits<float>::max(), German) == "3,402823E+38");
}
