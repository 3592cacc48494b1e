#include "qt/TitleBar.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

#include "qt/images.h"
#include "qt/menus.h"
#include "qt/palette.h"

namespace talvex {
namespace {

constexpr double kButtonSide = 16;
constexpr double kButtonTop = 3;
constexpr double kEdge = 5;
constexpr double kStep = 20;
constexpr double kTitleSize = 11.0;
constexpr double kHoverRadius = 4.0;

}  // namespace

TitleBarButton::TitleBarButton(Sign sign, const QString& name, Scale& scale, QWidget* parent)
    : ControlButton(nullptr, scale, parent), sign_(sign) {
    setAccessibleName(name);
    setToolTip(name);
}

TitleBarButton::TitleBarButton(NSButton& record, Scale& scale, QWidget* parent)
    : ControlButton(&record, scale, parent), record_(&record) {
    observer_.emplace(*this, scale, record, nullptr,
                      RecordObserver::Place{.leastSide = kLeastSide});
    connect(this, &QAbstractButton::clicked, this, [this] { record_->performClick(); });
}

void TitleBarButton::paintEvent(QPaintEvent* /*event*/) {
    const WindowColors& colors = windowColors(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDown() || underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? pressedFace(colors.function.face) : colors.function.face);
        const double radius = scale().exactly(kHoverRadius);
        painter.drawRoundedRect(QRectF(face()), radius, radius);
    }
    if (sign_) {
        paintSign(painter, colors.title);
    } else {
        paintImage(painter, face(), scale(), {.name = record_->image(), .color = colors.title});
    }
    paintFocusRing(painter, kHoverRadius);
}

void TitleBarButton::paintSign(QPainter& painter, const QColor& color) const {
    painter.setPen(QPen(color, scale().exactly(1.4), Qt::SolidLine, Qt::RoundCap));
    const double margin = scale().pixels(4.0) + 0.5;
    const QRectF box = QRectF(face()).adjusted(margin, margin, -margin, -margin);
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

TitleBar::TitleBar(DYXWindowController& controller, Scale& scale, QWidget* parent)
    : QWidget(parent),
      window_(controller.views().window),
      scale_(scale),
      close_(new TitleBarButton(TitleBarButton::Sign::close,
                                toQString(controller.localized(u"close")), scale, this)),
      minimise_(new TitleBarButton(TitleBarButton::Sign::minimise,
                                   toQString(controller.localized(u"minimise")), scale, this)),
      keyPad_(new TitleBarButton(TitleBarButton::Sign::keyPad,
                                 toQString(controller.localized(u"show or hide the key pad")),
                                 scale, this)),
      menuButton_(new TitleBarButton(TitleBarButton::Sign::menu,
                                     toQString(controller.localized(u"menu")), scale, this)) {
    new TitleBarButton(*controller.views().xyztButton, scale, this);
    new TitleBarButton(*controller.views().statusButton, scale, this);
    connect(keyPad_, &QAbstractButton::clicked, this,
            [&controller] { controller.geometry().takeShowKeyPadFrom(); });
    connect(menuButton_, &QAbstractButton::pressed, this,
            [this, &controller] { pullDownMenu(controller.views().menu, scale_, *menuButton_); });
    connect(close_, &QAbstractButton::clicked, this, [this] { this->window()->close(); });
    connect(minimise_, &QAbstractButton::clicked, this,
            [this] { this->window()->showMinimized(); });
}

void TitleBar::resizeEvent(QResizeEvent* /*event*/) {
    double left = kEdge;
    for (TitleBarButton* const button : {close_, minimise_, keyPad_, menuButton_}) {
        button->setGeometry(
            scale_.pixels({.x = left, .y = kButtonTop, .width = kButtonSide, .height = kButtonSide},
                          kButtonTop + kButtonSide + kButtonTop));
        left += kStep;
    }
}

void TitleBar::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setFont(scale_.font({.name = u"Lucida Grande", .size = kTitleSize}));
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
