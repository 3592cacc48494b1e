#pragma once

#include "numeric/DYXMathContext.h"

// Trigonometry in the context's angle mode, exact at the special angles, and the six generic
// functions behind the keys, which choose by the context's modifiers. A pole gives the error
// "undefined", an argument outside an inverse function's domain "trig error".
namespace talvex {

// Whether x is exactly a multiple of a half turn, or exactly an odd multiple of a quarter turn, in
// the arithmetic of doubles; there is no tolerance. Infinities are multiples and not odd.
bool DYXMultiplePi(AngleMode angleMode, double x);
bool DYXOddMultiplePi2(AngleMode angleMode, double x);

double DYXsin(const DYXMathContext& context, double x);
double DYXcos(const DYXMathContext& context, double x);
double DYXtan(const DYXMathContext& context, double x);
double DYXcsc(const DYXMathContext& context, double x);
double DYXsec(const DYXMathContext& context, double x);
double DYXcot(const DYXMathContext& context, double x);

double DYXasin(const DYXMathContext& context, double x);
double DYXacos(const DYXMathContext& context, double x);
double DYXatan(const DYXMathContext& context, double x);
double DYXacsc(const DYXMathContext& context, double x);
double DYXasec(const DYXMathContext& context, double x);
double DYXacot(const DYXMathContext& context, double x);

// Circular, arc, hyperbolic or inverse hyperbolic, by `inverse` and `hyperbolic` of the context.
double DYXgensin(const DYXMathContext& context, double x);
double DYXgencos(const DYXMathContext& context, double x);
double DYXgentan(const DYXMathContext& context, double x);
double DYXgencsc(const DYXMathContext& context, double x);
double DYXgensec(const DYXMathContext& context, double x);
double DYXgencot(const DYXMathContext& context, double x);

}  // namespace talvex
