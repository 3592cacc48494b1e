#pragma once

#include <QImage>
#include <functional>
#include <memory>
#include <string_view>

#include "platform/HeadlessPlatform.h"
#include "qt/CalculatorWindow.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// A calculator with a window of its own, for one picture.
class Stage {
  public:
    // So large, in percent.
    explicit Stage(std::int32_t size);

    [[nodiscard]] DYXWindowController& controller() { return controller_; }
    // Keys as they are typed on the keyboard, one character each; "\r" is ENTER.
    void type(std::u16string_view keys);
    void open(DrawerName name);
    // Whatever moves has come to rest; then the window with its drawers, on a transparent ground.
    [[nodiscard]] QImage picture();

  private:
    void settle();

    HeadlessPlatform platform_;
    DYXWindowController controller_;
    Scale scale_;
    std::unique_ptr<CalculatorWindow> window_;
};

}  // namespace talvex
