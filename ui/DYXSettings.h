#pragma once

#include <cstdint>

namespace talvex {

// The settings of the window that the lines don't hold themselves.
struct DYXSettings {
    bool animateWindow = true;
    bool registerLabelsHidden = false;
    bool autoHideXLabel = true;    // hide the label of X while Y, Z and T aren't shown
    std::int32_t fontMode = 0;     // 0 by display mode, 1 proportional, 2 monospaced
    std::int32_t decimalMode = 0;  // 0 the locale's separator, 1 the point, 2 the comma
    std::int32_t digitGroupingSeparatorMode = 1;  // 0 none, 1 by display mode, 2 thin, 3 blank
    std::int32_t digitGroupingDigitsMode = 0;     // 0 the locale's, 1 and 2 two, 3, 4 and up four
    bool includeDigitGroupingWhenCopying = false;
    bool statusLinesEnabled = true;
};

}  // namespace talvex
