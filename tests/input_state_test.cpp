// Where X is, and what the next digit does, after every kind of command from every state.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <ostream>

#include "display/display_modes.h"
#include "key_script.h"

namespace talvex {
namespace {

// Keys that bring a fresh calculator into each state, with 5 in X.
constexpr std::array<std::string_view, 3> kWaysIntoState{"5", "5 ENTER", "5 ENTER X<>Y"};

struct Transition {
    std::string_view event;
    std::array<int, 3> next;  // from entering, replacing, lifting
};

// The name of the row.
void PrintTo(const Transition& row, std::ostream* out) { *out << row.event; }

class InputStateTransition : public testing::TestWithParam<Transition> {};

TEST_P(InputStateTransition, LeadsWhereItShould) {
    for (std::size_t from = 0; from < kWaysIntoState.size(); ++from) {
        KeyScript script;
        script.press(kWaysIntoState.at(from));
        ASSERT_EQ(static_cast<std::size_t>(script.calculator.inputState()), from);
        script.press(GetParam().event);
        EXPECT_EQ(static_cast<int>(script.calculator.inputState()), GetParam().next.at(from))
            << GetParam().event << " from state " << from;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, InputStateTransition,
    testing::Values(
        Transition{"1", {0, 0, 0}}, Transition{".", {0, 0, 0}}, Transition{"EEX", {0, 0, 0}},
        Transition{"E-03", {0, 0, 0}}, Transition{"A", {0, 1, 2}}, Transition{"ENTER", {1, 1, 1}},
        Transition{"CLR", {1, 1, 1}}, Transition{"CLRG", {1, 1, 1}}, Transition{"CLAL", {1, 1, 1}},
        Transition{"BACK", {1, 1, 1}}, Transition{"1 BACK", {0, 1, 1}},
        Transition{"CHS", {0, 2, 2}}, Transition{"SQR", {2, 2, 2}}, Transition{"+", {2, 2, 2}},
        Transition{"PI", {2, 2, 2}}, Transition{"RAND", {2, 2, 2}}, Transition{"LASTX", {2, 2, 2}},
        Transition{"ROLD", {2, 2, 2}}, Transition{"ROLU", {2, 2, 2}}, Transition{"X<>Y", {2, 2, 2}},
        Transition{"M03", {2, 2, 2}}, Transition{"R03", {2, 2, 2}}, Transition{"S00", {2, 2, 2}},
        Transition{"STO M03", {2, 2, 2}}, Transition{"STO", {0, 1, 2}},
        Transition{"STO+", {0, 1, 2}}, Transition{"RCL", {0, 1, 2}}, Transition{"STOC", {0, 1, 2}},
        Transition{"CLMM", {0, 1, 2}}, Transition{"ARC", {0, 1, 2}}, Transition{"HYP", {0, 1, 2}},
        Transition{"WHAT?", {0, 1, 2}}));

struct Registers {
    std::string_view keys;
    std::array<double, 4> reg;
    double lastX;
};

// The name of the row.
void PrintTo(const Registers& row, std::ostream* out) { *out << row.keys; }

class Stack : public testing::TestWithParam<Registers> {};

// Each row starts with T 4, Z 3, Y 2, X 7, 9 in last X, ready to lift.
TEST_P(Stack, HoldsAfterTheKeys) {
    KeyScript script;
    script.setStack(7, 2, 3, 4);
    script.calculator.stack().lastX = 9;
    script.press(GetParam().keys);
    EXPECT_EQ(script.calculator.stack().reg, GetParam().reg) << GetParam().keys;
    EXPECT_EQ(script.calculator.stack().lastX, GetParam().lastX) << GetParam().keys;
}

constexpr double kPi = 3.141592653589793;

INSTANTIATE_TEST_SUITE_P(
    Rows, Stack,
    testing::Values(
        Registers{"1 2 ENTER 3 +", {15, 7, 2, 2}, 3}, Registers{"+", {9, 3, 4, 4}, 7},
        Registers{"ENTER ENTER", {7, 7, 7, 2}, 7}, Registers{"1 ENTER", {1, 1, 7, 2}, 1},
        Registers{"CLR 1 ENTER", {1, 1, 2, 3}, 1}, Registers{"BACK 1 ENTER", {1, 1, 2, 3}, 1},
        Registers{"CLR CLR", {0, 2, 3, 4}, 9}, Registers{"CLRG", {0, 0, 0, 0}, 9},
        Registers{"ENTER CHS 5 X<>Y", {-7, 5, 7, 2}, -7}, Registers{"CHS", {-7, 2, 3, 4}, 9},
        Registers{"ROLD", {2, 3, 4, 7}, 9}, Registers{"ROLU", {4, 7, 2, 3}, 9},
        Registers{"X<>Y", {2, 7, 3, 4}, 9}, Registers{"ROLD ROLD ROLD ROLD", {7, 2, 3, 4}, 9},
        Registers{"LASTX", {9, 7, 2, 3}, 7}, Registers{"SQR LASTX", {7, 49, 2, 3}, 49},
        Registers{"5 PI", {kPi, 5, 7, 2}, 5}, Registers{"5 ENTER PI", {kPi, 5, 5, 7}, 5},
        Registers{"5 X<>Y", {7, 5, 2, 3}, 7}, Registers{"5 TRIN? ENTER", {5, 5, 7, 2}, 5},
        Registers{". 5 X<>Y", {7, 0.5, 2, 3}, 7}, Registers{"CLR . 5 X<>Y", {2, 0.5, 3, 4}, 9},
        Registers{"EEX 2 X<>Y", {7, 100, 2, 3}, 7}, Registers{"CLR EEX 2 X<>Y", {2, 100, 3, 4}, 9},
        Registers{"E+03 X<>Y", {7, 1000, 2, 3}, 7}, Registers{"CLR E+03 X<>Y", {2, 1000, 3, 4}, 9},
        Registers{"5 E-03 ENTER", {0.005, 0.005, 7, 2}, 0.005},
        Registers{"CLR PI", {kPi, 0, 2, 3}, 0}, Registers{"BACK", {0, 2, 3, 4}, 9},
        Registers{"5 ROLD", {7, 2, 3, 5}, 7}, Registers{"5 ROLU", {3, 5, 7, 2}, 7},
        Registers{"5 LASTX", {7, 5, 7, 2}, 5}, Registers{"5 CHS ENTER", {-5, -5, 7, 2}, -5},
        Registers{"CLAL", {0, 0, 0, 0}, 9}));

TEST(StackDrop, CopiesTAndLeavesX) {
    const std::array<std::array<double, 4>, 5> expected{
        {{1, 2, 3, 4}, {1, 3, 4, 4}, {1, 4, 4, 4}, {1, 4, 4, 4}, {1, 4, 4, 4}}};
    for (unsigned count = 0; count < expected.size(); ++count) {
        DYXStack stack{.reg = {1, 2, 3, 4}};
        stack.dropOntoXReg(count);
        EXPECT_EQ(stack.reg, expected.at(count)) << count;
    }
}

TEST(DataEntry, RefusedStartsSoundAndDoNotLift) {
    struct Row {
        std::int32_t mode;
        std::string_view key;
        int beeps;
    };
    for (const Row& row :
         {Row{mode::OCT, "9", 1}, Row{mode::DEC, "A", 1}, Row{mode::HEX, ".", 1},
          Row{mode::FRC, "EEX", 1}, Row{mode::BIN, "E+03", 1}, Row{mode::FIX, "F", 1}}) {
        for (const std::string_view start : {"", "ENTER"}) {
            SCOPED_TRACE(std::string(start) + ", then " + std::string(row.key));
            KeyScript script;
            script.setStack(7, 2, 3, 4);
            script.press(start);
            const auto before = script.calculator.stack().reg;
            const InputState state = script.calculator.inputState();
            script.inMode(row.mode);
            script.press(row.key);
            EXPECT_EQ(script.beeps(), row.beeps);
            EXPECT_EQ(script.calculator.stack().reg, before);
            EXPECT_EQ(script.calculator.inputState(), state);
        }
    }
}

TEST(DataEntry, BackspaceInMidEntryLeavesTheRegisterStale) {
    KeyScript script;
    script.setStack(7, 2, 3, 4);
    script.press("1 2 BACK");
    EXPECT_EQ(script.x(), 7);
    script.press("BACK 5 ENTER");
    EXPECT_EQ(script.x(), 5);
    EXPECT_EQ(script.calculator.stack().reg[2], 7);
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
    script.calculator.xDisplay().setDigits(2);
    script.setStack(1.005, 2.676, 3, 4);
    script.press("WHAT?");
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
