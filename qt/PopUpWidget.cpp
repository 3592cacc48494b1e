#include <QPainter>

#include "qt/DisplayWidget.h"
#include "qt/conversions.h"
#include "qt/menus.h"

namespace talvex {
namespace {

constexpr double kRadius = 3.0;
constexpr double kArrowRoom = 9.0;
constexpr double kArrowWidth = 5.0;
constexpr double kArrowHeight = 2.5;
const QColor kText(0x2A, 0x2F, 0x1E);
const QColor kOutline(0x2A, 0x2F, 0x1E, 0x60);
const QColor kHover(0x2A, 0x2F, 0x1E, 0x20);
const QColor kDown(0x2A, 0x2F, 0x1E, 0x48);

// Says that a menu comes down.
void paintArrow(QPainter& painter, const QRectF& room, const Scale& scale) {
    QRectF arrow(0.0, 0.0, scale.exactly(kArrowWidth), scale.exactly(kArrowHeight));
    arrow.moveCenter(room.center());
    painter.drawPolyline(QPolygonF(
        {arrow.topLeft(), QPointF(arrow.center().x(), arrow.bottom()), arrow.topRight()}));
}

}  // namespace

PopUpWidget::PopUpWidget(NSPopUpButton& record, Scale& scale, QWidget* parent)
    : ControlButton(&record, scale, parent),
      record_(record),
      observer_(*this, scale, record, {}, {.leastSide = kLeastSide}) {
    connect(this, &QAbstractButton::pressed, this, &PopUpWidget::showMenu);
}

void PopUpWidget::showMenu() { pullDownMenu(record_.menu(), scale(), *this); }

void PopUpWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double line = scale().line();
    const double half = line / 2.0;
    const double radius = scale().exactly(kRadius);
    painter.setPen(QPen(kOutline, line));
    painter.setBrush(isDown() ? kDown : underMouse() ? kHover : QColor(Qt::transparent));
    painter.drawRoundedRect(QRectF(face()).adjusted(half, half, -half, -half - scale().pixels(1.0)),
                            radius, radius);
    const double margin = scale().exactly(2.0);
    const double arrowRoom = scale().exactly(kArrowRoom);
    const QRectF inside = QRectF(face()).adjusted(margin, 0.0, -margin, 0.0);
    painter.setFont(scale().font(record_.font()));
    painter.setPen(kText);
    painter.drawText(inside.adjusted(0.0, 0.0, -arrowRoom, 0.0),
                     Qt::AlignCenter | Qt::TextSingleLine, toQString(record_.title()));
    painter.setPen(QPen(kText, scale().exactly(1.0)));
    paintArrow(painter, inside.adjusted(inside.width() - arrowRoom, 0.0, 0.0, 0.0), scale());
    paintFocusRing(painter, kRadius);
}

}  // namespace talvex
