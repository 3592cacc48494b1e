#include "Stage.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <algorithm>

#include "platform/NSEvent.h"

namespace talvex {

Stage::Stage(std::int32_t size) : controller_(platform_) {
    controller_.choose(settingRow<&Settings::windowSize>(), size);
    controller_.choose(settingRow<&Settings::animateWindow>(), 0);
    window_ = std::make_unique<CalculatorWindow>(controller_, scale_);
    window_->show();
    settle();
}

void Stage::type(std::u16string_view keys) {
    for (const char16_t key : keys) {
        controller_.keyDown({.type = NSKeyDown, .charactersIgnoringModifiers = {key}});
    }
}

void Stage::open(DrawerName name) {
    controller_.drawers().toggleDrawer(name);
    settle();
}

void Stage::settle() {
    const auto isSliding = [this] {
        return std::any_of(kDrawerNames.begin(), kDrawerNames.end(), [this](DrawerName name) {
            const NSDrawerState state = controller_.drawers()[name].record.state();
            return state == NSDrawerOpeningState || state == NSDrawerClosingState;
        });
    };
    constexpr int kLongest = 2000;
    QElapsedTimer timer;
    timer.start();
    do {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    } while (isSliding() && timer.elapsed() < kLongest);
}

QImage Stage::picture() {
    settle();
    const QRegion region = window_->visibleRegion();
    QPixmap pixmap(region.boundingRect().size() * window_->devicePixelRatio());
    pixmap.setDevicePixelRatio(window_->devicePixelRatio());
    pixmap.fill(Qt::transparent);
    window_->render(&pixmap, QPoint(), region, QWidget::DrawChildren);
    return pixmap.toImage();
}

}  // namespace talvex
