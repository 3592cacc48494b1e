#include "qt/RecordObserver.h"

namespace talvex {

RecordObserver::RecordObserver(QWidget& widget, NSView& record) : widget_(widget), record_(record) {
    record_.setObserver(this);
    viewDidChange(record_);
}

RecordObserver::~RecordObserver() { record_.setObserver(nullptr); }

void RecordObserver::viewDidChange(const NSView& view) {
    if (view.superview() != nullptr) {
        widget_.setGeometry(toQRect(view.frame(), view.superview()->frame().height));
    }
    widget_.setVisible(!view.isHidden());
    const QString toolTip = toQString(view.toolTip());
    if (widget_.toolTip() != toolTip) {
        widget_.setToolTip(toolTip);
    }
    const QString name = toQString(view.accessibilityLabel());
    if (widget_.accessibleName() != name) {
        widget_.setAccessibleName(name);
    }
    widget_.update();
}

}  // namespace talvex
