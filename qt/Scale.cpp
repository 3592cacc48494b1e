#include "qt/Scale.h"

#include <algorithm>
#include <cmath>

#include "qt/conversions.h"

namespace talvex {

void Scale::setFactor(double factor) {
    factor_ = factor;
    const auto followers = followers_;  // one may bring another
    for (ScaleFollower* const follower : followers) {
        follower->scaleDidChange();
    }
}

int Scale::pixels(double points) const { return static_cast<int>(std::lround(points * factor_)); }

QRect Scale::pixels(const NSRect& rect, double parentHeight) const {
    return {pixels(rect.x), pixels(parentHeight - rect.y - rect.height), pixels(rect.width),
            pixels(rect.height)};
}

int Scale::line() const { return std::max(1, static_cast<int>(factor_)); }

QFont Scale::font(const NSFont& font) const {
    NSFont scaled = font;
    scaled.size *= factor_;
    return toQFont(scaled);
}

void Scale::unfollow(ScaleFollower& follower) { std::erase(followers_, &follower); }

}  // namespace talvex
