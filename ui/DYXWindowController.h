#pragma once

#include <array>
#include <memory>
#include <optional>

#include "core/DYXCalculator.h"
#include "keyboard/HotKey.h"
#include "platform/NSMenu.h"
#include "platform/NSWindow.h"
#include "ui/DYXSettings.h"
#include "ui/WindowViews.h"
#include "ui/window_layout.h"

namespace talvex {

// The calculator with its window: takes keys, clicks and choices, and shows the calculator's state
// on the records of the window. What the window looks like is the business of those who draw the
// records.
class DYXWindowController final : public DYXCalculator, public NSResponder {
  public:
    explicit DYXWindowController(Platform& platform);

    [[nodiscard]] WindowViews& views() { return *views_; }
    [[nodiscard]] const WindowLayout& layout() const { return layout_; }
    [[nodiscard]] const DYXSettings& settings() const { return settings_; }
    [[nodiscard]] const HotKeys& hotKeys() const { return hotKeys_; }

    // Keys. A key without a row answers false; one without a character is dropped.
    bool keyDown(const NSEvent& event) override;
    void flagsChanged(const NSEvent& event) override;

    // Choices of a menu item by its tag; a button steps the setting, the mode controls through 0 to
    // 11 and the angle through all five.
    void takeAngleModeFrom(const NSMenuItem& item);
    void takeAngleModeFrom(const NSButton& sender);
    void takeOutputModeFrom(const NSMenuItem& item);
    void takeOutputModeFrom(const NSButton& sender);
    void takeInputModeFrom(const NSMenuItem& item);
    void takeInputModeFrom(const NSButton& sender);
    // The output mode is independent of the input mode while the button is on.
    void takeLockOutputAndInputFrom(const NSButton& sender);

    // With a new value, or none to show the present one: whether powers and logarithms have their
    // base in Y. The two keys show it.
    void takeHPStylePowerAndLogsFrom(std::optional<bool> useHPStyle);

    // Shows or hides the lines Y, Z and T; the top left corner of the window stays.
    void takeShowYZTRegistersFrom();

    void setDigitGroupingSeparatorMode(std::int32_t mode);
    void setDigitGroupingDigitsMode(std::int32_t mode);
    void setFontMode(std::int32_t mode);
    void setDecimalMode(std::int32_t mode);

    // Makes the lines Y, Z, T and C follow X; C groups no digits.
    void syncDisplays();
    // Chooses the separators of digit groups for the mode and the decimal separator of X.
    void updateDigitGrouping();
    // Gives all lines the font of the setting or of the mode.
    void updateFonts();
    // Finds the decimal separator, and brings the lines, the decimal key and the keyboard in line.
    void fixDecimalSeparator();
    // The program comes to the front: the system's separator may have changed.
    void applicationWillBecomeActive();

    // Refresh of controls, in control_refresh.cpp.
    void updateModifiers() override;
    void updateButtons();
    void updateAngle();
    void updateLock();
    void updateLabels();

  private:
    DYXWindowController(Platform& platform, std::unique_ptr<WindowViews> views);

    void updateControls() override;
    void connectControls();
    void setUpPopUps();
    void resizeWindow();
    void followModes();
    [[nodiscard]] HotKeyState hotKeyState() const;
    [[nodiscard]] std::array<DYXOutputDisplay*, 5> lines();

    std::unique_ptr<WindowViews> views_;
    WindowLayout layout_;
    DYXSettings settings_;
    HotKeys hotKeys_;
};

}  // namespace talvex
