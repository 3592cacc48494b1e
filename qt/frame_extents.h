#pragma once

#include <QMargins>
#include <QWidget>

namespace talvex {

// Tells the window manager which margins of the window are invisible, so that it places what can be
// seen. Does nothing where there is no X server.
void publishFrameExtents(const QWidget& window, const QMargins& margins);

}  // namespace talvex
