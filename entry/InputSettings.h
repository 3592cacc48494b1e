#pragma once

#include <cstdint>

#include "display/display_modes.h"

namespace talvex {

// How the line of the X register takes numbers.
struct InputSettings {
    std::int32_t inputMode = mode::FIX;
    // True if the output mode is independent of the input mode, false if it follows it.
    bool unlockInputAndOutputModes = false;

    bool operator==(const InputSettings&) const = default;
};

}  // namespace talvex
