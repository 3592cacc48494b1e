#pragma once

#include <string>

namespace talvex {

// A font by name, with its size in points. The screen finds the nearest font that it has.
struct NSFont {
    std::u16string name;
    double size = 13.0;

    bool operator==(const NSFont&) const = default;
};

}  // namespace talvex
