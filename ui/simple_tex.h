#pragma once

#include <string_view>

#include "platform/NSAttributedString.h"

// Simple TeX, the mark-up of key titles and status texts: "^" and "_" raise and lower the next
// character, or a group in braces, in a smaller font.
namespace talvex {

// The form of key titles: centred, in the font of the key; a backslash is an ordinary character.
NSAttributedString simpleTexTitle(std::u16string_view text, const NSFont& font);

// The form of hints that stand by themselves: as a status text, but without the blank that keeps
// the height of a line.
NSAttributedString simpleTexHint(std::u16string_view text);

namespace ZUStringExtensions {

// The size of the font of tool tips.
inline constexpr double kToolTipSize = 10.0;

// The form of status texts: left, in the small font of tool tips. A backslash protects the next
// character, and "\n" gives two blanks. A text without "^" ends in a small raised blank, so that
// all status texts are of one height.
NSAttributedString simpleTexSingleLine(std::u16string_view text);

}  // namespace ZUStringExtensions

}  // namespace talvex
