#pragma once

namespace talvex {

// `value` rounded to `digits` decimals: the double nearest to its exact decimal text with that
// many places (ties to even on the exact binary value). Infinities and NaNs come back as they are,
// payload included.
double DYXRoundToDigits(double value, unsigned digits);

}  // namespace talvex
