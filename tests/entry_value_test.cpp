// What an entry is worth.

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "display/display_modes.h"
#include "key_script.h"
#include "numeric/DYXnan.h"
#include "same_bits.h"

namespace talvex {
namespace {

struct Row {
    std::string_view keys;
    double value;
};

struct Table {
    std::int32_t mode;
    std::uint32_t digits;
    std::vector<Row> rows;
};

template <class... Rows>
Table table(std::int32_t mode, std::uint32_t digits, const Rows&... rows) {
    return {mode, digits, {rows...}};
}

constexpr double kHour = 12.0 + 34.0 / 60.0;

const std::vector kTables{
    table(mode::FIX, 4, Row{"1 . 5 E-03", 0.0015},
          Row{"1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9", 1234567890123456789.0},
          Row{"9 0 0 7 1 9 9 2 5 4 7 4 0 9 9 3 . 0 0 1", 9007199254740994.0}, Row{"0 CHS", -0.0},
          Row{"1 . 2 CLR EEX", 1.0}, Row{"7 . EEX 0 2 BACK", 7.0}),
    table(mode::SCI, 4, Row{"1 2 . 3 4 E+03", 12340.0},
          Row{". 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 1 EEX 9 9 CHS", 1e-118}),
    table(mode::ENG, 4, Row{". 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9", 0.1234567890123456789}),
    table(mode::IRR, 4, Row{"EEX", 1.0}),
    table(mode::MON, 2, Row{"1 . 0 0 5", 1.0}),
    table(mode::MON, 0, Row{"2 . 5", 2.0}, Row{". 1 CHS", -0.0}),
    table(mode::HEX, 4, Row{"f F a", 4090.0}, Row{"f f f f f f f f", 4294967295.0},
          Row{"1 0 0 0 0 0 0 0 0", 4294967295.0}),
    table(mode::OCT, 4, Row{"0 1 7", 15.0}, Row{"7 7 7 7 7 7 7 7 7 7 7 7 7", 4294967295.0}),
    table(mode::DEC, 4, Row{"0 CHS", 0.0}, Row{"2 1 4 7 4 8 3 6 4 8", 2147483647.0},
          Row{"2 1 4 7 4 8 3 6 4 7 CHS", -2147483647.0},
          Row{"9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 CHS", -2147483648.0}),
    table(mode::BIN, 4,
          Row{"1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 0 1", 4294967293.0}),
    table(mode::HMS, 4, Row{"1", 1.0}, Row{"1 2 3", 12.0 + 3.0 / 60.0},
          Row{"1 2 3 4 5", kHour + 5.0 / 3600.0}, Row{"1 2 3 4 5 6 7 8", kHour + 56.78 / 3600.0},
          Row{"0 1 3 0 CHS", 22.5}, Row{"0 0 9 9", 99.0 / 60.0}, Row{"0 CHS", 24.0}),
    table(mode::DMS, 4, Row{"0 CHS", 360.0}, Row{"0 9 0 3 0 0 0 CHS", 269.5}, Row{"1 2", 12.0},
          Row{"0 0 1 0 0 0 1 5", 1.0 + 1.5 / 3600.0}),
    table(mode::FRC, 4, Row{".", 0.0}, Row{"5", 5.0}, Row{"5 . 3", 8.0}, Row{"1 . . 8", 1.0},
          Row{"1 . 3 . 8 CHS", -1.375}, Row{"0 CHS", -0.0}, Row{"1 . 3 . 0 CHS", -kInfinity},
          Row{"9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 9", 9223372036854775807.0}),
    table(mode::CAR, 4, Row{"1 . 1 CHS", -1.0625}, Row{"1 . 1 . 4", 1.25}),
    table(mode::CAR, 3, Row{". 5", 0.625}),
    table(mode::CAR, 0, Row{". 5", 5.0}),
    table(mode::CAR, 4000000000U, Row{". 1", 1.0 / 2147483647.0})};

TEST(EntryValue, IsTheNumberThatWasTyped) {
    for (const auto& [mode, digits, rows] : kTables) {
        for (const Row& row : rows) {
            KeyScript script;
            script.inMode(mode);
            script.calculator.xDisplay().setSettings({.digits = digits});
            script.press(row.keys);
            EXPECT_TRUE(isSame(script.entry().doubleValue(), row.value))
                << "mode " << mode << ": " << row.keys;
        }
    }
}

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

TEST(EntryValue, OfAnotherModeIsWhatTheNewOneReads) {
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
