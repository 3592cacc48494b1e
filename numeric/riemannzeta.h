#pragma once

namespace talvex {

// The coefficient d(n, k) of the alternating-series acceleration: n times the sum over i from 0 to
// k of (n + i - 1)! 4^i / ((n - i)! (2i)!). 0 if n is 0 or below k. Factorials beyond 170! count
// as infinite. Source: P. Borwein, An efficient algorithm for the Riemann zeta function (2000).
double cheb(unsigned int n, unsigned int k);

// The Riemann zeta function of a real argument, by Borwein's second algorithm with n = 50 over the
// whole line. A few units in the last place for positive s, but near the pole, where digits are
// lost in proportion to 1 / |s - 1|; below 0 the alternating terms grow, and from about -10 on no
// digit is left. The pole at 1 is a NaN without a code.
double riemannzeta(double s);

}  // namespace talvex
