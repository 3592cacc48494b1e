#pragma once

#include <QElapsedTimer>
#include <QPoint>
#include <QRect>
#include <functional>
#include <optional>

#include "platform/NSWindow.h"
#include "qt/Scale.h"
#include "qt/TopLevel.h"

namespace talvex {

// Where the calculator stands on the screen: at the place that its record gives, where it can be
// seen, and aside for as long as a drawer needs the room. Places are those of the body's corner.
class WindowPlace {
  public:
    // `bodySize` answers how large the body is.
    WindowPlace(TopLevel& topLevel, NSWindow& record, const Scale& scale,
                std::function<QSize()> bodySize);

    // Before the window is shown: to the record's place, or to the middle of the first screen.
    void takePlaceOfRecord();
    void takeMiddle();
    // Some window managers put a new window elsewhere, but obey later. Asks once more.
    void insistOnceMapped();
    // The top level has another shape now; it may have been put elsewhere with it.
    void followShape();

    // The record was moved.
    void followRecord();
    // All of it has another size; its corner is to stay there, as far as it can be seen so.
    void keep(const QPoint& place);
    // The window was moved, or the screen from which the record counts.
    void tellRecord();
    // A place that is on no screen, or not any more, gives way to the middle of one.
    void comeIntoSight();

    // Moves the window as far as `wanted`, a place beside the body's corner, needs to be on the
    // screen; the body goes out of sight only as far as the screen is too small for both.
    void makeRoomFor(const QRect& wanted);
    // What needs room now is `wanted`: goes back as far as that allows, unless the window was moved
    // since it made room.
    void giveBackRoomBut(const QRect& wanted);
    // Where it would go back to if nothing needed room.
    [[nodiscard]] QPoint home() const;

  private:
    [[nodiscard]] QPoint present() const { return topLevel_.place(); }
    [[nodiscard]] QPoint placeOfRecord() const;
    [[nodiscard]] bool wouldBeInSight(const QPoint& place) const;
    // `home` if all of `wanted` can be seen there, or else the nearest place at which it is on the
    // screen that has most of the body.
    [[nodiscard]] QPoint roomFor(const QRect& wanted, const QPoint& home) const;
    void moveTo(const QPoint& place);

    TopLevel& topLevel_;
    NSWindow& record_;
    const Scale& scale_;
    std::function<QSize()> bodySize_;
    QPoint wanted_;  // where it was last asked to go
    QElapsedTimer asked_;
    struct Excursion {
        QPoint home;
        QPoint away;
    };
    std::optional<Excursion> excursion_;
};

}  // namespace talvex
