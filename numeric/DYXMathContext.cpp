#include "numeric/DYXMathContext.h"

#include <array>
#include <cstddef>

namespace talvex {
namespace {

// In the order of the modes. pi, its half, pi/180, pi/200, pi/12 and 2 pi, each the nearest double.
constexpr auto kAngleUnits = std::to_array<AngleUnit>({
    {.halfTurn = 3.141592653589793, .quarterTurn = 1.5707963267948966, .radians = 1.0},
    {.halfTurn = 180.0, .quarterTurn = 90.0, .radians = 0.017453292519943295},
    {.halfTurn = 200.0, .quarterTurn = 100.0, .radians = 0.015707963267948967},
    {.halfTurn = 12.0, .quarterTurn = 6.0, .radians = 0.2617993877991494},
    {.halfTurn = 0.5, .quarterTurn = 0.25, .radians = 6.283185307179586},
});
static_assert(kAngleUnits.size() == static_cast<std::size_t>(AngleMode::rev) + 1);

}  // namespace

const AngleUnit& angleUnitOf(AngleMode mode) {
    const auto row = static_cast<std::uint32_t>(mode);
    return row < kAngleUnits.size() ? kAngleUnits.at(row) : kAngleUnits.front();
}

}  // namespace talvex
