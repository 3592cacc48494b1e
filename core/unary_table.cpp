#include <array>
#include <cmath>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "core/table_checks.h"
#include "numeric/bit_operations.h"
#include "numeric/checked_elementary.h"
#include "numeric/combinatorics.h"
#include "numeric/elementary.h"
#include "numeric/riemannzeta.h"
#include "numeric/trigonometry.h"

namespace talvex {
namespace {

// Each trigonometric family has a generic row, which the modifiers turn into one of the others, and
// four direct rows. The C library's functions stand in lambdas since they are overloaded.
constexpr auto kUnitaries = std::to_array<UnaryRow>({
    {.action = fourCC("GSIN"), .function = DYXgensin},
    {.action = fourCC("SIN "), .function = DYXsin},
    {.action = fourCC("ASIN"), .function = DYXasin},
    {.action = fourCC("SINH"), .function = [](double x) { return std::sinh(x); }},
    {.action = fourCC("SNHI"), .function = [](double x) { return std::asinh(x); }},
    {.action = fourCC("GCOS"), .function = DYXgencos},
    {.action = fourCC("COS "), .function = DYXcos},
    {.action = fourCC("ACOS"), .function = DYXacos},
    {.action = fourCC("COSH"), .function = [](double x) { return std::cosh(x); }},
    {.action = fourCC("CSHI"), .function = [](double x) { return std::acosh(x); }},
    {.action = fourCC("GTAN"), .function = DYXgentan},
    {.action = fourCC("TAN "), .function = DYXtan},
    {.action = fourCC("ATAN"), .function = DYXatan},
    {.action = fourCC("TANH"), .function = [](double x) { return std::tanh(x); }},
    {.action = fourCC("TNHI"), .function = [](double x) { return std::atanh(x); }},
    {.action = fourCC("GCSC"), .function = DYXgencsc},
    {.action = fourCC("CSC "), .function = DYXcsc},
    {.action = fourCC("ACSC"), .function = DYXacsc},
    {.action = fourCC("CSCH"), .function = csch},
    {.action = fourCC("CCHI"), .function = acsch},
    {.action = fourCC("GSEC"), .function = DYXgensec},
    {.action = fourCC("SEC "), .function = DYXsec},
    {.action = fourCC("ASEC"), .function = DYXasec},
    {.action = fourCC("SECH"), .function = sech},
    {.action = fourCC("SCHI"), .function = asech},
    {.action = fourCC("GCOT"), .function = DYXgencot},
    {.action = fourCC("COT "), .function = DYXcot},
    {.action = fourCC("ACOT"), .function = DYXacot},
    {.action = fourCC("COTH"), .function = coth},
    {.action = fourCC("CTHI"), .function = acoth},
    {.action = fourCC("SQR "), .function = square},
    {.action = fourCC("ROOT"), .function = DYXsqrt},
    {.action = fourCC("ABS "), .function = [](double x) { return std::fabs(x); }},
    {.action = fourCC("INV "), .function = inverse},
    {.action = fourCC("EXP "), .function = DYXexp},
    {.action = fourCC("NLOG"), .function = DYXlog},
    {.action = fourCC("LG10"), .function = DYXlog10},
    {.action = fourCC("LOG2"), .function = DYXlog2},
    {.action = fourCC("2^X "), .function = DYXpow2},
    {.action = fourCC("10^X"), .function = DYXpow10},
    {.action = fourCC("GAMA"), .function = [](double x) { return std::tgamma(x); }},
    {.action = fourCC("ZETA"), .function = riemannzeta},
    {.action = fourCC("LGAM"), .function = [](double x) { return std::lgamma(x); }},
    {.action = fourCC("FLOR"), .function = [](double x) { return std::floor(x); }},
    {.action = fourCC("CEIL"), .function = [](double x) { return std::ceil(x); }},
    {.action = fourCC("ROND"), .function = [](double x) { return std::round(x); }},
    {.action = fourCC("NRBY"), .function = [](double x) { return std::nearbyint(x); }},
    {.action = fourCC("FRAC"), .function = frac},
    {.action = fourCC("INT "), .function = [](double x) { return std::trunc(x); }},
    {.action = fourCC("RINT"), .function = [](double x) { return std::rint(x); }},
    {.action = fourCC("FACT"), .function = factorial},
    {.action = fourCC("DFCT"), .function = doublefactorial},
    {.action = fourCC("J0  "), .function = [](double x) { return ::j0(x); }},
    {.action = fourCC("J1  "), .function = [](double x) { return ::j1(x); }},
    {.action = fourCC("Y0  "), .function = [](double x) { return ::y0(x); }},
    {.action = fourCC("Y1  "), .function = [](double x) { return ::y1(x); }},
    {.action = fourCC("ERF "), .function = [](double x) { return std::erf(x); }},
    {.action = fourCC("ERFC"), .function = [](double x) { return std::erfc(x); }},
    {.action = fourCC("CBRT"), .function = [](double x) { return std::cbrt(x); }},
    {.action = fourCC("SH1L"), .function = shift1leftf},
    {.action = fourCC("SH1R"), .function = shift1rightf},
    {.action = fourCC("NOT "), .function = notf},
});
static_assert(hasUniqueActions(kUnitaries) && hasFunctions(kUnitaries));

}  // namespace

std::span<const UnaryRow> unitaries() { return kUnitaries; }

}  // namespace talvex
