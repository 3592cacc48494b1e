// What outlives the program, and how it comes back.

#include <algorithm>

#include "display/utf8.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

struct SavedDrawer {
    DrawerName name;
    bool SavedState::*wasOpen;
    std::int32_t SavedState::*state;
};

constexpr auto kSavedDrawers = std::to_array<SavedDrawer>({
    {DrawerName::memory, &SavedState::memoryWasOpen, &SavedState::memoryDrawerState},
    {DrawerName::constants, &SavedState::constantsWasOpen, &SavedState::constantsDrawerState},
    {DrawerName::conversion, &SavedState::conversionWasOpen, &SavedState::conversionDrawerState},
    {DrawerName::functions, &SavedState::functionsWasOpen, &SavedState::functionsDrawerState},
});

static_assert(std::tuple_size_v<decltype(SavedState::mem)> == kSavedRegisters);

}  // namespace

SavedState DYXWindowController::presentState() const {
    SavedState state;
    state.reg = stack().reg;
    std::copy_n(mem().begin(), state.mem.size(), state.mem.begin());
    state.lastX = stack().lastX;
    state.inputState = static_cast<std::int32_t>(inputState());
    state.angleMode = static_cast<std::int32_t>(angleMode);
    state.useHPStylePowerAndLogs = useHPStylePowerAndLogs;

    const DYXInputDisplay& line = xDisplay();
    state.outputDisplayMode = line.outputMode();
    state.inputDisplayMode = line.inputMode();
    state.digits = static_cast<std::int32_t>(line.digits());
    state.reduceCarpentryFractions = line.reduceCarpentryFractions();
    state.unlockInputAndOutputModes = line.unlockInputAndOutputModes();
    state.displayIrrationals = line.displayIrrationals();

    state.animateWindow = settings_.animateWindow;
    state.registerLabelsHidden = settings_.registerLabelsHidden;
    state.autoHideXLabel = settings_.autoHideXLabel;
    state.statusLinesEnabled = settings_.statusLinesEnabled;
    state.decimalMode = settings_.decimalMode;
    state.digitGroupingSeparatorMode = settings_.digitGroupingSeparatorMode;
    state.digitGroupingDigitsMode = settings_.digitGroupingDigitsMode;
    state.includeDigitGroupingWhenCopying = settings_.includeDigitGroupingWhenCopying;
    state.fontMode = settings_.fontMode;
    state.keyPadHidden = layout_.keyPadHidden;
    state.displayViewMode = layout_.displayViewMode;
    state.showStatusLine = layout_.showStatusLine;
    for (const SavedDrawer& saved : kSavedDrawers) {
        const Drawer& drawer = drawers_[saved.name];
        state.*saved.wasOpen = drawer.wasOpen;
        state.*saved.state = drawer.record.state();
    }
    state.conversionTabSelection = views_->conversionPanel.tabView->indexOfSelectedItem();
    state.calculatorFrame = views_->window.frame();
    storeHelpState(state);
    return state;
}

// Values are taken as they stand; whoever uses one bounds it.
void DYXWindowController::applyState(const SavedState& state) {
    stack().reg = state.reg;
    std::copy(state.mem.begin(), state.mem.end(), mem().begin());
    stack().lastX = state.lastX;

    DYXInputDisplay& line = xDisplay();
    line.setUnlockInputAndOutputModes(state.unlockInputAndOutputModes);
    line.setOutputMode(state.outputDisplayMode);
    line.setInputMode(state.inputDisplayMode);
    angleMode = AngleMode{state.angleMode};
    line.setDigits(static_cast<std::uint32_t>(state.digits));
    settings_.animateWindow = state.animateWindow;
    useHPStylePowerAndLogs = state.useHPStylePowerAndLogs;
    settings_.decimalMode = state.decimalMode;
    line.setReduceCarpentryFractions(state.reduceCarpentryFractions);
    line.setDisplayIrrationals(state.displayIrrationals);
    settings_.registerLabelsHidden = state.registerLabelsHidden;
    settings_.autoHideXLabel = state.autoHideXLabel;
    settings_.statusLinesEnabled = state.statusLinesEnabled;
    settings_.includeDigitGroupingWhenCopying = state.includeDigitGroupingWhenCopying;
    setFontMode(state.fontMode);
    setDigitGroupingSeparatorMode(state.digitGroupingSeparatorMode);
    setDigitGroupingDigitsMode(state.digitGroupingDigitsMode);
    views_->xyztButton->setState(state.displayViewMode == 1 ? 1 : 0);
    for (const SavedDrawer& saved : kSavedDrawers) {
        drawers_[saved.name].wasOpen = state.*saved.wasOpen;
    }
    applyHelpState(state);
    if (const auto& frame = state.calculatorFrame) {
        if (state.keyPadHidden) {
            closeDrawersAtOnce();
        }
        setupWindowAtLocationKeyPadHiddenDisplayViewModeStatusLine(
            {frame->x, frame->y + frame->height}, state.keyPadHidden, state.displayViewMode,
            state.showStatusLine);
    }
    openDrawers(state);
    views_->conversionPanel.tabView->selectTabViewItemAtIndex(state.conversionTabSelection);
}

void DYXWindowController::closeDrawersAtOnce() {
    for (const DrawerName name : kDrawerNames) {
        drawers_[name].record.close();
        drawers_[name].record.finishSliding();
    }
}

void DYXWindowController::openDrawers(const SavedState& state) {
    if (layout_.keyPadHidden) {
        return;
    }
    for (const SavedDrawer& saved : kSavedDrawers) {
        NSDrawer& drawer = drawers_[saved.name].record;
        const std::int32_t drawerState = state.*saved.state;
        if (drawerState == NSDrawerOpeningState || drawerState == NSDrawerOpenState) {
            drawer.openOnEdge(drawer.preferredEdge());
        }
    }
}

void DYXWindowController::saveData() {
    const std::error_code error = stateFile_.write(presentState());
    if (!error) {
        return;
    }
    const std::string title = utf8(localized(u"The state could not be saved"));
    const std::string reason = platform().NSHomeDirectory().empty()
                                   ? utf8(localized(u"there is no home folder"))
                                   : stateFile_.saveDataPath().string() + ": " + error.message();
    platform().NSBeep();
    platform().deliverNotification(title + ": " + reason);
}

void DYXWindowController::loadData() {
    if (const std::optional<SavedState> state = stateFile_.read()) {
        hasSavedFrame_ = state->calculatorFrame.has_value();
        applyState(*state);
    } else {
        views_->help.window.makeKeyAndOrderFront();
    }
}

void DYXWindowController::revertDocumentToSaved() {
    giveUpPaste();
    loadData();
    updateLabels();
    showStatusLines();
    fixDecimalSeparator();
    syncDisplays();
    updateDisplay();
    takeHPStylePowerAndLogsFrom(std::nullopt);
}

void DYXWindowController::applicationWillTerminate() {
    if (inputState() == InputState::entering) {
        updateRegister();
        stack().pushOntoStack();
        setInputState(InputState::lifting);
    }
    saveData();
}

}  // namespace talvex
