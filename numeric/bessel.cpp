#include "numeric/bessel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

#include "numeric/DYXnan.h"
#include "numeric/integer_conversion.h"

namespace talvex {
namespace {

constexpr double EPS = 1e-16;
constexpr double FPMIN = 1e-30;
constexpr int MAXIT = 10000;
constexpr double XMIN = 2.0;
constexpr double PI = 3.141592653589793;

// The five that are used of each are enough for nine or ten digits.
constexpr std::array c1{-1.142022680371172, 0.006516511267076, 0.000308709017308, -3.470626964e-06,
                        6.943764e-09,       3.678e-11,         -1.36e-13};
constexpr std::array c2{1.843740587300906, -0.076852840844786, 0.001271927136655, -4.971736704e-06,
                        -3.312612e-08,     2.4231e-10,         -1.7e-13,          -1e-15};
constexpr int kGammaTerms = 5;

// The order nu is mu + nl; the functions are found at mu and carried up to nu.
struct Orders {
    Orders(double x, double nu)
        : nl(x < XMIN ? toInt32(nu + 0.5) : std::max(toInt32(nu - x + 1.5), 0)),
          mu(nu - nl),
          mu2(mu * mu),
          xi(1.0 / x),
          xi2(2.0 * xi),
          w(xi2 / PI) {}

    std::int32_t nl;
    double mu;
    double mu2;
    double xi;
    double xi2;
    double w;  // the Wronskian
};

// The ratio h of J' to J at the order nu, and the sign of J there.
struct Ratio {
    double h;
    int isign;
};

double atLeastFloor(double value) { return std::fabs(value) < FPMIN ? FPMIN : value; }

std::optional<Ratio> firstFraction(double nu, const Orders& orders) {
    int isign = 1;
    double h = nu * orders.xi;
    if (h < FPMIN) {
        h = FPMIN;
    }
    double b = orders.xi2 * nu;
    double d = 0.0;
    double c = h;
    for (int step = 0; step < MAXIT; ++step) {
        b = b + orders.xi2;
        d = atLeastFloor(b - d);
        c = atLeastFloor(b - 1.0 / c);
        d = 1.0 / d;
        const double del = c * d;
        h = del * h;
        if (d < 0.0) {
            isign = -isign;
        }
        if (std::fabs(del - 1.0) < EPS) {
            return Ratio{.h = h, .isign = isign};
        }
    }
    return std::nullopt;
}

// Unnormalised J and its derivative at the orders nu (`rjl1`, `rjp1`) and mu (`rjl`); f is the
// ratio of the derivative to J at mu.
struct Downward {
    double rjl1;
    double rjp1;
    double rjl;
    double f;
};

// Two NaNs stay NaNs, so that the recurrence can stop there. It gets there soon after it overflows,
// and it overflows well before it becomes long: where the fraction above converges in 10000 steps
// and nl is large, J falls fast with the order.
Downward recurDownward(double nu, const Orders& orders, const Ratio& ratio) {
    double rjl = ratio.isign * FPMIN;
    double rjpl = ratio.h * rjl;
    const double rjl1 = rjl;
    const double rjp1 = rjpl;
    double fact = nu * orders.xi;
    for (std::int32_t l = orders.nl; l >= 1; --l) {
        const double rjtemp = fact * rjl + rjpl;
        fact = fact - orders.xi;
        rjpl = fact * rjtemp - rjl;
        rjl = rjtemp;
        if (std::isnan(rjl) && std::isnan(rjpl)) {
            break;
        }
    }
    if (rjl == 0.0) {
        rjl = EPS;
    }
    return {.rjl1 = rjl1, .rjp1 = rjp1, .rjl = rjl, .f = rjpl / rjl};
}

// J and Y at the order mu, and Y at mu + 1.
struct LowOrder {
    double rjmu;
    double rymu;
    double ry1;
};

double sineRatio(double angle) { return std::fabs(angle) < EPS ? 1.0 : std::sin(angle) / angle; }

std::optional<LowOrder> temmeSeries(double x, const Orders& orders, double f) {
    const double mu = orders.mu;
    const double x2 = x / 2.0;
    const double pimu = PI * mu;
    const double fact = std::fabs(pimu) < EPS ? 1.0 : pimu / std::sin(pimu);
    double d = -std::log(x2);
    double e = mu * d;
    const double fact2 = std::fabs(e) < EPS ? 1.0 : std::sinh(e) / e;
    const GammaTerms gamma = beschb(mu);
    double ff = 0.6366197723675814 * fact * (gamma.gam1 * std::cosh(e) + gamma.gam2 * fact2 * d);
    e = std::exp(e);
    double p = e / (gamma.gampl * PI);
    double q = 1.0 / (e * PI * gamma.gammi);
    const double pimu2 = pimu / 2.0;
    const double fact3 = sineRatio(pimu2);
    const double r = PI * pimu2 * fact3 * fact3;
    double c = 1.0;
    d = -x2 * x2;
    double sum = ff + r * q;
    double sum1 = p;
    for (int step = 1; step <= MAXIT; ++step) {
        const double i = step;
        ff = (i * ff + p + q) / (i * i - orders.mu2);
        c = c * (d / i);
        p = p / (i - mu);
        q = q / (i + mu);
        const double del = c * (ff + r * q);
        sum = sum + del;
        const double del1 = c * p - i * del;
        sum1 = sum1 + del1;
        if (std::fabs(del) < (1.0 + std::fabs(sum)) * EPS) {
            const double rymu = -sum;
            const double ry1 = -sum1 * orders.xi2;
            const double rymup = mu * orders.xi * rymu - ry1;
            return LowOrder{.rjmu = orders.w / (rymup - f * rymu), .rymu = rymu, .ry1 = ry1};
        }
    }
    return std::nullopt;
}

struct Complex {
    double re;
    double im;
};

Complex operator*(const Complex& left, const Complex& right) {
    return {.re = left.re * right.re - left.im * right.im,
            .im = left.re * right.im + left.im * right.re};
}

// p + iq, the logarithmic derivative of J + iY.
std::optional<Complex> secondFraction(double x, const Orders& orders) {
    double a = 0.25 - orders.mu2;
    Complex pq{.re = -0.5 * orders.xi, .im = 1.0};
    const double br = 2.0 * x;
    double bi = 2.0;
    double fact = a * orders.xi / (pq.re * pq.re + pq.im * pq.im);
    Complex c{.re = br + pq.im * fact, .im = bi + pq.re * fact};
    double den = br * br + bi * bi;
    Complex d{.re = br / den, .im = -bi / den};
    Complex dl = c * d;
    pq = pq * dl;
    for (int i = 2; i <= MAXIT; ++i) {
        a = a + 2 * (i - 1);
        bi = bi + 2.0;
        d = {.re = a * d.re + br, .im = a * d.im + bi};
        if (std::fabs(d.re) + std::fabs(d.im) < FPMIN) {
            d.re = FPMIN;
        }
        fact = a / (c.re * c.re + c.im * c.im);
        c = {.re = br + c.re * fact, .im = bi - c.im * fact};
        if (std::fabs(c.re) + std::fabs(c.im) < FPMIN) {
            c.re = FPMIN;
        }
        den = d.re * d.re + d.im * d.im;
        d = {.re = d.re / den, .im = d.im / -den};
        dl = c * d;
        pq = pq * dl;
        if (std::fabs(dl.re - 1.0) + std::fabs(dl.im) < EPS) {
            return pq;
        }
    }
    return std::nullopt;
}

std::optional<LowOrder> steedFraction(double x, const Orders& orders, const Downward& downward) {
    const std::optional<Complex> fraction = secondFraction(x, orders);
    if (!fraction) {
        return std::nullopt;
    }
    const auto [p, q] = *fraction;
    const double gam = (p - downward.f) / q;
    const double size = std::sqrt(orders.w / ((p - downward.f) * gam + q));
    const double rjmu = downward.rjl >= 0.0 ? size : -size;
    const double rymu = rjmu * gam;
    const double rymup = rymu * (p + q / gam);
    return LowOrder{.rjmu = rjmu, .rymu = rymu, .ry1 = orders.mu * orders.xi * rymu - rymup};
}

// Carries Y and its neighbour from the order mu up to nu; stops at NaNs like the way down.
void recurUpward(const Orders& orders, LowOrder& low) {
    for (std::int32_t step = 0; step < orders.nl; ++step) {
        const double i = step + 1.0;
        const double rytemp = (orders.mu + i) * orders.xi2 * low.ry1 - low.rymu;
        low.rymu = low.ry1;
        low.ry1 = rytemp;
        if (std::isnan(low.rymu) && std::isnan(low.ry1)) {
            break;
        }
    }
}

}  // namespace

double chebev(double a, double b, const double* c, int m, double x) {
    const double y = (2.0 * x - a - b) / (b - a);
    double d = 0.0;
    double dd = 0.0;
    for (int j = m - 1; j >= 1; --j) {
        const double previous = d;
        d = 2.0 * y * d - dd + c[j];
        dd = previous;
    }
    return y * d - dd + 0.5 * c[0];
}

GammaTerms beschb(double x) {
    const double xx = 8.0 * x * x - 1.0;
    const double gam1 = chebev(-1.0, 1.0, c1.data(), kGammaTerms, xx);
    const double gam2 = chebev(-1.0, 1.0, c2.data(), kGammaTerms, xx);
    return {.gam1 = gam1, .gam2 = gam2, .gampl = gam2 - x * gam1, .gammi = gam2 + x * gam1};
}

BesselStatus bessjy(double x, double nu, BesselValues& values) {
    if (x <= 0.0 || nu < 0.0) {
        return BesselStatus::badArgument;
    }
    const Orders orders(x, nu);
    const std::optional<Ratio> ratio = firstFraction(nu, orders);
    if (!ratio) {
        return BesselStatus::xTooLarge;
    }
    const Downward downward = recurDownward(nu, orders, *ratio);
    const bool isSmall = x < XMIN;
    std::optional<LowOrder> low =
        isSmall ? temmeSeries(x, orders, downward.f) : steedFraction(x, orders, downward);
    if (!low) {
        return isSmall ? BesselStatus::seriesDiverged : BesselStatus::fractionDiverged;
    }
    const double fact = low->rjmu / downward.rjl;
    recurUpward(orders, *low);
    values = {.J = downward.rjl1 * fact,
              .Y = low->rymu,
              .Jderivative = downward.rjp1 * fact,
              .Yderivative = nu * orders.xi * low->rymu - low->ry1};
    return BesselStatus::done;
}

// A negative order is reflected; the sine of a whole one is as small as `sin` makes it.
double besselJv(double order, double x) {
    BesselValues values;
    if (bessjy(x, order < 0.0 ? -order : order, values) != BesselStatus::done) {
        return DYXnan('B');
    }
    const double reflected = std::cos(order * PI) * values.J + std::sin(order * PI) * values.Y;
    return withPlainNaN(order < 0.0 ? reflected : values.J);
}

double besselYv(double order, double x) {
    BesselValues values;
    if (bessjy(x, order < 0.0 ? -order : order, values) != BesselStatus::done) {
        return DYXnan('B');
    }
    const double reflected = std::cos(order * PI) * values.Y + std::sin(order * -PI) * values.J;
    return withPlainNaN(order < 0.0 ? reflected : values.Y);
}

}  // namespace talvex
