#pragma once

#include "platform/Platform.h"
#include "state/SavedState.h"
#include "state/StateFile.h"

namespace talvex {

class DYXCalculator;
class Drawers;
class HelpController;
class WindowGeometry;
struct WindowViews;

// Everything that outlives the program.
struct SavedParts {
    DYXCalculator& calculator;
    Settings& settings;
    WindowLayout& layout;
    WindowViews& views;
    WindowGeometry& geometry;
    Drawers& drawers;
    HelpController& help;
};

// Writes the saved state, and brings it back.
class SavedSession {
  public:
    // All have to outlive it.
    SavedSession(const SavedParts& parts, Platform& platform);

    // The user hears of a save that fails.
    void saveData();
    // What can't be read is passed over. Whoever shows settings has to be brought up to date then.
    void loadData();
    // Whether the file said where the window stands.
    [[nodiscard]] bool hasSavedFrame() const { return hasSavedFrame_; }

  private:
    [[nodiscard]] SavedState presentState() const;
    void restore(const SavedState& state);

    SavedParts parts_;
    Platform& platform_;
    StateFile stateFile_;
    bool hasSavedFrame_ = false;
};

}  // namespace talvex
