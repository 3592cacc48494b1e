// What shows the calculator's state besides its lines. These operations only write to controls.

#include "display/display_modes.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

struct StoreKey {
    std::int32_t store;
    std::u16string_view command;
};

constexpr std::array<StoreKey, 5> kStoreKeys{{
    {1, u"memoSTO "},
    {2, u"memoSTO+"},
    {3, u"memoSTO-"},
    {4, u"memoSTO*"},
    {5, u"memoSTO/"},
}};

}  // namespace

void DYXWindowController::updateControls() {
    updateAngle();
    views_->inputModePopUp->setTitle(xDisplay().inputModeTitle());
    views_->outputModePopUp->setTitle(xDisplay().outputModeTitle());
    updateLock();
}

void DYXWindowController::updateAngle() {
    for (const NSMenuItem& item : views_->angleModePopUp->menu().items) {
        if (item.tag == angleMode) {
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
    views_->keyPad.showHexDigits(xDisplay().inputMode() == mode::HEX);
}

void DYXWindowController::updateLabels() {
    for (DYXOutputDisplay* line : {&yDisplay(), &zDisplay(), &tDisplay()}) {
        line->setLabelFieldHidden(settings_.registerLabelsHidden);
    }
    xDisplay().setLabelFieldHidden(settings_.registerLabelsHidden ||
                                   (layout_.displayViewMode != 1 && settings_.autoHideXLabel));
}

void DYXWindowController::updateModifiers() {
    const KeyPad& keyPad = views_->keyPad;
    keyPad.button(u"modiARC ").setState(inverse ? 1 : 0);
    keyPad.button(u"modiHYP ").setState(hyperbolic ? 1 : 0);
    keyPad.button(u"memoRCL ").setState(recall() ? 1 : 0);
    for (const StoreKey& key : kStoreKeys) {
        keyPad.button(key.command).setState(store() == key.store ? 1 : 0);
    }
}

}  // namespace talvex
