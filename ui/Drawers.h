#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "platform/NSDrawer.h"
#include "platform/Platform.h"
#include "state/SavedState.h"
#include "ui/DYXStatusLineView.h"
#include "ui/DrawerName.h"

namespace talvex {

struct Drawer {
    Drawer(const std::shared_ptr<NSView>& content, NSRectEdge edge,
           std::vector<double> restingPlaces);

    NSDrawer record;
    // Widths or heights of the content at which the drawer comes to rest, besides none and all:
    // from the largest down.
    std::vector<double> positions;
    bool wasOpen = false;                      // whether it comes back with the key pad
    NSSize lastSize;                           // that the user last dragged it to
    DYXStatusLineView* trackedView = nullptr;  // whose tracking rectangles follow a drag
};

class StatusTexts;
struct WindowViews;

// The four drawers of the calculator: memory on the right, constants on the left, conversions on
// top, more functions at the bottom. None is open while the key pad is hidden.
class Drawers final : public NSDrawerDelegate {
  public:
    // All have to outlive them.
    Drawers(WindowViews& views, const WindowLayout& layout, const StatusTexts& statusTexts,
            const MousePort& mouse);

    [[nodiscard]] Drawer& operator[](DrawerName name);
    [[nodiscard]] const Drawer& operator[](DrawerName name) const;

    // Opens or closes a drawer.
    void toggleDrawer(DrawerName name) { toggleDrawer((*this)[name].record); }
    [[nodiscard]] bool areClosed() const;  // all of them
    // A drawer at a side stays as high as its content when the height of the window changes.
    void windowDidResize();

    // Closes what is open; it comes back with the key pad. `whenClosed` is called once all have
    // closed, unless the key pad came back meanwhile.
    void closeForKeyPad(std::function<void()> whenClosed);
    void comeBackWithKeyPad();
    // The key pad comes or goes at once.
    void forgetKeyPad() { whenClosed_ = nullptr; }
    // Whether the key pad goes as soon as all drawers have closed.
    [[nodiscard]] bool keyPadWaits() const { return whenClosed_ != nullptr; }

    void save(WindowState& state) const;
    void restoreWhatComesBack(const WindowState& state);
    void restoreWhatIsOpen(const WindowState& state);
    void closeAtOnce();

    NSSize drawerWillResizeContentsToSize(NSDrawer& drawer, const NSSize& size) override;
    void drawerDidClose(NSDrawer& drawer) override;
    void drawerStateDidChange(NSDrawer& drawer) override;

  private:
    void toggleDrawer(NSDrawer& drawer);
    [[nodiscard]] Drawer& of(const NSDrawer& record);
    void callWhenClosed();

    WindowViews& views_;
    const WindowLayout& layout_;
    const StatusTexts& statusTexts_;
    const MousePort& mouse_;
    std::array<Drawer, kDrawerNames.size()> drawers_;
    std::function<void()> whenClosed_;
};

// Slides the drawer in small steps to the position of its list, or to its full or least size,
// whichever is nearest to the size; the first of equals. Answers where it is then.
NSSize slideDrawerToPositionsNearestTo(NSDrawer& drawer, std::span<const double> positions,
                                       const NSSize& size);

}  // namespace talvex
