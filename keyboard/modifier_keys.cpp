#include "keyboard/modifier_keys.h"

#include "platform/NSEvent.h"

namespace talvex {

bool takeModifierFlags(DYXCalculator& calculator, std::uint32_t modifierFlags) {
    if (calculator.store() > kPlainStore) {
        return false;
    }
    const bool shift = (modifierFlags & NSShiftKeyMask) != 0;
    const bool control = (modifierFlags & NSControlKeyMask) != 0;
    const bool option = (modifierFlags & NSAlternateKeyMask) != 0;
    const bool command = (modifierFlags & NSCommandKeyMask) != 0;
    calculator.inverse = shift && !option && !command;
    calculator.hyperbolic = control && !option && !command;
    calculator.setRecall(option && !control && !command);
    calculator.setStore(control && option && !command ? kPlainStore : kNothingArmed);
    return true;
}

}  // namespace talvex
