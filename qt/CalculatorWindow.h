#pragma once

#include <QWidget>

#include "platform/NSWindow.h"
#include "qt/key_events.h"
#include "ui/DYXWindowController.h"

namespace talvex {

// The calculator on the screen. Its top level is a canvas of fixed size, large enough for the body
// in every layout with all drawers open around it; only the body is shown and can be clicked. So
// the body never moves while something slides out of it.
class CalculatorWindow final : public QWidget, public NSWindowObserver {
  public:
    explicit CalculatorWindow(DYXWindowController& controller);
    ~CalculatorWindow() override;

    void windowDidChange(const NSWindow& window) override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

  private:
    [[nodiscard]] QRect bodyRect() const;
    void centerOnScreen();
    // Where the canvas has to stand for the body to be where the record says.
    [[nodiscard]] QPoint placeOfRecord() const;
    [[nodiscard]] bool isOnScreen(const QRect& canvas) const;
    void sendFlags();

    DYXWindowController& controller_;
    QWidget* body_;
    QWidget* titleBar_;
    QWidget* content_;
    HeldModifiers heldModifiers_;
};

}  // namespace talvex
