#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "platform/Platform.h"
#include "ui/DYXButton.h"
#include "ui/DYXView.h"
#include "ui/key_pad_table.h"

namespace talvex {

// The key pad's view with its buttons, one for each row of the table and in its order.
class KeyPad {
  public:
    explicit KeyPad(LogPort& log);

    [[nodiscard]] const std::shared_ptr<NSView>& view() const { return view_; }
    [[nodiscard]] const std::vector<std::shared_ptr<NSButton>>& buttons() const { return buttons_; }
    // The button that stood for the command when the key pad was made.
    [[nodiscard]] NSButton& button(std::u16string_view command) const;
    // The six keys of the letters A to F.
    [[nodiscard]] const std::array<NSButton*, 6>& hexButtons() const { return hexButtons_; }
    [[nodiscard]] NSButton& lockButton() const { return button(u"lock"); }

    // What a click on a command key does; the lock has an action of its own.
    void setKeyAction(const std::function<void(NSButton&)>& action);

    // Gives the six keys their letters, or their exponents.
    void showHexDigits(bool show);

  private:
    [[nodiscard]] std::shared_ptr<NSButton> makeButton(const KeyRow& row, LogPort& log) const;

    std::shared_ptr<NSView> view_;
    std::vector<std::shared_ptr<NSButton>> buttons_;
    std::array<NSButton*, 6> hexButtons_{};
};

}  // namespace talvex
