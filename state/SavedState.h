#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "platform/NSGeometry.h"
#include "state/Settings.h"
#include "state/WindowLayout.h"
#include "state/property_list.h"

namespace talvex {

// What was open where in the window and in the help.
struct WindowState {
    std::int32_t memoryDrawerState = 0;  // 0 closed, 1 opening, 2 open, 3 closing
    std::int32_t constantsDrawerState = 0;
    std::int32_t conversionDrawerState = 0;
    std::int32_t functionsDrawerState = 0;
    // Comes back with the key pad.
    bool memoryWasOpen = false;
    bool constantsWasOpen = false;
    bool conversionWasOpen = false;
    bool functionsWasOpen = false;
    std::int32_t conversionTabSelection = 0;
    bool helpPanelVisible = true;
    std::int32_t helpTag = 0;
    std::int32_t helpViewTextSize = 0;
};

// All that outlives the program. A new one holds what counts where there is no file to read.
struct SavedState {
    std::array<double, 4> reg{};
    std::array<double, 21> mem{};
    double lastX = 0.0;
    std::int32_t inputState = 2;  // written only

    Settings settings;
    WindowLayout layout;
    WindowState window;

    std::optional<NSRect> calculatorFrame;
    std::optional<NSRect> helpFrame;
};

// From and to the dictionary of a file. An older file may have other keys. Where a file lacks a
// key, its value isn't always the one that counts without a file. No number is checked against a
// range.
SavedState savedStateFrom(const PropertyDictionary& dictionary);
PropertyDictionary propertiesOf(const SavedState& state);

}  // namespace talvex
