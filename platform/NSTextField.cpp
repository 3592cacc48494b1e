#include "platform/NSTextField.h"

#include <utility>

namespace talvex {

void NSTextField::setStringValue(std::u16string value) {
    if (!attributedStringValue_.string.empty()) {
        attributedStringValue_ = {};
        stringValue_.clear();
        setNeedsDisplay();
    }
    update(stringValue_, std::move(value));
}

void NSTextField::setAttributedStringValue(NSAttributedString value) {
    stringValue_ = value.string;
    update(attributedStringValue_, std::move(value));
}

void NSTextField::setTextColor(const NSColor& color) { update(textColor_, color); }
void NSTextField::setFont(const NSFont& font) { update(font_, font); }
void NSTextField::setAlignment(NSTextAlignment alignment) { update(alignment_, alignment); }

}  // namespace talvex
