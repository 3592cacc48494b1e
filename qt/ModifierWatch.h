#pragma once

#include <QTimer>

#include "platform/NSWindow.h"
#include "qt/key_events.h"

namespace talvex {

// Tells a window's record which modifier keys are down. A window without the keyboard hears of no
// release, so that no modifier may outlive that. One that gets the keyboard takes over what is
// held, and watches it: the release may go to the window manager, whose key it was.
class ModifierWatch {
  public:
    explicit ModifierWatch(NSWindow& window);

    // Takes the press or release of any key.
    void take(const QKeyEvent& event);
    // What came with something else than a key: what lacks there isn't held any more.
    void keepOnly(Qt::KeyboardModifiers modifiers);
    void didGetKeyboard();
    void didLoseKeyboard();

    // Bits of `NSModifierFlags`.
    [[nodiscard]] std::uint32_t flags() const { return held_.flags(); }

  private:
    void tellRecord();

    NSWindow& window_;
    HeldModifiers held_;
    QTimer adoptedWatch_;
};

}  // namespace talvex
