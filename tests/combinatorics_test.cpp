#include "numeric/combinatorics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

#include "numeric/DYXnan.h"
#include "numeric/bit_operations.h"
#include "numeric/factorial_tables.h"
#include "numeric/riemannzeta.h"
#include "oracle/hard_numbers.h"
#include "oracle/naive_functions.h"
#include "same_bits.h"

namespace talvex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Written out in decimal and multiplied as on paper.
class DecimalInteger {
  public:
    void multiplyBy(int factor) {
        int carry = 0;
        for (char& digit : reversed_) {
            carry += (digit - '0') * factor;
            digit = static_cast<char>('0' + carry % 10);
            carry /= 10;
        }
        for (; carry > 0; carry /= 10) {
            reversed_ += static_cast<char>('0' + carry % 10);
        }
    }
    // The C library rounds a decimal correctly.
    [[nodiscard]] double toDouble() const {
        return std::strtod(std::string(reversed_.rbegin(), reversed_.rend()).c_str(), nullptr);
    }

  private:
    std::string reversed_ = "1";
};

TEST(FactorialTables, HoldTheDoublesNearestTheExactProducts) {
    DecimalInteger factorials[3];
    for (int n = 0; n < 300; ++n) {
        factorials[2].multiplyBy(std::max(n, 1));
        factorials[n % 2].multiplyBy(std::max(n, 1));
        const double exact = factorials[2].toDouble();
        EXPECT_EQ(factorial(n), n <= 170 ? exact : kInfinity) << n;
        EXPECT_EQ(doublefactorial(n), factorials[n % 2].toDouble()) << n;
    }
    EXPECT_EQ(FACTORIAL_CONSTANTS.back(), 7.257415615307999e+306);
    EXPECT_EQ(DOUBLE_FACTORIAL_CONSTANTS.back(), 3.753274111571926e+306);
}

TEST(Factorials, CountTheirOperand) {
    EXPECT_EQ(factorial(3.7), 6);
    EXPECT_EQ(factorial(-5), 1);
    EXPECT_EQ(factorial(170.999), FACTORIAL_CONSTANTS.back());
    EXPECT_EQ(doublefactorial(-1), 1);
    for (const double x : {300.0, 1e10, kInfinity, DYXnan('?')}) {
        EXPECT_EQ(factorial(x), kInfinity) << x;
        EXPECT_EQ(doublefactorial(x), kInfinity) << x;
    }
}

TEST(Choose, CountsItsOperandsAndReadsTheTriangleUpTo20) {
    const struct {
        double x, y, result;
    } rows[]{{2, 5, 10},         {5, 2, 0},           {-1, 5, 1},         {2.9, 5.9, 10},
             {2, -1, 0},         {10, 20, 184756},    {10, 21, 352716},   {21, 21, 1},
             {0, 4294967295, 1}, {DYXnan('?'), 5, 0}, {0, DYXnan('?'), 1}};
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
    for (std::uint32_t n = 1000; n < 1060; ++n) {
        const std::uint32_t half = n / 2;
        EXPECT_TRUE(isSame(choose(half, n), naiveBinomial(n, half))) << n;
    }
}

TEST(BitOperations, WorkOnTheSigned32BitInteger) {
    EXPECT_EQ(notf(0), -1);
    EXPECT_EQ(notf(1.9), -2);
    EXPECT_EQ(notf(4294967296), 2147483647);
    EXPECT_EQ(notf(DYXnan('?')), 2147483647);
    EXPECT_EQ(shift1leftf(1073741824), -2147483648.0);
    EXPECT_EQ(shift1leftf(-2147483648.0), 0);
    EXPECT_EQ(shift1rightf(-1), -1);
    EXPECT_EQ(shift1rightf(-3), -2);
    EXPECT_EQ(andf(12, 10), 8);
    EXPECT_EQ(nandf(12, 10), -9);
    EXPECT_EQ(orf(12, 10), 14);
    EXPECT_EQ(xorf(12, 10), 6);
    EXPECT_EQ(shiftleftf(33, 1), 2);
    EXPECT_EQ(shiftleftf(-1, 1), -2147483648.0);
    EXPECT_EQ(shiftleftf(1, -2147483647.0), 2);
    EXPECT_EQ(shiftrightf(1, -8), -4);
    EXPECT_EQ(shiftrightf(63, -8), -1);
    EXPECT_EQ(shiftrightf(kInfinity, 5), 5);
}

TEST(Zeta, HasTheBitsOfTheFullLoop) {
    HardNumbers numbers(2);
    for (int round = 0; round < 2'000; ++round) {
        const double s = round % 2 == 0 ? numbers.next() : numbers.between(-60.0, 60.0);
        EXPECT_TRUE(isSame(riemannzeta(s), naiveZeta(s))) << s;
    }
    for (const char code : {'\0', '?', 'B'}) {
        EXPECT_TRUE(isSame(riemannzeta(DYXnan(code)), DYXnan(code))) << code;
    }
}

TEST(Zeta, HasTheValuesOfItsSeries) {
    EXPECT_EQ(cheb(50, 0), 1.0);
    EXPECT_EQ(cheb(50, 50), 9.474112514963693e+37);
    EXPECT_EQ(cheb(0, 0), 0.0);
    EXPECT_EQ(cheb(3, 4), 0.0);
    EXPECT_TRUE(isSame(riemannzeta(1.0), DYXnan('\0')));
    EXPECT_NEAR(riemannzeta(1.0000001) * 1e-7, 1.0, 1e-6);
    EXPECT_NEAR(riemannzeta(0.9999999) * 1e-7, -1.0, 1e-6);
    EXPECT_NEAR(riemannzeta(-2.0), 5.8e-14, 0.05e-14);
    EXPECT_NEAR(riemannzeta(-10.0), 5.8e-5, 0.05e-5);
    EXPECT_NEAR(riemannzeta(-20.0), 7e8, 0.05e8);
}

}  // namespace
}  // namespace talvex
