#include "numeric/riemannzeta.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "numeric/DYXnan.h"
#include "numeric/combinatorics.h"
#include "numeric/factorial_tables.h"

namespace talvex {
namespace {

constexpr unsigned int kTerms = 50;

// (-1)^k (d(50, k) - d(50, 50)) in entry k, and d(50, 50). The sums of `cheb` for one n are
// partial sums of one series, so that all of them come of one pass, to the bit; compiled in, since
// 4^i, the factorials and the four operations are the same while compiling.
struct Coefficients {
    std::array<double, kTerms> signedDifference{};
    double last = 0.0;
};

consteval Coefficients makeCoefficients() {
    std::array<double, kTerms + 1> d{};
    double sum = 0.0;
    double powerOfFour = 1.0;
    for (std::size_t i = 0; i <= kTerms; ++i) {
        const double term = FACTORIAL_CONSTANTS[kTerms - 1 + i] * powerOfFour /
                            (FACTORIAL_CONSTANTS[kTerms - i] * FACTORIAL_CONSTANTS[2 * i]);
        sum = sum + term;
        d[i] = sum * kTerms;
        powerOfFour *= 4.0;
    }
    Coefficients coefficients;
    coefficients.last = d[kTerms];
    for (std::size_t k = 0; k < kTerms; ++k) {
        const double difference = d[k] - coefficients.last;
        coefficients.signedDifference[k] = k % 2 == 1 ? -difference : difference;
    }
    return coefficients;
}

}  // namespace

double cheb(unsigned int n, unsigned int k) {
    if (n == 0 || n < k) {
        return 0.0;
    }
    double sum = 0.0;
    for (unsigned int i = 0; i <= k; ++i) {
        const double term = factorial(n - 1.0 + i) * std::pow(2.0, 2.0 * i) /
                            (factorial(static_cast<double>(n) - i) * factorial(2.0 * i));
        sum = sum + term;
    }
    return sum * n;
}

double riemannzeta(double s) {
    static constexpr Coefficients kCoefficients = makeCoefficients();
    if (s == 1.0) {
        return DYXnan('\0');
    }
    if (std::isnan(s)) {
        return s + s;  // the same error, quiet
    }
    double sum = 0.0;
    for (unsigned int k = kTerms; k-- > 0;) {
        sum = sum + kCoefficients.signedDifference[k] / std::pow(k + 1.0, s);
    }
    return withPlainNaN(-sum / ((1.0 - std::pow(2.0, 1.0 - s)) * kCoefficients.last));
}

}  // namespace talvex
