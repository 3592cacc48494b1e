#include "platform/NSWindow.h"

#include <utility>

#include "platform/NSEvent.h"

namespace talvex {

NSRect NSWindow::frameRectForContentRect(const NSRect& content) {
    NSRect frame = content;
    frame.height += kTitleBarHeight;
    return frame;
}

void NSWindow::setTitle(std::u16string title) {
    title_ = std::move(title);
    notify();
}

void NSWindow::setFrame(const NSRect& frame) {
    const bool isResized = frame.width != frame_.width || frame.height != frame_.height;
    frame_ = frame;
    frameView_->setFrame({.width = frame.width, .height = frame.height});
    if (contentView_) {
        contentView_->setFrame({.width = frame.width, .height = frame.height - kTitleBarHeight});
    }
    notify();
    if (isResized && delegate_ != nullptr) {
        delegate_->windowDidResize();
    }
}

void NSWindow::setFrameDisplayAnimate(const NSRect& frame, bool animate) {
    if (animate && observer_ != nullptr) {
        observer_->windowWillAnimate(*this);
    }
    setFrame(frame);
}

void NSWindow::setFrameTopLeftPoint(const NSPoint& point) {
    NSRect frame = frame_;
    frame.x = point.x;
    frame.y = point.y - frame.height;
    setFrame(frame);
}

void NSWindow::setSize(std::int32_t percent) {
    if (percent != size_) {
        size_ = percent;
        notify();
    }
}

void NSWindow::makeKeyAndOrderFront() {
    visible_ = true;
    notify();
    if (observer_ != nullptr) {
        observer_->windowDidOrderFront(*this);
    }
}

void NSWindow::orderOut() {
    visible_ = false;
    notify();
}

void NSWindow::setLevel(NSWindowLevel level) {
    if (level != std::exchange(level_, level) && observer_ != nullptr) {
        observer_->windowDidChangeLevel(*this);
    }
}

void NSWindow::setContentView(std::shared_ptr<NSView> view) {
    contentView_ = std::move(view);
    contentView_->window_ = this;
}

bool NSWindow::sendEvent(const NSEvent& event) {
    if (firstResponder_ == nullptr) {
        return false;
    }
    if (event.type == NSFlagsChanged) {
        firstResponder_->flagsChanged(event);
        return true;
    }
    return event.type == NSKeyDown && firstResponder_->keyDown(event);
}

void NSWindow::notify() {
    if (observer_ != nullptr) {
        observer_->windowDidChange(*this);
    }
}

}  // namespace talvex
