#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace talvex {

// An exact integer of up to 1024 bits, for tables that are made while compiling.
class BigNatural {
  public:
    constexpr explicit BigNatural(std::uint32_t value) { words_[0] = value; }

    // The product has to fit.
    constexpr void multiplyBy(std::uint32_t factor) {
        std::uint64_t carry = 0;
        for (std::size_t word = 0; word < used_; ++word) {
            carry += std::uint64_t{words_[word]} * factor;
            words_[word] = static_cast<std::uint32_t>(carry);
            carry >>= kWordBits;
        }
        if (carry != 0) {
            words_[used_++] = static_cast<std::uint32_t>(carry);
        }
    }

    // The nearest double, a tie going to the even one. The value isn't 0.
    [[nodiscard]] constexpr double toDouble() const {
        const std::size_t length = bitLength();
        if (length <= kPrecision) {
            return static_cast<double>(bitsFrom(0));
        }
        const std::size_t dropped = length - kPrecision;
        const std::uint64_t leading = bitsFrom(dropped);
        const bool roundsUp = bit(dropped - 1) && ((leading & 1U) != 0 || hasBitBelow(dropped - 1));
        auto value = static_cast<double>(leading + (roundsUp ? 1 : 0));
        for (std::size_t place = 0; place < dropped; ++place) {
            value *= 2.0;
        }
        return value;
    }

  private:
    static constexpr std::size_t kWordBits = 32;
    static constexpr std::size_t kPrecision = 53;

    [[nodiscard]] constexpr std::size_t bitLength() const {
        return kWordBits * (used_ - 1) +
               static_cast<std::size_t>(std::bit_width(words_[used_ - 1]));
    }
    [[nodiscard]] constexpr bool bit(std::size_t place) const {
        return (words_[place / kWordBits] >> (place % kWordBits) & 1U) != 0;
    }
    [[nodiscard]] constexpr bool hasBitBelow(std::size_t place) const {
        for (std::size_t lower = 0; lower < place; ++lower) {
            if (bit(lower)) {
                return true;
            }
        }
        return false;
    }
    // The 53 bits from a place upward.
    [[nodiscard]] constexpr std::uint64_t bitsFrom(std::size_t place) const {
        std::uint64_t bits = 0;
        for (std::size_t offset = 0; offset < kPrecision; ++offset) {
            if (place + offset < kWordBits * used_ && bit(place + offset)) {
                bits |= std::uint64_t{1} << offset;
            }
        }
        return bits;
    }

    std::array<std::uint32_t, 32> words_{};
    std::size_t used_ = 1;
};

}  // namespace talvex
