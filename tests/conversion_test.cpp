// Category "conv": every unit there and back, and when a key writes the quantity or reads it.

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <utility>

#include "core/converter_table.h"
#include "display/ascii_text.h"
#include "key_script.h"
#include "numeric/DYXnan.h"
#include "same_bits.h"

namespace talvex {
namespace {

Comand commandOf(const ConverterRow& row) {
    return {.category = fourCC("conv"), .action = row.action, .group = row.group.code};
}

// The second unit's number for a number of the first.
double converted(double value, const std::string& from, const std::string& to) {
    KeyScript script;
    script.setStack(value, 0, 0, 0);
    script.run("conv" + from);
    script.run("conv" + to);
    return script.x();
}

TEST(Units, EachGoesThereAndBackByItsKeyThroughTheRegisterOfItsGroup) {
    std::map<std::uint32_t, std::size_t> registers;
    for (const ConverterRow& row : converters()) {
        SCOPED_TRACE(testing::PrintToString(stringFromCommand(commandOf(row))));
        const std::size_t index = row.group.index;
        EXPECT_EQ(registers.emplace(row.group.code, index).first->second, index);
        for (const double value : {0.25, 17.5}) {
            KeyScript script;
            script.setStack(value, 1, 2, 3);
            script.calculator.doCommand(commandOf(row));
            EXPECT_EQ(script.x(), value);
            EXPECT_EQ(script.calculator.converted().at(index), row.toBase({}, value));
            script.calculator.doCommand(commandOf(row));
            if (row.action != fourCC("TypB")) {  // whose iteration finds another temperature
                EXPECT_NEAR(script.x() / value, 1, 1e-9);
            }
            EXPECT_EQ(script.calculator.stack().reg, (std::array<double, 4>{script.x(), 1, 2, 3}));
            EXPECT_EQ(script.calculator.stack().lastX, 0);
        }
        EXPECT_TRUE(isSame(row.toBase({}, DYXnan('L')), DYXnan('L')));
        EXPECT_TRUE(isSame(row.fromBase({}, DYXnan('L')), DYXnan('L')));
    }
    std::set<std::size_t> indices;
    for (const auto& [code, index] : registers) {
        EXPECT_TRUE(indices.insert(index).second) << code;
    }
}

// Known relations, independent of the factors of the table: 12 inches are one foot.
TEST(Units, AgreeWithEachOther) {
    const std::pair<std::string, const char*> groups[]{
        {"len ", "12 inch 1 feet  3 feet 1 yard  5280 feet 1 mile  1000 mils 1 inch  10 Angs 1 nm"},
        {"area", "640 acre 1 mi^2  144 in^2 1 ft^2"},
        {"volu", "4 qrts 1 gals  42 gals 1 barr  16 Tbs 1 cups  27 ft^3 1 yd^3"},
        {"mass", "16 oz 1 lbs  2000 lbs 1 tons  7000 gran 1 lbs"},
        {"mden", "1 g/cm 1 kg/l"},
        {"pres", "760 mmHg 1 Atm"},
        {"forc", "2000 Flbs 1 FTon  16 Foz 1 Flbs"},
        {"angl", "60 ' 1 degs  60 \" 1 '  400 grds 1 revs  24 hour 1 revs  1000 mrad 1 rads"},
        {"angl", "100 %grd 45 degs  1 slop 45 degs  45 degs 100 %grd"},
        {"time", "7 days 1 week  4 kHz 0.25 msec"},
        {"sped", "1 knot 1.852 kph"},
        {"temp", "32 fahr 0 cent  100 cent 212 fahr  0 kelv -273.15 cent  491.67 rank 0 cent"},
        {"powe", "30 dBm 1 Watt  0 dBm 1 mW  120 dB50 20 kW  75 Watt 97.501225267834 dB75"},
        {"ener", "8065.5447 1/cm 1 eV  1 eV 1.2398419 Eum  1 kWHr 2.24694347e19 MeV"}};
    for (const auto& [group, relations] : groups) {
        std::istringstream words(relations);
        std::string from;
        std::string to;
        for (double value = 0, result = 0; words >> value >> from >> result >> to;) {
            from.resize(4, ' ');
            to.resize(4, ' ');
            EXPECT_NEAR(converted(value, group + from, group + to), result,
                        3e-8 * std::fabs(result))
                << value << from << to;
        }
        EXPECT_TRUE(words.eof());
    }
}

TEST(UnitKeys, WriteFirstAndReadNextUnlessStoreOrRecallIsArmed) {
    const struct {
        const char* before;
        bool reads;
    } rows[]{{"", false},
             {"convlen m   ", true},
             {"convlen m   convlen m   ", true},
             {"convlen m   convmasskg  ", false},
             {"convlen m   dataENT ", false},
             {"convlen m   modiARC ", false},
             {"memoRCL ", true},
             {"convlen m   memoSTO ", false},
             {"convlen m   memoSTO+convlen m   ", true},
             {"memoRCL memoSTO ", true},
             {"convlen m   memoRCL ", true},
             {"convlen what", true},
             {"convWHATfeet", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.before);
        KeyScript script;
        for (std::string_view rest = row.before; !rest.empty();) {
            const std::size_t length = rest.starts_with("conv") ? 12 : 8;
            script.run(rest.substr(0, length));
            rest.remove_prefix(length);
        }
        script.setStack(7, 0, 0, 0);
        edit(script.calculator, [](CalculatorState& state) { state.converted.fill(3); });
        script.run("convlen cm  ");
        EXPECT_EQ(script.x(), row.reads ? 300 : 7);
        EXPECT_EQ(script.calculator.converted()[1], row.reads ? 3 : 0.07);
    }
    KeyScript entry;
    entry.run("dataN005");
    entry.run("convlen cm  ");
    EXPECT_EQ(entry.calculator.converted()[1], 0.05);
    EXPECT_EQ(entry.calculator.inputState(), InputState::lifting);
}

TEST(UnitKeys, GoThroughZeroInfinityAndErrors) {
    const struct {
        double value;
        const char *from, *to;
        double result;
    } rows[]{{0, "timeHz  ", "timesec ", kInfinity},    {0, "timeHz  ", "timekHz ", 0},
             {90, "angldegs", "angl%grd", kInfinity},   {-90, "angldegs", "anglslop", -kInfinity},
             {270, "angldegs", "anglslop", -kInfinity}, {450, "angldegs", "angl%grd", kInfinity},
             {180, "angldegs", "anglslop", 0},          {-0.0, "angldegs", "angl%grd", 0},
             {kInfinity, "angldegs", "anglslop", 0},    {0, "poweWatt", "powedBm ", -kInfinity},
             {-1, "poweWatt", "powedB50", DYXnan('\0')}};
    for (const auto& row : rows) {
        EXPECT_TRUE(isSame(converted(row.value, row.from, row.to), row.result))
            << row.value << row.from << row.to;
    }
}

}  // namespace
}  // namespace talvex
