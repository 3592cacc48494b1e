#pragma once

#include <string>

#include "core/Comand.h"
#include "platform/NSButton.h"
#include "platform/Platform.h"

namespace talvex {

// The kinds of keys, which the screen sets apart by colour, and each of which has one size of type.
enum class KeyGroup {
    digit,
    number,
    enter,
    operation,
    function,
    shift,
    memory,
    stack,
    clear,
    flat,
};

// What a key does when it is clicked: it runs a command, turns a modifier on or off, sets the lock
// of the output mode, or moves a drawer. All but the first show whether they are on.
enum class KeyClass { key, modifier, lock, drawer };

// A button that carries a command, for whoever runs it at a click.
class CommandButton : public NSButton {
  public:
    using NSButton::NSButton;

    // No codes where a click does something else.
    [[nodiscard]] const Comand& command() const { return command_; }
    void setCommand(const Comand& command) { command_ = command; }

  private:
    Comand command_;
};

// A two-state button for the modifier keys.
class ZUModifierButton : public CommandButton {
  public:
    explicit ZUModifierButton(const NSRect& frame);
};

// A key of the key pad, whose title is simple TeX.
class DYXButton : public CommandButton {
  public:
    // The log has to outlive the button.
    DYXButton(const NSRect& frame, const std::u16string& title, const NSFont& font, LogPort& log);

    [[nodiscard]] NSAttributedString attributedStringFromSimpleTex(std::u16string_view text) const;

    // Writes a line to the log.
    void mouseDown() override;

  private:
    LogPort& log_;
};

}  // namespace talvex
