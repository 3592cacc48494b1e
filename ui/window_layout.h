#pragma once

#include <span>

#include "platform/NSGeometry.h"
#include "state/WindowLayout.h"
#include "ui/key_pad_geometry.h"

// Where things stand in the calculator window, in points.
namespace talvex {

inline constexpr double kDisplayHeight = 41.0;
inline constexpr double kThreeLinesHeight = 60.0;
inline constexpr double kAroundDisplay = 2.0;  // above and below it
inline constexpr double kStatusStripHeight = 17.0;
inline constexpr double kNarrowWidth = 274.0;  // of the display alone

// The content rectangle of a layout, origin 0, 0.
[[nodiscard]] constexpr NSRect contentFrame(const WindowLayout& layout) {
    const double display = kAroundDisplay + kDisplayHeight + kAroundDisplay +
                           (layout.displayViewMode == 1 ? kThreeLinesHeight : 0.0);
    if (layout.keyPadHidden) {
        return {.width = kNarrowWidth, .height = display};
    }
    const double status = layout.showStatusLine ? kStatusStripHeight : 0.0;
    return {.width = kKeyPadSize.width, .height = display + kKeyPadSize.height + status};
}

// The rectangle's size at the left edge of the first screen and as high as the screen; or in the
// middle of the first screen. At a fixed place where there are no screens, given as what can be
// used of each.
[[nodiscard]] NSRect leftRectOnScreen(std::span<const NSRect> screens, const NSRect& rect);
[[nodiscard]] NSRect centerRectOnScreen(std::span<const NSRect> screens, const NSRect& rect);

// The places of the display's parts within it, and of the status line below the key pad.
[[nodiscard]] NSRect statusLineFieldRect();
[[nodiscard]] NSRect labelFieldRect();
[[nodiscard]] NSRect mantissaSignFieldRect();
[[nodiscard]] NSRect mantissaFieldRect();
[[nodiscard]] NSRect exponentSignFieldRect();
[[nodiscard]] NSRect exponentFieldRect();
[[nodiscard]] NSRect statusFieldRect();
[[nodiscard]] NSRect outputModePopUpRect();
[[nodiscard]] NSRect inputModePopUpRect();
[[nodiscard]] NSRect angleModePopUpRect();

// The places of the display and of the key pad in the layout that the window starts with.
[[nodiscard]] NSRect displayViewRect();
[[nodiscard]] NSRect keyPadViewRect();

}  // namespace talvex
