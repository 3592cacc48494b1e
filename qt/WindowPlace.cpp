#include "qt/WindowPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "qt/screen_places.h"

namespace talvex {
namespace {

// By then a window manager has placed a new window.
constexpr int kMappedMilliseconds = 300;

}  // namespace

WindowPlace::WindowPlace(QWidget& topLevel, NSWindow& record, const Scale& scale,
                         std::function<QRect()> body)
    : topLevel_(topLevel), record_(record), scale_(scale), body_(std::move(body)) {}

// By the place of the content: a frame that the window manager adds isn't ours.
void WindowPlace::moveTo(const QPoint& place) {
    wanted_ = place;
    topLevel_.setGeometry({place, topLevel_.size()});
}

void WindowPlace::takePlaceOfRecord() {
    moveTo(placeOfRecord());
    comeIntoSight();
}

void WindowPlace::takeMiddle() {
    const QRect visible = QGuiApplication::primaryScreen()->availableGeometry();
    moveTo(visible.center() - body_().center());
}

void WindowPlace::insistOnceMapped() {
    QTimer::singleShot(kMappedMilliseconds, &topLevel_, [this] {
        if (present() != wanted_) {
            moveTo(wanted_);
        }
    });
}

void WindowPlace::followRecord() {
    const QPoint place = placeOfRecord();
    if (place != present() && wouldBeInSight(place)) {
        moveTo(place);
    }
}

void WindowPlace::keepCorner(const QPoint& corner) {
    excursion_.reset();
    moveTo(corner - body_().topLeft());
}

void WindowPlace::tellRecord() {
    const QPoint corner = present() + body_().topLeft();
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
    excursion_->away = place;
    if (place == home) {
        excursion_.reset();
    }
    moveTo(place);
}

QPoint WindowPlace::placeOfRecord() const {
    return onScreen(record_.frame()).topLeft() - body_().topLeft();
}

bool WindowPlace::wouldBeInSight(const QPoint& place) const {
    const int bar = scale_.pixels(NSWindow::kTitleBarHeight);
    return isInSight({place + body_().topLeft(), QSize(body_().width(), bar)});
}

QPoint WindowPlace::roomFor(const QRect& wanted, const QPoint& home) const {
    const QRect all = (wanted | body_()).translated(home);
    if (isAllInSight(all)) {
        return home;
    }
    const QRect visible = availableAround(body_().translated(home));
    QPoint step(std::min(0, visible.right() - all.right()),
                std::min(0, visible.bottom() - all.bottom()));
    step.rx() += std::max(0, visible.left() - all.left() - step.x());
    step.ry() += std::max(0, visible.top() - all.top() - step.y());
    return home + step;
}

}  // namespace talvex
