#include "oracle/naive_functions.h"

#include <cmath>

#include "numeric/riemannzeta.h"

namespace talvex {

double naiveBinomial(std::uint32_t n, std::uint32_t k) {
    const std::uint32_t steps = k >= n / 2 ? n - k : k;
    double top = n;
    double value = 1.0;
    for (std::uint32_t i = 1; i <= steps; ++i) {
        value = value * top;
        value = value / i;
        top = top - 1.0;
    }
    return value;
}

double naiveZeta(double s) {
    if (s == 1.0) {
        return std::nan("");
    }
    const double d = cheb(50, 50);
    double sum = 0.0;
    for (int k = 49; k >= 0; --k) {
        double term = (cheb(50, static_cast<unsigned>(k)) - d) / std::pow(k + 1.0, s);
        if (k % 2 == 1) {
            term = -term;
        }
        sum = sum + term;
    }
    sum = -sum;
    return sum / ((1.0 - std::pow(2.0, 1.0 - s)) * d);
}

std::uint32_t naiveDenominator(double f, std::uint32_t limit) {
    double best = limit;
    std::uint32_t bestDenominator = limit;
    for (std::uint32_t d = limit; d >= 1; --d) {
        const double error = std::fabs(std::rint(f * d) / d - f);
        if (error <= best) {
            best = error;
            bestDenominator = d;
        }
    }
    return bestDenominator;
}

double naiveNewton(double (*function)(double), double (*derivative)(double), double target,
                   double start, double tolerance) {
    double x = start;
    for (int step = 1; step <= 1000; ++step) {
        const double f = function(x);
        const double d = derivative(x);
        const double next = x - (f - target) / d;
        if (std::fabs(next - x) < tolerance) {
            return next;
        }
        x = next;
    }
    return x;
}

}  // namespace talvex
