#pragma once

#include <cstddef>

namespace talvex {

// One for each group of units, and one to spare.
inline constexpr std::size_t kConversionRegisters = 16;

}  // namespace talvex
