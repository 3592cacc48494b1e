#include "qt/canvas_size.h"

#include "platform/NSWindow.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

// The room that the drawers need on each side of the body.
QMargins roomFor(const Drawers& drawers, const Scale& scale) {
    const auto depth = [&](DrawerName name) {
        const NSDrawer& drawer = drawers[name].record;
        const NSSize& size = drawer.maxContentSize();
        return scale.pixels(drawer.isLevel() ? size.height : size.width) +
               scale.pixels(NSDrawer::kOuterBorder);
    };
    return {depth(DrawerName::constants), depth(DrawerName::conversion), depth(DrawerName::memory),
            depth(DrawerName::functions)};
}

NSSize sizeOfBody(const WindowLayout& layout) {
    const NSRect frame = NSWindow::frameRectForContentRect(contentFrame(layout));
    return {frame.width, frame.height};
}

NSSize smallestBody() { return sizeOfBody({.keyPadHidden = true}); }

}  // namespace

NSSize largestBody() { return sizeOfBody({.displayViewMode = 1, .showStatusLine = true}); }

TopLevel::Canvas canvasFor(const Drawers& drawers, const Scale& scale) {
    return {.room = roomFor(drawers, scale),
            .smallestBody = scale.pixels(smallestBody()),
            .largestBody = scale.pixels(largestBody())};
}

}  // namespace talvex
