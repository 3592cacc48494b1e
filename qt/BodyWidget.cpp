#include "qt/BodyWidget.h"

#include <QPainter>
#include <utility>

#include "qt/DisplayWidget.h"
#include "qt/FocusWalk.h"
#include "qt/PanelWidget.h"
#include "qt/TitleBar.h"
#include "qt/palette.h"

namespace talvex {
namespace {

constexpr int kMotionMilliseconds = 160;

}  // namespace

BodyWidget::BodyWidget(DYXWindowController& controller, Scale& scale, Host host, QWidget* parent)
    : QWidget(parent),
      controller_(controller),
      scale_(scale),
      host_(std::move(host)),
      titleBar_(new TitleBar(controller, scale, this)),
      content_(new QWidget(this)),
      display_(new DisplayWidget(controller, scale, content_)),
      stillPicture_(new QLabel(this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    KeyPad& keyPad = controller.views().keyPad;
    auto* const keys = new PanelWidget(*keyPad.view(), keyPad.keys(), scale, content_);
    new StatusFieldWidget(*keyPad.view()->statusField(), scale, content_,
                          controller.views().contentView.get());
    for (QWidget* const area :
         {static_cast<QWidget*>(keys), static_cast<QWidget*>(display_), titleBar_}) {
        FocusWalk::markArea(*area);
    }
    titleBar_->raise();
    stillPicture_->hide();
    motion_.setDuration(kMotionMilliseconds);
    motion_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&motion_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& size) { setBodySize(size.toSize()); });
    connect(&motion_, &QVariantAnimation::finished, this, [this] {
        stillPicture_->hide();
        host_.didArrive();
    });
    followRecord();
}

QRect BodyWidget::restingPlace() const { return {pos(), sizeOfRecord()}; }

QSize BodyWidget::sizeOfRecord() const {
    const NSRect& frame = controller_.views().window.frame();
    return scale_.pixels(NSSize{frame.width, frame.height});
}

void BodyWidget::takeSize() {
    picture_ = {};
    motion_.stop();
    followRecord();
    content_->resize(size() - QSize(0, bar()));
}

void BodyWidget::flashDisplay() { display_->flash(); }

void BodyWidget::prepareMotion() {
    if (isVisible()) {
        picture_ = content_->grab();
    }
}

void BodyWidget::followRecord() {
    const QSize size = sizeOfRecord();
    content_->resize(size - QSize(0, bar()));
    controller_.views().keyPad.view()->statusField()->setNeedsDisplay();
    const QPixmap picture = std::exchange(picture_, {});
    if (size == (isMoving() ? motion_.endValue().toSize() : this->size())) {
        return;
    }
    motion_.stop();
    // The display grows upward, and everything below it moves with the lower edge of the window.
    const double displayHeight = controller_.views().displayView->frame().height;
    movesWithLowerEdge_ = displayHeight != std::exchange(displayHeight_, displayHeight);
    if (picture.isNull()) {
        stillPicture_->hide();
        setBodySize(size);
        host_.didArrive();
        return;
    }
    const bool shrinks = size.height() < height() || size.width() < width();
    stillPicture_->setPixmap(picture);
    stillPicture_->resize(picture.deviceIndependentSize().toSize());
    stillPicture_->setVisible(shrinks);
    stillPicture_->stackUnder(titleBar_);
    motion_.setStartValue(this->size());
    motion_.setEndValue(size);
    motion_.start();
}

void BodyWidget::setBodySize(const QSize& size) {
    resize(size);
    titleBar_->setGeometry(0, 0, size.width(), bar());
    const int room = size.height() - bar();
    content_->move(0, bar() + (movesWithLowerEdge_ ? room - content_->height() : 0));
    stillPicture_->move(0, bar() + (movesWithLowerEdge_ ? room - stillPicture_->height() : 0));
    host_.didResize();
}

void BodyWidget::paintEvent(QPaintEvent* /*event*/) {
    const WindowColors& colors = windowColors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.border);
    const int line = scale_.line();
    painter.fillRect(rect().adjusted(line, line, -line, -line), colors.window);
}

}  // namespace talvex
