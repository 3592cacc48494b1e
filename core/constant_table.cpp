#include <array>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "core/table_checks.h"

namespace talvex {
namespace {

// Mathematical constants to the nearest double; physical ones in SI units, from the 2006 set of
// recommended values (the molar gas constant from the 2010 set).
constexpr auto kConstants = std::to_array<ConstantRow>({
    {fourCC("PI  "), 3.141592653589793},       // pi
    {fourCC("2PI "), 6.283185307179586},       // 2 pi
    {fourCC("4PI "), 12.566370614359172},      // 4 pi
    {fourCC("PI/2"), 1.5707963267948966},      // pi / 2
    {fourCC("PI/4"), 0.7853981633974483},      // pi / 4
    {fourCC("2/PI"), 0.6366197723675814},      // 2 / pi
    {fourCC("1/PI"), 0.3183098861837907},      // 1 / pi
    {fourCC("1/2P"), 0.15915494309189535},     // 1 / (2 pi)
    {fourCC("2/SP"), 1.1283791670955126},      // 2 / square root of pi
    {fourCC("e   "), 2.718281828459045},       // e
    {fourCC("1/e "), 0.36787944117144233},     // 1 / e
    {fourCC("SQT2"), 1.4142135623730951},      // square root of 2
    {fourCC("1/S2"), 0.7071067811865476},      // 1 / square root of 2
    {fourCC("LN2 "), 0.6931471805599453},      // natural logarithm of 2
    {fourCC("LN10"), 2.302585092994046},       // natural logarithm of 10
    {fourCC("L2e "), 1.4426950408889634},      // logarithm of e to the base 2
    {fourCC("LOGe"), 0.4342944819032518},      // logarithm of e to the base 10
    {fourCC("GOLD"), 1.618033988749895},       // golden ratio
    {fourCC("EULR"), 0.5772156649015329},      // Euler-Mascheroni constant
    {fourCC("CATL"), 0.915965594177219},       // Catalan's constant
    {fourCC("APRY"), 1.2020569031595942},      // Apéry's constant
    {fourCC("Kb  "), 1.3806504e-23},           // Boltzmann constant
    {fourCC("gasC"), 8.3144621},               // molar gas constant
    {fourCC("h   "), 6.62606896e-34},          // Planck constant
    {fourCC("e-  "), 1.602176487e-19},         // elementary charge
    {fourCC("c   "), 299792458.0},             // speed of light in vacuum
    {fourCC("mub "), 9.27400915e-24},          // Bohr magneton
    {fourCC("Z0  "), 376.730313461},           // impedance of vacuum
    {fourCC("ge  "), -2.0023193043622},        // electron g-factor
    {fourCC("gre "), 176085977000.0},          // electron gyromagnetic ratio
    {fourCC("KJ  "), 483597891000000.0},       // Josephson constant
    {fourCC("Me  "), 9.10938215e-31},          // electron mass
    {fourCC("Mp  "), 1.672621637e-27},         // proton mass
    {fourCC("Mn  "), 1.674927211e-27},         // neutron mass
    {fourCC("mass"), 1.660538782e-27},         // atomic mass constant
    {fourCC("comp"), 2.4263102175e-12},        // Compton wavelength
    {fourCC("NA  "), 6.02214179e+23},          // Avogadro constant
    {fourCC("G   "), 6.67428e-11},             // Newtonian constant of gravitation
    {fourCC("Rydb"), 10973731.568527},         // Rydberg constant
    {fourCC("hbar"), 1.054571628251774e-34},   // reduced Planck constant
    {fourCC("mu0 "), 1.2566370614359173e-06},  // magnetic constant
    {fourCC("eps0"), 8.854187817e-12},         // electric constant
    {fourCC("stbz"), 5.6704e-08},              // Stefan-Boltzmann constant
    {fourCC("fnst"), 0.0072973525376},         // fine-structure constant
    {fourCC("infs"), 137.035999679},           // inverse fine-structure constant
    {fourCC("phi0"), 2.067833667e-15},         // magnetic flux quantum
    {fourCC("qcon"), 7.7480917004e-05},        // conductance quantum
    {fourCC("iqcn"), 12906.4037787},           // inverse conductance quantum
});
static_assert(hasUniqueActions(kConstants));

}  // namespace

std::span<const ConstantRow> constants() { return kConstants; }

const ConstantRow* findConstant(std::uint32_t action) {
    for (const ConstantRow& row : kConstants) {
        if (row.action == action) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace talvex
