#include <array>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "core/table_checks.h"
#include "numeric/checked_elementary.h"
#include "numeric/elementary.h"

namespace talvex {
namespace {

// "^   " and "~   " follow the setting of the operand order; "x^y " and "y~x " are the fixed forms.
constexpr std::array<BinaryRow, 23> kBinaries{{
    {.action = fourCC("-   "), .plain = minus},
    {.action = fourCC("+   "), .plain = plus},
    {.action = fourCC("/   "), .plain = divide},
    {.action = fourCC("*   "), .plain = times},
    {.action = fourCC("y~x "), .checked = DYXlogYbaseX},
    {.action = fourCC("x^y "), .checked = DYXXpowY},
    {.action = fourCC("~   "), .checked = DYXlogbase},
    {.action = fourCC("^   "), .checked = DYXpow},
    {.action = fourCC("CHOS")},
    {.action = fourCC("MOD "), .plain = mod},
    {.action = fourCC("DIV "), .plain = divf},
    {.action = fourCC("REM "), .plain = rem},
    {.action = fourCC("HYPT"), .plain = hypotenuse},
    {.action = fourCC("MEAN"), .plain = geometricmean},
    {.action = fourCC("DEL%"), .plain = deltapercent},
    {.action = fourCC("Jx  ")},
    {.action = fourCC("Yx  ")},
    {.action = fourCC("AND ")},
    {.action = fourCC("NAND")},
    {.action = fourCC("OR  ")},
    {.action = fourCC("XOR ")},
    {.action = fourCC("y<<x")},
    {.action = fourCC("y>>x")},
}};
static_assert(hasUniqueActions(kBinaries));
static_assert(hasOneFunctionEach(kBinaries));

}  // namespace

std::span<const BinaryRow> binaries() { return kBinaries; }

// No key takes three or four operands today.
std::span<const TrinaryRow> trinaries() { return {}; }
std::span<const QuadranaryRow> quadranaries() { return {}; }

}  // namespace talvex
