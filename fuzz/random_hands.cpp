// What the user's hands do: the keyboard, the mouse, menus.

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <array>
#include <utility>

#include "RandomUser.h"

namespace talvex {
namespace {

constexpr std::array kNamedKeys{
    Qt::Key_Escape,     Qt::Key_Tab,      Qt::Key_Backtab,   Qt::Key_Backspace, Qt::Key_Return,
    Qt::Key_Enter,      Qt::Key_Insert,   Qt::Key_Delete,    Qt::Key_Home,      Qt::Key_End,
    Qt::Key_Left,       Qt::Key_Up,       Qt::Key_Right,     Qt::Key_Down,      Qt::Key_PageUp,
    Qt::Key_PageDown,   Qt::Key_Shift,    Qt::Key_Control,   Qt::Key_Meta,      Qt::Key_Alt,
    Qt::Key_AltGr,      Qt::Key_CapsLock, Qt::Key_NumLock,   Qt::Key_F1,        Qt::Key_F6,
    Qt::Key_F6,         Qt::Key_F10,      Qt::Key_F10,       Qt::Key_Menu,      Qt::Key_Super_L,
    Qt::Key_Dead_Acute, Qt::Key_Clear,    Qt::Key_Multi_key, Qt::Key_unknown};

constexpr std::array kModifierKeys{
    std::pair{Qt::Key_Shift, Qt::ShiftModifier}, std::pair{Qt::Key_Control, Qt::ControlModifier},
    std::pair{Qt::Key_Alt, Qt::AltModifier}, std::pair{Qt::Key_Meta, Qt::MetaModifier}};

int anyKey(RandomUser& user) {
    return user.oneIn(2) ? QChar(0x20 + user.below(0x5F)).toUpper().unicode()
                         : int{user.anyOf(kNamedKeys)};
}

void typeKey(RandomUser& user) {
    const int key = anyKey(user);
    user.sendKey(QEvent::KeyPress, key);
    user.sendKey(QEvent::KeyRelease, key);
}

void pressKey(RandomUser& user) {
    user.heldKeys.push_back(user.oneIn(2) ? user.anyOf(kModifierKeys).first : anyKey(user));
    user.sendKey(QEvent::KeyPress, user.heldKeys.back());
}

void releaseKey(RandomUser& user) {
    int key = anyKey(user);
    if (!user.heldKeys.empty()) {
        std::swap(user.anyOf(user.heldKeys), user.heldKeys.back());
        key = user.heldKeys.back();
        user.heldKeys.pop_back();
    }
    user.sendKey(QEvent::KeyRelease, key);
}

void repeatKey(RandomUser& user) {
    const int key = user.heldKeys.empty() ? anyKey(user) : user.heldKeys.back();
    for (int count = user.below(10); count > 0; --count) {
        user.sendKey(QEvent::KeyRelease, key, true);
        user.sendKey(QEvent::KeyPress, key, true);
    }
}

// As other keyboard layouts send them, with key codes and symbols of their own.
void typeForeignKey(RandomUser& user) {
    const auto anyCode = [&](int bound) { return static_cast<quint32>(user.below(bound)); };
    const quint32 symbol = anyCode(0x10000) | (user.oneIn(2) ? 0xFE00U : 0U);
    QWidget* const focused = QApplication::focusWidget();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, anyKey(user), user.heldModifiers(), anyCode(256), symbol,
                        anyCode(256), user.anyText().left(4), user.oneIn(9));
        QApplication::sendEvent(focused != nullptr ? focused : &user.session->window, &event);
    }
}

void click(RandomUser& user) {
    QWindow& window = user.targetWindow();
    const QPoint place = user.anyPlaceIn(window);
    const auto button = user.oneIn(8) ? Qt::MiddleButton : Qt::LeftButton;
    QTest::mouseMove(&window, place);
    user.oneIn(6) ? QTest::mouseDClick(&window, button, user.heldModifiers(), place)
                  : QTest::mouseClick(&window, button, user.heldModifiers(), place);
}

// From a grip, or from anywhere, and mostly to an end.
void drag(RandomUser& user) {
    QWindow& window = *user.session->window.windowHandle();
    QPoint place = user.oneIn(3) ? user.anyPlaceIn(window) : user.anyGrip();
    QTest::mousePress(&window, Qt::LeftButton, user.heldModifiers(), place);
    const QPoint way(user.below(80) - 40, user.below(80) - 40);
    for (int steps = user.below(8); steps > 0; --steps) {
        QTest::mouseMove(&window, place += way);
    }
    user.isMouseHeld = user.oneIn(4);
    if (!user.isMouseHeld) {
        QTest::mouseRelease(&window, Qt::LeftButton, user.heldModifiers(), place);
    }
}

void moveMouse(RandomUser& user) {
    QWindow& window = user.targetWindow();
    QTest::mouseMove(&window, user.anyPlaceIn(window));
}

void releaseMouse(RandomUser& user) {
    QWindow& window = user.targetWindow();
    QTest::mouseRelease(&window, Qt::LeftButton, user.heldModifiers(), user.anyPlaceIn(window));
    user.isMouseHeld = false;
}

void openMenu(RandomUser& user) {
    QWindow& window = user.targetWindow();
    // The menu of a scroll bar has a loop of its own, in which nobody else would do anything.
    QTimer leave;
    QObject::connect(&leave, &QTimer::timeout, [] {
        if (QWidget* const popup = QApplication::activePopupWidget()) {
            popup->close();
        }
    });
    leave.start(20);
    QTest::mouseClick(&window, Qt::RightButton, {}, user.anyPlaceIn(window));
}

// Down through the menus to an item that does something.
void chooseFromMenu(RandomUser& user) {
    if (QApplication::activePopupWidget() == nullptr) {
        openMenu(user);
    }
    constexpr int kDeepest = 4;
    for (int depth = 0; depth < kDeepest; ++depth) {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr || menu->actions().isEmpty() || user.oneIn(8)) {
            return;
        }
        const QList<QAction*> items = menu->actions();
        const QPoint place = menu->actionGeometry(user.anyOf(items)).center();
        QTest::mouseMove(menu->windowHandle(), place);
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, place);
    }
}

void turnWheel(RandomUser& user) {
    QWindow& window = user.targetWindow();
    const QPoint place = user.anyPlaceIn(window);
    QWheelEvent event(place, window.mapToGlobal(place), {}, QPoint(0, user.below(960) - 480),
                      Qt::NoButton, user.heldModifiers(), Qt::NoScrollPhase, false);
    QApplication::sendEvent(&window, &event);
}

constexpr Action kActions[]{{"type a key", 25, typeKey},
                            {"press a key", 12, pressKey},
                            {"release a key", 12, releaseKey},
                            {"repeat a key", 3, repeatKey},
                            {"foreign key", 6, typeForeignKey},
                            {"click", 25, click},
                            {"drag", 12, drag},
                            {"move the mouse", 8, moveMouse},
                            {"release the mouse", 6, releaseMouse},
                            {"open a menu", 8, openMenu},
                            {"choose", 16, chooseFromMenu},
                            {"wheel", 3, turnWheel}};

}  // namespace

std::span<const Action> handActions() { return kActions; }

Qt::KeyboardModifiers RandomUser::heldModifiers() const {
    Qt::KeyboardModifiers modifiers;
    for (const auto& [key, modifier] : kModifierKeys) {
        modifiers.setFlag(modifier, std::count(heldKeys.begin(), heldKeys.end(), key) > 0);
    }
    return modifiers;
}

// What comes with an event isn't always what is held.
void RandomUser::sendKey(QEvent::Type type, int key, bool isRepeated) {
    const auto modifiers = oneIn(12) ? Qt::KeyboardModifiers(below(0x10) << 25) : heldModifiers();
    const QString text = key < 0x80 ? QString(QChar(key).toLower()) : QString();
    QTest::simulateEvent(&targetWindow(), type == QEvent::KeyPress, key, modifiers, text,
                         isRepeated);
}

}  // namespace talvex
