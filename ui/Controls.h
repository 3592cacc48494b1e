#pragma once

#include <vector>

#include "core/CalculatorState.h"
#include "platform/Platform.h"
#include "state/Settings.h"
#include "state/WindowLayout.h"
#include "ui/WindowViews.h"

namespace talvex {

class DYXCalculator;

// What shows settings and modifiers, besides the lines: keys, pop-ups and labels. Nothing reads it
// back.
class Controls {
  public:
    // All have to outlive it.
    Controls(WindowViews& views, HotKeys& hotKeys, DYXCalculator& calculator);

    void showModifiers();
    void showSettings(const Settings& settings, char16_t decimalSeparator);
    // The labels of the lines, which the layout hides, too.
    void showLabels(const Settings& settings, const WindowLayout& layout);

  private:
    // A key that shows whether a modifier is on.
    struct ModifierButton {
        NSButton* button;
        bool (*isOn)(const Modifiers&);
    };

    void findModifierKeys();
    void showModes(const Settings& settings);
    void showDecimalSeparator(char16_t separator);
    void showPowerAndLogs(bool useHPStyle);
    void showUnitOfX();

    WindowViews& views_;
    HotKeys& hotKeys_;
    DYXCalculator& calculator_;
    std::vector<ModifierButton> modifierButtons_;
    CommandButton* litUnit_ = nullptr;
    char16_t shownSeparator_ = 0;
};

}  // namespace talvex
