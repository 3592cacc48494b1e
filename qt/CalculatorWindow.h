#pragma once

#include <QWidget>
#include <memory>

#include "platform/NSWindow.h"
#include "qt/FocusWalk.h"
#include "qt/ModifierWatch.h"
#include "qt/TopLevel.h"
#include "qt/WindowDrawers.h"
#include "qt/WindowPlace.h"
#include "ui/DYXWindowController.h"

namespace talvex {

class BodyWidget;
class SizeGrip;

// The calculator on the screen: the body and the drawers around it. Only they can be seen and
// clicked of the top level.
class CalculatorWindow final : public QWidget, public NSWindowObserver {
  public:
    CalculatorWindow(DYXWindowController& controller, Scale& scale);
    ~CalculatorWindow() override;

    void windowDidChange(const NSWindow& window) override;
    void windowWillAnimate(const NSWindow& window) override;
    void windowDidChangeLevel(const NSWindow& window) override;

    // What the user hears as a beep is to be seen, too.
    void showAlert();

    // The body, and the body with what shows of the drawers, in the top level.
    [[nodiscard]] QRect bodyRect() const;
    [[nodiscard]] QRegion visibleRegion() const;

  protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void makeBody();
    void makeDrawers();
    void putBody();
    void didTakeShape();
    // No drawer opens while the body moves, nor without a canvas, which this asks for.
    bool mayDrawerOpen();
    // The body or a drawer is somewhere else.
    void showPieces();
    void openWaitingDrawers();
    void giveBackRoom();
    // The size that the record wants, as far as the screen allows it.
    void takeSize();
    [[nodiscard]] double factorOfRecord() const;
    void askForSize(double factor);

    DYXWindowController& controller_;
    Scale& scale_;
    BodyWidget* body_ = nullptr;
    SizeGrip* sizeGrip_ = nullptr;
    int wheelWay_ = 0;  // of a notch that isn't whole yet
    std::unique_ptr<WindowDrawers> drawers_;
    std::u16string helpOn_;
    TopLevel topLevel_;
    WindowPlace place_;
    ModifierWatch modifiers_;
    FocusWalk focusWalk_;
};

}  // namespace talvex
