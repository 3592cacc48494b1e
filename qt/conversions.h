#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>
#include <string>

#include "platform/NSColor.h"
#include "platform/NSFont.h"
#include "platform/NSGeometry.h"

namespace talvex {

QString toQString(const std::u16string& text);
QColor toQColor(const NSColor& color);
// The font on this desktop that stands for the record's; its size is in logical pixels.
QFont toQFont(const NSFont& font);
// The rectangle as seen from the top left of a parent of the given height.
QRect toQRect(const NSRect& rect, double parentHeight);

}  // namespace talvex
