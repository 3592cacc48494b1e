#include "exact_decimal.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

namespace talvex {
namespace {

constexpr std::uint32_t kLimbBase = 1'000'000'000;
constexpr int kLimbDigits = 9;

// A whole number in limbs of nine decimal digits, the lowest first.
using Limbs = std::vector<std::uint32_t>;

void multiply(Limbs& limbs, std::uint32_t factor) {
    std::uint64_t carry = 0;
    for (std::uint32_t& limb : limbs) {
        carry += std::uint64_t{limb} * factor;
        limb = static_cast<std::uint32_t>(carry % kLimbBase);
        carry /= kLimbBase;
    }
    while (carry > 0) {
        limbs.push_back(static_cast<std::uint32_t>(carry % kLimbBase));
        carry /= kLimbBase;
    }
}

void multiplyByPower(Limbs& limbs, std::uint32_t base, int exponent, int step) {
    std::uint32_t stepFactor = 1;
    for (int count = 0; count < step; ++count) {
        stepFactor *= base;
    }
    for (; exponent >= step; exponent -= step) {
        multiply(limbs, stepFactor);
    }
    for (; exponent > 0; --exponent) {
        multiply(limbs, base);
    }
}

std::string decimalDigits(const Limbs& limbs) {
    std::string digits;
    for (const auto limb : limbs) {
        const std::string part = std::to_string(limb);
        digits.insert(0, std::string(kLimbDigits - part.size(), '0') + part);
    }
    return digits;
}

// A finite magnitude as mantissa * 2^exponent.
struct Binary {
    std::uint64_t mantissa;
    int exponent;
};

constexpr std::uint64_t kHiddenBit = std::uint64_t{1} << 52U;
constexpr int kLowestExponent = -1074;

Binary binaryOf(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(std::fabs(value));
    const std::uint64_t fraction = bits & (kHiddenBit - 1);
    const int field = static_cast<int>(bits >> 52U);
    return field == 0 ? Binary{fraction, kLowestExponent}
                      : Binary{fraction | kHiddenBit, field - 1 + kLowestExponent};
}

ExactDecimal midpointBelow(double value) {
    const auto [mantissa, exponent] = binaryOf(value);
    // Below a power of two the doubles lie twice as close.
    const bool isClose = mantissa == kHiddenBit && exponent > kLowestExponent;
    return isClose ? ExactDecimal::fromBinary(4 * mantissa - 1, exponent - 2)
                   : ExactDecimal::fromBinary(2 * mantissa - 1, exponent - 1);
}

std::string withPoint(std::string digits, int places) {
    const auto count = static_cast<std::size_t>(places);
    if (digits.size() <= count) {
        digits.insert(0, count + 1 - digits.size(), '0');
    }
    if (places > 0) {
        digits.insert(digits.size() - count, 1, '.');
    }
    return digits;
}

}  // namespace

ExactDecimal::ExactDecimal(double value) {
    const auto [mantissa, exponent] = binaryOf(value);
    *this = fromBinary(mantissa, exponent);
}

ExactDecimal::ExactDecimal(std::string digits, int exponent) : digits_(std::move(digits)) {
    const std::size_t point = digits_.find('.');
    if (point != std::string::npos) {
        digits_.erase(point, 1);
        exponent -= static_cast<int>(digits_.size() - point);
    }
    const std::size_t length = digits_.find_last_not_of('0') + 1;  // 0 if there is none
    exponent_ = length == 0 ? 0 : exponent + static_cast<int>(digits_.size() - length);
    digits_.resize(length);
    digits_.erase(0, std::min(digits_.find_first_not_of('0'), length));
}

ExactDecimal ExactDecimal::fromBinary(std::uint64_t mantissa, int exponent) {
    Limbs limbs{static_cast<std::uint32_t>(mantissa % kLimbBase),
                static_cast<std::uint32_t>(mantissa / kLimbBase % kLimbBase),
                static_cast<std::uint32_t>(mantissa / kLimbBase / kLimbBase)};
    // A half is five tenths.
    multiplyByPower(limbs, 2, exponent, 29);
    multiplyByPower(limbs, 5, -exponent, 12);
    return ExactDecimal(decimalDigits(limbs), std::min(exponent, 0));
}

int ExactDecimal::leadingPower() const { return static_cast<int>(digits_.size()) - 1 + exponent_; }

// The digits of the number in units of 10^power, ties to even; none for zero.
std::string ExactDecimal::roundedTo(int power) const {
    if (isZero()) {
        return {};
    }
    if (power <= exponent_) {
        return digits_ + std::string(static_cast<std::size_t>(exponent_ - power), '0');
    }
    const int count = leadingPower() - power + 1;
    if (count < 0) {
        return {};
    }
    std::string kept = digits_.substr(0, static_cast<std::size_t>(count));
    const std::string_view rest = std::string_view(digits_).substr(static_cast<std::size_t>(count));
    const bool isOdd = !kept.empty() && (kept.back() - '0') % 2 == 1;
    // The rest never ends in a zero, so that "5" alone is the tie.
    if (rest == "5" ? isOdd : rest > "5") {
        std::size_t place = kept.size();
        while (place > 0 && kept[place - 1] == '9') {
            kept[--place] = '0';
        }
        if (place == 0) {
            kept.insert(0, 1, '1');
        } else {
            ++kept[place - 1];
        }
    }
    return kept;
}

std::string ExactDecimal::text() const { return fixed(std::max(-exponent_, 0)); }

std::string ExactDecimal::fixed(int places) const { return withPoint(roundedTo(-places), places); }

ExactDecimal::Scientific ExactDecimal::scientific(int places) const {
    if (isZero()) {
        return {.mantissa = withPoint("", places), .exponent = 0};
    }
    std::string digits = roundedTo(leadingPower() - places);
    const int carry = static_cast<int>(digits.size()) - (places + 1);
    digits.resize(static_cast<std::size_t>(places) + 1);
    return {.mantissa = withPoint(digits, places), .exponent = leadingPower() + carry};
}

bool ExactDecimal::operator<(const ExactDecimal& other) const {
    if (isZero() || other.isZero()) {
        return isZero() && !other.isZero();
    }
    return leadingPower() != other.leadingPower() ? leadingPower() < other.leadingPower()
                                                  : digits_ < other.digits_;
}

ExactDecimal midpointAbove(double value) {
    const auto [mantissa, exponent] = binaryOf(value);
    return ExactDecimal::fromBinary(2 * mantissa + 1, exponent - 1);
}

bool isNearestDouble(double value, const ExactDecimal& number) {
    if (std::isinf(value)) {
        return !(number < midpointAbove(std::numeric_limits<double>::max()));
    }
    const bool isEven = binaryOf(value).mantissa % 2 == 0;
    const ExactDecimal above = midpointAbove(value);
    if (above < number || (number == above && !isEven)) {
        return false;
    }
    if (value == 0.0) {
        return true;
    }
    const ExactDecimal below = midpointBelow(value);
    return below < number || (number == below && isEven);
}

}  // namespace talvex
