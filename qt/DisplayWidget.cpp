#include "qt/DisplayWidget.h"

#include <QPainter>

#include "qt/QtGraphicsContext.h"
#include "qt/conversions.h"
#include "qt/palette.h"

namespace talvex {
namespace {

constexpr int kFlashMilliseconds = 150;
const QColor kFlash(0x89, 0x13, 0x15, 0x38);

}  // namespace

DisplayWidget::DisplayWidget(DYXWindowController& controller, Scale& scale, QWidget* parent)
    : QWidget(parent), record_(*controller.views().displayView), scale_(scale) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    const auto [x, y, z, t] = controller.lines();
    lines_ = {new LineWidget(*t, record_, scale, this), new LineWidget(*z, record_, scale, this),
              new LineWidget(*y, record_, scale, this), new LineWidget(*x, record_, scale, this)};
    WindowViews& views = controller.views();
    new StatusWidget(*x->statusField(), views, scale, this);
    for (NSPopUpButton* popUp :
         {views.angleModePopUp.get(), views.inputModePopUp.get(), views.outputModePopUp.get()}) {
        new PopUpWidget(*popUp, scale, this);
    }
    flash_.setSingleShot(true);
    flash_.setInterval(kFlashMilliseconds);
    connect(&flash_, &QTimer::timeout, this, [this] { update(); });
    record_.setObserver(this);
    scale_.follow(*this);
    viewDidChange(record_);
}

DisplayWidget::~DisplayWidget() {
    record_.setObserver(nullptr);
    scale_.unfollow(*this);
}

void DisplayWidget::viewDidChange(const NSView& view) {
    setGeometry(scale_.pixels(view.frame(), view.superview()->frame().height));
    for (LineWidget* line : lines_) {
        line->place();
    }
    update();
}

void DisplayWidget::flash() {
    flash_.start();
    update();
}

void DisplayWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QtGraphicsContext context(painter, scale_, record_.frame().height);
    record_.drawRect(context);
    painter.fillRect(rect(), windowColors(palette()).displayShade);
    if (flash_.isActive()) {
        painter.fillRect(rect(), kFlash);
    }
}

}  // namespace talvex
