#pragma once

#include <string>

#include "platform/NSButton.h"
#include "platform/Platform.h"

namespace talvex {

// The kinds of keys, which the screen sets apart by colour.
enum class KeyGroup { digit, enter, operation, function, shift, memory, stack, clear, flat };

// What a key does when it is clicked: it runs a command, turns a modifier on or off, sets the lock
// of the output mode, or moves a drawer. All but the first show whether they are on.
enum class KeyClass { key, modifier, lock, drawer };

// A button that shows a press in every way that it can.
class ZUButton : public NSButton {
  public:
    explicit ZUButton(const NSRect& frame);
};

// A two-state button for the modifier keys.
class ZUModifierButton : public NSButton {
  public:
    explicit ZUModifierButton(const NSRect& frame);
};

// A key of the key pad, whose title is simple TeX.
class DYXButton : public NSButton {
  public:
    // The log has to outlive the button.
    DYXButton(const NSRect& frame, const std::u16string& title, const NSFont& font, LogPort& log);

    [[nodiscard]] NSAttributedString attributedStringFromSimpleTex(std::u16string_view text) const;

    // Writes a line to the log.
    void mouseDown() override;
    // A key that goes up is no keystroke.
    bool performKeyEquivalent(const NSEvent& event) override;

  private:
    LogPort& log_;
};

}  // namespace talvex
