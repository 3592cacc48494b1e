#include <array>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "core/table_checks.h"
#include "numeric/bessel.h"
#include "numeric/bit_operations.h"
#include "numeric/checked_elementary.h"
#include "numeric/combinatorics.h"
#include "numeric/elementary.h"

namespace talvex {
namespace {

// "^   " and "~   " follow the setting of the operand order; "x^y " and "y~x " are the fixed forms.
constexpr auto kBinaries = std::to_array<BinaryRow>({
    {.action = fourCC("-   "), .function = minus},
    {.action = fourCC("+   "), .function = plus},
    {.action = fourCC("/   "), .function = divide},
    {.action = fourCC("*   "), .function = times},
    {.action = fourCC("y~x "), .function = DYXlogYbaseX},
    {.action = fourCC("x^y "), .function = DYXXpowY},
    {.action = fourCC("~   "), .function = DYXlogbase},
    {.action = fourCC("^   "), .function = DYXpow},
    {.action = fourCC("CHOS"), .function = choose},
    {.action = fourCC("MOD "), .function = mod},
    {.action = fourCC("DIV "), .function = divf},
    {.action = fourCC("REM "), .function = rem},
    {.action = fourCC("HYPT"), .function = hypotenuse},
    {.action = fourCC("MEAN"), .function = geometricmean},
    {.action = fourCC("DEL%"), .function = deltapercent},
    {.action = fourCC("Jx  "), .function = besselJv},
    {.action = fourCC("Yx  "), .function = besselYv},
    {.action = fourCC("AND "), .function = andf},
    {.action = fourCC("NAND"), .function = nandf},
    {.action = fourCC("OR  "), .function = orf},
    {.action = fourCC("XOR "), .function = xorf},
    {.action = fourCC("y<<x"), .function = shiftleftf},
    {.action = fourCC("y>>x"), .function = shiftrightf},
});
static_assert(hasUniqueActions(kBinaries) && hasFunctions(kBinaries));

}  // namespace

std::span<const BinaryRow> binaries() { return kBinaries; }

// No key takes three or four operands today.
std::span<const TrinaryRow> trinaries() { return {}; }
std::span<const QuadranaryRow> quadranaries() { return {}; }

}  // namespace talvex
