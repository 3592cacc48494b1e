#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "core/DYXCalculator.h"
#include "display/DYXOutputDisplay.h"
#include "display/ZUMutableStringExtensions.h"
#include "display/display_modes.h"
#include "numeric/DYXnan.h"
#include "shown_line.h"

namespace talvex {
namespace {

using Text = std::u16string;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(PlainFormats, GroupBySizeButScientificAlwaysByThree) {
    DYXOutputDisplay line(DYXCalculator::plainFields());
    line.setGroupingSeparator(u"_");
    const std::pair<std::uint32_t, Text> rows[]{{0, u"12345.6789"},
                                                {1, u"1_2_3_4_5.6_7_8_9"},
                                                {2, u"1_23_45.67_89"},
                                                {4, u"1_2345.6789"},
                                                {4'000'000'000U, u"12345.6789"}};
    for (const auto& [size, text] : rows) {
        line.setGroupingDigits(size);
        line.setFixedTo(12345.6789);
        EXPECT_EQ(shownBy(line), (Shown{text})) << size;
        line.setScientificTo(12345.6789);
        EXPECT_EQ(shownBy(line), (Shown{u"1.234_6", u"04"})) << size;
    }
}

TEST(DigitGroups, StandBehindFullGroupsOnly) {
    using namespace ZUMutableStringExtensions;
    const struct {
        Text text, separator;
        std::uint32_t size;
        Text decimals, integers;
    } rows[]{
        {u"123456.123456", u"_", 3, u"123456.123_456", u"123_456.123456"},
        {u"1234,1234", u"ab", 3, u"1234,123ab4", u"1ab234,1234"},
        {u"1234567", u"_", 3, u"1234567", u"1_234_567"},
        {u"1234.", u"_", 2, u"1234.", u"12_34."},
        {u"1.23", u"", 1, u"1.23", u"1.23"},
        {u"12.34", u"_", 0, u"12.34", u"12.34"},
        {u"", u"_", 3, u"", u""},
        {u".1234", u"_", 3, u".123_4", u".1234"},
    };
    for (const auto& row : rows) {
        Text decimals = row.text;
        insertDecimalSeparatorEvery(decimals, row.separator, row.size);
        EXPECT_EQ(decimals, row.decimals);
        Text integers = row.text;
        insertIntegerSeparatorEvery(integers, row.separator, row.size);
        EXPECT_EQ(integers, row.integers);
    }
    Text text = u"a--b---c";
    replaceOccurancesOfStringWithCharacter(text, u"--", u'-');
    EXPECT_EQ(text, u"a-b--c");
}

TEST(OutputDisplay, ShowsErrorsAndInfinitiesAsWordsInAnyMode) {
    DYXOutputDisplay line(DYXCalculator::plainFields());
    for (const std::int32_t number : {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, -1}) {
        SCOPED_TRACE(number);
        line.setOutputMode(mode::SCI);
        line.setOutputTo(-1e-20);
        line.statusField()->setStringValue(u"old");
        line.setTextColor(DYXOutputDisplay::errorColor());
        line.setOutputMode(number);
        line.setOutputTo(-DYXnan('L'));
        EXPECT_EQ(shownBy(line), (Shown{u"log error"}));
        EXPECT_EQ(line.mantissaField()->textColor(), NSColor::black());
        line.setOutputTo(kInfinity);
        EXPECT_EQ(shownBy(line), (Shown{u"\u221E"}));
        line.setOutputTo(-kInfinity);
        EXPECT_EQ(shownBy(line), (Shown{u"\u221E", u"", u"", u"-"}));
    }
}

}  // namespace
}  // namespace talvex
