#include <array>
#include <cmath>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "core/table_checks.h"
#include "numeric/checked_elementary.h"
#include "numeric/elementary.h"
#include "numeric/trigonometry.h"

namespace talvex {
namespace {

// Each trigonometric family has a generic row, which the modifiers turn into one of the others, and
// four direct rows. The C library's functions stand in lambdas since they are overloaded.
constexpr std::array<UnaryRow, 62> kUnitaries{{
    {.action = fourCC("GSIN"), .checked = DYXgensin},
    {.action = fourCC("SIN "), .checked = DYXsin},
    {.action = fourCC("ASIN"), .checked = DYXasin},
    {.action = fourCC("SINH"), .plain = [](double x) { return std::sinh(x); }},
    {.action = fourCC("SNHI"), .plain = [](double x) { return std::asinh(x); }},
    {.action = fourCC("GCOS"), .checked = DYXgencos},
    {.action = fourCC("COS "), .checked = DYXcos},
    {.action = fourCC("ACOS"), .checked = DYXacos},
    {.action = fourCC("COSH"), .plain = [](double x) { return std::cosh(x); }},
    {.action = fourCC("CSHI"), .plain = [](double x) { return std::acosh(x); }},
    {.action = fourCC("GTAN"), .checked = DYXgentan},
    {.action = fourCC("TAN "), .checked = DYXtan},
    {.action = fourCC("ATAN"), .checked = DYXatan},
    {.action = fourCC("TANH"), .plain = [](double x) { return std::tanh(x); }},
    {.action = fourCC("TNHI"), .plain = [](double x) { return std::atanh(x); }},
    {.action = fourCC("GCSC"), .checked = DYXgencsc},
    {.action = fourCC("CSC "), .checked = DYXcsc},
    {.action = fourCC("ACSC"), .checked = DYXacsc},
    {.action = fourCC("CSCH"), .plain = csch},
    {.action = fourCC("CCHI"), .plain = acsch},
    {.action = fourCC("GSEC"), .checked = DYXgensec},
    {.action = fourCC("SEC "), .checked = DYXsec},
    {.action = fourCC("ASEC"), .checked = DYXasec},
    {.action = fourCC("SECH"), .plain = sech},
    {.action = fourCC("SCHI"), .plain = asech},
    {.action = fourCC("GCOT"), .checked = DYXgencot},
    {.action = fourCC("COT "), .checked = DYXcot},
    {.action = fourCC("ACOT"), .checked = DYXacot},
    {.action = fourCC("COTH"), .plain = coth},
    {.action = fourCC("CTHI"), .plain = acoth},
    {.action = fourCC("SQR "), .plain = square},
    {.action = fourCC("ROOT"), .checked = DYXsqrt},
    {.action = fourCC("ABS "), .plain = [](double x) { return std::fabs(x); }},
    {.action = fourCC("INV "), .plain = inverse},
    {.action = fourCC("EXP "), .checked = DYXexp},
    {.action = fourCC("NLOG"), .checked = DYXlog},
    {.action = fourCC("LG10"), .checked = DYXlog10},
    {.action = fourCC("LOG2"), .checked = DYXlog2},
    {.action = fourCC("2^X "), .checked = DYXpow2},
    {.action = fourCC("10^X"), .checked = DYXpow10},
    {.action = fourCC("GAMA"), .plain = [](double x) { return std::tgamma(x); }},
    {.action = fourCC("ZETA")},
    {.action = fourCC("LGAM"), .plain = [](double x) { return std::lgamma(x); }},
    {.action = fourCC("FLOR"), .plain = [](double x) { return std::floor(x); }},
    {.action = fourCC("CEIL"), .plain = [](double x) { return std::ceil(x); }},
    {.action = fourCC("ROND"), .plain = [](double x) { return std::round(x); }},
    {.action = fourCC("NRBY"), .plain = [](double x) { return std::nearbyint(x); }},
    {.action = fourCC("FRAC"), .plain = frac},
    {.action = fourCC("INT "), .plain = [](double x) { return std::trunc(x); }},
    {.action = fourCC("RINT"), .plain = [](double x) { return std::rint(x); }},
    {.action = fourCC("FACT")},
    {.action = fourCC("DFCT")},
    {.action = fourCC("J0  "), .plain = [](double x) { return ::j0(x); }},
    {.action = fourCC("J1  "), .plain = [](double x) { return ::j1(x); }},
    {.action = fourCC("Y0  "), .plain = [](double x) { return ::y0(x); }},
    {.action = fourCC("Y1  "), .plain = [](double x) { return ::y1(x); }},
    {.action = fourCC("ERF "), .plain = [](double x) { return std::erf(x); }},
    {.action = fourCC("ERFC"), .plain = [](double x) { return std::erfc(x); }},
    {.action = fourCC("CBRT"), .plain = [](double x) { return std::cbrt(x); }},
    {.action = fourCC("SH1L")},
    {.action = fourCC("SH1R")},
    {.action = fourCC("NOT ")},
}};
static_assert(hasUniqueActions(kUnitaries));
static_assert(hasOneFunctionEach(kUnitaries));

}  // namespace

std::span<const UnaryRow> unitaries() { return kUnitaries; }

}  // namespace talvex
