#pragma once

#include <QMargins>
#include <QWidget>

namespace talvex {

// Lets the window manager know which margins of the window, in points, are invisible, so that it
// places what can be seen; negative ones count as 0. Has to be done before the window is shown.
// Does nothing where there is no X server.
void publishFrameExtents(const QWidget& window, const QMargins& margins);

}  // namespace talvex
