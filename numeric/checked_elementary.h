#pragma once

#include "numeric/DYXMathContext.h"

// The functions behind the keys with a domain check: an argument without a meaning gives an error
// value (numeric/DYXnan.h). Every test is false for a NaN, so that an earlier error passes through
// with its code; the powers alone refuse a NaN exponent of a negative base.
namespace talvex {

double DYXsqrt(const DYXMathContext& context, double x);   // "sqrt error" below 0
double DYXlog(const DYXMathContext& context, double x);    // natural; "log error" below 0
double DYXlog10(const DYXMathContext& context, double x);  // "log error" below 0
double DYXlog2(const DYXMathContext& context, double x);   // "log error" below 0

double DYXacosh(const DYXMathContext& context, double x);  // "hyperbolic error" below 1
double DYXatanh(const DYXMathContext& context, double x);  // "hyperbolic error" outside [-1, 1]
double DYXcsch(const DYXMathContext& context, double x);   // "undefined" at 0
double DYXacsch(const DYXMathContext& context, double x);  // "undefined" at 0
double DYXasech(const DYXMathContext& context, double x);  // "hyperbolic error" outside [0, 1]
double DYXcoth(const DYXMathContext& context, double x);   // "undefined" at 0
double DYXacoth(const DYXMathContext& context, double x);  // "hyperbolic error" inside (-1, 1)

// e, 10 and 2 to the power x. A finite x whose result is infinite gives "overflow"; a negative one
// whose result is zero gives "underflow"; a subnormal result is a result.
double DYXexp(const DYXMathContext& context, double x);
double DYXpow10(const DYXMathContext& context, double x);
double DYXpow2(const DYXMathContext& context, double x);

// x to the power y, and y to the power x. A negative base with an exponent that isn't a whole
// number of 32 bits gives "power error".
double DYXXpowY(const DYXMathContext& context, double x, double y);
double DYXYpowX(const DYXMathContext& context, double x, double y);

// Logarithm of y to the base x, and of x to the base y; "log error" if either is below 0.
double DYXlogYbaseX(const DYXMathContext& context, double x, double y);
double DYXlogXbaseY(const DYXMathContext& context, double x, double y);

// The keys for powers and logarithms: `DYXYpowX` and `DYXlogXbaseY` if the context's
// `useHPStylePowerAndLogs` is set, else `DYXXpowY` and `DYXlogYbaseX`.
double DYXpow(const DYXMathContext& context, double x, double y);
double DYXlogbase(const DYXMathContext& context, double x, double y);

}  // namespace talvex
