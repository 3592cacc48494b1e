// Steed's method step by step, with the names of the published formulas, every loop to its end.

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "numeric/integer_conversion.h"
#include "oracle/naive_functions.h"

namespace talvex {
namespace {

constexpr double EPS = 1e-16, FPMIN = 1e-30, PI = 3.141592653589793;
constexpr int MAXIT = 10000;

double floored(double value) { return std::fabs(value) < FPMIN ? FPMIN : value; }

struct Steed {
    double x, nu;
    std::int64_t nl = 0;
    double mu = 0, mu2 = 0, xi = 0, xi2 = 0, w = 0;
    double h = 0, isign = 1;
    double rjl = 0, rjl1 = 0, rjp1 = 0, f = 0;
    double rjmu = 0, rymu = 0, ry1 = 0;

    void prepare() {
        nl = x < 2.0 ? toInt32(nu + 0.5) : std::max(toInt32(nu - x + 1.5), 0);
        mu = nu - static_cast<double>(nl);
        mu2 = mu * mu;
        xi = 1 / x;
        xi2 = 2 * xi;
        w = xi2 / PI;
    }

    bool cf1() {
        h = std::max(nu * xi, FPMIN);
        double b = xi2 * nu, d = 0, c = h;
        for (int i = 0; i < MAXIT; ++i) {
            b = b + xi2;
            d = 1 / floored(b - d);
            c = floored(b - 1 / c);
            h = c * d * h;
            isign = d < 0 ? -isign : isign;
            if (std::fabs(c * d - 1) < EPS) {
                return true;
            }
        }
        return false;
    }

    void down() {
        rjl = isign * FPMIN;
        double rjpl = h * rjl, fact = nu * xi;
        rjl1 = rjl;
        rjp1 = rjpl;
        for (std::int64_t l = nl; l >= 1; --l) {
            const double rjtemp = fact * rjl + rjpl;
            fact = fact - xi;
            rjpl = fact * rjtemp - rjl;
            rjl = rjtemp;
        }
        if (rjl == 0) {
            rjl = EPS;
        }
        f = rjpl / rjl;
    }

    bool temme() {
        const double x2 = x / 2, pimu = PI * mu;
        const double fact = std::fabs(pimu) < EPS ? 1 : pimu / std::sin(pimu);
        double d = -std::log(x2), e = mu * d;
        const double fact2 = std::fabs(e) < EPS ? 1 : std::sinh(e) / e;
        const auto [gam1, gam2, gampl, gammi] = beschb(mu);
        double ff = 0.6366197723675814 * fact * (gam1 * std::cosh(e) + gam2 * fact2 * d);
        e = std::exp(e);
        double p = e / (gampl * PI), q = 1 / (e * PI * gammi);
        const double pimu2 = pimu / 2;
        const double fact3 = std::fabs(pimu2) < EPS ? 1 : std::sin(pimu2) / pimu2;
        const double r = PI * pimu2 * fact3 * fact3;
        double c = 1, sum = ff + r * q, sum1 = p;
        d = -x2 * x2;
        for (int i = 1; i <= MAXIT; ++i) {
            ff = (i * ff + p + q) / (static_cast<double>(i) * i - mu2);
            c = c * (d / i);
            p = p / (i - mu);
            q = q / (i + mu);
            const double del = c * (ff + r * q);
            sum = sum + del;
            sum1 = sum1 + (c * p - i * del);
            if (std::fabs(del) < (1 + std::fabs(sum)) * EPS) {
                rymu = -sum;
                ry1 = -sum1 * xi2;
                rjmu = w / (mu * xi * rymu - ry1 - f * rymu);
                return true;
            }
        }
        return false;
    }

    bool cf2() {
        double a = 0.25 - mu2, p = -0.5 * xi, q = 1, bi = 2;
        const double br = 2 * x;
        double fact = a * xi / (p * p + q * q);
        double cr = br + q * fact, ci = bi + p * fact, dr = br, di = bi;
        for (int i = 2; i <= MAXIT + 1; ++i) {
            const double den = dr * dr + di * di;
            dr = dr / den;
            di = di / -den;
            const double dlr = cr * dr - ci * di, dli = cr * di + ci * dr;
            const double last = p;
            p = last * dlr - q * dli;
            q = last * dli + q * dlr;
            if (i > 2 && std::fabs(dlr - 1) + std::fabs(dli) < EPS) {
                finish(p, q);
                return true;
            }
            a = a + 2.0 * (i - 1);
            bi = bi + 2;
            dr = a * dr + br;
            di = a * di + bi;
            if (std::fabs(dr) + std::fabs(di) < FPMIN) {
                dr = FPMIN;
            }
            fact = a / (cr * cr + ci * ci);
            cr = br + cr * fact;
            ci = bi - ci * fact;
            if (std::fabs(cr) + std::fabs(ci) < FPMIN) {
                cr = FPMIN;
            }
        }
        return false;
    }

    void finish(double p, double q) {
        const double gam = (p - f) / q;
        const double size = std::sqrt(w / ((p - f) * gam + q));
        rjmu = rjl >= 0 ? size : -size;
        rymu = rjmu * gam;
        const double rymup = rymu * (p + q / gam);
        ry1 = mu * xi * rymu - rymup;
    }

    void up() {
        for (std::int64_t i = 1; i <= nl; ++i) {
            const double rytemp = (mu + static_cast<double>(i)) * xi2 * ry1 - rymu;
            rymu = ry1;
            ry1 = rytemp;
        }
    }
};

}  // namespace

BesselStatus naiveBessjy(double x, double nu, BesselValues& values) {
    if (x <= 0 || nu < 0) {
        return BesselStatus::badArgument;
    }
    Steed s{.x = x, .nu = nu};
    s.prepare();
    if (!s.cf1()) {
        return BesselStatus::xTooLarge;
    }
    s.down();
    if (x < 2.0) {
        if (!s.temme()) {
            return BesselStatus::seriesDiverged;
        }
    } else if (!s.cf2()) {
        return BesselStatus::fractionDiverged;
    }
    const double fact = s.rjmu / s.rjl;
    s.up();
    values = {.J = s.rjl1 * fact,
              .Y = s.rymu,
              .Jderivative = s.rjp1 * fact,
              .Yderivative = nu * s.xi * s.rymu - s.ry1};
    return BesselStatus::done;
}

}  // namespace talvex
