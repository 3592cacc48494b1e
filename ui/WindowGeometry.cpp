#include "ui/WindowGeometry.h"

#include "ui/window_layout.h"

namespace talvex {
namespace {

void swapImages(NSButton& button) {
    const std::u16string image = button.image();
    button.setImage(button.alternateImage());
    button.setAlternateImage(image);
}

// Changes the autoresizing mask of a view for as long as it lives.
class MaskForAMoment {
  public:
    MaskForAMoment(NSView& view, std::uint32_t mask)
        : view_(view), ownMask_(view.autoresizingMask()) {
        view.setAutoresizingMask(mask);
    }
    MaskForAMoment(const MaskForAMoment&) = delete;
    MaskForAMoment& operator=(const MaskForAMoment&) = delete;
    ~MaskForAMoment() { view_.setAutoresizingMask(ownMask_); }

  private:
    NSView& view_;
    std::uint32_t ownMask_;
};

}  // namespace

WindowGeometry::WindowGeometry(WindowViews& views, WindowLayout& layout, const Settings& settings,
                               Drawers& drawers, const StatusTexts& statusTexts)
    : views_(views),
      layout_(layout),
      settings_(settings),
      drawers_(drawers),
      statusTexts_(statusTexts) {}

void WindowGeometry::resizeWindow() {
    const NSRect old = views_.window.frame();
    NSRect frame = NSWindow::frameRectForContentRect(contentFrame(layout_));
    frame.x = old.x;
    frame.y = old.y - (frame.height - old.height);
    views_.window.setFrameDisplayAnimate(frame, settings_.animateWindow);
}

void WindowGeometry::takeShowYZTRegistersFrom() {
    DYXStatusLineView& keyPad = *views_.keyPad.view();
    statusTexts_.untrack(keyPad);
    layout_.displayViewMode = layout_.displayViewMode == 1 ? 0 : 1;
    swapImages(*views_.xyztButton);
    views_.xyztButton->setState(layout_.displayViewMode);
    {
        // The display takes the change of height, and the key pad rides along.
        const MaskForAMoment display(*views_.displayView, NSViewWidthSizable | NSViewHeightSizable);
        const MaskForAMoment keys(keyPad, NSViewWidthSizable | NSViewMaxYMargin);
        const MaskForAMoment status(*keyPad.statusField(), NSViewWidthSizable | NSViewMaxYMargin);
        showLabels_();
        resizeWindow();
    }
    statusTexts_.track(*views_.keyPad.view());
}

void WindowGeometry::takeShowStatusLineFrom() {
    statusTexts_.untrack(*views_.keyPad.view());
    setShowStatusLine(!layout_.showStatusLine);
    statusTexts_.track(*views_.keyPad.view());
}

void WindowGeometry::setShowStatusLine(bool show) {
    layout_.showStatusLine = show;
    swapImages(*views_.statusButton);
    views_.statusButton->setState(show ? 1 : 0);
    resizeWindow();
}

void WindowGeometry::takeShowKeyPadFrom() {
    layout_.keyPadHidden = !layout_.keyPadHidden;
    if (layout_.keyPadHidden) {
        statusTexts_.untrack(*views_.keyPad.view());
        drawers_.closeForKeyPad([this] { finishHidingKeyPad(); });
        return;
    }
    hideKeyPadViews(false);
    resizeWindow();
    statusTexts_.track(*views_.keyPad.view());
    drawers_.comeBackWithKeyPad();
}

void WindowGeometry::finishHidingKeyPad() {
    resizeWindow();
    hideKeyPadViews(layout_.keyPadHidden);
}

void WindowGeometry::hideKeyPadViews(bool hidden) {
    views_.keyPad.view()->setHidden(hidden);
    views_.keyPad.view()->statusField()->setHidden(hidden);
}

void WindowGeometry::setupWindowAtLocation(const NSPoint& location, const WindowLayout& layout) {
    views_.window.setFrameTopLeftPoint(location);
    if (layout.keyPadHidden != layout_.keyPadHidden) {
        layout_.keyPadHidden = layout.keyPadHidden;
        drawers_.forgetKeyPad();
        finishHidingKeyPad();
    }
    if (layout.displayViewMode != layout_.displayViewMode) {
        takeShowYZTRegistersFrom();
    }
    if (layout.showStatusLine != layout_.showStatusLine) {
        setShowStatusLine(layout.showStatusLine);
    }
}

}  // namespace talvex
