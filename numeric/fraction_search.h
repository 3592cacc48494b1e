#pragma once

#include <cstdint>

namespace talvex {

// The largest denominator for which `bestDenominator` is shown to be right.
inline constexpr std::uint32_t kLargestDenominator = 99999;

// The denominator of the fraction nearest to f, 0 < f < 1, with a denominator from 1 to `limit`
// (2 to `kLargestDenominator`): the smallest d for which |n/d - f|, computed in doubles, is least,
// n being f times d rounded to the nearest integer, a tie to the even one. The same as if all
// denominators were tried, in the time of a few dozen.
std::uint32_t bestDenominator(double f, std::uint32_t limit);

// The numerator that goes with a denominator: f times d rounded, a tie to the even integer.
double nearestNumerator(double f, double d);

// Whether two numbers are equal or neighbouring doubles.
bool areClose(double left, double right);

}  // namespace talvex
