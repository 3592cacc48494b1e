// The live entry as it stands in the line's slots: ungrouped, not rounded.

#include <array>
#include <string>

#include "display/ascii_text.h"
#include "entry/DYXInputDisplay.h"
#include "entry/entry_fields.h"

namespace talvex {

std::u16string DYXInputDisplay::signText() const { return sgn_ ? u"-" : u""; }

void DYXInputDisplay::echo(NSTextAlignment alignment, std::u16string sign, std::u16string mantissa,
                           std::u16string_view baseName) {
    if (mantissaField()) {
        mantissaField()->setAlignment(alignment);
    }
    writeMantissaSign(std::move(sign));
    writeMantissa(std::move(mantissa));
    writeExponentSign(u"");
    writeExponent(std::u16string(baseName));
}

void DYXInputDisplay::updateScientific() {
    std::u16string mantissa = asciiText(wholePart());
    if (hasDecimal_) {
        mantissa += decimalSeparator() + asciiText(std::string_view(text_).substr(wholeEnd()));
    }
    echo(NSTextAlignment::left, signText(), std::move(mantissa));
    if (hasExponentDigits()) {
        writeExponentSign(asciiText({&eex_[2], 1}));
    }
    if (hasExponentDigits() || inExponent_) {
        writeExponent(asciiText({eex_.data(), 2}));
    }
}

void DYXInputDisplay::echoFractionOver(std::u16string_view defaultDenominator) {
    std::u16string mantissa = asciiText(wholePart());
    if (hasDecimal_ && exp_ == 0) {
        mantissa += u"  0/";
        mantissa += defaultDenominator;
    } else if (hasDecimal_) {
        mantissa += u"  " + (numerator().empty() ? u"0" : asciiText(numerator())) + u'/';
        mantissa += hasFraction_ ? asciiText(denominator()) : std::u16string(defaultDenominator);
    }
    echo(NSTextAlignment::left, signText(), std::move(mantissa));
}

void DYXInputDisplay::updateFraction() { echoFractionOver(u"1"); }

void DYXInputDisplay::updateCarpentry() {
    static constexpr auto kDenominators = std::to_array<std::u16string_view>(
        {u"1", u"2", u"4", u"8", u"16", u"32", u"64", u"128", u"256", u"512"});
    echoFractionOver(digits() < kDenominators.size() ? kDenominators.at(digits())
                                                     : std::u16string_view());
}

void DYXInputDisplay::updateHMS() {
    std::u16string mantissa;
    for (std::size_t place = 0; place < text_.size(); ++place) {
        if (place == kHoursFields.width()) {
            mantissa += decimalSeparator();
        }
        mantissa += static_cast<char16_t>(text_[place]);
        if (place + 1 == kHoursFields.ends[0] || place + 1 == kHoursFields.ends[1]) {
            mantissa += u" : ";
        }
    }
    echo(NSTextAlignment::left, signText(), std::move(mantissa));
}

void DYXInputDisplay::updateDMS() {
    std::u16string mantissa;
    for (std::size_t place = 0; place < text_.size(); ++place) {
        if (place == kDegreesFields.width()) {
            mantissa += decimalSeparator();
        }
        mantissa += static_cast<char16_t>(text_[place]);
        if (place + 1 == kDegreesFields.ends[0]) {
            mantissa += u"\u00B0 ";
        } else if (place + 1 == kDegreesFields.ends[1]) {
            mantissa += u"' ";
        }
    }
    if (text_.size() >= kDegreesFields.width()) {
        mantissa += u'"';
    }
    echo(NSTextAlignment::left, signText(), std::move(mantissa));
}

void DYXInputDisplay::echoInteger(std::u16string_view baseName) {
    echo(NSTextAlignment::right, signText(), asciiText(text_), baseName);
}

void DYXInputDisplay::updateHEX() { echoInteger(u"hex"); }
void DYXInputDisplay::updateOctal() { echoInteger(u"oct"); }
void DYXInputDisplay::updateBinary() { echoInteger(u"bin"); }

void DYXInputDisplay::updateDecimal() {
    echo(NSTextAlignment::right, u"", signText() + asciiText(text_), u"dec");
}

}  // namespace talvex
