#pragma once

namespace talvex {

// A colour by its calibrated components, each from 0 to 1.
struct NSColor {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    static constexpr NSColor black() { return {}; }
    static constexpr NSColor white(double value, double alpha = 1.0) {
        return {.red = value, .green = value, .blue = value, .alpha = alpha};
    }
    // Hue, saturation and brightness from 0 to 1.
    static NSColor hueSaturationBrightness(double hue, double saturation, double brightness);

    bool operator==(const NSColor&) const = default;
};

}  // namespace talvex
