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
    controller.takeToggleMemoryDrawerFrom();
    controller.takeToggleMemoryDrawerFrom();
    settle();
    EXPECT_EQ(drawer(DrawerName::memory).state(), NSDrawerClosedState);
    EXPECT_EQ(shown(), QRect());
}

TEST_F(DrawerMotion, KeepsAShrinkingDrawerAtTheBody) {
    NSDrawer& constants = drawer(DrawerName::constants);
    controller.takeToggleConstantsDrawerFrom();
    settle();
    constants.setContentSize({91, constants.maxContentSize().height});
    watch([&] { EXPECT_EQ(shown().right() + 1, window.bodyRect().left()); });
    EXPECT_EQ(shown().width(), 99);
}

TEST_F(DrawerMotion, KeepsTheHeightOfASideDrawerWhileTheBodyChangesItsOwn) {
    controller.takeToggleMemoryDrawerFrom();
    settle();
    const int height = shown().height();
    const auto expectHeight = [&] { EXPECT_EQ(shown().height(), height); };
    controller.takeShowYZTRegistersFrom();
    watch(expectHeight);
    controller.takeShowYZTRegistersFrom();
    watch(expectHeight);
    // A second drawer still closes when the key pad is asked to go, and keeps it waiting.
    controller.takeToggleConstantsDrawerFrom();
    settle();
    controller.takeToggleConstantsDrawerFrom();
    QTest::qWait(60);
    controller.takeShowKeyPadFrom();
    watch([&] { EXPECT_TRUE(shown().isEmpty() || shown().height() == height); });
    EXPECT_EQ(window.bodyRect().size(), QSize(274, 67));
}

TEST_F(DrawerMotion, MovesAsideForADrawerAndBackUnlessMovedMeanwhile) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint home(screen.right() - 350, 300);
    moveBodyTo(home);
    controller.takeToggleMemoryDrawerFrom();
    settle();
    EXPECT_EQ(shown().translated(window.geometry().topLeft()).right(), screen.right());
    controller.takeToggleMemoryDrawerFrom();
    settle();
    EXPECT_EQ(bodyOnScreen(), home);

    controller.takeToggleMemoryDrawerFrom();
    settle();
    const QPoint chosen = bodyOnScreen() + QPoint(0, 10);
    moveBodyTo(chosen);
    controller.takeToggleMemoryDrawerFrom();
    settle();
    EXPECT_EQ(bodyOnScreen(), chosen);
}

TEST_F(DrawerMotion, OpensADrawerOnTheScreenThatComesBackWithTheKeyPad) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    controller.takeToggleMemoryDrawerFrom();
    settle();
    controller.takeShowKeyPadFrom();
    settle();
    moveBodyTo({screen.right() - 280, 100});
    controller.takeShowKeyPadFrom();
    settle();
    EXPECT_EQ(drawer(DrawerName::memory).state(), NSDrawerOpenState);
    EXPECT_EQ(shown().translated(window.geometry().topLeft()).right(), screen.right());
}

}  // namespace
}  // namespace talvex
