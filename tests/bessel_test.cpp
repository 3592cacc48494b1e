#include "numeric/bessel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "numeric/DYXnan.h"
#include "oracle/hard_numbers.h"
#include "oracle/naive_functions.h"
#include "same_bits.h"

namespace talvex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Whatever stands in a field that wasn't written stays there.
constexpr BesselValues kUntouched{.J = 1.5, .Y = 2.5, .Jderivative = 3.5, .Yderivative = 4.5};

void expectNaive(double x, double nu) {
    BesselValues values = kUntouched;
    BesselValues expected = kUntouched;
    EXPECT_EQ(bessjy(x, nu, values), naiveBessjy(x, nu, expected)) << x << " of order " << nu;
    EXPECT_TRUE(isSame(values.J, expected.J) && isSame(values.Y, expected.Y) &&
                isSame(values.Jderivative, expected.Jderivative) &&
                isSame(values.Yderivative, expected.Yderivative))
        << x << " of order " << nu;
}

TEST(Bessel, HasTheBitsOfTheLoopsRunToTheirEnd) {
    HardNumbers numbers(3);
    for (int round = 0; round < 3'000; ++round) {
        const double x = std::exp(numbers.between(-20.0, 9.3));
        expectNaive(x, std::exp(numbers.between(-10.0, 8.0)));
        expectNaive(x, std::floor(numbers.between(0.0, 200.0)) / 2.0);
        expectNaive(x, x * (1.0 + std::exp(numbers.between(-12.0, 2.0))));
    }
    // Orders whose recurrences overflow at the first steps, in between, at the last step, never.
    for (int nu = 100; nu < 200; ++nu) {
        expectNaive(1.0, nu);
        expectNaive(2.0, nu + 0.25);
    }
    for (const double x : {2.5, 1e3, 1e5, 1e7, 1e9, 1e12}) {
        for (const double distance : {0.0, 1.0, 1e2, 1e4, 1e6}) {
            expectNaive(x, x + distance);
        }
    }
    for (int round = 0; round < 1'500; ++round) {
        const double x = numbers.next();
        const double nu = numbers.next();
        if (!(nu - x > 1e6 && nu < 2147483648.0 + x)) {  // the naive recurrence takes too long
            expectNaive(x, nu);
        }
    }
}

TEST(Bessel, FailsAsAnErrorValue) {
    const double error = DYXnan('B');
    const double failing[][2]{{0, 0},           {1, 0},           {0, -1},
                              {3, 0},           {-3, -0.0},       {0, 10000},
                              {-2, 1e300},      {0, kInfinity},   {kInfinity, 1},
                              {-kInfinity, 1},  {0, -kInfinity},  {1e300, 1},
                              {DYXnan('?'), 1}, {1, DYXnan('?')}, {DYXnan('L'), DYXnan('?')}};
    for (const auto& [order, x] : failing) {
        EXPECT_TRUE(isSame(besselJv(order, x), error)) << order << " at " << x;
        EXPECT_TRUE(isSame(besselYv(order, x), error)) << order << " at " << x;
    }
    for (const double order : {170.0, 1e9, 2147483647.0}) {
        EXPECT_TRUE(isSame(besselJv(order, 1), DYXnan('\0'))) << order;
        EXPECT_TRUE(isSame(besselYv(order, 1), DYXnan('\0'))) << order;
    }
    BesselValues values;
    EXPECT_EQ(bessjy(0, 1, values), BesselStatus::badArgument);
    EXPECT_EQ(bessjy(1, -1, values), BesselStatus::badArgument);
    EXPECT_EQ(bessjy(10000, 0, values), BesselStatus::xTooLarge);
    EXPECT_EQ(bessjy(1, std::nan(""), values), BesselStatus::xTooLarge);
}

TEST(Bessel, TheLargestArgumentLiesNear9846) {
    EXPECT_TRUE(std::isfinite(besselJv(0, 9800)));
    EXPECT_TRUE(std::isnan(besselJv(0, 9900)));
    EXPECT_NEAR(besselJv(0, 9000), -0.00103, 0.00001);
}

// J and Y at half-integer orders are elementary, and those of a negative whole order differ by the
// sign alone.
TEST(Bessel, ReflectsNegativeOrders) {
    for (const double x : {0.1, 1.0, 1.9, 2.0, 3.0, 40.0}) {
        const double scale = std::sqrt(2 / (3.141592653589793 * x));
        EXPECT_NEAR(besselJv(0.5, x), scale * std::sin(x), 1e-9) << x;
        EXPECT_NEAR(besselJv(-0.5, x), scale * std::cos(x), 2e-9) << x;
        EXPECT_NEAR(besselYv(-0.5, x), scale * std::sin(x), 1e-9) << x;
        for (const int order : {1, 2, 3, 4}) {
            const double sign = order % 2 == 0 ? 1 : -1;
            const double largest = std::fabs(besselYv(order, x));
            EXPECT_NEAR(besselJv(-order, x), sign * besselJv(order, x), 1e-14 * largest) << x;
            EXPECT_NEAR(besselYv(-order, x), sign * besselYv(order, x), 1e-14 * largest) << x;
        }
    }
}

TEST(Bessel, HasTheValuesOfPublishedTables) {
    const struct {
        double order, x, J, relativeError;
    } rows[]{{0, 10, -0.2459357644513, 2e-13}, {0, 1000, 0.02478668615242, 2e-13},
             {0, 1, 0.76519768674, 1e-11},     {1, 1, 0.44005058585, 1e-11},
             {0.5, 1, 0.67139670683, 1e-11},   {-1, 1, -0.44005058585, 1e-11},
             {-0.5, 1, 0.43109886822, 1e-11},  {-2, 3, 0.48609126058589, 2e-14},
             {2.5, 3, 0.41271003221, 1e-11},   {100, 1, 8.43e-189, 1e-3}};
    for (const auto& row : rows) {
        EXPECT_NEAR(besselJv(row.order, row.x) / row.J, 1, row.relativeError) << row.order;
    }
    EXPECT_NEAR(besselYv(0, 1), 0.08825696408, 1e-11);
    EXPECT_NEAR(besselYv(2.5, 3), -0.36904073, 1e-8);
    EXPECT_NEAR(besselYv(100, 1) / -3.78e185, 1, 2e-3);
}

}  // namespace
}  // namespace talvex
