#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "numeric/big_natural.h"

// Factorials, double factorials and Pascal's triangle, made while compiling by exact integer
// arithmetic; each entry is the double nearest the exact value.
namespace talvex {

// Entry n is n (n - step) (n - 2 step) ... down to the last positive factor; entry 0 is 1.
template <std::size_t Entries>
consteval std::array<double, Entries> makeFactorials(std::uint32_t step) {
    std::array<double, Entries> table{};
    for (std::uint32_t start = 0; start < step; ++start) {
        BigNatural product(1);
        for (std::uint32_t n = start; n < Entries; n += step) {
            product.multiplyBy(n == 0 ? 1 : n);
            table[n] = product.toDouble();
        }
    }
    return table;
}

inline constexpr auto FACTORIAL_CONSTANTS = makeFactorials<171>(1);
// 300!! would fit a double too; the table ends before it.
inline constexpr auto DOUBLE_FACTORIAL_CONSTANTS = makeFactorials<300>(2);

inline constexpr std::size_t kPascalRows = 21;

// Row n holds the binomial coefficients of n over 0 to n; all of them are small enough to be exact.
consteval std::array<std::array<double, kPascalRows>, kPascalRows> makePascalRows() {
    std::array<std::array<double, kPascalRows>, kPascalRows> rows{};
    for (std::size_t n = 0; n < kPascalRows; ++n) {
        rows[n][0] = 1.0;
        for (std::size_t k = 1; k <= n; ++k) {
            rows[n][k] = rows[n - 1][k - 1] + rows[n - 1][k];
        }
    }
    return rows;
}

inline constexpr auto PC = makePascalRows();

}  // namespace talvex
