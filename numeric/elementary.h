#pragma once

// Plain functions of one or two doubles without domain checks: what can't be computed ends as an
// infinity or as a NaN without a code. Two-operand functions take the X register first and the Y
// register second, so their arithmetic reads y op x.
namespace talvex {

double cot(double x);    // 1 / tan x, x in radians
double coth(double x);   // 1 / tanh x
double sec(double x);    // 1 / cos x, x in radians
double sech(double x);   // 1 / cosh x
double csc(double x);    // 1 / sin x, x in radians
double csch(double x);   // 1 / sinh x
double acot(double x);   // -pi/2 - atan x for x < 0, else pi/2 - atan x, in radians
double acoth(double x);  // atanh 1/x
double asec(double x);   // acos 1/x, in radians
double asech(double x);  // acosh 1/x
double acsc(double x);   // asin 1/x, in radians
double acsch(double x);  // asinh 1/x

double square(double x);   // x * x
double inverse(double x);  // 1 / x
double pow10(double x);    // 10 to the power x

// x less x truncated to a 32-bit signed integer (`toInt32`), with the sign of x.
double frac(double x);

double plus(double x, double y);    // y + x
double minus(double x, double y);   // y - x
double times(double x, double y);   // y * x
double divide(double x, double y);  // y / x

// Logarithm of b to the base a: log b / log a.
double logbase(double a, double b);

// 32-bit signed integer remainder and quotient of y by x (both through `toInt32`), truncating
// toward zero, the remainder with the sign of y. A divisor of 0 gives the error "undefined".
// -2147483648 by -1 has the remainder 0 and the quotient "overflow".
double mod(double x, double y);
double divf(double x, double y);

// IEEE 754 remainder of y by x, with x added if it is below 0: in [0, x) for positive x.
double rem(double x, double y);

double hypotenuse(double x, double y);     // root of x*x + y*y, with no scaling
double geometricmean(double x, double y);  // root of x*y
double deltapercent(double x, double y);   // change from y to x in per cent: (x - y) / y * 100

}  // namespace talvex
