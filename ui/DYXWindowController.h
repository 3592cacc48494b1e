#pragma once

#include <array>
#include <memory>
#include <optional>

#include "core/DYXCalculator.h"
#include "keyboard/HotKey.h"
#include "platform/NSMenu.h"
#include "platform/NSWindow.h"
#include "state/SavedState.h"
#include "state/StateFile.h"
#include "ui/DYXSettings.h"
#include "ui/Drawers.h"
#include "ui/WindowViews.h"
#include "ui/window_layout.h"

namespace talvex {

// The calculator with its window: takes keys, clicks and choices, and shows the calculator's state
// on the records of the window. What the window looks like is the business of those who draw the
// records.
class DYXWindowController final : public DYXCalculator,
                                  public NSResponder,
                                  public NSDrawerDelegate,
                                  public DYXStatusLineProtocol {
  public:
    explicit DYXWindowController(Platform& platform);
    ~DYXWindowController() override;

    [[nodiscard]] WindowViews& views() { return *views_; }
    [[nodiscard]] const WindowViews& views() const { return *views_; }
    [[nodiscard]] const WindowLayout& layout() const { return layout_; }
    [[nodiscard]] const DYXSettings& settings() const { return settings_; }
    [[nodiscard]] const HotKeys& hotKeys() const { return *hotKeys_; }
    [[nodiscard]] Drawers& drawers() { return drawers_; }
    [[nodiscard]] const Drawers& drawers() const { return drawers_; }

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
    void takeLockOutputAndInputFrom(const NSMenuItem& item);
    void takeLockOutputAndInputFrom(const NSButton& sender);
    void takeDecimalModeFrom(const NSMenuItem& item);
    void takeDecimalModeFrom(const NSButton& sender);
    void takeDigitsFrom(const NSMenuItem& item);
    void takeDigitsFrom(const NSButton& sender);
    void takeDigitGroupingSeparatorFrom(const NSMenuItem& item);
    void takeDigitGroupingSeparatorFrom(const NSButton& sender);
    void takeDigitGroupingDigitsFrom(const NSMenuItem& item);
    void takeDigitGroupingDigitsFrom(const NSButton& sender);
    void takeFontModeFrom(const NSMenuItem& item);
    void takeFontModeFrom(const NSButton& sender);
    // Switches: an item turns its setting over.
    void takeIncludeDigitGroupingWhenCopyingFrom(const NSMenuItem& item);
    void takeRegisterLabelsHiddenFrom(const NSMenuItem& item);
    void takeXRegisterLabelAutomaticallyHiddenFrom(const NSMenuItem& item);
    void takeWindowSizingAnimationFrom(const NSMenuItem& item);
    void takeStatusLinesEnabledFrom(const NSMenuItem& item);
    void takeCarpentryFractionsReducedFrom(const NSMenuItem& item);
    void takeDisplayIrrationalsFrom(const NSMenuItem& item);

    // With a new value, or none to show the present one: whether powers and logarithms have their
    // base in Y. The two keys show it.
    void takeHPStylePowerAndLogsFrom(std::optional<bool> useHPStyle);
    void takeHPStylePowerAndLogsFrom(const NSMenuItem& item);

    // The layout of the window, in window_geometry.cpp; its top left corner stays. Open drawers
    // close ahead of the key pad, and come back with it.
    void takeShowYZTRegistersFrom();
    void takeShowStatusLineFrom();
    void takeShowKeyPadFrom();
    // Sets the window to the size of its layout.
    void resizeWindow();
    void windowDidResize() override;
    // Brings the top left corner to a place of the screen, and takes the layout.
    void setupWindowAtLocationKeyPadHiddenDisplayViewModeStatusLine(const NSPoint& location,
                                                                    bool keyPadHidden,
                                                                    std::int32_t displayViewMode,
                                                                    bool statusLine);

    // The drawers, in drawer_actions.cpp. None opens while the key pad is hidden.
    void takeToggleMemoryDrawerFrom();
    void takeToggleConstantsDrawerFrom();
    void takeToggleConversionDrawerFrom();
    void takeToggleFunctionsDrawerFrom();
    void toggleDrawer(NSDrawer& drawer);
    NSSize drawerWillResizeContentsToSize(NSDrawer& drawer, const NSSize& size) override;
    void drawerDidClose(NSDrawer& drawer) override;
    void drawerStateDidChange(NSDrawer& drawer) override;

    // A title in the user's language.
    [[nodiscard]] std::u16string localized(std::u16string_view key) const {
        return platform().localizedString(key);
    }

    // The help, in help_window.cpp: shows the page of the sender's selected cell, or the first one.
    void takeShowHelpFrame(const NSMatrix* sender);
    // Shows the help with its selected page loaded afresh, or hides it.
    void takeToggleHelpWindowFrom();
    // Shows what the help tells about the command of a key.
    void showHelpFor(const Comand& command);
    // Steps above the normal size of the text; they count on beyond the range of the view.
    [[nodiscard]] std::int32_t helpViewTextSize() const { return helpViewTextSize_; }
    void setHelpViewTextToSize(std::int32_t size);
    void takeMakeHelpTextLargerFrom();
    void takeMakeHelpTextSmallerFrom();
    void takeMakeHelpTextNormalFrom();
    // Web and mail go to the user's own programs, all else stays in the view.
    void webViewDecidePolicyForNavigationActionRequestFrameDecisionListener(
        const std::u16string& url, WebPolicyDecisionListener& listener);

    // The value of a memory register, and the exponent that a key enters.
    [[nodiscard]] std::optional<NSAttributedString> statusLineForView(
        const NSView& view) const override;

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

    // The text of X as it is copied: a live entry as echoed, a number with the digit groups on show
    // or, by the setting, without. In clipboard.cpp.
    [[nodiscard]] std::u16string stringRepresentation();
    void copy();
    // Brings the number that the text on the pasteboard starts with to X, as soon as the text is
    // there; a live entry is dropped, a number is pushed onto the stack. A command given meanwhile
    // gives the paste up: the number would come in the midst of what the user does next.
    void paste();

    // The saved state, in saved_state.cpp. What can't be read is passed over; the user is told of a
    // save that fails.
    void saveData();
    void loadData();
    void saveDocument() { saveData(); }
    void revertDocumentToSaved();
    // Asks the desktop to end the program.
    void terminate() { platform().terminate(); }
    // Whether the file of the saved state told where the window stands.
    [[nodiscard]] bool hasSavedFrame() const { return hasSavedFrame_; }
    // The program ends: a live entry is finished as by ENTER, and the state saved.
    void applicationWillTerminate();

    // Refresh of controls, in control_refresh.cpp.
    void findModifierKeys();
    void updateModifiers() override;
    void updateButtons();
    void updateAngle();
    void updateLock();
    void updateLabels();

  private:
    DYXWindowController(Platform& platform, std::unique_ptr<HotKeys> hotKeys);
    DYXWindowController(Platform& platform, std::unique_ptr<WindowViews> views,
                        std::unique_ptr<HotKeys>& hotKeys);

    void updateControls() override;
    void takePastedText(const PasteboardText& answer);
    void giveUpPaste();
    void tellThatPasteIsLate();
    void connectControls();
    void connectDrawers();
    void followModes();
    void followLine();
    void setUnlocked(bool isUnlocked);
    void applyState(const SavedState& state);
    void closeDrawersAtOnce();
    void openDrawers(const SavedState& state);
    void connectHelp();
    void showHelpPlace(const std::u16string& place);
    void applyHelpState(const SavedState& state);
    void storeHelpState(SavedState& state) const;
    void setShowStatusLine(bool show);
    void finishHidingKeyPad();
    void hideKeyPadViews(bool hidden);
    void closeDrawersForKeyPad();
    void showStatusLines();
    void trackKeyPad();
    [[nodiscard]] std::array<DYXStatusLineView*, 4> statusLineViews() const;
    [[nodiscard]] SavedState presentState() const;
    [[nodiscard]] HotKeyState hotKeyState() const;
    [[nodiscard]] std::array<DYXOutputDisplay*, 5> lines();

    // A key that shows whether a modifier is on.
    struct ModifierButton {
        NSButton* button;
        bool (*isOn)(const DYXCalculator&);
    };

    std::unique_ptr<HotKeys> hotKeys_;
    std::unique_ptr<WindowViews> views_;
    std::vector<ModifierButton> modifierButtons_;
    Drawers drawers_;
    WindowLayout layout_;
    DYXSettings settings_;
    StateFile stateFile_;
    bool hasSavedFrame_ = false;
    std::int32_t helpViewTextSize_ = 0;
    bool isPasting_ = false;
};

}  // namespace talvex
