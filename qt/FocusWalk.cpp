#include "qt/FocusWalk.h"

#include <QAbstractButton>
#include <cmath>
#include <limits>

namespace talvex {
namespace {

constexpr auto kAreaProperty = "talvexFocusArea";

QList<QAbstractButton*> buttonsOf(const QWidget& area) {
    QList<QAbstractButton*> buttons = area.findChildren<QAbstractButton*>();
    buttons.removeIf(
        [](const QAbstractButton* button) { return !button->isVisible() || !button->isEnabled(); });
    return buttons;
}

QPoint centerOf(const QWidget& button) { return button.mapToGlobal(button.rect().center()); }

QPoint directionOf(int key) {
    switch (key) {
        case Qt::Key_Left:
            return {-1, 0};
        case Qt::Key_Right:
            return {1, 0};
        case Qt::Key_Up:
            return {0, -1};
        case Qt::Key_Down:
            return {0, 1};
        default:
            return {};
    }
}

}  // namespace

void FocusWalk::markArea(QWidget& area) { area.setProperty(kAreaProperty, true); }

QWidgetList FocusWalk::visibleAreas() const {
    QWidgetList areas;
    for (QWidget* const child : window_.findChildren<QWidget*>()) {
        if (child->property(kAreaProperty).toBool() && child->isVisible() &&
            !buttonsOf(*child).isEmpty()) {
            areas.append(child);
        }
    }
    return areas;
}

// A button that has gone out of sight has the focus no more.
QWidget* FocusWalk::focusedButton() const {
    QWidget* const focused = window_.focusWidget();
    if (focused == nullptr || focused == &window_) {
        return nullptr;
    }
    if (!focused->isVisible()) {
        window_.setFocus();
        return nullptr;
    }
    return focused;
}

bool FocusWalk::take(const QKeyEvent& event) {
    if (event.key() == Qt::Key_F6) {
        goToNextArea((event.modifiers() & Qt::ShiftModifier) != 0);
        return true;
    }
    auto* const button = qobject_cast<QAbstractButton*>(focusedButton());
    if (button == nullptr) {
        return false;
    }
    switch (event.key()) {
        case Qt::Key_Space:
        case Qt::Key_Return:
            button->click();
            return true;
        case Qt::Key_Escape:
            window_.setFocus();
            return true;
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            goTowards(event.key());
            return true;
        default:
            return false;
    }
}

void FocusWalk::goToNextArea(bool backward) {
    QWidgetList areas = visibleAreas();
    areas.prepend(&window_);
    const QWidget* const focused = focusedButton();
    qsizetype place = 0;
    for (qsizetype index = 1; index < areas.size(); ++index) {
        place = focused != nullptr && areas[index]->isAncestorOf(focused) ? index : place;
    }
    QWidget* const next = areas[(place + (backward ? areas.size() - 1 : 1)) % areas.size()];
    if (next == &window_) {
        window_.setFocus();
        return;
    }
    buttonsOf(*next).first()->setFocus(Qt::TabFocusReason);
}

// To the nearest button ahead in the same row or column; where there is none, to the nearest ahead.
void FocusWalk::goTowards(int key) {
    constexpr int kBeside = 10'000;
    const QWidget* const from = focusedButton();
    const QPoint direction = directionOf(key);
    QAbstractButton* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (QWidget* const area : visibleAreas()) {
        if (!area->isAncestorOf(from)) {
            continue;
        }
        for (QAbstractButton* const button : buttonsOf(*area)) {
            const QPoint way = centerOf(*button) - centerOf(*from);
            const int ahead = QPoint::dotProduct(way, direction);
            const QPoint aside(std::abs(way.x() * direction.y()),
                               std::abs(way.y() * direction.x()));
            const bool isInLine = 2 * aside.x() < button->width() + from->width() &&
                                  2 * aside.y() < button->height() + from->height();
            const int cost = ahead + (isInLine ? 0 : kBeside + 2 * (aside.x() + aside.y()));
            if (ahead > 0 && cost < least) {
                least = cost;
                nearest = button;
            }
        }
    }
    if (nearest != nullptr) {
        nearest->setFocus(Qt::TabFocusReason);
    }
}

}  // namespace talvex
