#include "platform/NSView.h"

#include <utility>

namespace talvex {
namespace {

struct Span {
    double start;
    double length;
};

// The change of the superview's size goes in equal parts to whatever the mask lets stretch.
Span stretched(Span span, double change, bool minMargin, bool size, bool maxMargin) {
    const int parts =
        static_cast<int>(minMargin) + static_cast<int>(size) + static_cast<int>(maxMargin);
    if (parts == 0) {
        return span;
    }
    const double share = change / parts;
    return {.start = span.start + (minMargin ? share : 0.0),
            .length = span.length + (size ? share : 0.0)};
}

}  // namespace

void NSView::setFrame(const NSRect& frame) {
    const NSSize oldSize{frame_.width, frame_.height};
    const NSSize newSize{frame.width, frame.height};
    update(frame_, frame);
    if (oldSize == newSize) {
        return;
    }
    for (const auto& view : subviews_) {
        view->resizeWithOldSuperviewSize(oldSize, newSize);
        // Whoever draws from the top has to move it even if it stays where it is from the bottom.
        view->setNeedsDisplay();
    }
}

void NSView::resizeWithOldSuperviewSize(const NSSize& oldSize, const NSSize& newSize) {
    const auto has = [this](NSAutoresizingMask bit) { return (autoresizingMask_ & bit) != 0; };
    const Span x = stretched({frame_.x, frame_.width}, newSize.width - oldSize.width,
                             has(NSViewMinXMargin), has(NSViewWidthSizable), has(NSViewMaxXMargin));
    const Span y =
        stretched({frame_.y, frame_.height}, newSize.height - oldSize.height, has(NSViewMinYMargin),
                  has(NSViewHeightSizable), has(NSViewMaxYMargin));
    setFrame({.x = x.start, .y = y.start, .width = x.length, .height = y.length});
}

void NSView::setHidden(bool hidden) { update(hidden_, hidden); }

void NSView::setToolTip(std::u16string toolTip) { update(toolTip_, std::move(toolTip)); }

void NSView::setAccessibilityLabel(std::u16string label) {
    update(accessibilityLabel_, std::move(label));
}

void NSView::addSubview(std::shared_ptr<NSView> view) {
    view->superview_ = this;
    subviews_.push_back(std::move(view));
    setNeedsDisplay();
}

NSWindow* NSView::window() const { return superview_ != nullptr ? superview_->window() : window_; }

bool NSView::keyDown(const NSEvent& event) {
    return superview_ != nullptr && superview_->keyDown(event);
}

void NSView::flagsChanged(const NSEvent& event) {
    if (superview_ != nullptr) {
        superview_->flagsChanged(event);
    }
}

void NSView::setNeedsDisplay() {
    if (observer_ != nullptr) {
        observer_->viewDidChange(*this);
    }
}

void NSView::drawRect(NSGraphicsContext& /*context*/) const {}

}  // namespace talvex
