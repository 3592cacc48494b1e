// What the desktop does to the window, and what goes further than one key or click.

#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QScreen>
#include <QTest>
#include <QWindow>
#include <array>

#include "RandomUser.h"
#include "calculator_actions.h"

namespace talvex {
namespace {

void moveFocus(RandomUser& user) {
    const auto buttons = user.buttonsInSight();
    buttons.empty() || user.oneIn(3) ? user.session->window.setFocus()
                                     : user.anyOf(buttons)->setFocus();
}

void changeActivation(RandomUser& user) {
    const std::array<QWidget*, 4> windows{nullptr, user.session->help.widget(),
                                          &user.session->window, &user.session->window};
    QApplication::setActiveWindow(user.anyOf(windows));
}

void changePalette(RandomUser& user) {
    QApplication::setPalette(QPalette(user.oneIn(2) ? QColor(0x2A2C30) : QColor(Qt::white)));
}

// A tiling window manager doesn't ask what sizes a window can have.
void placeByDesktop(RandomUser& user) {
    QWindow& window = user.targetWindow();
    const int largest = user.oneIn(3) ? 30 : 3000;
    const QPoint place(user.below(1500) - 750, user.below(1500) - 750);
    const QSize size(1 + user.below(largest), 1 + user.below(largest));
    const std::array<QRect, 3> frames{QRect(place, window.size()), QRect(place, size),
                                      QRect(window.position(), window.minimumSize())};
    window.setGeometry(user.anyOf(frames));
}

void changeScreen(RandomUser& /*user*/) {
    QScreen* const screen = QGuiApplication::primaryScreen();
    emit screen->availableGeometryChanged(screen->availableGeometry());
}

void fillClipboard(RandomUser& user) {
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (user.oneIn(8)) {
        auto* const data = new QMimeData;
        data->setData(user.oneIn(2) ? "text/html" : "image/png", user.anyText().toUtf8());
        clipboard.setMimeData(data);
    } else {
        clipboard.setText(user.anyText());
    }
    if (user.oneIn(2)) {
        user.session->controller.clipboard().paste();
    }
}

void pasteAndCopy(RandomUser& user) {
    QTest::keyClick(user.session->window.windowHandle(), Qt::Key_Insert,
                    user.oneIn(2) ? Qt::ShiftModifier : Qt::ControlModifier);
}

void toggleDrawer(RandomUser& user) {
    const DrawerName name = user.anyOf(kDrawerNames);
    for (int count = 1 + user.below(3); count > 0; --count) {
        user.session->controller.drawers().toggleDrawer(name);
    }
}

void changeLayout(RandomUser& user) {
    constexpr std::array kSwitches{&WindowGeometry::takeShowYZTRegistersFrom,
                                   &WindowGeometry::takeShowStatusLineFrom,
                                   &WindowGeometry::takeShowKeyPadFrom};
    for (int count = 1 + user.below(2); count > 0; --count) {
        (user.session->controller.geometry().*user.anyOf(kSwitches))();
    }
}

void useHelp(RandomUser& user) {
    HelpController& help = user.session->controller.help();
    const WindowViews& views = user.session->controller.views();
    static const std::array<QUrl, 7> kLinks{
        QUrl("HelpStart.html"),  QUrl("HelpStack.html#stacROLD"), QUrl("HelpNowhere.html"),
        QUrl("#nowhere"),        QUrl("https://example.org/"),    QUrl("mailto:talvex@example.org"),
        QUrl("file:///dev/null")};
    if (user.session->help.widget() == nullptr || user.oneIn(4)) {
        help.takeToggleHelpWindowFrom();
    } else if (user.oneIn(4)) {
        const std::vector<Key> keys = views.allKeys();
        help.showHelpFor(user.anyOf(keys).button->command());
    } else if (user.oneIn(3)) {
        views.help.matrix->performClickAt(user.below(views.help.matrix->numberOfRows()), 0);
    } else if (user.oneIn(2)) {
        user.oneIn(2) ? help.takeMakeHelpTextLargerFrom() : help.takeMakeHelpTextSmallerFrom();
    } else {
        emit user.session->help.widget()->browser().anchorClicked(user.anyOf(kLinks));
    }
}

void saveOrRevert(RandomUser& user) {
    DYXWindowController& controller = user.session->controller;
    user.oneIn(2) ? controller.saveDocument() : controller.revertDocumentToSaved();
}

void minimise(RandomUser& user) {
    user.session->window.showMinimized();
    if (user.oneIn(2)) {
        QApplication::processEvents();
    }
    user.session->window.showNormal();
}

// Whatever else can be done to a calculator; the desktop in memory is there for the asking only.
void calculate(RandomUser& user) {
    std::array<std::uint8_t, 40> bytes{};
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(user.below(256));
    }
    FuzzInput input(bytes);
    HeadlessPlatform nobody;
    while (!input.isAtEnd()) {
        talvex::act(user.session->controller, nobody, input);
    }
}

constexpr Action kActions[]{{"focus", 4, moveFocus},
                            {"activation", 4, changeActivation},
                            {"palette", 1, changePalette},
                            {"place by the desktop", 3, placeByDesktop},
                            {"screen", 1, changeScreen},
                            {"clipboard", 4, fillClipboard},
                            {"paste and copy", 4, pasteAndCopy},
                            {"drawer", 12, toggleDrawer},
                            {"layout", 8, changeLayout},
                            {"help", 5, useHelp},
                            {"save or revert", 2, saveOrRevert},
                            {"minimise", 1, minimise},
                            {"calculate", 3, calculate}};

}  // namespace

std::span<const Action> desktopActions() { return kActions; }

}  // namespace talvex
