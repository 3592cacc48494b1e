// Drawers and the body on their way, on a screen that nobody sees: what lies where at every step.

#include <QApplication>
#include <QElapsedTimer>
#include <QScreen>
#include <QTest>
#include <functional>

#include "qt/CalculatorWindow.h"
#include "qt/screen_places.h"
#include "window_fixture.h"

namespace talvex {
namespace {

constexpr int kLongerThanAnyMotion = 450;

class DrawerMotion : public WindowTest {
  protected:
    DrawerMotion() {
        window.show();
        QApplication::processEvents();
    }
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
    void toggle(DrawerName name) {
        drawers.toggleDrawer(name);
        settle();
    }
    static QRect screen() { return QGuiApplication::primaryScreen()->availableGeometry(); }
    [[nodiscard]] QPoint bodyOnScreen() const {
        return window.geometry().topLeft() + window.bodyRect().topLeft();
    }
    void moveBodyTo(const QPoint& place) {
        views.window.setFrame(placeOfRecord({place, window.bodyRect().size()}));
    }

    Scale scale;
    CalculatorWindow window{controller, scale};
};

TEST_F(DrawerMotion, LeavesNothingOutAfterTwoTogglesAtOnce) {
    drawers.toggleDrawer(DrawerName::memory);
    toggle(DrawerName::memory);
    EXPECT_EQ(drawer(DrawerName::memory).state(), NSDrawerClosedState);
    EXPECT_EQ(shown(), QRect());
}

TEST_F(DrawerMotion, KeepsAShrinkingDrawerAtTheBody) {
    NSDrawer& constants = drawer(DrawerName::constants);
    toggle(DrawerName::constants);
    constants.setContentSize({91, constants.maxContentSize().height});
    watch([&] { EXPECT_EQ(shown().right() + 1, window.bodyRect().left()); });
    EXPECT_EQ(shown().width(), 99);
}

TEST_F(DrawerMotion, KeepsTheHeightOfASideDrawerWhileTheBodyChangesItsOwn) {
    toggle(DrawerName::memory);
    const int height = shown().height();
    const auto expectHeight = [&] { EXPECT_EQ(shown().height(), height); };
    geometry.takeShowYZTRegistersFrom();
    watch(expectHeight);
    geometry.takeShowYZTRegistersFrom();
    watch(expectHeight);
    // A second drawer still closes when the key pad is asked to go, and keeps it waiting.
    toggle(DrawerName::constants);
    drawers.toggleDrawer(DrawerName::constants);
    QTest::qWait(60);
    geometry.takeShowKeyPadFrom();
    watch([&] { EXPECT_TRUE(shown().isEmpty() || shown().height() == height); });
    EXPECT_EQ(window.bodyRect().size(), QSize(274, 67));
}

TEST_F(DrawerMotion, MovesAsideForADrawerAndBackUnlessMovedMeanwhile) {
    const QPoint home(screen().right() - 350, 300);
    moveBodyTo(home);
    toggle(DrawerName::memory);
    EXPECT_EQ(shown().translated(window.geometry().topLeft()).right(), screen().right());
    toggle(DrawerName::memory);
    EXPECT_EQ(bodyOnScreen(), home);

    toggle(DrawerName::memory);
    const QPoint chosen = bodyOnScreen() + QPoint(0, 10);
    moveBodyTo(chosen);
    toggle(DrawerName::memory);
    EXPECT_EQ(bodyOnScreen(), chosen);
}

TEST_F(DrawerMotion, OpensADrawerOnTheScreenThatComesBackWithTheKeyPad) {
    toggle(DrawerName::memory);
    geometry.takeShowKeyPadFrom();
    settle();
    moveBodyTo({screen().right() - 280, 100});
    geometry.takeShowKeyPadFrom();
    settle();
    EXPECT_EQ(drawer(DrawerName::memory).state(), NSDrawerOpenState);
    EXPECT_EQ(shown().translated(window.geometry().topLeft()).right(), screen().right());
}

}  // namespace
}  // namespace talvex
