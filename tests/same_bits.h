#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace talvex {

inline constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The same bits; of a NaN of ordinary arithmetic the sign is the processor's business.
inline testing::AssertionResult isSame(double actual, double expected) {
    const auto bits = std::bit_cast<std::uint64_t>(actual);
    const auto wanted = std::bit_cast<std::uint64_t>(expected);
    constexpr std::uint64_t sign = std::uint64_t{1} << 63U;
    const auto plainNaN = std::bit_cast<std::uint64_t>(std::nan(""));
    const bool isPlainNaN = (wanted & ~sign) == plainNaN;
    if (bits == wanted || (isPlainNaN && (bits & ~sign) == plainNaN)) {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure()
           << actual << " (" << std::hex << bits << ") for " << expected << " (" << wanted << ")";
}

}  // namespace talvex
