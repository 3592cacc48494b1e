#pragma once

#include "numeric/DYXMathContext.h"
#include "numeric/conversion_direction.h"

// Units that no factor converts. Logarithms of 0 and of negative values are those of the C library:
// -infinity, and a NaN without a code.
namespace talvex {

// Decibels above one milliwatt; base unit the watt.
double DYXConvertdBm(const DYXMathContext& context, double value, Conversion direction);
// Decibels above one millivolt across 50 and 75 ohms; base unit the watt.
double DYXConvertdBmV50(const DYXMathContext& context, double value, Conversion direction);
double DYXConvertdBmV75(const DYXMathContext& context, double value, Conversion direction);

// The tangent of an angle in per cent, and as a number; base unit the degree. At multiples of 90
// degrees exactly: 0, +infinity at 90 degrees and -infinity at 270, also after full turns; 0 beyond
// 2^31 quarter turns.
double DYXConvertPercentGrade(const DYXMathContext& context, double value, Conversion direction);
double DYXConvertSlope(const DYXMathContext& context, double value, Conversion direction);

}  // namespace talvex
