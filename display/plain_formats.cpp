// FIX and SCI, on which the other formats fall back.

#include <algorithm>
#include <cmath>

#include "display/DYXOutputDisplay.h"
#include "display/ZUMutableStringExtensions.h"
#include "display/ascii_text.h"
#include "display/number_text.h"
#include "numeric/decimal_text.h"

namespace talvex {
namespace {

constexpr std::uint32_t kScientificGroup = 3;

// The text of zero has only zeros, so a text with another digit is another text.
bool showsAsZero(const std::string& text) {
    return text.find_first_of("123456789") == std::string::npos;
}

}  // namespace

std::u16string DYXOutputDisplay::pointedText(std::u16string text) const {
    std::replace(text.begin(), text.end(), u'.', settings_.decimalSeparator);
    // In this order: both look for the first separator, and the integer groups may bring one.
    ZUMutableStringExtensions::insertDecimalSeparatorEvery(text, settings_.decimalGroupingSeparator,
                                                           settings_.groupingDigits);
    ZUMutableStringExtensions::insertIntegerSeparatorEvery(text, settings_.integerGroupingSeparator,
                                                           settings_.groupingDigits);
    return text;
}

std::u16string DYXOutputDisplay::groupedInteger(double number) const {
    std::u16string text = asciiText(fixedText(std::fabs(number), 0));
    ZUMutableStringExtensions::insertIntegerSeparatorEvery(text, settings_.integerGroupingSeparator,
                                                           settings_.groupingDigits);
    return signText(number) + text;
}

void DYXOutputDisplay::setFixedTo(double number) {
    // No text with more places than that is plain, so that no more need be printed.
    const std::string plain =
        fixedText(std::fabs(number), std::min(settings_.digits, settings_.maxDigits));
    if (settings_.digits > settings_.maxDigits || plain.size() > settings_.maxDigits ||
        (number != 0.0 && showsAsZero(plain))) {
        setScientificTo(number);
        return;
    }
    show({.mantissa = pointedText(asciiText(plain)), .sign = signBitText(number)});
}

void DYXOutputDisplay::setScientificTo(double number) {
    const ScientificText printed = scientificText(number, settings_.digits);
    std::u16string text = asciiText(printed.mantissa);
    std::replace(text.begin(), text.end(), u'.', settings_.decimalSeparator);
    ZUMutableStringExtensions::insertDecimalSeparatorEvery(text, settings_.decimalGroupingSeparator,
                                                           kScientificGroup);
    show({.mantissa = std::move(text),
          .sign = signBitText(number),
          .exponentSign = signText(printed.exponent),
          .exponent = exponentText(printed.exponent)});
}

}  // namespace talvex
