#include "qt/RecordObserver.h"

#include <algorithm>
#include <utility>

namespace talvex {

RecordObserver::RecordObserver(QWidget& widget, Scale& scale, NSView& record,
                               std::function<void()> changed, const Place& place)
    : widget_(widget), scale_(scale), record_(record), changed_(std::move(changed)), place_(place) {
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
        for (; place_.within != nullptr && parent != place_.within; parent = parent->superview()) {
            frame.x += parent->frame().x;
            frame.y += parent->frame().y;
        }
        const QRect rect = scale_.pixels(frame, parent->frame().height);
        const int least = scale_.pixels(place_.leastSide);
        const int left = std::max(0, least - rect.width()) / 2;
        const int top = std::max(0, least - rect.height()) / 2;
        widget_.setGeometry(
            {rect.topLeft() - QPoint(left, top), rect.size().expandedTo(QSize(least, least))});
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
