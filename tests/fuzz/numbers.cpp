// Texts to numbers, and back. The first byte chooses the signs of a locale.
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <optional>

#include "fuzz/target.h"
#include "runtime/number.h"

namespace fuzz {
namespace {

using runtime::NumberSigns;

const NumberSigns SignsOfLocales[] = {
    {",", "."}, {".", ","}, {",", ""}, {".", "'"}, {",", "\u00A0"}, {"\u066B", "\u066C"},
};

bool IsOneOf(std::string_view signs, std::string_view text, std::size_t at) {
    return at < text.size() && signs.find(text[at]) != std::string_view::npos;
}

// A decimal number at the front of a text as the C library reads it; nothing where there is none.
struct CNumber {
    std::string text;
    std::size_t length = 0;

    double Value() const { return std::strtod(text.c_str(), nullptr); }
};

std::optional<CNumber> AsCNumber(std::string_view text, const NumberSigns& signs) {
    constexpr std::string_view digits = "0123456789";
    CNumber number;
    std::size_t& at = number.length;
    const auto take = [&](const std::string& sign) {
        if (sign.empty() || !text.substr(at).starts_with(sign)) return false;
        at += sign.size();
        return true;
    };
    bool hasDigit = false;
    bool isWhole = true;
    for (;;) {
        if (isWhole && take(signs.decimal)) {
            number.text += '.';
            isWhole = false;
        } else if (IsOneOf(digits, text, at)) {
            number.text += text[at++];
            hasDigit = true;
        } else if (!hasDigit || !isWhole || !take(signs.grouping)) {
            break;
        }
    }
    if (!hasDigit) return std::nullopt;
    if (IsOneOf("eEdD", text, at)) {
        const std::size_t first = at + (IsOneOf("+-", text, at + 1) ? 2 : 1);
        if (IsOneOf(digits, text, first)) {
            number.text.append("e").append(text.substr(at + 1, first - at - 1));
            for (at = first; IsOneOf(digits, text, at); ++at) number.text += text[at];
        }
    }
    return number;
}

// By the grammar of runtime/number.h without the forms that begin with an ampersand; infinite
// beyond the range.
std::optional<double> ByCLibrary(std::string_view text, const NumberSigns& signs) {
    const auto skip = [&](std::string_view what) {
        text.remove_prefix(std::min(text.find_first_not_of(what), text.size()));
    };
    const auto takeSign = [&]() -> std::optional<char> {
        if (!IsOneOf("+-", text, 0)) return std::nullopt;
        const char sign = text.front();
        text.remove_prefix(1);
        return sign;
    };
    skip(" ");
    auto sign = takeSign();
    skip(" ");
    const auto number = AsCNumber(text, signs);
    if (!number) return std::nullopt;
    text.remove_prefix(number->length);
    skip(" ");
    if (!sign) sign = takeSign();
    skip(" ");
    if (!text.empty()) return std::nullopt;
    return sign == '-' ? -number->Value() : number->Value();
}

// The forms that begin with an ampersand; infinite beyond 32 bits.
std::optional<double> BitsByCLibrary(std::string_view text) {
    text.remove_prefix(text.find('&') + 1);
    text = text.substr(0, text.find_last_not_of(' ') + 1);
    const bool isHex = IsOneOf("hH", text, 0);
    if (isHex || IsOneOf("oO", text, 0)) text.remove_prefix(1);
    const char* digits = isHex ? "0123456789abcdefABCDEF" : "01234567";
    if (text.empty() || text.find_first_not_of(digits) != std::string_view::npos) {
        return std::nullopt;
    }
    const auto bits = std::strtoull(std::string(text).c_str(), nullptr, isHex ? 16 : 8);
    if (bits > 0xFFFFFFFF) return std::numeric_limits<double>::infinity();
    return bits > 0xFFFF ? static_cast<std::int32_t>(bits) : static_cast<std::int16_t>(bits);
}

// What a conversion gives, or the number of its failure.
template <typename Convert>
auto ResultOf(const Convert& convert, int& failure) {
    decltype(convert()) number{};
    failure = FailureOf([&] { number = convert(); });
    return number;
}

template <typename Whole, typename Convert>
void CheckWhole(const std::optional<double>& number, int failureOfNone, const Convert& convert) {
    int failure = 0;
    const Whole whole = ResultOf(convert, failure);
    if (!number) return Require(failure == failureOfNone, "no number, and not told so");
    const double rounded = std::nearbyint(*number);
    const bool fits = rounded >= std::numeric_limits<Whole>::min() &&
                      rounded <= std::numeric_limits<Whole>::max();
    if (!fits) return Require(failure == runtime::Overflow, "too large, and not told so");
    Require(failure == 0 && static_cast<double>(whole) == rounded, "not the nearest whole number");
}

void CheckText(double number, double precision, const std::string& text, const NumberSigns& signs) {
    const auto again = runtime::ParseNumber(text, signs);
    // The highest numbers are rounded up to what is none.
    if (!again && std::abs(number) > 1.797e308) return;
    Require(again.has_value(), "the text of a number is none");
    Require(std::abs(*again - number) <= std::abs(number) * precision + 1e-322,
            "the text of a number is another one's");
    Require(runtime::ToText(*again, signs).size() <= 24 + signs.decimal.size(), "a long text");
}

void CheckLeading(std::string_view text) {
    int failure = 0;
    const double number = ResultOf([&] { return runtime::LeadingNumber(text); }, failure);
    Require(failure == 0 || failure == runtime::Overflow, "a failure that is none of it");
    int other = 0;
    const std::string longer = std::string(text) + "x1";
    Require(number == ResultOf([&] { return runtime::LeadingNumber(longer); }, other) &&
                failure == other,
            "what follows the number counts");
    std::string dense(text);
    std::erase_if(dense, [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; });
    std::string_view rest = dense;
    if (rest.starts_with('&')) return;
    const bool negative = rest.starts_with('-');
    if (IsOneOf("+-", rest, 0)) rest.remove_prefix(1);
    const auto expected = AsCNumber(rest, {.decimal = ".", .grouping = ""});
    const double value = expected ? expected->Value() : 0;
    if (std::isinf(value)) return Require(failure == runtime::Overflow, "too large, and taken");
    Require(failure == 0 && number == (negative ? -value : value), "another leading number");
}

}  // namespace

FUZZ_TARGET(numbers) {
    Input bytes(input);
    const NumberSigns& signs = SignsOfLocales[bytes.Below(std::size(SignsOfLocales))];
    const std::string_view text = bytes.Rest();

    const auto number = runtime::ParseNumber(text, signs);
    Require(number == runtime::ParseNumber(text, signs), "not the same answer twice");
    Require(runtime::IsNumeric(text, signs) == number.has_value(), "numeric, and no number");
    const std::size_t first = text.find_first_not_of(' ');
    const bool isBits = first != std::string_view::npos && text[first] == '&';
    const auto expected = isBits ? BitsByCLibrary(text) : ByCLibrary(text, signs);
    const bool isFinite = expected && std::isfinite(*expected);
    Require(number == (isFinite ? expected : std::nullopt), "not the C library's number");

    // Beyond the range of a double it is a number, only too large.
    int failureOfNone = 0;
    ResultOf([&] { return runtime::ToSingle(text, signs); }, failureOfNone);
    if (!number) {
        Require(failureOfNone == (expected ? runtime::Overflow : runtime::TypeMismatch),
                "a large number and no number are not told apart");
    }
    CheckWhole<std::int32_t>(number, failureOfNone,
                             [&] { return runtime::ToWholeNumber(text, signs); });
    CheckWhole<std::int16_t>(number, failureOfNone,
                             [&] { return runtime::ToShortNumber(text, signs); });
    CheckLeading(text);
    if (!number) return;

    CheckText(*number, 1e-14, runtime::ToText(*number, signs), signs);
    if (std::abs(*number) > std::numeric_limits<float>::max()) {
        return Require(failureOfNone == runtime::Overflow, "no single-precision number");
    }
    const float single = runtime::ToSingle(text, signs);
    Require(single == static_cast<float>(*number), "another single-precision number");
    CheckText(static_cast<double>(single), 1e-6, runtime::ToText(single, signs), signs);
}

}  // namespace fuzz
