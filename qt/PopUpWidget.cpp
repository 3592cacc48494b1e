#include <QPainter>

#include "qt/DisplayWidget.h"
#include "qt/conversions.h"
#include "qt/menus.h"

namespace talvex {
namespace {

constexpr double kRadius = 3.0;
const QColor kText(0x2A, 0x2F, 0x1E);
const QColor kHover(0x2A, 0x2F, 0x1E, 0x20);
const QColor kDown(0x2A, 0x2F, 0x1E, 0x48);

}  // namespace

PopUpWidget::PopUpWidget(NSPopUpButton& record, Scale& scale, QWidget* parent)
    : ControlButton(&record, scale, parent), record_(record), observer_(*this, scale, record) {
    connect(this, &QAbstractButton::pressed, this, &PopUpWidget::showMenu);
}

void PopUpWidget::showMenu() { pullDownMenu(record_.menu(), scale(), *this); }

void PopUpWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDown() || underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? kDown : kHover);
        const double radius = scale().exactly(kRadius);
        painter.drawRoundedRect(QRectF(rect()), radius, radius);
    }
    painter.setFont(scale().font(record_.font()));
    painter.setPen(kText);
    // One point lower, on the baseline of the status text.
    painter.drawText(rect().translated(0, scale().pixels(1.0)),
                     Qt::AlignCenter | Qt::TextSingleLine, toQString(record_.title()));
    paintFocusRing(painter, kRadius);
}

}  // namespace talvex
