#include "qt/window_size.h"

#include <QFontInfo>
#include <QGuiApplication>
#include <algorithm>
#include <cmath>

#include "state/Settings.h"

namespace talvex {

// At 100 % the keys are as large as letters of ten points want them, which is what most desktops
// begin with.
std::int32_t percentOfDesktop() {
    constexpr double kUsualText = 10.0;
    constexpr double kStep = 25.0;
    const double points = QFontInfo(QGuiApplication::font()).pointSizeF();
    return boundedSize(static_cast<std::int32_t>(
        std::clamp(std::round(100.0 / kStep * points / kUsualText) * kStep, 100.0, 300.0)));
}

double factorFor(std::int32_t percent, const QSize& body, const QSize& room) {
    const double fitting = std::min(room.width() / static_cast<double>(body.width()),
                                    room.height() / static_cast<double>(body.height()));
    const std::int32_t most =
        std::max(kSmallestSize, static_cast<std::int32_t>(std::floor(100.0 * fitting)));
    return std::min(percent == 0 ? percentOfDesktop() : percent, most) / 100.0;
}

}  // namespace talvex
