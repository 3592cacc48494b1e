#pragma once

#include <QRegion>
#include <array>

#include "qt/DrawerWidget.h"
#include "ui/Drawers.h"
#include "ui/WindowViews.h"

namespace talvex {

// The four drawers around the body.
class WindowDrawers {
  public:
    // Each drawer makes its content from the views when it is first opened.
    WindowDrawers(Drawers& records, const WindowViews& views, Scale& scale,
                  const DrawerWidget::Host& host, QWidget* canvas);

    void followBody();
    void takeSize();
    // Opens those whose records are open and which had to wait.
    void openWaiting();
    [[nodiscard]] QRegion visibleRegion() const;
    // What those cover that are open or will be, in the canvas.
    [[nodiscard]] QRect placeWhenOpen() const;

  private:
    std::array<DrawerWidget*, kDrawerNames.size()> drawers_{};
};

}  // namespace talvex
