// MON and ENG.

#include <cmath>

#include "display/DYXOutputDisplay.h"
#include "display/ZUMutableStringExtensions.h"
#include "display/ascii_text.h"
#include "display/number_text.h"
#include "numeric/decimal_text.h"

namespace talvex {
namespace {

constexpr int kEngineeringStep = 3;

// The exponent modulo 3, from 0 to 2 also below zero: so many more digits stand ahead of the point.
int placesMoved(int exponent) {
    const int remainder = exponent % kEngineeringStep;
    return remainder < 0 ? remainder + kEngineeringStep : remainder;
}

// Moves the point of a printed mantissa to the right. Where the digits end ahead of it, zeros stand
// for the places that weren't printed; a mantissa without a point stays without.
std::u16string withPointMoved(const std::string& mantissa, int places, char16_t point) {
    const bool hasPoint = mantissa.size() > 1;
    std::u16string digits = asciiText(mantissa);
    if (hasPoint) {
        digits.erase(1, 1);
    }
    const auto ahead = static_cast<std::size_t>(places) + 1;
    if (digits.size() < ahead) {
        digits.append(ahead - digits.size(), u'0');
    }
    return hasPoint ? digits.insert(ahead, 1, point) : digits;
}

}  // namespace

void DYXOutputDisplay::setMonetaryTo(double number) {
    if (std::fabs(number) > std::pow(10.0, settings_.digits) - 1.0) {
        setScientificTo(number);
        return;
    }
    show({.mantissa = pointedText(asciiText(fixedText(std::fabs(number), settings_.digits))),
          .sign = signBitText(number)});
}

void DYXOutputDisplay::setEngineeringTo(double number) {
    constexpr std::uint32_t kGroup = 3;
    const ScientificText printed = scientificText(number, settings_.digits);
    const int moved = placesMoved(printed.exponent);
    const int exponent = printed.exponent - moved;
    std::u16string text = withPointMoved(printed.mantissa, moved, settings_.decimalSeparator);
    ZUMutableStringExtensions::insertDecimalSeparatorEvery(text, settings_.decimalGroupingSeparator,
                                                           kGroup);
    show({.mantissa = std::move(text),
          .sign = signBitText(number),
          .exponentSign = signText(exponent),
          .exponent = exponentText(exponent)});
}

}  // namespace talvex
