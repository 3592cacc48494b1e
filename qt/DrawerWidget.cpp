#include "qt/DrawerWidget.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/FocusWalk.h"
#include "qt/conversions.h"
#include "qt/palette.h"

namespace talvex {
namespace {

constexpr int kSlideMilliseconds = 180;
// Ahead of the content along the edge; what is left of the two ends lies behind it.
constexpr double kLeadingEnd = 7.0;
constexpr double kGripLength = 24.0;
constexpr float kGripOpacity = 0.45F;

int whole(double value) { return static_cast<int>(std::lround(value)); }

}  // namespace

DrawerWidget::DrawerWidget(NSDrawer& record, Scale& scale, Host host, QWidget* canvas)
    : QWidget(canvas),
      record_(record),
      scale_(scale),
      host_(std::move(host)),
      stillPicture_(new QLabel(this)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setCursor(record_.isLevel() ? Qt::SplitVCursor : Qt::SplitHCursor);
    FocusWalk::markArea(*this);
    slide_.setDuration(kSlideMilliseconds);
    slide_.setEasingCurve(QEasingCurve::OutCubic);
    connect(&slide_, &QVariantAnimation::valueChanged, this,
            [this](const QVariant& depth) { show(depth.toDouble()); });
    connect(&slide_, &QVariantAnimation::finished, this, [this] {
        stillPicture_->hide();
        record_.finishSliding();
    });
    stillPicture_->hide();
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
        content_ = host_.makeContent(this);
        content_->setCursor(Qt::ArrowCursor);
        content_->show();
    }
}

int DrawerWidget::fullDepth() const {
    const QSize content = scale_.pixels(record_.contentSize());
    return border() + (record_.isLevel() ? content.height() : content.width());
}

void DrawerWidget::takeSize() {
    drag_.reset();
    const bool isSliding = slide_.state() == QAbstractAnimation::Running;
    if (record_.state() != NSDrawerOpeningState || isSliding || depth_ > 0.0) {
        standAt(record_.isOpenOrOpening() ? fullDepth() : 0.0);
    }
    if (isSliding) {
        record_.finishSliding();
    }
}

void DrawerWidget::drawerDidChange(const NSDrawer& /*drawer*/) {
    if (!record_.isOpenOrOpening()) {
        drag_.reset();
    }
    if (record_.state() == NSDrawerClosedState) {
        standAt(0.0);
        host_.didClose();
        return;
    }
    const bool isShut = depth_ == 0.0 && slide_.state() != QAbstractAnimation::Running;
    if (record_.state() == NSDrawerOpeningState && isShut) {
        open();
        return;
    }
    const double target = record_.isOpenOrOpening() ? fullDepth() : 0.0;
    if (drag_ || depth_ == target) {
        standAt(target);
        record_.finishSliding();
    } else {
        slideTo(target);
        place();
    }
}

// A window that isn't ready for it comes back to this when it is.
void DrawerWidget::open() {
    const bool mayOpen = host_.mayOpen();
    makeContentOnce();
    if (!mayOpen) {
        return;
    }
    place();
    host_.makeRoom(placeWhenOpen());
    slideTo(fullDepth());
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

void DrawerWidget::standAt(double depth) {
    slide_.stop();
    stillPicture_->hide();
    show(depth);
}

void DrawerWidget::show(double depth) {
    depth_ = depth;
    setVisible(depth > 0.0);
    place();
}

// A drawer that slides to less than it showed stays with the body. One at a side keeps its height
// while the body is on its way to another one.
QRect DrawerWidget::rectAt(double depth, const QRect& body) const {
    const int leading = scale_.pixels(record_.leadingOffset());
    const int trailing = scale_.pixels(record_.trailingOffset());
    const int shown = whole(depth);
    const int full = std::max(fullDepth(), shown);
    const int width = record_.isLevel() ? body.width() - leading - trailing : full;
    const int height = record_.isLevel() ? full : host_.bodyAtRest().height() - leading - trailing;
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

QRect DrawerWidget::placeWhenOpen() const {
    return record_.isOpenOrOpening() ? rectAt(fullDepth(), host_.bodyAtRest()) : QRect();
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

QRect DrawerWidget::contentRect(const QSize& size) const {
    const int end = scale_.pixels(kLeadingEnd);
    switch (record_.edge()) {
        case NSMinXEdge:
            return {QPoint(border(), end), size};
        case NSMaxXEdge:
            return {QPoint(width() - border() - size.width(), end), size};
        case NSMinYEdge:
            return {QPoint(end, height() - border() - size.height()), size};
        case NSMaxYEdge:
            break;
    }
    return {QPoint(end, border()), size};
}

void DrawerWidget::followBody() {
    setGeometry(rectAt(depth_, host_.body()));
    if (content_ != nullptr) {
        content_->setGeometry(contentRect(scale_.pixels(record_.contentSize())));
    }
    if (stillPicture_->isVisible()) {
        stillPicture_->setGeometry(contentRect(stillPicture_->size()));
    }
}

void DrawerWidget::keepPicture() {
    const QPixmap picture = grab(content_->geometry());
    stillPicture_->setPixmap(picture);
    stillPicture_->resize(picture.deviceIndependentSize().toSize());
}

QRect DrawerWidget::grip() const {
    switch (record_.edge()) {
        case NSMinXEdge:
            return {0, 0, border(), height()};
        case NSMaxXEdge:
            return {width() - border(), 0, border(), height()};
        case NSMinYEdge:
            return {0, height() - border(), width(), border()};
        case NSMaxYEdge:
            break;
    }
    return {0, 0, width(), border()};
}

void DrawerWidget::paintEvent(QPaintEvent* /*event*/) {
    const WindowColors& colors = windowColors(palette());
    QPainter painter(this);
    painter.fillRect(rect(), colors.border);
    const int line = scale_.line();
    painter.fillRect(rect().adjusted(line, line, -line, -line), colors.drawer);
    // A short line on the outer edge says that it can be taken hold of.
    const QPoint center = grip().center();
    const int length = scale_.pixels(kGripLength / 2.0);
    const QSize half = record_.isLevel() ? QSize(length, 0) : QSize(0, length);
    QColor mark = colors.title;
    mark.setAlphaF(kGripOpacity);
    painter.setPen(QPen(mark, scale_.exactly(2.0), Qt::SolidLine, Qt::RoundCap));
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
    const QPoint pixels = event->globalPosition().toPoint() - drag_->start;
    const NSPoint way{std::round(scale_.points(pixels.x())), std::round(scale_.points(pixels.y()))};
    NSSize size = drag_->size;
    size.width += record_.edge() == NSMaxXEdge ? way.x : record_.isLevel() ? 0.0 : -way.x;
    size.height += record_.edge() == NSMinYEdge ? way.y : record_.isLevel() ? -way.y : 0.0;
    record_.dragContentsToSize(size);
}

// Asked twice with one size and the mouse up, the delegate lets the drawer come to rest.
void DrawerWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (!drag_ || event->button() != Qt::LeftButton) {
        return;
    }
    drag_.reset();
    keepPicture();
    record_.dragContentsToSize(record_.contentSize());
    record_.dragContentsToSize(record_.contentSize());
    if (fullDepth() < depth_) {
        stillPicture_->raise();
        stillPicture_->show();
        followBody();
    }
}

}  // namespace talvex
