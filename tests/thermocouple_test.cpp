#include "numeric/thermocouple.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <span>

#include "numeric/DYXnan.h"
#include "numeric/thermocouple_tables.h"
#include "oracle/hard_numbers.h"
#include "oracle/naive_functions.h"
#include "same_bits.h"

namespace talvex {
namespace {

using Function = double (*)(double);

struct Type {
    char letter;
    Function voltage, derivative, temperature;
    double low, high;          // of the whole type
    double lastFound;          // up to here the iteration finds the temperature again
    double voltageNearTheTop;  // the published tables, in millivolts, at a whole degree
    double wholeDegree;
};

// B is found nowhere: its slope is negative where the iteration starts.
constexpr Type kTypes[]{
    {'T', TCtomV, TCtomVderiv, TmVtoC, -270, 400, 399, 20.872, 400},
    {'S', SCtomV, SCtomVderiv, SmVtoC, -50, 1768.1, 1050, 18.609, 1760},
    {'R', RCtomV, RCtomVderiv, RmVtoC, -50, 1768.1, 960, 21.003, 1760},
    {'B', BCtomV, BCtomVderiv, BmVtoC, 0, 1820, -1, 13.820, 1820},
    {'N', NCtomV, NCtomVderiv, NmVtoC, -270, 1300, 1090, 47.513, 1300},
    {'E', ECtomV, ECtomVderiv, EmVtoC, -270, 1000, 1000, 76.373, 1000},
    {'K', KCtomV, KCtomVderiv, KmVtoC, -270, 1372, 1372, 54.886, 1372},
    {'J', JCtomV, JCtomVderiv, JmVtoC, -210, 1200, 1200, 69.553, 1200},
};

// The pieces meet at a joint to a few nanovolts; the joint itself belongs to the lower one.
TEST(Thermocouples, TakeTheLowerPieceAtAJoint) {
    const struct {
        Function voltage, derivative;
        double t;
        std::span<const double> lower;
    } joints[]{{TCtomV, TCtomVderiv, 0.0, T1},     {KCtomV, KCtomVderiv, 0.0, K1},
               {ECtomV, ECtomVderiv, 0.0, E1},     {NCtomV, NCtomVderiv, 0.0, N1},
               {JCtomV, JCtomVderiv, 760.0, J1},   {BCtomV, BCtomVderiv, 630.615, B1},
               {RCtomV, RCtomVderiv, 1064.18, R1}, {RCtomV, RCtomVderiv, 1664.5, R2},
               {SCtomV, SCtomVderiv, 1064.18, S1}, {SCtomV, SCtomVderiv, 1664.5, S2}};
    for (const auto& joint : joints) {
        SCOPED_TRACE(joint.t);
        const int degree = static_cast<int>(joint.lower.size()) - 1;
        const double* const lower = joint.lower.data();
        EXPECT_TRUE(isSame(joint.voltage(joint.t), Poly(lower, degree, joint.t)));
        EXPECT_TRUE(isSame(joint.derivative(joint.t), PolyDeriv(lower, degree, joint.t)));
        EXPECT_NEAR(joint.voltage(std::nextafter(joint.t, 1e4)), joint.voltage(joint.t), 2e-6);
    }
}

TEST(Thermocouples, HaveThePublishedVoltagesAndTheSlopeAndTemperatureOfThem) {
    for (const Type& type : kTypes) {
        SCOPED_TRACE(type.letter);
        EXPECT_NEAR(type.voltage(type.wholeDegree), type.voltageNearTheTop, 0.0006);
        EXPECT_EQ(type.voltage(0.0), 0.0);
        for (double t = type.low + 5; t < type.high - 5; t += 13) {
            const double slope = (type.voltage(t + 1e-3) - type.voltage(t - 1e-3)) / 2e-3;
            EXPECT_NEAR(type.derivative(t), slope, 2e-6) << t;
        }
        for (double t = std::max(type.low, -200.0) /* nearly flat below */; t <= type.lastFound;
             t += 7) {
            EXPECT_NEAR(type.temperature(type.voltage(t)), t, 1e-8) << t;
        }
    }
    EXPECT_EQ(KCtomV(1000), 41.27560645631388);
    EXPECT_NEAR(KmVtoC(41.276), 1000.0100956976, 1e-10);
    EXPECT_NEAR(BmVtoC(1.792), -484.03, 0.01);
}

TEST(Thermocouples, EndLikeAThousandStepsOfNewton) {
    HardNumbers numbers(4);
    for (const Type& type : kTypes) {
        for (int round = 0; round < 1000; ++round) {
            const double target = round % 2 == 0 ? numbers.between(-20.0, 100.0) : numbers.next();
            const double full = naiveNewton(type.voltage, type.derivative, target, 0.0, 1e-9);
            EXPECT_TRUE(isSame(type.temperature(target), full)) << type.letter << target;
        }
        EXPECT_TRUE(isSame(type.voltage(DYXnan('?')), DYXnan('?')));
        EXPECT_TRUE(isSame(type.temperature(DYXnan('?')), DYXnan('?')));
    }
    // Runs around between 1 and -1 for all of its steps.
    const auto around = [](double x) { return x * x * x - 5 * x; };
    const auto slope = [](double x) { return 3 * x * x - 5; };
    EXPECT_EQ(Newton(around, slope, 0.0, 1.0, 1e-9), 1.0);
}

}  // namespace
}  // namespace talvex
