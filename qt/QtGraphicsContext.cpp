#include "qt/QtGraphicsContext.h"

#include <algorithm>

#include "qt/conversions.h"

namespace talvex {

void QtGraphicsContext::setShouldAntialias(bool antialias) {
    painter_.setRenderHint(QPainter::Antialiasing, antialias);
}

void QtGraphicsContext::fillRect(const NSRect& rect, const NSColor& color) {
    const QPoint from(scale_.pixels(rect.x), scale_.pixels(viewHeight_ - rect.y - rect.height));
    const QPoint to(scale_.pixels(rect.x + rect.width), scale_.pixels(viewHeight_ - rect.y));
    painter_.fillRect(QRect(from, QSize(to.x() - from.x(), to.y() - from.y())), toQColor(color));
}

// Without antialiasing a line covers the row or the column of points that starts at it.
void QtGraphicsContext::strokeLine(const NSPoint& start, const NSSize& offset,
                                   const NSColor& color) {
    fillRect({.x = start.x,
              .y = start.y,
              .width = std::max(offset.width, 1.0),
              .height = std::max(offset.height, 1.0)},
             color);
}

}  // namespace talvex
