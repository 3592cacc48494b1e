#pragma once

#include <cstdint>

#include "core/DYXCalculator.h"

namespace talvex {

// Rebuilds the modifiers from the modifier keys that are held (bits of `NSModifierFlags`), unless a
// store with arithmetic is armed, which stays through any movement of these keys. Shift is inverse,
// Control hyperbolic, Option recall, Control with Option store; Command puts all of them out.
// Returns whether the modifiers were rebuilt.
bool takeModifierFlags(DYXCalculator& calculator, std::uint32_t modifierFlags);

}  // namespace talvex
