#include "ui/DYXButton.h"

#include "display/ascii_text.h"
#include "platform/NSEvent.h"
#include "ui/simple_tex.h"

namespace talvex {
namespace {

constexpr std::uint32_t kPushedAndColored = NSPushInCellMask | NSChangeBackgroundCellMask;

}  // namespace

ZUModifierButton::ZUModifierButton(const NSRect& frame) : CommandButton(frame) {
    setShowsStateBy(kPushedAndColored);
    setHighlightsBy(kPushedAndColored);
}

DYXButton::DYXButton(const NSRect& frame, const std::u16string& title, const NSFont& font,
                     LogPort& log)
    : CommandButton(frame), log_(log) {
    setTitle(title);
    setFont(font);
    setAttributedTitle(attributedStringFromSimpleTex(title));
}

NSAttributedString DYXButton::attributedStringFromSimpleTex(std::u16string_view text) const {
    return simpleTexTitle(text, font());
}

void DYXButton::mouseDown() {
    log_.NSLog(u"DYXButton: mouseDown : " + title() + u" : " +
               asciiText(std::to_string(highlightsBy())));
    NSButton::mouseDown();
}

}  // namespace talvex
