#pragma once

#include <cstdint>

namespace talvex {

// What angles are measured in. The numbers are stored in the saved state, which may hold any other
// number, too: such a value counts as `rad`, and the next save keeps its number.
enum class AngleMode : std::int32_t { rad = 0, deg = 1, grd = 2, hrs = 3, rev = 4 };

struct AngleUnit {
    double halfTurn;
    double quarterTurn;
    double radians;  // in one unit
};

[[nodiscard]] const AngleUnit& angleUnitOf(AngleMode mode);

// The settings that numeric functions may read: the first argument of every checked function.
struct DYXMathContext {
    AngleMode angleMode = AngleMode::rad;
    bool inverse = false;
    bool hyperbolic = false;
    bool useHPStylePowerAndLogs = true;  // base in Y and exponent in X, instead of the reverse

    // Radians per unit of the angle mode.
    [[nodiscard]] double angleUnits() const { return angleUnitOf(angleMode).radians; }
};

}  // namespace talvex
