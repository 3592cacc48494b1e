#pragma once

#include <cstdint>

#include "core/CalculatorState.h"

namespace talvex {

// The modifiers that follow from the modifier keys that are held (bits of `NSModifierFlags`): Shift
// is inverse, Control hyperbolic, Option recall, Control with Option store; Command puts all of
// them out. A store with arithmetic stays armed through any movement of these keys, and the other
// modifiers with it.
[[nodiscard]] Modifiers modifiersFor(std::uint32_t modifierFlags, const Modifiers& present);

}  // namespace talvex
