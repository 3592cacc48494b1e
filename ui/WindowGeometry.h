#pragma once

#include <cstdint>
#include <functional>

#include "state/Settings.h"
#include "state/WindowLayout.h"
#include "ui/Drawers.h"
#include "ui/StatusTexts.h"
#include "ui/WindowViews.h"

namespace talvex {

// The six layouts of the window, and the switches between them. The top left corner stays.
class WindowGeometry {
  public:
    // All have to outlive it.
    WindowGeometry(WindowViews& views, WindowLayout& layout, const Settings& settings,
                   Drawers& drawers, const StatusTexts& statusTexts);

    // `showLabels` is called when the layout has changed, ahead of the size of the window.
    void setShowLabels(std::function<void()> showLabels) { showLabels_ = std::move(showLabels); }

    void takeShowYZTRegistersFrom();
    void takeShowStatusLineFrom();
    // Open drawers close ahead of the key pad, and come back with it.
    void takeShowKeyPadFrom();

    // Brings the top left corner to a place of the screen, and takes the layout.
    void setupWindowAtLocation(const NSPoint& location, const WindowLayout& layout);

  private:
    void resizeWindow();
    void setShowStatusLine(bool show);
    void finishHidingKeyPad();
    void hideKeyPadViews(bool hidden);

    WindowViews& views_;
    WindowLayout& layout_;
    const Settings& settings_;
    Drawers& drawers_;
    const StatusTexts& statusTexts_;
    std::function<void()> showLabels_;
};

}  // namespace talvex
