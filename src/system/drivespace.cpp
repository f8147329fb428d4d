#include "system/drivespace.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/locale.h"
#include "platform/systemfacts.h"
#include "runtime/decimal.h"
#include "runtime/failure.h"

namespace sys {
namespace {

// The eight characters in which the system leaves a number of 64 bits.
std::string Raw(std::uint64_t number) {
    std::string raw;
    for (int i = 0; i < 8; ++i) raw += static_cast<char>(number >> 8 * i & 0xFF);
    return raw;
}

// The digits of a whole number, 15 of which are significant.
std::string Digits(double number) {
    runtime::Decimal decimal = runtime::ToDecimal(number, 15);
    decimal.digits.resize(static_cast<std::size_t>(decimal.exponent) + 1, '0');
    return decimal.digits;
}

}  // namespace

std::string clsGetDriveSpace::UserFree(std::string_view drive) const {
    return Formatted(Raw(facts_.Space(drive).freeToUser));
}

std::string clsGetDriveSpace::TotalSize(std::string_view drive) const {
    return Formatted(Raw(facts_.Space(drive).total));
}

std::string clsGetDriveSpace::UsedSize(std::string_view drive) const {
    const platform::DiskSpace space = facts_.Space(drive);
    // Where a quota limits the user, the total is his share, and more than that may be free.
    return Formatted(Raw(space.free < space.total ? space.total - space.free : 0));
}

std::string clsGetDriveSpace::SizeLeft(std::string_view drive) const {
    return Formatted(Raw(facts_.Space(drive).free));
}

double clsGetDriveSpace::ver(std::string_view text) {
    double number = 0;
    int exponent = 0;
    for (const char character : text) {
        // A weight that is too large fails even under a zero.
        if (exponent >= std::numeric_limits<double>::max_exponent) {
            throw runtime::Failure(runtime::Overflow);
        }
        number += std::ldexp(static_cast<unsigned char>(character), exponent);
        exponent += 8;
    }
    if (number > std::numeric_limits<double>::max()) throw runtime::Failure(runtime::Overflow);
    return number;
}

std::string clsGetDriveSpace::Formatted(std::string_view raw) const {
    const double number = ver(raw);
    if (number == 0) return "";
    const std::string digits = Digits(number);
    const std::string sign = locale_.Signs().grouping;
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) text += sign;
        text += digits[i];
    }
    return text;
}

}  // namespace sys
