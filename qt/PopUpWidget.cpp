#include <QCursor>
#include <QMenu>
#include <QPainter>

#include "qt/DisplayWidget.h"
#include "qt/conversions.h"

namespace talvex {
namespace {

constexpr double kRadius = 3.0;
const QColor kText(0x2A, 0x2F, 0x1E);
const QColor kHover(0x2A, 0x2F, 0x1E, 0x20);
const QColor kDown(0x2A, 0x2F, 0x1E, 0x48);

}  // namespace

PopUpWidget::PopUpWidget(NSPopUpButton& record, QWidget* parent)
    : QAbstractButton(parent), record_(record), observer_(*this, record) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::pressed, this, &PopUpWidget::showMenu);
}

void PopUpWidget::showMenu() {
    record_.validateMenu();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const NSMenuItem& item : record_.menu().items) {
        QAction* action = menu->addAction(toQString(item.title));
        action->setCheckable(item.state != 0);
        action->setChecked(item.state != 0);
        action->setEnabled(item.enabled);
        connect(action, &QAction::triggered, this, [item] { item.action(item); });
    }
    connect(menu, &QMenu::aboutToHide, this, [this] {
        setDown(false);
        // The menu had the mouse: nothing has told that it left.
        setAttribute(Qt::WA_UnderMouse, rect().contains(mapFromGlobal(QCursor::pos())));
    });
    menu->popup(mapToGlobal(rect().bottomLeft()));
}

void PopUpWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDown() || underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? kDown : kHover);
        painter.drawRoundedRect(QRectF(rect()), kRadius, kRadius);
    }
    painter.setFont(toQFont(record_.font()));
    painter.setPen(kText);
    // One point lower, on the baseline of the status text.
    painter.drawText(rect().translated(0, 1), Qt::AlignCenter | Qt::TextSingleLine,
                     toQString(record_.title()));
}

}  // namespace talvex
