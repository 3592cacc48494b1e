#include "ui/Drawers.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "platform/NSWindow.h"
#include "ui/WindowViews.h"
#include "ui/panel_geometry.h"

namespace talvex {
namespace {

constexpr double kSlidingStep = 15.0;

}  // namespace

// A drawer above or below stands in the middle of its side; one at a side hangs below the title
// bar.
Drawer::Drawer(const std::shared_ptr<NSView>& content, NSRectEdge edge,
               std::vector<double> restingPlaces)
    : record({content->frame().width, content->frame().height}, edge),
      positions(std::move(restingPlaces)) {
    record.setContentView(content);
    if (record.isLevel()) {
        const double ends = contentFrame({}).width - content->frame().width - NSDrawer::kEnds;
        record.setLeadingOffset(std::floor(ends / 2.0));
        record.setTrailingOffset(std::ceil(ends / 2.0));
    } else {
        record.setLeadingOffset(NSWindow::kTitleBarHeight);
    }
}

Drawers::Drawers(const WindowViews& views)
    : drawers_{Drawer(views.memoryPanel.view, NSMaxXEdge, {}),
               Drawer(views.constantsPanel.view, NSMinXEdge,
                      constantsGrid(constantKeyRows().size()).columns.restingPlaces()),
               Drawer(views.conversionPanel.view, NSMaxYEdge, {}),
               Drawer(views.functionsPanel.view, NSMinYEdge,
                      functionsGrid(functionKeyRows()).rows.restingPlaces())} {
    (*this)[DrawerName::functions].trackedView = views.functionsPanel.view.get();
    (*this)[DrawerName::memory].trackedView = views.memoryPanel.view.get();
}

Drawer& Drawers::operator[](DrawerName name) { return drawers_.at(static_cast<std::size_t>(name)); }

const Drawer& Drawers::operator[](DrawerName name) const {
    return drawers_.at(static_cast<std::size_t>(name));
}

Drawer& Drawers::of(const NSDrawer& record) {
    auto* const drawer = std::find_if(drawers_.begin(), drawers_.end(),
                                      [&](const Drawer& each) { return &each.record == &record; });
    assert(drawer != drawers_.end());
    return *drawer;
}

bool Drawers::areClosed() const {
    return std::all_of(drawers_.begin(), drawers_.end(), [](const Drawer& drawer) {
        return drawer.record.state() == NSDrawerClosedState;
    });
}

NSSize slideDrawerToPositionsNearestTo(NSDrawer& drawer, std::span<const double> positions,
                                       const NSSize& size) {
    double NSSize::*const moved = drawer.isLevel() ? &NSSize::height : &NSSize::width;
    NSSize place = size;
    double best = 1e12;
    double target = 0.0;
    const auto consider = [&](double position) {
        const double distance = std::fabs(size.*moved - position);
        if (best > distance) {
            best = distance;
            target = position;
        }
    };
    std::for_each(positions.begin(), positions.end(), consider);
    consider(drawer.maxContentSize().*moved);
    consider(drawer.minContentSize().*moved);

    const double step = target < size.*moved ? -kSlidingStep : kSlidingStep;
    while (std::fabs(target - place.*moved) > kSlidingStep) {
        place.*moved += step;
        drawer.setContentSize(place);
    }
    place.*moved = target;
    drawer.setContentSize(place);
    return place;
}

}  // namespace talvex
