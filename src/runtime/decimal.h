#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Exact conversion between doubles and decimal digits. The C library of the compiler does the same
// with a tenth of the executable's size, and that of the system rounds wrongly behind 17 digits.
namespace runtime {

// 0.digits times ten to the power of the exponent, rounded to the nearest double, halves to the
// even one. Infinite beyond the range of a double; 0 for no digits. Time grows with the square of
// the number of digits.
double FromDecimal(std::string_view digits, std::int64_t exponent);

struct Decimal {
    // The first one is not 0.
    std::string digits;
    // Of ten, and of the first digit: 1 for 12.5.
    int exponent = 0;
};

// That many significant digits, 1 to 17, rounded from the number's exact value, halves to the even
// digit. The number is positive and finite.
Decimal ToDecimal(double number, int digits);

}  // namespace runtime
