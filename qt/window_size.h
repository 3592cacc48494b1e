#pragma once

#include <QSize>
#include <cstdint>

namespace talvex {

// The size that goes with the text of the desktop, to a quarter, in percent.
[[nodiscard]] std::int32_t percentOfDesktop();

// Pixels for a point where the user wants so many percent, or what goes with the desktop if that
// is 0: as much as lets a body of that size in points fit on a screen with so much room.
[[nodiscard]] double factorFor(std::int32_t percent, const QSize& body, const QSize& room);

}  // namespace talvex
