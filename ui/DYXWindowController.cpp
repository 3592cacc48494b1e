#include "ui/DYXWindowController.h"

#include <utility>

#include "display/display_modes.h"
#include "keyboard/modifier_keys.h"
#include "platform/NSEvent.h"
#include "ui/main_menu.h"

namespace talvex {
namespace {

// The tab of the conversion drawer where no saved state tells one.
constexpr int kFirstTab = 1;

}  // namespace

DYXWindowController::DYXWindowController(Platform& platform)
    : DYXWindowController(platform, std::make_unique<HotKeys>()) {}

DYXWindowController::DYXWindowController(Platform& platform, std::unique_ptr<HotKeys> hotKeys)
    : DYXWindowController(platform, std::make_unique<WindowViews>(platform, *hotKeys), hotKeys) {}

DYXWindowController::DYXWindowController(Platform& platform, std::unique_ptr<WindowViews> views,
                                         std::unique_ptr<HotKeys>& hotKeys)
    : DYXCalculator(platform, views->xFields),
      hotKeys_(std::move(hotKeys)),
      views_(std::move(views)),
      drawers_(*views_),
      stateFile_(platform.NSHomeDirectory()) {
    cDisplay().setFieldsHidden(true);
    connectControls();
    connectDrawers();
    views_->menu = mainMenu(*this);
    views_->inputModePopUp->setMenu(inputModeMenu(*this));
    views_->outputModePopUp->setMenu(outputModeMenu(*this));
    views_->angleModePopUp->setMenu(angleModeMenu(*this));
    views_->conversionPanel.tabView->selectTabViewItemAtIndex(kFirstTab);
    setDigitGroupingDigitsMode(settings_.digitGroupingDigitsMode);
    updateFonts();
    views_->window.setFrame(
        centerRectOnScreen(platform.visibleFramesOfScreens(), views_->window.frame()));
    connectHelp();
    loadData();
    syncDisplays();
    updateLabels();
    fixDecimalSeparator();
    updateDisplay();
    updateButtons();
    takeHPStylePowerAndLogsFrom(std::nullopt);
    takeShowHelpFrame(views_->help.matrix.get());
    views_->window.makeKeyAndOrderFront();
    showStatusLines();
}

DYXWindowController::~DYXWindowController() { platform().dropPasteboardRequest(); }

void DYXWindowController::connectControls() {
    views_->window.setDelegate(this);
    views_->displayView->setDelegate(this);
    const KeyAction runKey = [this](const Comand& command) {
        press(command);
        giveUpPaste();
    };
    views_->keyPad.setKeyAction(runKey);
    views_->memoryPanel.setKeyAction(runKey);
    views_->constantsPanel.setKeyAction(runKey);
    views_->functionsPanel.setKeyAction(runKey);
    views_->conversionPanel.setKeyAction(runKey);
    views_->keyPad.lockButton().setAction(
        [this](NSButton& button) { takeLockOutputAndInputFrom(button); });
    findModifierKeys();
    views_->xyztButton->setAction([this](NSButton&) { takeShowYZTRegistersFrom(); });
    views_->statusButton->setAction([this](NSButton&) { takeShowStatusLineFrom(); });
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
        hotKeys_->find(event.charactersIgnoringModifiers.front(), hotKeyState());
    if (hotKey != nullptr) {
        doCommand(hotKey->command);
        giveUpPaste();
    }
    updateModifiers();
    return hotKey != nullptr;
}

void DYXWindowController::flagsChanged(const NSEvent& event) {
    if (takeModifierFlags(*this, event.modifierFlags)) {
        updateModifiers();
    }
}

}  // namespace talvex
