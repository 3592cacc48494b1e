#include "numeric/trigonometry.h"

#include <cmath>

#include "numeric/DYXnan.h"
#include "numeric/checked_elementary.h"
#include "numeric/elementary.h"

namespace talvex {
namespace {

using Context = DYXMathContext;

bool isOddWhole(double whole) { return std::fabs(std::fmod(whole, 2.0)) == 1.0; }

bool isHalfTurn(const Context& context, double x) { return DYXMultiplePi(context.angleMode, x); }

bool isQuarterTurn(const Context& context, double x) {
    return DYXOddMultiplePi2(context.angleMode, x);
}

bool isInsideUnit(double x) { return x > -1.0 && x < 1.0; }
bool isOutsideUnit(double x) { return x > 1.0 || x < -1.0; }

using Checked = double (*)(const Context&, double);

struct Family {
    Checked circular;
    Checked arc;
    Checked hyperbolic;
    Checked inverseHyperbolic;
};

double callOf(const Family& family, const Context& context, double x) {
    if (context.hyperbolic) {
        return (context.inverse ? family.inverseHyperbolic : family.hyperbolic)(context, x);
    }
    return (context.inverse ? family.arc : family.circular)(context, x);
}

// The plain functions in the shape of the checked ones.
double plainSinh(const Context&, double x) { return std::sinh(x); }
double plainAsinh(const Context&, double x) { return std::asinh(x); }
double plainCosh(const Context&, double x) { return std::cosh(x); }
double plainTanh(const Context&, double x) { return std::tanh(x); }
double plainSech(const Context&, double x) { return sech(x); }

}  // namespace

bool DYXMultiplePi(AngleMode angleMode, double x) {
    const double halfTurn = angleUnitOf(angleMode).halfTurn;
    return std::round(x / halfTurn) * halfTurn == x;
}

bool DYXOddMultiplePi2(AngleMode angleMode, double x) {
    const double quarterTurn = angleUnitOf(angleMode).quarterTurn;
    const double quarters = std::round(x / quarterTurn);
    // A quotient beyond 32 bits doesn't count as odd: so large a multiple is a half turn, no pole.
    return quarters * quarterTurn == x && std::fabs(quarters) <= 2147483647.0 &&
           isOddWhole(quarters);
}

double DYXsin(const Context& context, double x) {
    return isHalfTurn(context, x) ? 0.0 : std::sin(x * context.angleUnits());
}

double DYXcos(const Context& context, double x) {
    return isQuarterTurn(context, x) ? 0.0 : std::cos(x * context.angleUnits());
}

double DYXtan(const Context& context, double x) {
    if (isQuarterTurn(context, x)) {
        return DYXnan('?');
    }
    return isHalfTurn(context, x) ? 0.0 : std::tan(x * context.angleUnits());
}

double DYXcsc(const Context& context, double x) {
    return isHalfTurn(context, x) ? DYXnan('?') : csc(x * context.angleUnits());
}

double DYXsec(const Context& context, double x) {
    return isQuarterTurn(context, x) ? DYXnan('?') : sec(x * context.angleUnits());
}

double DYXcot(const Context& context, double x) {
    if (isHalfTurn(context, x)) {
        return DYXnan('?');
    }
    return isQuarterTurn(context, x) ? 0.0 : cot(x * context.angleUnits());
}

double DYXasin(const Context& context, double x) {
    return isOutsideUnit(x) ? DYXnan('T') : std::asin(x) / context.angleUnits();
}

double DYXacos(const Context& context, double x) {
    return isOutsideUnit(x) ? DYXnan('T') : std::acos(x) / context.angleUnits();
}

double DYXatan(const Context& context, double x) { return std::atan(x) / context.angleUnits(); }

double DYXacsc(const Context& context, double x) {
    return isInsideUnit(x) ? DYXnan('T') : acsc(x) / context.angleUnits();
}

double DYXasec(const Context& context, double x) {
    return isInsideUnit(x) ? DYXnan('T') : asec(x) / context.angleUnits();
}

double DYXacot(const Context& context, double x) { return acot(x) / context.angleUnits(); }

double DYXgensin(const Context& context, double x) {
    return callOf({DYXsin, DYXasin, plainSinh, plainAsinh}, context, x);
}

double DYXgencos(const Context& context, double x) {
    return callOf({DYXcos, DYXacos, plainCosh, DYXacosh}, context, x);
}

double DYXgentan(const Context& context, double x) {
    return callOf({DYXtan, DYXatan, plainTanh, DYXatanh}, context, x);
}

double DYXgencsc(const Context& context, double x) {
    return callOf({DYXcsc, DYXacsc, DYXcsch, DYXacsch}, context, x);
}

double DYXgensec(const Context& context, double x) {
    return callOf({DYXsec, DYXasec, plainSech, DYXasech}, context, x);
}

double DYXgencot(const Context& context, double x) {
    return callOf({DYXcot, DYXacot, DYXcoth, DYXacoth}, context, x);
}

}  // namespace talvex
