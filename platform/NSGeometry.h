#pragma once

namespace talvex {

// Points on the screen, origin at the lower left.
struct NSPoint {
    double x = 0.0;
    double y = 0.0;
    bool operator==(const NSPoint&) const = default;
};

struct NSSize {
    double width = 0.0;
    double height = 0.0;
    bool operator==(const NSSize&) const = default;
};

struct NSRect {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
    bool operator==(const NSRect&) const = default;
};

}  // namespace talvex
