// Where X is, and what the next digit does, after every kind of command from every state.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "display/display_modes.h"
#include "key_script.h"

namespace talvex {
namespace {

// Keys that bring a fresh calculator into each state, with 5 in X.
constexpr std::array<std::string_view, 3> kWaysIntoState{"5", "5 ENTER", "5 ENTER X<>Y"};

TEST(InputState, ChangesWithTheKindOfCommand) {
    const struct {
        std::array<int, 3> next;  // from entering, replacing, lifting
        std::vector<std::string_view> keys;
    } rows[]{{{0, 0, 0}, {"1", ".", "EEX", "E-03"}},
             {{0, 1, 2}, {"A", "STO", "STO+", "RCL", "STOC", "CLMM", "ARC", "HYP", "unitABCD"}},
             {{0, 1, 1}, {"1 BACK"}},
             {{0, 2, 2}, {"CHS"}},
             {{1, 1, 1}, {"ENTER", "CLR", "CLRG", "CLAL", "BACK"}},
             {{2, 2, 2}, {"SQR", "+", "PI", "RAND", "LASTX", "ROLD", "ROLU", "X<>Y"}},
             {{2, 2, 2}, {"M03", "R03", "S00", "STO M03"}}};
    for (const auto& row : rows) {
        for (const std::string_view keys : row.keys) {
            for (std::size_t from = 0; from < kWaysIntoState.size(); ++from) {
                KeyScript script;
                script.press(kWaysIntoState.at(from));
                ASSERT_EQ(static_cast<std::size_t>(script.calculator.inputState()), from);
                script.press(keys);
                EXPECT_EQ(static_cast<int>(script.calculator.inputState()), row.next.at(from))
                    << keys << " from state " << from;
            }
        }
    }
}

TEST(Stack, HoldsAfterTheKeys) {
    constexpr double kPi = std::numbers::pi;
    const struct {
        std::string_view keys;
        std::array<double, 4> reg;
        double lastX;
    } rows[]{{"-", {-5, 3, 4, 4}, 7},
             {"ENTER ENTER", {7, 7, 7, 2}, 7},
             {"2 ARC SIN CLR", {0, 7, 2, 3}, 2},
             {"CLR 1 ENTER", {1, 1, 2, 3}, 1},
             {"BACK 1 ENTER", {1, 1, 2, 3}, 1},
             {"CLRG", {0, 0, 0, 0}, 9},
             {"ENTER CHS 5 X<>Y", {-7, 5, 7, 2}, -7},
             {"ROLD ROLD ROLD ROLD", {7, 2, 3, 4}, 9},
             {"LASTX", {9, 7, 2, 3}, 7},
             {"SQR LASTX", {7, 49, 2, 3}, 49},
             {"5 PI", {kPi, 5, 7, 2}, 5},
             {"5 ENTER PI", {kPi, 5, 5, 7}, 5},
             {". 5 X<>Y", {7, 0.5, 2, 3}, 7},
             {"CLR E+03 X<>Y", {2, 1000, 3, 4}, 9},
             {"5 E-03 ENTER", {0.005, 0.005, 7, 2}, 0.005},
             {"5 ROLU", {3, 5, 7, 2}, 7},
             {"1 2 BACK", {7, 7, 2, 3}, 7},
             {"1 2 BACK BACK 5 ENTER", {5, 5, 7, 2}, 5}};
    for (const auto& row : rows) {
        KeyScript script;
        script.setStack(7, 2, 3, 4);
        edit(script.calculator, [](CalculatorState& state) { state.stack.lastX = 9; });
        script.press(row.keys);
        EXPECT_EQ(script.calculator.stack().reg, row.reg) << row.keys;
        EXPECT_EQ(script.calculator.stack().lastX, row.lastX) << row.keys;
    }
}

TEST(DataEntry, RefusedStartsSoundAndDoNotLift) {
    const std::pair<std::int32_t, std::string_view> rows[]{{mode::OCT, "9"},    {mode::DEC, "A"},
                                                           {mode::HEX, "."},    {mode::FRC, "EEX"},
                                                           {mode::BIN, "E+03"}, {mode::FIX, "F"}};
    for (const auto& [mode, key] : rows) {
        for (const std::string_view start : {"CHS", "ENTER"}) {
            SCOPED_TRACE(std::string(start) + ", then " + std::string(key));
            KeyScript script;
            script.setStack(7, 2, 3, 4);
            script.press(start);
            const CalculatorState before = script.calculator.state();
            script.inMode(mode);
            script.press(key);
            EXPECT_EQ(script.beeps(), 1);
            EXPECT_EQ(script.calculator.stack().reg, before.stack.reg);
            EXPECT_EQ(script.calculator.inputState(), before.inputState);
        }
    }
}

TEST(DataEntry, ChangeOfSignFlipsTheBitOfAnyNumber) {
    KeyScript script;
    script.press("CLR CHS");
    EXPECT_TRUE(std::signbit(script.x()) && script.x() == 0.0);
    script.press("1 CHS ROOT CHS");
    EXPECT_TRUE(std::isnan(script.x()) && std::signbit(script.x()));
    EXPECT_EQ(script.line(), "|sqrt error||");
    script.inMode(mode::HEX);
    script.press("5 ENTER CHS");
    EXPECT_EQ(script.x(), -5) << "a mode without a sign key still negates a finished number";
}

TEST(DataEntry, ModeMonetaryRoundsXAfterEveryCommand) {
    KeyScript script;
    script.inMode(mode::MON);
    script.calculator.xDisplay().setSettings({.digits = 2});
    script.setStack(1.005, 2.676, 3, 4);
    script.press("unitABCD");
    EXPECT_EQ(script.x(), 1.0);
    script.press("X<>Y");
    EXPECT_EQ(script.x(), 2.68);
    script.press("2 ENTER 3 /");
    EXPECT_EQ(script.x(), 0.67);
    script.press("1 CHS ROOT");
    EXPECT_EQ(script.line(), "|sqrt error||");
}

}  // namespace
}  // namespace talvex
