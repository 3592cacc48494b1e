#pragma once

#include <QPainter>

#include "platform/NSGraphicsContext.h"
#include "qt/Scale.h"

namespace talvex {

// Draws with a painter whose y grows downward into a view whose y grows upward.
class QtGraphicsContext final : public NSGraphicsContext {
  public:
    // The view has that height in points.
    QtGraphicsContext(QPainter& painter, const Scale& scale, double viewHeight)
        : painter_(painter), scale_(scale), viewHeight_(viewHeight) {}

    [[nodiscard]] bool isFlipped() const override { return false; }
    void setShouldAntialias(bool antialias) override;
    void fillRect(const NSRect& rect, const NSColor& color) override;
    void strokeLine(const NSPoint& start, const NSSize& offset, const NSColor& color) override;

  private:
    QPainter& painter_;
    const Scale& scale_;
    double viewHeight_;
};

}  // namespace talvex
