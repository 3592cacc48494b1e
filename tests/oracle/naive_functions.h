#pragma once

#include <cstdint>

// The functions that leave a loop early or keep a result, written as the loops run to their end.
namespace talvex {

// `choose` beyond the rows of the triangle, n above 20 and k up to n.
double naiveBinomial(std::uint32_t n, std::uint32_t k);
double naiveZeta(double s);
// `bestDenominator`.
std::uint32_t naiveDenominator(double f, std::uint32_t limit);
double naiveNewton(double (*function)(double), double (*derivative)(double), double target,
                   double start, double tolerance);

}  // namespace talvex
