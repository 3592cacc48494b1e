#pragma once

#include <optional>

#include "platform/NSGraphicsContext.h"

namespace talvex {

// Draws a sunken frame around the rectangle, over the fill colour if one is given, and returns the
// rectangle inside of it. Antialiasing is off afterwards.
NSRect ZUDrawBezel(NSGraphicsContext& context, const NSRect& rect,
                   const std::optional<NSColor>& fill);

// The frame alone, for a context whose y grows upward and downward.
NSRect ZUDrawBezelUnflipped(NSGraphicsContext& context, const NSRect& rect);
NSRect ZUDrawBezelFlipped(NSGraphicsContext& context, const NSRect& rect);

}  // namespace talvex
