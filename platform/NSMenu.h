#pragma once

#include <functional>
#include <string>
#include <vector>

namespace talvex {

struct NSMenuItem;

struct NSMenu {
    std::vector<NSMenuItem> items;
};

// One line of a menu. The tag is the value that a choice of the item stands for. An item without a
// title is a line between groups; one with a menu of its own opens it and has no action. The
// subtitle says in more words what the title stands for.
struct NSMenuItem {
    std::u16string title;
    std::u16string subtitle = {};
    int tag = 0;
    std::function<void(const NSMenuItem&)> action;
    int state = 0;  // 1 shows a check mark
    bool enabled = true;
    std::function<void(NSMenuItem&)> validation = {};  // brings the item up to date
    std::vector<std::u16string> keyEquivalents = {};   // as "Ctrl+Ins"
    NSMenu submenu = {};

    [[nodiscard]] bool isSeparator() const { return title.empty(); }
};

// Brings all items up to date, ahead of showing the menu.
inline void validateMenu(NSMenu& menu) {
    for (NSMenuItem& item : menu.items) {
        if (item.validation) {
            item.validation(item);
        }
        validateMenu(item.submenu);
    }
}

}  // namespace talvex
