#pragma once

#include <QKeyEvent>
#include <QWidget>

namespace talvex {

// The way of the keyboard through the controls, since Tab and the arrows are keys of the
// calculator: F6 goes from one area of the window to the next and at last back to the calculator;
// within an area the arrows go from button to button, Space and Return press one, and Escape goes
// back to the calculator.
class FocusWalk {
  public:
    // An area is a child of the window with this property, the areas being in the order in which
    // they were marked.
    static void markArea(QWidget& area);

    explicit FocusWalk(QWidget& window) : window_(window) {}

    // Whether the key was one of those.
    bool take(const QKeyEvent& event);

  private:
    [[nodiscard]] QWidgetList visibleAreas() const;
    [[nodiscard]] QWidget* focusedButton() const;
    void goToNextArea(bool backward);
    void goTowards(int key);

    QWidget& window_;
};

}  // namespace talvex
