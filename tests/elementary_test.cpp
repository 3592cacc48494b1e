#include "numeric/elementary.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "numeric/DYXnan.h"
#include "numeric/checked_elementary.h"

namespace talvex {
namespace {

using Context = DYXMathContext;
using Checked = double (*)(const Context&, double);
using Checked2 = double (*)(const Context&, double, double);
using Plain = double (*)(double);

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kHalfPi = 1.5707963267948966;

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }
double below(double value) { return std::nextafter(value, -kInfinity); }
double above(double value) { return std::nextafter(value, kInfinity); }

// Whether a result is a number; else it is told by its error text.
testing::AssertionResult isNumber(double value) {
    if (!std::isnan(value)) {
        return testing::AssertionSuccess();
    }
    const std::u16string text = DYXnanString(value);
    return testing::AssertionFailure() << std::string(text.begin(), text.end());
}

struct DomainRow {
    const char* name;
    Checked function;
    std::vector<double> accepted;
    std::vector<double> refused;
    const char16_t* error;
};

TEST(CheckedFunctions, RefuseArgumentsJustBeyondTheirDomain) {
    const double least = std::numeric_limits<double>::denorm_min();
    const std::vector<DomainRow> rows{
        {"DYXsqrt", DYXsqrt, {-0.0, least, kInfinity}, {-least, -1, -kInfinity}, u"sqrt error"},
        {"DYXlog", DYXlog, {-0.0, least, kInfinity}, {-least, -1, -kInfinity}, u"log error"},
        {"DYXlog10", DYXlog10, {-0.0, least, kInfinity}, {-least, -1, -kInfinity}, u"log error"},
        {"DYXlog2", DYXlog2, {-0.0, least, kInfinity}, {-least, -1, -kInfinity}, u"log error"},
        {"DYXacosh", DYXacosh, {1, above(1), kInfinity}, {below(1), 0.5, -kInfinity},
         u"hyperbolic error"},
        {"DYXatanh", DYXatanh, {1, -1, 0.5}, {above(1), below(-1), kInfinity, -kInfinity},
         u"hyperbolic error"},
        {"DYXcsch", DYXcsch, {least, -least, 1}, {0.0, -0.0}, u"undefined"},
        {"DYXacsch", DYXacsch, {least, -least, 1}, {0.0, -0.0}, u"undefined"},
        {"DYXcoth", DYXcoth, {least, -least, 1}, {0.0, -0.0}, u"undefined"},
        {"DYXasech", DYXasech, {0.0, 1, 0.5}, {-least, above(1), kInfinity, -kInfinity},
         u"hyperbolic error"},
        {"DYXacoth", DYXacoth, {1, -1, above(1), kInfinity}, {below(1), above(-1), 0.0, -0.0},
         u"hyperbolic error"},
    };
    for (const DomainRow& row : rows) {
        SCOPED_TRACE(row.name);
        for (const double x : row.accepted) {
            EXPECT_TRUE(isNumber(row.function({}, x))) << x;
        }
        for (const double x : row.refused) {
            const double result = row.function({}, x);
            ASSERT_TRUE(std::isnan(result)) << x;
            EXPECT_EQ(DYXnanString(result), row.error) << x;
        }
        EXPECT_EQ(bitsOf(row.function({}, DYXnan('B'))), bitsOf(DYXnan('B')));
    }
}

TEST(CheckedFunctions, HaveTheirLimitsAtTheEdges) {
    EXPECT_EQ(bitsOf(DYXsqrt({}, -0.0)), bitsOf(-0.0));
    EXPECT_EQ(DYXsqrt({}, 6.25), 2.5);
    EXPECT_EQ(DYXlog({}, 0.0), -kInfinity);
    EXPECT_EQ(DYXlog10({}, -0.0), -kInfinity);
    EXPECT_EQ(DYXlog10({}, 1000.0), 3.0);
    EXPECT_EQ(DYXlog2({}, 0.125), -3.0);
    EXPECT_EQ(DYXacosh({}, 1.0), 0.0);
    EXPECT_EQ(DYXatanh({}, 1.0), kInfinity);
    EXPECT_EQ(DYXatanh({}, -1.0), -kInfinity);
    EXPECT_EQ(DYXasech({}, 0.0), kInfinity);
    EXPECT_EQ(DYXasech({}, 1.0), 0.0);
    EXPECT_EQ(DYXacoth({}, 1.0), kInfinity);
    EXPECT_EQ(DYXacoth({}, -1.0), -kInfinity);
    EXPECT_EQ(DYXacoth({}, 2.0), std::atanh(0.5));
    EXPECT_EQ(DYXcsch({}, kInfinity), 0.0);
}

TEST(CheckedExponentials, TellOverflowAndUnderflowFromResults) {
    const double least = std::numeric_limits<double>::denorm_min();
    const struct {
        const char* name;
        Checked function;
        double largest, overflows, subnormal, underflows;
    } rows[]{
        {"DYXexp", DYXexp, 709, 710, -740, -746},
        {"DYXpow10", DYXpow10, 308, 309, -320, -324},
        {"DYXpow2", DYXpow2, 1023, 1024, -1074, -1076},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(std::isfinite(row.function({}, row.largest)));
        EXPECT_EQ(bitsOf(row.function({}, row.overflows)), bitsOf(DYXnan('O')));
        EXPECT_EQ(bitsOf(row.function({}, 1e300)), bitsOf(DYXnan('O')));
        EXPECT_EQ(std::fpclassify(row.function({}, row.subnormal)), FP_SUBNORMAL);
        EXPECT_EQ(bitsOf(row.function({}, row.underflows)), bitsOf(DYXnan('U')));
        EXPECT_EQ(bitsOf(row.function({}, -1e300)), bitsOf(DYXnan('U')));
        EXPECT_EQ(row.function({}, kInfinity), kInfinity);
        EXPECT_EQ(row.function({}, -kInfinity), 0.0);
        EXPECT_EQ(row.function({}, -0.0), 1.0);
        EXPECT_EQ(bitsOf(row.function({}, DYXnan('Q'))), bitsOf(DYXnan('Q')));
    }
    EXPECT_EQ(DYXpow2({}, -1074.0), least);
    EXPECT_EQ(DYXpow2({}, 0.5), 1.4142135623730951);
    EXPECT_EQ(DYXpow10({}, 15.0), 1e15);
}

TEST(Powers, RefuseANegativeBaseUnlessTheExponentIsWhole) {
    const struct {
        double base, exponent, result;
    } rows[]{
        {-8, 3, -512},
        {-8, -1, -0.125},
        {-8, 0.5, DYXnan('P')},
        {-8, above(3), DYXnan('P')},
        {-2, 4294967296.0, DYXnan('P')},
        {-1, 2147483647, -1},
        {-1, 2147483648.0, DYXnan('P')},
        {-1, -2147483648.0, 1},
        {-1, -2147483649.0, DYXnan('P')},
        {-2, kInfinity, DYXnan('P')},
        {-kInfinity, 0.5, DYXnan('P')},
        {-2, DYXnan('L'), DYXnan('P')},
        {2, DYXnan('L'), DYXnan('L')},
        {DYXnan('L'), 2, DYXnan('L')},
        {0, 0, 1},
        {-0.0, 0.5, 0},
        {0, -1, kInfinity},
        {-0.0, -1, -kInfinity},
        {2, 0.5, 1.4142135623730951},
        {10, 400, kInfinity},
    };
    Context baseInY;
    Context baseInX;
    baseInX.useHPStylePowerAndLogs = false;
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.base << " to the power " << row.exponent);
        EXPECT_EQ(bitsOf(DYXXpowY({}, row.base, row.exponent)), bitsOf(row.result));
        EXPECT_EQ(bitsOf(DYXYpowX({}, row.exponent, row.base)), bitsOf(row.result));
        EXPECT_EQ(bitsOf(DYXpow(baseInY, row.exponent, row.base)), bitsOf(row.result));
        EXPECT_EQ(bitsOf(DYXpow(baseInX, row.base, row.exponent)), bitsOf(row.result));
    }
}

TEST(LogarithmsToABase, RefuseWhatIsBelowZero) {
    Context baseInY;
    Context baseInX;
    baseInX.useHPStylePowerAndLogs = false;
    const struct {
        double base, argument;
        const char16_t* error;  // or null for `result`
        double result;
    } rows[]{
        {10, 1000, nullptr, std::log(1000.0) / std::log(10.0)},
        {2, 8, nullptr, std::log(8.0) / std::log(2.0)},
        {-2, 8, u"log error", 0},
        {2, -8, u"log error", 0},
        {1, 8, nullptr, kInfinity},
        {0, 0, u"indeterminate", 0},
        {2, 0, nullptr, -kInfinity},
        {-0.0, 8, nullptr, -0.0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.argument << " to the base " << row.base);
        for (const double result :
             {DYXlogYbaseX({}, row.base, row.argument), DYXlogXbaseY({}, row.argument, row.base),
              DYXlogbase(baseInX, row.base, row.argument),
              DYXlogbase(baseInY, row.argument, row.base)}) {
            if (row.error != nullptr) {
                ASSERT_TRUE(std::isnan(result));
                EXPECT_EQ(DYXnanString(result), row.error);
            } else {
                EXPECT_EQ(bitsOf(result), bitsOf(row.result));
            }
        }
    }
    EXPECT_NEAR(DYXlogYbaseX({}, 10, 1000), 3.0, 1e-15);
    EXPECT_NEAR(DYXlogXbaseY({}, 10, 1000), 1.0 / 3.0, 1e-15);
}

TEST(PlainFunctions, AreTheQuotientsThatTheyAreToldToBe) {
    const struct {
        const char* name;
        Plain function;
        double (*expected)(double);
    } rows[]{
        {"cot", cot, [](double x) { return 1 / std::tan(x); }},
        {"coth", coth, [](double x) { return 1 / std::tanh(x); }},
        {"sec", sec, [](double x) { return 1 / std::cos(x); }},
        {"sech", sech, [](double x) { return 1 / std::cosh(x); }},
        {"csc", csc, [](double x) { return 1 / std::sin(x); }},
        {"csch", csch, [](double x) { return 1 / std::sinh(x); }},
        {"acoth", acoth, [](double x) { return std::atanh(1 / x); }},
        {"asec", asec, [](double x) { return std::acos(1 / x); }},
        {"asech", asech, [](double x) { return std::acosh(1 / x); }},
        {"acsc", acsc, [](double x) { return std::asin(1 / x); }},
        {"acsch", acsch, [](double x) { return std::asinh(1 / x); }},
        {"square", square, [](double x) { return x * x; }},
        {"inverse", inverse, [](double x) { return 1 / x; }},
    };
    for (const auto& row : rows) {
        for (const double x : {-3.5, -1.0, -0.25, 0.0, 0.25, 0.5, 1.0, 2.0, 40.0}) {
            const double expected = row.expected(x);
            SCOPED_TRACE(testing::Message() << row.name << " of " << x);
            EXPECT_TRUE(bitsOf(row.function(x)) == bitsOf(expected));
        }
    }
}

}  // namespace
}  // namespace talvex
