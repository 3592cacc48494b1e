#include <array>

#include "ui/tables/panel_tables.h"

namespace talvex {
namespace {

// Six to a column, the outermost column first: what is used most stays in sight when the drawer is
// drawn out a little. Universal constants, then atoms and fields, then numbers.
constexpr auto kKeys = std::to_array<ConstantKeyRow>({
    {u"consc   ", u"c", u"speed of light in vacuum", u"m/s"},
    {u"consh   ", u"h", u"Planck constant", u"J s"},
    {u"conshbar", u"\u210F", u"reduced Planck constant", u"J s"},
    {u"conse-  ", u"q_e", u"elementary charge", u"C"},
    {u"consKb  ", u"k_B", u"Boltzmann constant", u"J/K"},
    {u"consNA  ", u"N_A", u"Avogadro constant", u"mol^{\u22121}"},

    {u"consgasC", u"R", u"molar gas constant", u"J/(mol K)"},
    {u"consG   ", u"G", u"Newtonian constant of gravitation", u"m^3/(kg s^2)"},
    {u"consstbz", u"\u03C3", u"Stefan-Boltzmann constant", u"W/(m^2 K^4)"},
    {u"conseps0", u"\u03B5_0", u"electric constant", u"F/m"},
    {u"consmu0 ", u"\u03BC_0", u"magnetic constant", u"N/A^2"},
    {u"consZ0  ", u"Z_0", u"impedance of vacuum", u"\u03A9"},

    {u"consMe  ", u"m_e", u"electron mass", u"kg"},
    {u"consMp  ", u"m_p", u"proton mass", u"kg"},
    {u"consMn  ", u"m_n", u"neutron mass", u"kg"},
    {u"consmass", u"m_u", u"atomic mass constant", u"kg"},
    {u"consfnst", u"\u03B1", u"fine-structure constant", u""},
    {u"consinfs", u"1/\u03B1", u"inverse fine-structure constant", u""},

    {u"consRydb", u"R_\u221E", u"Rydberg constant", u"m^{\u22121}"},
    {u"conscomp", u"\u03BB_C", u"Compton wavelength", u"m"},
    {u"consmub ", u"\u03BC_B", u"Bohr magneton", u"J/T"},
    {u"consge  ", u"g_e", u"electron g-factor", u""},
    {u"consgre ", u"\u03B3_e", u"electron gyromagnetic ratio", u"s^{\u22121} T^{\u22121}"},
    {u"consKJ  ", u"K_J", u"Josephson constant", u"Hz/V"},

    {u"consphi0", u"\u03A6_0", u"magnetic flux quantum", u"Wb"},
    {u"consqcon", u"G_0", u"conductance quantum", u"S"},
    {u"consiqcn", u"1/G_0", u"inverse conductance quantum", u"\u03A9"},
    {u"consEULR", u"\u03B3", u"Euler-Mascheroni constant", u""},
    {u"consCATL", u"K_{Cat}", u"Catalan's constant", u""},
    {u"consAPRY", u"\u03B6(3)", u"Ap\u00E9ry's constant", u""},

    {u"consPI  ", u"\u03C0", u"pi", u""},
    {u"cons2PI ", u"2\u03C0", u"2 pi", u""},
    {u"cons4PI ", u"4\u03C0", u"4 pi", u""},
    {u"consPI/2", u"\u03C0/2", u"half of pi", u""},
    {u"consPI/4", u"\u03C0/4", u"a quarter of pi", u""},
    {u"cons2/PI", u"2/\u03C0", u"2 over pi", u""},

    {u"cons1/PI", u"1/\u03C0", u"1 over pi", u""},
    {u"cons1/2P", u"1/2\u03C0", u"1 over 2 pi", u""},
    {u"cons2/SP", u"2/\u221A\u03C0", u"2 over the square root of pi", u""},
    {u"consSQT2", u"\u221A2", u"square root of 2", u""},
    {u"cons1/S2", u"1/\u221A2", u"1 over the square root of 2", u""},
    {u"consGOLD", u"\u03C6", u"golden ratio", u""},

    {u"conse   ", u"e", u"base of the natural logarithm", u""},
    {u"cons1/e ", u"1/e", u"1 over e", u""},
    {u"consLN2 ", u"ln 2", u"natural logarithm of 2", u""},
    {u"consLN10", u"ln 10", u"natural logarithm of 10", u""},
    {u"consL2e ", u"log_{2}e", u"logarithm of e to the base 2", u""},
    {u"consLOGe", u"log e", u"logarithm of e to the base 10", u""},
});

}  // namespace

std::span<const ConstantKeyRow> constantKeyRows() { return kKeys; }

}  // namespace talvex
