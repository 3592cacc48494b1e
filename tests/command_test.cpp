// Commands as text, the press of a key and its modifiers, functions and constants, and codes that
// nobody knows.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <numbers>

#include "core/function_tables.h"
#include "display/ascii_text.h"
#include "key_script.h"

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
    EXPECT_EQ(modifiers(), (Modifiers{false, false, false, 1}))
        << "the title counts where there is no other";
}

TEST_F(KeyPress, AloneClearsModifiers) {
    script_.press("ARC HYP RCL STO- 1 ENTER +");
    EXPECT_EQ(modifiers(), (Modifiers{true, true, true, 3}));
    press("dataENT ");
    EXPECT_EQ(modifiers(), Modifiers{});
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

// In degrees, with 30 in Z and 40 in T.
struct FunctionCase {
    std::string_view command;
    double y;
    double x;
    double result;
};

void expectFunctions(std::span<const FunctionCase> rows, bool takesY) {
    for (const FunctionCase& row : rows) {
        SCOPED_TRACE(row.command);
        KeyScript script;
        script.calculator.angleMode = 1;
        script.setStack(row.x, row.y, 30, 40);
        script.run(row.command);
        if (script.x() != row.result) {
            EXPECT_NEAR(script.x(), row.result, 1e-14 * std::max(1.0, std::fabs(row.result)));
        }
        EXPECT_EQ(script.y(), takesY ? 30 : row.y);
        EXPECT_EQ(script.calculator.stack().reg[2], takesY ? 40 : 30);
        EXPECT_EQ(script.calculator.stack().reg[3], 40);
        EXPECT_EQ(script.calculator.stack().lastX, row.x);
        EXPECT_EQ(script.calculator.inputState(), InputState::lifting);
    }
}

TEST(Functions, OfOneOperandAnswerToTheirCodes) {
    const double ln2 = std::numbers::ln2;
    const std::array rows{FunctionCase{"unitSIN ", 20, 30, 0.5},
                          FunctionCase{"unitASIN", 20, 0.5, 30},
                          FunctionCase{"unitCOS ", 20, 60, 0.5},
                          FunctionCase{"unitACOS", 20, 0.5, 60},
                          FunctionCase{"unitTAN ", 20, 45, 1},
                          FunctionCase{"unitATAN", 20, 1, 45},
                          FunctionCase{"unitCSC ", 20, 30, 2},
                          FunctionCase{"unitACSC", 20, 2, 30},
                          FunctionCase{"unitSEC ", 20, 60, 2},
                          FunctionCase{"unitASEC", 20, 2, 60},
                          FunctionCase{"unitCOT ", 20, 45, 1},
                          FunctionCase{"unitACOT", 20, 1, 45},
                          FunctionCase{"unitGSIN", 20, 30, 0.5},
                          FunctionCase{"unitGCOS", 20, 60, 0.5},
                          FunctionCase{"unitGTAN", 20, 45, 1},
                          FunctionCase{"unitGCSC", 20, 30, 2},
                          FunctionCase{"unitGSEC", 20, 60, 2},
                          FunctionCase{"unitGCOT", 20, 45, 1},
                          FunctionCase{"unitSINH", 20, ln2, 0.75},
                          FunctionCase{"unitSNHI", 20, 0.75, ln2},
                          FunctionCase{"unitCOSH", 20, ln2, 1.25},
                          FunctionCase{"unitCSHI", 20, 1.25, ln2},
                          FunctionCase{"unitTANH", 20, ln2, 0.6},
                          FunctionCase{"unitTNHI", 20, 0.6, ln2},
                          FunctionCase{"unitCSCH", 20, ln2, 4.0 / 3},
                          FunctionCase{"unitCCHI", 20, 4.0 / 3, ln2},
                          FunctionCase{"unitSECH", 20, ln2, 0.8},
                          FunctionCase{"unitSCHI", 20, 0.8, ln2},
                          FunctionCase{"unitCOTH", 20, ln2, 5.0 / 3},
                          FunctionCase{"unitCTHI", 20, 5.0 / 3, ln2},
                          FunctionCase{"unitCSCH", 20, 0, INFINITY},
                          FunctionCase{"unitCOTH", 20, 0, INFINITY},
                          FunctionCase{"unitTNHI", 20, 1, INFINITY},
                          FunctionCase{"unitSQR ", 20, -3, 9},
                          FunctionCase{"unitROOT", 20, 9, 3},
                          FunctionCase{"unitABS ", 20, -3, 3},
                          FunctionCase{"unitINV ", 20, 4, 0.25},
                          FunctionCase{"unitEXP ", 20, ln2, 2},
                          FunctionCase{"unitNLOG", 20, 2, ln2},
                          FunctionCase{"unitLG10", 20, 1000, 3},
                          FunctionCase{"unitLOG2", 20, 8, 3},
                          FunctionCase{"unit2^X ", 20, 10, 1024},
                          FunctionCase{"unit10^X", 20, 3, 1000},
                          FunctionCase{"unitGAMA", 20, 5, 24},
                          FunctionCase{"unitLGAM", 20, 5, std::log(24)},
                          FunctionCase{"unitFLOR", 20, -1.5, -2},
                          FunctionCase{"unitCEIL", 20, -1.5, -1},
                          FunctionCase{"unitROND", 20, 2.5, 3},
                          FunctionCase{"unitNRBY", 20, 2.5, 2},
                          FunctionCase{"unitFRAC", 20, -1.25, -0.25},
                          FunctionCase{"unitINT ", 20, -1.5, -1},
                          FunctionCase{"unitRINT", 20, 3.5, 4},
                          FunctionCase{"unitJ0  ", 20, 1, 0.7651976865579666},
                          FunctionCase{"unitJ1  ", 20, 1, 0.44005058574493355},
                          FunctionCase{"unitY0  ", 20, 1, 0.08825696421567698},
                          FunctionCase{"unitY1  ", 20, 1, -0.7812128213002887},
                          FunctionCase{"unitERF ", 20, 1, 0.8427007929497149},
                          FunctionCase{"unitERFC", 20, 1, 0.15729920705028513},
                          FunctionCase{"unitCBRT", 20, 27, 3}};
    expectFunctions(rows, false);
}

TEST(Functions, OfTwoOperandsAnswerToTheirCodes) {
    const std::array rows{
        FunctionCase{"bina-   ", 10, 3, 7},    FunctionCase{"bina+   ", 10, 3, 13},
        FunctionCase{"bina/   ", 10, 4, 2.5},  FunctionCase{"bina*   ", 10, 3, 30},
        FunctionCase{"binay~x ", 8, 2, 3},     FunctionCase{"binax^y ", 10, 2, 1024},
        FunctionCase{"bina~   ", 10, 1000, 3}, FunctionCase{"bina^   ", 2, 10, 1024},
        FunctionCase{"binaMOD ", -7, 3, -1},   FunctionCase{"binaDIV ", -7, 3, -2},
        FunctionCase{"binaREM ", -7, 3, 2},    FunctionCase{"binaHYPT", 3, 4, 5},
        FunctionCase{"binaMEAN", 2, 8, 4},     FunctionCase{"binaDEL%", 50, 60, 20}};
    expectFunctions(rows, true);
}

TEST(Functions, ARandomNumberLiesBetweenZeroAndOneBothIncluded) {
    struct OneNumber final : Platform {
        void NSBeep() override {}
        void NSLog(const std::u16string& /*line*/) override {}
        std::uint32_t arc4random() override { return number; }
        [[nodiscard]] NSNumberFormat numberFormat() const override { return {}; }
        std::uint32_t number = 0;
    };
    OneNumber platform;
    DYXCalculator calculator(platform);
    calculator.doCommand(commandFromString(u"nullRAND"));
    EXPECT_EQ(calculator.stack().x(), 0.0);
    platform.number = 0x33333333;
    calculator.doCommand(commandFromString(u"nullRAND"));
    EXPECT_EQ(calculator.stack().x(), 0.2);
    platform.number = 0xFFFFFFFF;
    calculator.doCommand(commandFromString(u"nullRAND"));
    EXPECT_EQ(calculator.stack().reg, (std::array<double, 4>{1.0, 0.2, 0.0, 0.0}));
    EXPECT_EQ(calculator.stack().lastX, 0.2);
}

double constant(std::string_view action) {
    KeyScript script;
    script.setStack(7, 2, 3, 4);
    script.run("cons" + std::string(action));
    EXPECT_EQ(script.y(), 7) << action;
    return script.x();
}

// The constants that others follow from, and those others; the recommended values agree with the
// relations between them to about their uncertainty.
TEST(Constants, AgreeWithEachOther) {
    using std::numbers::pi;
    struct Row {
        std::string_view action;
        double expected;
        double tolerance = 1e-15;
    };
    const double h = 6.62606896e-34;
    const double charge = 1.602176487e-19;
    const double c = 299792458.0;
    const double mass = 9.10938215e-31;
    const double boltzmann = 1.3806504e-23;
    const double mu0 = 4e-7 * pi;
    const double eps0 = 1 / (mu0 * c * c);
    const double alpha = charge * charge / (2 * eps0 * h * c);
    const double magneton = charge * h / (4 * pi * mass);
    const std::array rows{
        Row{"PI  ", pi},
        Row{"2PI ", 2 * pi},
        Row{"4PI ", 4 * pi},
        Row{"PI/2", pi / 2},
        Row{"PI/4", pi / 4},
        Row{"2/PI", 2 / pi},
        Row{"1/PI", 1 / pi},
        Row{"1/2P", 0.5 / pi},
        Row{"2/SP", 2 / std::sqrt(pi)},
        Row{"e   ", std::numbers::e},
        Row{"1/e ", 1 / std::numbers::e},
        Row{"SQT2", std::sqrt(2.0)},
        Row{"1/S2", std::sqrt(0.5)},
        Row{"LN2 ", std::numbers::ln2},
        Row{"LN10", std::numbers::ln10},
        Row{"L2e ", std::numbers::log2e},
        Row{"LOGe", std::numbers::log10e},
        Row{"GOLD", (1 + std::sqrt(5.0)) / 2},
        Row{"EULR", std::numbers::egamma},
        Row{"CATL", 0.915965594177219015},
        Row{"APRY", 1.202056903159594285},
        Row{"Kb  ", boltzmann},
        Row{"gasC", boltzmann * 6.02214179e+23, 3e-6},
        Row{"h   ", h},
        Row{"e-  ", charge},
        Row{"c   ", c},
        Row{"mub ", magneton, 1e-7},
        Row{"Z0  ", mu0 * c, 1e-11},
        Row{"ge  ", -2 * 1.00115965218111, 1e-12},
        Row{"gre ", 2.0023193043622 * magneton * 2 * pi / h, 1e-7},
        Row{"KJ  ", 2 * charge / h, 1e-7},
        Row{"Me  ", mass},
        Row{"Mp  ", 1836.15267247 * mass, 1e-7},
        Row{"Mn  ", 1838.6836605 * mass, 1e-7},
        Row{"mass", 1e-3 / 6.02214179e+23, 1e-7},
        Row{"comp", h / (mass * c), 1e-7},
        Row{"NA  ", 6.02214179e+23},
        Row{"G   ", 6.67428e-11},
        Row{"Rydb", alpha * alpha * mass * c / (2 * h), 1e-7},
        Row{"hbar", h / (2 * pi)},
        Row{"mu0 ", mu0},
        Row{"eps0", eps0, 1e-9},
        Row{"stbz", 2 * std::pow(pi, 5) * std::pow(boltzmann, 4) / (15 * std::pow(h, 3) * c * c),
            1e-6},
        Row{"fnst", alpha, 1e-7},
        Row{"infs", 1 / 0.0072973525376, 1e-10},
        Row{"phi0", h / (2 * charge), 1e-7},
        Row{"qcon", 2 * charge * charge / h, 1e-7},
        Row{"iqcn", h / (2 * charge * charge), 1e-7}};
    EXPECT_EQ(rows.size(), constants().size());
    for (const Row& row : rows) {
        EXPECT_NEAR(constant(row.action) / row.expected, 1.0, row.tolerance) << row.action;
    }
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

TEST(UnknownModes, OfALineLeaveItAsItWas) {
    KeyScript script;
    script.press("1 2 ENTER");
    const std::string before = script.line();
    for (const std::int32_t number : {13, -1, std::numeric_limits<std::int32_t>::max(),
                                      std::numeric_limits<std::int32_t>::min()}) {
        script.inMode(number);
        script.press("WHAT?");
        EXPECT_EQ(script.line(), before) << number;
        script.press("3");
        EXPECT_EQ(script.beeps(), 1) << number;
        EXPECT_EQ(script.x(), 12) << number;
    }
}

}  // namespace
}  // namespace talvex
