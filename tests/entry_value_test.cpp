// What an entry is worth.

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <ostream>
#include <vector>

#include "display/display_modes.h"
#include "display/utf8.h"
#include "key_script.h"
#include "numeric/DYXnan.h"
#include "same_bits.h"

namespace talvex {
namespace {

struct ValueRow {
    std::int32_t mode;
    std::string_view keys;
    double value;
    std::uint32_t digits = 4;
};

// The name of the row.
void PrintTo(const ValueRow& row, std::ostream* out) {
    *out << utf8(displayModeName(row.mode)) << " with " << row.digits << " digits: " << row.keys;
}

class EntryValue : public testing::TestWithParam<ValueRow> {};

TEST_P(EntryValue, IsTheNumberThatWasTyped) {
    KeyScript script;
    script.inMode(GetParam().mode);
    script.calculator.xDisplay().setDigits(GetParam().digits);
    script.press(GetParam().keys);
    EXPECT_TRUE(isSame(script.entry().doubleValue(), GetParam().value));
}

constexpr double kHour = 12.0 + 34.0 / 60.0;

INSTANTIATE_TEST_SUITE_P(
    Scientific, EntryValue,
    testing::Values(
        ValueRow{mode::FIX, "1 . 5 E-03", 0.0015}, ValueRow{mode::SCI, "1 2 . 3 4 E+03", 12340.0},
        ValueRow{mode::FIX, "1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9", 1234567890123456789.0},
        ValueRow{mode::ENG, ". 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9", 0.1234567890123456789},
        ValueRow{mode::FIX, "9 0 0 7 1 9 9 2 5 4 7 4 0 9 9 3 . 0 0 1", 9007199254740994.0},
        ValueRow{mode::SCI, ". 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 EEX 9 9 CHS", 1e-118},
        ValueRow{mode::FIX, "0 CHS", -0.0}, ValueRow{mode::IRR, "EEX", 1.0},
        ValueRow{mode::FIX, "1 . 2 CLR EEX", 1.0}, ValueRow{mode::FIX, "7 . EEX 0 2 BACK", 7.0},
        ValueRow{mode::MON, "1 . 0 0 5", 1.0, 2}, ValueRow{mode::MON, "2 . 5", 2.0, 0},
        ValueRow{mode::MON, ". 1 CHS", -0.0, 0}));

INSTANTIATE_TEST_SUITE_P(
    Integers, EntryValue,
    testing::Values(
        ValueRow{mode::HEX, "f F a", 4090.0}, ValueRow{mode::HEX, "f f f f f f f f", 4294967295.0},
        ValueRow{mode::HEX, "1 0 0 0 0 0 0 0 0", 4294967295.0}, ValueRow{mode::OCT, "0 1 7", 15.0},
        ValueRow{mode::OCT, "7 7 7 7 7 7 7 7 7 7 7 7 7", 4294967295.0},
        ValueRow{mode::DEC, "0 CHS", 0.0}, ValueRow{mode::DEC, "2 1 4 7 4 8 3 6 4 8", 2147483647.0},
        ValueRow{mode::DEC, "2 1 4 7 4 8 3 6 4 7 CHS", -2147483647.0},
        ValueRow{mode::DEC, "9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 CHS", -2147483648.0},
        ValueRow{mode::BIN, "1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 0 1",
                 4294967293.0}));

INSTANTIATE_TEST_SUITE_P(
    TimesAndAngles, EntryValue,
    testing::Values(ValueRow{mode::HMS, "1", 1.0}, ValueRow{mode::HMS, "1 2 3", 12.0 + 3.0 / 60.0},
                    ValueRow{mode::HMS, "1 2 3 4 5", kHour + 5.0 / 3600.0},
                    ValueRow{mode::HMS, "1 2 3 4 5 6 7 8", kHour + 56.78 / 3600.0},
                    ValueRow{mode::HMS, "0 1 3 0 CHS", 22.5},
                    ValueRow{mode::HMS, "0 0 9 9", 99.0 / 60.0}, ValueRow{mode::HMS, "0 CHS", 24.0},
                    ValueRow{mode::DMS, "0 CHS", 360.0},
                    ValueRow{mode::DMS, "0 9 0 3 0 0 0 CHS", 269.5},
                    ValueRow{mode::DMS, "1 2", 12.0},
                    ValueRow{mode::DMS, "0 0 1 0 0 0 1 5", 1.0 + 1.5 / 3600.0}));

INSTANTIATE_TEST_SUITE_P(
    Fractions, EntryValue,
    testing::Values(ValueRow{mode::FRC, ".", 0.0}, ValueRow{mode::FRC, "5", 5.0},
                    ValueRow{mode::FRC, "5 . 3", 8.0}, ValueRow{mode::FRC, "1 . . 8", 1.0},
                    ValueRow{mode::FRC, "1 . 3 . 8 CHS", -1.375},
                    ValueRow{mode::FRC, "0 CHS", -0.0},
                    ValueRow{mode::FRC, "1 . 3 . 0 CHS", -INFINITY},
                    ValueRow{mode::FRC, "9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9",
                             9223372036854775807.0},
                    ValueRow{mode::CAR, "1 . 1 CHS", -1.0625}, ValueRow{mode::CAR, ". 5", 0.625, 3},
                    ValueRow{mode::CAR, ". 5", 5.0, 0}, ValueRow{mode::CAR, "1 . 1 . 4", 1.25},
                    ValueRow{mode::CAR, ". 1", 1.0 / 2147483647.0, 4000000000U}));

TEST(EntryValueErrors, AnUnreadableEntryIsAnInputError) {
    const struct {
        std::int32_t typedIn;
        std::string_view keys;
        std::vector<std::int32_t> unreadableIn;
    } rows[]{{mode::FIX, ".", {mode::FIX, mode::MON, mode::HEX, mode::OCT, mode::DEC, 13}},
             {mode::HEX, "A 1", {mode::FIX, mode::HMS, mode::DMS, mode::DEC, mode::OCT, mode::BIN}},
             {mode::DEC, "1 9", {mode::OCT, mode::BIN}}};
    for (const auto& row : rows) {
        for (const std::int32_t mode : row.unreadableIn) {
            SCOPED_TRACE(std::string(row.keys) + " in mode " + std::to_string(mode));
            KeyScript script;
            script.inMode(row.typedIn);
            script.press(row.keys);
            script.inMode(mode);
            script.press("ENTER");
            EXPECT_TRUE(isSame(script.x(), DYXnan('$')));
            EXPECT_EQ(script.line(), "|input error||");
        }
    }
}

TEST(EntryOfAnotherMode, IsWorthWhatTheNewOneReads) {
    const struct {
        std::int32_t typedIn;
        std::string_view keys;
        std::int32_t mode;
        double value;
    } rows[]{
        {mode::FIX, ".", mode::FRC, 0.0},
        {mode::FIX, ".", mode::HMS, 0.0},
        {mode::FIX, ".", mode::BIN, 0.0},
        {mode::FRC, "0 . 0 . 0", mode::FRC, DYXnan('\0')},
        {mode::HEX, "1 2 A 4", mode::FRC, 12.0},  // up to the first letter
        {mode::FIX, "5 CHS", mode::HEX, 4294967291.0},
        {mode::FIX, "5 CHS", mode::DMS, 355.0},
        {mode::FIX, "5 0 0 0 0 0 0 0 0 0 CHS", mode::HEX, 4294967295.0},  // the limit has no sign
        {mode::FIX, "1 0 CHS", mode::BIN, 2.0},                           // nor have binary digits
        {mode::FIX, "1 . 2 3", mode::CAR, 1.0 + 23.0 / 16.0}};
    for (const auto& row : rows) {
        KeyScript script;
        script.inMode(row.typedIn);
        script.press(row.keys);
        script.inMode(row.mode);
        EXPECT_TRUE(isSame(script.entry().doubleValue(), row.value)) << row.keys;
    }
}

}  // namespace
}  // namespace talvex
