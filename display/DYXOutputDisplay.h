#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/NSTextField.h"

namespace talvex {

// A text slot of a line. A slot may be absent: writing to it then does nothing.
using TextSlot = std::shared_ptr<NSTextField>;

struct DisplayFields {
    TextSlot mantissa;
    TextSlot mantissaSign;
    TextSlot exponent;
    TextSlot exponentSign;
    TextSlot label;
    TextSlot status;
};

// One line of the number display. A line owns no number: it is handed a double by `setOutputTo`
// and turns it into text in its slots, by its settings alone. Changing a setting changes nothing
// on the screen until the next `setOutputTo`.
class DYXOutputDisplay {
  public:
    DYXOutputDisplay() = default;
    explicit DYXOutputDisplay(DisplayFields fields) : fields_(std::move(fields)) {}
    DYXOutputDisplay(const DYXOutputDisplay&) = delete;
    DYXOutputDisplay& operator=(const DYXOutputDisplay&) = delete;
    virtual ~DYXOutputDisplay() = default;

    // A plain line with copies of the slots, each above its original and without a status slot,
    // and with the precision and mode of this one; the rest follows with `syncToDisplay`.
    [[nodiscard]] std::unique_ptr<DYXOutputDisplay> copy() const;

    // Makes this line follow another one: all settings, its effective mode, its font.
    void syncToDisplay(const DYXOutputDisplay& line);

    // Shows the number in the effective mode. NaNs and infinities show as words in every mode; a
    // mode outside 0 to 12 leaves the slots as they are.
    void setOutputTo(double number);

    // Precision; its meaning depends on the mode, in FIX and SCI the number of decimals.
    [[nodiscard]] std::uint32_t digits() const { return digits_; }
    void setDigits(std::uint32_t digits) { digits_ = digits; }
    // The longest plain text, in characters, before FIX goes over to scientific form.
    [[nodiscard]] std::uint32_t maxDigits() const { return maxDigits_; }
    void setMaxDigits(std::uint32_t maxDigits) { maxDigits_ = maxDigits; }
    [[nodiscard]] std::int32_t outputMode() const { return outputMode_; }
    void setOutputMode(std::int32_t mode) { outputMode_ = mode; }
    [[nodiscard]] bool reduceCarpentryFractions() const { return reduceCarpentryFractions_; }
    void setReduceCarpentryFractions(bool reduce) { reduceCarpentryFractions_ = reduce; }
    [[nodiscard]] bool displayIrrationals() const { return displayIrrationals_; }
    void setDisplayIrrationals(bool display) { displayIrrationals_ = display; }
    [[nodiscard]] char16_t decimalSeparator() const { return decimalSeparator_; }
    void setDecimalSeparator(char16_t separator) { decimalSeparator_ = separator; }
    [[nodiscard]] std::uint32_t groupingDigits() const { return groupingDigits_; }
    void setGroupingDigits(std::uint32_t digits) { groupingDigits_ = digits; }
    [[nodiscard]] const std::u16string& integerGroupingSeparator() const {
        return integerGroupingSeparator_;
    }
    void setIntegerGroupingSeparator(std::u16string separator);
    [[nodiscard]] const std::u16string& decimalGroupingSeparator() const {
        return decimalGroupingSeparator_;
    }
    void setDecimalGroupingSeparator(std::u16string separator);
    void setGroupingSeparator(const std::u16string& separator);

    [[nodiscard]] const TextSlot& mantissaField() const { return fields_.mantissa; }
    [[nodiscard]] const TextSlot& mantissaSignField() const { return fields_.mantissaSign; }
    [[nodiscard]] const TextSlot& exponentField() const { return fields_.exponent; }
    [[nodiscard]] const TextSlot& exponentSignField() const { return fields_.exponentSign; }
    [[nodiscard]] const TextSlot& labelField() const { return fields_.label; }
    [[nodiscard]] const TextSlot& statusField() const { return fields_.status; }
    void setMantissaField(TextSlot slot) { fields_.mantissa = std::move(slot); }
    void setMantissaSignField(TextSlot slot) { fields_.mantissaSign = std::move(slot); }
    void setExponentField(TextSlot slot) { fields_.exponent = std::move(slot); }
    void setExponentSignField(TextSlot slot) { fields_.exponentSign = std::move(slot); }
    void setLabelField(TextSlot slot) { fields_.label = std::move(slot); }
    void setStatusField(TextSlot slot) { fields_.status = std::move(slot); }

    void setLabelString(std::u16string label);
    void setLabelFieldHidden(bool hidden);
    // Takes all slots off the screen; they go on holding the line's text.
    void setFieldsHidden(bool hidden);

    // The mode that the line formats in.
    [[nodiscard]] virtual std::int32_t effectiveOutputMode() const { return outputMode_; }
    // The title of `outputMode`; "???" outside 0 to 12.
    [[nodiscard]] std::u16string outputModeTitle() const;

    // The colour of a warning.
    static NSColor errorColor();
    // The colour of all slots but the status; black if none is given.
    void setTextColor(const std::optional<NSColor>& color);
    // The font of the mantissa slot, if there is one.
    [[nodiscard]] std::optional<NSFont> textFont() const;
    // The font of all slots but label and status.
    void setTextFont(const NSFont& font);
    // Aligns the mantissa left, and right in HEX, DEC, OCT and BIN; nothing in an unknown mode.
    void updateOutputJustification();

    // The formatters take a finite number and write every slot but the label.

    // Plain decimals; a text longer than `maxDigits`, and a number that would show as zero and
    // isn't, go over to scientific form.
    void setFixedTo(double number);
    // One digit, decimals in groups of three, and an exponent of at least two digits.
    void setScientificTo(double number);

  protected:
    static void write(const TextSlot& slot, std::u16string text);
    void writeMantissa(std::u16string text) { write(fields_.mantissa, std::move(text)); }
    void writeMantissaSign(std::u16string text) { write(fields_.mantissaSign, std::move(text)); }
    void writeExponent(std::u16string text) { write(fields_.exponent, std::move(text)); }
    void writeExponentSign(std::u16string text) { write(fields_.exponentSign, std::move(text)); }
    void writeStatus(std::u16string text) { write(fields_.status, std::move(text)); }

  private:
    using Formatter = void (DYXOutputDisplay::*)(double);

    static Formatter formatterForMode(std::int32_t mode);
    // Words or a plain number: the text, its sign, and nothing else on the line.
    void writeLine(std::u16string mantissa, std::u16string sign);

    std::uint32_t digits_ = 4;
    std::uint32_t maxDigits_ = 19;
    std::int32_t outputMode_ = 0;
    bool reduceCarpentryFractions_ = true;
    bool displayIrrationals_ = false;
    char16_t decimalSeparator_ = u'.';
    std::uint32_t groupingDigits_ = 3;
    std::u16string integerGroupingSeparator_;
    std::u16string decimalGroupingSeparator_;
    DisplayFields fields_;
};

}  // namespace talvex
