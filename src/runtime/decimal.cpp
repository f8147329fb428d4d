#include "runtime/decimal.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace runtime {
namespace {

constexpr int MantissaBits = std::numeric_limits<double>::digits;
// Of the lowest bit that a double can have.
constexpr int LowestExponent = std::numeric_limits<double>::min_exponent - MantissaBits;

// A whole number without limit, from 0 up; the lowest 32 bits first, no zeros at the top.
class Whole {
  public:
    explicit Whole(std::uint64_t number) {
        for (; number != 0; number >>= 32) words_.push_back(static_cast<std::uint32_t>(number));
    }

    void MultiplyAndAdd(std::uint32_t factor, std::uint32_t summand) {
        std::uint64_t carry = summand;
        for (std::uint32_t& word : words_) {
            carry += std::uint64_t{word} * factor;
            word = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
        if (carry != 0) words_.push_back(static_cast<std::uint32_t>(carry));
    }

    void MultiplyByPowerOfTen(std::int64_t power) {
        for (; power > 0; --power) MultiplyAndAdd(10, 0);
    }

    void ShiftLeft(int bits) {
        if (words_.empty() || bits <= 0) return;
        MultiplyAndAdd(std::uint32_t{1} << bits % 32, 0);
        words_.insert(words_.begin(), static_cast<std::size_t>(bits / 32), 0);
    }

    void Halve() {
        for (std::size_t at = 0; at < words_.size(); ++at) {
            const std::uint32_t above = at + 1 < words_.size() ? words_[at + 1] : 0;
            words_[at] = words_[at] >> 1 | above << 31;
        }
        Trim();
    }

    // How many bits it takes to write the number.
    int Bits() const {
        if (words_.empty()) return 0;
        int bits = static_cast<int>(words_.size() - 1) * 32;
        for (std::uint32_t top = words_.back(); top != 0; top >>= 1) ++bits;
        return bits;
    }

    // Less than, equal to or greater than 0, as this is less, equal or greater.
    int Compare(const Whole& other) const {
        if (words_.size() != other.words_.size()) {
            return words_.size() < other.words_.size() ? -1 : 1;
        }
        for (std::size_t at = words_.size(); at-- > 0;) {
            if (words_[at] != other.words_[at]) return words_[at] < other.words_[at] ? -1 : 1;
        }
        return 0;
    }

    // The other one must not be greater.
    void Subtract(const Whole& other) {
        std::uint64_t borrow = 0;
        for (std::size_t at = 0; at < words_.size(); ++at) {
            const std::uint64_t less = at < other.words_.size() ? other.words_[at] : 0;
            const std::uint64_t word = std::uint64_t{words_[at]} - less - borrow;
            words_[at] = static_cast<std::uint32_t>(word);
            borrow = word >> 63;
        }
        Trim();
    }

  private:
    void Trim() {
        while (!words_.empty() && words_.back() == 0) words_.pop_back();
    }

    std::vector<std::uint32_t> words_;
};

// The quotient, halves rounded to the even neighbour. It must be below 2 to the power of 63.
std::uint64_t Divide(Whole dividend, Whole divisor) {
    const int first = std::max(dividend.Bits() - divisor.Bits(), 0);
    divisor.ShiftLeft(first);
    std::uint64_t quotient = 0;
    for (int bit = first; bit >= 0; --bit) {
        quotient <<= 1;
        if (dividend.Compare(divisor) >= 0) {
            dividend.Subtract(divisor);
            quotient |= 1;
        }
        if (bit > 0) divisor.Halve();
    }
    dividend.ShiftLeft(1);
    const int half = dividend.Compare(divisor);
    return half > 0 || (half == 0 && quotient % 2 != 0) ? quotient + 1 : quotient;
}

}  // namespace

double FromDecimal(std::string_view digits, std::int64_t exponent) {
    while (!digits.empty() && digits.front() == '0') {
        digits.remove_prefix(1);
        --exponent;
    }
    if (digits.empty() || exponent < std::numeric_limits<double>::min_exponent10 - 20) return 0;
    if (exponent > std::numeric_limits<double>::max_exponent10 + 1) {
        return std::numeric_limits<double>::infinity();
    }
    const std::int64_t power = exponent - static_cast<std::int64_t>(digits.size());
    // A number without a fraction that a double holds as it is.
    if (power >= 0 && exponent <= std::numeric_limits<double>::digits10) {
        std::uint64_t number = 0;
        for (const char digit : digits) number = number * 10 + static_cast<unsigned>(digit - '0');
        for (std::int64_t zeros = power; zeros > 0; --zeros) number *= 10;
        return static_cast<double>(number);
    }
    Whole dividend(0);
    Whole divisor(1);
    for (const char digit : digits) {
        dividend.MultiplyAndAdd(10, static_cast<std::uint32_t>(digit - '0'));
    }
    dividend.MultiplyByPowerOfTen(power);
    divisor.MultiplyByPowerOfTen(-power);

    // Brings the quotient to as many bits as a double has, or fewer where the double is tiny. One
    // bit too few would lose the rounding, so the estimate is made exact.
    int bits = dividend.Bits() - divisor.Bits();
    Whole low = divisor;
    Whole high = dividend;
    low.ShiftLeft(bits);
    high.ShiftLeft(-bits);
    if (high.Compare(low) < 0) --bits;
    const int lowest = std::max(bits - (MantissaBits - 1), LowestExponent);
    dividend.ShiftLeft(-lowest);
    divisor.ShiftLeft(lowest);
    return std::ldexp(static_cast<double>(Divide(dividend, divisor)), lowest);
}

Decimal ToDecimal(double number, int digits) {
    int exponent = 0;
    const double fraction = std::frexp(number, &exponent);
    exponent -= MantissaBits;
    const auto mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, MantissaBits));
    std::uint64_t limit = 1;
    for (int i = 0; i < digits; ++i) limit *= 10;

    constexpr double log10Of2 = 0.30102999566398120;
    int first = static_cast<int>(std::floor((exponent + MantissaBits - 1) * log10Of2));
    for (;;) {
        Whole dividend(mantissa);
        Whole divisor(1);
        dividend.ShiftLeft(exponent);
        divisor.ShiftLeft(-exponent);
        dividend.MultiplyByPowerOfTen(digits - 1 - first);
        divisor.MultiplyByPowerOfTen(first - (digits - 1));
        const std::uint64_t rounded = Divide(dividend, divisor);
        // The estimate never lies above the exponent, so that it only has to go up; so does a
        // number that is rounded up to the next power of ten.
        if (rounded < limit) return {std::to_string(rounded), first};
        ++first;
    }
}

}  // namespace runtime
