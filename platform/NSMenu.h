#pragma once

#include <functional>
#include <string>
#include <vector>

namespace talvex {

// One line of a menu. The tag is the value that a choice of the item stands for.
struct NSMenuItem {
    std::u16string title;
    int tag = 0;
    std::function<void(const NSMenuItem&)> action;
    int state = 0;  // 1 shows a check mark
    bool enabled = true;
};

struct NSMenu {
    std::vector<NSMenuItem> items;
};

}  // namespace talvex
