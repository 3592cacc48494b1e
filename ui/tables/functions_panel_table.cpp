#include <array>

#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

using enum KeyGroup;

// Rows count from the bottom, which stays in sight when the drawer is drawn out a little.
constexpr auto kKeys = std::to_array<FunctionKeyRow>({
    {u"binaDEL%", u"\u0394%", u"change from Y to X in per cent", 0, 0},
    {u"binaMEAN", u"\u221A(x\u00B7y)", u"geometric mean of X and Y", 0, 1},
    {u"binaHYPT", u"\u221A(x^2+y^2)", u"hypotenuse of X and Y", 0, 2},
    {u"binaCHOS", u"C_{y,x}", u"combinations of Y things taken X at a time", 0, 3},
    {u"nullRAND", u"random", u"random number from 0 to 1", 0, 4, 2},

    {u"unitCBRT", u"\u221Bx", u"cube root", 1, 0},
    {u"unit2^X ", u"2^x", u"2 to the power X", 1, 1},
    {u"unitLOG2", u"log_{2}x", u"logarithm to the base 2", 1, 2},
    {u"binax^y ", u"x^y", u"X to the power Y", 1, 3},
    {u"binay~x ", u"log_{x}y", u"logarithm of Y to the base X", 1, 4},
    {u"unitFRAC", u"frac", u"fractional part", 1, 5},

    {u"unitFLOR", u"\u230Ax\u230B", u"round down", 2, 0},
    {u"unitCEIL", u"\u2308x\u2309", u"round up", 2, 1},
    {u"unitROND", u"round", u"round, halves away from zero", 2, 2},
    {u"unitNRBY", u"nearby", u"round, halves to even", 2, 3},
    {u"unitRINT", u"rint", u"round to an integer, halves to even", 2, 4},
    {u"unitINT ", u"int", u"integer part", 2, 5},

    {u"binaDIV ", u"y div x", u"integer quotient of Y by X", 3, 0},
    {u"binaMOD ", u"y mod x", u"integer remainder of Y by X", 3, 1},
    {u"binaREM ", u"y rem x", u"remainder of Y by X, from 0 up to X", 3, 2},
    {u"unitNOT ", u"NOT", u"all bits turned over", 3, 3},
    {u"unitSH1L", u"x \u226A 1", u"X shifted left by one bit", 3, 4},
    {u"unitSH1R", u"x \u226B 1", u"X shifted right by one bit", 3, 5},

    {u"binaAND ", u"AND", u"bits set in both X and Y", 4, 0},
    {u"binaOR  ", u"OR", u"bits set in X or Y", 4, 1},
    {u"binaXOR ", u"XOR", u"bits set in one of X and Y", 4, 2},
    {u"binaNAND", u"NAND", u"bits not set in both X and Y", 4, 3},
    {u"binay<<x", u"y \u226A x", u"Y shifted left by X bits", 4, 4},
    {u"binay>>x", u"y \u226B x", u"Y shifted right by X bits", 4, 5},

    {u"unitJ0  ", u"J_{0}(x)", u"Bessel function of the first kind, order 0", 5, 0},
    {u"unitJ1  ", u"J_{1}(x)", u"Bessel function of the first kind, order 1", 5, 1},
    {u"binaJx  ", u"J_{x}(y)", u"Bessel function of the first kind", 5, 2},
    {u"unitY0  ", u"Y_{0}(x)", u"Bessel function of the second kind, order 0", 5, 3},
    {u"unitY1  ", u"Y_{1}(x)", u"Bessel function of the second kind, order 1", 5, 4},
    {u"binaYx  ", u"Y_{x}(y)", u"Bessel function of the second kind", 5, 5},

    {u"unitGAMA", u"\u0393(x)", u"gamma function", 6, 0},
    {u"unitLGAM", u"ln \u0393(x)", u"natural logarithm of the gamma function", 6, 1},
    {u"unitDFCT", u"n!!", u"double factorial", 6, 2},
    {u"unitZETA", u"\u03B6(x)", u"Riemann zeta function", 6, 3},
    {u"unitERF ", u"erf", u"error function", 6, 4},
    {u"unitERFC", u"erfc", u"complement of the error function", 6, 5},
});

}  // namespace

std::span<const FunctionKeyRow> functionKeyRows() { return kKeys; }

}  // namespace talvex
