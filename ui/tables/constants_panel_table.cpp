#include <array>

#include "ui/panel_geometry.h"
#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

// Six to a column, the outermost column first: what is used most stays in sight when the drawer is
// drawn out a little. Universal constants, then atoms and fields, then numbers.
constexpr auto kKeys = std::to_array<ConstantKeyRow>({
    {command("cons", "c   "), u"c", u"speed of light in vacuum", u"m/s"},
    {command("cons", "h   "), u"h", u"Planck constant", u"J s"},
    {command("cons", "hbar"), u"\u210F", u"reduced Planck constant", u"J s"},
    {command("cons", "e-  "), u"q_e", u"elementary charge", u"C"},
    {command("cons", "Kb  "), u"k_B", u"Boltzmann constant", u"J/K"},
    {command("cons", "NA  "), u"N_A", u"Avogadro constant", u"mol^{\u22121}"},

    {command("cons", "gasC"), u"R", u"molar gas constant", u"J/(mol K)"},
    {command("cons", "G   "), u"G", u"Newtonian constant of gravitation", u"m^3/(kg s^2)"},
    {command("cons", "stbz"), u"\u03C3", u"Stefan-Boltzmann constant", u"W/(m^2 K^4)"},
    {command("cons", "eps0"), u"\u03B5_0", u"electric constant", u"F/m"},
    {command("cons", "mu0 "), u"\u03BC_0", u"magnetic constant", u"N/A^2"},
    {command("cons", "Z0  "), u"Z_0", u"impedance of vacuum", u"\u03A9"},

    {command("cons", "Me  "), u"m_e", u"electron mass", u"kg"},
    {command("cons", "Mp  "), u"m_p", u"proton mass", u"kg"},
    {command("cons", "Mn  "), u"m_n", u"neutron mass", u"kg"},
    {command("cons", "mass"), u"m_u", u"atomic mass constant", u"kg"},
    {command("cons", "fnst"), u"\u03B1", u"fine-structure constant", u""},
    {command("cons", "infs"), u"1/\u03B1", u"inverse fine-structure constant", u""},

    {command("cons", "Rydb"), u"R_\u221E", u"Rydberg constant", u"m^{\u22121}"},
    {command("cons", "comp"), u"\u03BB_C", u"Compton wavelength", u"m"},
    {command("cons", "mub "), u"\u03BC_B", u"Bohr magneton", u"J/T"},
    {command("cons", "ge  "), u"g_e", u"electron g-factor", u""},
    {command("cons", "gre "), u"\u03B3_e", u"electron gyromagnetic ratio",
     u"s^{\u22121} T^{\u22121}"},
    {command("cons", "KJ  "), u"K_J", u"Josephson constant", u"Hz/V"},

    {command("cons", "phi0"), u"\u03A6_0", u"magnetic flux quantum", u"Wb"},
    {command("cons", "qcon"), u"G_0", u"conductance quantum", u"S"},
    {command("cons", "iqcn"), u"1/G_0", u"inverse conductance quantum", u"\u03A9"},
    {command("cons", "EULR"), u"\u03B3", u"Euler-Mascheroni constant", u""},
    {command("cons", "CATL"), u"K_{Cat}", u"Catalan's constant", u""},
    {command("cons", "APRY"), u"\u03B6(3)", u"Ap\u00E9ry's constant", u""},

    {command("cons", "PI  "), u"\u03C0", u"pi", u""},
    {command("cons", "2PI "), u"2\u03C0", u"2 pi", u""},
    {command("cons", "4PI "), u"4\u03C0", u"4 pi", u""},
    {command("cons", "PI/2"), u"\u03C0/2", u"half of pi", u""},
    {command("cons", "PI/4"), u"\u03C0/4", u"a quarter of pi", u""},
    {command("cons", "2/PI"), u"2/\u03C0", u"2 over pi", u""},

    {command("cons", "1/PI"), u"1/\u03C0", u"1 over pi", u""},
    {command("cons", "1/2P"), u"1/2\u03C0", u"1 over 2 pi", u""},
    {command("cons", "2/SP"), u"2/\u221A\u03C0", u"2 over the square root of pi", u""},
    {command("cons", "SQT2"), u"\u221A2", u"square root of 2", u""},
    {command("cons", "1/S2"), u"1/\u221A2", u"1 over the square root of 2", u""},
    {command("cons", "GOLD"), u"\u03C6", u"golden ratio", u""},

    {command("cons", "e   "), u"e", u"base of the natural logarithm", u""},
    {command("cons", "1/e "), u"1/e", u"1 over e", u""},
    {command("cons", "LN2 "), u"ln 2", u"natural logarithm of 2", u""},
    {command("cons", "LN10"), u"ln 10", u"natural logarithm of 10", u""},
    {command("cons", "L2e "), u"log_{2}e", u"logarithm of e to the base 2", u""},
    {command("cons", "LOGe"), u"log e", u"logarithm of e to the base 10", u""},
});

constexpr KeyGrid kGrid = constantsGrid(kKeys.size());
static_assert(kGrid.size().height <= kSideDrawerRoom);
static_assert(lieApartWithin<kKeys.size()>(kGrid.size(), [](std::size_t number) {
    return kGrid.frameByColumns(number);
}));

}  // namespace

std::span<const ConstantKeyRow> constantKeyRows() { return kKeys; }

}  // namespace talvex
