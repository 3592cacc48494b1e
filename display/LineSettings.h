#pragma once

#include <cstdint>
#include <string>

#include "display/display_modes.h"

namespace talvex {

// How a line shows whatever number it is handed.
struct LineSettings {
    // Precision; its meaning depends on the mode, in FIX and SCI the number of decimals.
    std::uint32_t digits = 4;
    // The longest plain text, in characters, before FIX goes over to scientific form.
    std::uint32_t maxDigits = 19;
    std::int32_t outputMode = mode::FIX;
    bool reduceCarpentryFractions = true;
    bool displayIrrationals = false;
    char16_t decimalSeparator = u'.';
    std::uint32_t groupingDigits = 3;
    std::u16string integerGroupingSeparator = {};
    std::u16string decimalGroupingSeparator = {};

    bool operator==(const LineSettings&) const = default;
};

}  // namespace talvex
