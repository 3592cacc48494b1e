// FRC and CAR: a whole part and a common fraction.

#include <algorithm>
#include <cmath>
#include <string_view>

#include "display/DYXOutputDisplay.h"
#include "display/number_text.h"
#include "numeric/fraction_search.h"

namespace talvex {
namespace {

constexpr double kFractionLimit = 2147483648.0;
constexpr double kCarpentryLimit = 4294967296.0;
constexpr std::uint32_t kFinestMark = 9;  // 2 to the power 9 is 512

std::u16string_view statusWord(double shown, double magnitude) {
    return areClose(shown, magnitude) ? DYXOutputDisplay::exactStr()
                                      : DYXOutputDisplay::approxStr();
}

// The coarsest of the marks 1/512, 1/256 ... 1 at which the rounded fraction is nearest.
double reducedMark(double fraction) {
    double best = std::ldexp(1.0, kFinestMark);
    double bestError = best;
    for (double mark = best; mark >= 1.0; mark /= 2.0) {
        const double error = std::fabs(nearestNumerator(fraction, mark) / mark - fraction);
        if (error <= bestError) {
            best = mark;
            bestError = error;
        }
    }
    return best;
}

}  // namespace

std::u16string DYXOutputDisplay::mixedFractionText(std::u16string whole, double numerator,
                                                   double denominator) const {
    if (settings_.digits == 0 || numerator == 0.0) {
        return whole;
    }
    const std::u16string fraction = integerText(static_cast<std::int64_t>(numerator)) + u'/' +
                                    integerText(static_cast<std::int64_t>(denominator));
    return whole == u"0" ? fraction : whole.append(u"  ").append(fraction);
}

void DYXOutputDisplay::setFractionTo(double number) {
    const double magnitude = std::fabs(number);
    if (magnitude >= kFractionLimit) {
        setFixedTo(number);
        return;
    }
    double whole = std::floor(magnitude);
    const double fraction = magnitude - whole;
    double numerator = 0.0;
    double denominator = 1.0;
    if (fraction != 0.0) {
        denominator = bestDenominator(fraction, kLargestDenominator);
        numerator = nearestNumerator(fraction, denominator);
        if (denominator == 1.0) {
            whole += numerator;
            numerator = 0.0;
        }
        if (whole >= kFractionLimit) {
            setFixedTo(number);
            return;
        }
    }
    show({.mantissa = mixedFractionText(groupedInteger(whole), numerator, denominator),
          .sign = signText(number),
          .statusWord = statusWord(whole + numerator / denominator, magnitude)});
}

void DYXOutputDisplay::setCarpentryTo(double number) {
    const double magnitude = std::fabs(number);
    if (magnitude >= kCarpentryLimit) {
        setFixedTo(number);
        return;
    }
    const double whole = std::floor(magnitude);
    const double fraction = magnitude - whole;
    const auto finest = static_cast<int>(std::min(settings_.digits, kFinestMark));
    const double mark =
        settings_.reduceCarpentryFractions ? reducedMark(fraction) : std::ldexp(1.0, finest);
    // The search rounds and this doesn't: the fraction is read off at the mark below.
    const double numerator = std::trunc(fraction * mark);
    show({.mantissa = mixedFractionText(groupedInteger(whole), numerator, mark),
          .sign = signText(number),
          .statusWord = statusWord(numerator / mark + whole, magnitude)});
}

}  // namespace talvex
