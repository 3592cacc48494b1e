#include "qt/screen_places.h"

#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace talvex {
namespace {

int bottomOfFirstScreen() { return QGuiApplication::primaryScreen()->geometry().bottom() + 1; }

int bounded(double value) {
    static constexpr double kFarthest = 100'000.0;
    return static_cast<int>(std::clamp(std::isnan(value) ? 0.0 : value, -kFarthest, kFarthest));
}

}  // namespace

QRect onScreen(const NSRect& frame) {
    return {bounded(frame.x), bottomOfFirstScreen() - bounded(frame.y + frame.height),
            bounded(frame.width), bounded(frame.height)};
}

NSRect placeOfRecord(const QRect& rect) {
    return {.x = static_cast<double>(rect.x()),
            .y = static_cast<double>(bottomOfFirstScreen() - rect.y() - rect.height()),
            .width = static_cast<double>(rect.width()),
            .height = static_cast<double>(rect.height())};
}

bool isInSight(const QRect& titleBar) {
    constexpr int kInSight = 120;  // beside the buttons at either end
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&titleBar](const QScreen* screen) {
        const QRect seen = screen->availableGeometry().intersected(titleBar);
        return seen.width() >= kInSight && seen.height() == titleBar.height();
    });
}

bool isAllInSight(const QRect& rect) {
    QRegion hidden(rect);
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* const screen : screens) {
        hidden -= screen->availableGeometry();
    }
    return hidden.isEmpty();
}

QRect availableAround(const QRect& window) {
    const auto seenOn = [&window](const QScreen* screen) {
        const QRect seen = screen->geometry().intersected(window);
        return seen.isEmpty() ? 0 : seen.width() * seen.height();
    };
    const QScreen* best = QGuiApplication::primaryScreen();
    const QList<QScreen*> screens = QGuiApplication::screens();
    for (const QScreen* const screen : screens) {
        best = seenOn(screen) > seenOn(best) ? screen : best;
    }
    return best->availableGeometry();
}

// Queued, so that the desktop has put its windows where it wants them.
void whenScreensChange(QObject& context, const std::function<void()>& action) {
    const auto watch = [&context, action](const QScreen* screen) {
        QObject::connect(screen, &QScreen::availableGeometryChanged, &context, action,
                         Qt::QueuedConnection);
    };
    const QList<QScreen*> screens = QGuiApplication::screens();
    std::for_each(screens.begin(), screens.end(), watch);
    QObject::connect(qGuiApp, &QGuiApplication::screenAdded, &context, watch);
    for (const auto change : {&QGuiApplication::screenAdded, &QGuiApplication::screenRemoved,
                              &QGuiApplication::primaryScreenChanged}) {
        QObject::connect(qGuiApp, change, &context, action, Qt::QueuedConnection);
    }
}

}  // namespace talvex
