#include "ui/window_layout.h"

namespace talvex {
namespace {

constexpr double kDisplayMargin = 5.0;

// Where a window goes that has no screen, or that is larger than the screen.
constexpr double kNowhere = 64.0;
constexpr double kTooLarge = 40.0;

}  // namespace

NSRect leftRectOnScreen(std::span<const NSRect> screens, const NSRect& rect) {
    if (screens.empty()) {
        return {.x = kNowhere, .y = kNowhere, .width = rect.width, .height = rect.height};
    }
    const NSRect& visible = screens.front();
    return {.x = visible.x, .y = visible.y, .width = rect.width, .height = visible.height};
}

NSRect centerRectOnScreen(std::span<const NSRect> screens, const NSRect& rect) {
    NSRect centered = rect;
    if (screens.empty()) {
        centered.x = kNowhere;
        centered.y = kNowhere;
        return centered;
    }
    const NSRect& visible = screens.front();
    if (rect.width > visible.width || rect.height > visible.height) {
        centered.x = kTooLarge;
        centered.y = rect.height - kTooLarge;
        return centered;
    }
    centered.x = visible.width * 0.5 + visible.x - rect.width * 0.5;
    centered.y = visible.height * 0.5 + visible.y - rect.height * 0.5;
    return centered;
}

NSRect statusLineFieldRect() { return {5, -21, 393, 22}; }
NSRect labelFieldRect() { return {4, 17, 12, 17}; }
NSRect mantissaSignFieldRect() { return {18, 20, 19, 17}; }
NSRect mantissaFieldRect() { return {31, 20, 319, 17}; }
NSRect exponentSignFieldRect() { return {341, 20, 19, 17}; }
NSRect exponentFieldRect() { return {353, 20, 37, 17}; }
NSRect statusFieldRect() { return {181, 1, 207, 13}; }
NSRect outputModePopUpRect() { return {128, 1, 44, 15}; }
NSRect inputModePopUpRect() { return {71, 1, 44, 15}; }
NSRect angleModePopUpRect() { return {14, 1, 40, 15}; }

NSRect displayViewRect() {
    const NSRect content = contentFrame({});
    return {.x = kDisplayMargin,
            .y = content.height - kAroundDisplay - kDisplayHeight,
            .width = content.width - 2.0 * kDisplayMargin,
            .height = kDisplayHeight};
}

NSRect keyPadViewRect() { return {.width = kKeyPadSize.width, .height = kKeyPadSize.height}; }

}  // namespace talvex
