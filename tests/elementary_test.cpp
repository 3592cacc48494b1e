#include "numeric/elementary.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "numeric/DYXnan.h"
#include "numeric/checked_elementary.h"
#include "numeric/trigonometry.h"
#include "same_bits.h"

namespace talvex {
namespace {

using Checked = double (*)(const DYXMathContext&, double);

constexpr double kLeast = std::numeric_limits<double>::denorm_min();
constexpr double kLowest = -2147483648.0;
const double kIndeterminate = DYXnan('\0');
const double kLogError = DYXnan('L');

double below(double value) { return std::nextafter(value, -kInfinity); }
double above(double value) { return std::nextafter(value, kInfinity); }

TEST(CheckedFunctions, RefuseArgumentsJustBeyondTheirDomain) {
    const std::vector<double> nonZeros{kLeast, -kLeast, 1};
    const std::vector<double> fromZero{0.0, -0.0, kLeast, kInfinity};
    const std::vector<double> inUnit{1, -1, below(1), above(-1), 0};
    const std::vector<double> beyondUnit{above(1), below(-1), kInfinity, -kInfinity};
    const std::vector<double> outsideUnit{1, -1, above(1), below(-1), kInfinity, -kInfinity};
    const std::vector<double> insideUnit{below(1), above(-1), 0.0, -0.0};
    const struct {
        const char* name;
        Checked function;
        char error;
        std::vector<double> accepted, refused;
    } rows[]{
        {"sqrt", DYXsqrt, 'Q', fromZero, {-kLeast, -kInfinity}},
        {"log", DYXlog, 'L', fromZero, {-kLeast, -kInfinity}},
        {"log10", DYXlog10, 'L', fromZero, {-kLeast, -kInfinity}},
        {"log2", DYXlog2, 'L', fromZero, {-kLeast, -kInfinity}},
        {"acosh", DYXacosh, 'H', {1, above(1), kInfinity}, {below(1), -kInfinity}},
        {"atanh", DYXatanh, 'H', inUnit, beyondUnit},
        {"asech", DYXasech, 'H', {0.0, 1, 0.5}, {-kLeast, above(1), kInfinity}},
        {"asech, as acosh of minus infinity", DYXasech, '\0', {}, {-0.0}},
        {"acoth", DYXacoth, 'H', outsideUnit, insideUnit},
        {"csch", DYXcsch, '?', nonZeros, {0.0, -0.0}},
        {"acsch", DYXacsch, '?', nonZeros, {0.0, -0.0}},
        {"coth", DYXcoth, '?', nonZeros, {0.0, -0.0}},
        {"asin", DYXasin, 'T', inUnit, beyondUnit},
        {"acos", DYXacos, 'T', inUnit, beyondUnit},
        {"acsc", DYXacsc, 'T', outsideUnit, insideUnit},
        {"asec", DYXasec, 'T', outsideUnit, insideUnit},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (const double x : row.accepted) {
            EXPECT_FALSE(std::isnan(row.function({}, x))) << x;
        }
        for (const double x : row.refused) {
            EXPECT_TRUE(isSame(row.function({}, x), DYXnan(row.error))) << x;
        }
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
    }
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
    const double error = DYXnan('P');
    const OperandRow rows[]{
        {-8, 3, -512},           {-8, above(3), error},     {-1, 2147483647, -1},
        {-1, 2147483648, error}, {-1, kLowest, 1},          {-1, kLowest - 1, error},
        {-2, kLogError, error},  {2, kLogError, kLogError}, {0, 0, 1},
        {-0.0, 0.5, 0},          {0, -1, kInfinity},        {-0.0, -1, -kInfinity}};
    for (const auto& [base, exponent, result] : rows) {
        SCOPED_TRACE(testing::Message() << base << " to the power " << exponent);
        EXPECT_TRUE(isSame(DYXXpowY({}, base, exponent), result));
        EXPECT_TRUE(isSame(DYXYpowX({}, exponent, base), result));
        EXPECT_TRUE(isSame(DYXpow({}, exponent, base), result));
        EXPECT_TRUE(isSame(DYXpow(baseInX(), base, exponent), result));
    }
}

TEST(LogarithmsToABase, RefuseWhatIsBelowZero) {
    const OperandRow rows[]{{2, 8, 3},         {-kLeast, 8, kLogError}, {2, -kLeast, kLogError},
                            {1, 8, kInfinity}, {-0.0, 8, -0.0},         {0, 0, kIndeterminate}};
    for (const auto& [base, argument, result] : rows) {
        SCOPED_TRACE(testing::Message() << argument << " to the base " << base);
        EXPECT_TRUE(isSame(DYXlogYbaseX({}, base, argument), result));
        EXPECT_TRUE(isSame(DYXlogXbaseY({}, argument, base), result));
        EXPECT_TRUE(isSame(DYXlogbase({}, argument, base), result));
        EXPECT_TRUE(isSame(DYXlogbase(baseInX(), base, argument), result));
    }
}

TEST(PlainFunctions, KeepTheirSidesOfZeroAndOfTheIntegers) {
    EXPECT_DOUBLE_EQ(acot(0.0), 1.5707963267948966);
    EXPECT_DOUBLE_EQ(acot(-0.0), 1.5707963267948966);
    EXPECT_EQ(pow10(400), kInfinity);
    EXPECT_EQ(frac(-2.75), -0.75);
    EXPECT_EQ(frac(2147483647.5), 0.5);
    EXPECT_EQ(frac(1e10), 12147483648.0);
}

TEST(TwoOperandFunctions, TakeXFirst) {
    const struct {
        const char* name;
        double (*function)(double, double);
        std::vector<OperandRow> rows;
    } functions[]{
        {"minus", minus, {{2, 7, 5}, {kInfinity, kInfinity, kIndeterminate}}},
        {"divide", divide, {{2, 7, 3.5}, {-0.0, 1, -kInfinity}, {0, 0, kIndeterminate}}},
        {"mod", mod, {{3, -7, -1}, {-3.9, 7.9, 1}, {-1, kLowest, 0}, {7, 1e10, -2}}},
        {"mod by 0", mod, {{0.9, 7, DYXnan('?')}, {kLogError, 7, 7}, {3, kLogError, -2}}},
        {"divf", divf, {{3, -7, -2}, {-3.9, 7.9, -2}, {1, kLowest, kLowest}}},
        {"divf by 0", divf, {{-0.9, 7, DYXnan('?')}, {kLogError, 7, 0}}},
        {"divf at the limit", divf, {{-1, kLowest, DYXnan('O')}, {-1, kLowest + 1, 2147483647}}},
        {"rem", rem, {{3, 9, 0}, {3, 8, 2}, {3, -1, 2}, {3, 4.5, 1.5}, {3, -1.5, 1.5}}},
        {"rem, rare operands", rem, {{-3, 8, -4}, {0, 8, kIndeterminate}, {kInfinity, 8, 8}}},
        {"hypotenuse", hypotenuse, {{3, -4, 5}, {1e200, 1, kInfinity}}},
        {"geometricmean", geometricmean, {{2, 8, 4}, {-2, 8, kIndeterminate}}},
        {"deltapercent", deltapercent, {{90, -120, -175}, {-1, 0, -kInfinity}}},
    };
    for (const auto& [name, function, rows] : functions) {
        for (const auto& [x, y, result] : rows) {
            EXPECT_TRUE(isSame(function(x, y), result)) << name << " of " << x << " and " << y;
        }
    }
}

}  // namespace
}  // namespace talvex
