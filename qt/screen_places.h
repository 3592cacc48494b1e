#pragma once

#include <QObject>
#include <QRect>
#include <functional>

#include "platform/NSGeometry.h"

// Places on the desktop: records count from the lower left corner of the first screen, the screen
// itself from the upper left.
namespace talvex {

// A saved place may be any number; what is far off every screen comes nearer.
[[nodiscard]] QRect onScreen(const NSRect& frame);
[[nodiscard]] NSRect placeOfRecord(const QRect& rect);

// Whether enough of a window's title bar is in sight to take hold of it.
[[nodiscard]] bool isInSight(const QRect& titleBar);

// Whether all of it can be seen, be it on several screens.
[[nodiscard]] bool isAllInSight(const QRect& rect);

// What can be used of the screen that shows most of a window, or else of the first one.
[[nodiscard]] QRect availableAround(const QRect& window);

// Runs the action whenever a screen came, went or changed, for as long as the context lives.
void whenScreensChange(QObject& context, const std::function<void()>& action);

}  // namespace talvex
