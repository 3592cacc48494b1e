// Multiples of a few irrational numbers by a fraction, and the fraction itself.

#include <array>
#include <cmath>
#include <optional>
#include <string_view>

#include "display/DYXOutputDisplay.h"
#include "display/number_text.h"
#include "numeric/fraction_search.h"

namespace talvex {
namespace {

constexpr double kIntegerLimit = 2147483648.0;
constexpr std::uint32_t kLimit = 999;
constexpr double kPi = 3.141592653589793;

// A constant whose multiples are recognised; an inverse one stands in the denominator.
struct Irrational {
    double constant;
    std::u16string_view symbol;
    bool isInverse = false;
};

// In the order of the tries.
constexpr auto kIrrationals = std::to_array<Irrational>({
    {.constant = kPi, .symbol = u"\u03C0"},
    {.constant = 1.4142135623730951, .symbol = u"\u221A2"},
    {.constant = 1.7320508075688772, .symbol = u"\u221A3"},
    {.constant = 2.718281828459045, .symbol = u"e"},
    {.constant = kPi, .symbol = u"\u03C0", .isInverse = true},
});

// A magnitude as whole + numerator/denominator.
struct MixedFraction {
    double whole = 0.0;
    double numerator = 0.0;
    double denominator = 1.0;
};

// The fraction nearest to a magnitude below 2^31.
MixedFraction nearestFraction(double magnitude) {
    MixedFraction result{.whole = std::floor(magnitude)};
    const double fraction = magnitude - result.whole;
    if (fraction != 0.0) {
        result.denominator = bestDenominator(fraction, kLimit);
        result.numerator = nearestNumerator(fraction, result.denominator);
        if (result.denominator == 1.0) {
            result.whole += result.numerator;
            result.numerator = 0.0;
        }
    }
    return result;
}

std::u16string multipleText(const Irrational& irrational, double numerator, double denominator) {
    const std::u16string symbol(irrational.symbol);
    const std::u16string above = integerText(static_cast<std::int64_t>(numerator));
    const std::u16string below =
        denominator == 1.0 ? u"" : integerText(static_cast<std::int64_t>(denominator));
    if (irrational.isInverse) {
        return above + u'/' + below + symbol;
    }
    return (numerator == 1.0 ? u"" : above) + symbol + (below.empty() ? u"" : u'/' + below);
}

// The text of the multiple that the quotient of a number and the constant is, if it is one.
std::optional<std::u16string> recognise(const Irrational& irrational, double quotient) {
    const double magnitude = std::fabs(quotient);
    if (magnitude >= kIntegerLimit) {
        return std::nullopt;
    }
    const bool isWhole = std::floor(magnitude) == magnitude;
    const MixedFraction fraction = nearestFraction(magnitude);
    const double numerator = fraction.whole * fraction.denominator + fraction.numerator;
    if (numerator >= kIntegerLimit || !areClose(numerator / fraction.denominator, magnitude)) {
        return std::nullopt;
    }
    if (numerator == 0.0 && !isWhole) {
        return u"0";
    }
    return multipleText(irrational, numerator, fraction.denominator);
}

}  // namespace

bool DYXOutputDisplay::setIrrationalTo(double number) {
    if (number == 0.0) {
        return false;
    }
    writeStatus(u"");
    for (const Irrational& irrational : kIrrationals) {
        const double quotient =
            irrational.isInverse ? number * irrational.constant : number / irrational.constant;
        if (auto text = recognise(irrational, quotient)) {
            show({.mantissa = std::move(*text),
                  .sign = signText(quotient),
                  .statusWord = exactStr()});
            return true;
        }
    }
    return false;
}

bool DYXOutputDisplay::setIrrationalFractionTo(double number) {
    const double magnitude = std::fabs(number);
    if (magnitude >= kIntegerLimit) {
        return false;
    }
    const auto [whole, numerator, denominator] = nearestFraction(magnitude);
    if (whole >= kIntegerLimit || !areClose(whole + numerator / denominator, magnitude)) {
        return false;
    }
    std::u16string text =
        mixedFractionText(integerText(static_cast<std::int64_t>(whole)), numerator, denominator);
    show({.mantissa = std::move(text), .sign = signText(number), .statusWord = exactStr()});
    return true;
}

}  // namespace talvex
