#pragma once

#include "platform/NSColor.h"
#include "platform/NSView.h"
#include "platform/NSWindow.h"

namespace talvex {

// The window's content views: they pass keys on to the delegate of their window.
class DYXView : public NSView {
  public:
    using NSView::NSView;

    [[nodiscard]] NSResponder* delegate() const;
    bool keyDown(const NSEvent& event) override;
    void flagsChanged(const NSEvent& event) override;
};

// The view behind the display lines: pale, in a sunken frame. It passes keys on to its delegate.
class DYXDisplayView : public NSView {
  public:
    explicit DYXDisplayView(const NSRect& frame);

    void setDelegate(NSResponder* delegate) { delegate_ = delegate; }
    [[nodiscard]] const NSColor& color() const { return color_; }
    void setColor(const NSColor& color) { update(color_, color); }

    void drawRect(NSGraphicsContext& context) const override;
    bool keyDown(const NSEvent& event) override;

  private:
    NSResponder* delegate_ = nullptr;
    NSColor color_;
};

}  // namespace talvex
