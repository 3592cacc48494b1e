#include "platform/NSButton.h"

#include <utility>

#include "platform/NSEvent.h"

namespace talvex {

void NSButton::setTitle(std::u16string title) { update(title_, std::move(title)); }

void NSButton::setAttributedTitle(NSAttributedString title) {
    update(attributedTitle_, std::move(title));
}

void NSButton::setImage(std::u16string name) { update(image_, std::move(name)); }

void NSButton::setAlternateImage(std::u16string name) { update(alternateImage_, std::move(name)); }

void NSButton::setState(int state) { update(state_, state); }

void NSButton::setFont(const NSFont& font) { update(font_, font); }

void NSButton::performClick() {
    if (toggles_) {
        setState(1 - state_);
    }
    if (action_) {
        action_(*this);
    }
}

}  // namespace talvex
