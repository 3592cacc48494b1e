#pragma once

#include <QMargins>
#include <QWidget>

namespace talvex {

// Whether the window manager heeds them.
[[nodiscard]] bool isFrameExtentsKnown();

// Lets the window manager know which margins of the window, in points, are invisible, so that it
// places what can be seen; negative ones count as 0. Does
// nothing where there is no X server.
void publishFrameExtents(const QWidget& window, const QMargins& margins);

// How wide a border the window manager has put around the window, in points.
[[nodiscard]] int borderAround(const QWidget& window);

}  // namespace talvex
