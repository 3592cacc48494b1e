#pragma once

#include <QAbstractButton>
#include <QEvent>
#include <QPoint>
#include <QString>
#include <iterator>
#include <memory>
#include <random>
#include <span>
#include <vector>

#include "WindowSession.h"

namespace talvex {

class RandomUser;

// Something to do, and how often it is done beside the others.
struct Action {
    const char* name;
    int weight;
    void (*run)(RandomUser&);
};

// What hands do to keyboard, mouse and menus; and all else.
[[nodiscard]] std::span<const Action> handActions();
[[nodiscard]] std::span<const Action> desktopActions();

// Somebody who does anything that a keyboard, a mouse and a desktop can do to the window, without
// waiting for it.
class RandomUser {
  public:
    explicit RandomUser(std::uint64_t seed) : random(seed) {}

    // What the user does next.
    const Action& decide();
    // How long the user looks on until the next action, in milliseconds.
    [[nodiscard]] int pause();
    // Leaves hold of keys and buttons, and closes menus, so that the window can come to rest.
    void letGo();
    void restart();

    [[nodiscard]] int below(int bound) {
        return std::uniform_int_distribution<int>(0, bound - 1)(random);
    }
    [[nodiscard]] bool oneIn(int count) { return below(count) == 0; }
    template <class Range>
    auto& anyOf(Range& range) {
        return *std::next(range.begin(), below(static_cast<int>(range.size())));
    }
    // The window that a key or a click goes to, and a place in it.
    [[nodiscard]] QWindow& targetWindow();
    [[nodiscard]] QPoint anyPlaceIn(const QWindow& window);
    [[nodiscard]] QPoint anyGrip();
    [[nodiscard]] std::vector<QAbstractButton*> buttonsInSight();
    [[nodiscard]] QString anyText();
    [[nodiscard]] Qt::KeyboardModifiers heldModifiers() const;
    void sendKey(QEvent::Type type, int key, bool isRepeated = false);

    std::mt19937_64 random;
    // The calculator as it is in use; it is another one after each restart.
    std::unique_ptr<WindowSession> session;
    std::vector<int> heldKeys;
    bool isMouseHeld = false;
};

}  // namespace talvex
