#include "qt/DrawerWidget.h"

#include <QMouseEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "qt/FocusWalk.h"
#include "qt/conversions.h"
#include "qt/palette.h"

namespace talvex {
namespace {

constexpr int kSlideMilliseconds = 180;
constexpr int kBorder = static_cast<int>(NSDrawer::kOuterBorder);
// Ahead of the content along the edge; what is left of the two ends lies behind it.
constexpr int kLeadingEnd = 7;
constexpr int kGripLength = 24;
constexpr float kGripOpacity = 0.45F;

int whole(double value) { return static_cast<int>(std::lround(value)); }

}  // namespace

DrawerWidget::DrawerWidget(NSDrawer& record, std::function<QWidget*(QWidget*)> makeContent,
                           Host host, QWidget* canvas)
    : QWidget(canvas),
      record_(record),
      makeContent_(std::move(makeContent)),
      host_(std::move(host)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(record_.isLevel() ? Qt::SplitVCursor : Qt::SplitHCursor);
    FocusWalk::markArea(*this);
    slide_.setDuration(kSlideMilliseconds);
    slide_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&slide_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& depth) { show(depth.toDouble()); });
    connect(&slide_, &QVariantAnimation::finished, this, [this] { record_.finishSliding(); });
    record_.setObserver(this);
    if (record_.isOpenOrOpening()) {
        makeContentOnce();
        depth_ = fullDepth();
    }
    setVisible(record_.isOpenOrOpening());
    place();
}

DrawerWidget::~DrawerWidget() { record_.setObserver(nullptr); }

void DrawerWidget::makeContentOnce() {
    if (content_ == nullptr) {
        content_ = makeContent_(this);
        content_->setCursor(Qt::ArrowCursor);
        content_->show();
    }
}

double DrawerWidget::fullDepth() const {
    return NSDrawer::kOuterBorder +
           (record_.isLevel() ? record_.contentSize().height : record_.contentSize().width);
}

void DrawerWidget::drawerDidChange(const NSDrawer& /*drawer*/) {
    if (!record_.isOpenOrOpening()) {
        drag_.reset();
    }
    if (record_.state() == NSDrawerOpeningState && depth_ == 0.0) {
        makeContentOnce();
        place();
        host_.makeRoom(rectAt(fullDepth()));
    }
    const double target = record_.isOpenOrOpening() ? fullDepth() : 0.0;
    if (record_.state() == NSDrawerClosedState || depth_ == target) {
        place();
    } else if (drag_) {
        show(target);
    } else {
        slideTo(target);
    }
    if (depth_ == target && slide_.state() != QAbstractAnimation::Running) {
        record_.finishSliding();
    }
}

void DrawerWidget::slideTo(double depth) {
    if (slide_.state() == QAbstractAnimation::Running && slide_.endValue() == depth) {
        return;
    }
    const QSignalBlocker quiet(slide_);
    slide_.stop();
    slide_.setStartValue(depth_);
    slide_.setEndValue(depth);
    slide_.start();
}

void DrawerWidget::show(double depth) {
    depth_ = depth;
    setVisible(depth > 0.0);
    place();
}

QRect DrawerWidget::rectAt(double depth) const {
    const QRect body = host_.body();
    const int leading = whole(record_.leadingOffset());
    const int trailing = whole(record_.trailingOffset());
    const int full = whole(fullDepth());
    const int shown = whole(depth);
    const int width = record_.isLevel() ? body.width() - leading - trailing : full;
    const int height = record_.isLevel() ? full : body.height() - leading - trailing;
    switch (record_.edge()) {
        case NSMinXEdge:
            return {body.left() - shown, body.top() + leading, width, height};
        case NSMaxXEdge:
            return {body.right() + 1 + shown - full, body.top() + leading, width, height};
        case NSMinYEdge:
            return {body.left() + leading, body.bottom() + 1 + shown - full, width, height};
        case NSMaxYEdge:
            break;
    }
    return {body.left() + leading, body.top() - shown, width, height};
}

QRect DrawerWidget::visibleRect() const {
    if (!isVisibleTo(parentWidget()) || depth_ <= 0.0) {
        return {};
    }
    QRegion outside(geometry());
    outside -= host_.body();
    return outside.boundingRect();
}

void DrawerWidget::place() {
    followBody();
    host_.didMove();
}

// The content lies between the border and the body.
void DrawerWidget::followBody() {
    setGeometry(rectAt(depth_));
    if (content_ != nullptr) {
        const NSRectEdge edge = record_.edge();
        const QPoint corner(record_.isLevel()    ? kLeadingEnd
                            : edge == NSMinXEdge ? kBorder
                                                 : 0,
                            !record_.isLevel()   ? kLeadingEnd
                            : edge == NSMaxYEdge ? kBorder
                                                 : 0);
        content_->setGeometry(QRect(corner, QSize(whole(record_.contentSize().width),
                                                  whole(record_.contentSize().height))));
    }
}

QRect DrawerWidget::grip() const {
    switch (record_.edge()) {
        case NSMinXEdge:
            return {0, 0, kBorder, height()};
        case NSMaxXEdge:
            return {width() - kBorder, 0, kBorder, height()};
        case NSMinYEdge:
            return {0, height() - kBorder, width(), kBorder};
        case NSMaxYEdge:
            break;
    }
    return {0, 0, width(), kBorder};
}

void DrawerWidget::paintEvent(QPaintEvent* /*event*/) {
    const WindowColors& colors = windowColors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.border);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), colors.drawer);
    // A short line on the outer edge says that it can be taken hold of.
    const QPoint center = grip().center();
    const QSize half = record_.isLevel() ? QSize(kGripLength / 2, 0) : QSize(0, kGripLength / 2);
    QColor mark = colors.title;
    mark.setAlphaF(kGripOpacity);
    painter.setPen(QPen(mark, 2.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(center - QPoint(half.width(), half.height()),
                     center + QPoint(half.width(), half.height()));
}

void DrawerWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && grip().contains(event->position().toPoint())) {
        drag_ = Drag{.start = event->globalPosition().toPoint(), .size = record_.contentSize()};
    } else if (event->button() == Qt::RightButton) {
        event->ignore();
    }
}

void DrawerWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!drag_) {
        return;
    }
    const QPoint way = event->globalPosition().toPoint() - drag_->start;
    NSSize size = drag_->size;
    size.width += record_.edge() == NSMaxXEdge ? way.x() : record_.isLevel() ? 0 : -way.x();
    size.height += record_.edge() == NSMinYEdge ? way.y() : record_.isLevel() ? -way.y() : 0;
    record_.dragContentsToSize(size);
}

// Asked twice with one size and the mouse up, the delegate lets the drawer come to rest.
void DrawerWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (drag_ && event->button() == Qt::LeftButton) {
        drag_.reset();
        record_.dragContentsToSize(record_.contentSize());
        record_.dragContentsToSize(record_.contentSize());
    }
}

}  // namespace talvex
