#include "qt/RecordObserver.h"

#include <utility>

namespace talvex {

RecordObserver::RecordObserver(QWidget& widget, Scale& scale, NSView& record,
                               std::function<void()> changed, const NSView* within)
    : widget_(widget),
      scale_(scale),
      record_(record),
      changed_(std::move(changed)),
      within_(within) {
    record_.setObserver(this);
    scale_.follow(*this);
    viewDidChange(record_);
}

RecordObserver::~RecordObserver() {
    record_.setObserver(nullptr);
    scale_.unfollow(*this);
}

void RecordObserver::viewDidChange(const NSView& view) {
    if (const NSView* parent = view.superview()) {
        NSRect frame = view.frame();
        for (; within_ != nullptr && parent != within_; parent = parent->superview()) {
            frame.x += parent->frame().x;
            frame.y += parent->frame().y;
        }
        widget_.setGeometry(scale_.pixels(frame, parent->frame().height));
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
    if (changed_) {
        changed_();
    }
    widget_.update();
}

}  // namespace talvex
