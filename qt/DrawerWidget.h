#pragma once

#include <QLabel>
#include <QVariantAnimation>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/NSDrawer.h"
#include "qt/Scale.h"

namespace talvex {

// A drawer on the screen: a sheet that slides out from under the body of the window. It is beside
// the body in the canvas and below it, and its outer edge can be dragged.
class DrawerWidget final : public QWidget, public NSDrawerObserver {
  public:
    // What a drawer needs of the window that it is in.
    struct Host {
        std::function<QRect()> body;                        // its place in the canvas
        std::function<QRect()> bodyAtRest;                  // the same at the end of its motion
        std::function<bool()> mayOpen;                      // or else will be told of it later
        std::function<void()> didMove;                      // what is on show has changed
        std::function<void(const QRect& wanted)> makeRoom;  // brings a place onto the screen
        std::function<void()> didClose;
        std::function<QWidget*(QWidget*)> makeContent;  // when it is first opened
    };
    DrawerWidget(NSDrawer& record, Scale& scale, Host host, QWidget* canvas);
    ~DrawerWidget() override;

    void drawerDidChange(const NSDrawer& drawer) override;
    void followBody();
    // The scale has changed: whatever moved arrives at once.
    void takeSize();
    [[nodiscard]] const NSDrawer& record() const { return record_; }
    // What can be seen of the drawer, in the canvas; empty while it is closed.
    [[nodiscard]] QRect visibleRect() const;
    // Where it is, or will be when it has opened; empty if it is to be closed.
    [[nodiscard]] QRect placeWhenOpen() const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    // The place of the drawer if so much of it showed beside the body.
    [[nodiscard]] QRect rectAt(double depth, const QRect& body) const;
    // Where something of the content's size lies in the drawer: at its outer edge.
    [[nodiscard]] QRect contentRect(const QSize& size) const;
    // How much shows of the drawer as it is drawn out.
    [[nodiscard]] int fullDepth() const;
    [[nodiscard]] int border() const { return scale_.pixels(NSDrawer::kOuterBorder); }
    [[nodiscard]] QRect grip() const;
    void open();
    void slideTo(double depth);
    // Ends a slide.
    void standAt(double depth);
    void show(double depth);
    void place();
    void makeContentOnce();
    void keepPicture();

    NSDrawer& record_;
    Scale& scale_;
    Host host_;
    QWidget* content_ = nullptr;
    QLabel* stillPicture_;  // of the content as it was, while the drawer slides to less of it
    double depth_ = 0.0;
    QVariantAnimation slide_;
    struct Drag {
        QPoint start;  // on the screen
        NSSize size;
    };
    std::optional<Drag> drag_;
};

}  // namespace talvex
