#pragma once

// Bessel functions of real order.
namespace talvex {

// Bessel functions of the first and second kind of any real order at x > 0; "Bessel error" at any
// other x, for a NaN operand, and where the continued fraction doesn't converge (x above about
// 9846). Nine or ten digits below x = 2, 15 from there to about 20, then fewer as x grows: 13 at
// 100, 9 at 9000. Orders that overflow the recurrences give a NaN without a code.
double besselJv(double order, double x);
double besselYv(double order, double x);

struct BesselValues {
    double J = 0.0;
    double Y = 0.0;
    double Jderivative = 0.0;
    double Yderivative = 0.0;
};

enum class BesselStatus {
    done = 0,
    badArgument = -1,       // x <= 0 or nu < 0
    xTooLarge = -2,         // the continued fraction of J'/J didn't converge; so with a NaN
    seriesDiverged = -3,    // Temme's series, below x = 2
    fractionDiverged = -4,  // the continued fraction of p + iq, from x = 2 upward
};

// Both functions and their derivatives at x > 0 for an order nu >= 0, by Steed's method: the ratio
// of J to its derivative, a downward recurrence, and the Y part by Temme's series below x = 2 or by
// a complex continued fraction. `values` is written only if the status is `done`. Sources: A. R.
// Barnett et al., Computer Physics Communications 8 (1974); N. M. Temme, Journal of Computational
// Physics 19 (1975).
BesselStatus bessjy(double x, double nu, BesselValues& values);

// The gamma-function terms of Temme's series for |x| <= 1/2, by Chebyshev series of five terms.
struct GammaTerms {
    double gam1 = 0.0;
    double gam2 = 0.0;
    double gampl = 0.0;  // 1 / gamma(1 + x)
    double gammi = 0.0;  // 1 / gamma(1 - x)
};
GammaTerms beschb(double x);

// A Chebyshev series on [a, b] with the first m coefficients of c, by Clenshaw's recurrence.
double chebev(double a, double b, const double* c, int m, double x);

}  // namespace talvex
