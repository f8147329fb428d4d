#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Numbers as the user types them. One grammar decides for the whole program what is numeric:
// blanks around are ignored; one sign, before or behind; digits with the locale's decimal sign and
// grouping sign; an exponent after e, E, d or D; or the forms &H (hexadecimal) and &O (octal).
// Blanks may stand between sign and digits. A grouping sign needs a digit before it, and of two in
// a row one is idle (where the point groups, "1..5" is 15). The &H and &O forms take no sign.
namespace runtime {

// The signs that the user's locale puts into numbers; German by default. Each is one character.
struct NumberSigns {
    std::string decimal = ",";
    std::string grouping = ".";
};

// The number that the text stands for; nothing when it is no number by the grammar above.
// A number beyond the range of a double counts as no number, as does one of more than 32 bits in
// the forms &H and &O.
std::optional<double> ParseNumber(std::string_view text, const NumberSigns& signs);

bool IsNumeric(std::string_view text, const NumberSigns& signs);

// Conversion to a whole number of 32 bits; halves round to the even neighbour.
// Throws Failure TypeMismatch when the text is no number, Overflow when it does not fit.
std::int32_t ToWholeNumber(std::string_view text, const NumberSigns& signs);

// The same to 16 bits, which window states and tab numbers have.
std::int16_t ToShortNumber(std::string_view text, const NumberSigns& signs);

// Conversion to a single-precision number. Throws Failure TypeMismatch or Overflow.
float ToSingle(std::string_view text, const NumberSigns& signs);

// The number at the head of a text: blanks, tabs and line ends are skipped, only the point is a
// decimal sign, reading stops at the first character that does not fit; 0 where nothing fits.
// Throws Failure Overflow beyond the range of a double, and beyond 32 bits after &H and &O.
double LeadingNumber(std::string_view text);

// Decimal text without a leading blank. The text of a number that is not whole carries the
// locale's decimal sign and at most 15 significant digits (7 for a single-precision number).
// Numbers with more digits before the decimal sign and those below 0.0001 have an exponent:
// "1E+15". Throws Failure Overflow for infinity, which a calculation may come to, and for NaN.
std::string ToText(std::int32_t number);
std::string ToText(double number, const NumberSigns& signs);
std::string ToText(float number, const NumberSigns& signs);

}  // namespace runtime
