#include "qt/KeyButton.h"

#include <QPainter>

#include "qt/images.h"
#include "qt/rich_text.h"
#include "ui/simple_tex.h"

namespace talvex {
namespace {

constexpr double kRadius = 4.0;
constexpr double kTextMargin = 2.0;
constexpr double kDimmed = 0.4;

}  // namespace

KeyButton::KeyButton(const Key& key, Scale& scale, QWidget* parent)
    : ControlButton(key.button.get(), scale, parent),
      record_(*key.button),
      group_(key.group),
      keyClass_(key.keyClass),
      observer_(*this, scale, record_, [this] { setChecked(record_.state() != 0); },
                {.leastSide = kLeastSide}) {
    // A unit key that is lit does not go out by a click.
    setCheckable(keyClass_ != KeyClass::key);
    setChecked(record_.state() != 0);
    connect(this, &QAbstractButton::pressed, this, [this] { record_.mouseDown(); });
    connect(this, &QAbstractButton::clicked, this, [this] {
        record_.performClick();
        setChecked(record_.state() != 0);
    });
}

bool KeyButton::showsState() const { return record_.showsStateBy() != NSNoCellMask; }

void KeyButton::paintEvent(QPaintEvent* /*event*/) {
    const bool isLit = showsState() && record_.state() != 0;
    const WindowColors& colors = windowColors(palette());
    const KeyColors& key = isLit ? colors.litKey(group_) : colors.key(group_);
    const QColor ground = isDown()       ? pressedFace(key.face)
                          : underMouse() ? hoverFace(key.face)
                                         : key.face;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(record_.appearsDisabled() ? kDimmed : 1.0);
    const double line = scale().line();
    painter.setPen(QPen(ground.darker(isDown() ? 125 : 118), line));
    painter.setBrush(ground);
    const double half = line / 2.0;
    const double radius = scale().exactly(kRadius);
    painter.drawRoundedRect(QRectF(face()).adjusted(half, half, -half, -half), radius, radius);
    const double margin = scale().exactly(kTextMargin);
    const QRectF inside = QRectF(face()).adjusted(margin, 0.0, -margin, 0.0);
    paintTitle(painter, isDown() ? inside.translated(0.0, line) : inside, key.text);
    painter.setOpacity(1.0);
    paintFocusRing(painter, kRadius);
}

void KeyButton::paintTitle(QPainter& painter, const QRectF& rect, const QColor& color) const {
    if (keyClass_ == KeyClass::lock) {
        paintPadlock(painter, rect, scale(), {.isOpen = record_.state() != 0, .color = color});
        return;
    }
    if (!record_.image().empty()) {
        paintImage(painter, rect, scale(), {.name = record_.image(), .color = color});
        return;
    }
    painter.setPen(color);
    if (!record_.attributedTitle().string.empty()) {
        paintCentered(painter, rect, scale(), record_.attributedTitle());
    } else {
        paintCentered(painter, rect, scale(), simpleTexTitle(record_.title(), record_.font()));
    }
}

}  // namespace talvex
