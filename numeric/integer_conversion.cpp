#include "numeric/integer_conversion.h"

#include <cmath>
#include <limits>

namespace talvex {

std::int32_t toInt32(double value) {
    const bool fits = value > -2147483649.0 && value < 2147483648.0;
    return fits ? static_cast<std::int32_t>(value) : std::numeric_limits<std::int32_t>::min();
}

std::uint32_t toCount(double value) {
    if (std::isnan(value)) {
        return 2147483648U;
    }
    if (value <= 0.0) {
        return 0;
    }
    return value >= 4294967295.0 ? 4294967295U : static_cast<std::uint32_t>(value);
}

}  // namespace talvex
