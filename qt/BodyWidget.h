#pragma once

#include <QLabel>
#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>
#include <functional>

#include "qt/Scale.h"
#include "ui/DYXWindowController.h"

namespace talvex {

class DisplayWidget;

// The body of the window: the title bar and the content, which cover whatever lies below. A change
// of its size is a motion if it was announced as one.
class BodyWidget final : public QWidget {
  public:
    // Who has to follow.
    struct Host {
        std::function<void()> didResize;  // at every step of a motion
        std::function<void()> didArrive;  // the size is that of the record
    };
    BodyWidget(DYXWindowController& controller, Scale& scale, Host host, QWidget* parent);

    // Whether the size is still on its way to that of the record.
    [[nodiscard]] bool isMoving() const { return motion_.state() == QAbstractAnimation::Running; }
    // Its place once it has arrived.
    [[nodiscard]] QRect restingPlace() const;

    // Takes a picture of the content as it is, which stands in for what goes.
    void prepareMotion();
    // Takes the size of the window's record.
    void followRecord();
    // The same at once, without a motion.
    void takeSize();
    void flashDisplay();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] QSize sizeOfRecord() const;
    [[nodiscard]] int bar() const { return scale_.pixels(NSWindow::kTitleBarHeight); }
    void setBodySize(const QSize& size);

    DYXWindowController& controller_;
    Scale& scale_;
    Host host_;
    QWidget* titleBar_;
    QWidget* content_;
    DisplayWidget* display_;
    QLabel* stillPicture_;
    QPixmap picture_;
    double displayHeight_ = 0.0;
    bool movesWithLowerEdge_ = false;
    QVariantAnimation motion_;
};

}  // namespace talvex
