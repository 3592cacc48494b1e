// FIX and SCI, on which the other formats fall back.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "display/DYXOutputDisplay.h"
#include "display/ZUMutableStringExtensions.h"
#include "display/ascii_text.h"
#include "numeric/decimal_text.h"

namespace talvex {
namespace {

constexpr std::uint32_t kScientificGroup = 3;

std::u16string signText(double number) { return std::signbit(number) ? u"-" : u""; }

std::u16string exponentText(int exponent) {
    const std::string digits = std::to_string(std::abs(exponent));
    return asciiText(digits.size() < 2 ? '0' + digits : digits);
}

// The text of zero has only zeros, so a text with another digit is another text.
bool showsAsZero(const std::string& text) {
    return text.find_first_of("123456789") == std::string::npos;
}

}  // namespace

void DYXOutputDisplay::setFixedTo(double number) {
    // No text with more places than that is plain, so that no more need be printed.
    const std::string plain = fixedText(std::fabs(number), std::min(digits_, maxDigits_));
    if (digits_ > maxDigits_ || plain.size() > maxDigits_ ||
        (number != 0.0 && showsAsZero(plain))) {
        setScientificTo(number);
        return;
    }
    std::u16string text = asciiText(plain);
    std::replace(text.begin(), text.end(), u'.', decimalSeparator_);
    // In this order: both look for the first separator, and the integer groups may bring one.
    ZUMutableStringExtensions::insertDecimalSeparatorEvery(text, decimalGroupingSeparator_,
                                                           groupingDigits_);
    ZUMutableStringExtensions::insertIntegerSeparatorEvery(text, integerGroupingSeparator_,
                                                           groupingDigits_);
    writeLine(std::move(text), signText(number));
}

void DYXOutputDisplay::setScientificTo(double number) {
    const ScientificText printed = scientificText(number, digits_);
    std::u16string text = asciiText(printed.mantissa);
    std::replace(text.begin(), text.end(), u'.', decimalSeparator_);
    ZUMutableStringExtensions::insertDecimalSeparatorEvery(text, decimalGroupingSeparator_,
                                                           kScientificGroup);
    writeMantissa(std::move(text));
    writeExponentSign(printed.exponent < 0 ? u"-" : u"");
    writeExponent(exponentText(printed.exponent));
    writeMantissaSign(signText(number));
    writeStatus(u"");
}

}  // namespace talvex
