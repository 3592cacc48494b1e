#pragma once

#include <cstdint>

namespace talvex {

// The three switches that choose one of six layouts of the window.
struct WindowLayout {
    bool keyPadHidden = false;
    std::int32_t displayViewMode = 0;  // 0 the X line alone, 1 all four lines
    bool showStatusLine = false;
};

}  // namespace talvex
