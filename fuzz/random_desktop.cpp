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

void RandomUser::moveFocus() {
    const auto buttons = buttonsInSight();
    buttons.empty() || oneIn(3) ? session_->window.setFocus() : anyOf(buttons)->setFocus();
}

void RandomUser::changeActivation() {
    HelpWidget* const help = session_->help.widget();
    QApplication::setActiveWindow(oneIn(3) ? nullptr
                                  : help != nullptr && oneIn(3)
                                      ? help
                                      : static_cast<QWidget*>(&session_->window));
}

void RandomUser::changePalette() {
    const bool isDark = oneIn(2);
    QApplication::setPalette(QPalette(isDark ? QColor(0x2A, 0x2C, 0x30) : QColor(Qt::white)));
}

// A tiling window manager doesn't ask what sizes a window can have.
void RandomUser::placeByDesktop() {
    constexpr int kLargest = 3000;
    QWindow& window = targetWindow();
    const QPoint place(below(2 * kLargest) - kLargest, below(2 * kLargest) - kLargest);
    const int largest = oneIn(3) ? 30 : kLargest;
    switch (below(3)) {
        case 0:
            window.setPosition(place / 4);
            break;
        case 1:
            window.setGeometry({place / 4, QSize(1 + below(largest), 1 + below(largest))});
            break;
        default:
            window.setGeometry({window.position(), session_->window.minimumSize()});
    }
}

void RandomUser::changeScreen() {
    QScreen* const screen = QGuiApplication::primaryScreen();
    emit screen->availableGeometryChanged(screen->availableGeometry());
}

void RandomUser::fillClipboard() {
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (oneIn(8)) {
        auto* const data = new QMimeData;
        data->setData(oneIn(2) ? "text/html" : "image/png", anyText().toUtf8());
        clipboard.setMimeData(data);
    } else {
        clipboard.setText(anyText());
    }
    if (oneIn(2)) {
        session_->controller.clipboard().paste();
    }
}

void RandomUser::pasteAndCopy() {
    QTest::keyClick(session_->window.windowHandle(), Qt::Key_Insert,
                    oneIn(2) ? Qt::ShiftModifier : Qt::ControlModifier);
}

void RandomUser::toggleDrawer() {
    const auto names = kDrawerNames;
    const DrawerName name = anyOf(names);
    for (int count = 1 + below(3); count > 0; --count) {
        session_->controller.drawers().toggleDrawer(name);
    }
}

void RandomUser::changeLayout() {
    constexpr std::array kSwitches{&WindowGeometry::takeShowYZTRegistersFrom,
                                   &WindowGeometry::takeShowStatusLineFrom,
                                   &WindowGeometry::takeShowKeyPadFrom};
    for (int count = 1 + below(2); count > 0; --count) {
        (session_->controller.geometry().*anyOf(kSwitches))();
    }
}

void RandomUser::useHelp() {
    DYXWindowController& controller = session_->controller;
    if (session_->help.widget() == nullptr || oneIn(4)) {
        controller.help().takeToggleHelpWindowFrom();
        return;
    }
    static const std::array<QUrl, 7> kLinks{
        QUrl("HelpStart.html"),  QUrl("HelpStack.html#stacROLD"), QUrl("HelpNowhere.html"),
        QUrl("#nowhere"),        QUrl("https://example.org/"),    QUrl("mailto:talvex@example.org"),
        QUrl("file:///dev/null")};
    const std::vector<Key> keys = controller.views().allKeys();
    switch (below(4)) {
        case 0:
            controller.help().showHelpFor(anyOf(keys).button->command());
            break;
        case 1:
            controller.views().help.matrix->performClickAt(
                below(controller.views().help.matrix->numberOfRows()), 0);
            break;
        case 2:
            oneIn(2) ? controller.help().takeMakeHelpTextLargerFrom()
                     : controller.help().takeMakeHelpTextSmallerFrom();
            break;
        default:
            emit session_->help.widget()->browser().anchorClicked(anyOf(kLinks));
    }
}

void RandomUser::saveOrRevert() {
    oneIn(2) ? session_->controller.saveDocument() : session_->controller.revertDocumentToSaved();
}

void RandomUser::minimise() {
    session_->window.showMinimized();
    if (oneIn(2)) {
        QApplication::processEvents();
    }
    session_->window.showNormal();
}

// Whatever else can be done to a calculator; the desktop in memory is there for the asking only.
void RandomUser::calculate() {
    std::array<std::uint8_t, 40> bytes{};
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(random_());
    }
    FuzzInput input(bytes);
    HeadlessPlatform nobody;
    while (!input.isAtEnd()) {
        talvex::act(session_->controller, nobody, input);
    }
}

}  // namespace talvex
