#include "platform/NSView.h"

#include <algorithm>
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
    // A subview may put another one in its place as it is resized.
    const std::vector<std::shared_ptr<NSView>> views = subviews_;
    for (const auto& view : views) {
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

void NSView::removeFromSuperview() {
    if (superview_ == nullptr) {
        return;
    }
    std::vector<std::shared_ptr<NSView>>& views = superview_->subviews_;
    superview_ = nullptr;
    views.erase(std::find_if(views.begin(), views.end(),
                             [this](const auto& view) { return view.get() == this; }));
}

int NSView::addTrackingRect(const NSRect& rect, NSTrackingOwner& owner, const void* userData,
                            bool assumeInside) {
    trackingRects_.push_back({.tag = ++lastTag_,
                              .rect = rect,
                              .owner = &owner,
                              .userData = userData,
                              .isInside = assumeInside});
    return lastTag_;
}

void NSView::removeTrackingRect(int tag) {
    const auto hasTag = [tag](const TrackingRect& tracked) { return tracked.tag == tag; };
    trackingRects_.erase(std::remove_if(trackingRects_.begin(), trackingRects_.end(), hasTag),
                         trackingRects_.end());
}

void NSView::pointerMoved(const std::optional<NSPoint>& place) {
    const auto contains = [&place](const NSRect& rect) {
        return place && place->x >= rect.x && place->x < rect.x + rect.width &&
               place->y >= rect.y && place->y < rect.y + rect.height;
    };
    std::vector<TrackingRect> crossed;
    for (TrackingRect& tracked : trackingRects_) {
        if (contains(tracked.rect) != tracked.isInside) {
            tracked.isInside = !tracked.isInside;
            crossed.push_back(tracked);
        }
    }
    for (const TrackingRect& tracked : crossed) {
        if (tracked.isInside) {
            tracked.owner->mouseEntered(tracked.userData);
        } else {
            tracked.owner->mouseExited(tracked.userData);
        }
    }
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
