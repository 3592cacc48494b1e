#include "numeric/trigonometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "numeric/DYXnan.h"
#include "numeric/checked_elementary.h"
#include "same_bits.h"

namespace talvex {
namespace {

using Checked = double (*)(const DYXMathContext&, double);

DYXMathContext contextOf(AngleMode angleMode, bool inverse = false, bool hyperbolic = false) {
    DYXMathContext context;
    context.angleMode = angleMode;
    context.inverse = inverse;
    context.hyperbolic = hyperbolic;
    return context;
}

constexpr struct AngleRow {
    const char* title;
    AngleMode mode;
    double quarterTurn;
} kAngles[]{{"RAD", AngleMode::rad, 1.5707963267948966},
            {"DEG", AngleMode::deg, 90},
            {"GRD", AngleMode::grd, 100},
            {"HRS", AngleMode::hrs, 6},
            {"REV", AngleMode::rev, 0.25},
            {"no mode, which counts as RAD", AngleMode{5}, 1.5707963267948966}};

constexpr Checked kForward[]{DYXsin, DYXcos, DYXtan, DYXcsc, DYXsec, DYXcot};
// What sin, cos, tan, csc, sec, cot are at an angle; of the sign of a zero only +0 will do.
void expectForward(const DYXMathContext& context, double x, const double (&expected)[6]) {
    for (std::size_t index = 0; index < 6; ++index) {
        const double result = kForward[index](context, x);
        const bool isRounded = std::fabs(expected[index]) == 1.0;
        EXPECT_TRUE(isSame(isRounded ? std::round(result) : result, expected[index])) << index;
    }
}

TEST(ForwardFunctions, AreExactAtMultiplesOfAQuarterTurn) {
    const double undefined = DYXnan('?');
    for (const AngleRow& row : kAngles) {
        const DYXMathContext context = contextOf(row.mode);
        for (int quarters = -9; quarters <= 9; ++quarters) {
            SCOPED_TRACE(testing::Message() << quarters << " quarter turns in " << row.title);
            const bool isOdd = quarters % 2 != 0;
            const double x = quarters * row.quarterTurn;
            EXPECT_EQ(DYXMultiplePi(row.mode, x), !isOdd);
            EXPECT_EQ(DYXOddMultiplePi2(row.mode, x), isOdd);
            const double sign = ((quarters % 4) + 4) % 4 < 2 ? 1.0 : -1.0;
            if (isOdd) {
                expectForward(context, x, {sign, 0.0, undefined, sign, undefined, 0.0});
            } else {
                expectForward(context, x, {0.0, sign, 0.0, undefined, sign, undefined});
            }
        }
        expectForward(context, -0.0, {0.0, 1.0, 0.0, undefined, 1.0, undefined});
        for (const double x : {std::ldexp(row.quarterTurn, 61), kInfinity, -kInfinity}) {
            EXPECT_TRUE(isSame(DYXsin(context, x), 0.0)) << x;
            EXPECT_TRUE(isSame(DYXtan(context, x), 0.0)) << x;
            EXPECT_TRUE(isSame(DYXcsc(context, x), undefined)) << x;
            EXPECT_TRUE(isSame(DYXcot(context, x), undefined)) << x;
        }
    }
    EXPECT_TRUE(DYXOddMultiplePi2(AngleMode::deg, 90 * 2147483647.0));
    EXPECT_TRUE(DYXOddMultiplePi2(AngleMode::deg, -90 * 2147483647.0));
    EXPECT_FALSE(DYXOddMultiplePi2(AngleMode::deg, 90 * 2147483649.0));
    EXPECT_FALSE(DYXOddMultiplePi2(AngleMode::deg, -90 * 2147483649.0));
}

TEST(GenericFunctions, ChooseByTheModifiers) {
    constexpr Checked sinh = [](const DYXMathContext&, double x) { return std::sinh(x); };
    constexpr Checked arsinh = [](const DYXMathContext&, double x) { return std::asinh(x); };
    constexpr Checked cosh = [](const DYXMathContext&, double x) { return std::cosh(x); };
    constexpr Checked tanh = [](const DYXMathContext&, double x) { return std::tanh(x); };
    constexpr Checked sech = [](const DYXMathContext&, double x) { return 1 / std::cosh(x); };
    const Checked families[][5]{{DYXgensin, DYXsin, DYXasin, sinh, arsinh},
                                {DYXgencos, DYXcos, DYXacos, cosh, DYXacosh},
                                {DYXgentan, DYXtan, DYXatan, tanh, DYXatanh},
                                {DYXgencsc, DYXcsc, DYXacsc, DYXcsch, DYXacsch},
                                {DYXgensec, DYXsec, DYXasec, sech, DYXasech},
                                {DYXgencot, DYXcot, DYXacot, DYXcoth, DYXacoth}};
    for (const auto& family : families) {
        for (std::size_t choice = 0; choice < 4; ++choice) {
            for (const double x : {-3.0, 0.5, 3.0}) {
                const auto context = contextOf(AngleMode::deg, choice % 2 == 1, choice / 2 == 1);
                const double expected = family[choice + 1](contextOf(AngleMode::deg), x);
                EXPECT_TRUE(isSame(family[0](context, x), expected)) << choice;
            }
        }
    }
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
    const double error = DYXnan('L');
    for (const UnaryRow& row : unitaries()) {
        for (int state = 0; state < 20 && handsErrorsOn(row.action); ++state) {
            const auto context =
                contextOf(AngleMode{state / 4}, state % 2 == 1, state / 2 % 2 == 1);
            EXPECT_TRUE(isSame(row(context, error), error)) << row.action;
        }
    }
    for (const BinaryRow& row : binaries()) {
        if (handsErrorsOn(row.action)) {
            EXPECT_TRUE(isSame(row({}, error, 2.0), error)) << row.action;
            EXPECT_TRUE(isSame(row({}, 2.0, error), error)) << row.action;
        }
    }
}

}  // namespace
}  // namespace talvex
