// The six layouts of the window, its place on the screen, and the drawers around it.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "platform/HeadlessPlatform.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

// A drawer that takes its time: it tells how it was drawn, and comes to rest when it is told to.
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

class WindowGeometry : public testing::Test {
  protected:
    NSDrawer& drawer(DrawerName name) { return controller.drawers()[name].record; }
    [[nodiscard]] NSSize contentSize() {
        const NSRect& frame = window.contentView()->frame();
        return {frame.width, frame.height};
    }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
    NSWindow& window = controller.views().window;
};

TEST_F(WindowGeometry, HasSixLayoutsThatKeepTheTopLeftCorner) {
    const struct {
        bool keyPadHidden, fourLines, statusLine;
        NSSize content;
    } rows[]{{false, false, false, {404, 211}}, {false, false, true, {404, 228}},
             {false, true, false, {404, 271}},  {false, true, true, {404, 288}},
             {true, false, false, {274, 45}},   {true, false, true, {274, 45}},
             {true, true, false, {274, 105}},   {true, true, true, {274, 105}}};
    window.setFrameTopLeftPoint({100, 900});
    const auto take = [&](bool keyPadHidden, bool fourLines, bool statusLine) {
        if (controller.layout().keyPadHidden != keyPadHidden) {
            controller.takeShowKeyPadFrom();
        }
        if ((controller.layout().displayViewMode == 1) != fourLines) {
            controller.takeShowYZTRegistersFrom();
        }
        if (controller.layout().showStatusLine != statusLine) {
            controller.takeShowStatusLineFrom();
        }
    };
    const NSView& display = *controller.views().displayView;
    for (const auto& from : rows) {
        for (const auto& to : rows) {
            take(from.keyPadHidden, from.fourLines, from.statusLine);
            take(to.keyPadHidden, to.fourLines, to.statusLine);
            EXPECT_EQ(contentSize(), to.content);
            EXPECT_EQ(window.frame().x, 100);
            EXPECT_EQ(window.frame().y + window.frame().height, 900);
            // The display hangs from the top, five points from both sides.
            EXPECT_EQ(display.frame().x, 5);
            EXPECT_EQ(display.frame().width, to.content.width - 10);
            EXPECT_EQ(display.frame().y + display.frame().height, to.content.height - 2);
            EXPECT_EQ(display.frame().height, to.fourLines ? 101 : 41);
        }
    }
    // And the key pad hangs below it.
    take(false, true, true);
    EXPECT_EQ(controller.views().keyPad.view()->frame().y, 17);
    EXPECT_EQ(controller.views().keyPad.view()->statusField()->frame(), (NSRect{5, -21, 393, 22}));
}

TEST_F(WindowGeometry, KeepsTheSmallButtonsAtTheUpperRight) {
    const NSButton& lines = *controller.views().xyztButton;
    const NSButton& status = *controller.views().statusButton;
    for (int layout = 0; layout < 4; ++layout) {
        const NSRect& frame = window.frame();
        EXPECT_EQ(lines.frame(), (NSRect{frame.width - 25, frame.height - 18, 13, 13}));
        EXPECT_EQ(status.frame(), (NSRect{frame.width - 44, frame.height - 18, 13, 13}));
        EXPECT_EQ(lines.image(), layout % 2 == 0 ? u"xyztOn" : u"xyztOff");
        EXPECT_EQ(status.image(), layout < 2 ? u"statusOn" : u"statusOff");
        controller.views().xyztButton->performClick();
        if (layout == 1) {
            controller.takeShowKeyPadFrom();
            controller.views().statusButton->performClick();
        }
    }
}

TEST_F(WindowGeometry, FindsAPlaceOnTheScreen) {
    const std::vector<NSRect> screens{{0, 40, 1000, 760}, {1000, 0, 1920, 1080}};
    EXPECT_EQ(centerRectOnScreen(screens, {7, 7, 404, 233}), (NSRect{298, 303.5, 404, 233}));
    EXPECT_EQ(centerRectOnScreen(screens, {7, 7, 1001, 233}), (NSRect{40, 193, 1001, 233}));
    EXPECT_EQ(centerRectOnScreen(screens, {7, 7, 404, 761}), (NSRect{40, 721, 404, 761}));
    EXPECT_EQ(centerRectOnScreen({}, {7, 7, 404, 233}), (NSRect{64, 64, 404, 233}));
    EXPECT_EQ(leftRectOnScreen(screens, {7, 7, 300, 233}), (NSRect{0, 40, 300, 760}));
    EXPECT_EQ(leftRectOnScreen({}, {7, 7, 300, 233}), (NSRect{64, 64, 300, 233}));
}

TEST_F(WindowGeometry, TakesASavedLayout) {
    const auto setUp = [this](NSPoint place, bool keyPadHidden, int mode, bool status) {
        controller.setupWindowAtLocationKeyPadHiddenDisplayViewModeStatusLine(place, keyPadHidden,
                                                                              mode, status);
    };
    setUp({10, 500}, true, 1, true);
    EXPECT_EQ(window.frame(), (NSRect{10, 373, 274, 127}));
    EXPECT_TRUE(controller.views().keyPad.view()->isHidden());
    EXPECT_TRUE(controller.views().keyPad.view()->statusField()->isHidden());
    setUp({20, 600}, false, 0, true);
    EXPECT_EQ(window.frame(), (NSRect{20, 350, 404, 250}));
    EXPECT_FALSE(controller.views().keyPad.view()->isHidden());
    controller.takeShowKeyPadFrom();
    controller.takeShowKeyPadFrom();
    EXPECT_FALSE(controller.views().keyPad.view()->statusField()->isHidden());
    setUp({20, 600}, false, 77, false);  // a number that no layout has
    EXPECT_EQ(contentSize(), (NSSize{404, 271}));
}

TEST_F(WindowGeometry, OpensDrawersOnlyBesideTheKeyPad) {
    NSDrawer& constants = drawer(DrawerName::constants);
    controller.takeToggleConstantsDrawerFrom();
    EXPECT_EQ(constants.state(), NSDrawerOpenState);
    controller.takeToggleConstantsDrawerFrom();
    EXPECT_EQ(constants.state(), NSDrawerClosedState);
    for (const double height : {200.0, 200.5}) {
        NSRect frame = window.frame();
        frame.height = height;
        window.setFrame(frame);
        controller.takeToggleConstantsDrawerFrom();
        EXPECT_EQ(constants.isOpenOrOpening(), height > 200.0);
    }
    const SlowDrawer slow(constants);
    controller.takeToggleConstantsDrawerFrom();
    EXPECT_EQ(constants.state(), NSDrawerClosingState);
    controller.takeToggleConstantsDrawerFrom();
    EXPECT_EQ(constants.state(), NSDrawerOpeningState);
}

TEST_F(WindowGeometry, HangsSideDrawersBelowTheTitleBarInEveryLayout) {
    for (int layout = 0; layout < 3; ++layout) {
        for (const DrawerName name : {DrawerName::memory, DrawerName::constants}) {
            const NSDrawer& side = drawer(name);
            EXPECT_EQ(side.trailingOffset(),
                      window.frame().height - side.maxContentSize().height - 37);
            EXPECT_GE(side.trailingOffset(), 0);
        }
        layout == 0 ? controller.takeShowYZTRegistersFrom() : controller.takeShowStatusLineFrom();
    }
}

TEST_F(WindowGeometry, WaitsForOpenDrawersBeforeTheKeyPadGoes) {
    const SlowDrawer memory(drawer(DrawerName::memory));
    const SlowDrawer functions(drawer(DrawerName::functions));
    controller.takeToggleMemoryDrawerFrom();
    controller.takeToggleFunctionsDrawerFrom();
    drawer(DrawerName::functions).finishSliding();  // one is open, one still opening
    controller.takeShowKeyPadFrom();
    EXPECT_EQ(contentSize(), (NSSize{404, 211}));
    drawer(DrawerName::functions).finishSliding();
    EXPECT_EQ(contentSize(), (NSSize{404, 211}));
    EXPECT_FALSE(controller.views().keyPad.view()->isHidden());
    controller.takeToggleFunctionsDrawerFrom();  // too late for that
    EXPECT_EQ(drawer(DrawerName::functions).state(), NSDrawerClosedState);
    drawer(DrawerName::memory).finishSliding();
    EXPECT_EQ(contentSize(), (NSSize{274, 45}));
    EXPECT_TRUE(controller.views().keyPad.view()->isHidden());

    controller.takeShowKeyPadFrom();
    EXPECT_EQ(contentSize(), (NSSize{404, 211}));
    EXPECT_EQ(drawer(DrawerName::memory).state(), NSDrawerOpeningState);
    EXPECT_EQ(drawer(DrawerName::functions).state(), NSDrawerOpeningState);
    EXPECT_EQ(drawer(DrawerName::constants).state(), NSDrawerClosedState);
    EXPECT_EQ(drawer(DrawerName::conversion).state(), NSDrawerClosedState);

    // A drawer that closes by itself leaves the window alone.
    drawer(DrawerName::memory).finishSliding();
    controller.takeToggleMemoryDrawerFrom();
    drawer(DrawerName::memory).finishSliding();
    EXPECT_EQ(contentSize(), (NSSize{404, 211}));
}

struct Rest {
    DrawerName name;
    double dragged, target;
};

class DrawerRest : public WindowGeometry, public testing::WithParamInterface<Rest> {};

TEST_P(DrawerRest, IsAtTheNearestPosition) {
    NSDrawer& dragged = drawer(GetParam().name);
    dragged.openOnEdge(dragged.preferredEdge());
    double NSSize::*const moved = dragged.isLevel() ? &NSSize::height : &NSSize::width;
    NSSize size = dragged.maxContentSize();
    size.*moved = GetParam().dragged;
    platform.mouseButtons = 1;
    dragged.dragContentsToSize(size);
    dragged.dragContentsToSize(size);
    EXPECT_EQ(dragged.contentSize(), size);  // as long as the button is down
    platform.mouseButtons = 2;               // another button
    SlowDrawer way(dragged);
    dragged.dragContentsToSize(size);
    size.*moved = GetParam().target;
    EXPECT_EQ(dragged.contentSize(), size);
    EXPECT_EQ(dragged.contentView()->frame().width, size.width);
    double last = GetParam().dragged;
    for (const double step : way.sizes) {
        EXPECT_LE(std::fabs(step - last), 15.0);
        EXPECT_TRUE(std::fabs(step - last) == 15.0 || step == GetParam().target);
        last = step;
    }
    EXPECT_EQ(last, GetParam().target);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, DrawerRest,
    testing::Values(Rest{DrawerName::constants, 200, 182}, Rest{DrawerName::constants, 23.6, 47},
                    Rest{DrawerName::constants, 23.5, 47}, Rest{DrawerName::constants, 23.4, 0},
                    Rest{DrawerName::constants, 112, 133}, Rest{DrawerName::constants, 334, 313},
                    Rest{DrawerName::constants, 335, 355}, Rest{DrawerName::functions, 60, 73},
                    Rest{DrawerName::functions, 59, 47}, Rest{DrawerName::functions, 203, 208},
                    Rest{DrawerName::memory, 100.9, 0}, Rest{DrawerName::memory, 101, 202},
                    Rest{DrawerName::conversion, 100, 190}),
    [](const auto& row) { return "row" + std::to_string(row.index); });

TEST_F(WindowGeometry, PassesADragThroughUntilTheSizeComesTwiceWithTheMouseUp) {
    NSDrawer& constants = drawer(DrawerName::constants);
    constants.openOnEdge(NSMinXEdge);
    const double height = constants.maxContentSize().height;
    constants.dragContentsToSize({200, height});
    EXPECT_EQ(constants.contentSize().width, 200);
    constants.dragContentsToSize({201, height});
    EXPECT_EQ(constants.contentSize().width, 201);
    constants.dragContentsToSize({201, height});
    EXPECT_EQ(constants.contentSize().width, 182);
    constants.dragContentsToSize({-40, 3 * height});
    EXPECT_EQ(constants.contentSize(), (NSSize{0, height}));
}

TEST_F(WindowGeometry, OpensADrawerAgainWholeThatWasDraggedShut) {
    NSDrawer& memory = drawer(DrawerName::memory);
    const NSSize whole = memory.maxContentSize();
    memory.openOnEdge(NSMaxXEdge);
    memory.dragContentsToSize({1, whole.height});
    memory.dragContentsToSize({1, whole.height});
    EXPECT_EQ(memory.contentSize().width, 0);
    EXPECT_EQ(memory.state(), NSDrawerOpenState);
    controller.takeToggleMemoryDrawerFrom();
    EXPECT_EQ(memory.contentSize(), whole);
    // The keys are where they were: they keep their distance from the outer edge.
    for (const Key& key : controller.views().memoryPanel.keys) {
        EXPECT_GE(key.button->frame().x, 5);
        EXPECT_LE(key.button->frame().x + key.button->frame().width, whole.width - 5);
    }
}

// A drawer at rest shows whole columns or rows.
TEST_F(WindowGeometry, CutsNoKeyAtAnyRestingPlace) {
    const auto isWhole = [](double start, double end, double edge) {
        return end <= edge || start >= edge;
    };
    for (const float edge : controller.drawers()[DrawerName::constants].positions) {
        for (const Key& key : controller.views().constantsPanel.keys) {
            const NSRect& frame = key.button->frame();
            EXPECT_TRUE(isWhole(frame.x, frame.x + frame.width, edge)) << edge;
        }
    }
    for (const float edge : controller.drawers()[DrawerName::functions].positions) {
        for (const Key& key : controller.views().functionsPanel.keys) {
            const NSRect& frame = key.button->frame();
            EXPECT_TRUE(isWhole(frame.y, frame.y + frame.height, edge)) << edge;
        }
    }
}

}  // namespace
}  // namespace talvex
