// Commands as text, the press of a key and its modifiers, memory registers, and codes that nobody
// knows.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include "core/function_tables.h"
#include "display/ascii_text.h"
#include "key_script.h"
#include "same_bits.h"

namespace talvex {
namespace {

TEST(CommandString, ItsLengthSaysWhatItHolds) {
    const Comand digit{.category = fourCC("data"), .action = fourCC("N00A")};
    const Comand feet{
        .category = fourCC("conv"), .action = fourCC("feet"), .group = fourCC("len ")};
    EXPECT_EQ(commandFromString(u"dataN00A"), digit);
    EXPECT_EQ(commandFromString(u"convlen feet"), feet);
    EXPECT_EQ(commandFromString(u"SIN "), (Comand{.action = fourCC("SIN ")}));
    EXPECT_EQ(fourCC("SIN "), 0x53494E20U);
    for (std::size_t length = 0; length < 40; ++length) {
        if (length != 4 && length != 8 && length != 12) {
            EXPECT_EQ(commandFromString(std::u16string(length, u'x')), Comand{}) << length;
        }
    }
    EXPECT_EQ(commandFromString(u"\u2161\u0162\u0041\uFF20").action, 0x61624120U);
}

struct Modifiers {
    bool inverse, hyperbolic, recall;
    int store;
    bool operator==(const Modifiers&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Modifiers& modifiers) {
    return out << modifiers.inverse << modifiers.hyperbolic << modifiers.recall << modifiers.store;
}

class KeyPress : public testing::Test {
  protected:
    void press(std::string_view command) {
        NSButton button;
        button.setTitle(u"memoSTO ");
        button.setAlternateTitle(asciiText(command));
        script_.calculator.takeDYXButtonFrom(button);
    }
    [[nodiscard]] Modifiers modifiers() const {
        const DYXCalculator& calculator = script_.calculator;
        return {calculator.inverse, calculator.hyperbolic, calculator.recall(), calculator.store()};
    }
    KeyScript script_;
};

TEST_F(KeyPress, LeavesOfTheModifiersWhatItsKindLeaves) {
    struct Row {
        std::string_view command;
        Modifiers left;  // of INV, HYP, RCL and STO+ lit before
    };
    for (const Row& row :
         {Row{"modiARC ", {false, true, false, 0}}, Row{"modiHYP ", {true, false, false, 0}},
          Row{"memoRCL ", {false, false, false, 0}}, Row{"memoSTO ", {false, false, false, 1}},
          Row{"memoSTO+", {false, false, false, 0}}, Row{"memoSTO-", {false, false, false, 3}},
          Row{"memoSTO*", {false, false, false, 4}}, Row{"memoSTO/", {false, false, false, 5}},
          Row{"memoSTOC", {false, false, false, 0}}, Row{"modiWHAT", {false, false, false, 0}},
          Row{"unitSQR ", {false, false, false, 0}}, Row{"dataN001", {false, false, false, 0}},
          Row{"SIN ", {false, false, false, 0}}, Row{"anything else", {false, false, false, 0}}}) {
        SCOPED_TRACE(row.command);
        script_.calculator.inverse = true;
        script_.calculator.hyperbolic = true;
        script_.calculator.setRecall(true);
        script_.calculator.setStore(2);
        press(row.command);
        EXPECT_EQ(modifiers(), row.left);
    }
}

TEST_F(KeyPress, ReachesTheFunctionWithTheModifiersOfBefore) {
    script_.press("3");
    press("modiARC ");
    press("modiHYP ");
    EXPECT_EQ(modifiers(), (Modifiers{true, true, false, 0}));
    press("unitGSIN");
    EXPECT_EQ(script_.x(), std::asinh(3.0));
    EXPECT_EQ(modifiers(), Modifiers{});
    press("memoSTO ");
    press("memoRCL ");
    EXPECT_EQ(modifiers(), (Modifiers{false, false, true, 0}));
    press("");
    EXPECT_EQ(script_.calculator.store(), 1) << "the title counts where there is no other";
}

TEST(Memory, StoresRecallsAndCalculates) {
    struct Row {
        std::string_view keys;
        double register3;
        double x;
        int armed = 0;
    };
    // Each row starts with 2 in register 3.
    for (const Row& row : {Row{"5 STO M03", 5, 5},
                           Row{"5 STO+ M03", 7, 5},
                           Row{"5 STO- M03", -3, 5},
                           Row{"5 STO* M03", 10, 5},
                           Row{"5 STO/ M03", 0.4, 5},
                           Row{"0 STO/ M03", INFINITY, 0},
                           Row{"5 M03", 2, 2},
                           Row{"5 RCL M03", 2, 2},
                           Row{"5 S03", 5, 5},
                           Row{"5 +03", 7, 5},
                           Row{"5 -03", -3, 5},
                           Row{"5 *03", 10, 5},
                           Row{"5 /03", 0.4, 5},
                           Row{"5 R03", 2, 2},
                           Row{"5 STO+ R03", 2, 2},
                           Row{"5 STO STO M03", 2, 2},
                           Row{"5 STO+ STO* M03", 10, 5},
                           Row{"5 STO+ STOC M03", 2, 2},
                           Row{"5 STO+ M20", 2, 5},
                           Row{"5 STO+ STO*", 2, 0, 4},
                           Row{"5 CLMM M03", 0, 0},
                           Row{"5 CLAL", 0, 0},
                           Row{"5 STO M03 M04", 5, 0}}) {
        SCOPED_TRACE(row.keys);
        KeyScript script;
        script.calculator.mem()[3] = 2;
        script.press(row.keys);
        EXPECT_EQ(script.calculator.mem()[3], row.register3);
        EXPECT_EQ(script.x(), row.x);
        EXPECT_EQ(script.calculator.store(), row.armed);
    }
}

TEST(Memory, KeysReachTwentyRegistersAndDirectFormsNineteen) {
    for (int number = 0; number < 100; ++number) {
        SCOPED_TRACE(number);
        const std::string digits{static_cast<char>('0' + number / 10),
                                 static_cast<char>('0' + number % 10)};
        KeyScript byKey;
        byKey.press("5 STO M" + digits);
        KeyScript direct;
        direct.press("5 STO S" + digits);
        for (int other = 0; other < static_cast<int>(DYXCalculator::kMemoryRegisters); ++other) {
            const auto index = static_cast<std::size_t>(other);
            EXPECT_EQ(byKey.calculator.mem().at(index), other == number && number < 20 ? 5 : 0);
            EXPECT_EQ(direct.calculator.mem().at(index),
                      other == number && number < 20 && number > 0 ? 5 : 0);
        }
        EXPECT_EQ(byKey.calculator.store(), 0);
        EXPECT_EQ(direct.calculator.store(), 0);
        EXPECT_EQ(direct.calculator.inputState(), InputState::lifting);
    }
}

TEST(Functions, SaveXDropTheStackAndReportFailuresAsResults) {
    KeyScript script;
    script.setStack(3, 10, 30, 40);
    script.press("-");
    EXPECT_EQ(script.calculator.stack().reg, (std::array<double, 4>{7, 30, 40, 40}));
    script.press("ARC 2 SIN");
    EXPECT_EQ(script.line(), "|trig error||");
    EXPECT_EQ(script.calculator.stack().lastX, 2);
    script.press("LASTX");
    EXPECT_EQ(script.x(), 2);
}

template <class Row>
std::string commandOf(std::string category, const Row& row) {
    for (unsigned place = 0; place < 4; ++place) {
        category += characterOf(row.action, place);
    }
    return category;
}

TEST(Functions, HaveACommandForEveryRowOfTheTables) {
    KeyScript script;
    const double x = 0.75;
    const double y = 20.5;
    for (const UnaryRow& row : unitaries()) {
        script.setStack(x, y, 3, 4);
        script.run(commandOf("unit", row));
        EXPECT_TRUE(isSame(script.x(), row({}, x))) << commandOf("unit", row);
        EXPECT_EQ(script.y(), y);
    }
    for (const BinaryRow& row : binaries()) {
        script.setStack(x, y, 3, 4);
        script.run(commandOf("bina", row));
        EXPECT_TRUE(isSame(script.x(), row({}, x, y))) << commandOf("bina", row);
        EXPECT_EQ(script.y(), 3);
    }
}

TEST(Functions, TheKeysOfPowersFollowTheOrderOfOperands) {
    struct Row {
        std::string_view keys;
        double baseInY;
        double baseInX;
    };
    for (const Row& row :
         {Row{"2 ENTER 1 0 ^", 1024, 100}, Row{"2 ENTER 1 0 x^y", 100, 100},
          Row{"8 ENTER 6 4 ~", std::log(64.0) / std::log(8.0), std::log(8.0) / std::log(64.0)},
          Row{"8 ENTER 6 4 y~x", std::log(8.0) / std::log(64.0), std::log(8.0) / std::log(64.0)}}) {
        for (const bool isBaseInY : {true, false}) {
            KeyScript script;
            script.calculator.useHPStylePowerAndLogs = isBaseInY;
            script.press(row.keys);
            EXPECT_EQ(script.x(), isBaseInY ? row.baseInY : row.baseInX) << row.keys;
        }
    }
}

TEST(Functions, ARandomNumberLiesBetweenZeroAndOne) {
    KeyScript script;
    double least = 1;
    double greatest = 0;
    for (int count = 0; count < 1000; ++count) {
        script.press("RAND");
        least = std::min(least, script.x());
        greatest = std::max(greatest, script.x());
    }
    EXPECT_GE(least, 0);
    EXPECT_LT(least, 0.05);
    EXPECT_LE(greatest, 1);
    EXPECT_GT(greatest, 0.95);
}

TEST(UnknownCommands, ChangeNothingAndAreRecorded) {
    for (const std::string_view key :
         {"WHAT?", "UNIT?", "BINA?", "TRIN?", "QUAD?", "CONS?", "STAC?", "NULL?", "DATA?"}) {
        SCOPED_TRACE(key);
        KeyScript script;
        script.setStack(7, 2, 3, 4);
        script.press("5 6");
        script.press(key);
        EXPECT_EQ(script.line(), "|56||");
        EXPECT_EQ(script.calculator.stack().reg, (std::array<double, 4>{7, 7, 2, 3}));
        EXPECT_EQ(script.beeps(), 0);
        EXPECT_NE(script.calculator.lastCommand(), Comand{});
    }
}

TEST(UnknownModes, ShowAndTakeNumbersAsFixDoes) {
    for (const std::int32_t number : {13, -1, std::numeric_limits<std::int32_t>::max(),
                                      std::numeric_limits<std::int32_t>::min()}) {
        KeyScript script;
        script.inMode(number);
        script.press("1 2 ENTER 3 +");
        EXPECT_EQ(script.line(), "|15.0000||") << number;
        EXPECT_EQ(script.calculator.xDisplay().inputMode(), number);
    }
}

}  // namespace
}  // namespace talvex
