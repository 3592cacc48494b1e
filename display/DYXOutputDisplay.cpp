#include "display/DYXOutputDisplay.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "display/ZUTextFieldExtensions.h"
#include "display/display_modes.h"
#include "display/number_text.h"
#include "numeric/DYXnan.h"

namespace talvex {
namespace {

TextSlot copyOf(const TextSlot& slot) {
    return slot ? ZUTextFieldExtensions::copy(*slot) : TextSlot();
}

constexpr char16_t kTriangle = u'\u25B8';
constexpr char16_t kInfinity = u'\u221E';

}  // namespace

std::unique_ptr<DYXOutputDisplay> DYXOutputDisplay::copy() const {
    auto line = std::make_unique<DYXOutputDisplay>(
        DisplayFields{.mantissa = copyOf(fields_.mantissa),
                      .mantissaSign = copyOf(fields_.mantissaSign),
                      .exponent = copyOf(fields_.exponent),
                      .exponentSign = copyOf(fields_.exponentSign),
                      .label = copyOf(fields_.label),
                      .status = nullptr});
    line->settings_ = {.digits = settings_.digits,
                       .maxDigits = settings_.maxDigits,
                       .outputMode = settings_.outputMode,
                       .reduceCarpentryFractions = settings_.reduceCarpentryFractions};
    return line;
}

void DYXOutputDisplay::syncToDisplay(const DYXOutputDisplay& line) {
    settings_ = line.settings_;
    settings_.outputMode = line.effectiveOutputMode();
    if (const auto font = line.textFont()) {
        setTextFont(*font);
    }
}

const DYXOutputDisplay::ModeRow& DYXOutputDisplay::rowOfMode(std::int32_t mode) {
    using Line = DYXOutputDisplay;
    static constexpr auto kModes = tableOfModes<ModeRow>({
        {.formatter = &Line::setFixedTo, .irrationals = Irrationals::ifDisplayed},
        {.formatter = &Line::setScientificTo, .irrationals = Irrationals::ifDisplayed},
        {.formatter = &Line::setEngineeringTo, .irrationals = Irrationals::ifDisplayed},
        {.formatter = &Line::setMonetaryTo},
        {.formatter = &Line::setFractionTo, .irrationals = Irrationals::ifDisplayed},
        {.formatter = &Line::setCarpentryTo, .irrationals = Irrationals::always},
        {.formatter = &Line::setHMSTo},
        {.formatter = &Line::setDMSTo},
        {.formatter = &Line::setHEXTo},
        {.formatter = &Line::setDecimalTo},
        {.formatter = &Line::setOctalTo},
        {.formatter = &Line::setBinaryTo},
        {.formatter = &Line::setFixedTo, .irrationals = Irrationals::always, .triesFraction = true},
    });
    static_assert(std::all_of(kModes.begin(), kModes.end(),
                              [](const ModeRow& row) { return row.formatter != nullptr; }));
    return kModes.at(static_cast<std::size_t>(mode));
}

void DYXOutputDisplay::format(const ModeRow& row, double number) {
    const bool triesIrrationals =
        row.irrationals == Irrationals::always ||
        (row.irrationals == Irrationals::ifDisplayed && settings_.displayIrrationals);
    if ((triesIrrationals && setIrrationalTo(number)) ||
        (row.triesFraction && setIrrationalFractionTo(number))) {
        return;
    }
    (this->*row.formatter)(number);
}

void DYXOutputDisplay::setOutputTo(double number) {
    setTextColor(NSColor::black());
    alignMantissaAsIn(effectiveOutputMode());
    if (std::isnan(number)) {
        show({.mantissa = worded(DYXnanString(number))});
        return;
    }
    if (std::isinf(number)) {
        show({.mantissa = {kInfinity}, .sign = signBitText(number)});
        return;
    }
    format(rowOfMode(effectiveMode(effectiveOutputMode())), number);
}

void DYXOutputDisplay::show(LineText text) {
    write(fields_.mantissa, std::move(text.mantissa));
    write(fields_.mantissaSign, std::move(text.sign));
    write(fields_.exponentSign, std::move(text.exponentSign));
    write(fields_.exponent, std::move(text.exponent));
    writeStatus(text.statusWord, text.statusRest);
}

void DYXOutputDisplay::writeStatus(std::u16string_view word, std::u16string_view rest) {
    if (fields_.status) {
        write(fields_.status, (word.empty() ? u"" : worded(word)).append(rest));
    }
}

std::u16string DYXOutputDisplay::worded(std::u16string_view word) const {
    return wording_ ? wording_(word) : std::u16string(word);
}

void DYXOutputDisplay::setLabelString(std::u16string label) {
    write(fields_.label, std::move(label));
}

void DYXOutputDisplay::setLabelFieldHidden(bool hidden) {
    if (fields_.label) {
        fields_.label->setHidden(hidden);
    }
}

void DYXOutputDisplay::setFieldsHidden(bool hidden) {
    for (const TextSlot* slot : {&fields_.mantissa, &fields_.mantissaSign, &fields_.exponent,
                                 &fields_.exponentSign, &fields_.label}) {
        if (*slot) {
            (*slot)->setHidden(hidden);
        }
    }
}

std::u16string DYXOutputDisplay::outputModeTitle() const {
    return modeTitle(ModeTitle::output, settings_.outputMode);
}

std::u16string DYXOutputDisplay::modeTitle(ModeTitle title, std::int32_t number) const {
    if (!isDisplayMode(number)) {
        return displayModeName(number);
    }
    const std::u16string name = worded(displayModeName(number));
    return title == ModeTitle::output ? name + kTriangle : kTriangle + name;
}

NSColor DYXOutputDisplay::errorColor() {
    return {.red = 137.0 / 255.0, .green = 19.0 / 255.0, .blue = 21.0 / 255.0};
}

void DYXOutputDisplay::setTextColor(const NSColor& color) {
    for (const TextSlot* slot : {&fields_.mantissa, &fields_.mantissaSign, &fields_.exponent,
                                 &fields_.exponentSign, &fields_.label}) {
        if (*slot) {
            (*slot)->setTextColor(color);
        }
    }
}

std::optional<NSFont> DYXOutputDisplay::textFont() const {
    return fields_.mantissa ? std::optional(fields_.mantissa->font()) : std::nullopt;
}

void DYXOutputDisplay::setTextFont(const NSFont& font) {
    for (const TextSlot* slot :
         {&fields_.mantissa, &fields_.mantissaSign, &fields_.exponent, &fields_.exponentSign}) {
        if (*slot) {
            (*slot)->setFont(font);
        }
    }
}

void DYXOutputDisplay::alignMantissaAsIn(std::int32_t mode) {
    if (fields_.mantissa) {
        fields_.mantissa->setAlignment(isIntegerMode(mode) ? NSTextAlignment::right
                                                           : NSTextAlignment::left);
    }
}

void DYXOutputDisplay::write(const TextSlot& slot, std::u16string text) {
    if (slot) {
        slot->setStringValue(std::move(text));
    }
}

}  // namespace talvex
