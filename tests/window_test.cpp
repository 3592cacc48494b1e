// The window on a screen that nobody sees: sizes in pixels, the mouse on drawers, the way of the
// keyboard through the controls, and the contrast of all colours.

#include <QAbstractButton>
#include <QApplication>
#include <QPainter>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <utility>
#include <vector>

#include "qt/CalculatorWindow.h"
#include "qt/DrawerWidget.h"
#include "qt/HelpWindow.h"
#include "qt/KeyButton.h"
#include "qt/QtPlatform.h"
#include "qt/SizeGrip.h"
#include "qt/conversions.h"
#include "qt/palette.h"
#include "window_fixture.h"

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

class Window : public WindowTest {
  protected:
    Window() {
        window.show();
        QApplication::processEvents();
    }
    void open(DrawerName name) {
        drawers.toggleDrawer(name);
        ASSERT_TRUE(QTest::qWaitFor([&] { return drawer(name).state() == NSDrawerOpenState; }));
    }
    template <class Widget, class Is>
    Widget* find(Is is) {
        for (auto* const each : window.findChildren<QWidget*>()) {
            auto* const widget = dynamic_cast<Widget*>(each);
            if (widget != nullptr && is(*widget)) {
                return widget;
            }
        }
        ADD_FAILURE() << "no such widget";
        return nullptr;
    }
    QAbstractButton* button(const QString& name) {
        return find<QAbstractButton>([&](const QAbstractButton& each) {
            return each.accessibleName() == name && each.isVisible();
        });
    }
    void drag(QWidget& widget, const QPoint& grip, const QPoint& way) {
        const QPoint corner = window.mapToGlobal(QPoint());  // before it moves
        const auto mouse = [&](QEvent::Type type, const QPoint& place, Qt::MouseButtons buttons) {
            platform.mouseButtons = buttons;
            QMouseEvent event(type, widget.mapFromGlobal(corner + place), corner + place,
                              Qt::LeftButton, buttons, {});
            QApplication::sendEvent(&widget, &event);
        };
        mouse(QEvent::MouseButtonPress, grip, Qt::LeftButton);
        mouse(QEvent::MouseMove, grip + way / 2, Qt::LeftButton);
        mouse(QEvent::MouseMove, grip + way, Qt::LeftButton);
        mouse(QEvent::MouseButtonRelease, grip + way, Qt::NoButton);
    }

    Scale scale;
    CalculatorWindow window{controller, scale};
};

TEST_F(Window, GrowsAsAWholeAndIsLargeEnoughForAFinger) {
    for (const DrawerName name : kDrawerNames) {
        open(name);
    }
    views.window.setFrameTopLeftPoint({20.0, 780.0});  // of a screen of 800 by 800
    choose<&Settings::windowSize>(150);
    for (const auto* const button : window.findChildren<QAbstractButton*>()) {
        EXPECT_GE(button->height(), 24) << button->accessibleName().toStdString();
        EXPECT_GE(button->width(), 24) << button->accessibleName().toStdString();
    }
    const NSRect frame = padKey(u"modiHYP ").frame();
    const auto* const key = find<KeyButton>(
        [&](const KeyButton& each) { return &each.record() == &padKey(u"modiHYP "); });
    EXPECT_EQ(key->size(), scale.pixels(NSSize{frame.width, frame.height}));
    const QRect body = window.bodyRect();
    EXPECT_EQ(body.size(), QSize(606, 350));
    auto* const grip = find<SizeGrip>([](const SizeGrip&) { return true; });
    drag(*grip, body.bottomRight() - QPoint(2, 2), {60, 35});
    EXPECT_EQ(controller.settings().windowSize, 165);
    EXPECT_EQ(window.bodyRect().size(), QSize(667, 384));
    choose<&Settings::windowSize>(300);
    EXPECT_EQ(window.bodyRect().width(), 800);
    choose<&Settings::windowSize>(1);
    EXPECT_EQ(window.bodyRect().width(), 303);
}

TEST_F(Window, LetsTheMouseDragEveryDrawerToRest) {
    constexpr std::array<QPoint, 4> kOutward{{{-1, 0}, {0, 1}, {1, 0}, {0, -1}}};  // of the edges
    const struct {
        DrawerName name;
        int dragged;
        double rest;
    } rows[]{{DrawerName::memory, 52, 0},
             {DrawerName::constants, 200, 182},
             {DrawerName::functions, 60, 73},
             {DrawerName::conversion, 30, 0}};
    for (const auto& row : rows) {
        NSDrawer& record = drawer(row.name);
        SCOPED_TRACE(static_cast<int>(row.name));
        open(row.name);
        auto* const widget =
            find<DrawerWidget>([&](const DrawerWidget& each) { return &each.record() == &record; });
        const auto depth = [&record](const auto& size) {
            return record.isLevel() ? size.height : size.width;
        };
        const double full = depth(record.contentSize());
        const QRect shown = widget->visibleRect();
        EXPECT_EQ(record.isLevel() ? shown.height() : shown.width(), std::lround(8.0 + full));
        const QPoint outward = kOutward.at(static_cast<std::size_t>(record.edge()));
        const QPoint grip = shown.center() + QPoint(outward.x() * (shown.width() / 2 - 3),
                                                    outward.y() * (shown.height() / 2 - 3));
        const QPoint way = outward * (row.dragged - static_cast<int>(full));
        drag(*widget, grip, way);
        EXPECT_EQ(depth(record.contentSize()), row.rest);
        drawers.toggleDrawer(row.name);
        EXPECT_TRUE(QTest::qWaitFor([&] { return record.state() == NSDrawerClosedState; }));
        EXPECT_TRUE(widget->visibleRect().isEmpty());
    }
}

TEST_F(Window, CanBeWalkedThroughByTheKeyboardAlone) {
    for (const DrawerName name : kDrawerNames) {
        open(name);
    }
    std::set<QString> reached;
    QTest::keyClick(&window, Qt::Key_F6);
    for (; window.focusWidget() != &window; QTest::keyClick(&window, Qt::Key_F6)) {
        QWidget* const first = window.focusWidget();
        for (std::vector<QWidget*> ways{first}; !ways.empty();) {
            QWidget* const from = ways.back();
            ways.pop_back();
            reached.insert(from->accessibleName());
            for (const Qt::Key arrow : {Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
                from->setFocus();
                QTest::keyClick(&window, arrow);
                if (!reached.contains(window.focusWidget()->accessibleName())) {
                    ways.push_back(window.focusWidget());
                }
            }
        }
        first->setFocus();
    }
    for (const auto* const each : window.findChildren<QAbstractButton*>()) {
        EXPECT_FALSE(each->isEnabled() && each->accessibleName().isEmpty());
        EXPECT_EQ(each->focusPolicy(), Qt::NoFocus);  // a click leaves the keyboard alone
        EXPECT_TRUE(!each->isVisible() || !each->isEnabled() ||
                    reached.contains(each->accessibleName()))
            << each->accessibleName().toStdString();
    }
    EXPECT_EQ(calculator.stack().x(), 0.0);

    button("8")->setFocus();
    QTest::keyClick(&window, Qt::Key_Space);
    QTest::keyClick(&window, '5');  // digits go to the calculator from anywhere
    EXPECT_EQ(calculator.xDisplay().entry().text, "85");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_EQ(window.focusWidget(), &window);
}

TEST_F(Window, LeavesNoKeyWithTheKeyboardThatIsOutOfSight) {
    QTest::keyClick(&window, '5');
    button("sine")->setFocus();
    geometry.takeShowKeyPadFrom();
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(calculator.stack().x(), 5.0);
    EXPECT_EQ(window.focusWidget(), &window);
}

TEST_F(Window, LightsTheTabThatIsSelected) {
    open(DrawerName::conversion);
    DYXTabView& tabs = *views.conversionPanel.tabView;
    QTest::mouseClick(button("Mass"), Qt::LeftButton);
    QTest::mouseClick(button("Mass"), Qt::LeftButton);
    EXPECT_TRUE(button("Mass")->isChecked());
    tabs.selectTabViewItemAtIndex(2);
    EXPECT_TRUE(button("Area")->isChecked());
    EXPECT_FALSE(button("Mass")->isChecked());
}

TEST_F(WindowTest, MakesTheHelpWhenItIsFirstShownAndFollowsLinks) {
    platform.resources = TALVEX_RESOURCES;
    HelpController& help = controller.help();
    help.takeToggleHelpWindowFrom();  // it is open at the first start
    Scale scale;
    HelpPresenter presenter(controller, scale);
    EXPECT_EQ(presenter.widget(), nullptr);
    help.takeToggleHelpWindowFrom();
    ASSERT_NE(presenter.widget(), nullptr);
    HelpBrowser& browser = presenter.widget()->browser();
    EXPECT_TRUE(presenter.widget()->isVisible());
    EXPECT_EQ(browser.documentTitle(), "Calculating in five minutes");

    emit browser.anchorClicked(QUrl("HelpStack.html#stacROLD"));
    EXPECT_EQ(views.help.matrix->selectedRow(), 1);
    emit browser.anchorClicked(QUrl("https://example.org/"));
    EXPECT_EQ(browser.source().fileName(), "HelpStack.html");
    EXPECT_EQ(platform.openedURLs, (std::vector<std::u16string>{u"https://example.org/"}));

    const int size = browser.font().pixelSize();
    help.takeMakeHelpTextLargerFrom();
    EXPECT_GT(browser.font().pixelSize(), size);
    help.takeMakeHelpTextNormalFrom();
    EXPECT_EQ(browser.font().pixelSize(), size);
    presenter.widget()->close();
    EXPECT_FALSE(views.help.window.isVisible());
}

// The luminance of a colour as the accessibility guidelines have it.
double luminance(const QColor& color) {
    const auto linear = [](float part) {
        return part <= 0.04045F ? part / 12.92F : std::pow((part + 0.055F) / 1.055F, 2.4F);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF()) + 0.05;
}

void expectContrast(const QColor& one, const QColor& other, double least = 4.5) {
    const auto [dark, bright] = std::minmax({luminance(one), luminance(other)});
    EXPECT_GE(bright / dark, least) << one.name().toStdString() << other.name().toStdString();
}

TEST_F(WindowTest, HasColorsThatStandOutFromTheirGround) {
    for (const QColor ground : {Qt::black, Qt::white}) {
        const WindowColors& colors = windowColors(QPalette(ground));
        QImage display(1, 1, QImage::Format_RGB32);
        display.fill(toQColor(views.displayView->color()));
        QPainter(&display).fillRect(display.rect(), colors.displayShade);
        for (const NSColor& text : {NSColor::black(), DYXOutputDisplay::errorColor()}) {
            expectContrast(toQColor(text), display.pixelColor(0, 0));
        }
        for (const KeyColors& key : {colors.number, colors.function, colors.operation, colors.shift,
                                     colors.flat, colors.lit}) {
            for (const QColor& face : {key.face, hoverFace(key.face), pressedFace(key.face)}) {
                expectContrast(key.text, face);
            }
        }
        expectContrast(colors.title, colors.window);
        expectContrast(colors.title, colors.drawer);
        expectContrast(colors.focusRing, colors.window, 3.0);
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
