#pragma once

#include <string>

#include "platform/NSAttributedString.h"
#include "platform/NSColor.h"
#include "platform/NSView.h"

namespace talvex {

// The record of one line of text that isn't edited, plain or with attributes of its own.
class NSTextField : public NSView {
  public:
    using NSView::NSView;

    [[nodiscard]] const std::u16string& stringValue() const { return stringValue_; }
    void setStringValue(std::u16string value);
    // Empty if the text is a plain one.
    [[nodiscard]] const NSAttributedString& attributedStringValue() const {
        return attributedStringValue_;
    }
    void setAttributedStringValue(NSAttributedString value);

    [[nodiscard]] const NSColor& textColor() const { return textColor_; }
    void setTextColor(const NSColor& color);

    [[nodiscard]] const NSFont& font() const { return font_; }
    void setFont(const NSFont& font);

    [[nodiscard]] NSTextAlignment alignment() const { return alignment_; }
    void setAlignment(NSTextAlignment alignment);

  private:
    std::u16string stringValue_;
    NSAttributedString attributedStringValue_;
    NSColor textColor_;
    NSFont font_;
    NSTextAlignment alignment_ = NSTextAlignment::left;
};

}  // namespace talvex
