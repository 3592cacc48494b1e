#include "numeric/checked_elementary.h"

#include <cmath>

#include "numeric/DYXnan.h"
#include "numeric/elementary.h"
#include "numeric/integer_conversion.h"

namespace talvex {
namespace {

// False for a NaN, and for whole numbers beyond 32 bits.
bool isWholeInt32(double value) { return static_cast<double>(toInt32(value)) == value; }

double checkedPower(double base, double exponent) {
    if (base < 0.0 && !isWholeInt32(exponent)) {
        return DYXnan('P');
    }
    return std::pow(base, exponent);
}

double checkedLogarithm(double base, double argument) {
    return base < 0.0 || argument < 0.0 ? DYXnan('L') : logbase(base, argument);
}

double checkedExponential(double x, double result) {
    if (std::isinf(result) && std::isfinite(x)) {
        return DYXnan('O');
    }
    if (x < 0.0 && !std::isinf(x) && result == 0.0) {
        return DYXnan('U');
    }
    return result;
}

}  // namespace

using Context = DYXMathContext;

double DYXsqrt(const Context&, double x) { return x < 0.0 ? DYXnan('Q') : std::sqrt(x); }
double DYXlog(const Context&, double x) { return x < 0.0 ? DYXnan('L') : std::log(x); }
double DYXlog10(const Context&, double x) { return x < 0.0 ? DYXnan('L') : std::log10(x); }
double DYXlog2(const Context&, double x) { return x < 0.0 ? DYXnan('L') : std::log2(x); }

double DYXacosh(const Context&, double x) { return x < 1.0 ? DYXnan('H') : std::acosh(x); }

double DYXatanh(const Context&, double x) {
    return x > 1.0 || x < -1.0 ? DYXnan('H') : std::atanh(x);
}

double DYXcsch(const Context&, double x) { return x == 0.0 ? DYXnan('?') : csch(x); }
double DYXacsch(const Context&, double x) { return x == 0.0 ? DYXnan('?') : acsch(x); }

double DYXasech(const Context&, double x) { return x < 0.0 || x > 1.0 ? DYXnan('H') : asech(x); }

double DYXcoth(const Context&, double x) { return x == 0.0 ? DYXnan('?') : coth(x); }

double DYXacoth(const Context&, double x) { return x > -1.0 && x < 1.0 ? DYXnan('H') : acoth(x); }

double DYXexp(const Context&, double x) { return checkedExponential(x, std::exp(x)); }
double DYXpow10(const Context&, double x) { return checkedExponential(x, pow10(x)); }
double DYXpow2(const Context&, double x) { return checkedExponential(x, std::pow(2.0, x)); }

double DYXXpowY(const Context&, double x, double y) { return checkedPower(x, y); }
double DYXYpowX(const Context&, double x, double y) { return checkedPower(y, x); }
double DYXlogYbaseX(const Context&, double x, double y) { return checkedLogarithm(x, y); }
double DYXlogXbaseY(const Context&, double x, double y) { return checkedLogarithm(y, x); }

double DYXpow(const Context& context, double x, double y) {
    return context.useHPStylePowerAndLogs ? DYXYpowX(context, x, y) : DYXXpowY(context, x, y);
}

double DYXlogbase(const Context& context, double x, double y) {
    return context.useHPStylePowerAndLogs ? DYXlogXbaseY(context, x, y)
                                          : DYXlogYbaseX(context, x, y);
}

}  // namespace talvex
