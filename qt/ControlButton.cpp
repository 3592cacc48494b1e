#include "qt/ControlButton.h"

#include <QEnterEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "qt/palette.h"

namespace talvex {

ControlButton::ControlButton(NSView* record, QWidget* parent)
    : QAbstractButton(parent), record_(record) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    setMouseTracking(true);
}

void ControlButton::paintFocusRing(QPainter& painter, double radius) const {
    if (!hasFocus()) {
        return;
    }
    constexpr double kWidth = 2.0;
    painter.setPen(QPen(windowColors(palette()).focusRing, kWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.0, 1.0, -1.0, -1.0), radius, radius);
}

void ControlButton::tellPointer(const QPointF& place) {
    if (record_ != nullptr) {
        record_->pointerMoved(NSPoint{place.x(), height() - 1.0 - place.y()});
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
