#include "ui/Drawers.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "platform/NSWindow.h"
#include "ui/StatusTexts.h"
#include "ui/WindowViews.h"
#include "ui/panel_geometry.h"

namespace talvex {
namespace {

constexpr double kSlidingStep = 15.0;
// In a window no higher than this the key pad is hidden.
constexpr double kLowWindow = 200.0;
constexpr std::uint32_t kPrimaryButton = 1;
// What stands above and below the content of a drawer at a side, title bar included.
constexpr double kAroundSideDrawer = NSWindow::kTitleBarHeight + NSDrawer::kEnds;

struct SavedDrawer {
    DrawerName name;
    bool WindowState::*wasOpen;
    std::int32_t WindowState::*state;
};

constexpr auto kSavedDrawers = std::to_array<SavedDrawer>({
    {DrawerName::memory, &WindowState::memoryWasOpen, &WindowState::memoryDrawerState},
    {DrawerName::constants, &WindowState::constantsWasOpen, &WindowState::constantsDrawerState},
    {DrawerName::conversion, &WindowState::conversionWasOpen, &WindowState::conversionDrawerState},
    {DrawerName::functions, &WindowState::functionsWasOpen, &WindowState::functionsDrawerState},
});

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

Drawers::Drawers(WindowViews& views, const WindowLayout& layout, const StatusTexts& statusTexts,
                 const MousePort& mouse)
    : views_(views),
      layout_(layout),
      statusTexts_(statusTexts),
      mouse_(mouse),
      drawers_{Drawer(views.memoryPanel.view, NSMaxXEdge, {}),
               Drawer(views.constantsPanel.view, NSMinXEdge,
                      constantsGrid(constantKeyRows().size()).columns.restingPlaces()),
               Drawer(views.conversionPanel.view, NSMaxYEdge, {}),
               Drawer(views.functionsPanel.view, NSMinYEdge,
                      functionsGrid(functionKeyRows()).rows.restingPlaces())} {
    (*this)[DrawerName::functions].trackedView = views.functionsPanel.view.get();
    (*this)[DrawerName::memory].trackedView = views.memoryPanel.view.get();
    windowDidResize();
    for (const DrawerName name : kDrawerNames) {
        NSDrawer& record = (*this)[name].record;
        record.setDelegate(this);
        views.keyPad.drawerButton(name).setAction(
            [this, &record](NSButton& /*sender*/) { toggleDrawer(record); });
    }
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

void Drawers::windowDidResize() {
    const double height = views_.window.frame().height;
    for (const DrawerName name : {DrawerName::memory, DrawerName::constants}) {
        NSDrawer& drawer = (*this)[name].record;
        drawer.setTrailingOffset(height - drawer.maxContentSize().height - kAroundSideDrawer);
    }
}

void Drawers::toggleDrawer(NSDrawer& drawer) {
    if (drawer.isOpenOrOpening()) {
        drawer.close();
    } else if (!layout_.keyPadHidden && views_.window.frame().height > kLowWindow) {
        drawer.openOnEdge(drawer.preferredEdge());
    }
}

void Drawers::closeForKeyPad(std::function<void()> whenClosed) {
    for (Drawer& drawer : drawers_) {
        drawer.wasOpen = drawer.record.isOpenOrOpening();
    }
    whenClosed_ = std::move(whenClosed);
    if (areClosed()) {
        callWhenClosed();
        return;
    }
    for (Drawer& drawer : drawers_) {
        drawer.record.close();
    }
}

void Drawers::callWhenClosed() { std::exchange(whenClosed_, nullptr)(); }

void Drawers::comeBackWithKeyPad() {
    whenClosed_ = nullptr;
    for (Drawer& drawer : drawers_) {
        if (drawer.wasOpen) {
            drawer.record.openOnEdge(drawer.record.preferredEdge());
        }
    }
}

void Drawers::save(WindowState& state) const {
    for (const SavedDrawer& saved : kSavedDrawers) {
        const Drawer& drawer = (*this)[saved.name];
        state.*saved.wasOpen = drawer.wasOpen;
        state.*saved.state = drawer.record.state();
    }
}

void Drawers::restoreWhatComesBack(const WindowState& state) {
    for (const SavedDrawer& saved : kSavedDrawers) {
        (*this)[saved.name].wasOpen = state.*saved.wasOpen;
    }
}

void Drawers::restoreWhatIsOpen(const WindowState& state) {
    if (layout_.keyPadHidden) {
        return;
    }
    for (const SavedDrawer& saved : kSavedDrawers) {
        NSDrawer& drawer = (*this)[saved.name].record;
        const std::int32_t drawerState = state.*saved.state;
        if (drawerState == NSDrawerOpeningState || drawerState == NSDrawerOpenState) {
            drawer.openOnEdge(drawer.preferredEdge());
        }
    }
}

void Drawers::closeAtOnce() {
    for (Drawer& drawer : drawers_) {
        drawer.record.close();
        drawer.record.finishSliding();
    }
}

// A drag has ended when the mouse is up and the size comes a second time.
NSSize Drawers::drawerWillResizeContentsToSize(NSDrawer& drawer, const NSSize& size) {
    Drawer& dragged = of(drawer);
    const bool isMouseUp = (mouse_.GetCurrentButtonState() & kPrimaryButton) == 0;
    if (dragged.trackedView != nullptr) {
        statusTexts_.untrack(*dragged.trackedView);
    }
    NSSize result = size;
    if (isMouseUp && size == dragged.lastSize) {
        result = slideDrawerToPositionsNearestTo(drawer, dragged.positions, size);
    }
    dragged.lastSize = result;
    if (dragged.trackedView != nullptr) {
        statusTexts_.track(*dragged.trackedView);
    }
    return result;
}

// A drawer that was dragged shut is whole the next time.
void Drawers::drawerDidClose(NSDrawer& drawer) {
    if (keyPadWaits() && areClosed()) {
        callWhenClosed();
    }
    const bool isLevel = drawer.preferredEdge() % 2 == 1;
    if ((isLevel ? drawer.contentSize().height : drawer.contentSize().width) == 0.0) {
        drawer.setContentSize(drawer.maxContentSize());
    }
}

void Drawers::drawerStateDidChange(NSDrawer& drawer) {
    for (const DrawerName name : kDrawerNames) {
        if (&(*this)[name].record == &drawer) {
            views_.keyPad.drawerButton(name).setState(drawer.isOpenOrOpening() ? 1 : 0);
        }
    }
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
