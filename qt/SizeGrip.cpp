#include "qt/SizeGrip.h"

#include <QMouseEvent>
#include <QPainter>
#include <utility>

#include "qt/palette.h"

namespace talvex {
namespace {

constexpr double kSide = 11.0;
constexpr float kOpacity = 0.55F;

}  // namespace

SizeGrip::SizeGrip(Scale& scale, std::function<void(double)> take, QWidget* body)
    : QWidget(body), scale_(scale), take_(std::move(take)) {
    setCursor(Qt::SizeFDiagCursor);
    scale_.follow(*this);
    place();
}

SizeGrip::~SizeGrip() { scale_.unfollow(*this); }

void SizeGrip::place() {
    const int side = scale_.pixels(kSide);
    setGeometry(parentWidget()->width() - side, parentWidget()->height() - side, side, side);
}

void SizeGrip::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor mark = windowColors(palette()).title;
    mark.setAlphaF(kOpacity);
    painter.setPen(QPen(mark, scale_.exactly(1.0)));
    const QPointF corner(width() - scale_.exactly(2.0), height() - scale_.exactly(2.0));
    for (const double length : {3.0, 6.0}) {
        const double side = scale_.exactly(length);
        painter.drawLine(corner - QPointF(side, 0.0), corner - QPointF(0.0, side));
    }
}

void SizeGrip::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    const QPointF corner =
        parentWidget()->mapToGlobal(QPointF(parentWidget()->rect().bottomRight()));
    drag_ = Drag{.offset = event->globalPosition() - corner,
                 .points = QSizeF(parentWidget()->size()) / scale_.factor()};
}

// By the mean of both sides, so that neither rules.
void SizeGrip::mouseMoveEvent(QMouseEvent* event) {
    if (!drag_) {
        return;
    }
    const QPointF corner = parentWidget()->mapFromGlobal(event->globalPosition() - drag_->offset);
    take_((corner.x() / drag_->points.width() + corner.y() / drag_->points.height()) / 2.0);
}

void SizeGrip::mouseReleaseEvent(QMouseEvent* event) {
    drag_.reset();
    QWidget::mouseReleaseEvent(event);
}

}  // namespace talvex
