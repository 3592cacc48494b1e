// What the user's hands do: the keyboard, the mouse, menus.

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>
#include <array>

#include "RandomUser.h"

namespace talvex {
namespace {

constexpr std::array<int, 34> kNamedKeys{
    Qt::Key_Escape,     Qt::Key_Tab,      Qt::Key_Backtab,   Qt::Key_Backspace, Qt::Key_Return,
    Qt::Key_Enter,      Qt::Key_Insert,   Qt::Key_Delete,    Qt::Key_Home,      Qt::Key_End,
    Qt::Key_Left,       Qt::Key_Up,       Qt::Key_Right,     Qt::Key_Down,      Qt::Key_PageUp,
    Qt::Key_PageDown,   Qt::Key_Shift,    Qt::Key_Control,   Qt::Key_Meta,      Qt::Key_Alt,
    Qt::Key_AltGr,      Qt::Key_CapsLock, Qt::Key_NumLock,   Qt::Key_F1,        Qt::Key_F6,
    Qt::Key_F6,         Qt::Key_F10,      Qt::Key_F10,       Qt::Key_Menu,      Qt::Key_Super_L,
    Qt::Key_Dead_Acute, Qt::Key_Clear,    Qt::Key_Multi_key, Qt::Key_unknown};

constexpr std::array<std::pair<int, Qt::KeyboardModifier>, 4> kModifierKeys{
    {{Qt::Key_Shift, Qt::ShiftModifier},
     {Qt::Key_Control, Qt::ControlModifier},
     {Qt::Key_Alt, Qt::AltModifier},
     {Qt::Key_Meta, Qt::MetaModifier}}};

Qt::KeyboardModifiers modifiersOf(const std::vector<int>& keys) {
    Qt::KeyboardModifiers modifiers;
    for (const auto& [key, modifier] : kModifierKeys) {
        modifiers.setFlag(modifier, std::count(keys.begin(), keys.end(), key) > 0);
    }
    return modifiers;
}

QString textOf(int key) { return key < 0x80 ? QString(QChar(key).toLower()) : QString(); }

}  // namespace

int RandomUser::anyKey() {
    constexpr int kPrintable = 0x7F - 0x20;
    return oneIn(2) ? QChar(below(kPrintable) + 0x20).toUpper().unicode() : anyOf(kNamedKeys);
}

// What comes with an event isn't always what is held.
void RandomUser::sendKey(QEvent::Type type, int key, bool isRepeated) {
    const auto modifiers =
        oneIn(12) ? Qt::KeyboardModifiers(below(0x10) << 25) : modifiersOf(heldKeys_);
    QTest::simulateEvent(&targetWindow(), type == QEvent::KeyPress, key, modifiers, textOf(key),
                         isRepeated);
}

void RandomUser::typeKey() {
    const int key = anyKey();
    sendKey(QEvent::KeyPress, key);
    sendKey(QEvent::KeyRelease, key);
}

void RandomUser::pressKey() {
    const int key = oneIn(2) ? anyOf(kModifierKeys).first : anyKey();
    heldKeys_.push_back(key);
    sendKey(QEvent::KeyPress, key);
}

void RandomUser::releaseKey() {
    int key = anyKey();
    if (!heldKeys_.empty()) {
        const auto held = heldKeys_.begin() + below(static_cast<int>(heldKeys_.size()));
        key = *held;
        heldKeys_.erase(held);
    }
    sendKey(QEvent::KeyRelease, key);
}

void RandomUser::repeatKey() {
    const int key = heldKeys_.empty() ? anyKey() : heldKeys_.back();
    for (int count = below(10); count > 0; --count) {
        sendKey(QEvent::KeyRelease, key, true);
        sendKey(QEvent::KeyPress, key, true);
    }
}

// As other keyboard layouts send them, with key codes and symbols of their own.
void RandomUser::typeForeignKey() {
    constexpr quint32 kSymbols = 0x10000;
    const auto symbol = static_cast<quint32>(below(kSymbols)) | (oneIn(2) ? 0xFE00U : 0U);
    const auto code = static_cast<quint32>(below(256));
    QWidget* const focused = QApplication::focusWidget();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, anyKey(), modifiersOf(heldKeys_), code, symbol,
                        static_cast<quint32>(below(256)), anyText().left(4), oneIn(9));
        QApplication::sendEvent(focused != nullptr ? focused : &session_->window, &event);
    }
}

void RandomUser::click() {
    QWindow& window = targetWindow();
    const QPoint place = anyPlaceIn(window);
    const auto button = oneIn(8) ? Qt::MiddleButton : Qt::LeftButton;
    QTest::mouseMove(&window, place);
    oneIn(6) ? QTest::mouseDClick(&window, button, modifiersOf(heldKeys_), place)
             : QTest::mouseClick(&window, button, modifiersOf(heldKeys_), place);
}

void RandomUser::pressMouse() {
    QWindow& window = targetWindow();
    QTest::mousePress(&window, Qt::LeftButton, modifiersOf(heldKeys_), anyPlaceIn(window));
    isMouseHeld_ = true;
}

void RandomUser::moveMouse() {
    QWindow& window = targetWindow();
    QTest::mouseMove(&window, anyPlaceIn(window));
}

void RandomUser::releaseMouse() {
    QWindow& window = targetWindow();
    QTest::mouseRelease(&window, Qt::LeftButton, modifiersOf(heldKeys_), anyPlaceIn(window));
    isMouseHeld_ = false;
}

// Of the edge of a drawer, or of the title bar where none is out.
void RandomUser::drag() {
    QWindow& window = *session_->window.windowHandle();
    QPoint place = anyGrip();
    QTest::mousePress(&window, Qt::LeftButton, {}, place);
    isMouseHeld_ = true;
    constexpr int kStep = 40;
    const QPoint way(below(2 * kStep) - kStep, below(2 * kStep) - kStep);
    for (int steps = below(8); steps > 0; --steps) {
        place += way;
        QTest::mouseMove(&window, place);
    }
    if (!oneIn(4)) {
        QTest::mouseRelease(&window, Qt::LeftButton, {}, place);
        isMouseHeld_ = false;
    }
}

void RandomUser::openMenu() {
    QWindow& window = targetWindow();
    QTest::mouseClick(&window, Qt::RightButton, {}, anyPlaceIn(window));
}

// Down through the menus to an item that does something.
void RandomUser::chooseFromMenu() {
    if (QApplication::activePopupWidget() == nullptr) {
        openMenu();
    }
    constexpr int kDeepest = 4;
    for (int depth = 0; depth < kDeepest; ++depth) {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr || menu->actions().isEmpty() || oneIn(8)) {
            return;
        }
        const QList<QAction*> items = menu->actions();
        const QPoint place = menu->actionGeometry(anyOf(items)).center();
        QTest::mouseMove(menu->windowHandle(), place);
        QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, place);
    }
}

void RandomUser::turnWheel() {
    QWindow& window = targetWindow();
    const QPoint place = anyPlaceIn(window);
    QWheelEvent event(place, window.mapToGlobal(place), {}, QPoint(0, below(960) - 480),
                      Qt::NoButton, modifiersOf(heldKeys_), Qt::NoScrollPhase, false);
    QApplication::sendEvent(&window, &event);
}

}  // namespace talvex
