#include "ui/DYXView.h"

#include "platform/NSEvent.h"
#include "ui/bezel.h"

namespace talvex {

NSResponder* DYXView::delegate() const {
    return window() != nullptr ? window()->delegate() : nullptr;
}

bool DYXView::keyDown(const NSEvent& event) {
    NSResponder* const responder = delegate();
    return responder != nullptr && responder->keyDown(event);
}

void DYXView::flagsChanged(const NSEvent& event) {
    if (NSResponder* const responder = delegate()) {
        responder->flagsChanged(event);
    }
}

DYXDisplayView::DYXDisplayView(const NSRect& frame)
    : NSView(frame), color_(NSColor::hueSaturationBrightness(71.0 / 360.0, 0.15, 0.98)) {}

void DYXDisplayView::drawRect(NSGraphicsContext& context) const {
    ZUDrawBezel(context, bounds(), color_);
}

bool DYXDisplayView::keyDown(const NSEvent& event) {
    return delegate_ != nullptr && delegate_->keyDown(event);
}

}  // namespace talvex
