#pragma once

#include <QFont>
#include <QRect>
#include <vector>

#include "platform/NSFont.h"
#include "platform/NSGeometry.h"

namespace talvex {

class ScaleFollower {
  public:
    virtual void scaleDidChange() = 0;

  protected:
    ~ScaleFollower() = default;
};

// How large the calculator is: the one place where points of the records become pixels of the
// screen. Whole pixels, so that edges and letters are crisp at every size.
class Scale {
  public:
    // Pixels for a point.
    [[nodiscard]] double factor() const { return factor_; }
    // Followers are told, in the order in which they came.
    void setFactor(double factor);

    [[nodiscard]] int pixels(double points) const;
    [[nodiscard]] QSize pixels(const NSSize& size) const {
        return {pixels(size.width), pixels(size.height)};
    }
    // The rectangle as seen from the top left of a parent of the given height in points.
    [[nodiscard]] QRect pixels(const NSRect& rect, double parentHeight) const;
    // Without rounding, for curves and for what only looks like a point.
    [[nodiscard]] double exactly(double points) const { return points * factor_; }
    // The thickness of a line of a point.
    [[nodiscard]] int line() const;
    [[nodiscard]] double points(double pixels) const { return pixels / factor_; }
    [[nodiscard]] QFont font(const NSFont& font) const;

    void follow(ScaleFollower& follower) { followers_.push_back(&follower); }
    void unfollow(ScaleFollower& follower);

  private:
    double factor_ = 1.0;
    std::vector<ScaleFollower*> followers_;
};

}  // namespace talvex
