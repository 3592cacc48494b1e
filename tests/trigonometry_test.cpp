#include "numeric/trigonometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "numeric/DYXnan.h"
#include "numeric/checked_elementary.h"
#include "numeric/elementary.h"

namespace talvex {
namespace {

using Checked = double (*)(const DYXMathContext&, double);

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kPi = 3.141592653589793;

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

DYXMathContext contextOf(std::int32_t angleMode, bool inverse = false, bool hyperbolic = false) {
    DYXMathContext context;
    context.angleMode = angleMode;
    context.inverse = inverse;
    context.hyperbolic = hyperbolic;
    return context;
}

struct AngleRow {
    const char* title;
    std::int32_t mode;
    double units, halfTurn, quarterTurn;
};

constexpr AngleRow kAngles[]{
    {"RAD", 0, 1.0, kPi, 1.5707963267948966},   {"DEG", 1, 0.017453292519943295, 180, 90},
    {"GRD", 2, 0.015707963267948967, 200, 100}, {"HRS", 3, 0.2617993877991494, 12, 6},
    {"REV", 4, 6.283185307179586, 0.5, 0.25},
};

constexpr Checked kForward[]{DYXsin, DYXcos, DYXtan, DYXcsc, DYXsec, DYXcot};
constexpr Checked kArcs[]{DYXasin, DYXacos, DYXatan, DYXacsc, DYXasec, DYXacot};
constexpr Checked kGeneric[]{DYXgensin, DYXgencos, DYXgentan, DYXgencsc, DYXgensec, DYXgencot};

// What sin, cos, tan, csc, sec, cot are at an angle; of the sign of a zero only +0 will do.
void expectForward(const DYXMathContext& context, double x, const double (&expected)[6]) {
    for (std::size_t index = 0; index < 6; ++index) {
        const double result = kForward[index](context, x);
        if (expected[index] == 0.0 || std::isnan(expected[index])) {
            EXPECT_EQ(bitsOf(result), bitsOf(expected[index])) << "function " << index;
        } else {
            EXPECT_DOUBLE_EQ(result, expected[index]) << "function " << index;
        }
    }
}

TEST(ForwardFunctions, AreExactAtMultiplesOfAQuarterTurn) {
    const double undefined = DYXnan('?');
    for (const AngleRow& row : kAngles) {
        const DYXMathContext context = contextOf(row.mode);
        EXPECT_EQ(context.angleUnits(), row.units) << row.title;
        for (int quarters = -9; quarters <= 9; ++quarters) {
            SCOPED_TRACE(testing::Message() << quarters << " quarter turns in " << row.title);
            const bool isOdd = quarters % 2 != 0;
            const int halves = quarters / 2;
            const double x = isOdd ? quarters * row.quarterTurn : halves * row.halfTurn;
            EXPECT_EQ(DYXMultiplePi(row.mode, x), !isOdd);
            EXPECT_EQ(DYXOddMultiplePi2(row.mode, x), isOdd);
            if (isOdd) {
                const double sine = ((quarters % 4) + 4) % 4 == 1 ? 1.0 : -1.0;
                expectForward(context, x, {sine, 0.0, undefined, sine, undefined, 0.0});
            } else {
                const double cosine = quarters % 4 == 0 ? 1.0 : -1.0;
                expectForward(context, x, {0.0, cosine, 0.0, undefined, cosine, undefined});
            }
        }
        expectForward(context, -0.0, {0.0, 1.0, 0.0, undefined, 1.0, undefined});
    }
}

TEST(ForwardFunctions, TreatHugeMultiplesAsHalfTurns) {
    EXPECT_TRUE(DYXOddMultiplePi2(1, 90 * 2147483647.0));
    EXPECT_TRUE(DYXOddMultiplePi2(1, -90 * 2147483647.0));
    EXPECT_FALSE(DYXOddMultiplePi2(1, 90 * 2147483649.0));
    EXPECT_FALSE(DYXOddMultiplePi2(1, -90 * 2147483649.0));
    for (const AngleRow& row : kAngles) {
        SCOPED_TRACE(row.title);
        const DYXMathContext context = contextOf(row.mode);
        for (const double x : {std::ldexp(row.halfTurn, 60), kInfinity, -kInfinity}) {
            EXPECT_EQ(bitsOf(DYXsin(context, x)), bitsOf(0.0)) << x;
            EXPECT_EQ(bitsOf(DYXtan(context, x)), bitsOf(0.0)) << x;
            EXPECT_EQ(bitsOf(DYXcsc(context, x)), bitsOf(DYXnan('?'))) << x;
            EXPECT_EQ(bitsOf(DYXcot(context, x)), bitsOf(DYXnan('?'))) << x;
        }
    }
}

TEST(ArcFunctions, RefuseArgumentsOutsideTheirDomain) {
    const double beyond = std::nextafter(1.0, 2.0);
    const double inside = std::nextafter(1.0, 0.0);
    for (const AngleRow& row : kAngles) {
        SCOPED_TRACE(row.title);
        const DYXMathContext context = contextOf(row.mode);
        for (const Checked function : {DYXasin, DYXacos}) {
            for (const double x : {beyond, -beyond, kInfinity, -kInfinity}) {
                EXPECT_EQ(bitsOf(function(context, x)), bitsOf(DYXnan('T'))) << x;
            }
            for (const double x : {1.0, -1.0, inside, -inside, 0.0}) {
                EXPECT_TRUE(std::isfinite(function(context, x))) << x;
            }
        }
        for (const Checked function : {DYXacsc, DYXasec}) {
            for (const double x : {inside, -inside, 0.0, -0.0}) {
                EXPECT_EQ(bitsOf(function(context, x)), bitsOf(DYXnan('T'))) << x;
            }
            for (const double x : {1.0, -1.0, beyond, -beyond, kInfinity, -kInfinity}) {
                EXPECT_TRUE(std::isfinite(function(context, x))) << x;
            }
        }
    }
}

double plainSinh(const DYXMathContext&, double x) { return std::sinh(x); }
double plainAsinh(const DYXMathContext&, double x) { return std::asinh(x); }
double plainCosh(const DYXMathContext&, double x) { return std::cosh(x); }
double plainTanh(const DYXMathContext&, double x) { return std::tanh(x); }
double plainSech(const DYXMathContext&, double x) { return sech(x); }

TEST(GenericFunctions, ChooseByTheModifiers) {
    constexpr Checked hyperbolic[]{plainSinh, plainCosh, plainTanh, DYXcsch, plainSech, DYXcoth};
    constexpr Checked inverse[]{plainAsinh, DYXacosh, DYXatanh, DYXacsch, DYXasech, DYXacoth};
    for (const std::int32_t mode : {0, 1, 4, 77}) {
        for (std::size_t index = 0; index < 6; ++index) {
            for (const double x : {-3.0, -0.5, 0.0, 0.5, 1.0, 3.0}) {
                SCOPED_TRACE(testing::Message() << index << " of " << x << " in mode " << mode);
                const auto expectSame = [&](bool isInverse, bool isHyperbolic, Checked function) {
                    const double result =
                        kGeneric[index](contextOf(mode, isInverse, isHyperbolic), x);
                    EXPECT_EQ(bitsOf(result), bitsOf(function(contextOf(mode), x)));
                };
                expectSame(false, false, kForward[index]);
                expectSame(true, false, kArcs[index]);
                expectSame(false, true, hyperbolic[index]);
                expectSame(true, true, inverse[index]);
            }
        }
    }
    EXPECT_EQ(bitsOf(DYXgencos(contextOf(1, true, true), 0.5)), bitsOf(DYXnan('H')));
}

// Of the rows of the tables, those that go through integers hand no error on, and the Bessel
// functions of real order have an error of their own.
bool handsErrorsOn(std::uint32_t action) {
    const auto others = {fourCC("FACT"), fourCC("DFCT"), fourCC("SH1L"), fourCC("SH1R"),
                         fourCC("NOT "), fourCC("CHOS"), fourCC("MOD "), fourCC("DIV "),
                         fourCC("Jx  "), fourCC("Yx  "), fourCC("AND "), fourCC("NAND"),
                         fourCC("OR  "), fourCC("XOR "), fourCC("y<<x"), fourCC("y>>x")};
    return std::find(others.begin(), others.end(), action) == others.end();
}

TEST(FunctionTables, HandErrorsOnBitForBit) {
    for (const char code : {'\0', '?', 'L', 'T'}) {
        const double error = DYXnan(code);
        for (int state = 0; state < 20; ++state) {
            const auto context = contextOf(state / 4, state % 2 == 1, state / 2 % 2 == 1);
            for (const UnaryRow& row : unitaries()) {
                if (handsErrorsOn(row.action)) {
                    EXPECT_EQ(bitsOf(row(context, error)), bitsOf(error)) << row.action;
                }
            }
        }
        for (const BinaryRow& row : binaries()) {
            if (handsErrorsOn(row.action)) {
                EXPECT_EQ(bitsOf(row({}, error, 2.0)), bitsOf(error)) << row.action;
                EXPECT_EQ(bitsOf(row({}, 2.0, error)), bitsOf(error)) << row.action;
            }
        }
    }
}

}  // namespace
}  // namespace talvex
