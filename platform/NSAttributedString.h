#pragma once

#include <string>
#include <vector>

#include "platform/NSFont.h"

namespace talvex {

enum class NSTextAlignment { left = 0, right = 1, center = 2 };

struct NSTextAttributes {
    NSFont font;
    NSTextAlignment alignment = NSTextAlignment::left;
    int superscript = 0;  // 1 raised, -1 lowered

    bool operator==(const NSTextAttributes&) const = default;
};

// A text with attributes, one for each UTF-16 unit.
struct NSAttributedString {
    std::u16string string;
    std::vector<NSTextAttributes> attributes;

    bool operator==(const NSAttributedString&) const = default;
};

}  // namespace talvex
