#include "keyboard/modifier_keys.h"

#include "platform/NSEvent.h"

namespace talvex {

Modifiers modifiersFor(std::uint32_t modifierFlags, const Modifiers& present) {
    if (present.store != Store::nothing && present.store != Store::plain) {
        return present;
    }
    const bool shift = (modifierFlags & NSShiftKeyMask) != 0;
    const bool control = (modifierFlags & NSControlKeyMask) != 0;
    const bool option = (modifierFlags & NSAlternateKeyMask) != 0;
    const bool command = (modifierFlags & NSCommandKeyMask) != 0;
    return {.inverse = shift && !option && !command,
            .hyperbolic = control && !option && !command,
            .recall = option && !control && !command,
            .store = control && option && !command ? Store::plain : Store::nothing};
}

}  // namespace talvex
