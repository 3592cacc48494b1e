#include "qt/DisplayWidget.h"

#include <QPainter>

#include "qt/QtGraphicsContext.h"
#include "qt/conversions.h"

namespace talvex {

DisplayWidget::DisplayWidget(DYXWindowController& controller, QWidget* parent)
    : QWidget(parent), record_(*controller.views().displayView) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    const auto [x, y, z, t] = controller.lines();
    lines_ = {new LineWidget(*t, record_, this), new LineWidget(*z, record_, this),
              new LineWidget(*y, record_, this), new LineWidget(*x, record_, this)};
    WindowViews& views = controller.views();
    new StatusWidget(*x->statusField(), views, this);
    for (NSPopUpButton* popUp :
         {views.angleModePopUp.get(), views.inputModePopUp.get(), views.outputModePopUp.get()}) {
        new PopUpWidget(*popUp, this);
    }
    record_.setObserver(this);
    viewDidChange(record_);
}

DisplayWidget::~DisplayWidget() { record_.setObserver(nullptr); }

void DisplayWidget::viewDidChange(const NSView& view) {
    setGeometry(toQRect(view.frame(), view.superview()->frame().height));
    for (LineWidget* line : lines_) {
        line->place();
    }
    update();
}

void DisplayWidget::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QtGraphicsContext context(painter, height());
    record_.drawRect(context);
}

}  // namespace talvex
