#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <string_view>

namespace talvex {

// Paints the image of a key or of a title bar button, by its resource name, in the middle of the
// rectangle. Images are drawn, not scaled, and so are crisp at every size. An unknown name paints
// nothing.
void paintImage(QPainter& painter, const QRectF& rect, std::u16string_view name,
                const QColor& color);

// Draws the padlock, open or closed.
void paintPadlock(QPainter& painter, const QRectF& rect, bool isOpen, const QColor& color);

}  // namespace talvex
