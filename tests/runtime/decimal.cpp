// The C library of the machine that tests is exact, too, and serves as the measure.
#include "runtime/decimal.h"

#include <doctest/doctest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace runtime;

namespace {

constexpr int Samples = 20000;

double Library(const std::string& digits, std::int64_t exponent) {
    return std::strtod(("0." + digits + "e" + std::to_string(exponent)).c_str(), nullptr);
}

std::string LibraryDigits(double number, int digits, int& exponent) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", digits - 1, number);
    const char* power = std::strchr(text, 'e');
    exponent = std::atoi(power + 1);
    std::string found(1, text[0]);
    if (digits > 1) found.append(text + 2, static_cast<std::size_t>(digits) - 1);
    return found;
}

void CheckDigits(double number, int digits) {
    int exponent = 0;
    const std::string expected = LibraryDigits(number, digits, exponent);
    const Decimal found = ToDecimal(number, digits);
    CAPTURE(number);
    CAPTURE(digits);
    CHECK(found.digits == expected);
    CHECK(found.exponent == exponent);
}

// Any positive finite number, subnormal ones as often as their share of the bit patterns.
double AnyNumber(std::mt19937_64& dice) {
    for (;;) {
        const std::uint64_t bits = dice() >> 1;
        double number = 0;
        std::memcpy(&number, &bits, sizeof number);
        if (std::isfinite(number) && number > 0) return number;
    }
}

TEST_CASE("digits become the nearest double, as the C library finds it") {
    std::mt19937_64 dice(1);
    for (int i = 0; i < Samples; ++i) {
        std::string digits;
        const std::size_t size = 1 + dice() % 40;
        while (digits.size() < size) digits += static_cast<char>('0' + dice() % 10);
        const std::int64_t exponent = static_cast<std::int64_t>(dice() % 680) - 345;
        CAPTURE(digits);
        CAPTURE(exponent);
        CHECK(FromDecimal(digits, exponent) == Library(digits, exponent));
    }
}

TEST_CASE(
    "a number exactly between two doubles goes to the even one, and a bit more to the upper") {
    std::mt19937_64 dice(2);
    for (int i = 0; i < 300; ++i) {
        const double number = AnyNumber(dice);
        const double next = std::nextafter(number, std::numeric_limits<double>::infinity());
        if (!std::isfinite(next)) continue;
        // The middle has one bit more than a double, which the longer type of the library prints.
        char text[1200];
        std::snprintf(text, sizeof text, "%.780Le",
                      (static_cast<long double>(number) + static_cast<long double>(next)) / 2);
        const std::string digits = text[0] + std::string(text + 2, 780);
        const std::int64_t exponent = std::atoi(std::strchr(text, 'e') + 1) + 1;
        CAPTURE(number);
        CHECK(FromDecimal(digits, exponent) == Library(digits, exponent));
        CHECK(FromDecimal(digits + '1', exponent) == next);
    }
}

TEST_CASE("the ends of the doubles are met: the largest, the smallest, none and too many") {
    constexpr double infinite = std::numeric_limits<double>::infinity();
    CHECK(FromDecimal("17976931348623157", 309) == std::numeric_limits<double>::max());
    CHECK(FromDecimal("17976931348623158", 309) == std::numeric_limits<double>::max());
    CHECK(FromDecimal("17976931348623159", 309) == infinite);
    CHECK(FromDecimal("1", 310) == infinite);
    CHECK(FromDecimal("1", 100000) == infinite);
    CHECK(FromDecimal("49406564584124654", -323) == std::numeric_limits<double>::denorm_min());
    CHECK(FromDecimal("24703282292062328", -323) == std::numeric_limits<double>::denorm_min());
    CHECK(FromDecimal("24703282292062327", -323) == 0);
    CHECK(FromDecimal("1", -100000) == 0);
    CHECK(FromDecimal("", 5) == 0);
    CHECK(FromDecimal("000", 5) == 0);
    CHECK(FromDecimal("0010", 3) == 1);
    CHECK(FromDecimal("22250738585072014", -307) == std::numeric_limits<double>::min());
    CHECK(FromDecimal("22250738585072011", -307) == Library("22250738585072011", -307));
}

TEST_CASE("a double becomes the digits that the C library prints") {
    std::mt19937_64 dice(3);
    for (int i = 0; i < Samples; ++i) {
        CheckDigits(AnyNumber(dice), 1 + static_cast<int>(dice() % 17));
    }
    for (int power = -1074; power < 1024; ++power) CheckDigits(std::ldexp(1.0, power), 15);
    for (int power = -323; power <= 308; ++power) {
        const double number = Library("1", power + 1);
        CheckDigits(number, 15);
        CheckDigits(std::nextafter(number, 0), 15);
        CheckDigits(std::nextafter(number, 0), 7);
    }
}

TEST_CASE("digits are rounded from the exact value, halves to the even digit, also upwards") {
    CHECK(ToDecimal(2.5, 1).digits == "2");
    CHECK(ToDecimal(3.5, 1).digits == "4");
    CHECK(ToDecimal(0.125, 2).digits == "12");
    CHECK(ToDecimal(999.5, 3).digits == "100");
    CHECK(ToDecimal(999.5, 3).exponent == 3);
    // Below the half in truth, though its shortest text says otherwise.
    CHECK(ToDecimal(1.005, 3).digits == "100");
}

}  // namespace
