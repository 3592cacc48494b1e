// What may be typed in each input mode, and what the X line shows of it.

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "display/display_modes.h"
#include "key_script.h"

namespace talvex {
namespace {

struct Mode {
    std::int32_t number;
    std::uint32_t digits = 4;
    char16_t separator = u'.';
};

struct Row {
    std::string_view keys;
    std::string_view line;  // sign|mantissa|exponent sign|exponent
    int beeps = 0;          // keys of other modes sound, but for the decimal key and the sign
};

template <class... Rows>
std::pair<Mode, std::vector<Row>> table(const Mode& mode, const Rows&... rows) {
    return {mode, {rows...}};
}

const std::vector kTables{
    table(Mode{mode::SCI}, Row{".", "|.||"}, Row{"0 0 7", "|007||"}, Row{"EEX", "|1||00"},
          Row{"EEX BACK", "|1||"}, Row{"EEX EEX", "|1||"}, Row{"EEX CHS", "|1||00"},
          Row{"EEX CHS 5", "|1|-|05"}, Row{"2 EEX .", "|2.||00"}, Row{"1 . 2 ENTER EEX", "|1.||00"},
          Row{"5 EEX 1 2 3", "|5| |23"}, Row{"5 EEX 1 2 3 BACK", "|5| |02"},
          Row{"5 EEX 1 2 BACK BACK", "|5||00"}, Row{"5 EEX 1 BACK BACK", "|5||"}),
    table(Mode{mode::FIX}, Row{"1 .", "|1.||"}, Row{"1 . 5 CHS", "-|1.5||"},
          Row{"1 . BACK 5", "|15||"}, Row{"5 E+03", "|5|+|03"}, Row{"5 E+03 CHS", "|5|-|03"},
          Row{"5 E+03 CHS CHS", "|5| |03"}, Row{"5 E+03 EEX CHS", "-|5|+|03"},
          Row{"5 EEX 0 4 EEX 6", "|56| |04"}, Row{"5 EEX CHS BACK EEX 3", "|5|-|03"},
          Row{"1 2 EEX 3 . EEX 5", "|12.5| |03"}),
    table(Mode{mode::SCI, 4, u','}, Row{". 5 CHS", "-|,5||"}),
    table(Mode{mode::MON, 4, u'\u066B'}, Row{"1 . 5", "|1\u066B5||"}),
    table(Mode{mode::IRR}, Row{"2 E-09 EEX", "|2|-|09"}, Row{"4 .", "|4.||"}),
    table(Mode{mode::ENG}, Row{"4 . EEX 3", "|4.| |03"}),
    table(Mode{mode::count}, Row{"EEX 4", "|1| |04"}),
    table(Mode{mode::HMS}, Row{"1", "|1||"}, Row{"1 2", "|12 : ||"},
          Row{"1 2 3 4", "|12 : 34 : ||"}, Row{"1 2 3 4 5 6 7 8 CHS", "-|12 : 34 : 56.78||"},
          Row{".", "|00 : ||"}, Row{"1 .", "|01 : ||"}, Row{"1 2 .", "|12 : 00 : ||"},
          Row{"1 2 3 .", "|12 : 03 : ||"}, Row{"1 2 3 4 .", "|12 : 34 : 00||"},
          Row{"1 2 3 4 5 . 6", "|12 : 34 : 05.6||"}, Row{"1 2 3 4 5 6 . 7", "|12 : 34 : 56.7||"},
          Row{"1 2 3 4 5 6 7 8 BACK BACK BACK", "|12 : 34 : 5||"},
          Row{"1 2 3 4 5 6 . 7 8 BACK BACK BACK", "|12 : 34 : 56||"},
          Row{"1 . 5 . . BACK BACK", "|01 : 05 : 0||"}),
    table(Mode{mode::HMS, 4, u','}, Row{"1 2 3 4 5 6 7", "|12 : 34 : 56,7||"}),
    table(Mode{mode::DMS}, Row{"1 2", "|12||"}, Row{"1 2 3", "|123° ||"},
          Row{"1 2 3 4 5", "|123° 45' ||"}, Row{"1 2 3 4 5 6", "|123° 45' 6||"},
          Row{"1 2 3 4 5 6 7", "|123° 45' 67\"||"}, Row{".", "|000° ||"}, Row{"1 2 .", "|012° ||"},
          Row{"1 2 3 .", "|123° 00' ||"}, Row{"1 2 3 4 .", "|123° 04' ||"},
          Row{"1 2 3 4 5 .", "|123° 45' 00\"||"}, Row{"1 2 3 4 5 6 .", "|123° 45' 06\"||"},
          Row{"1 2 3 4 5 6 7 . 8 BACK BACK", "|123° 45' 67\"||"},
          Row{"1 2 3 4 5 6 7 8 BACK BACK BACK", "|123° 45' 6||"}, Row{"5 E-03", "|5||", 1}),
    table(Mode{mode::DMS, 4, u','}, Row{"1 2 3 4 5 6 7 8 CHS", "-|123° 45' 67,8\"||"}),
    table(Mode{mode::FRC}, Row{".", "|  0/1||"}, Row{"5 .", "|5  0/1||"}, Row{"5 . .", "|5  0/1||"},
          Row{"5 . 3 .", "|5  3/||"}, Row{"1 . 2 3 . 4 5 CHS", "-|1  23/45||"},
          Row{"1 . 2 3 . 4 5 BACK BACK BACK", "|1  23/1||"}, Row{"5 . . 8", "|5  0/8||"},
          Row{"1 . 2 . 3 .", "|1  2/3||", 1}, Row{"1 . 1 2 3 4 5 6 . 7", "|1  12345/7||", 1},
          Row{"1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 . 2 3 4 5", "|1111111111111111  234/1||"},
          Row{"5 EEX", "|5||", 1}),
    table(Mode{mode::CAR}, Row{"1 . 1 . 1 2 3 4 5 6", "|1  1/12345||", 1}, Row{".", "|  0/16||"},
          Row{"5 . .", "|5  0/16||"}),
    table(Mode{mode::CAR, 10}, Row{"5 .", "|5  0/||"}, Row{"5 . 3", "|5  3/||"}),
    table(Mode{mode::CAR, 0}, Row{"5 . 3", "|5  3/1||"}),
    table(Mode{mode::CAR, 9}, Row{"5 . 3", "|5  3/512||"}),
    table(Mode{mode::HEX}, Row{"d E a D G", "|dEaD||hex", 1}, Row{"5 . CHS EEX", "|5||hex", 1}),
    table(Mode{mode::OCT}, Row{"0 1 7 8", "|017||oct", 1}, Row{"5 . CHS EEX", "|5||oct", 1}),
    table(Mode{mode::BIN}, Row{"0 1 1 2", "|011||bin", 1}, Row{"1 . CHS EEX", "|1||bin", 1}),
    table(Mode{mode::DEC}, Row{"1 2 3 4 CHS A", "|-1234||dec", 1}, Row{"9 . EEX", "|9||dec", 1})};

TEST(EntryEcho, ShowsWhatWasTyped) {
    for (const auto& [mode, rows] : kTables) {
        for (const Row& row : rows) {
            SCOPED_TRACE(testing::Message() << "mode " << mode.number << ": " << row.keys);
            KeyScript script;
            script.inMode(mode.number);
            script.calculator.xDisplay().setSettings(
                {.digits = mode.digits, .decimalSeparator = mode.separator});
            script.press(row.keys);
            EXPECT_EQ(script.line(), row.line);
            EXPECT_EQ(script.beeps(), row.beeps);
            EXPECT_EQ(script.status(), script.entry().entry().inExponent ? "entering exponent…"
                                                                         : "entering significand…");
            EXPECT_EQ(script.entry().mantissaField()->alignment(),
                      isIntegerMode(mode.number) ? NSTextAlignment::right : NSTextAlignment::left);
        }
    }
}

TEST(EntryEchoLine, GivesASignFromAnotherModeASlotOfItsOwnUnlessDecimal) {
    KeyScript script;
    script.press("1 0 CHS");
    for (const auto& [inputMode, line] : {std::pair{mode::HEX, "-|10||hex"},
                                          {mode::OCT, "-|10||oct"},
                                          {mode::BIN, "-|10||bin"},
                                          {mode::DEC, "|-10||dec"}}) {
        script.inMode(inputMode);
        script.calculator.updateDisplay();
        EXPECT_EQ(script.line(), line);
    }
}

TEST(EntryEcho, DropsDigitsOverTheLimitInSilence) {
    for (int number = 0; number < mode::count; ++number) {
        const std::size_t limit = number == mode::BIN ? 32 : 19;
        KeyScript script;
        script.inMode(number);
        for (std::size_t count = 0; count <= limit; ++count) {
            EXPECT_EQ(script.entry().entry().text, std::string(count, '1'));
            script.press("1");
        }
        EXPECT_EQ(script.entry().entry().text, std::string(limit, '1'));
        EXPECT_EQ(script.beeps(), 0);
    }
}

TEST(EntryEchoLine, KeepsTheColorOfTheLine) {
    KeyScript script;
    script.calculator.xDisplay().setTextColor(DYXOutputDisplay::errorColor());
    script.press("1");
    EXPECT_EQ(script.entry().mantissaField()->textColor(), DYXOutputDisplay::errorColor());
    script.press("ENTER");
    EXPECT_EQ(script.entry().mantissaField()->textColor(), NSColor::black());
    EXPECT_EQ(script.status(), "");
}

}  // namespace
}  // namespace talvex
