#pragma once

#include <cstdint>

namespace talvex {

// The settings that numeric functions may read: the first argument of every checked function.
struct DYXMathContext {
    std::int32_t angleMode = 0;  // 0 RAD, 1 DEG, 2 GRD, 3 HRS, 4 REV; any other counts as RAD
    bool inverse = false;
    bool hyperbolic = false;
    bool useHPStylePowerAndLogs = true;  // base in Y and exponent in X, instead of the reverse

    // Radians per unit of the angle mode.
    [[nodiscard]] double angleUnits() const;
};

}  // namespace talvex
