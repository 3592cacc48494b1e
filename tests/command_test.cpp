// Commands as text, the press of a key and its modifiers, memory registers, and codes that nobody
// knows.

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <utility>

#include "key_script.h"

namespace talvex {
namespace {

TEST(CommandString, ItsLengthSaysWhatItHolds) {
    EXPECT_EQ(commandFromString(u"SIN "), (Comand{.action = fourCC("SIN ")}));
    EXPECT_EQ(commandFromString(u"convlen ft  "), command("conv", "len ", "ft  "));
    EXPECT_EQ(stringFromCommand(command("conv", "len ", "ft  ")), u"convlen ft  ");
    EXPECT_EQ(stringFromCommand(digitCommand('7')), u"dataN007");
    EXPECT_EQ(registerCommand(19), command("memo", "M019"));
    EXPECT_EQ(commandFromString(u"\u2161\u0162\u0041\uFF20").action, 0x61624120U);
    for (std::size_t length = 0; length < 40; ++length) {
        const bool isCommand = commandFromString(std::u16string(length, u'x')) != Comand{};
        EXPECT_EQ(isCommand, length == 4 || length == 8 || length == 12) << length;
    }
}

// The modifiers that are on, and which store is armed.
std::string modifiersOf(const DYXCalculator& calculator) {
    const Modifiers& modifiers = calculator.modifiers();
    return std::string(modifiers.inverse ? "I" : "") + (modifiers.hyperbolic ? "H" : "") +
           (modifiers.recall ? "R" : "") + std::to_string(static_cast<int>(modifiers.store));
}

TEST(KeyPress, LeavesOfTheModifiersWhatItsKindLeaves) {
    KeyScript script;
    DYXCalculator& calculator = script.calculator;
    const auto press = [&](const std::u16string& command, bool isRecallArmed) {
        calculator.setModifiers({true, true, isRecallArmed, Store::add});
        calculator.press(commandFromString(command));
        return modifiersOf(calculator);
    };
    const std::pair<std::u16string, std::string> rows[]{
        {u"modiARC ", "H0"}, {u"modiHYP ", "I0"}, {u"memoRCL ", "0"}, {u"memoSTO ", "1"},
        {u"memoSTO+", "0"},  {u"memoSTO-", "3"},  {u"memoSTO*", "4"}, {u"memoSTO/", "5"},
        {u"memoSTOC", "0"},  {u"unitSQR ", "0"},  {u"dataN001", "0"}, {u"anything else", "0"}};
    for (const auto& [command, left] : rows) {
        EXPECT_EQ(press(command, true), left) << testing::PrintToString(command);
    }
    EXPECT_EQ(press(u"memoRCL ", false), "R0");
}

TEST(Memory, StoresRecallsAndCalculates) {
    // Each row starts with 2 in register 3.
    const struct {
        std::string_view keys;
        double register3, x;
    } rows[]{{"5 STO M03", 5, 5},     {"5 STO+ M03", 7, 5},       {"5 STO- M03", -3, 5},
             {"5 STO* M03", 10, 5},   {"4 STO/ M03", 0.5, 4},     {"5 RCL M03", 2, 2},
             {"1 5 S03", 15, 15},     {"1 5 +03", 17, 15},        {"1 5 -03", -13, 15},
             {"1 5 *03", 30, 15},     {"1 6 /03", 0.125, 16},     {"5 STO+ R03", 2, 2},
             {"5 STO STO M03", 2, 2}, {"5 STO+ STO* M03", 10, 5}, {"5 STO+ STOC M03", 2, 2},
             {"5 CLMM M03", 0, 0},    {"5 CLAL", 0, 0},           {"5 STO M03 M04", 5, 0}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.keys);
        KeyScript script;
        edit(script.calculator, [](CalculatorState& state) { state.mem[3] = 2; });
        script.press(row.keys);
        EXPECT_EQ(script.calculator.mem()[3], row.register3);
        EXPECT_EQ(script.x(), row.x);
        EXPECT_EQ(script.calculator.modifiers().store, Store::nothing);
    }
}

TEST(Memory, KeysReachTwentyRegistersAndDirectFormsNineteen) {
    for (const auto& [key, number] : {std::pair{"M00", 0},
                                      {"M19", 19},
                                      {"M20", -1},
                                      {"M99", -1},
                                      {"S00", -1},
                                      {"S01", 1},
                                      {"S19", 19},
                                      {"S20", -1}}) {
        KeyScript script;
        script.press(std::string("5 STO ") + key);
        std::array<double, kMemoryRegisters> expected{};
        if (number >= 0) {
            expected.at(static_cast<std::size_t>(number)) = 5;
        }
        EXPECT_EQ(script.calculator.mem(), expected) << key;
        EXPECT_EQ(script.calculator.modifiers(), Modifiers()) << key;
    }
}

TEST(Functions, TheKeysOfPowersFollowTheOrderOfOperands) {
    const struct {
        std::string_view keys;
        double baseInY, baseInX;
    } rows[]{{"2 ENTER 1 0 ^", 1024, 100}, {"4 ENTER 1 6 ~", 2, 0.5}};
    for (const auto& row : rows) {
        for (const bool isBaseInY : {true, false}) {
            KeyScript script;
            script.calculator.setUseHPStylePowerAndLogs(isBaseInY);
            script.press(row.keys);
            EXPECT_EQ(script.x(), isBaseInY ? row.baseInY : row.baseInX) << row.keys;
        }
    }
}

TEST(Functions, ARandomNumberLiesBetweenZeroAndOne) {
    KeyScript script;
    double sum = 0;
    for (int count = 0; count < 1000; ++count) {
        script.press("RAND");
        EXPECT_TRUE(script.x() >= 0 && script.x() <= 1);
        sum += script.x();
    }
    EXPECT_NEAR(sum, 500, 40);
}

TEST(UnknownCommands, ChangeNothingAndAreRecorded) {
    for (const std::string category :
         {"what", "unit", "bina", "trin", "quad", "cons", "stac", "null", "data"}) {
        SCOPED_TRACE(category);
        KeyScript script;
        script.setStack(7, 2, 3, 4);
        script.press("5 6 " + category + "ABCD");
        EXPECT_EQ(script.line(), "|56||");
        EXPECT_EQ(script.calculator.stack().reg, (std::array<double, 4>{7, 7, 2, 3}));
        EXPECT_EQ(script.beeps(), 0);
        EXPECT_EQ(script.calculator.lastCommand().action, fourCC("ABCD"));
    }
}

TEST(UnknownModes, ShowAndTakeNumbersAsFixDoes) {
    using Numbers = std::numeric_limits<std::int32_t>;
    for (const std::int32_t number : {mode::count, -1, Numbers::max(), Numbers::min()}) {
        KeyScript script;
        script.inMode(number);
        script.press("1 2 ENTER 3 +");
        EXPECT_EQ(script.line(), "|15.0000||") << number;
        EXPECT_EQ(script.calculator.xDisplay().inputMode(), number);
    }
}

}  // namespace
}  // namespace talvex
