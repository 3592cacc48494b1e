#include "platform/NSDrawer.h"

#include <algorithm>
#include <utility>

namespace talvex {

NSDrawer::NSDrawer(const NSSize& contentSize, NSRectEdge preferredEdge)
    : edge_(preferredEdge),
      preferredEdge_(preferredEdge),
      contentSize_(contentSize),
      maxContentSize_(contentSize) {}

void NSDrawer::openOnEdge(NSRectEdge edge) {
    edge_ = edge;
    if (!isOpenOrOpening()) {
        setState(NSDrawerOpeningState);
        finishUnlessObserved();
    }
}

void NSDrawer::close() {
    if (isOpenOrOpening()) {
        setState(NSDrawerClosingState);
        finishUnlessObserved();
    }
}

void NSDrawer::finishSliding() {
    if (state_ == NSDrawerOpeningState) {
        setState(NSDrawerOpenState);
    } else if (state_ == NSDrawerClosingState) {
        setState(NSDrawerClosedState);
        if (delegate_ != nullptr) {
            delegate_->drawerDidClose(*this);
        }
    }
}

void NSDrawer::setState(NSDrawerState state) {
    state_ = state;
    if (delegate_ != nullptr) {
        delegate_->drawerStateDidChange(*this);
    }
    notify();
}

void NSDrawer::setContentSize(const NSSize& size) {
    if (contentSize_ == size) {
        return;
    }
    contentSize_ = size;
    if (contentView_) {
        contentView_->setFrame({.width = size.width, .height = size.height});
    }
    notify();
}

void NSDrawer::dragContentsToSize(const NSSize& size) {
    const NSSize bounded{std::clamp(size.width, minContentSize_.width, maxContentSize_.width),
                         std::clamp(size.height, minContentSize_.height, maxContentSize_.height)};
    setContentSize(delegate_ != nullptr ? delegate_->drawerWillResizeContentsToSize(*this, bounded)
                                        : bounded);
}

void NSDrawer::setLeadingOffset(double offset) {
    leadingOffset_ = offset;
    notify();
}

void NSDrawer::setTrailingOffset(double offset) {
    trailingOffset_ = offset;
    notify();
}

void NSDrawer::setContentView(std::shared_ptr<NSView> view) { contentView_ = std::move(view); }

void NSDrawer::finishUnlessObserved() {
    if (observer_ == nullptr) {
        finishSliding();
    }
}

void NSDrawer::notify() {
    if (observer_ != nullptr) {
        observer_->drawerDidChange(*this);
    }
}

}  // namespace talvex
