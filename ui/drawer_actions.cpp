// The four drawers: opening, dragging, and their hand-over to the switch of the key pad.

#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

// In a window no higher than this the key pad is hidden.
constexpr double kLowWindow = 200.0;
constexpr std::uint32_t kPrimaryButton = 1;

}  // namespace

void DYXWindowController::connectDrawers() {
    windowDidResize();
    for (const DrawerName name : kDrawerNames) {
        drawers_[name].record.setDelegate(this);
        views_->keyPad.drawerButton(name).setAction(
            [this, name](NSButton&) { toggleDrawer(drawers_[name].record); });
    }
}

void DYXWindowController::takeToggleMemoryDrawerFrom() {
    toggleDrawer(drawers_[DrawerName::memory].record);
}

void DYXWindowController::takeToggleConstantsDrawerFrom() {
    toggleDrawer(drawers_[DrawerName::constants].record);
}

void DYXWindowController::takeToggleConversionDrawerFrom() {
    toggleDrawer(drawers_[DrawerName::conversion].record);
}

void DYXWindowController::takeToggleFunctionsDrawerFrom() {
    toggleDrawer(drawers_[DrawerName::functions].record);
}

void DYXWindowController::toggleDrawer(NSDrawer& drawer) {
    if (drawer.isOpenOrOpening()) {
        drawer.close();
    } else if (!layout_.keyPadHidden && views_->window.frame().height > kLowWindow) {
        drawer.openOnEdge(drawer.preferredEdge());
    }
}

// A drag has ended when the mouse is up and the size comes a second time.
NSSize DYXWindowController::drawerWillResizeContentsToSize(NSDrawer& drawer, const NSSize& size) {
    Drawer& dragged = drawers_.of(drawer);
    const bool isMouseUp = (platform().GetCurrentButtonState() & kPrimaryButton) == 0;
    if (dragged.trackedView != nullptr) {
        dragged.trackedView->removeTrackingRects();
    }
    NSSize result = size;
    if (isMouseUp && size == dragged.lastSize) {
        result = slideDrawerToPositionsNearestTo(drawer, dragged.positions, size);
    }
    dragged.lastSize = result;
    if (dragged.trackedView != nullptr && settings_.statusLinesEnabled) {
        dragged.trackedView->addTrackingRects(*hotKeys_);
    }
    return result;
}

// A drawer that was dragged shut is whole the next time.
void DYXWindowController::drawerDidClose(NSDrawer& drawer) {
    if (drawers_.keyPadWaits && drawers_.areClosed()) {
        finishHidingKeyPad();
    }
    const bool isLevel = drawer.preferredEdge() % 2 == 1;
    if ((isLevel ? drawer.contentSize().height : drawer.contentSize().width) == 0.0) {
        drawer.setContentSize(drawer.maxContentSize());
    }
}

void DYXWindowController::drawerStateDidChange(NSDrawer& drawer) {
    for (const DrawerName name : kDrawerNames) {
        if (&drawers_[name].record == &drawer) {
            views_->keyPad.drawerButton(name).setState(drawer.isOpenOrOpening() ? 1 : 0);
        }
    }
}

void DYXWindowController::closeDrawersForKeyPad() {
    for (const DrawerName name : kDrawerNames) {
        Drawer& drawer = drawers_[name];
        drawer.wasOpen = drawer.record.isOpenOrOpening();
    }
    if (drawers_.areClosed()) {
        finishHidingKeyPad();
        return;
    }
    drawers_.keyPadWaits = true;
    for (const DrawerName name : kDrawerNames) {
        drawers_[name].record.close();
    }
}

}  // namespace talvex
