#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <string_view>

#include "qt/Scale.h"

namespace talvex {

// Paints the image of a key or of a title bar button, by its resource name, in the middle of the
// rectangle. Images are drawn, not scaled, and so are crisp at every size. An unknown name paints
// nothing.
struct Image {
    std::u16string_view name;
    QColor color;
};
void paintImage(QPainter& painter, const QRectF& rect, const Scale& scale, const Image& image);

// Draws the padlock, open or closed.
struct Padlock {
    bool isOpen;
    QColor color;
};
void paintPadlock(QPainter& painter, const QRectF& rect, const Scale& scale,
                  const Padlock& padlock);

}  // namespace talvex
