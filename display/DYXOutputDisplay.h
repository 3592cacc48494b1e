#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "display/DisplayFields.h"
#include "display/LineSettings.h"
#include "display/LineText.h"

namespace talvex {

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

    // Shows the number in the effective mode, in FIX if there is no such mode. NaNs and infinities
    // show as words in every mode.
    void setOutputTo(double number);

    [[nodiscard]] const LineSettings& settings() const { return settings_; }
    void setSettings(LineSettings settings) { settings_ = std::move(settings); }
    [[nodiscard]] std::uint32_t digits() const { return settings_.digits; }
    [[nodiscard]] std::int32_t outputMode() const { return settings_.outputMode; }
    [[nodiscard]] bool reduceCarpentryFractions() const {
        return settings_.reduceCarpentryFractions;
    }
    [[nodiscard]] bool displayIrrationals() const { return settings_.displayIrrationals; }
    [[nodiscard]] char16_t decimalSeparator() const { return settings_.decimalSeparator; }

    [[nodiscard]] const TextSlot& mantissaField() const { return fields_.mantissa; }
    [[nodiscard]] const TextSlot& mantissaSignField() const { return fields_.mantissaSign; }
    [[nodiscard]] const TextSlot& exponentField() const { return fields_.exponent; }
    [[nodiscard]] const TextSlot& exponentSignField() const { return fields_.exponentSign; }
    [[nodiscard]] const TextSlot& labelField() const { return fields_.label; }
    [[nodiscard]] const TextSlot& statusField() const { return fields_.status; }

    void setLabelString(std::u16string label);
    void setLabelFieldHidden(bool hidden);
    // Takes all slots but the status off the screen, or puts them back; hidden ones go on holding
    // the line's text.
    void setFieldsHidden(bool hidden);

    // How the user's language says a word that the line shows: a status, an error value, a mode.
    // By itself a line speaks English. Names of bases are no words: they are part of the number.
    using Wording = std::function<std::u16string(std::u16string_view)>;
    void setWording(Wording wording) { wording_ = std::move(wording); }

    // The mode that the line formats in.
    [[nodiscard]] virtual std::int32_t effectiveOutputMode() const { return settings_.outputMode; }
    // The title of `outputMode`; "???" outside 0 to 12.
    [[nodiscard]] std::u16string outputModeTitle() const;

    // The status words of a fraction.
    static constexpr std::u16string_view exactStr() { return u"exact"; }
    static constexpr std::u16string_view approxStr() { return u"approx"; }

    // The colour of a warning.
    static NSColor errorColor();
    // The colour of all slots but the status.
    void setTextColor(const NSColor& color);
    // The font of the mantissa slot, if there is one.
    [[nodiscard]] std::optional<NSFont> textFont() const;
    // The font of all slots but label and status.
    void setTextFont(const NSFont& font);

    // The formatters take a finite number and write every slot but the label.

    // Plain decimals; a text longer than `maxDigits`, and a number that would show as zero and
    // isn't, go over to scientific form.
    void setFixedTo(double number);
    // One digit, decimals in groups of three, and an exponent of at least two digits.
    void setScientificTo(double number);
    // Plain decimals up to 10 to the power `digits`, less 1; beyond, scientific form.
    void setMonetaryTo(double number);
    // An exponent that is a multiple of 3, and one to three digits ahead of the point.
    void setEngineeringTo(double number);
    // Whole part and the nearest fraction with a denominator up to 99999; FIX from 2^31.
    void setFractionTo(double number);
    // Whole part and halves, quarters, up to 512ths, cut off to the mark below; FIX from 2^32.
    void setCarpentryTo(double number);
    // The number modulo 24 as hours, minutes and seconds, and modulo 360 as an angle.
    void setHMSTo(double number);
    void setDMSTo(double number);
    // The nearest 32-bit integer, unsigned but in DEC, with a warning where it isn't the number.
    void setHEXTo(double number);
    void setDecimalTo(double number);
    void setOctalTo(double number);
    void setBinaryTo(double number);

    // A multiple, by a fraction with a denominator up to 999, of pi, the roots of 2 and 3, e or
    // 1/pi, tried in this order; and the fraction itself. False if the number is none to the last
    // bit but one: the next formatter is to go on.
    bool setIrrationalTo(double number);
    bool setIrrationalFractionTo(double number);

  protected:
    void show(LineText text);
    // Left, and right in HEX, DEC, OCT and BIN.
    void alignMantissaAsIn(std::int32_t mode);

    enum class ModeTitle { input, output };
    // The name of a mode with a small triangle ahead of it or behind it.
    [[nodiscard]] std::u16string modeTitle(ModeTitle title, std::int32_t number) const;

  private:
    // How a mode shows a number: by the first of its tries that fits, or else by its formatter.
    enum class Irrationals { never, ifDisplayed, always };
    struct ModeRow {
        void (DYXOutputDisplay::*formatter)(double);
        Irrationals irrationals = Irrationals::never;
        bool triesFraction = false;
    };
    static const ModeRow& rowOfMode(std::int32_t mode);
    void format(const ModeRow& row, double number);

    static void write(const TextSlot& slot, std::u16string text);
    // A word, and what isn't one behind it.
    void writeStatus(std::u16string_view word, std::u16string_view rest = {});
    [[nodiscard]] std::u16string worded(std::u16string_view word) const;
    // Printed decimals with the line's point and groups.
    [[nodiscard]] std::u16string pointedText(std::u16string text) const;
    // A whole number in the line's groups.
    [[nodiscard]] std::u16string groupedInteger(double number) const;
    // The whole part alone if `digits` is 0 or there is no fraction; the fraction alone if the
    // whole part is "0".
    [[nodiscard]] std::u16string mixedFractionText(std::u16string whole, double numerator,
                                                   double denominator) const;

    struct SexagesimalLayout;
    void setSexagesimalTo(double number, const SexagesimalLayout& layout);
    struct IntegerView;
    void showInteger(std::u16string mantissa, const IntegerView& view);
    struct GroupedBase;
    void setGroupedBaseTo(double number, const GroupedBase& base);

    LineSettings settings_;
    Wording wording_;
    DisplayFields fields_;
};

}  // namespace talvex
