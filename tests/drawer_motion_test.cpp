// Drawers and the body on their way, on a screen that nobody sees: what lies where at every step.

#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QTest>
#include <functional>

#include "platform/HeadlessPlatform.h"
#include "qt/CalculatorWindow.h"
#include "qt/screen_places.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

constexpr int kLongerThanAnyMotion = 450;

class DrawerMotion : public testing::Test {
  protected:
    DrawerMotion() {
        window.show();
        QApplication::processEvents();
    }
    NSDrawer& drawer(DrawerName name) { return controller.drawers()[name].record; }
    // What can be seen beside, above and below the body.
    [[nodiscard]] QRect shown() const {
        return (window.visibleRegion() - window.bodyRect()).boundingRect();
    }
    // Looks at every turn of the event loop until all motions are over.
    static void watch(const std::function<void()>& look) {
        QElapsedTimer timer;
        for (timer.start(); timer.elapsed() < kLongerThanAnyMotion;) {
            QApplication::processEvents(QEventLoop::AllEvents, 5);
            look();
        }
    }
    static void settle() {
        watch([] {});
    }
    [[nodiscard]] QPoint bodyOnScreen() const {
        return window.geometry().topLeft() + window.bodyRect().topLeft();
    }
    void moveBodyTo(const QPoint& place) {
        controller.views().window.setFrame(placeOfRecord({place, window.bodyRect().size()}));
    }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
    CalculatorWindow window{controller};
};

TEST_F(DrawerMotion, LeavesNothingOutAfterTwoTogglesAtOnce) {
    controller.drawers().toggleDrawer(DrawerName::memory);
    controller.drawers().toggleDrawer(DrawerName::memory);
    settle();
    EXPECT_EQ(drawer(DrawerName::memory).state(), NSDrawerClosedState);
    EXPECT_EQ(shown(), QRect());
}

TEST_F(DrawerMotion, KeepsAShrinkingDrawerAtTheBody) {
    NSDrawer& constants = drawer(DrawerName::constants);
    controller.drawers().toggleDrawer(DrawerName::constants);
    settle();
    constants.setContentSize({91, constants.maxContentSize().height});
    watch([&] { EXPECT_EQ(shown().right() + 1, window.bodyRect().left()); });
    EXPECT_EQ(shown().width(), 99);
}

TEST_F(DrawerMotion, KeepsTheHeightOfASideDrawerWhileTheBodyChangesItsOwn) {
    controller.drawers().toggleDrawer(DrawerName::memory);
    settle();
    const int height = shown().height();
    const auto expectHeight = [&] { EXPECT_EQ(shown().height(), height); };
    controller.geometry().takeShowYZTRegistersFrom();
    watch(expectHeight);
    controller.geometry().takeShowYZTRegistersFrom();
    watch(expectHeight);
    // A second drawer still closes when the key pad is asked to go, and keeps it waiting.
    controller.drawers().toggleDrawer(DrawerName::constants);
    settle();
    controller.drawers().toggleDrawer(DrawerName::constants);
    QTest::qWait(60);
    controller.geometry().takeShowKeyPadFrom();
    watch([&] { EXPECT_TRUE(shown().isEmpty() || shown().height() == height); });
    EXPECT_EQ(window.bodyRect().size(), QSize(274, 67));
}

TEST_F(DrawerMotion, MovesAsideForADrawerAndBackUnlessMovedMeanwhile) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint home(screen.right() - 350, 300);
    moveBodyTo(home);
    controller.drawers().toggleDrawer(DrawerName::memory);
    settle();
    EXPECT_EQ(shown().translated(window.geometry().topLeft()).right(), screen.right());
    controller.drawers().toggleDrawer(DrawerName::memory);
    settle();
    EXPECT_EQ(bodyOnScreen(), home);

    controller.drawers().toggleDrawer(DrawerName::memory);
    settle();
    const QPoint chosen = bodyOnScreen() + QPoint(0, 10);
    moveBodyTo(chosen);
    controller.drawers().toggleDrawer(DrawerName::memory);
    settle();
    EXPECT_EQ(bodyOnScreen(), chosen);
}

TEST_F(DrawerMotion, OpensADrawerOnTheScreenThatComesBackWithTheKeyPad) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    controller.drawers().toggleDrawer(DrawerName::memory);
    settle();
    controller.geometry().takeShowKeyPadFrom();
    settle();
    moveBodyTo({screen.right() - 280, 100});
    controller.geometry().takeShowKeyPadFrom();
    settle();
    EXPECT_EQ(drawer(DrawerName::memory).state(), NSDrawerOpenState);
    EXPECT_EQ(shown().translated(window.geometry().topLeft()).right(), screen.right());
}

}  // namespace
}  // namespace talvex
