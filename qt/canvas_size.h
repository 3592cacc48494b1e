#pragma once

#include "qt/Scale.h"
#include "qt/TopLevel.h"
#include "ui/Drawers.h"

namespace talvex {

// The body with everything that it can show, in points.
[[nodiscard]] NSSize largestBody();

// What the canvas has to hold: bodies from the smallest to the largest, and each drawer drawn out
// as far as it goes.
[[nodiscard]] TopLevel::Canvas canvasFor(const Drawers& drawers, const Scale& scale);

}  // namespace talvex
