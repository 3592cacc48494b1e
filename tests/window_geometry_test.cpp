// The six layouts of the window, its place on the screen, and the drawers around it.

#include <array>
#include <cmath>
#include <vector>

#include "ui/window_layout.h"
#include "window_fixture.h"

namespace talvex {
namespace {

// A drawer that takes its time: it keeps how it was drawn, and comes to rest when it is told to.
class SlowDrawer final : public NSDrawerObserver {
  public:
    explicit SlowDrawer(NSDrawer& drawer) : drawer_(drawer) { drawer.setObserver(this); }
    SlowDrawer(const SlowDrawer&) = delete;
    SlowDrawer& operator=(const SlowDrawer&) = delete;
    ~SlowDrawer() { drawer_.setObserver(nullptr); }

    void drawerDidChange(const NSDrawer& drawer) override {
        const NSSize& size = drawer.contentSize();
        sizes.push_back(drawer.isLevel() ? size.height : size.width);
    }
    std::vector<double> sizes;

  private:
    NSDrawer& drawer_;
};

class Layouts : public WindowTest {
  protected:
    [[nodiscard]] NSSize contentSize() {
        const NSRect& frame = window.contentView()->frame();
        return {frame.width, frame.height};
    }
    // Where a drawer is when it is dragged to a width or a height and let go.
    static NSSize sizeOf(const NSDrawer& dragged, double depth) {
        const NSSize& most = dragged.maxContentSize();
        return dragged.isLevel() ? NSSize{most.width, depth} : NSSize{depth, most.height};
    }

    NSWindow& window = views.window;
};

TEST_F(Layouts, HasSixLayoutsThatKeepTheTopLeftCorner) {
    constexpr std::array kSwitches{&WindowGeometry::takeShowKeyPadFrom,
                                   &WindowGeometry::takeShowYZTRegistersFrom,
                                   &WindowGeometry::takeShowStatusLineFrom};
    window.setFrameTopLeftPoint({100, 900});
    for (int step = 0; step < 200; ++step) {
        (geometry.*kSwitches.at(platform.random() % 3))();
        const auto& [keyPadHidden, mode, statusLine] = controller.layout();
        const double width = keyPadHidden ? 274 : 404;
        const double height = (mode == 1 ? 60 : 0) + (keyPadHidden ? 45 : statusLine ? 228 : 211);
        EXPECT_EQ(contentSize(), (NSSize{width, height}));
        EXPECT_EQ(window.frame(), (NSRect{100, 900 - height - 22, width, height + 22}));
        // The display hangs from the top, five points from both sides.
        const double lines = mode == 1 ? 101 : 41;
        EXPECT_EQ(views.displayView->frame(), (NSRect{5, height - 2 - lines, width - 10, lines}));
        EXPECT_EQ(views.xyztButton->frame(), (NSRect{width - 25, height + 4, 13, 13}));
        EXPECT_EQ(views.statusButton->frame(), (NSRect{width - 44, height + 4, 13, 13}));
        EXPECT_EQ(views.xyztButton->image(), mode == 1 ? u"xyztOff" : u"xyztOn");
        EXPECT_EQ(views.statusButton->image(), statusLine ? u"statusOff" : u"statusOn");
        if (!keyPadHidden) {
            // The key pad hangs below it, and the drawers at the sides below the title bar.
            EXPECT_EQ(views.keyPad.view()->frame().y, statusLine ? 17 : 0);
            const NSDrawer& side = drawer(DrawerName::memory);
            EXPECT_EQ(side.trailingOffset(), height - 15 - side.maxContentSize().height);
        }
    }
}

TEST(Screens, HaveAPlaceForAWindow) {
    const std::vector<NSRect> screens{{0, 40, 1000, 760}, {1000, 0, 1920, 1080}};
    EXPECT_EQ(centerRectOnScreen(screens, {7, 7, 404, 233}), (NSRect{298, 303.5, 404, 233}));
    EXPECT_EQ(centerRectOnScreen(screens, {7, 7, 1001, 233}), (NSRect{40, 193, 1001, 233}));
    EXPECT_EQ(centerRectOnScreen(screens, {7, 7, 404, 761}), (NSRect{40, 721, 404, 761}));
    EXPECT_EQ(centerRectOnScreen({}, {7, 7, 404, 233}), (NSRect{64, 64, 404, 233}));
    EXPECT_EQ(leftRectOnScreen(screens, {7, 7, 300, 233}), (NSRect{0, 40, 300, 760}));
    EXPECT_EQ(leftRectOnScreen({}, {7, 7, 300, 233}), (NSRect{64, 64, 300, 233}));
}

TEST_F(Layouts, OpensDrawersOnlyBesideTheKeyPad) {
    NSDrawer& constants = drawer(DrawerName::constants);
    for (const double height : {200.0, 200.5}) {
        NSRect frame = window.frame();
        frame.height = height;
        window.setFrame(frame);
        drawers.toggleDrawer(DrawerName::constants);
        EXPECT_EQ(constants.state(), height > 200.0 ? NSDrawerOpenState : NSDrawerClosedState);
    }
    const SlowDrawer slow(constants);
    drawers.toggleDrawer(DrawerName::constants);
    EXPECT_EQ(constants.state(), NSDrawerClosingState);
    drawers.toggleDrawer(DrawerName::constants);
    EXPECT_EQ(constants.state(), NSDrawerOpeningState);
}

TEST_F(Layouts, WaitsForOpenDrawersBeforeTheKeyPadGoes) {
    NSDrawer& memory = drawer(DrawerName::memory);
    NSDrawer& functions = drawer(DrawerName::functions);
    const SlowDrawer slowMemory(memory);
    const SlowDrawer slowFunctions(functions);
    drawers.toggleDrawer(DrawerName::memory);
    drawers.toggleDrawer(DrawerName::functions);
    functions.finishSliding();  // one is open, one still opening
    geometry.takeShowKeyPadFrom();
    EXPECT_EQ(contentSize(), (NSSize{404, 211}));
    functions.finishSliding();
    EXPECT_EQ(contentSize(), (NSSize{404, 211}));
    EXPECT_FALSE(views.keyPad.view()->isHidden());
    drawers.toggleDrawer(DrawerName::functions);  // too late for that
    EXPECT_EQ(functions.state(), NSDrawerClosedState);
    memory.finishSliding();
    EXPECT_EQ(contentSize(), (NSSize{274, 45}));
    EXPECT_TRUE(views.keyPad.view()->isHidden());

    geometry.takeShowKeyPadFrom();
    EXPECT_EQ(contentSize(), (NSSize{404, 211}));
    EXPECT_EQ(memory.state(), NSDrawerOpeningState);
    EXPECT_EQ(functions.state(), NSDrawerOpeningState);
    EXPECT_EQ(drawer(DrawerName::constants).state(), NSDrawerClosedState);
}

TEST_F(Layouts, LetsADraggedDrawerRestAtTheNearestPosition) {
    using enum DrawerName;
    const double full = drawer(constants).maxContentSize().width;
    const double largest = drawers[constants].positions.front();
    const double middle = (largest + full) / 2;
    const struct {
        DrawerName name;
        double dragged, target;
    } rows[]{{constants, 200, 182},
             {constants, 23.5, 47},
             {constants, 23.4, 0},
             {constants, middle, largest},
             {constants, middle + 1, full},
             {functions, 60, 73},
             {functions, 59, 47},
             {memory, 100.9, 0},
             {memory, 101, 202}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.dragged);
        NSDrawer& dragged = drawer(row.name);
        dragged.openOnEdge(dragged.preferredEdge());
        const NSSize size = sizeOf(dragged, row.dragged);
        platform.mouseButtons = 1;
        dragged.dragContentsToSize(size);
        dragged.dragContentsToSize(size);
        EXPECT_EQ(dragged.contentSize(), size);  // as long as the button is down
        platform.mouseButtons = 2;               // another button
        const SlowDrawer way(dragged);
        dragged.dragContentsToSize(size);
        EXPECT_EQ(dragged.contentSize(), sizeOf(dragged, row.target));
        EXPECT_EQ(dragged.contentView()->frame().width, dragged.contentSize().width);
        double last = row.dragged;
        for (const double step : way.sizes) {
            const double length = std::fabs(step - last);
            EXPECT_TRUE(length == 15.0 || (step == row.target && length <= 15.0));
            last = step;
        }
        EXPECT_EQ(last, row.target);
    }
}

TEST_F(Layouts, PassesADragThroughUntilTheSizeComesTwiceWithTheMouseUp) {
    NSDrawer& constants = drawer(DrawerName::constants);
    constants.openOnEdge(NSMinXEdge);
    const double height = constants.maxContentSize().height;
    for (const auto& [dragged, width] : {std::pair{200, 200}, {201, 201}, {201, 182}, {-40, 0}}) {
        constants.dragContentsToSize({static_cast<double>(dragged), 3 * height});
        EXPECT_EQ(constants.contentSize(), (NSSize{static_cast<double>(width), height}));
    }
}

TEST_F(Layouts, OpensADrawerAgainWholeThatWasDraggedShut) {
    NSDrawer& memory = drawer(DrawerName::memory);
    const NSSize whole = memory.maxContentSize();
    const NSRect firstKey = views.memoryPanel.keys.front().button->frame();
    memory.openOnEdge(NSMaxXEdge);
    memory.dragContentsToSize({1, whole.height});
    memory.dragContentsToSize({1, whole.height});
    EXPECT_EQ(memory.contentSize().width, 0);
    EXPECT_EQ(memory.state(), NSDrawerOpenState);
    drawers.toggleDrawer(DrawerName::memory);
    EXPECT_EQ(memory.contentSize(), whole);
    // The keys are where they were: they keep their distance from the outer edge.
    EXPECT_EQ(views.memoryPanel.keys.front().button->frame(), firstKey);
}

}  // namespace
}  // namespace talvex
