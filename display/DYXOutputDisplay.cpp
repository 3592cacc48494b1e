#include "display/DYXOutputDisplay.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "display/ZUTextFieldExtensions.h"
#include "display/display_modes.h"
#include "numeric/DYXnan.h"

namespace talvex {
namespace {

TextSlot copyOf(const TextSlot& slot) {
    return slot ? ZUTextFieldExtensions::copy(*slot) : TextSlot();
}

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
    line->digits_ = digits_;
    line->maxDigits_ = maxDigits_;
    line->outputMode_ = outputMode_;
    line->reduceCarpentryFractions_ = reduceCarpentryFractions_;
    return line;
}

void DYXOutputDisplay::syncToDisplay(const DYXOutputDisplay& line) {
    digits_ = line.digits_;
    maxDigits_ = line.maxDigits_;
    outputMode_ = line.effectiveOutputMode();
    reduceCarpentryFractions_ = line.reduceCarpentryFractions_;
    displayIrrationals_ = line.displayIrrationals_;
    decimalSeparator_ = line.decimalSeparator_;
    integerGroupingSeparator_ = line.integerGroupingSeparator_;
    decimalGroupingSeparator_ = line.decimalGroupingSeparator_;
    groupingDigits_ = line.groupingDigits_;
    if (const auto font = line.textFont()) {
        setTextFont(*font);
    }
}

// A mode without a formatter of its own declines, and the number shows as in FIX.
DYXOutputDisplay::Formatter DYXOutputDisplay::formatterForMode(std::int32_t mode) {
    static constexpr std::array<Formatter, mode::count> kFormatters = [] {
        std::array<Formatter, mode::count> rows{};
        rows.fill(&DYXOutputDisplay::setFixedTo);
        rows[mode::SCI] = &DYXOutputDisplay::setScientificTo;
        return rows;
    }();
    return kFormatters.at(static_cast<std::size_t>(mode));
}

void DYXOutputDisplay::setOutputTo(double number) {
    setTextColor(NSColor::black());
    updateOutputJustification();
    if (std::isnan(number)) {
        writeLine(DYXnanString(number), u"");
        return;
    }
    if (std::isinf(number)) {
        writeLine({kInfinity}, std::signbit(number) ? u"-" : u"");
        return;
    }
    const std::int32_t mode = effectiveOutputMode();
    if (isDisplayMode(mode)) {
        (this->*formatterForMode(mode))(number);
    }
}

void DYXOutputDisplay::writeLine(std::u16string mantissa, std::u16string sign) {
    writeMantissa(std::move(mantissa));
    writeMantissaSign(std::move(sign));
    writeExponentSign(u"");
    writeExponent(u"");
    writeStatus(u"");
}

void DYXOutputDisplay::setIntegerGroupingSeparator(std::u16string separator) {
    integerGroupingSeparator_ = std::move(separator);
}

void DYXOutputDisplay::setDecimalGroupingSeparator(std::u16string separator) {
    decimalGroupingSeparator_ = std::move(separator);
}

void DYXOutputDisplay::setGroupingSeparator(const std::u16string& separator) {
    setIntegerGroupingSeparator(separator);
    setDecimalGroupingSeparator(separator);
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
    return talvex::outputModeTitle(outputMode_);
}

NSColor DYXOutputDisplay::errorColor() {
    return {.red = 137.0 / 255.0, .green = 19.0 / 255.0, .blue = 21.0 / 255.0};
}

void DYXOutputDisplay::setTextColor(const std::optional<NSColor>& color) {
    for (const TextSlot* slot : {&fields_.mantissa, &fields_.mantissaSign, &fields_.exponent,
                                 &fields_.exponentSign, &fields_.label}) {
        if (*slot) {
            (*slot)->setTextColor(color.value_or(NSColor::black()));
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

void DYXOutputDisplay::updateOutputJustification() {
    const std::int32_t mode = effectiveOutputMode();
    if (fields_.mantissa && isDisplayMode(mode)) {
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
