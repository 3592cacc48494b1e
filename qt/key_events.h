#pragma once

#include <QKeyEvent>
#include <cstdint>
#include <map>
#include <optional>

#include "platform/NSEvent.h"

namespace talvex {

// The character of a key as the keyboard table sees it: with Shift, AltGr and the locks applied,
// with Control and Alt not. Nothing for modifier keys and for keys without a character.
[[nodiscard]] std::optional<char16_t> characterOfKey(const QKeyEvent& event);

// Which modifier keys are down, worked out from key events and not from the state that comes with
// them, which is wrong while both keys of a pair are held.
class HeldModifiers {
  public:
    // Takes the press or release of any key, which also says which modifiers it comes with, and
    // answers whether the flags changed.
    bool take(const QKeyEvent& event);
    // Forgets keys whose release was never heard of: those of flags that these modifiers lack.
    // Whether the flags changed.
    bool keepOnly(Qt::KeyboardModifiers modifiers);
    // Forgets all keys, as when the window no longer hears of releases; whether any were held.
    bool clear();
    // Takes over the keys that are held when the window begins to hear of keys again; whether the
    // flags changed.
    bool adopt(Qt::KeyboardModifiers modifiers);

    // Bits of `NSModifierFlags`.
    [[nodiscard]] std::uint32_t flags() const;

  private:
    void drop(std::uint32_t flags);
    void add(Qt::KeyboardModifiers modifiers);

    std::map<std::int64_t, std::uint32_t> held_;  // flag by scan code, or by minus the flag
};

}  // namespace talvex
