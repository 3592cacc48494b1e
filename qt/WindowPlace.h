#pragma once

#include <QPoint>
#include <QRect>
#include <QWidget>
#include <functional>
#include <optional>

#include "platform/NSWindow.h"
#include "qt/Scale.h"

namespace talvex {

// Where the calculator stands on the screen: at the place that its record gives, where it can be
// seen, and aside for as long as a drawer needs the room.
class WindowPlace {
  public:
    // `body` answers where the body is in the top level.
    WindowPlace(QWidget& topLevel, NSWindow& record, const Scale& scale,
                std::function<QRect()> body);

    // Before the window is shown: to the record's place, or to the middle of the first screen.
    void takePlaceOfRecord();
    void takeMiddle();
    // Some window managers put a new window elsewhere, but obey later. Asks once more.
    void insistOnceMapped();

    // The record was moved.
    void followRecord();
    // Puts the body's corner there, as far as it can be seen.
    void keepCorner(const QPoint& corner);
    // The window was moved, or the screen from which the record counts.
    void tellRecord();
    // A place that is on no screen, or not any more, gives way to the middle of one.
    void comeIntoSight();

    // Moves the window as far as `wanted`, a place in the top level, needs to be on the screen, but
    // never the title bar out of sight.
    void makeRoomFor(const QRect& wanted);
    // What needs room now is `wanted`: goes back as far as that allows, unless the window was moved
    // since it made room.
    void giveBackRoomBut(const QRect& wanted);

  private:
    [[nodiscard]] QPoint present() const { return topLevel_.geometry().topLeft(); }
    // Where the top level has to be for the body to be at the record's place.
    [[nodiscard]] QPoint placeOfRecord() const;
    [[nodiscard]] bool wouldBeInSight(const QPoint& place) const;
    // `home` if all of `wanted` can be seen there, or else the nearest place at which it is on the
    // screen that has most of the body.
    [[nodiscard]] QPoint roomFor(const QRect& wanted, const QPoint& home) const;
    void moveTo(const QPoint& place);

    QWidget& topLevel_;
    NSWindow& record_;
    const Scale& scale_;
    std::function<QRect()> body_;
    QPoint wanted_;  // where it was last asked to go
    struct Excursion {
        QPoint home;
        QPoint away;
    };
    std::optional<Excursion> excursion_;
};

}  // namespace talvex
