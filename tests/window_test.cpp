// The window on a screen that nobody sees: sizes in pixels, the mouse on drawers, the way of the
// keyboard through the controls, and the contrast of all colours.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <set>
#include <vector>

#include "platform/HeadlessPlatform.h"
#include "qt/CalculatorWindow.h"
#include "qt/DrawerWidget.h"
#include "qt/HelpWindow.h"
#include "qt/QtPlatform.h"
#include "qt/conversions.h"
#include "qt/palette.h"
#include "ui/DYXWindowController.h"

namespace talvex {
namespace {

// A file's name is any bytes.
TEST(Home, IsTakenAsItIsToldAndOnlyFromTheRoot) {
    const QByteArray before = qgetenv("HOME");
    for (const char* const home : {"/home/\xE9", "relative", ""}) {
        qputenv("HOME", home);
        EXPECT_EQ(QtPlatform().NSHomeDirectory(), *home == '/' ? home : "");
    }
    qputenv("HOME", before);
}

class Window : public testing::Test {
  protected:
    Window() {
        window.show();
        QApplication::processEvents();
    }
    NSDrawer& drawer(DrawerName name) { return controller.drawers()[name].record; }
    void open(DrawerName name) {
        controller.toggleDrawer(drawer(name));
        ASSERT_TRUE(QTest::qWaitFor([&] { return drawer(name).state() == NSDrawerOpenState; }));
    }
    DrawerWidget* widgetOf(const NSDrawer& record) {
        for (QWidget* const each : window.findChildren<QWidget*>()) {
            auto* const widget = dynamic_cast<DrawerWidget*>(each);
            if (widget != nullptr && &widget->record() == &record) {
                return widget;
            }
        }
        return nullptr;
    }
    QAbstractButton* button(const QString& name) {
        for (auto* const each : window.findChildren<QAbstractButton*>()) {
            if (each->accessibleName() == name && each->isVisible()) {
                return each;
            }
        }
        ADD_FAILURE() << "no button " << name.toStdString();
        return nullptr;
    }

    HeadlessPlatform platform;
    DYXWindowController controller{platform};
    CalculatorWindow window{controller};
};

TEST_F(Window, HasSixLayoutsToThePixel) {
    const NSMenuItem stillItem{.title = {}, .action = {}, .state = 1};
    for (const bool isAnimated : {true, false}) {
        SCOPED_TRACE(isAnimated);
        const auto expectBody = [&](int width, int height) {
            EXPECT_TRUE(QTest::qWaitFor(
                [&] { return window.bodyRect().size() == QSize(width, height + 22); }));
            EXPECT_EQ(window.bodyRect().size(), QSize(width, height + 22));
        };
        const QPoint corner = window.bodyRect().topLeft();
        expectBody(404, 211);
        controller.takeShowStatusLineFrom();
        expectBody(404, 228);
        controller.takeShowYZTRegistersFrom();
        expectBody(404, 288);
        controller.takeShowStatusLineFrom();
        expectBody(404, 271);
        controller.takeShowKeyPadFrom();
        expectBody(274, 105);
        controller.takeShowYZTRegistersFrom();
        expectBody(274, 45);
        controller.takeShowKeyPadFrom();
        expectBody(404, 211);
        EXPECT_EQ(window.bodyRect().topLeft(), corner);
        controller.takeWindowSizingAnimationFrom(stillItem);
    }
}

// A screen coordinate on the outer edge of what shows of the drawer.
QPoint outerEdge(const QRect& shown, NSRectEdge edge) {
    switch (edge) {
        case NSMinXEdge:
            return {shown.left() + 3, shown.center().y()};
        case NSMaxXEdge:
            return {shown.right() - 3, shown.center().y()};
        case NSMinYEdge:
            return {shown.center().x(), shown.bottom() - 3};
        case NSMaxYEdge:
            break;
    }
    return {shown.center().x(), shown.top() + 3};
}

TEST_F(Window, LetsTheMouseDragEveryDrawerToRest) {
    const struct {
        DrawerName name;
        QPoint way;
        NSSize rest;
    } rows[]{{DrawerName::memory, {-150, 0}, {0, 169}},
             {DrawerName::memory, {-60, 0}, {202, 169}},
             {DrawerName::constants, {155, 0}, {182, 169}},
             {DrawerName::functions, {0, -148}, {381, 73}},
             {DrawerName::conversion, {0, 20}, {381, 190}},
             {DrawerName::conversion, {0, 160}, {381, 0}}};
    for (const auto& row : rows) {
        NSDrawer& record = drawer(row.name);
        SCOPED_TRACE(static_cast<int>(row.name));
        record.setContentSize(record.maxContentSize());
        open(row.name);
        DrawerWidget* const widget = widgetOf(record);
        ASSERT_NE(widget, nullptr);
        EXPECT_TRUE(QTest::qWaitFor([&] {
            const QRect shown = widget->visibleRect();
            return (record.isLevel() ? shown.height() : shown.width()) ==
                   std::lround(8.0 + (record.isLevel() ? record.contentSize().height
                                                       : record.contentSize().width));
        }));
        const QPoint grip = outerEdge(widget->visibleRect(), record.edge());
        const auto mouse = [&](QEvent::Type type, const QPoint& place, Qt::MouseButtons buttons) {
            QMouseEvent event(type, widget->mapFrom(&window, place), window.mapToGlobal(place),
                              Qt::LeftButton, buttons, {});
            QApplication::sendEvent(widget, &event);
        };
        platform.mouseButtons = 1;
        mouse(QEvent::MouseButtonPress, grip, Qt::LeftButton);
        mouse(QEvent::MouseMove, grip + row.way / 2, Qt::LeftButton);
        mouse(QEvent::MouseMove, grip + row.way, Qt::LeftButton);
        platform.mouseButtons = 0;
        mouse(QEvent::MouseButtonRelease, grip + row.way, Qt::NoButton);
        EXPECT_EQ(record.contentSize().width, row.rest.width);
        EXPECT_EQ(record.contentSize().height, row.rest.height);
        controller.toggleDrawer(record);
        EXPECT_TRUE(QTest::qWaitFor([&] { return record.state() == NSDrawerClosedState; }));
        EXPECT_TRUE(widget->visibleRect().isEmpty());
    }
}

TEST_F(Window, HidesTheKeyPadWhenTheLastDrawerHasClosed) {
    open(DrawerName::memory);
    open(DrawerName::conversion);
    controller.takeShowKeyPadFrom();
    EXPECT_EQ(window.bodyRect().width(), 404);
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.bodyRect().width() == 274; }));
    EXPECT_EQ(window.visibleRegion().boundingRect(), window.bodyRect());
    controller.takeShowKeyPadFrom();
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return drawer(DrawerName::memory).state() == NSDrawerOpenState; }));
    EXPECT_EQ(drawer(DrawerName::constants).state(), NSDrawerClosedState);
}

TEST_F(Window, CanBeWalkedThroughByTheKeyboardAlone) {
    open(DrawerName::memory);
    std::set<QString> reached;
    std::vector<QWidget*> ways;
    QTest::keyClick(&window, Qt::Key_F6);
    for (; window.focusWidget() != &window; QTest::keyClick(&window, Qt::Key_F6)) {
        QWidget* const first = window.focusWidget();
        ways.assign(1, first);
        while (!ways.empty()) {
            QWidget* const from = ways.back();
            ways.pop_back();
            reached.insert(from->accessibleName());
            for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
                from->setFocus();
                QTest::keyClick(&window, arrow);
                if (reached.count(window.focusWidget()->accessibleName()) == 0) {
                    ways.push_back(window.focusWidget());
                }
            }
        }
        first->setFocus();
    }
    for (const auto* const each : window.findChildren<QAbstractButton*>()) {
        if (each->isVisible()) {
            EXPECT_EQ(reached.count(each->accessibleName()), 1U)
                << each->accessibleName().toStdString();
        }
    }
    EXPECT_EQ(controller.stack().x(), 0.0);

    QTest::keyClick(&window, Qt::Key_F6);  // to the first key of the first area
    ASSERT_NE(window.focusWidget(), &window);
    button("8")->setFocus();
    QTest::keyClick(&window, Qt::Key_Space);
    QTest::keyClick(&window, '5');  // digits go to the calculator from anywhere
    EXPECT_EQ(controller.xDisplay().text(), "85");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(window.focusWidget(), &window);
}

TEST_F(Window, LeavesNoKeyWithTheKeyboardThatIsOutOfSight) {
    QTest::keyClick(&window, '5');
    button("sine")->setFocus();
    controller.takeShowKeyPadFrom();
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(controller.stack().x(), 5.0);
    EXPECT_EQ(window.focusWidget(), &window);
}

TEST_F(Window, EndsUpAsItsRecordAfterTwoSwitchesAtOnce) {
    controller.takeShowYZTRegistersFrom();
    controller.takeShowYZTRegistersFrom();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.bodyRect().height() == 233; }));
    QTest::qWait(250);
    EXPECT_EQ(window.bodyRect().height(), 233);
}

TEST_F(Window, LightsTheTabThatIsSelected) {
    open(DrawerName::conversion);
    DYXTabView& tabs = *controller.views().conversionPanel.tabView;
    QTest::mouseClick(button("Mass"), Qt::LeftButton);
    QTest::mouseClick(button("Mass"), Qt::LeftButton);
    EXPECT_TRUE(button("Mass")->isChecked());
    tabs.selectTabViewItemAtIndex(2);
    EXPECT_TRUE(button("Area")->isChecked());
    EXPECT_FALSE(button("Mass")->isChecked());
}

TEST_F(Window, HasANameForEveryButton) {
    for (const DrawerName name : kDrawerNames) {
        open(name);
    }
    for (const auto* const each : window.findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(each->isEnabled() && each->accessibleName().isEmpty());
        EXPECT_EQ(each->focusPolicy(), Qt::NoFocus);  // a click leaves the keyboard alone
    }
}

TEST(HelpWindow, IsMadeWhenItIsFirstShownAndFollowsLinks) {
    HeadlessPlatform platform;
    platform.resources = TALVEX_RESOURCES;
    DYXWindowController controller(platform);
    controller.takeToggleHelpWindowFrom();  // it is open at the first start
    HelpPresenter presenter(controller);
    EXPECT_EQ(presenter.widget(), nullptr);
    controller.takeToggleHelpWindowFrom();
    ASSERT_NE(presenter.widget(), nullptr);
    HelpBrowser& browser = presenter.widget()->browser();
    EXPECT_TRUE(presenter.widget()->isVisible());
    EXPECT_EQ(browser.source().fileName(), "HelpStart.html");
    EXPECT_EQ(browser.documentTitle(), "Calculating in five minutes");

    emit browser.anchorClicked(QUrl("HelpStack.html#stacROLD"));
    EXPECT_EQ(browser.source().fileName(), "HelpStack.html");
    EXPECT_EQ(controller.views().help.matrix->selectedRow(), 1);
    emit browser.anchorClicked(QUrl("https://example.org/"));
    EXPECT_EQ(browser.source().fileName(), "HelpStack.html");
    EXPECT_EQ(platform.openedURLs, (std::vector<std::u16string>{u"https://example.org/"}));

    const int size = browser.font().pixelSize();
    controller.takeMakeHelpTextLargerFrom();
    EXPECT_GT(browser.font().pixelSize(), size);
    controller.takeMakeHelpTextNormalFrom();
    EXPECT_EQ(browser.font().pixelSize(), size);
    presenter.widget()->close();
    EXPECT_FALSE(controller.views().help.window.isVisible());
}

// The ratio of two colours' luminances as the accessibility guidelines have it.
double contrast(const QColor& one, const QColor& other) {
    const auto luminance = [](const QColor& color) {
        const auto linear = [](float part) {
            return part <= 0.04045F ? part / 12.92F : std::pow((part + 0.055F) / 1.055F, 2.4F);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF()) + 0.05;
    };
    const double a = luminance(one);
    const double b = luminance(other);
    return std::max(a, b) / std::min(a, b);
}

TEST(Colors, StandOutFromTheirGround) {
    HeadlessPlatform platform;
    DYXWindowController controller(platform);
    const QColor display = toQColor(controller.views().displayView->color());
    EXPECT_GE(contrast(toQColor(NSColor::black()), display), 4.5);
    EXPECT_GE(contrast(toQColor(DYXOutputDisplay::errorColor()), display), 4.5);
    for (const bool dark : {false, true}) {
        QPalette palette;
        palette.setColor(QPalette::Window, dark ? Qt::black : Qt::white);
        const WindowColors& colors = windowColors(palette);
        for (const KeyColors& key : {colors.number, colors.function, colors.operation, colors.shift,
                                     colors.flat, colors.lit}) {
            EXPECT_GE(contrast(key.text, key.face), 4.5);
            EXPECT_GE(contrast(key.text, hoverFace(key.face)), 4.5);
            EXPECT_GE(contrast(key.text, pressedFace(key.face)), 4.5);
        }
        EXPECT_GE(contrast(colors.title, colors.window), 4.5);
        EXPECT_GE(contrast(colors.title, colors.drawer), 4.5);
        EXPECT_GE(contrast(colors.focusRing, colors.window), 3.0);
    }
}

}  // namespace
}  // namespace talvex

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
