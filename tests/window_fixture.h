#pragma once

#include <gtest/gtest.h>

#include <string_view>

#include "edit_state.h"
#include "platform/HeadlessPlatform.h"
#include "platform/NSEvent.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// A calculator with its window on a desktop in memory.
class WindowTest : public testing::Test {
  protected:
    template <auto Setting>
    void choose(std::int32_t value) {
        controller.choose(settingRow<Setting>(), value);
    }
    NSDrawer& drawer(DrawerName name) { return controller.drawers()[name].record; }
    NSButton& padKey(std::u16string_view text) {
        return views.keyPad.button(commandFromString(text));
    }
    void type(std::u16string_view keys) {
        for (const char16_t key : keys) {
            views.window.sendEvent({.charactersIgnoringModifiers = {key}});
        }
    }
    void setX(double x) { talvex::setX(calculator, x); }
    double x() { return xOf(calculator); }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
    DYXCalculator& calculator = controller.calculator();
    WindowViews& views = controller.views();
    WindowGeometry& geometry = controller.geometry();
    Drawers& drawers = controller.drawers();
};

}  // namespace talvex
