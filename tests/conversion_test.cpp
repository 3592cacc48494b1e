// Category "conv": every unit there and back, and when a key writes the quantity or reads it.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <string>

#include "core/converter_table.h"
#include "display/ascii_text.h"
#include "key_script.h"
#include "numeric/DYXnan.h"
#include "same_bits.h"

namespace talvex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string textOf(std::uint32_t code) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8) {
        text += static_cast<char>(code >> static_cast<unsigned>(shift));
    }
    return text;
}

std::string commandOf(const ConverterRow& row) {
    return "conv" + textOf(row.group.code) + textOf(row.action);
}

bool isThermocouple(const ConverterRow& row) { return textOf(row.action).substr(0, 3) == "Typ"; }

TEST(Units, StandInFifteenGroupsWithARegisterEach) {
    std::map<std::string, std::pair<std::size_t, int>> groups;
    for (const ConverterRow& row : converters()) {
        auto& [index, count] = groups[textOf(row.group.code)];
        EXPECT_TRUE(count == 0 || index == row.group.index) << textOf(row.group.code);
        index = row.group.index;
        ++count;
    }
    const std::map<std::string, std::pair<std::size_t, int>> expected{
        {"prfx", {0, 14}},  {"len ", {1, 18}},  {"ener", {2, 20}}, {"mden", {3, 10}},
        {"time", {4, 15}},  {"area", {5, 10}},  {"volu", {6, 15}}, {"sped", {7, 7}},
        {"accl", {8, 3}},   {"powe", {9, 11}},  {"forc", {10, 6}}, {"pres", {11, 8}},
        {"temp", {12, 12}}, {"mass", {13, 14}}, {"angl", {14, 12}}};
    EXPECT_EQ(groups, expected);
}

TEST(Units, EachGoesThereAndBackByItsKey) {
    for (const ConverterRow& row : converters()) {
        SCOPED_TRACE(commandOf(row));
        for (const double value : {0.25, 3.0, 17.5}) {
            KeyScript script;
            script.setStack(value, 1, 2, 3);
            script.run(commandOf(row));
            const double quantity = script.calculator.converted().at(row.group.index);
            EXPECT_EQ(script.x(), value);
            EXPECT_EQ(quantity, row.toBase({}, value));
            script.run(commandOf(row));
            if (textOf(row.action) != "TypB") {  // whose iteration finds another temperature
                EXPECT_NEAR(script.x() / value, 1, isThermocouple(row) ? 1e-9 : 1e-12);
            }
            EXPECT_EQ(script.calculator.stack().reg, (std::array<double, 4>{script.x(), 1, 2, 3}));
            EXPECT_EQ(script.calculator.stack().lastX, 0);
        }
    }
}

// Known relations, independent of the factors of the table.
TEST(Units, AgreeWithEachOther) {
    const struct {
        double value;
        const char *from, *to;
        double result;
    } rows[]{{12, "len inch", "len feet", 1},
             {3, "len feet", "len yard", 1},
             {5280, "len feet", "len mile", 1},
             {1000, "len mils", "len inch", 1},
             {10, "len Angs", "len nm  ", 1},
             {640, "areaacre", "areami^2", 1},
             {144, "areain^2", "areaft^2", 1},
             {4, "voluqrts", "volugals", 1},
             {42, "volugals", "volubarr", 1},
             {16, "voluTbs ", "volucups", 1},
             {27, "voluft^3", "voluyd^3", 1},
             {1, "spedknot", "spedkph ", 1.852},
             {16, "massoz  ", "masslbs ", 1},
             {2000, "masslbs ", "masstons", 1},
             {7000, "massgran", "masslbs ", 1},
             {760, "presmmHg", "presAtm ", 1},
             {2000, "forcFlbs", "forcFTon", 1},
             {16, "forcFoz ", "forcFlbs", 1},
             {60, "angl'   ", "angldegs", 1},
             {60, "angl\"   ", "angl'   ", 1},
             {400, "anglgrds", "anglrevs", 1},
             {24, "anglhour", "anglrevs", 1},
             {1000, "anglmrad", "anglrads", 1},
             {7, "timedays", "timeweek", 1},
             {4, "timekHz ", "timemsec", 0.25},
             {1, "enereV  ", "enerEum ", 1.2398419},
             {1, "enerkWHr", "enerMeV ", 2.24694347e19},
             {8065.5447, "ener1/cm", "enereV  ", 1},
             {1, "mdeng/cm", "mdenkg/l", 1},
             {80, "powedB75", "poweWatt", 4.0 / 3.0},
             {32, "tempfahr", "tempcent", 0},
             {100, "tempcent", "tempfahr", 212},
             {0, "tempkelv", "tempcent", -273.15},
             {491.67, "temprank", "tempcent", 0},
             {30, "powedBm ", "poweWatt", 1},
             {0, "powedBm ", "powemW  ", 1},
             {120, "powedB50", "powekW  ", 20},
             {100, "angl%grd", "angldegs", 45},
             {1, "anglslop", "angldegs", 45},
             {45, "angldegs", "angl%grd", 100}};
    for (const auto& row : rows) {
        KeyScript script;
        script.setStack(row.value, 0, 0, 0);
        script.run(std::string("conv") + row.from);
        script.run(std::string("conv") + row.to);
        EXPECT_NEAR(script.x(), row.result, 3e-8 * std::fabs(row.result)) << row.from << row.to;
    }
}

// Each step is a key, and what it leaves in X and in the register of lengths, in metres.
TEST(UnitKeys, WriteFirstAndReadNext) {
    constexpr double kFoot = 0.30479999999999996;
    struct Step {
        const char* command;
        double x, metres;
    };
    const Step steps[]{
        {"dataN005", 0, 0},
        {"convlen feet", 5, 5 * kFoot},
        {"convlen m   ", 5 * kFoot, 5 * kFoot},
        {"convlen inch", 5 * kFoot / 0.0254, 5 * kFoot},
        {"convlen feet", 5 * kFoot / kFoot, 5 * kFoot},
        {"convmasskg  ", 5 * kFoot / kFoot, 5 * kFoot},          // another group: a write
        {"convlen m   ", 5 * kFoot / kFoot, 5 * kFoot / kFoot},  // and back: a write again
        {"dataN006", 5 * kFoot / kFoot, 5 * kFoot / kFoot},
        {"convlen m   ", 6, 6},  // the digit came between
        {"convlen what", 6, 6},  // no unit of the group, yet it is the command before
        {"convlen cm  ", 600, 6},
        {"modiARC ", 600, 6},
        {"convlen m   ", 600, 600},
        {"memoSTO ", 600, 600},
        {"convlen km  ", 600, 600'000},
        {"convlen m   ", 600'000, 600'000},
    };
    KeyScript script;
    NSButton key;
    for (const Step& step : steps) {
        SCOPED_TRACE(step.command);
        key.setAlternateTitle(asciiText(step.command));
        script.calculator.takeDYXButtonFrom(key);
        EXPECT_EQ(script.x(), step.x);
        EXPECT_EQ(script.calculator.converted()[1], step.metres);
    }
    EXPECT_EQ(script.calculator.inputState(), InputState::lifting);
}

TEST(UnitKeys, FollowAnArmedStoreOrRecall) {
    const struct {
        const char* before;
        const char* after;
        bool reads;
    } rows[]{{"memoRCL ", "", true},
             {"convlen m   ", "memoSTO ", false},
             {"memoSTO+", "", false},
             {"memoRCL ", "memoSTO ", true},
             {"convlen m   ", "memoRCL ", true},
             {"convmasskg  ", "", false},
             {"convlen what", "", true},
             {"convWHATfeet", "", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(std::string(row.before) + row.after);
        KeyScript script;
        for (const std::string_view command : {row.before, row.after}) {
            if (!command.empty()) {
                script.run(command);
            }
        }
        script.setStack(7, 0, 0, 0);
        script.calculator.converted().fill(3);
        script.run("convlen cm  ");
        EXPECT_EQ(script.x(), row.reads ? 300 : 7);
        EXPECT_EQ(script.calculator.converted()[1], row.reads ? 3 : 0.07);
    }
    // Straight after a unit of the group an armed store writes where the key alone would read.
    KeyScript script;
    script.setStack(7, 0, 0, 0);
    script.run("convlen m   ");
    script.calculator.stack().x() = 9;
    script.calculator.setStore(1);
    script.run("convlen m   ");
    EXPECT_EQ(script.calculator.converted()[1], 9);
    script.calculator.stack().x() = 11;
    script.calculator.setStore(2);
    script.run("convlen m   ");
    EXPECT_EQ(script.x(), 9);
}

TEST(UnitKeys, GoThroughZeroInfinityAndErrors) {
    const struct {
        double value;
        const char *from, *to;
        double quantity, result;
    } rows[]{{0, "timeHz  ", "timesec ", kInfinity, kInfinity},
             {0, "timeHz  ", "timekHz ", kInfinity, 0},
             {2, "timeHz  ", "timekHz ", 0.5, 0.002},
             {90, "angldegs", "angl%grd", 90, kInfinity},
             {-90, "angldegs", "anglslop", -90, -kInfinity},
             {270, "angldegs", "anglslop", 270, -kInfinity},
             {450, "angldegs", "angl%grd", 450, kInfinity},
             {180, "angldegs", "anglslop", 180, 0},
             {-0.0, "angldegs", "angl%grd", -0.0, 0},
             {kInfinity, "angldegs", "anglslop", kInfinity, 0},
             {45, "angldegs", "angl%grd", 45, std::tan(45 * 3.141592653589793 / 180) * 100},
             {0, "poweWatt", "powedBm ", 0, -kInfinity},
             {-1, "poweWatt", "powedB50", -1, DYXnan('\0')},
             {3, "prfxcent", "prfxone ", 0.03, 0.03},
             {3, "tempcent", "tempcent", 3, 3},
             {1000, "tempcent", "tempTypK", 1000, 41.27560645631388}};
    for (const auto& row : rows) {
        KeyScript script;
        script.setStack(row.value, 0, 0, 0);
        script.run(std::string("conv") + row.from);
        const std::string_view group(row.from, 4);
        for (const ConverterRow& unit : converters()) {
            if (textOf(unit.group.code) == group) {
                EXPECT_TRUE(isSame(script.calculator.converted()[unit.group.index], row.quantity));
            }
        }
        script.run(std::string("conv") + row.to);
        EXPECT_TRUE(isSame(script.x(), row.result)) << row.from << row.to;
    }
    for (const ConverterRow& row : converters()) {
        for (const char code : {'\0', 'L', '?'}) {
            EXPECT_TRUE(isSame(row.toBase({}, DYXnan(code)), DYXnan(code))) << commandOf(row);
            EXPECT_TRUE(isSame(row.fromBase({}, DYXnan(code)), DYXnan(code))) << commandOf(row);
        }
    }
}

}  // namespace
}  // namespace talvex
