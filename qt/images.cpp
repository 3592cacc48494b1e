#include "qt/images.h"

#include <QPainterPath>
#include <array>

#include "qt/rich_text.h"
#include "ui/simple_tex.h"

namespace talvex {
namespace {

// Key images that are formulas.
struct TextImage {
    std::u16string_view name;
    std::u16string_view tex;
    double size;
};

constexpr auto kTextImages = std::to_array<TextImage>({
    {u"EEX-3Small", u"10^{\u22123}", 11},
    {u"EEX-3Pressed", u"10^{\u22123}", 11},
    {u"EEX-6Small", u"10^{\u22126}", 11},
    {u"EEX-6Pressed", u"10^{\u22126}", 11},
    {u"EEX-9Small", u"10^{\u22129}", 11},
    {u"EEX-9Pressed", u"10^{\u22129}", 11},
    {u"EEX+3Small", u"10^3", 11},
    {u"EEX+3Pressed", u"10^3", 11},
    {u"EEX+6Small", u"10^6", 11},
    {u"EEX+6Pressed", u"10^6", 11},
    {u"EEX+9Small", u"10^9", 11},
    {u"EEX+9Pressed", u"10^9", 11},
    {u"powyxSmall.tiff", u"y^x", 11},
    {u"powxySmall.tiff", u"x^y", 11},
    {u"lnyxSmall.tiff", u"log_{y}x", 11},
    {u"lnxySmall.tiff", u"log_{x}y", 11},
    {u"pointSmall.tiff", u".", 13},
    {u"commaSmall.tiff", u",", 13},
});

// The small icons of the title bar: rectangles on a grid of 9 by 9, origin at the lower left.
struct IconRect {
    bool isDark;
    double x, y, width, height;
};

struct Icon {
    std::u16string_view name;
    std::array<IconRect, 2> rects;
};

constexpr double kIconGrid = 9.0;

constexpr auto kIcons = std::to_array<Icon>({
    {u"statusOn", {{{true, 0, 3, 9, 9}, {true, 0, 0, 9, 2}}}},
    {u"statusOff", {{{true, 0, 2, 9, 9}, {true, 0, 2, 0, 0}}}},
    {u"xyztOff", {{{true, 0, 0, 9, 9}, {false, 2, 3, 5, 4}}}},
    {u"xyztOn", {{{true, 0, 2, 9, 7}, {false, 2, 5, 5, 2}}}},
});

void paintIcon(QPainter& painter, const QRectF& rect, const Scale& scale, const Icon& icon) {
    const int side = scale.pixels(kIconGrid);
    const QRect grid(static_cast<int>(rect.center().x() - side / 2.0),
                     static_cast<int>(rect.center().y() - side / 2.0), side, side);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (const IconRect& part : icon.rects) {
        const QPoint from(scale.pixels(part.x), scale.pixels(kIconGrid - part.y - part.height));
        const QPoint to(scale.pixels(part.x + part.width), scale.pixels(kIconGrid - part.y));
        painter.fillRect(
            QRect(grid.topLeft() + from, QSize(to.x() - from.x(), to.y() - from.y())) & grid,
            QColor::fromRgbF(part.isDark ? 0.45F : 0.75F, part.isDark ? 0.45F : 0.75F,
                             part.isDark ? 0.45F : 0.75F));
    }
    painter.restore();
}

}  // namespace

void paintImage(QPainter& painter, const QRectF& rect, const Scale& scale, const Image& image) {
    for (const TextImage& text : kTextImages) {
        if (text.name == image.name) {
            painter.setPen(image.color);
            paintCentered(painter, rect, scale,
                          simpleTexTitle(text.tex, {.name = u"Lucida Grande", .size = text.size}));
        }
    }
    for (const Icon& icon : kIcons) {
        if (icon.name == image.name) {
            paintIcon(painter, rect, scale, icon);
        }
    }
}

void paintPadlock(QPainter& painter, const QRectF& rect, const Scale& scale,
                  const Padlock& padlock) {
    painter.save();
    painter.translate(rect.center());
    painter.scale(scale.factor(), scale.factor());
    const QRectF body(-5.0, -1.0, 10.0, 7.0);
    painter.setPen(Qt::NoPen);
    painter.setBrush(padlock.color);
    painter.drawRoundedRect(body, 1.5, 1.5);
    QPainterPath shackle;
    const double shift = padlock.isOpen ? 5.0 : 0.0;
    const QRectF arch(shift - 3.0, -6.5, 6.0, 6.0);
    shackle.moveTo(arch.left(), body.top());
    shackle.lineTo(arch.left(), arch.center().y());
    shackle.arcTo(arch, 180.0, -180.0);
    shackle.lineTo(arch.right(), padlock.isOpen ? arch.center().y() + 1.5 : body.top());
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(padlock.color, 1.6));
    painter.drawPath(shackle);
    painter.restore();
}

}  // namespace talvex
