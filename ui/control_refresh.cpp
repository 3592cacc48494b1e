// What shows the calculator's state besides its lines. These operations only write to controls.

#include <algorithm>

#include "display/display_modes.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

struct ModifierKey {
    Comand command;
    bool (*isOn)(const DYXCalculator&);
};

template <std::int32_t Store>
bool isArmed(const DYXCalculator& calculator) {
    return calculator.store() == Store;
}

constexpr auto kModifierKeys = std::to_array<ModifierKey>({
    {command("modi", "ARC "), [](const DYXCalculator& calculator) { return calculator.inverse; }},
    {command("modi", "HYP "),
     [](const DYXCalculator& calculator) { return calculator.hyperbolic; }},
    {command("memo", "RCL "), [](const DYXCalculator& calculator) { return calculator.recall(); }},
    {command("memo", "STO "), isArmed<1>},
    {command("memo", "STO+"), isArmed<2>},
    {command("memo", "STO-"), isArmed<3>},
    {command("memo", "STO*"), isArmed<4>},
    {command("memo", "STO/"), isArmed<5>},
});

}  // namespace

void DYXWindowController::updateControls() {
    updateAngle();
    views_->inputModePopUp->setTitle(xDisplay().inputModeTitle());
    views_->outputModePopUp->setTitle(xDisplay().outputModeTitle());
    updateLock();
}

void DYXWindowController::updateAngle() {
    for (const NSMenuItem& item : views_->angleModePopUp->menu().items) {
        if (AngleMode{item.tag} == angleMode) {
            views_->angleModePopUp->setTitle(item.title);
        }
    }
}

// Locked, the window shows one mode control only.
void DYXWindowController::updateLock() {
    const bool isUnlocked = xDisplay().unlockInputAndOutputModes();
    views_->keyPad.lockButton().setState(isUnlocked ? 1 : 0);
    views_->outputModePopUp->setHidden(!isUnlocked);
    updateButtons();
}

void DYXWindowController::updateButtons() {
    if (!views_->keyPad.showHexDigits(xDisplay().inputMode() == mode::HEX)) {
        return;
    }
    for (NSButton* const button : views_->keyPad.hexButtons()) {
        views_->keyPad.view()->renewStatusLine(*button, *hotKeys_);
    }
}

void DYXWindowController::updateLabels() {
    for (DYXOutputDisplay* line : {&yDisplay(), &zDisplay(), &tDisplay()}) {
        line->setLabelFieldHidden(settings_.registerLabelsHidden);
    }
    xDisplay().setLabelFieldHidden(settings_.registerLabelsHidden ||
                                   (layout_.displayViewMode != 1 && settings_.autoHideXLabel));
}

void DYXWindowController::findModifierKeys() {
    for (const Key& key : views_->allKeys()) {
        const auto* const row = std::find_if(
            kModifierKeys.begin(), kModifierKeys.end(),
            [&key](const ModifierKey& each) { return each.command == key.button->command(); });
        if (row != kModifierKeys.end()) {
            modifierButtons_.push_back({.button = key.button.get(), .isOn = row->isOn});
        }
    }
}

void DYXWindowController::updateModifiers() {
    for (const ModifierButton& modifier : modifierButtons_) {
        modifier.button->setState(modifier.isOn(*this) ? 1 : 0);
    }
}

}  // namespace talvex
