#pragma once

#include <vector>

#include "WindowSession.h"
#include "qt/DrawerWidget.h"

namespace talvex {

[[nodiscard]] std::vector<DrawerWidget*> drawersOf(const CalculatorWindow& window);

// What should hold of a window in which nothing moves, and doesn't.
[[nodiscard]] std::vector<const char*> brokenInvariants(WindowSession& session);

}  // namespace talvex
