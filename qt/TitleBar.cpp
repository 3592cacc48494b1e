#include "qt/TitleBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include "qt/images.h"
#include "qt/menus.h"
#include "qt/palette.h"

namespace talvex {
namespace {

constexpr int kButtonSide = 16;
constexpr int kButtonTop = 3;
constexpr int kEdge = 5;
constexpr int kStep = 20;
constexpr double kTitleSize = 11.0;
constexpr double kHoverRadius = 4.0;

}  // namespace

TitleBarButton::TitleBarButton(Sign sign, const QString& name, QWidget* parent)
    : ControlButton(nullptr, parent), sign_(sign) {
    setAccessibleName(name);
    setToolTip(name);
}

TitleBarButton::TitleBarButton(NSButton& record, QWidget* parent)
    : ControlButton(&record, parent), record_(&record) {
    observer_.emplace(*this, record);
    connect(this, &QAbstractButton::clicked, this, [this] { record_->performClick(); });
}

void TitleBarButton::paintEvent(QPaintEvent* /*event*/) {
    const WindowColors& colors = windowColors(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDown() || underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? pressedFace(colors.function.face) : colors.function.face);
        painter.drawRoundedRect(QRectF(rect()), kHoverRadius, kHoverRadius);
    }
    if (sign_) {
        paintSign(painter, colors.title);
    } else {
        paintImage(painter, rect(), record_->image(), colors.title);
    }
    paintFocusRing(painter, kHoverRadius);
}

void TitleBarButton::paintSign(QPainter& painter, const QColor& color) const {
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap));
    const QRectF box = QRectF(rect()).adjusted(4.5, 4.5, -4.5, -4.5);
    switch (*sign_) {
        case Sign::close:
            painter.drawLine(box.topLeft(), box.bottomRight());
            painter.drawLine(box.topRight(), box.bottomLeft());
            break;
        case Sign::minimise:
            painter.drawLine(QPointF(box.left(), box.bottom()), box.bottomRight());
            break;
        case Sign::keyPad:
            painter.drawRoundedRect(box, 1.0, 1.0);
            painter.drawLine(QPointF(box.left(), box.center().y()),
                             QPointF(box.right(), box.center().y()));
            break;
        case Sign::menu:
            for (const double height : {box.top(), box.center().y(), box.bottom()}) {
                painter.drawLine(QPointF(box.left(), height), QPointF(box.right(), height));
            }
            break;
    }
}

TitleBar::TitleBar(DYXWindowController& controller, QWidget* parent)
    : QWidget(parent),
      window_(controller.views().window),
      close_(new TitleBarButton(TitleBarButton::Sign::close,
                                toQString(controller.localized(u"close")), this)),
      minimise_(new TitleBarButton(TitleBarButton::Sign::minimise,
                                   toQString(controller.localized(u"minimise")), this)),
      keyPad_(new TitleBarButton(TitleBarButton::Sign::keyPad,
                                 toQString(controller.localized(u"show or hide the key pad")),
                                 this)),
      menuButton_(new TitleBarButton(TitleBarButton::Sign::menu,
                                     toQString(controller.localized(u"menu")), this)) {
    new TitleBarButton(*controller.views().xyztButton, this);
    new TitleBarButton(*controller.views().statusButton, this);
    connect(keyPad_, &QAbstractButton::clicked, this,
            [&controller] { controller.geometry().takeShowKeyPadFrom(); });
    connect(menuButton_, &QAbstractButton::pressed, this,
            [this, &controller] { pullDownMenu(controller.views().menu, *menuButton_); });
    connect(close_, &QAbstractButton::clicked, this, [this] { this->window()->close(); });
    connect(minimise_, &QAbstractButton::clicked, this,
            [this] { this->window()->showMinimized(); });
}

void TitleBar::resizeEvent(QResizeEvent* /*event*/) {
    close_->setGeometry(kEdge, kButtonTop, kButtonSide, kButtonSide);
    minimise_->setGeometry(kEdge + kStep, kButtonTop, kButtonSide, kButtonSide);
    keyPad_->setGeometry(kEdge + 2 * kStep, kButtonTop, kButtonSide, kButtonSide);
    menuButton_->setGeometry(kEdge + 3 * kStep, kButtonTop, kButtonSide, kButtonSide);
}

void TitleBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(toQFont({.name = u"Lucida Grande", .size = kTitleSize}));
    painter.setPen(windowColors(palette()).title);
    painter.drawText(rect(), Qt::AlignCenter, toQString(window_.title()));
}

void TitleBar::mousePressEvent(QMouseEvent* event) {
    window()->activateWindow();
    if (event->button() == Qt::RightButton) {
        event->ignore();
        return;
    }
    if (event->button() == Qt::LeftButton && !window()->windowHandle()->startSystemMove()) {
        dragStart_ = event->globalPosition().toPoint() - window()->pos();
    }
}

void TitleBar::mouseMoveEvent(QMouseEvent* event) {
    if (dragStart_) {
        window()->move(event->globalPosition().toPoint() - *dragStart_);
    }
}

void TitleBar::mouseReleaseEvent(QMouseEvent* /*event*/) { dragStart_.reset(); }

}  // namespace talvex
