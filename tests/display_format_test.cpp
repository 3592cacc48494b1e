// What each mode makes of a number, and the digit groups.

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <utility>

#include "display/DYXOutputDisplay.h"
#include "display_format_tables.h"
#include "numeric/DYXnan.h"
#include "same_bits.h"

namespace talvex {
namespace {

using Text = std::u16string;

// What a line shows, slot by slot.
struct Shown {
    Text mantissa = {};
    Text exponent = {};
    Text exponentSign = {};
    Text sign = {};
    Text status = {};
    bool operator==(const Shown&) const = default;
};

void PrintTo(const Shown& shown, std::ostream* out) {
    for (const auto& text : {shown.sign, shown.mantissa, shown.exponentSign, shown.exponent}) {
        *out << testing::PrintToString(text) << ' ';
    }
    *out << testing::PrintToString(shown.status);
}

Shown shownBy(const DYXOutputDisplay& line) {
    const auto textOf = [](const TextSlot& slot) { return slot ? slot->stringValue() : Text(); };
    return {.mantissa = textOf(line.mantissaField()),
            .exponent = textOf(line.exponentField()),
            .exponentSign = textOf(line.exponentSignField()),
            .sign = textOf(line.mantissaSignField()),
            .status = textOf(line.statusField())};
}

// The modes that neither wrap a negative number nor warn of it.
bool hasSignSlot(std::int32_t mode) { return mode <= mode::CAR || mode == mode::IRR; }

Shown shownIn(std::int32_t mode, const Row& row) {
    Shown shown{row.mantissa};
    if (hasSignSlot(mode) && row.mantissa.front() == u'-') {
        shown.mantissa.erase(0, 1);
        shown.sign = u"-";
    }
    if (isIntegerMode(mode)) {
        const Text names[]{u"hex", u"dec", u"oct", u"bin"};
        shown.exponent = names[mode - mode::HEX];
        shown.status = row.rest;
    } else if (row.rest == u"exact" || row.rest == u"approx") {
        shown.status = row.rest;
    } else {
        const std::size_t start = row.rest.starts_with(u'-') ? 1 : 0;
        shown.exponentSign = row.rest.substr(0, start);
        shown.exponent = row.rest.substr(start);
    }
    return shown;
}

TEST(DisplayFormat, FillsEverySlot) {
    DYXOutputDisplay line(plainFields());
    for (const auto& [settings, rows] : kFormatTables) {
        const std::int32_t mode = settings.outputMode;
        for (const Row& row : rows) {
            SCOPED_TRACE(testing::Message() << row.number << " at " << row.digits << " digits");
            Shown shown = shownIn(mode, row);
            LineSettings precise = settings;
            precise.digits = row.digits;
            line.setSettings(precise);
            line.setOutputTo(row.number);
            EXPECT_EQ(shownBy(line), shown) << "mode " << mode;
            const bool warns = isIntegerMode(mode) && !shown.status.empty();
            EXPECT_EQ(line.mantissaField()->textColor(),
                      warns ? DYXOutputDisplay::errorColor() : NSColor::black());
            if (hasSignSlot(mode) && row.number > 0) {
                shown.sign = u"-";
                line.setOutputTo(-row.number);
                EXPECT_EQ(shownBy(line), shown) << "negative, mode " << mode;
            }
        }
    }
}

TEST(DisplayFormat, GroupsBySizeButScientificAlwaysByThree) {
    DYXOutputDisplay line(plainFields());
    const std::pair<std::uint32_t, Text> rows[]{{0, u"12345.6789"},
                                                {1, u"1_2_3_4_5.6_7_8_9"},
                                                {4, u"1_2345.6789"},
                                                {4'000'000'000U, u"12345.6789"}};
    for (const auto& [size, text] : rows) {
        line.setSettings({.groupingDigits = size,
                          .integerGroupingSeparator = u"_",
                          .decimalGroupingSeparator = u"_"});
        line.setFixedTo(12345.6789);
        EXPECT_EQ(shownBy(line), (Shown{text})) << size;
        line.setScientificTo(12345.6789);
        EXPECT_EQ(shownBy(line), (Shown{u"1.234_6", u"04"})) << size;
    }
}

TEST(DisplayFormat, ShowsErrorsAndInfinitiesAsWordsInAnyMode) {
    DYXOutputDisplay line(plainFields());
    for (std::int32_t number = -1; number <= mode::count; ++number) {
        SCOPED_TRACE(number);
        line.setSettings({.outputMode = mode::HEX});
        line.setOutputTo(-1e-20);
        line.setSettings({.outputMode = number});
        line.setOutputTo(-DYXnan('L'));
        EXPECT_EQ(shownBy(line), (Shown{u"log error"}));
        EXPECT_EQ(line.mantissaField()->textColor(), NSColor::black());
        line.setOutputTo(-kInfinity);
        EXPECT_EQ(shownBy(line), (Shown{u"\u221E", u"", u"", u"-"}));
        line.setOutputTo(kInfinity);
        EXPECT_EQ(shownBy(line), (Shown{u"\u221E"}));
    }
}

}  // namespace
}  // namespace talvex
