// What the user does next, and where.

#include "RandomUser.h"

#include <QApplication>
#include <QWindow>
#include <array>
#include <numeric>

#include "window_invariants.h"

namespace talvex {
struct RandomUser::Action {
    std::string_view name;
    int weight;
    void (RandomUser::*run)();
};

const std::vector<RandomUser::Action>& RandomUser::actions() {
    static const std::vector<Action> kActions{
        {"type a key", 25, &RandomUser::typeKey},
        {"press a key", 12, &RandomUser::pressKey},
        {"release a key", 12, &RandomUser::releaseKey},
        {"repeat a key", 3, &RandomUser::repeatKey},
        {"foreign key", 6, &RandomUser::typeForeignKey},
        {"click", 25, &RandomUser::click},
        {"press the mouse", 4, &RandomUser::pressMouse},
        {"move the mouse", 8, &RandomUser::moveMouse},
        {"release the mouse", 6, &RandomUser::releaseMouse},
        {"drag", 8, &RandomUser::drag},
        {"open a menu", 8, &RandomUser::openMenu},
        {"choose", 16, &RandomUser::chooseFromMenu},
        {"wheel", 3, &RandomUser::turnWheel},
        {"focus", 4, &RandomUser::moveFocus},
        {"activation", 4, &RandomUser::changeActivation},
        {"palette", 1, &RandomUser::changePalette},
        {"place by the desktop", 3, &RandomUser::placeByDesktop},
        {"screen", 1, &RandomUser::changeScreen},
        {"clipboard", 4, &RandomUser::fillClipboard},
        {"paste and copy", 4, &RandomUser::pasteAndCopy},
        {"drawer", 12, &RandomUser::toggleDrawer},
        {"layout", 8, &RandomUser::changeLayout},
        {"help", 5, &RandomUser::useHelp},
        {"save or revert", 2, &RandomUser::saveOrRevert},
        {"minimise", 1, &RandomUser::minimise},
        {"calculate", 3, &RandomUser::calculate},
        {"restart", 1, &RandomUser::restart}};
    return kActions;
}

std::string_view RandomUser::decide() {
    const auto& all = actions();
    next_ = &all.back();
    // A closed window is the end of the program.
    if (session_ && !session_->window.isHidden()) {
        const auto sum = [](int weight, const Action& each) { return weight + each.weight; };
        int place = below(std::accumulate(all.begin(), all.end(), 0, sum));
        for (next_ = all.data(); place >= next_->weight; ++next_) {
            place -= next_->weight;
        }
    }
    return next_->name;
}

void RandomUser::act() { (this->*next_->run)(); }

int RandomUser::pause() {
    constexpr int kStep = 20;
    constexpr int kMotion = 220;
    return oneIn(30) ? below(kMotion) : oneIn(4) ? below(kStep) : 0;
}

void RandomUser::letGo() {
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
        QApplication::processEvents();
    }
    if (isMouseHeld_) {
        releaseMouse();
    }
    while (!heldKeys_.empty()) {
        releaseKey();
    }
    QApplication::processEvents();
}

void RandomUser::restart() {
    if (oneIn(2)) {
        letGo();
    }
    session_.reset();
    session_ = std::make_unique<WindowSession>();
}

// The window that a key or a click goes to.
QWindow& RandomUser::targetWindow() {
    QWidget* widget = QApplication::activePopupWidget();
    HelpWidget* const help = session_->help.widget();
    if (widget == nullptr && help != nullptr && help->isVisible() && oneIn(5)) {
        widget = help;
    }
    return *(widget != nullptr ? widget : &session_->window)->windowHandle();
}

QPoint RandomUser::anyGrip() {
    std::vector<QRect> out;
    for (const DrawerWidget* const drawer : drawersOf(session_->window)) {
        const QRect shown = drawer->visibleRect();
        if (!shown.isEmpty()) {
            out.push_back(shown);
        }
    }
    if (out.empty()) {
        return session_->window.bodyRect().topLeft() + QPoint(below(300), below(22));
    }
    constexpr int kGrip = 4;
    const QRect drawer = anyOf(out);
    const std::array<QPoint, 4> edges{QPoint(drawer.left() + kGrip, drawer.center().y()),
                                      QPoint(drawer.right() - kGrip, drawer.center().y()),
                                      QPoint(drawer.center().x(), drawer.top() + kGrip),
                                      QPoint(drawer.center().x(), drawer.bottom() - kGrip)};
    return anyOf(edges);
}

std::vector<QAbstractButton*> RandomUser::buttonsInSight() {
    std::vector<QAbstractButton*> buttons;
    for (auto* const each : session_->window.findChildren<QAbstractButton*>()) {
        if (each->isVisible()) {
            buttons.push_back(each);
        }
    }
    return buttons;
}

QPoint RandomUser::anyPlaceIn(const QWindow& window) {
    const bool isCalculator = &window == session_->window.windowHandle();
    if (isCalculator && oneIn(6)) {
        return anyGrip();
    }
    const auto buttons = buttonsInSight();
    if (isCalculator && !buttons.empty() && !oneIn(4)) {
        const QAbstractButton* const button = anyOf(buttons);
        return button->mapTo(&session_->window, button->rect().center());
    }
    constexpr int kOutside = 30;
    return {below(window.width() + 2 * kOutside) - kOutside,
            below(window.height() + 2 * kOutside) - kOutside};
}

QString RandomUser::anyText() {
    static const std::array<QString, 12> kTexts{"12.5", "1,234.5678", "-1e308", "1e999",
                                                "nan",  "0x1F",       "12 °C",  "π",
                                                "",     "\n\t 7 \r",  "٣٫٥",    "<b>3</b>"};
    QString text = anyOf(kTexts);
    if (oneIn(3)) {
        constexpr int kLong = 100'000;
        text.resize(oneIn(4) ? below(kLong) : below(20));
        const bool isDigits = oneIn(2);
        for (QChar& character : text) {
            character = isDigits ? QChar('0' + below(10)) : QChar(below(0x10000));
        }
    }
    return text;
}

}  // namespace talvex
