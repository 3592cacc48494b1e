#include "qt/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "qt/screen_places.h"

namespace talvex {
namespace {

// By then a window manager has placed a new window, or one that was asked to move.
constexpr int kPlacedMilliseconds = 300;

}  // namespace

WindowPlace::WindowPlace(TopLevel& topLevel, NSWindow& record, const Scale& scale,
                         std::function<QSize()> bodySize)
    : topLevel_(topLevel), record_(record), scale_(scale), bodySize_(std::move(bodySize)) {}

void WindowPlace::moveTo(const QPoint& place) {
    wanted_ = place;
    asked_.invalidate();
    topLevel_.moveTo(place);
}

void WindowPlace::takePlaceOfRecord() {
    moveTo(placeOfRecord());
    comeIntoSight();
}

void WindowPlace::takeMiddle() {
    const QRect visible = QGuiApplication::primaryScreen()->availableGeometry();
    moveTo(visible.center() - QRect(QPoint(), bodySize_()).center());
}

void WindowPlace::insistOnceMapped() {
    QTimer::singleShot(kPlacedMilliseconds, topLevel_.context(), [this] {
        if (present() != wanted_) {
            moveTo(wanted_);
        }
    });
}

void WindowPlace::followShape() {
    excursion_.reset();
    if (topLevel_.isCanvas()) {
        excursion_ = Excursion{.home = topLevel_.keptPlace(), .away = present()};
        asked_.start();
    }
    tellRecord();
}

QPoint WindowPlace::home() const {
    return excursion_ && excursion_->away == present() ? excursion_->home : present();
}

void WindowPlace::followRecord() {
    const QPoint place = placeOfRecord();
    if (place != present() && wouldBeInSight(place)) {
        moveTo(place);
    }
}

void WindowPlace::keep(const QPoint& place) {
    excursion_.reset();
    moveTo(roomFor({}, place));
}

void WindowPlace::tellRecord() {
    const QPoint corner = present();
    // What comes of our own request isn't a move of the user's.
    if (excursion_ && asked_.isValid() && asked_.elapsed() < kPlacedMilliseconds) {
        excursion_->away = corner;
    }
    const QRect known = onScreen(record_.frame());
    if (known.topLeft() != corner) {
        record_.setFrame(talvex::placeOfRecord({corner, known.size()}));
    }
}

void WindowPlace::comeIntoSight() {
    if (!wouldBeInSight(present())) {
        takeMiddle();
    }
}

void WindowPlace::makeRoomFor(const QRect& wanted) {
    const QPoint from = present();
    const QPoint home = excursion_ && excursion_->away == from ? excursion_->home : from;
    const QPoint place = roomFor(wanted, from);
    if (place != from) {
        excursion_ = Excursion{.home = home, .away = place};
        moveTo(place);
        asked_.start();
    }
}

void WindowPlace::giveBackRoomBut(const QRect& wanted) {
    if (!excursion_) {
        return;
    }
    const auto [home, away] = *excursion_;
    if (present() != away) {
        excursion_.reset();
        return;
    }
    const QPoint place = wanted.isEmpty() ? home : roomFor(wanted, home);
    if (place != away) {
        excursion_->away = place;
        moveTo(place);
        asked_.start();
    }
}

QPoint WindowPlace::placeOfRecord() const { return onScreen(record_.frame()).topLeft(); }

bool WindowPlace::wouldBeInSight(const QPoint& place) const {
    return isInSight({place, QSize(bodySize_().width(), scale_.pixels(NSWindow::kTitleBarHeight))});
}

QPoint WindowPlace::roomFor(const QRect& wanted, const QPoint& home) const {
    const QRect body(QPoint(), bodySize_());
    QRect all = (wanted | body).translated(home);
    if (isAllInSight(all)) {
        return home;
    }
    const QRect visible = availableAround(body.translated(home));
    // Where there isn't room for both, the keys of the drawer have to be in reach.
    if (all.width() > visible.width()) {
        all.setLeft(home.x() + wanted.left());
        all.setWidth(wanted.width());
    }
    if (all.height() > visible.height()) {
        all.setTop(home.y() + wanted.top());
        all.setHeight(wanted.height());
    }
    QPoint step(std::min(0, visible.right() - all.right()),
                std::min(0, visible.bottom() - all.bottom()));
    step.rx() += std::max(0, visible.left() - all.left() - step.x());
    step.ry() += std::max(0, visible.top() - all.top() - step.y());
    return home + step;
}

}  // namespace talvex
