#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "display/DYXOutputDisplay.h"
#include "entry/InputSettings.h"
#include "platform/Platform.h"

namespace talvex {

// The line of the X register. While no entry is live it formats X like every line; while one is, it
// holds the typed characters, never a running number. Typing edits the entry by the rules of the
// input mode, `doubleValue` says what it is worth, and `update` echoes it.
//
// The caller asks the question whose name begins with "can" first, and calls the operation that
// belongs to it only on a yes. Questions look at the mode and the character alone; a digit that is
// one too many is refused by the operation itself.
class DYXInputDisplay final : public DYXOutputDisplay {
  public:
    // `alert` sounds for refused keys and has to outlive the line.
    DYXInputDisplay(AlertPort& alert, DisplayFields fields);

    [[nodiscard]] const InputSettings& inputSettings() const { return input_; }
    // Doesn't touch the entry: its characters are read by the rules of the new mode from then on.
    void setInputSettings(const InputSettings& settings) { input_ = settings; }
    // The same, one by one.
    [[nodiscard]] std::int32_t inputMode() const { return input_.inputMode; }
    void setInputMode(std::int32_t mode) { input_.inputMode = mode; }
    [[nodiscard]] bool unlockInputAndOutputModes() const {
        return input_.unlockInputAndOutputModes;
    }
    void setUnlockInputAndOutputModes(bool unlock) { input_.unlockInputAndOutputModes = unlock; }
    [[nodiscard]] std::int32_t effectiveOutputMode() const override;
    // The title of `inputMode`; "???" outside 0 to 12.
    [[nodiscard]] std::u16string inputModeTitle() const;

    // The entry: its number of characters, the digits of its fraction (FRC and CAR), and whether
    // the decimal key was taken once, was taken twice, and whether digits go to the exponent.
    [[nodiscard]] int length() const { return static_cast<int>(text_.size()); }
    [[nodiscard]] int numeratorLength() const { return frc_ - exp_; }
    [[nodiscard]] int denominatorLength() const { return -frc_; }
    [[nodiscard]] bool hasDecimal() const { return hasDecimal_; }
    void setHasDecimal(bool hasDecimal) { hasDecimal_ = hasDecimal; }
    [[nodiscard]] bool hasFraction() const { return hasFraction_; }
    void setHasFraction(bool hasFraction) { hasFraction_ = hasFraction; }
    [[nodiscard]] bool inExponent() const { return inExponent_; }
    void setInExponent(bool inExponent) { inExponent_ = inExponent; }
    // The typed characters, without sign, point or separators.
    [[nodiscard]] const std::string& text() const { return text_; }
    // Minus the number of digits behind the first and behind the second decimal key.
    [[nodiscard]] int exp() const { return exp_; }
    [[nodiscard]] int frc() const { return frc_; }

    // Empties the entry.
    void reset();

    [[nodiscard]] bool canSetToCharacter(char character) const;
    void setToCharacter(char character);
    [[nodiscard]] bool canAppendCharacter(char character) const;
    void appendCharacter(char character);

    [[nodiscard]] bool canSetToDecimal() const;
    // Starts an entry with the decimal key; false in the modes that have none.
    bool setToDecimal();
    [[nodiscard]] bool canAppendDecimal() const;
    void appendDecimal();

    [[nodiscard]] bool canSetTo1E0() const;
    // Starts the entry 1 with an exponent of "00", digits going to the exponent.
    void setTo1E0();
    // Starts the entry 1 with an exponent of a sign and two digits, such as "-03".
    void setTo1E(std::string_view exponent);
    // Sets the exponent of the live entry and goes into it.
    void setExponentTo(std::string_view exponent);
    [[nodiscard]] bool canToggleInExponent() const;
    void toggleInExponent();

    [[nodiscard]] bool canChangeSign() const;
    // The sign of the exponent when digits go there, else that of the mantissa.
    void changeSign();
    // Takes back the last key: a digit, or a decimal key as if it were one.
    void removeCharacter();

    // What the entry is worth in the input mode; the error "input error" if it can't be read.
    [[nodiscard]] double doubleValue() const;

    // Echoes the entry in the line's slots, all but the label.
    void update();

  private:
    struct Rules;
    struct RuleTables;
    static const Rules& rulesOf(std::int32_t mode);

    // Edits, in entry_editing.cpp.
    bool appendCharacterToMantissa(char character);
    void appendCharacterPlain(char character);
    void appendCharacterScientific(char character);
    void appendCharacterFraction(char character);
    void appendCharacterDMS(char character);
    void appendCharacterBinary(char character);
    void appendCharacterToExponent(char character);
    void appendDecimalScientific();
    void appendDecimalFraction();
    void appendDecimalHMS();
    void appendDecimalDMS();
    void padToEndOfField(const struct EntryFields& fields);
    bool setToDecimalScientific();
    bool setToDecimalHMS();
    bool setToDecimalDMS();
    bool refuseDecimal();
    void changeSignOfExponent();
    void removeCharacterFromExponent();
    void removeCharacterFromMantissa();
    void startWithOne();
    void setExponentDigits(std::string_view exponent);

    // Values, in entry_value.cpp.
    [[nodiscard]] double ScientificValue() const;
    [[nodiscard]] double MonetaryValue() const;
    [[nodiscard]] double FractionValue() const;
    [[nodiscard]] double CarpentryValue() const;
    [[nodiscard]] double HMSValue() const;
    [[nodiscard]] double DMSValue() const;
    [[nodiscard]] double HEXValue() const;
    [[nodiscard]] double DecimalValue() const;
    [[nodiscard]] double OctalValue() const;
    [[nodiscard]] double BinaryValue() const;
    [[nodiscard]] double fractionOver(std::int32_t defaultDenominator) const;
    [[nodiscard]] double sexagesimalValue(const struct EntryFields& fields) const;
    [[nodiscard]] double unsignedValue(int base) const;

    // Echoes, in entry_echo.cpp.
    void updateScientific();
    void updateFraction();
    void updateCarpentry();
    void updateHMS();
    void updateDMS();
    void updateHEX();
    void updateDecimal();
    void updateOctal();
    void updateBinary();
    void echoFractionOver(std::u16string_view defaultDenominator);
    void echoInteger(std::u16string_view baseName);
    void echo(NSTextAlignment alignment, std::u16string sign, std::u16string mantissa,
              std::u16string_view baseName = {});
    [[nodiscard]] std::u16string signText() const;

    // The pieces of `text`, each within its bounds whatever the fields hold.
    [[nodiscard]] std::size_t wholeEnd() const;
    [[nodiscard]] std::size_t numeratorEnd() const;
    [[nodiscard]] std::string_view wholePart() const;
    [[nodiscard]] std::string_view numerator() const;
    [[nodiscard]] std::string_view denominator() const;
    [[nodiscard]] bool hasExponentDigits() const { return eex_[0] != '0' || eex_[1] != '0'; }

    AlertPort& alert_;
    InputSettings input_;
    bool hasDecimal_ = false;
    bool hasFraction_ = false;
    bool inExponent_ = false;
    std::array<char, 3> eex_{'0', '0', ' '};  // tens, units, sign: a blank, '+' or '-'
    bool sgn_ = false;                        // the mantissa is negative
    int exp_ = 0;
    int frc_ = 0;
    std::string text_;
};

}  // namespace talvex
