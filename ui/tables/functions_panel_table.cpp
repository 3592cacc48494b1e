#include <array>

#include "ui/panel_geometry.h"
#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

using enum KeyGroup;

// Rows count from the bottom, which stays in sight when the drawer is drawn out a little.
constexpr auto kKeys = std::to_array<FunctionKeyRow>({
    {command("bina", "DEL%"), u"\u0394%", u"change from Y to X in per cent", 0, 0},
    {command("bina", "MEAN"), u"\u221A(x\u00B7y)", u"geometric mean of X and Y", 0, 1},
    {command("bina", "HYPT"), u"\u221A(x^2+y^2)", u"hypotenuse of X and Y", 0, 2},
    {command("bina", "CHOS"), u"C_{y,x}", u"combinations of Y things taken X at a time", 0, 3},
    {command("null", "RAND"), u"random", u"random number from 0 to 1", 0, 4, 2},

    {command("unit", "CBRT"), u"\u221Bx", u"cube root", 1, 0},
    {command("unit", "2^X "), u"2^x", u"2 to the power X", 1, 1},
    {command("unit", "LOG2"), u"log_{2}x", u"logarithm to the base 2", 1, 2},
    {command("bina", "x^y "), u"x^y", u"X to the power Y", 1, 3},
    {command("bina", "y~x "), u"log_{x}y", u"logarithm of Y to the base X", 1, 4},
    {command("unit", "FRAC"), u"frac", u"fractional part", 1, 5},

    {command("unit", "FLOR"), u"\u230Ax\u230B", u"round down", 2, 0},
    {command("unit", "CEIL"), u"\u2308x\u2309", u"round up", 2, 1},
    {command("unit", "ROND"), u"round", u"round, halves away from zero", 2, 2},
    {command("unit", "NRBY"), u"nearby", u"round, halves to even", 2, 3},
    {command("unit", "RINT"), u"rint", u"round to an integer, halves to even", 2, 4},
    {command("unit", "INT "), u"int", u"integer part", 2, 5},

    {command("bina", "DIV "), u"y div x", u"integer quotient of Y by X", 3, 0},
    {command("bina", "MOD "), u"y mod x", u"integer remainder of Y by X", 3, 1},
    {command("bina", "REM "), u"y rem x", u"remainder of Y by X, from 0 up to X", 3, 2},
    {command("unit", "NOT "), u"NOT", u"all bits turned over", 3, 3},
    {command("unit", "SH1L"), u"x \u226A 1", u"X shifted left by one bit", 3, 4},
    {command("unit", "SH1R"), u"x \u226B 1", u"X shifted right by one bit", 3, 5},

    {command("bina", "AND "), u"AND", u"bits set in both X and Y", 4, 0},
    {command("bina", "OR  "), u"OR", u"bits set in X or Y", 4, 1},
    {command("bina", "XOR "), u"XOR", u"bits set in one of X and Y", 4, 2},
    {command("bina", "NAND"), u"NAND", u"bits not set in both X and Y", 4, 3},
    {command("bina", "y<<x"), u"y \u226A x", u"Y shifted left by X bits", 4, 4},
    {command("bina", "y>>x"), u"y \u226B x", u"Y shifted right by X bits", 4, 5},

    {command("unit", "J0  "), u"J_{0}(x)", u"Bessel function of the first kind, order 0", 5, 0},
    {command("unit", "J1  "), u"J_{1}(x)", u"Bessel function of the first kind, order 1", 5, 1},
    {command("bina", "Jx  "), u"J_{x}(y)", u"Bessel function of the first kind", 5, 2},
    {command("unit", "Y0  "), u"Y_{0}(x)", u"Bessel function of the second kind, order 0", 5, 3},
    {command("unit", "Y1  "), u"Y_{1}(x)", u"Bessel function of the second kind, order 1", 5, 4},
    {command("bina", "Yx  "), u"Y_{x}(y)", u"Bessel function of the second kind", 5, 5},

    {command("unit", "GAMA"), u"\u0393(x)", u"gamma function", 6, 0},
    {command("unit", "LGAM"), u"ln \u0393(x)", u"natural logarithm of the gamma function", 6, 1},
    {command("unit", "DFCT"), u"n!!", u"double factorial", 6, 2},
    {command("unit", "ZETA"), u"\u03B6(x)", u"Riemann zeta function", 6, 3},
    {command("unit", "ERF "), u"erf", u"error function", 6, 4},
    {command("unit", "ERFC"), u"erfc", u"complement of the error function", 6, 5},
});

constexpr KeyGrid kGrid = functionsGrid(kKeys);
static_assert(lieApartWithin<kKeys.size()>(kGrid.size(), [](std::size_t key) {
    return functionKeyFrame(kGrid, kKeys[key]);
}));

}  // namespace

std::span<const FunctionKeyRow> functionKeyRows() { return kKeys; }

}  // namespace talvex
