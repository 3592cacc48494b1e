#include "ui/DYXWindowController.h"

#include "core/DYXCalculator.h"
#include "display/display_modes.h"
#include "keyboard/modifier_keys.h"
#include "platform/NSEvent.h"
#include "ui/line_settings.h"
#include "ui/main_menu.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

// The tab of the conversion drawer where there is no saved state.
constexpr int kFirstTab = 1;

}  // namespace

DYXWindowController::DYXWindowController(Platform& platform)
    : platform_(platform),
      system_(platform.numberFormat()),
      views_(platform, hotKeys_),
      calculator_(std::make_unique<DYXCalculator>(platform, views_.xFields)),
      controls_(views_, hotKeys_, *calculator_),
      statusTexts_(views_, hotKeys_, *calculator_, settings_, platform),
      drawers_(views_, layout_, statusTexts_, platform),
      geometry_(views_, layout_, settings_, drawers_, statusTexts_),
      help_(views_.help, platform),
      clipboard_(*calculator_, settings_, platform),
      session_({.calculator = *calculator_,
                .settings = settings_,
                .layout = layout_,
                .views = views_,
                .geometry = geometry_,
                .drawers = drawers_,
                .help = help_},
               platform) {
    calculator_->cDisplay().setFieldsHidden(true);
    connectControls();
    views_.menu = mainMenu(*this);
    views_.inputModePopUp->setMenu(choicesMenu(*this, settingRow<&Settings::inputDisplayMode>()));
    views_.outputModePopUp->setMenu(choicesMenu(*this, settingRow<&Settings::outputDisplayMode>()));
    views_.angleModePopUp->setMenu(choicesMenu(*this, settingRow<&Settings::angleMode>()));
    views_.conversionPanel.tabView->selectTabViewItemAtIndex(kFirstTab);
    views_.window.setFrame(
        centerRectOnScreen(platform.visibleFramesOfScreens(), views_.window.frame()));
    session_.loadData();
    refresh();
    help_.showSelectedPage();
    views_.window.makeKeyAndOrderFront();
    statusTexts_.showStatusLines();
}

DYXWindowController::~DYXWindowController() = default;

void DYXWindowController::connectControls() {
    views_.window.setDelegate(this);
    views_.displayView->setDelegate(this);
    const KeyAction runKey = [this](const Comand& command) { click(command); };
    views_.keyPad.setKeyAction(runKey);
    views_.memoryPanel.setKeyAction(runKey);
    views_.constantsPanel.setKeyAction(runKey);
    views_.functionsPanel.setKeyAction(runKey);
    views_.conversionPanel.setKeyAction(runKey);
    views_.keyPad.lockButton().setAction([this](NSButton& button) {
        choose(settingRow<&Settings::unlockInputAndOutputModes>(), button.state());
    });
    views_.xyztButton->setAction([this](NSButton&) { geometry_.takeShowYZTRegistersFrom(); });
    views_.statusButton->setAction([this](NSButton&) { geometry_.takeShowStatusLineFrom(); });
    geometry_.setShowLabels([this] { controls_.showLabels(settings_, layout_); });
}

std::array<DYXOutputDisplay*, 4> DYXWindowController::lines() {
    return {&calculator_->xDisplay(), &calculator_->yDisplay(), &calculator_->zDisplay(),
            &calculator_->tDisplay()};
}

HotKeyState DYXWindowController::hotKeyState() const {
    const Modifiers& modifiers = calculator_->modifiers();
    return {.isStoreArmed = modifiers.store != Store::nothing,
            .isRecallArmed = modifiers.recall,
            .isInverse = modifiers.inverse,
            .isHyperbolic = modifiers.hyperbolic,
            .isHexInput = settings_.inputDisplayMode == mode::HEX};
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
    return hotKey != nullptr;
}

void DYXWindowController::flagsChanged(const NSEvent& event) {
    calculator_->setModifiers(modifiersFor(event.modifierFlags, calculator_->modifiers()));
    controls_.showModifiers();
}

bool DYXWindowController::doCommand(const Comand& command) {
    const bool isKnown = calculator_->doCommand(command);
    controls_.showModifiers();
    clipboard_.giveUpPaste();
    return isKnown;
}

bool DYXWindowController::click(const Comand& command) {
    const bool isKnown = calculator_->press(command);
    controls_.showModifiers();
    clipboard_.giveUpPaste();
    return isKnown;
}

void DYXWindowController::choose(const SettingRow& setting, std::int32_t value) {
    setting.saved.take(settings_, value);
    switch (setting.refresh) {
        case Refresh::nothing:
            return;
        case Refresh::display:
            refresh();
            return;
        case Refresh::statusLines:
            statusTexts_.showStatusLines();
            return;
    }
}

void DYXWindowController::refresh() {
    calculator_->setAngleMode(settings_.angleMode);
    calculator_->setUseHPStylePowerAndLogs(settings_.useHPStylePowerAndLogs);
    DYXInputDisplay& line = calculator_->xDisplay();
    line.setInputSettings({.inputMode = settings_.inputDisplayMode,
                           .unlockInputAndOutputModes = settings_.unlockInputAndOutputModes});
    line.setSettings(lineSettingsOf(settings_, system_));
    line.setTextFont(lineFontOf(settings_));
    calculator_->syncDisplays();
    views_.window.setSize(settings_.windowSize);
    views_.window.setLevel(settings_.alwaysOnTop ? NSWindowLevel::floating : NSWindowLevel::normal);
    controls_.showSettings(settings_, decimalSeparatorOf(settings_, system_));
    controls_.showLabels(settings_, layout_);
    calculator_->updateDisplay();
}

void DYXWindowController::revertDocumentToSaved() {
    clipboard_.giveUpPaste();
    session_.loadData();
    applicationWillBecomeActive();
    statusTexts_.showStatusLines();
}

void DYXWindowController::applicationWillBecomeActive() {
    system_ = platform_.numberFormat();
    refresh();
}

void DYXWindowController::applicationWillTerminate() {
    calculator_->finishEntry();
    session_.saveData();
}

}  // namespace talvex
