#pragma once

#include <cstdint>

#include "display/display_modes.h"
#include "numeric/DYXMathContext.h"

// What the user has chosen. The numbers of the modes are stored in the saved state, which may hold
// any other number, too.
namespace talvex {

enum class DecimalMode : std::int32_t { system = 0, point = 1, comma = 2 };
enum class SeparatorMode : std::int32_t { none = 0, byMode = 1, thinSpace = 2, blank = 3 };
enum class FontMode : std::int32_t { byMode = 0, proportional = 1, monospaced = 2 };

// Each member has the value that counts where there is no file, and a row in the table of settings.
struct Settings {
    std::int32_t inputDisplayMode = mode::FIX;
    std::int32_t outputDisplayMode = mode::FIX;
    bool unlockInputAndOutputModes = false;
    AngleMode angleMode = AngleMode::rad;
    std::int32_t digits = 4;
    DecimalMode decimalMode = DecimalMode::system;
    SeparatorMode digitGroupingSeparatorMode = SeparatorMode::byMode;
    std::int32_t digitGroupingDigitsMode = 0;  // 0 the system's, else at least two and at most four
    FontMode fontMode = FontMode::byMode;
    bool reduceCarpentryFractions = true;
    bool displayIrrationals = false;
    bool useHPStylePowerAndLogs = true;
    bool includeDigitGroupingWhenCopying = false;
    bool registerLabelsHidden = false;
    bool autoHideXLabel = true;
    bool statusLinesEnabled = true;
    bool animateWindow = true;

    bool operator==(const Settings&) const = default;
};

}  // namespace talvex
