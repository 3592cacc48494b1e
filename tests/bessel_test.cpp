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

void expectNaive(double x, double nu) {
    SCOPED_TRACE(testing::Message() << x << " of order " << nu);
    // Whatever stands in a field that wasn't written stays there.
    BesselValues values{.J = 1.5, .Y = 2.5, .Jderivative = 3.5, .Yderivative = 4.5};
    BesselValues expected = values;
    EXPECT_EQ(bessjy(x, nu, values), naiveBessjy(x, nu, expected));
    EXPECT_TRUE(isSame(values.J, expected.J));
    EXPECT_TRUE(isSame(values.Y, expected.Y));
    EXPECT_TRUE(isSame(values.Jderivative, expected.Jderivative));
    EXPECT_TRUE(isSame(values.Yderivative, expected.Yderivative));
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
    for (int round = 0; round < 1'500; ++round) {
        const double x = numbers.next();
        const double nu = numbers.next();
        if (!(nu - x > 1e6 && nu < 2147483648.0 + x)) {  // the naive recurrence takes too long
            expectNaive(x, nu);
        }
    }
}

TEST(Bessel, FailsAsAnErrorValue) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const double bad = DYXnan('B');
    const double overflow = DYXnan('\0');
    const struct {
        double order, x, result;
    } rows[]{{0, 0, bad},         {3, -0.0, bad},      {-2, -1, bad},        {0, 10000, bad},
             {0, kInfinity, bad}, {kInfinity, 1, bad}, {-kInfinity, 1, bad}, {0, overflow, bad},
             {overflow, 1, bad},  {170, 1, overflow},  {1e9, 1, overflow}};
    for (const auto& [order, x, result] : rows) {
        EXPECT_TRUE(isSame(besselJv(order, x), result)) << order << " at " << x;
        EXPECT_TRUE(isSame(besselYv(order, x), result)) << order << " at " << x;
    }
}

TEST(Bessel, ReflectsWholeNegativeOrders) {
    for (const int order : {1, 2, 3, 4}) {
        const double sign = order % 2 == 0 ? 1 : -1;
        EXPECT_NEAR(besselJv(-order, 3) * sign, besselJv(order, 3), 1e-13) << order;
        EXPECT_NEAR(besselYv(-order, 3) * sign, besselYv(order, 3), 1e-13) << order;
    }
}

}  // namespace
}  // namespace talvex
