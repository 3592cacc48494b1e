#include "numeric/bessel.h"

#include <gtest/gtest.h>

#include "numeric/DYXnan.h"
#include "same_bits.h"

namespace talvex {
namespace {

// From 2 on no function of the C library but the root has a part in it.
TEST(Bessel, HasTheBitsOfItsFormula) {
    const struct {
        double order, x, j, y;
    } rows[]{{0, 10, -0x1.f7ad2b89e1e55p-3, 0x1.c80ee65a05c4bp-5},
             {2.5, 3, 0x1.a69d756c498fbp-2, -0x1.79e5d02a3c56cp-2},
             {40.25, 7.5, 0x1.b28dc3918a974p-85, -0x1.36c52ce043007p+77},
             {0.3, 2, 0x1.b3e924e93f0bap-2, 0x1.7434d65115d63p-2},
             {100.25, 9000, -0x1.3933b9bbc75adp-9, 0x1.083ebaaf0d26cp-7}};
    for (const auto& row : rows) {
        EXPECT_TRUE(isSame(besselJv(row.order, row.x), row.j)) << row.order;
        EXPECT_TRUE(isSame(besselYv(row.order, row.x), row.y)) << row.order;
    }
}

TEST(Bessel, FailsAsAnErrorValue) {
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

}  // namespace
}  // namespace talvex
