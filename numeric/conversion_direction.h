#pragma once

namespace talvex {

// Which way a conversion function goes: from its unit to the base unit of the unit's group, or
// back.
enum class Conversion : char { fromBase = 0, toBase = 1 };

}  // namespace talvex
