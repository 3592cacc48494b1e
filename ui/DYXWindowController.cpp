#include "ui/DYXWindowController.h"

#include <utility>

#include "display/display_modes.h"
#include "keyboard/modifier_keys.h"
#include "platform/NSEvent.h"
#include "ui/main_menu.h"

namespace talvex {
DYXWindowController::DYXWindowController(Platform& platform)
    : DYXWindowController(platform, std::make_unique<WindowViews>(platform)) {}

DYXWindowController::DYXWindowController(Platform& platform, std::unique_ptr<WindowViews> views)
    : DYXCalculator(platform, views->xFields),
      views_(std::move(views)),
      stateFile_(platform.NSHomeDirectory()) {
    cDisplay().setFieldsHidden(true);
    connectControls();
    views_->menu = mainMenu(*this);
    views_->inputModePopUp->setMenu(inputModeMenu(*this));
    views_->outputModePopUp->setMenu(outputModeMenu(*this));
    views_->angleModePopUp->setMenu(angleModeMenu(*this));
    setDigitGroupingDigitsMode(settings_.digitGroupingDigitsMode);
    updateFonts();
    loadData();
    syncDisplays();
    updateLabels();
    fixDecimalSeparator();
    updateDisplay();
    updateButtons();
    takeHPStylePowerAndLogsFrom(std::nullopt);
}

void DYXWindowController::connectControls() {
    views_->window.setDelegate(this);
    views_->displayView->setDelegate(this);
    views_->keyPad.setKeyAction([this](NSButton& button) { takeDYXButtonFrom(button); });
    views_->keyPad.lockButton().setAction(
        [this](NSButton& button) { takeLockOutputAndInputFrom(button); });
    views_->xyztButton->setAction([this](NSButton&) { takeShowYZTRegistersFrom(); });
}

HotKeyState DYXWindowController::hotKeyState() const {
    return {.isStoreArmed = store() != kNothingArmed,
            .isRecallArmed = recall(),
            .isInverse = inverse,
            .isHyperbolic = hyperbolic,
            .isHexInput = xDisplay().inputMode() == mode::HEX};
}

bool DYXWindowController::keyDown(const NSEvent& event) {
    if (event.charactersIgnoringModifiers.empty()) {
        return false;
    }
    const HotKey* const hotKey =
        hotKeys_.find(event.charactersIgnoringModifiers.front(), hotKeyState());
    if (hotKey != nullptr) {
        doCommand(hotKey->command);
    }
    updateModifiers();
    return hotKey != nullptr;
}

void DYXWindowController::flagsChanged(const NSEvent& event) {
    if (takeModifierFlags(*this, event.modifierFlags)) {
        updateModifiers();
    }
}

void DYXWindowController::takeShowYZTRegistersFrom() {
    layout_.displayViewMode = layout_.displayViewMode == 1 ? 0 : 1;
    NSButton& button = *views_->xyztButton;
    const std::u16string image = button.image();
    button.setImage(button.alternateImage());
    button.setAlternateImage(image);
    // The display takes the change of height, and the key pad rides along.
    NSView& display = *views_->displayView;
    NSView& keyPad = *views_->keyPad.view();
    const std::uint32_t displayMask = display.autoresizingMask();
    const std::uint32_t keyPadMask = keyPad.autoresizingMask();
    display.setAutoresizingMask(NSViewWidthSizable | NSViewHeightSizable);
    keyPad.setAutoresizingMask(NSViewWidthSizable | NSViewMaxYMargin);
    updateLabels();
    resizeWindow();
    display.setAutoresizingMask(displayMask);
    keyPad.setAutoresizingMask(keyPadMask);
}

void DYXWindowController::takeShowKeyPadFrom() { setKeyPadHidden(!layout_.keyPadHidden); }

// The key pad is there whenever the window is large enough for it.
void DYXWindowController::setKeyPadHidden(bool hidden) {
    layout_.keyPadHidden = hidden;
    if (!hidden) {
        views_->keyPad.view()->setHidden(false);
    }
    resizeWindow();
    views_->keyPad.view()->setHidden(hidden);
}

// The top left corner comes to the one of the frame.
void DYXWindowController::setUpWindow(const NSRect& frame, bool keyPadHidden,
                                      std::int32_t displayViewMode) {
    NSRect placed = views_->window.frame();
    placed.x = frame.x;
    placed.y = frame.y + frame.height - placed.height;
    views_->window.setFrame(placed);
    if (keyPadHidden != layout_.keyPadHidden) {
        setKeyPadHidden(keyPadHidden);
    }
    if (displayViewMode != layout_.displayViewMode) {
        takeShowYZTRegistersFrom();
    }
}

void DYXWindowController::resizeWindow() {
    const NSRect old = views_->window.frame();
    NSRect frame = NSWindow::frameRectForContentRect(contentFrame(layout_));
    frame.x = old.x;
    frame.y = old.y - (frame.height - old.height);
    views_->window.setFrame(frame);
}

}  // namespace talvex
