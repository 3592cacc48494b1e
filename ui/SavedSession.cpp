#include "ui/SavedSession.h"

#include <algorithm>
#include <string>

#include "core/DYXCalculator.h"
#include "display/utf8.h"
#include "state/Settings.h"
#include "ui/Drawers.h"
#include "ui/HelpController.h"
#include "ui/WindowGeometry.h"

namespace talvex {

static_assert(std::tuple_size_v<decltype(SavedState::mem)> == kSavedRegisters);

SavedSession::SavedSession(const SavedParts& parts, Platform& platform)
    : parts_(parts), platform_(platform), stateFile_(platform.NSHomeDirectory()) {}

SavedState SavedSession::presentState() const {
    const DYXCalculator& calculator = parts_.calculator;
    SavedState state;
    state.reg = calculator.stack().reg;
    state.lastX = calculator.stack().lastX;
    state.inputState = static_cast<std::int32_t>(calculator.inputState());
    state.settings = parts_.settings;
    state.layout = parts_.layout;
    state.calculatorFrame = parts_.views.window.frame();
    std::copy_n(calculator.mem().begin(), state.mem.size(), state.mem.begin());
    parts_.drawers.save(state.window);
    state.window.conversionTabSelection =
        parts_.views.conversionPanel.tabView->indexOfSelectedItem();
    parts_.help.save(state);
    return state;
}

void SavedSession::restore(const SavedState& state) {
    parts_.calculator.restore({.reg = state.reg, .lastX = state.lastX}, state.mem);
    for (const SettingRow& setting : kSettings) {
        setting.saved.take(parts_.settings, setting.saved.get(state.settings));
    }
    parts_.views.xyztButton->setState(state.layout.displayViewMode == 1 ? 1 : 0);
    parts_.drawers.restoreWhatComesBack(state.window);
    parts_.help.restore(state, stateFile_.prevVersion() == StateFile::kLastVersion);
    if (const auto& frame = state.calculatorFrame) {
        if (state.layout.keyPadHidden) {
            parts_.drawers.closeAtOnce();
        }
        parts_.geometry.setupWindowAtLocation({frame->x, frame->y + frame->height}, state.layout);
    }
    parts_.drawers.restoreWhatIsOpen(state.window);
    parts_.views.conversionPanel.tabView->selectTabViewItemAtIndex(
        state.window.conversionTabSelection);
}

void SavedSession::saveData() {
    const std::error_code error = stateFile_.write(presentState());
    if (!error) {
        return;
    }
    const std::string title = utf8(platform_.localizedString(u"The state could not be saved"));
    const std::string reason = platform_.NSHomeDirectory().empty()
                                   ? utf8(platform_.localizedString(u"there is no home folder"))
                                   : stateFile_.saveDataPath().string() + ": " + error.message();
    platform_.NSBeep();
    platform_.deliverNotification(title + ": " + reason);
}

void SavedSession::loadData() {
    if (const std::optional<SavedState> state = stateFile_.read()) {
        hasSavedFrame_ = state->calculatorFrame.has_value();
        restore(*state);
    } else {
        parts_.help.show();
    }
}

}  // namespace talvex
