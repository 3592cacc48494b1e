#pragma once

#include <QAbstractButton>
#include <QPainter>

#include "platform/NSView.h"
#include "qt/Scale.h"

namespace talvex {

// What all buttons of the window have in common: a click leaves the keyboard with the calculator,
// keys that a button could take for itself go on to the window, the record hears of the pointer,
// and the button that the keyboard has walked to shows a ring.
class ControlButton : public QAbstractButton {
  public:
    // A button without a record stands for nothing but itself.
    ControlButton(NSView* record, Scale& scale, QWidget* parent);

  protected:
    // Enough for a finger at half as large again.
    static constexpr double kLeastSide = 16.0;

    // What is painted; a small button can be pressed around it, too.
    [[nodiscard]] QRect face() const;
    [[nodiscard]] Scale& scale() const { return scale_; }
    // The radius in points.
    void paintFocusRing(QPainter& painter, double radius) const;

    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

  private:
    void tellPointer(const QPointF& place);

    NSView* record_;
    Scale& scale_;
};

}  // namespace talvex
