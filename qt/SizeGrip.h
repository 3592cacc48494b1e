#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "qt/Scale.h"

namespace talvex {

// The lower right corner of the body: dragged, it makes all of it larger or smaller.
class SizeGrip final : public QWidget, public ScaleFollower {
  public:
    // `take` gets the factor by which the pointer wants the body larger than it was.
    SizeGrip(Scale& scale, std::function<void(double factor)> take, QWidget* body);
    ~SizeGrip() override;

    void scaleDidChange() override { place(); }
    // Goes to the corner.
    void place();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    Scale& scale_;
    std::function<void(double)> take_;
    struct Drag {
        QPointF offset;  // of the pointer from the corner
        QSizeF points;   // size of the body
    };
    std::optional<Drag> drag_;
};

}  // namespace talvex
