#include "numeric/elementary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "numeric/DYXnan.h"
#include "numeric/checked_elementary.h"
#include "same_bits.h"

namespace talvex {
namespace {

using Checked = double (*)(const DYXMathContext&, double);

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();
const double kIndeterminate = DYXnan('\0');

double below(double value) { return std::nextafter(value, -kInfinity); }
double above(double value) { return std::nextafter(value, kInfinity); }

struct DomainRow {
    const char* name;
    Checked function;
    char error;
    std::vector<double> accepted;
    std::vector<double> refused;
};

TEST(CheckedFunctions, RefuseArgumentsJustBeyondTheirDomain) {
    const std::vector<double> zeros{0.0, -0.0};
    const std::vector<double> nonZeros{kLeast, -kLeast, 1};
    const std::vector<double> fromZero{0.0, -0.0, kLeast, kInfinity};
    const std::vector<double> belowZero{-kLeast, -1, -kInfinity};
    const std::vector<DomainRow> rows{
        {"DYXsqrt", DYXsqrt, 'Q', fromZero, belowZero},
        {"DYXlog", DYXlog, 'L', fromZero, belowZero},
        {"DYXlog10", DYXlog10, 'L', fromZero, belowZero},
        {"DYXlog2", DYXlog2, 'L', fromZero, belowZero},
        {"DYXacosh", DYXacosh, 'H', {1, above(1), kInfinity}, {below(1), 0.5, -kInfinity}},
        {"DYXatanh", DYXatanh, 'H', {1, -1, 0.5}, {above(1), below(-1), kInfinity, -kInfinity}},
        {"DYXasech", DYXasech, 'H', {0.0, -0.0, 1, 0.5}, {-kLeast, above(1), kInfinity}},
        {"DYXacoth", DYXacoth, 'H', {1, -1, above(1), kInfinity}, {below(1), above(-1), 0.0}},
        {"DYXcsch", DYXcsch, '?', nonZeros, zeros},
        {"DYXacsch", DYXacsch, '?', nonZeros, zeros},
        {"DYXcoth", DYXcoth, '?', nonZeros, zeros},
    };
    for (const DomainRow& row : rows) {
        SCOPED_TRACE(row.name);
        for (const double x : row.accepted) {
            // asech of -0 is the hyperbolic arc cosine of minus infinity.
            const bool isLibraryNaN = row.function == DYXasech && std::signbit(x);
            EXPECT_EQ(std::isnan(row.function({}, x)), isLibraryNaN) << x;
        }
        for (const double x : row.refused) {
            EXPECT_TRUE(isSame(row.function({}, x), DYXnan(row.error))) << x;
        }
        EXPECT_TRUE(isSame(row.function({}, DYXnan('B')), DYXnan('B')));
    }
}

TEST(CheckedExponentials, TellOverflowAndUnderflowFromTheResult) {
    const struct {
        const char* name;
        Checked function;
        double largest, overflow, subnormal, underflow;
    } rows[]{
        {"DYXexp", DYXexp, 709, 710, -740, -746},
        {"DYXpow10", DYXpow10, 308, 309, -320, -324},
        {"DYXpow2", DYXpow2, 1023, 1024, -1074, -1076},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(std::isfinite(row.function({}, row.largest)));
        EXPECT_EQ(std::fpclassify(row.function({}, row.subnormal)), FP_SUBNORMAL);
        EXPECT_TRUE(isSame(row.function({}, row.overflow), DYXnan('O')));
        EXPECT_TRUE(isSame(row.function({}, row.underflow), DYXnan('U')));
        EXPECT_TRUE(isSame(row.function({}, kInfinity), kInfinity));
        EXPECT_TRUE(isSame(row.function({}, -kInfinity), 0.0));
        EXPECT_EQ(row.function({}, -0.0), 1.0);
        EXPECT_TRUE(isSame(row.function({}, DYXnan('Q')), DYXnan('Q')));
    }
    EXPECT_EQ(DYXpow2({}, -1074.0), kLeast);
}

struct OperandRow {
    double first, second, result;
};

DYXMathContext baseInX() {
    DYXMathContext context;
    context.useHPStylePowerAndLogs = false;
    return context;
}

TEST(Powers, RefuseANegativeBaseUnlessTheExponentIsAWhole32BitNumber) {
    const OperandRow rows[]{{-8, 3, -512},
                            {-8, 0.5, DYXnan('P')},
                            {-8, above(3), DYXnan('P')},
                            {-1, 2147483647, -1},
                            {-1, -2147483648.0, 1},
                            {-1, -2147483649.0, DYXnan('P')},
                            {-2, 4294967296.0, DYXnan('P')},
                            {-2, DYXnan('L'), DYXnan('P')},
                            {2, DYXnan('L'), DYXnan('L')},
                            {DYXnan('L'), 2, DYXnan('L')},
                            {0, 0, 1},
                            {-0.0, 0.5, 0},
                            {0, -1, kInfinity},
                            {-0.0, -1, -kInfinity},
                            {10, 400, kInfinity}};
    for (const auto& [base, exponent, result] : rows) {
        SCOPED_TRACE(testing::Message() << base << " to the power " << exponent);
        EXPECT_TRUE(isSame(DYXXpowY({}, base, exponent), result));
        EXPECT_TRUE(isSame(DYXYpowX({}, exponent, base), result));
        EXPECT_TRUE(isSame(DYXpow({}, exponent, base), result));
        EXPECT_TRUE(isSame(DYXpow(baseInX(), base, exponent), result));
    }
}

TEST(LogarithmsToABase, RefuseWhatIsBelowZero) {
    const OperandRow rows[]{
        {-2, 8, DYXnan('L')},
        {2, -8, DYXnan('L')},
        {-kLeast, -kLeast, DYXnan('L')},
        {1, 8, kInfinity},
        {-0.0, 8, -0.0},
        {0, 0, kIndeterminate},
        {DYXnan('Q'), 8, DYXnan('Q')},
    };
    for (const auto& [base, argument, result] : rows) {
        SCOPED_TRACE(testing::Message() << argument << " to the base " << base);
        EXPECT_TRUE(isSame(DYXlogYbaseX({}, base, argument), result));
        EXPECT_TRUE(isSame(DYXlogXbaseY({}, argument, base), result));
        EXPECT_TRUE(isSame(DYXlogbase({}, argument, base), result));
        EXPECT_TRUE(isSame(DYXlogbase(baseInX(), base, argument), result));
    }
    EXPECT_NEAR(DYXlogYbaseX({}, 10, 1000), 3.0, 1e-15);
}

TEST(PlainFunctions, KeepTheirSidesOfZeroAndOfTheIntegers) {
    const struct {
        const char* name;
        double (*function)(double);
        double x, value;
    } rows[]{
        {"acot", acot, 0.0, 1.5707963267948966},
        {"acot", acot, -0.0, 1.5707963267948966},
        {"inverse", inverse, -0.0, -kInfinity},
        {"pow10", pow10, 400, kInfinity},
        {"frac", frac, 2.75, 0.75},
        {"frac", frac, -2.75, -0.75},
        {"frac", frac, 2147483647.5, 0.5},
        {"frac", frac, 1e10, 12147483648.0},
    };
    for (const auto& row : rows) {
        EXPECT_DOUBLE_EQ(row.function(row.x), row.value) << row.name << " of " << row.x;
    }
}

TEST(TwoOperandFunctions, TakeXFirst) {
    const double lowest = -2147483648.0;
    const struct {
        const char* name;
        double (*function)(double, double);
        std::vector<OperandRow> rows;
    } functions[]{
        {"plus", plus, {{2, 7, 9}}},
        {"minus", minus, {{2, 7, 5}, {kInfinity, kInfinity, kIndeterminate}}},
        {"times", times, {{2, 7, 14}}},
        {"divide", divide, {{2, 7, 3.5}, {0, 1, kInfinity}, {-0.0, 1, -kInfinity}}},
        {"0 / 0", divide, {{0, 0, kIndeterminate}}},
        {"mod", mod, {{3, 7, 1}, {3, -7, -1}, {-3.9, 7.9, 1}, {-1, lowest, 0}, {7, 1e10, -2}}},
        {"mod by 0", mod, {{0.9, 7, DYXnan('?')}, {-0.0, 0, DYXnan('?')}}},
        {"mod of errors", mod, {{DYXnan('L'), 7, 7}, {3, DYXnan('L'), -2}}},
        {"divf", divf, {{3, 7, 2}, {3, -7, -2}, {-3.9, 7.9, -2}, {1, lowest, lowest}}},
        {"divf by 0", divf, {{-0.9, 7, DYXnan('?')}, {0, 0, DYXnan('?')}}},
        {"divf at the limit", divf, {{-1, lowest, DYXnan('O')}, {-1, lowest + 1, 2147483647}}},
        {"divf of errors", divf, {{DYXnan('L'), 7, 0}, {3, DYXnan('L'), -715827882}}},
        {"rem", rem, {{3, 7, 1}, {3, 8, 2}, {3, -1, 2}, {3, 4.5, 1.5}, {3, -1.5, 1.5}}},
        {"rem, rare operands", rem, {{-3, 8, -4}, {0, 8, kIndeterminate}, {kInfinity, 8, 8}}},
        {"hypotenuse", hypotenuse, {{3, -4, 5}, {1e200, 1, kInfinity}}},
        {"geometricmean", geometricmean, {{2, 8, 4}, {-2, 8, kIndeterminate}}},
        {"deltapercent", deltapercent, {{150, 120, 25}, {90, -120, -175}}},
        {"deltapercent of 0", deltapercent, {{-1, 0, -kInfinity}, {0, 0, kIndeterminate}}},
    };
    for (const auto& [name, function, rows] : functions) {
        for (const auto& [x, y, result] : rows) {
            EXPECT_TRUE(isSame(function(x, y), result)) << name << " of " << x << " and " << y;
        }
    }
}

}  // namespace
}  // namespace talvex
