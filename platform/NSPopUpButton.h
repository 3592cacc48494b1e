#pragma once

#include <utility>

#include "platform/NSButton.h"
#include "platform/NSMenu.h"

namespace talvex {

// A button that pulls down a menu and keeps a title of its own.
class NSPopUpButton : public NSButton {
  public:
    using NSButton::NSButton;

    [[nodiscard]] NSMenu& menu() { return menu_; }
    [[nodiscard]] const NSMenu& menu() const { return menu_; }
    void setMenu(NSMenu menu) { menu_ = std::move(menu); }

  private:
    NSMenu menu_;
};

}  // namespace talvex
