#include "numeric/DYXMathContext.h"

#include <array>

namespace talvex {

double DYXMathContext::angleUnits() const {
    // pi/180, pi/200, pi/12 and 2 pi, each the nearest double.
    static constexpr std::array kRadians{1.0, 0.017453292519943295, 0.015707963267948967,
                                         0.2617993877991494, 6.283185307179586};
    const auto mode = static_cast<std::uint32_t>(angleMode);
    return mode < kRadians.size() ? kRadians.at(mode) : 1.0;
}

}  // namespace talvex
