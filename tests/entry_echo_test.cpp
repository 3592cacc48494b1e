// The live entry on the X line, row by row.

#include <gtest/gtest.h>

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
    SCOPED_TRACE("mode " + std::to_string(row.mode) + ", " + std::string(row.keys));
    KeyScript script;
    script.inMode(row.mode);
    script.calculator.xDisplay().setDigits(row.digits);
    script.calculator.xDisplay().setDecimalSeparator(row.separator);
    script.press(row.keys);
    EXPECT_EQ(script.line(), row.line);
    EXPECT_EQ(script.status(),
              script.entry().inExponent() ? "entering exponent…" : "entering significand…");
    EXPECT_EQ(script.entry().mantissaField()->alignment(),
              isIntegerMode(row.mode) ? NSTextAlignment::right : NSTextAlignment::left);
}

INSTANTIATE_TEST_SUITE_P(
    Scientific, EntryEcho,
    testing::Values(
        EchoRow{mode::FIX, "1 2 3 4 5 6 7", "|1234567||"}, EchoRow{mode::SCI, ".", "|.||"},
        EchoRow{mode::FIX, "1 .", "|1.||"}, EchoRow{mode::FIX, "1 . 5 CHS", "-|1.5||"},
        EchoRow{mode::ENG, "1 . 5", "|1,5||", 4, u','},
        EchoRow{mode::MON, "1 . 5", "|1\u066B5||", 4, u'\u066B'},
        EchoRow{mode::SCI, "EEX", "|1||00"}, EchoRow{mode::SCI, "EEX 5", "|1| |05"},
        EchoRow{mode::SCI, "EEX CHS", "|1||00"}, EchoRow{mode::SCI, "EEX CHS 5", "|1|-|05"},
        EchoRow{mode::SCI, "EEX BACK", "|1||"}, EchoRow{mode::SCI, "2 EEX .", "|2.||00"},
        EchoRow{mode::IRR, "2 E-09 EEX", "|2|-|09"},
        EchoRow{mode::SCI, "1 . 2 ENTER EEX", "|1.||00"}, EchoRow{13, "EEX 4", "|1| |04"},
        EchoRow{mode::SCI, "1 E+03", "|1|+|03"}, EchoRow{mode::SCI, "1 EEX 1 2 3", "|1| |23"},
        EchoRow{mode::SCI, "0 0 7", "|007||"}, EchoRow{mode::SCI, "EEX 5 BACK", "|1||00"},
        EchoRow{mode::SCI, "EEX EEX", "|1||"}, EchoRow{mode::SCI, ". 5 CHS", "-|,5||", 4, u','}));

INSTANTIATE_TEST_SUITE_P(
    TimesAndAngles, EntryEcho,
    testing::Values(EchoRow{mode::HMS, "1", "|1||"}, EchoRow{mode::HMS, "1 2", "|12 : ||"},
                    EchoRow{mode::HMS, "1 2 3", "|12 : 3||"}, EchoRow{mode::HMS, ".", "|00 : ||"},
                    EchoRow{mode::DMS, ".", "|000° ||"},
                    EchoRow{mode::HMS, "1 2 3 4", "|12 : 34 : ||"},
                    EchoRow{mode::HMS, "1 2 3 4 5", "|12 : 34 : 5||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6 7 8", "|12 : 34 : 56.78||"},
                    EchoRow{mode::DMS, "1 2 3 4 CHS", "-|123° 4||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6", "|12 : 34 : 56||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6 7 CHS", "-|12 : 34 : 56.7||"},
                    EchoRow{mode::HMS, "1 2 3 4 5 6 7", "|12 : 34 : 56,7||", 4, u','},
                    EchoRow{mode::DMS, "1 2", "|12||"}, EchoRow{mode::DMS, "1 2 3", "|123° ||"},
                    EchoRow{mode::DMS, "1 2 3 4 5", "|123° 45' ||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6", "|123° 45' 6||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6 7", "|123° 45' 67\"||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6 7 8", "|123° 45' 67.8\"||"},
                    EchoRow{mode::DMS, "1 2 3 4 5 6 7 8", "|123° 45' 67,8\"||", 4, u','}));

INSTANTIATE_TEST_SUITE_P(
    Fractions, EntryEcho,
    testing::Values(
        EchoRow{mode::FRC, "5", "|5||"}, EchoRow{mode::FRC, "5 .", "|5  0/1||"},
        EchoRow{mode::FRC, "5 . 3", "|5  3/1||"}, EchoRow{mode::FRC, "5 . 3 .", "|5  3/||"},
        EchoRow{mode::FRC, "5 . 3 . 8 CHS", "-|5  3/8||"},
        EchoRow{mode::FRC, "5 . . 8", "|5  0/8||"}, EchoRow{mode::FRC, ".", "|  0/1||"},
        EchoRow{mode::FRC, "5 . .", "|5  0/1||"}, EchoRow{mode::CAR, "5 . .", "|5  0/16||"},
        EchoRow{mode::CAR, "5 . 3 .", "|5  3/||"}, EchoRow{mode::CAR, "5 .", "|5  0/||", 10},
        EchoRow{mode::CAR, "5 . 3 CHS", "-|5  3/16||"}, EchoRow{mode::CAR, ".", "|  0/16||"},
        EchoRow{mode::CAR, "5 . 3", "|5  3/16||"}, EchoRow{mode::CAR, "5 . 3", "|5  3/1||", 0},
        EchoRow{mode::CAR, "5 . 3", "|5  3/512||", 9}, EchoRow{mode::CAR, "5 . 3", "|5  3/||", 10},
        EchoRow{mode::CAR, "5 . 3 . 8", "|5  3/8||"}));

INSTANTIATE_TEST_SUITE_P(Integers, EntryEcho,
                         testing::Values(EchoRow{mode::HEX, "d E a D", "|dEaD||hex"},
                                         EchoRow{mode::OCT, "0 1 7", "|017||oct"},
                                         EchoRow{mode::BIN, "0 1 1", "|011||bin"},
                                         EchoRow{mode::DEC, "1 2 3 4 CHS", "|-1234||dec"}));

TEST(EntryExponent, TheExponentKeepsItsLastTwoDigits) {
    KeyScript script;
    script.press("5 EEX 1 2 3");
    EXPECT_EQ(script.line(), "|5| |23");
    script.press("BACK");
    EXPECT_EQ(script.line(), "|5| |02");
    script.press("BACK");
    EXPECT_EQ(script.line(), "|5||00");
    script.press("BACK");
    EXPECT_FALSE(script.entry().inExponent());
    EXPECT_EQ(script.line(), "|5||");
}

TEST(EntryExponent, TheSignOfTheExponentGoesFromPlusToMinusToABlank) {
    KeyScript script;
    script.press("5 E+03");
    EXPECT_EQ(script.line(), "|5|+|03");
    script.press("CHS");
    EXPECT_EQ(script.line(), "|5|-|03");
    script.press("CHS");
    EXPECT_EQ(script.line(), "|5| |03");
    script.press("EEX CHS");
    EXPECT_EQ(script.line(), "-|5| |03");
}

TEST(EntryExponent, LeavingTheExponentKeepsItInForce) {
    KeyScript script;
    script.press("5 EEX 0 4 EEX 6");
    EXPECT_EQ(script.line(), "|56| |04");
    script.press("CLR 5 EEX CHS BACK EEX 3");
    EXPECT_EQ(script.line(), "|5|-|03") << "the sign outlives the digits";
    script.press("CLR 1 2 EEX 3 . EEX 5");
    EXPECT_EQ(script.line(), "|12.5| |03") << "the decimal key in the exponent is the mantissa's";
    EXPECT_EQ(script.entry().exp(), -1);
}

TEST(EntryEchoLine, GivesASignFromAnotherModeASlotOfItsOwnUnlessDecimal) {
    for (const auto& [inputMode, line] : {std::pair{mode::HEX, "-|10||hex"},
                                          {mode::OCT, "-|10||oct"},
                                          {mode::BIN, "-|10||bin"},
                                          {mode::DEC, "|-10||dec"}}) {
        KeyScript script;
        script.press("1 0 CHS");
        script.inMode(inputMode);
        script.calculator.updateDisplay();
        EXPECT_EQ(script.line(), line);
    }
}

TEST(EntryEchoLine, LeavesTheLabelAlone) {
    KeyScript script;
    script.calculator.xDisplay().setLabelString(u"mine");
    script.press("1 EEX 2");
    EXPECT_EQ(utf8(script.entry().labelField()->stringValue()), "mine");
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
