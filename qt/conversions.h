#pragma once

#include <QColor>
#include <QFont>
#include <QString>
#include <string>

#include "platform/NSColor.h"
#include "platform/NSFont.h"

namespace talvex {

QString toQString(const std::u16string& text);
QColor toQColor(const NSColor& color);
// The font on this desktop that stands for the record's; its size is in logical pixels.
QFont toQFont(const NSFont& font);

}  // namespace talvex
