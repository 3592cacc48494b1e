// The six layouts of the window, and the switches between them.

#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

// What stands above and below the content of a drawer at a side, title bar included.
constexpr double kAroundSideDrawer = NSWindow::kTitleBarHeight + NSDrawer::kEnds;

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

void DYXWindowController::resizeWindow() {
    const NSRect old = views_->window.frame();
    NSRect frame = NSWindow::frameRectForContentRect(contentFrame(layout_));
    frame.x = old.x;
    frame.y = old.y - (frame.height - old.height);
    views_->window.setFrameDisplayAnimate(frame, settings_.animateWindow);
}

// The lower edge of a drawer at a side stays the height of its content below the title bar.
void DYXWindowController::windowDidResize() {
    const double height = views_->window.frame().height;
    for (const DrawerName name : {DrawerName::memory, DrawerName::constants}) {
        NSDrawer& drawer = drawers_[name].record;
        drawer.setTrailingOffset(height - drawer.maxContentSize().height - kAroundSideDrawer);
    }
}

void DYXWindowController::takeShowYZTRegistersFrom() {
    DYXStatusLineView& keyPad = *views_->keyPad.view();
    keyPad.removeTrackingRects();
    layout_.displayViewMode = layout_.displayViewMode == 1 ? 0 : 1;
    swapImages(*views_->xyztButton);
    views_->xyztButton->setState(layout_.displayViewMode);
    {
        // The display takes the change of height, and the key pad rides along.
        const MaskForAMoment display(*views_->displayView,
                                     NSViewWidthSizable | NSViewHeightSizable);
        const MaskForAMoment keys(keyPad, NSViewWidthSizable | NSViewMaxYMargin);
        const MaskForAMoment status(*keyPad.statusField(), NSViewWidthSizable | NSViewMaxYMargin);
        updateLabels();
        resizeWindow();
    }
    trackKeyPad();
}

void DYXWindowController::takeShowStatusLineFrom() {
    views_->keyPad.view()->removeTrackingRects();
    setShowStatusLine(!layout_.showStatusLine);
    trackKeyPad();
}

void DYXWindowController::setShowStatusLine(bool show) {
    layout_.showStatusLine = show;
    swapImages(*views_->statusButton);
    views_->statusButton->setState(show ? 1 : 0);
    resizeWindow();
}

// Open drawers close first, and the window shrinks when the last of them has closed.
void DYXWindowController::takeShowKeyPadFrom() {
    layout_.keyPadHidden = !layout_.keyPadHidden;
    if (layout_.keyPadHidden) {
        views_->keyPad.view()->removeTrackingRects();
        closeDrawersForKeyPad();
        return;
    }
    drawers_.keyPadWaits = false;
    hideKeyPadViews(false);
    resizeWindow();
    trackKeyPad();
    for (const DrawerName name : kDrawerNames) {
        NSDrawer& drawer = drawers_[name].record;
        if (drawers_[name].wasOpen) {
            drawer.openOnEdge(drawer.preferredEdge());
        }
    }
}

void DYXWindowController::finishHidingKeyPad() {
    drawers_.keyPadWaits = false;
    resizeWindow();
    hideKeyPadViews(layout_.keyPadHidden);
}

void DYXWindowController::hideKeyPadViews(bool hidden) {
    views_->keyPad.view()->setHidden(hidden);
    views_->keyPad.view()->statusField()->setHidden(hidden);
}

void DYXWindowController::setupWindowAtLocationKeyPadHiddenDisplayViewModeStatusLine(
    const NSPoint& location, bool keyPadHidden, std::int32_t displayViewMode, bool statusLine) {
    views_->window.setFrameTopLeftPoint(location);
    if (keyPadHidden != layout_.keyPadHidden) {
        layout_.keyPadHidden = keyPadHidden;
        finishHidingKeyPad();
    }
    if (displayViewMode != layout_.displayViewMode) {
        takeShowYZTRegistersFrom();
    }
    if (statusLine != layout_.showStatusLine) {
        setShowStatusLine(statusLine);
    }
}

}  // namespace talvex
