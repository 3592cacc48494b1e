#pragma once

#include <cstdint>

// The two conversions of a double to a 32-bit integer on which the edges of all integer functions
// rest. Both truncate toward zero and are defined for every double.
namespace talvex {

// Signed: a NaN, an infinity and any value outside -2147483648 to 2147483647 give -2147483648.
std::int32_t toInt32(double value);

// Unsigned: clamped to 0 to 4294967295; a NaN gives 2147483648.
std::uint32_t toCount(double value);

}  // namespace talvex
