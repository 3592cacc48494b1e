#pragma once

#include <QLabel>
#include <QMargins>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <memory>

namespace talvex {

// The window as the desktop knows it. Without drawers it is exactly the body. The first drawer
// makes it a canvas of fixed size, which has room for the body in every layout and all drawers
// around it, so that the body stands still while something slides out of it. Where the desktop
// knows that the margins of a canvas are invisible it stays one; elsewhere it becomes the body
// again.
class TopLevel {
  public:
    enum class Shape { body, canvas };
    struct Canvas {
        QMargins room;  // for the drawers
        QSize smallestBody;
        QSize largestBody;
    };
    // The window around it; places are in the top level.
    struct Host {
        std::function<QRect()> body;
        std::function<QRect()> bodyAtRest;            // the same at the end of its motion
        std::function<QPoint()> placeWithoutDrawers;  // of the body on the screen
        std::function<void()> didTakeShape;           // the body has to be at `corner`
        std::function<void()> didArrive;              // at its place, too
    };
    TopLevel(QWidget& window, const Canvas& canvas, Host host);

    // The canvas is another one, and the body may have another size; not while it is changing.
    void takeCanvas(const Canvas& canvas);

    // Before the window is created, and when it has been.
    void begin(Shape shape);
    void didCreate();

    // Takes a moment; `didArrive` is the end of it.
    void becomeCanvas() { become(Shape::canvas); }
    void becomeBody() { become(Shape::body); }
    [[nodiscard]] bool isCanvas() const;
    // Whether it is on its way from one shape to the other.
    [[nodiscard]] bool isChanging() const { return phase_ != Phase::rest; }

    // The body's, in the top level and on the screen.
    [[nodiscard]] QPoint corner() const { return cornerIn(shape_); }
    [[nodiscard]] QPoint place() const { return window_.geometry().topLeft() + corner(); }
    void moveTo(const QPoint& place);
    // Where the body was to stay when the shape changed.
    [[nodiscard]] QPoint keptPlace() const { return keptPlace_; }
    [[nodiscard]] QObject* context() const { return &window_; }

    [[nodiscard]] bool staysCanvas() const { return staysCanvas_; }
    // The body has another size, or will have it.
    void followBody();
    // The desktop has changed the size of the window.
    void didResize();
    void showOnly(const QRegion& region);
    // To a window manager that heeds them.
    void tellMargins() const;

  private:
    enum class Phase { rest, covered, asked };
    void become(Shape shape);
    void cover();
    void askForShape();
    void ask(const QRect& geometry);
    [[nodiscard]] QRect withinBorder(const QRect& geometry) const;
    void takeShape();
    void arrive();
    [[nodiscard]] QPoint cornerIn(Shape shape) const;
    [[nodiscard]] QSize sizeOf(Shape shape) const;

    QWidget& window_;
    Canvas canvas_;
    Host host_;
    Shape shape_ = Shape::body;
    Shape wanted_ = Shape::body;
    Shape coming_ = Shape::body;
    Phase phase_ = Phase::rest;
    QPoint keptPlace_;
    QSize size_;  // that was asked for
    bool staysCanvas_ = false;
    std::unique_ptr<QLabel> cover_;
    QTimer next_;
    QTimer uncover_;
};

}  // namespace talvex
