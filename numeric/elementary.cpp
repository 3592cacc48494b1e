#include "numeric/elementary.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "numeric/DYXnan.h"
#include "numeric/integer_conversion.h"

namespace talvex {
namespace {

constexpr double kHalfPi = 1.5707963267948966;

bool quotientOverflows(std::int32_t dividend, std::int32_t divisor) {
    return dividend == std::numeric_limits<std::int32_t>::min() && divisor == -1;
}

}  // namespace

double cot(double x) { return 1.0 / std::tan(x); }
double coth(double x) { return 1.0 / std::tanh(x); }
double sec(double x) { return 1.0 / std::cos(x); }
double sech(double x) { return 1.0 / std::cosh(x); }
double csc(double x) { return 1.0 / std::sin(x); }
double csch(double x) { return 1.0 / std::sinh(x); }
double acot(double x) { return x < 0.0 ? -kHalfPi - std::atan(x) : kHalfPi - std::atan(x); }
double acoth(double x) { return std::atanh(1.0 / x); }
double asec(double x) { return std::acos(1.0 / x); }
double asech(double x) { return std::acosh(1.0 / x); }
double acsc(double x) { return std::asin(1.0 / x); }
double acsch(double x) { return std::asinh(1.0 / x); }

double square(double x) { return x * x; }
double inverse(double x) { return 1.0 / x; }
double pow10(double x) { return std::pow(10.0, x); }
double frac(double x) { return x - toInt32(x); }

double plus(double x, double y) { return y + x; }
double minus(double x, double y) { return y - x; }
double times(double x, double y) { return y * x; }
double divide(double x, double y) { return y / x; }
double logbase(double a, double b) { return std::log(b) / std::log(a); }

double mod(double x, double y) {
    const std::int32_t divisor = toInt32(x);
    const std::int32_t dividend = toInt32(y);
    if (divisor == 0) {
        return DYXnan('?');
    }
    return quotientOverflows(dividend, divisor) ? 0.0 : dividend % divisor;
}

double divf(double x, double y) {
    const std::int32_t divisor = toInt32(x);
    const std::int32_t dividend = toInt32(y);
    if (divisor == 0) {
        return DYXnan('?');
    }
    if (quotientOverflows(dividend, divisor)) {
        return DYXnan('O');
    }
    const std::int32_t quotient = dividend / divisor;
    return quotient;
}

double rem(double x, double y) {
    const double remainder = std::remainder(y, x);
    return remainder < 0.0 ? remainder + x : remainder;
}

double hypotenuse(double x, double y) { return std::sqrt(x * x + y * y); }
double geometricmean(double x, double y) { return std::sqrt(x * y); }
double deltapercent(double x, double y) { return (x - y) / y * 100.0; }

}  // namespace talvex
