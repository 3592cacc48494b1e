// What may be typed in each input mode, and what the X line shows of it.

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "display/display_modes.h"
#include "display/utf8.h"
#include "key_script.h"

namespace talvex {
namespace {

struct EchoRow {
    std::int32_t mode;
    std::string_view keys;
    std::string_view line;  // sign|mantissa|exponent sign|exponent
    int beeps = 0;
    std::uint32_t digits = 4;
    char16_t separator = u'.';
};

// The name of the row.
void PrintTo(const EchoRow& row, std::ostream* out) {
    *out << utf8(displayModeName(row.mode)) << " with " << row.digits << " digits: " << row.keys;
}

class EntryEcho : public testing::TestWithParam<EchoRow> {};

TEST_P(EntryEcho, ShowsWhatWasTyped) {
    const EchoRow& row = GetParam();
    KeyScript script;
    script.inMode(row.mode);
    script.calculator.xDisplay().setDigits(row.digits);
    script.calculator.xDisplay().setDecimalSeparator(row.separator);
    script.press(row.keys);
    EXPECT_EQ(script.line(), row.line);
    EXPECT_EQ(script.beeps(), row.beeps);
    EXPECT_EQ(script.status(),
              script.entry().inExponent() ? "entering exponent…" : "entering significand…");
    EXPECT_EQ(script.entry().mantissaField()->alignment(),
              isIntegerMode(row.mode) ? NSTextAlignment::right : NSTextAlignment::left);
}

INSTANTIATE_TEST_SUITE_P(
    Scientific, EntryEcho,
    testing::Values(
        EchoRow{mode::SCI, ".", "|.||"}, EchoRow{mode::FIX, "1 .", "|1.||"},
        EchoRow{mode::SCI, "0 0 7", "|007||"}, EchoRow{mode::FIX, "1 . 5 CHS", "-|1.5||"},
        EchoRow{mode::FIX, "1 . BACK 5", "|15||"},
        EchoRow{mode::SCI, ". 5 CHS", "-|,5||", 0, 4, u','},
        EchoRow{mode::MON, "1 . 5", "|1\u066B5||", 0, 4, u'\u066B'},
        EchoRow{mode::SCI, "EEX", "|1||00"}, EchoRow{mode::SCI, "EEX BACK", "|1||"},
        EchoRow{mode::SCI, "EEX EEX", "|1||"}, EchoRow{mode::SCI, "EEX CHS", "|1||00"},
        EchoRow{mode::SCI, "EEX CHS 5", "|1|-|05"}, EchoRow{mode::SCI, "2 EEX .", "|2.||00"},
        EchoRow{mode::SCI, "1 . 2 ENTER EEX", "|1.||00"},
        EchoRow{mode::IRR, "2 E-09 EEX", "|2|-|09"}, EchoRow{13, "EEX 4", "|1| |04"},
        EchoRow{mode::SCI, "5 EEX 1 2 3", "|5| |23"},
        EchoRow{mode::SCI, "5 EEX 1 2 3 BACK", "|5| |02"},
        EchoRow{mode::SCI, "5 EEX 1 2 BACK BACK", "|5||00"},
        EchoRow{mode::SCI, "5 EEX 1 BACK BACK", "|5||"}, EchoRow{mode::FIX, "5 E+03", "|5|+|03"},
        EchoRow{mode::FIX, "5 E+03 CHS", "|5|-|03"},
        EchoRow{mode::FIX, "5 E+03 CHS CHS", "|5| |03"},
        EchoRow{mode::FIX, "5 E+03 EEX CHS", "-|5|+|03"},
        EchoRow{mode::FIX, "5 EEX 0 4 EEX 6", "|56| |04"},
        EchoRow{mode::FIX, "5 EEX CHS BACK EEX 3", "|5|-|03"},
        EchoRow{mode::FIX, "1 2 EEX 3 . EEX 5", "|12.5| |03"}));

INSTANTIATE_TEST_SUITE_P(
    TimesAndAngles, EntryEcho,
    testing::Values(EchoRow{mode::HMS, "1", "|1||"}, EchoRow{mode::HMS, "1 2", "|12 : ||"},
                    EchoRow{mode::HMS, "1 2 3 4", "|12 : 34 : ||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6 7 8 CHS", "-|12 : 34 : 56.78||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6 7", "|12 : 34 : 56,7||", 0, 4, u','},
                    EchoRow{mode::DMS, "1 2", "|12||"}, EchoRow{mode::DMS, "1 2 3", "|123° ||"},
                    EchoRow{mode::DMS, "1 2 3 4 5", "|123° 45' ||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6", "|123° 45' 6||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6 7", "|123° 45' 67\"||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6 7 8 CHS", "-|123° 45' 67,8\"||", 0, 4, u','}));

// The decimal key ends a field.
INSTANTIATE_TEST_SUITE_P(
    Fields, EntryEcho,
    testing::Values(EchoRow{mode::HMS, ".", "|00 : ||"}, EchoRow{mode::HMS, "1 .", "|01 : ||"},
                    EchoRow{mode::HMS, "1 2 .", "|12 : 00 : ||"},
                    EchoRow{mode::HMS, "1 2 3 .", "|12 : 03 : ||"},
                    EchoRow{mode::HMS, "1 2 3 4 .", "|12 : 34 : 00||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 . 6", "|12 : 34 : 05.6||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6 . 7", "|12 : 34 : 56.7||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6 7 8 BACK BACK BACK", "|12 : 34 : 5||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6 . 7 8 BACK BACK BACK", "|12 : 34 : 56||"},
                    EchoRow{mode::HMS, "1 . 5 . . BACK", "|01 : 05 : 00||"},
                    EchoRow{mode::HMS, "1 . 5 . . BACK BACK", "|01 : 05 : 0||"},
                    EchoRow{mode::DMS, ".", "|000° ||"}, EchoRow{mode::DMS, "1 2 .", "|012° ||"},
                    EchoRow{mode::DMS, "1 2 3 .", "|123° 00' ||"},
                    EchoRow{mode::DMS, "1 2 3 4 .", "|123° 04' ||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 .", "|123° 45' 00\"||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6 .", "|123° 45' 06\"||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6 7 . 8 BACK BACK", "|123° 45' 67\"||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6 7 8 BACK BACK BACK", "|123° 45' 6||"}));

INSTANTIATE_TEST_SUITE_P(
    Fractions, EntryEcho,
    testing::Values(EchoRow{mode::FRC, ".", "|  0/1||"}, EchoRow{mode::FRC, "5 .", "|5  0/1||"},
                    EchoRow{mode::FRC, "5 . .", "|5  0/1||"},
                    EchoRow{mode::FRC, "5 . 3 .", "|5  3/||"},
                    EchoRow{mode::FRC, "1 . 2 3 . 4 5 CHS", "-|1  23/45||"},
                    EchoRow{mode::FRC, "1 . 2 3 . 4 5 BACK BACK BACK", "|1  23/1||"},
                    EchoRow{mode::FRC, "5 . . 8", "|5  0/8||"},
                    EchoRow{mode::FRC, "1 . 2 . 3 .", "|1  2/3||", 1},
                    EchoRow{mode::FRC, "1 . 1 2 3 4 5 6 . 7", "|1  12345/7||", 1},
                    EchoRow{mode::CAR, "1 . 1 . 1 2 3 4 5 6", "|1  1/12345||", 1},
                    EchoRow{mode::FRC, "1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 . 2 3 4 5",
                            "|1111111111111111  234/1||"},
                    EchoRow{mode::CAR, ".", "|  0/16||"}, EchoRow{mode::CAR, "5 . .", "|5  0/16||"},
                    EchoRow{mode::CAR, "5 .", "|5  0/||", 0, 10},
                    EchoRow{mode::CAR, "5 . 3", "|5  3/1||", 0, 0},
                    EchoRow{mode::CAR, "5 . 3", "|5  3/512||", 0, 9},
                    EchoRow{mode::CAR, "5 . 3", "|5  3/||", 0, 10}));

// Keys of another mode sound, but for the decimal key and the sign.
INSTANTIATE_TEST_SUITE_P(Integers, EntryEcho,
                         testing::Values(EchoRow{mode::HEX, "d E a D G", "|dEaD||hex", 1},
                                         EchoRow{mode::OCT, "0 1 7 8", "|017||oct", 1},
                                         EchoRow{mode::BIN, "0 1 1 2", "|011||bin", 1},
                                         EchoRow{mode::DEC, "1 2 3 4 CHS A", "|-1234||dec", 1},
                                         EchoRow{mode::FRC, "5 EEX", "|5||", 1},
                                         EchoRow{mode::DMS, "5 E-03", "|5||", 1},
                                         EchoRow{mode::HEX, "5 . CHS", "|5||hex"}));

TEST(EntryRules, EachModeAcceptsItsKeys) {
    constexpr std::string_view kDecimal = "0123456789";
    const struct {
        std::int32_t mode;
        std::string_view digits;
        bool decimal, exponent, sign;
        std::size_t limit = 19;
    } rows[]{{mode::FIX, kDecimal, true, true, true},
             {mode::SCI, kDecimal, true, true, true},
             {mode::ENG, kDecimal, true, true, true},
             {mode::MON, kDecimal, true, true, true},
             {mode::FRC, kDecimal, true, false, true},
             {mode::CAR, kDecimal, true, false, true},
             {mode::HMS, kDecimal, true, false, true},
             {mode::DMS, kDecimal, true, false, true},
             {mode::IRR, kDecimal, true, true, true},
             {13, kDecimal, true, true, true},
             {-1, kDecimal, true, true, true},
             {mode::DEC, kDecimal, false, false, true},
             {mode::OCT, "01234567", false, false, false},
             {mode::HEX, "0123456789ABCDEFabcdef", false, false, false},
             {mode::BIN, "01", false, false, false, 32}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.mode);
        KeyScript script;
        script.inMode(row.mode);
        for (int character = 0; character < 256; ++character) {
            const char typed = static_cast<char>(character);
            const bool isAccepted = row.digits.find(typed) != std::string_view::npos;
            EXPECT_EQ(script.entry().canSetToCharacter(typed), isAccepted) << character;
            EXPECT_EQ(script.entry().canAppendCharacter(typed), isAccepted) << character;
        }
        EXPECT_EQ(script.entry().canSetToDecimal(), row.decimal);
        EXPECT_EQ(script.entry().canAppendDecimal(), row.decimal);
        EXPECT_EQ(script.entry().canSetTo1E0(), row.exponent);
        EXPECT_EQ(script.entry().canToggleInExponent(), row.exponent);
        EXPECT_EQ(script.entry().canChangeSign(), row.sign);
        // Digits over the limit are dropped in silence.
        for (std::size_t count = 0; count <= row.limit; ++count) {
            EXPECT_EQ(script.entry().text(), std::string(count, '1'));
            script.press("1");
        }
        EXPECT_EQ(script.entry().text(), std::string(row.limit, '1'));
        EXPECT_EQ(script.beeps(), 0);
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
