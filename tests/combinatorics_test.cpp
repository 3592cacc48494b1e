#include "numeric/combinatorics.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

#include "numeric/DYXnan.h"
#include "numeric/bit_operations.h"
#include "numeric/factorial_tables.h"
#include "numeric/riemannzeta.h"
#include "oracle/hard_numbers.h"
#include "oracle/naive_functions.h"
#include "same_bits.h"

namespace talvex {
namespace {

TEST(FactorialTables, HoldTheDoublesNearestTheExactProducts) {
    long double product = 1.0L;
    long double doubleProducts[2]{1.0L, 1.0L};
    for (int n = 1; n < 300; ++n) {
        product *= n;
        doubleProducts[n % 2] *= n;
        EXPECT_EQ(factorial(n), static_cast<double>(product)) << n;
        EXPECT_EQ(doublefactorial(n), static_cast<double>(doubleProducts[n % 2])) << n;
    }
    for (const double x : {300.0, 1e10, kInfinity, DYXnan('?')}) {
        EXPECT_EQ(factorial(x), kInfinity) << x;
        EXPECT_EQ(doublefactorial(x), kInfinity) << x;
    }
    EXPECT_EQ(factorial(3.7), 6);
    EXPECT_EQ(factorial(-5), 1);
    EXPECT_EQ(doublefactorial(-1), 1);
}

TEST(Choose, CountsItsOperandsAndReadsTheTriangleUpTo20) {
    const struct {
        double x, y, result;
    } rows[]{{5, 2, 0},   {-1, 5, 1},         {2.9, 5.9, 10},      {2, -1, 0},
             {21, 21, 1}, {0, 4294967295, 1}, {DYXnan('?'), 5, 0}, {0, DYXnan('?'), 1}};
    for (const auto& row : rows) {
        EXPECT_EQ(choose(row.x, row.y), row.result) << row.x << " of " << row.y;
    }
    for (int n = 0; n <= 20; ++n) {
        for (int k = 0; k <= n; ++k) {
            EXPECT_EQ(choose(k, n), std::round(factorial(n) / factorial(k) / factorial(n - k)));
        }
    }
}

TEST(Choose, EndsWithTheBitsOfTheFullLoop) {
    HardNumbers numbers(1);
    for (int round = 0; round < 20'000; ++round) {
        const auto n = static_cast<std::uint32_t>(std::exp(numbers.between(3.05, 8.5)));
        const auto k = static_cast<std::uint32_t>(numbers.between(0.0, n + 1.0));
        EXPECT_TRUE(isSame(choose(k, n), naiveBinomial(n, k))) << k << " of " << n;
    }
    for (std::uint32_t k = 500; k < 530; ++k) {  // about the first that exceed every double
        EXPECT_TRUE(isSame(choose(k, 2 * k), naiveBinomial(2 * k, k))) << k;
    }
}

TEST(BitOperations, WorkOnTheSigned32BitInteger) {
    constexpr double low = -2147483648.0;
    const double rows[][2]{{notf(1.9), -2},         {notf(kInfinity), -(low + 1)},
                           {shift1leftf(low), 0},   {shift1leftf(1 << 30), low},
                           {andf(12, 10), 8},       {shift1rightf(-3), -2},
                           {nandf(12, 10), -9},     {shiftleftf(33, 1), 2},
                           {orf(12, 10), 14},       {shiftleftf(-1, 1), low},
                           {xorf(12, 10), 6},       {shiftrightf(1, -8), -4},
                           {shiftrightf(32, 8), 8}, {shiftrightf(kInfinity, 5), 5}};
    for (const auto& [result, expected] : rows) {
        EXPECT_EQ(result, expected);
    }
}

TEST(Zeta, HasTheBitsOfTheFullLoop) {
    HardNumbers numbers(2);
    for (int round = 0; round < 2'000; ++round) {
        const double s = round % 2 == 0 ? numbers.next() : numbers.between(-60.0, 60.0);
        EXPECT_TRUE(isSame(riemannzeta(s), naiveZeta(s))) << s;
    }
    EXPECT_TRUE(isSame(riemannzeta(DYXnan('B')), DYXnan('B')));
    EXPECT_TRUE(isSame(riemannzeta(1.0), DYXnan('\0')));
    EXPECT_EQ(cheb(50, 50), 9.474112514963693e+37);
    EXPECT_EQ(cheb(3, 4), 0.0);
}

}  // namespace
}  // namespace talvex
