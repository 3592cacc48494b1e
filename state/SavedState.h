#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/NSGeometry.h"
#include "state/property_list.h"

namespace talvex {

// All that survives the end of the program. As it is made, it holds what counts where there is no
// file to read.
struct SavedState {
    std::array<double, 4> reg{};
    std::array<double, 21> mem{};
    double lastX = 0.0;

    std::int32_t outputDisplayMode = 0;
    std::int32_t inputDisplayMode = 0;
    std::int32_t inputState = 2;  // written only
    std::int32_t angleMode = 0;
    std::int32_t digits = 4;
    std::int32_t helpTag = 0;
    std::int32_t displayViewMode = 0;
    std::int32_t decimalMode = 0;
    std::int32_t digitGroupingSeparatorMode = 1;
    std::int32_t digitGroupingDigitsMode = 0;
    std::int32_t fontMode = 0;
    std::int32_t helpViewTextSize = 0;
    std::int32_t memoryDrawerState = 0;  // 0 closed, 1 opening, 2 open, 3 closing
    std::int32_t constantsDrawerState = 0;
    std::int32_t conversionDrawerState = 0;
    std::int32_t functionsDrawerState = 0;
    std::int32_t conversionTabSelection = 0;

    bool memoryWasOpen = false;
    bool constantsWasOpen = false;
    bool conversionWasOpen = false;
    bool functionsWasOpen = false;
    bool animateWindow = true;
    bool useHPStylePowerAndLogs = true;
    bool reduceCarpentryFractions = true;
    bool unlockInputAndOutputModes = false;
    bool displayIrrationals = false;
    bool helpPanelVisible = true;
    bool keyPadHidden = false;
    bool registerLabelsHidden = false;
    bool autoHideXLabel = true;
    bool statusLinesEnabled = true;
    bool showStatusLine = false;
    bool includeDigitGroupingWhenCopying = false;

    std::optional<NSRect> calculatorFrame;
    std::optional<NSRect> helpFrame;
};

// The dictionary of a file: its 61 keys, or those of older files. A missing key has the value told
// for it, which isn't always that of a missing file. No value is checked against a range.
SavedState savedStateFrom(const PropertyDictionary& dictionary);
PropertyDictionary propertiesOf(const SavedState& state);

}  // namespace talvex
