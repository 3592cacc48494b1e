// What the user does next, and where.

#include "RandomUser.h"

#include <QApplication>
#include <QTest>
#include <QWindow>
#include <algorithm>
#include <array>

#include "window_invariants.h"

namespace talvex {
namespace {

const Action kRestart{"restart", 1, [](RandomUser& user) {
                          if (user.oneIn(2)) {
                              user.letGo();
                          }
                          user.restart();
                      }};

}  // namespace

const Action& RandomUser::decide() {
    std::vector<const Action*> all{&kRestart};
    // A closed window is the end of the program.
    if (session && !session->window.isHidden()) {
        for (const auto& actions : {handActions(), desktopActions()}) {
            for (const Action& action : actions) {
                all.insert(all.end(), static_cast<std::size_t>(action.weight), &action);
            }
        }
    }
    return *anyOf(all);
}

int RandomUser::pause() { return oneIn(30) ? below(220) : oneIn(4) ? below(20) : 0; }

void RandomUser::letGo() {
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
        QApplication::processEvents();
    }
    if (isMouseHeld) {
        QTest::mouseRelease(&targetWindow(), Qt::LeftButton, heldModifiers());
        isMouseHeld = false;
    }
    while (!heldKeys.empty()) {
        const int key = heldKeys.back();
        heldKeys.pop_back();
        sendKey(QEvent::KeyRelease, key);
    }
    QApplication::processEvents();
}

void RandomUser::restart() {
    session.reset();
    session = std::make_unique<WindowSession>();
}

QWindow& RandomUser::targetWindow() {
    QWidget* widget = QApplication::activePopupWidget();
    HelpWidget* const help = session->help.widget();
    if (widget == nullptr && help != nullptr && help->isVisible() && oneIn(5)) {
        widget = help;
    }
    return *(widget != nullptr ? widget : &session->window)->windowHandle();
}

// At the edge of a drawer, or in the title bar where none is out.
QPoint RandomUser::anyGrip() {
    std::vector<QPoint> grips;
    for (const DrawerWidget* const drawer : drawersOf(session->window)) {
        const QRect out = drawer->visibleRect();
        if (!out.isEmpty()) {
            const QPoint middle = out.center();
            grips.insert(grips.end(), {{out.left() + 4, middle.y()},
                                       {out.right() - 4, middle.y()},
                                       {middle.x(), out.top() + 4},
                                       {middle.x(), out.bottom() - 4}});
        }
    }
    return grips.empty() ? session->window.bodyRect().topLeft() + QPoint(below(300), below(22))
                         : anyOf(grips);
}

std::vector<QAbstractButton*> RandomUser::buttonsInSight() {
    const auto all = session->window.findChildren<QAbstractButton*>();
    std::vector<QAbstractButton*> buttons;
    std::copy_if(all.begin(), all.end(), std::back_inserter(buttons),
                 [](const QAbstractButton* each) { return each->isVisible(); });
    return buttons;
}

QPoint RandomUser::anyPlaceIn(const QWindow& window) {
    const bool isCalculator = &window == session->window.windowHandle();
    if (isCalculator && oneIn(6)) {
        return anyGrip();
    }
    const auto buttons = buttonsInSight();
    if (isCalculator && !buttons.empty() && !oneIn(4)) {
        const QAbstractButton* const button = anyOf(buttons);
        return button->mapTo(&session->window, button->rect().center());
    }
    constexpr int kOutside = 30;
    return {below(window.width() + 2 * kOutside) - kOutside,
            below(window.height() + 2 * kOutside) - kOutside};
}

QString RandomUser::anyText() {
    static const std::array<QString, 10> kTexts{"12.5", "1,234.5678", "-1e308", "1e999",
                                                "0x1F", "12 °C",      "",       "\n\t 7 \r",
                                                "٣٫٥",  "<b>3</b>"};
    if (!oneIn(3)) {
        return anyOf(kTexts);
    }
    const bool isDigits = oneIn(2);
    QString text(oneIn(4) ? below(100'000) : below(20), QChar());
    for (QChar& character : text) {
        character = isDigits ? QChar('0' + below(10)) : QChar(below(0x10000));
    }
    return text;
}

}  // namespace talvex
