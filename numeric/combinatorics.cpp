#include "numeric/combinatorics.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "numeric/factorial_tables.h"
#include "numeric/integer_conversion.h"

namespace talvex {
namespace {

template <class Table>
double entryOrInfinity(const Table& table, std::uint32_t n) {
    return n < table.size() ? table[n] : std::numeric_limits<double>::infinity();
}

// At an infinity the product can stop, since all further factors and divisors are positive and
// finite. It either ends or gets there within some 520 steps: up to the middle of a row the
// coefficients of n grow with k, and those of n above 1030 exceed every double on the way.
double multiplicativeBinomial(std::uint32_t n, std::uint32_t steps) {
    double value = 1.0;
    for (std::uint32_t i = 1; i <= steps && !std::isinf(value); ++i) {
        value = value * (n - i + 1);
        value = value / i;
    }
    return value;
}

}  // namespace

double factorial(double x) { return entryOrInfinity(FACTORIAL_CONSTANTS, toCount(x)); }

double doublefactorial(double x) { return entryOrInfinity(DOUBLE_FACTORIAL_CONSTANTS, toCount(x)); }

double choose(double x, double y) {
    const std::uint32_t k = toCount(x);
    const std::uint32_t n = toCount(y);
    if (k > n) {
        return 0.0;
    }
    if (n < kPascalRows) {
        return PC[n][k];
    }
    return multiplicativeBinomial(n, k >= n / 2 ? n - k : k);
}

}  // namespace talvex
