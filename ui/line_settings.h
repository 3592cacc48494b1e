#pragma once

#include "display/LineSettings.h"
#include "platform/NSFont.h"
#include "platform/Platform.h"
#include "state/Settings.h"

// What the settings of the user and the habits of the system make of the lines of the display.
namespace talvex {

[[nodiscard]] char16_t decimalSeparatorOf(const Settings& settings, const NSNumberFormat& system);

// The settings of the X line. Separators of digit groups differ from the decimal separator.
[[nodiscard]] LineSettings lineSettingsOf(const Settings& settings, const NSNumberFormat& system);

[[nodiscard]] NSFont lineFontOf(const Settings& settings);

}  // namespace talvex
