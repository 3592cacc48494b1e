// What each mode makes of a number: a suite for each mode.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "core/DYXCalculator.h"
#include "display/display_modes.h"
#include "display_format_tables.h"

namespace talvex {
namespace {

// A negative number differs by its sign slot alone, but for the modes that wrap or warn.
bool hasSignSlot(std::int32_t mode) { return mode <= mode::CAR || mode == mode::IRR; }

// A mode and a row of its table.
struct Case {
    std::int32_t mode;
    FormatRow row;
};

void PrintTo(const Case& item, std::ostream* out) {
    *out << item.row.number << " at " << item.row.digits << " digits";
}

class DisplayFormat : public testing::TestWithParam<Case> {};

TEST_P(DisplayFormat, FillsEverySlot) {
    const auto& [mode, row] = GetParam();
    DYXOutputDisplay line(DYXCalculator::plainFields());
    line.setOutputMode(mode);
    line.setDigits(row.digits);
    line.setDecimalSeparator(row.point);
    line.setIntegerGroupingSeparator(row.integerSeparator);
    line.setDecimalGroupingSeparator(row.decimalSeparator);
    line.setReduceCarpentryFractions(row.reducesFractions);
    line.setDisplayIrrationals(row.displaysIrrationals);
    for (const TextSlot& slot :
         {line.mantissaField(), line.mantissaSignField(), line.exponentField(),
          line.exponentSignField(), line.statusField()}) {
        slot->setStringValue(u"old");
    }
    line.setOutputTo(row.number);
    EXPECT_EQ(shownBy(line), row.shown);
    const bool warns = isIntegerMode(mode) && !row.shown.status.empty();
    EXPECT_EQ(line.mantissaField()->textColor(),
              warns ? DYXOutputDisplay::errorColor() : NSColor::black());
    if (hasSignSlot(mode) && row.number > 0) {
        Shown negative = row.shown;
        negative.sign.assign(1, u'-');
        line.setOutputTo(-row.number);
        EXPECT_EQ(shownBy(line), negative);
    }
}

std::string rowName(const testing::TestParamInfo<Case>& info) {
    std::string name = "row" + std::to_string(info.index) + "_";
    for (const char character : testing::PrintToString(info.param.row.number)) {
        name += character == '-'   ? 'm'
                : character == '.' ? 'p'
                : character == '+' ? '_'
                                   : character;
    }
    return name + "_digits" + std::to_string(info.param.row.digits);
}

auto casesOf(std::int32_t mode, const std::vector<FormatRow>& table) {
    std::vector<Case> cases;
    for (const FormatRow& row : table) {
        cases.push_back({mode, row});
    }
    return testing::ValuesIn(cases);
}

INSTANTIATE_TEST_SUITE_P(FIX, DisplayFormat, casesOf(mode::FIX, kFIXRows), rowName);
INSTANTIATE_TEST_SUITE_P(SCI, DisplayFormat, casesOf(mode::SCI, kSCIRows), rowName);
INSTANTIATE_TEST_SUITE_P(ENG, DisplayFormat, casesOf(mode::ENG, kENGRows), rowName);
INSTANTIATE_TEST_SUITE_P(MON, DisplayFormat, casesOf(mode::MON, kMONRows), rowName);
INSTANTIATE_TEST_SUITE_P(FRC, DisplayFormat, casesOf(mode::FRC, kFRCRows), rowName);
INSTANTIATE_TEST_SUITE_P(CAR, DisplayFormat, casesOf(mode::CAR, kCARRows), rowName);
INSTANTIATE_TEST_SUITE_P(HMS, DisplayFormat, casesOf(mode::HMS, kHMSRows), rowName);
INSTANTIATE_TEST_SUITE_P(DMS, DisplayFormat, casesOf(mode::DMS, kDMSRows), rowName);
INSTANTIATE_TEST_SUITE_P(HEX, DisplayFormat, casesOf(mode::HEX, kHEXRows), rowName);
INSTANTIATE_TEST_SUITE_P(OCT, DisplayFormat, casesOf(mode::OCT, kOCTRows), rowName);
INSTANTIATE_TEST_SUITE_P(DEC, DisplayFormat, casesOf(mode::DEC, kDECRows), rowName);
INSTANTIATE_TEST_SUITE_P(BIN, DisplayFormat, casesOf(mode::BIN, kBINRows), rowName);
INSTANTIATE_TEST_SUITE_P(IRR, DisplayFormat, casesOf(mode::IRR, kIRRRows), rowName);

}  // namespace
}  // namespace talvex
