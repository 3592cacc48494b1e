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
    frame_ = frame;
    if (contentView_) {
        contentView_->setFrame({.width = frame.width, .height = frame.height - kTitleBarHeight});
    }
    notify();
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
