#pragma once

#include <string>

#include "platform/Platform.h"
#include "state/Settings.h"

namespace talvex {

class DYXCalculator;

// X as text on the pasteboard, and back.
class Clipboard {
  public:
    // All have to outlive it.
    Clipboard(DYXCalculator& calculator, const Settings& settings, Platform& platform);
    Clipboard(const Clipboard&) = delete;
    Clipboard& operator=(const Clipboard&) = delete;
    ~Clipboard();

    // The text of X as it is copied: a live entry as echoed, a number with the digit groups on show
    // or, by the setting, without.
    [[nodiscard]] std::u16string stringRepresentation();
    void copy();
    // Brings the number that the text on the pasteboard starts with to X, as soon as the text is
    // there; a live entry is dropped, a number is pushed onto the stack.
    void paste();
    // A command that is given meanwhile gives a paste up: the number would come in the midst of
    // what the user does next.
    void giveUpPaste();

  private:
    void takePastedText(const PasteboardText& answer);
    void sayThatPasteIsLate();

    DYXCalculator& calculator_;
    const Settings& settings_;
    Platform& platform_;
    bool isPasting_ = false;
};

}  // namespace talvex
