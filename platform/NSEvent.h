#pragma once

#include <cstdint>
#include <string>

namespace talvex {

enum NSEventType : int { NSKeyDown = 10, NSKeyUp = 11, NSFlagsChanged = 12 };

// The modifier keys that are held, as bits of `NSEvent::modifierFlags`.
enum NSModifierFlags : std::uint32_t {
    NSShiftKeyMask = 0x20000,
    NSControlKeyMask = 0x40000,
    NSAlternateKeyMask = 0x80000,
    NSCommandKeyMask = 0x100000,
};

// Characters that stand for keys without a character of their own.
enum NSFunctionKey : char16_t {
    NSUpArrowFunctionKey = 0xF700,
    NSDownArrowFunctionKey = 0xF701,
    NSLeftArrowFunctionKey = 0xF702,
    NSRightArrowFunctionKey = 0xF703,
    NSDeleteFunctionKey = 0xF728,
    NSPageUpFunctionKey = 0xF72C,
    NSPageDownFunctionKey = 0xF72D,
    NSClearLineFunctionKey = 0xF739,
};

// A key event. The characters are those of the key with Shift applied, Control and Option not.
struct NSEvent {
    NSEventType type = NSKeyDown;
    std::u16string charactersIgnoringModifiers{};
    std::uint32_t modifierFlags = 0;
};

}  // namespace talvex
