#include "qt/ControlButton.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "qt/palette.h"

namespace talvex {

ControlButton::ControlButton(NSView* record, Scale& scale, QWidget* parent)
    : QAbstractButton(parent), record_(record), scale_(scale) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
}

QRect ControlButton::face() const {
    if (record_ == nullptr) {
        return rect();
    }
    const QSize size = scale_.pixels(NSSize{record_->frame().width, record_->frame().height});
    return {QPoint(width() - size.width(), height() - size.height()) / 2, size};
}

void ControlButton::paintFocusRing(QPainter& painter, double radius) const {
    if (!hasFocus()) {
        return;
    }
    const double width = scale_.pixels(2.0);
    painter.setPen(QPen(windowColors(palette()).focusRing, width));
    painter.setBrush(Qt::NoBrush);
    const double half = width / 2.0;
    const double corner = scale_.exactly(radius);
    painter.drawRoundedRect(QRectF(face()).adjusted(half, half, -half, -half), corner, corner);
}

void ControlButton::tellPointer(const QPointF& place) {
    if (record_ != nullptr) {
        const QPointF inside = place - face().topLeft();
        record_->pointerMoved(
            NSPoint{scale_.points(inside.x()), scale_.points(face().height() - 1.0 - inside.y())});
    }
}

void ControlButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    tellPointer(event->position());
}

void ControlButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    if (record_ != nullptr) {
        record_->pointerMoved(std::nullopt);
    }
}

void ControlButton::mousePressEvent(QMouseEvent* event) {
    QAbstractButton::mousePressEvent(event);
    window()->activateWindow();
}

void ControlButton::mouseMoveEvent(QMouseEvent* event) {
    QAbstractButton::mouseMoveEvent(event);
    if (rect().contains(event->position().toPoint())) {
        tellPointer(event->position());
    }
}

void ControlButton::keyPressEvent(QKeyEvent* event) { event->ignore(); }
void ControlButton::keyReleaseEvent(QKeyEvent* event) { event->ignore(); }

}  // namespace talvex
