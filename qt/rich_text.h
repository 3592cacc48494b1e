#pragma once

#include <QPainter>
#include <QRectF>

#include "platform/NSAttributedString.h"
#include "qt/Scale.h"

namespace talvex {

// Paints the text on one line in the middle of the rectangle of pixels, raised and lowered parts in
// their places, smaller than its fonts say if it doesn't fit otherwise.
void paintCentered(QPainter& painter, const QRectF& rect, const Scale& scale,
                   const NSAttributedString& text);

// The same from the left side of the rectangle, in the painter's pen.
void paintLeft(QPainter& painter, const QRectF& rect, const Scale& scale,
               const NSAttributedString& text);

}  // namespace talvex
