#include "runtime/number.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "runtime/decimal.h"
#include "runtime/failure.h"

namespace runtime {
namespace {

// A text is read from its front; what has been understood is taken away.
class Reader {
  public:
    explicit Reader(std::string_view text) : rest_(text) {}

    bool AtEnd() const { return rest_.empty(); }
    char Peek() const { return rest_.empty() ? '\0' : rest_.front(); }

    // An empty sign is one that the locale does not have.
    bool Take(std::string_view sign) {
        if (sign.empty() || rest_.substr(0, sign.size()) != sign) return false;
        rest_.remove_prefix(sign.size());
        return true;
    }

    bool TakeOneOf(std::string_view signs) {
        if (rest_.empty() || signs.find(rest_.front()) == std::string_view::npos) return false;
        rest_.remove_prefix(1);
        return true;
    }

    // The value of the next digit in that base, -1 when there is none.
    int TakeDigit(int base) {
        char sign = Peek();
        int digit = -1;
        if (sign >= '0' && sign <= '9') digit = sign - '0';
        if (sign >= 'a' && sign <= 'f') digit = sign - 'a' + 10;
        if (sign >= 'A' && sign <= 'F') digit = sign - 'A' + 10;
        if (digit < 0 || digit >= base) return -1;
        rest_.remove_prefix(1);
        return digit;
    }

    void SkipBlanks() {
        while (TakeOneOf(" ")) {
        }
    }

  private:
    std::string_view rest_;
};

// The digits of a number as read: 0.digits times ten to the power of `exponent`.
struct DecimalText {
    std::string digits;
    std::int64_t exponent = 0;
    // Whether digits that no longer count were left out behind the kept ones.
    bool more = false;

    // No double needs more digits to be told from its neighbours; the rest only says "a bit more".
    static constexpr std::size_t Kept = 800;

    void Append(int digit) {
        if (digit == 0 && digits.empty()) return;
        if (digits.size() < Kept) {
            digits += static_cast<char>('0' + digit);
        } else {
            more = more || digit != 0;
        }
    }

    // Infinite when the number is beyond the range of a double.
    double Value() const { return FromDecimal(more ? digits + '1' : digits, exponent); }
};

// The power of ten that follows the digits; 0, and nothing taken, where none follows.
std::int64_t TakeExponent(Reader& reader) {
    Reader ahead = reader;
    if (!ahead.TakeOneOf("eEdD")) return 0;
    bool negative = ahead.Peek() == '-';
    ahead.TakeOneOf("+-");
    int digit = ahead.TakeDigit(10);
    if (digit < 0) return 0;
    constexpr std::int64_t limit = 1'000'000'000'000;
    std::int64_t exponent = 0;
    for (; digit >= 0; digit = ahead.TakeDigit(10)) {
        exponent = std::min(exponent * 10 + digit, limit);
    }
    reader = ahead;
    return negative ? -exponent : exponent;
}

// Digits, decimal sign, digits, exponent; nothing when there is not a single digit.
std::optional<double> TakeDecimal(Reader& reader, const NumberSigns& signs) {
    DecimalText decimal;
    bool anyDigit = false;
    bool fraction = false;
    for (;;) {
        if (!fraction && reader.Take(signs.decimal)) {
            fraction = true;
            continue;
        }
        if (anyDigit && !fraction && reader.Take(signs.grouping)) continue;
        int digit = reader.TakeDigit(10);
        if (digit < 0) break;
        anyDigit = true;
        decimal.Append(digit);
        bool counts = !decimal.digits.empty();
        if (!fraction && counts) ++decimal.exponent;
        if (fraction && !counts) --decimal.exponent;
    }
    if (!anyDigit) return std::nullopt;
    decimal.exponent += TakeExponent(reader);
    return decimal.Value();
}

// The &H and &O forms; a plain & is octal, too. They stand for 32 bits, and for 16 bits when these
// hold them, with the topmost bit as sign: &HFFFF is -1, &H10000 is 65536. Infinite beyond 32 bits.
std::optional<double> TakeBits(Reader& reader) {
    if (!reader.Take("&")) return std::nullopt;
    int base = 8;
    if (reader.TakeOneOf("hH")) {
        base = 16;
    } else {
        reader.TakeOneOf("oO");
    }
    int digit = reader.TakeDigit(base);
    if (digit < 0) return std::nullopt;
    constexpr std::uint64_t mostBits = 0xFFFFFFFF;
    std::uint64_t bits = 0;
    for (; digit >= 0; digit = reader.TakeDigit(base)) {
        bits = std::min(bits * static_cast<unsigned>(base) + static_cast<unsigned>(digit),
                        mostBits + 1);
    }
    if (bits > mostBits) return std::numeric_limits<double>::infinity();
    if (bits <= 0xFFFF) return static_cast<std::int16_t>(bits);
    return static_cast<std::int32_t>(bits);
}

// A whole text by the grammar; infinite when the number is beyond the range of a double.
std::optional<double> Read(std::string_view text, const NumberSigns& signs) {
    Reader reader(text);
    reader.SkipBlanks();
    std::optional<double> number;
    if (reader.Peek() == '&') {
        number = TakeBits(reader);
    } else {
        bool negative = reader.Peek() == '-';
        bool signedAhead = reader.TakeOneOf("+-");
        reader.SkipBlanks();
        number = TakeDecimal(reader, signs);
        reader.SkipBlanks();
        if (!signedAhead) {
            negative = reader.Peek() == '-';
            reader.TakeOneOf("+-");
        }
        if (number && negative) number = -*number;
    }
    reader.SkipBlanks();
    return reader.AtEnd() ? number : std::nullopt;
}

double Convert(std::string_view text, const NumberSigns& signs) {
    std::optional<double> number = Read(text, signs);
    if (!number) throw Failure(TypeMismatch);
    return *number;
}

template <typename Whole>
Whole ConvertToWhole(std::string_view text, const NumberSigns& signs) {
    // The rounding mode of the process is never changed, so halves go to the even neighbour.
    double number = std::nearbyint(Convert(text, signs));
    if (number < std::numeric_limits<Whole>::min() || number > std::numeric_limits<Whole>::max()) {
        throw Failure(Overflow);
    }
    return static_cast<Whole>(number);
}

std::string Print(double number, int digits, const NumberSigns& signs) {
    if (!std::isfinite(number)) throw Failure(Overflow);
    // Without this a negative zero would carry its sign into the text.
    if (number == 0) return "0";
    Decimal decimal = ToDecimal(std::abs(number), digits);
    std::string& shown = decimal.digits;
    shown.erase(shown.find_last_not_of('0') + 1);
    const int exponent = decimal.exponent;
    std::string text = number < 0 ? "-" : "";
    if (exponent < -4 || exponent >= digits) {
        text += shown.substr(0, 1);
        if (shown.size() > 1) text += signs.decimal + shown.substr(1);
        const std::string power = std::to_string(std::abs(exponent));
        return text + (exponent < 0 ? "E-" : "E+") + (power.size() < 2 ? "0" : "") + power;
    }
    const auto whole = static_cast<std::size_t>(std::max(exponent + 1, 0));
    if (shown.size() < whole) shown.resize(whole, '0');
    text += whole == 0 ? "0" : shown.substr(0, whole);
    if (exponent < 0) shown.insert(0, static_cast<std::size_t>(-exponent - 1), '0');
    if (shown.size() > whole) text += signs.decimal + shown.substr(whole);
    return text;
}

}  // namespace

std::optional<double> ParseNumber(std::string_view text, const NumberSigns& signs) {
    std::optional<double> number = Read(text, signs);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

bool IsNumeric(std::string_view text, const NumberSigns& signs) {
    return ParseNumber(text, signs).has_value();
}

std::int32_t ToWholeNumber(std::string_view text, const NumberSigns& signs) {
    return ConvertToWhole<std::int32_t>(text, signs);
}

std::int16_t ToShortNumber(std::string_view text, const NumberSigns& signs) {
    return ConvertToWhole<std::int16_t>(text, signs);
}

float ToSingle(std::string_view text, const NumberSigns& signs) {
    double number = Convert(text, signs);
    if (std::abs(number) > std::numeric_limits<float>::max()) throw Failure(Overflow);
    return static_cast<float>(number);
}

double LeadingNumber(std::string_view text) {
    std::string dense;
    for (char sign : text) {
        if (sign != ' ' && sign != '\t' && sign != '\r' && sign != '\n') dense += sign;
    }
    Reader reader(dense);
    bool negative = reader.Peek() == '-';
    std::optional<double> number;
    if (reader.Peek() == '&') {
        number = TakeBits(reader);
    } else {
        reader.TakeOneOf("+-");
        number = TakeDecimal(reader, {.decimal = ".", .grouping = ""});
    }
    if (!number) return 0;
    if (!std::isfinite(*number)) throw Failure(Overflow);
    return negative ? -*number : *number;
}

std::string ToText(std::int32_t number) {
    return std::to_string(number);
}

std::string ToText(double number, const NumberSigns& signs) {
    return Print(number, 15, signs);
}

std::string ToText(float number, const NumberSigns& signs) {
    return Print(static_cast<double>(number), 7, signs);
}

}  // namespace runtime
