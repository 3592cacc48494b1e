#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "ui/DYXButton.h"
#include "ui/DYXStatusLineView.h"
#include "ui/Panel.h"
#include "ui/tables/key_pad_table.h"

namespace talvex {

// The key pad's view with its buttons, one for each row of the table and in its order, the keys of
// the drawers, and the status line below.
class KeyPad {
  public:
    explicit KeyPad(Platform& platform);

    [[nodiscard]] const std::shared_ptr<DYXStatusLineView>& view() const { return panel_.view; }
    [[nodiscard]] const std::vector<Key>& keys() const { return panel_.keys; }
    // The button that stood for the command when the key pad was made.
    [[nodiscard]] CommandButton& button(const Comand& command) const;
    // The six keys of the letters A to F.
    [[nodiscard]] const std::array<CommandButton*, 6>& hexButtons() const { return hexButtons_; }
    [[nodiscard]] NSButton& lockButton() const { return *lockButton_; }
    [[nodiscard]] NSButton& drawerButton(DrawerName drawer) const {
        return *drawerButtons_.at(static_cast<std::size_t>(drawer));
    }

    // What a click on a key with a command does; the lock and the drawers have actions of their
    // own.
    void setKeyAction(const KeyAction& action) const { panel_.setKeyAction(action); }

    // Gives the six keys their letters, or their exponents. Whether that changes anything.
    bool showHexDigits(bool show);

  private:
    const BundlePort& titles_;
    Panel panel_;
    NSButton* lockButton_ = nullptr;
    std::array<CommandButton*, 6> hexButtons_{};
    std::array<NSButton*, kDrawerNames.size()> drawerButtons_{};
    bool showsHexDigits_ = true;
};

}  // namespace talvex
