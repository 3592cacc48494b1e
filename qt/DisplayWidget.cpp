#include "qt/DisplayWidget.h"

#include <QPainter>

#include "qt/QtGraphicsContext.h"
#include "qt/conversions.h"

namespace talvex {

DisplayWidget::DisplayWidget(DYXWindowController& controller, QWidget* parent)
    : QWidget(parent), record_(*controller.views().displayView) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    lines_ = {new LineWidget(controller.tDisplay(), record_, this),
              new LineWidget(controller.zDisplay(), record_, this),
              new LineWidget(controller.yDisplay(), record_, this),
              new LineWidget(controller.xDisplay(), record_, this)};
    WindowViews& views = controller.views();
    new StatusWidget(*controller.xDisplay().statusField(), views, this);
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
