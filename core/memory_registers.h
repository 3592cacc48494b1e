#pragma once

#include <cstddef>

namespace talvex {

// The first registers have keys, one more is saved, and another isn't even that.
inline constexpr std::size_t kRegisterKeys = 20;
inline constexpr std::size_t kSavedRegisters = kRegisterKeys + 1;
inline constexpr std::size_t kMemoryRegisters = kSavedRegisters + 1;

}  // namespace talvex
