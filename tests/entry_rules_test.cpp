// What may be typed in each input mode, and how each key changes the entry.

#include <gtest/gtest.h>

#include <array>

#include "display/display_modes.h"
#include "key_script.h"

namespace talvex {
namespace {

struct ModeRules {
    std::int32_t mode;
    std::string_view digits;
    bool decimal, exponent, sign;
};

constexpr std::string_view kDecimal = "0123456789";
constexpr std::array<ModeRules, 15> kModeRules{{
    {mode::FIX, kDecimal, true, true, true},
    {mode::SCI, kDecimal, true, true, true},
    {mode::ENG, kDecimal, true, true, true},
    {mode::MON, kDecimal, true, true, true},
    {mode::FRC, kDecimal, true, false, true},
    {mode::CAR, kDecimal, true, false, true},
    {mode::HMS, kDecimal, true, false, true},
    {mode::DMS, kDecimal, true, false, true},
    {mode::HEX, "0123456789ABCDEFabcdef", false, false, false},
    {mode::DEC, kDecimal, false, false, true},
    {mode::OCT, "01234567", false, false, false},
    {mode::BIN, "01", false, false, false},
    {mode::IRR, kDecimal, true, true, true},
    {13, kDecimal, true, true, true},
    {-1, kDecimal, true, true, true},
}};

TEST(EntryRules, EachModeAcceptsItsKeys) {
    for (const ModeRules& row : kModeRules) {
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
    }
}

TEST(EntryRules, RefusedKeysSoundAndChangeNothing) {
    struct Row {
        std::int32_t mode;
        std::string_view typed;
        std::string_view refused;
        int beeps;
    };
    const std::array rows{
        Row{mode::OCT, "7", "8", 1},
        Row{mode::BIN, "1 0", "2", 1},
        Row{mode::HEX, "F", "G", 1},
        Row{mode::DEC, "5", "A", 1},
        Row{mode::FRC, "5", "EEX", 1},
        Row{mode::DMS, "5", "E-03", 1},
        Row{mode::HEX, "5", ".", 0},
        Row{mode::HEX, "5", "CHS", 0},
        Row{mode::FRC, "1 . 2 . 3", ".", 1},
        Row{mode::FRC, "1 . 1 2 3 4 5", "6", 1},
        Row{mode::CAR, "1 . 1 . 1 2 3 4 5", "6", 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.typed) + ", then " + std::string(row.refused));
        KeyScript script;
        script.inMode(row.mode);
        script.press(row.typed);
        const std::string before = script.line();
        script.press(row.refused);
        EXPECT_EQ(script.line(), before);
        EXPECT_EQ(script.beeps(), row.beeps);
    }
}

TEST(EntryRules, DigitsOverTheLimitAreDroppedInSilence) {
    for (const ModeRules& row : kModeRules) {
        if (row.digits.empty()) {
            continue;
        }
        SCOPED_TRACE(row.mode);
        const int limit = row.mode == mode::BIN ? 32 : 19;
        KeyScript script;
        script.inMode(row.mode);
        for (int count = 1; count <= limit + 1; ++count) {
            script.press("1");
            EXPECT_EQ(script.entry().length(), std::min(count, limit));
        }
        EXPECT_EQ(script.beeps(), 0);
    }
}

TEST(EntryRules, ThePiecesOfAFractionShareTheLimit) {
    KeyScript script;
    script.inMode(mode::FRC);
    script.press("1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 . 2 3 4 5");
    EXPECT_EQ(script.line(), "|1111111111111111  234/1||");
    EXPECT_EQ(script.beeps(), 0);
    script.press("CLR 1 . 1 2 3 4 5 6 . 7");
    EXPECT_EQ(script.line(), "|1  12345/7||") << "a full numerator lets the denominator start";
    EXPECT_EQ(script.beeps(), 1);
}

struct FieldRow {
    std::string_view typed, text;
    bool hasDecimal;
};

void expectFields(std::int32_t inputMode, const FieldRow& row) {
    SCOPED_TRACE(std::string(row.typed) + " and the decimal key");
    KeyScript script;
    script.inMode(inputMode);
    script.press(row.typed);
    script.press(".");
    EXPECT_EQ(script.entry().text(), row.text);
    EXPECT_EQ(script.entry().hasDecimal(), row.hasDecimal);
    EXPECT_EQ(script.beeps(), 0);
    if (row.typed.empty()) {  // no key empties a live entry and leaves it live
        script.calculator.xDisplay().reset();
        script.calculator.xDisplay().appendDecimal();
        EXPECT_EQ(script.entry().text(), row.text);
        EXPECT_FALSE(script.entry().hasDecimal());
    }
}

TEST(EntryRules, OnlyAnAngleCountsTheDecimalsOfItsSecondsWithoutTheDecimalKey) {
    KeyScript script;
    script.inMode(mode::HMS);
    script.press("1 2 3 4 5 6 7 8");
    EXPECT_FALSE(script.entry().hasDecimal());
    EXPECT_EQ(script.entry().exp(), 0);
    script.press("CLR 1 2 3 4 5 6 . 7 8");
    EXPECT_EQ(script.entry().exp(), -2);
    script.inMode(mode::DMS);
    script.press("CLR 1 2 3 4 5 6 7 8 9");
    EXPECT_TRUE(script.entry().hasDecimal());
    EXPECT_EQ(script.entry().exp(), -2);
}

TEST(EntryRules, TheDecimalKeyEndsAFieldOfATime) {
    for (const FieldRow& row :
         {FieldRow{"", "00", false}, FieldRow{"1", "01", false}, FieldRow{"1 2", "1200", false},
          FieldRow{"1 2 3", "1203", false}, FieldRow{"1 2 3 4", "123400", true},
          FieldRow{"1 2 3 4 5", "123405", true}, FieldRow{"1 2 3 4 5 6", "123456", true},
          FieldRow{"1 2 3 4 5 6 7", "1234567", true}}) {
        expectFields(mode::HMS, row);
    }
}

TEST(EntryRules, TheDecimalKeyEndsAFieldOfAnAngle) {
    for (const FieldRow& row :
         {FieldRow{"", "000", false}, FieldRow{"1", "001", false}, FieldRow{"1 2", "012", false},
          FieldRow{"1 2 3", "12300", false}, FieldRow{"1 2 3 4", "12304", false},
          FieldRow{"1 2 3 4 5", "1234500", true}, FieldRow{"1 2 3 4 5 6", "1234506", true},
          FieldRow{"1 2 3 4 5 6 7", "1234567", true},
          FieldRow{"1 2 3 4 5 6 7 8", "12345678", true}}) {
        expectFields(mode::DMS, row);
    }
}

TEST(EntryRules, AFractionIsCutIntoThreePieces) {
    KeyScript script;
    script.inMode(mode::FRC);
    script.press("1 . 2 3 . 4 5");
    EXPECT_EQ(script.entry().text(), "12345");
    EXPECT_EQ(script.entry().exp(), -4);
    EXPECT_EQ(script.entry().frc(), -2);
    EXPECT_EQ(script.entry().numeratorLength(), 2);
    EXPECT_EQ(script.entry().denominatorLength(), 2);
    script.press("BACK BACK BACK");
    EXPECT_FALSE(script.entry().hasFraction());
    EXPECT_EQ(script.entry().text(), "123");
    EXPECT_EQ(script.entry().frc(), 0);
}

TEST(EntryRules, EachPressOfBackspaceTakesOnePressBack) {
    KeyScript script;
    script.press("1 . BACK");
    EXPECT_FALSE(script.entry().hasDecimal());
    EXPECT_EQ(script.entry().text(), "1");
    script.press("BACK");
    EXPECT_EQ(script.entry().length(), 0);

    script.inMode(mode::HMS);
    script.press("1 . 5 . .");
    EXPECT_EQ(script.entry().text(), "010500");
    script.press("BACK");
    EXPECT_FALSE(script.entry().hasDecimal());
    EXPECT_EQ(script.entry().text(), "010500");
    script.press("BACK");
    EXPECT_EQ(script.entry().text(), "01050");

    script.inMode(mode::DMS);
    script.press("CLR 1 2 3 4 5 6 7 8");
    EXPECT_EQ(script.entry().exp(), -1);
    script.press("BACK");
    EXPECT_TRUE(script.entry().hasDecimal());
    script.press("BACK");
    EXPECT_FALSE(script.entry().hasDecimal());
    EXPECT_EQ(script.entry().length(), 7);
}

TEST(EntryRules, AChangeOfModeKeepsTheEntry) {
    KeyScript script;
    script.press("1 . 2 3");
    for (const ModeRules& row : kModeRules) {
        script.inMode(row.mode);
        EXPECT_EQ(script.entry().text(), "123") << row.mode;
        EXPECT_EQ(script.entry().exp(), -2) << row.mode;
        EXPECT_TRUE(script.entry().hasDecimal()) << row.mode;
    }
}

}  // namespace
}  // namespace talvex
