#pragma once

#include "platform/NSColor.h"
#include "platform/NSGeometry.h"

namespace talvex {

// Where a view draws itself, in the view's own points.
class NSGraphicsContext {
  public:
    virtual ~NSGraphicsContext() = default;

    [[nodiscard]] virtual bool isFlipped() const = 0;
    virtual void setShouldAntialias(bool antialias) = 0;
    virtual void fillRect(const NSRect& rect, const NSColor& color) = 0;
    // A line one point wide from `start` by `offset`.
    virtual void strokeLine(const NSPoint& start, const NSSize& offset, const NSColor& color) = 0;
};

}  // namespace talvex
