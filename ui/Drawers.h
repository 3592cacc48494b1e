#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "platform/NSDrawer.h"
#include "ui/DYXStatusLineView.h"

namespace talvex {

// In the order in which drawers are handed over to the switch of the key pad.
enum class DrawerName { memory, constants, conversion, functions };

inline constexpr auto kDrawerNames = std::to_array<DrawerName>(
    {DrawerName::memory, DrawerName::constants, DrawerName::conversion, DrawerName::functions});

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

struct WindowViews;

// The four drawers of the calculator: memory on the right, constants on the left, conversions on
// top, more functions at the bottom.
class Drawers {
  public:
    explicit Drawers(const WindowViews& views);

    [[nodiscard]] Drawer& operator[](DrawerName name);
    [[nodiscard]] const Drawer& operator[](DrawerName name) const;
    [[nodiscard]] Drawer& of(const NSDrawer& record);

    [[nodiscard]] bool areClosed() const;

    // Whether the key pad goes as soon as all drawers have closed.
    bool keyPadWaits = false;

  private:
    std::array<Drawer, kDrawerNames.size()> drawers_;
};

// Slides the drawer in small steps to the position of its list, or to its full or least size,
// whichever is nearest to the size; the first of equals. Answers where it is then.
NSSize slideDrawerToPositionsNearestTo(NSDrawer& drawer, std::span<const double> positions,
                                       const NSSize& size);

}  // namespace talvex
