#include "platform/NSColor.h"

#include <algorithm>
#include <cmath>

namespace talvex {
namespace {

// One component of the colour wheel: full within a sixth of a turn of `peak`, zero beyond a third.
double wheelComponent(double hue, double peak) {
    const double distance = std::fabs(hue - peak);
    const double turn = std::min(distance, 1.0 - distance);
    return std::clamp(2.0 - turn * 6.0, 0.0, 1.0);
}

}  // namespace

NSColor NSColor::hueSaturationBrightness(double hue, double saturation, double brightness) {
    const auto component = [&](double peak) {
        return brightness * (1.0 - saturation * (1.0 - wheelComponent(hue, peak)));
    };
    return {.red = component(0.0), .green = component(1.0 / 3.0), .blue = component(2.0 / 3.0)};
}

}  // namespace talvex
