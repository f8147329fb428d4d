#include "endtoend/optiontablenumbers.h"

#include <windows.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

#include "platform/win32/text.h"

namespace endtoend {
namespace {

using platform::win32::FromWide;
using platform::win32::ToWide;

// Written by hand: a German system has the comma in front of a fraction and the point between
// thousands.
const std::map<std::string, double>& OddNumbers() {
    static const std::map<std::string, double> numbers = {
        {"1,0", 1},  {"0,0", 0},           {"1e0", 1},      {"1-", -1},   {"&H1", 1},
        {"&H0", 0},  {"1.0", 10},          {"1.500", 1500}, {"2,5", 2.5}, {"3,5", 3.5},
        {"-0", 0},   {"1e3", 1000},        {"&HFFFF", -1},  {"0,5", 0.5}, {"1,5e3", 1500},
        {"5.1", 51}, {"5.1.2600", 512600},
    };
    return numbers;
}

std::string WithoutBlanks(std::string text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) return "";
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool OnlyDigits(const std::string& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string::npos;
}

std::string HexForm(const std::string& bytes) {
    std::string text;
    char piece[8];
    for (const char byte : bytes) {
        const auto number = static_cast<unsigned char>(byte);
        std::snprintf(piece, sizeof piece, number < 10 ? "%02X " : "%X ", number);
        text += piece;
    }
    return text;
}

}  // namespace

std::optional<double> NumberIn(const std::string& text) {
    const std::string bare = WithoutBlanks(text);
    const auto odd = OddNumbers().find(bare);
    if (odd != OddNumbers().end()) return odd->second;
    const bool sign = bare.starts_with('-') || bare.starts_with('+');
    if (!OnlyDigits(bare.substr(sign ? 1 : 0))) return std::nullopt;
    const double number = std::strtod(bare.c_str(), nullptr);
    // Beyond the range of a double there are no numbers.
    return std::isinf(number) ? std::nullopt : std::optional<double>(number);
}

Whole WholeNumberIn(const std::string& text) {
    const std::optional<double> number = NumberIn(text);
    if (!number) return {0, 13};
    const double whole = std::nearbyint(*number);
    if (whole < -2147483648.0 || whole > 2147483647.0) return {0, 6};
    return {static_cast<std::int32_t>(whole), 0};
}

double LeadingNumberIn(const std::string& text) {
    const std::size_t end = text.find_first_not_of("0123456789");
    const std::string digits = text.substr(0, end);
    return std::strtod(digits.c_str(), nullptr);
}

std::string FirstCharacters(const std::string& text, std::size_t count) {
    const std::wstring wide = ToWide(text);
    return count == 0 || wide.size() <= count ? text : FromWide(wide.substr(0, count));
}

std::string ThroughCodePage(const std::string& text) {
    const std::wstring wide = ToWide(text);
    std::string bytes(wide.size() * 2 + 1, '\0');
    const int size =
        WideCharToMultiByte(CP_ACP, 0, wide.data(), static_cast<int>(wide.size()), bytes.data(),
                            static_cast<int>(bytes.size()), nullptr, nullptr);
    std::wstring back(bytes.size(), L'\0');
    const int length = MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, back.data(),
                                           static_cast<int>(back.size()));
    return FromWide({back.data(), static_cast<std::size_t>(length)});
}

std::string TextForm(const std::optional<RegistryValue>& stored) {
    if (!stored) return "";
    switch (stored->type) {
        case REG_SZ:
        case REG_EXPAND_SZ:
        case REG_MULTI_SZ: {
            std::wstring text(stored->bytes.size() / sizeof(wchar_t), L'\0');
            std::memcpy(text.data(), stored->bytes.data(), text.size() * sizeof(wchar_t));
            return ThroughCodePage(FromWide(text.substr(0, text.find(L'\0'))));
        }
        case REG_BINARY:
            return HexForm(stored->bytes);
        case REG_DWORD: {
            // One that is larger does not fit into the 32 bits that are asked for.
            if (stored->bytes.size() > sizeof(std::int32_t)) return "";
            std::int32_t number = 0;
            std::memcpy(&number, stored->bytes.data(), stored->bytes.size());
            return std::to_string(number);
        }
        default:
            return "";
    }
}

}  // namespace endtoend
