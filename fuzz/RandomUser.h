#pragma once

#include <QAbstractButton>
#include <QEvent>
#include <QPoint>
#include <QString>
#include <iterator>
#include <memory>
#include <random>
#include <string_view>
#include <vector>

#include "WindowSession.h"

namespace talvex {

// Somebody who does anything that a keyboard, a mouse and a desktop can do to the window, without
// waiting for it.
class RandomUser {
  public:
    explicit RandomUser(std::uint64_t seed) : random_(seed) {}

    // The calculator as it is in use; it is another one after each restart.
    [[nodiscard]] WindowSession& session() { return *session_; }

    // Answers what the user does next, and does it.
    std::string_view decide();
    void act();
    // How long the user looks on until the next action, in milliseconds.
    [[nodiscard]] int pause();
    // Leaves hold of keys and buttons, and closes menus, so that the window can come to rest.
    void letGo();
    void restart();

  private:
    struct Action;
    static const std::vector<Action>& actions();

    [[nodiscard]] int below(int bound) {
        return std::uniform_int_distribution<int>(0, bound - 1)(random_);
    }
    [[nodiscard]] bool oneIn(int count) { return below(count) == 0; }
    template <class Range>
    auto& anyOf(Range& range) {
        return *std::next(range.begin(), below(static_cast<int>(range.size())));
    }

    [[nodiscard]] QWindow& targetWindow();
    [[nodiscard]] std::vector<QAbstractButton*> buttonsInSight();
    [[nodiscard]] QPoint anyPlaceIn(const QWindow& window);
    [[nodiscard]] QPoint anyGrip();
    [[nodiscard]] int anyKey();
    [[nodiscard]] QString anyText();
    void sendKey(QEvent::Type type, int key, bool isRepeated = false);

    void typeKey();
    void pressKey();
    void releaseKey();
    void repeatKey();
    void typeForeignKey();
    void click();
    void pressMouse();
    void moveMouse();
    void releaseMouse();
    void drag();
    void openMenu();
    void chooseFromMenu();
    void turnWheel();
    void moveFocus();
    void changeActivation();
    void changePalette();
    void placeByDesktop();
    void changeScreen();
    void fillClipboard();
    void pasteAndCopy();
    void toggleDrawer();
    void changeLayout();
    void useHelp();
    void saveOrRevert();
    void minimise();
    void calculate();

    std::mt19937_64 random_;
    std::unique_ptr<WindowSession> session_;
    const Action* next_ = nullptr;
    std::vector<int> heldKeys_;
    bool isMouseHeld_ = false;
};

}  // namespace talvex
