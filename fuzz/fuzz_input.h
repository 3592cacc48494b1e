#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstdlib>
#include <span>

namespace talvex {

inline void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

// Takes an input apart; zeros follow its end.
class FuzzInput {
  public:
    explicit FuzzInput(std::span<const std::uint8_t> data) : data_(data) {}

    [[nodiscard]] bool isAtEnd() const { return data_.empty(); }

    template <class Number>
    Number take() {
        std::array<std::uint8_t, sizeof(Number)> bytes{};
        for (std::uint8_t& byte : bytes) {
            byte = isAtEnd() ? 0 : data_.front();
            data_ = data_.subspan(isAtEnd() ? 0 : 1);
        }
        return std::bit_cast<Number>(bytes);
    }

    // Random bits are seldom a NaN, an infinity, a subnormal or a whole number; the kind makes them
    // one.
    double takeNumber() {
        constexpr std::uint64_t exponent = std::uint64_t{0x7FF} << 52U;
        constexpr std::uint64_t sign = std::uint64_t{1} << 63U;
        const auto kind = take<std::uint8_t>() % 7;
        const auto bits = take<std::uint64_t>();
        const auto integer = static_cast<double>(static_cast<std::int64_t>(bits) >> 30U);
        switch (kind) {
            case 1:
                return std::bit_cast<double>(bits | exponent);
            case 2:
                return std::bit_cast<double>(bits & ~exponent);
            case 3:
                return std::bit_cast<double>((bits & sign) | exponent);
            case 4:
                return integer;
            case 5:
                return integer / (1.0 + static_cast<double>(bits % 1024));
            case 6:
                return integer / 1e6;
            default:
                return std::bit_cast<double>(bits);
        }
    }

  private:
    std::span<const std::uint8_t> data_;
};

}  // namespace talvex
