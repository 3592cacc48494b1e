#include "qt/WindowDrawers.h"

#include <utility>

#include "qt/PanelWidget.h"

namespace talvex {

WindowDrawers::WindowDrawers(Drawers& records, const WindowViews& views, Scale& scale,
                             const DrawerWidget::Host& host, QWidget* canvas) {
    const auto make = [&](DrawerName name, std::function<QWidget*(QWidget*)> makeContent) {
        DrawerWidget::Host own = host;
        own.makeContent = std::move(makeContent);
        drawers_.at(static_cast<std::size_t>(name)) =
            new DrawerWidget(records[name].record, scale, std::move(own), canvas);
    };
    const auto panel = [&scale](const Panel& content) {
        return
            [&scale, &content](QWidget* parent) { return makePanelWidget(content, scale, parent); };
    };
    make(DrawerName::memory, panel(views.memoryPanel));
    make(DrawerName::constants, panel(views.constantsPanel));
    make(DrawerName::functions, panel(views.functionsPanel));
    make(DrawerName::conversion, [&scale, &views](QWidget* parent) {
        return makeConversionWidget(views.conversionPanel, scale, parent);
    });
}

void WindowDrawers::followBody() {
    for (DrawerWidget* const drawer : drawers_) {
        drawer->followBody();
    }
}

void WindowDrawers::takeSize() {
    for (DrawerWidget* const drawer : drawers_) {
        drawer->takeSize();
    }
}

void WindowDrawers::openWaiting() {
    for (DrawerWidget* const drawer : drawers_) {
        drawer->drawerDidChange(drawer->record());
    }
}

QRegion WindowDrawers::visibleRegion() const {
    QRegion region;
    for (const DrawerWidget* const drawer : drawers_) {
        region += drawer->visibleRect();
    }
    return region;
}

QRect WindowDrawers::placeWhenOpen() const {
    QRect place;
    for (const DrawerWidget* const drawer : drawers_) {
        place |= drawer->placeWhenOpen();
    }
    return place;
}

}  // namespace talvex
