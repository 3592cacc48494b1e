#pragma once

#include <functional>
#include <utility>

#include "platform/NSButton.h"
#include "platform/NSMenu.h"

namespace talvex {

// A button that pulls down a menu and keeps a title of its own.
class NSPopUpButton : public NSButton {
  public:
    using NSButton::NSButton;

    [[nodiscard]] const NSMenu& menu() const { return menu_; }
    void setMenu(NSMenu menu) { menu_ = std::move(menu); }

    // Asked for each item before the menu shows: it sets the item's state, title and `enabled`.
    void setValidation(std::function<void(NSMenuItem&)> validate) {
        validate_ = std::move(validate);
    }
    void validateMenu() {
        for (NSMenuItem& item : menu_.items) {
            if (validate_) {
                validate_(item);
            }
        }
    }

  private:
    NSMenu menu_;
    std::function<void(NSMenuItem&)> validate_;
};

}  // namespace talvex
