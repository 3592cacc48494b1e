#pragma once

#include <string_view>

namespace talvex {

// A font by name, with its size in points. The screen finds the nearest font that it has. Names are
// literals: every character of a rich text has its font.
struct NSFont {
    std::u16string_view name;
    double size = 13.0;

    bool operator==(const NSFont&) const = default;
};

}  // namespace talvex
