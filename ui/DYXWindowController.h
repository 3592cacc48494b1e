#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>

#include "keyboard/HotKey.h"
#include "platform/NSWindow.h"
#include "state/Settings.h"
#include "ui/Clipboard.h"
#include "ui/Controls.h"
#include "ui/Drawers.h"
#include "ui/HelpController.h"
#include "ui/SavedSession.h"
#include "ui/StatusTexts.h"
#include "ui/WindowGeometry.h"
#include "ui/WindowViews.h"

namespace talvex {

// A calculator and its window: takes keys, clicks and choices, and shows the calculator's state on
// the records of the window. What the window looks like is the business of those who draw the
// records.
class DYXWindowController final : public NSResponder {
  public:
    explicit DYXWindowController(Platform& platform);
    DYXWindowController(const DYXWindowController&) = delete;
    DYXWindowController& operator=(const DYXWindowController&) = delete;
    ~DYXWindowController();

    // What the controller is made of.
    [[nodiscard]] DYXCalculator& calculator() { return *calculator_; }
    [[nodiscard]] const DYXCalculator& calculator() const { return *calculator_; }
    [[nodiscard]] WindowViews& views() { return views_; }
    [[nodiscard]] const WindowViews& views() const { return views_; }
    [[nodiscard]] const HotKeys& hotKeys() const { return hotKeys_; }
    [[nodiscard]] Drawers& drawers() { return drawers_; }
    [[nodiscard]] const Drawers& drawers() const { return drawers_; }
    [[nodiscard]] WindowGeometry& geometry() { return geometry_; }
    [[nodiscard]] Clipboard& clipboard() { return clipboard_; }
    [[nodiscard]] HelpController& help() { return help_; }
    [[nodiscard]] const Settings& settings() const { return settings_; }
    [[nodiscard]] const WindowLayout& layout() const { return layout_; }
    // The lines on the screen, from X up.
    [[nodiscard]] std::array<DYXOutputDisplay*, 4> lines();

    // Keys. A key without a row answers false; one without a character is dropped.
    bool keyDown(const NSEvent& event) override;
    void flagsChanged(const NSEvent& event) override;
    // Runs a command as a key of the keyboard does, or as a click on its button, which uses up
    // modifiers. Answers whether the calculator knows it.
    bool doCommand(const Comand& command);
    bool click(const Comand& command);

    // Gives a setting a value, and brings up to date what depends on it.
    void choose(const SettingRow& setting, std::int32_t value);
    // Brings all up to date that depends on settings, the layout or the system's numbers.
    void refresh();

    // Saves the state, and puts back what was saved last.
    void saveDocument() { session_.saveData(); }
    void revertDocumentToSaved();
    // Whether the file at the start said where the window stands.
    [[nodiscard]] bool hasSavedFrame() const { return session_.hasSavedFrame(); }

    // The program comes to the front: the system's way to write numbers may have changed.
    void applicationWillBecomeActive();
    // Asks the desktop to end the program; and it ends: a live entry is finished as by ENTER, and
    // the state saved.
    void terminate() { platform_.terminate(); }
    void applicationWillTerminate();

    void windowDidResize() override { drawers_.windowDidResize(); }

    [[nodiscard]] bool canStayOnTop() const { return platform_.canFloatWindows(); }

    // A title in the user's language.
    [[nodiscard]] std::u16string localized(std::u16string_view key) const {
        return platform_.localizedString(key);
    }

  private:
    void connectControls();
    [[nodiscard]] HotKeyState hotKeyState() const;

    Platform& platform_;
    NSNumberFormat system_;
    Settings settings_;
    WindowLayout layout_;
    HotKeys hotKeys_;
    WindowViews views_;
    std::unique_ptr<DYXCalculator> calculator_;
    Controls controls_;
    StatusTexts statusTexts_;
    Drawers drawers_;
    WindowGeometry geometry_;
    HelpController help_;
    Clipboard clipboard_;
    SavedSession session_;
};

}  // namespace talvex
