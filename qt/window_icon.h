#pragma once

class QWindow;

namespace talvex {

// Gives all windows their icon once the first frame of the given one is there. It is the one of the
// desktop's theme, or else the program's own.
void giveIconAfterFirstFrame(QWindow& window);

}  // namespace talvex
