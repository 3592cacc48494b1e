#include "ui/DYXWindowController.h"

#include <utility>

#include "display/display_modes.h"
#include "keyboard/modifier_keys.h"
#include "platform/NSEvent.h"

namespace talvex {
namespace {

constexpr std::int32_t kAngleModes = 5;
// Stepping leaves out IRR, which only a menu selects.
constexpr std::int32_t kSteppedModes = 12;
constexpr std::array<std::u16string_view, kAngleModes> kAngleTitles{u"RAD", u"DEG", u"GRD", u"HRS",
                                                                    u"REV"};

}  // namespace

DYXWindowController::DYXWindowController(Platform& platform)
    : DYXWindowController(platform, std::make_unique<WindowViews>(platform)) {}

DYXWindowController::DYXWindowController(Platform& platform, std::unique_ptr<WindowViews> views)
    : DYXCalculator(platform, views->xFields), views_(std::move(views)) {
    cDisplay().setFieldsHidden(true);
    connectControls();
    setUpPopUps();
    setDigitGroupingDigitsMode(settings_.digitGroupingDigitsMode);
    updateFonts();
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

void DYXWindowController::setUpPopUps() {
    NSMenu inputModes;
    NSMenu outputModes;
    for (std::int32_t number = 0; number < mode::count; ++number) {
        inputModes.items.push_back(
            {.title = displayModeName(number), .tag = number, .action = [this](const auto& item) {
                 takeInputModeFrom(item);
             }});
        outputModes.items.push_back(
            {.title = displayModeName(number), .tag = number, .action = [this](const auto& item) {
                 takeOutputModeFrom(item);
             }});
    }
    NSMenu angleModes;
    for (std::int32_t number = 0; number < kAngleModes; ++number) {
        angleModes.items.push_back(
            {.title = std::u16string(kAngleTitles.at(static_cast<std::size_t>(number))),
             .tag = number,
             .action = [this](const auto& item) { takeAngleModeFrom(item); }});
    }
    views_->inputModePopUp->setMenu(std::move(inputModes));
    views_->inputModePopUp->setValidation(
        [this](NSMenuItem& item) { item.state = item.tag == xDisplay().inputMode() ? 1 : 0; });
    views_->outputModePopUp->setMenu(std::move(outputModes));
    views_->outputModePopUp->setValidation([this](NSMenuItem& item) {
        item.state = item.tag == xDisplay().outputMode() ? 1 : 0;
        item.enabled = xDisplay().unlockInputAndOutputModes();
    });
    views_->angleModePopUp->setMenu(std::move(angleModes));
    views_->angleModePopUp->setValidation(
        [this](NSMenuItem& item) { item.state = item.tag == angleMode ? 1 : 0; });
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

void DYXWindowController::takeAngleModeFrom(const NSMenuItem& item) {
    angleMode = item.tag;
    updateDisplay();
}

void DYXWindowController::takeAngleModeFrom(const NSButton& /*sender*/) {
    angleMode = static_cast<std::int32_t>((std::int64_t{angleMode} + 1) % kAngleModes);
    updateDisplay();
}

void DYXWindowController::takeOutputModeFrom(const NSMenuItem& item) {
    xDisplay().setOutputMode(item.tag);
    followModes();
}

void DYXWindowController::takeOutputModeFrom(const NSButton& /*sender*/) {
    const std::int64_t next = (std::int64_t{xDisplay().outputMode()} + 1) % kSteppedModes;
    xDisplay().setOutputMode(static_cast<std::int32_t>(next));
    followModes();
}

void DYXWindowController::takeInputModeFrom(const NSMenuItem& item) {
    xDisplay().setInputMode(item.tag);
    followModes();
}

void DYXWindowController::takeInputModeFrom(const NSButton& /*sender*/) {
    const std::int64_t next = (std::int64_t{xDisplay().inputMode()} + 1) % kSteppedModes;
    xDisplay().setInputMode(static_cast<std::int32_t>(next));
    followModes();
}

void DYXWindowController::followModes() {
    updateDigitGrouping();
    updateFonts();
    syncDisplays();
    updateDisplay();
    updateButtons();
}

void DYXWindowController::takeLockOutputAndInputFrom(const NSButton& sender) {
    xDisplay().setUnlockInputAndOutputModes(sender.state() == 1);
    updateDigitGrouping();
    updateFonts();
    syncDisplays();
    updateLock();
    updateDisplay();
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

void DYXWindowController::resizeWindow() {
    const NSRect old = views_->window.frame();
    NSRect frame = NSWindow::frameRectForContentRect(contentFrame(layout_));
    frame.x = old.x;
    frame.y = old.y - (frame.height - old.height);
    views_->window.setFrame(frame);
}

}  // namespace talvex
