#include "qt/TopLevel.h"

#include <QGuiApplication>
#include <QWindow>
#include <utility>

#include "qt/frame_extents.h"

namespace talvex {
namespace {

// Until the picture of the body has come to the screen, and until what is below it has; a
// compositor takes two frames for it.
constexpr int kCoverMilliseconds = 40;
constexpr int kUncoverMilliseconds = 60;
// By then the desktop has obeyed, or never will.
constexpr int kObeyMilliseconds = 300;

// A client can't place itself there, so that a window which grows would move what it shows.
bool isWayland() { return QGuiApplication::platformName().startsWith(QLatin1String("wayland")); }

}  // namespace

TopLevel::TopLevel(QWidget& window, const Canvas& canvas, Host host)
    : window_(window), canvas_(canvas), host_(std::move(host)) {
    for (QTimer* const timer : {&next_, &uncover_}) {
        timer->setSingleShot(true);
    }
    QObject::connect(&uncover_, &QTimer::timeout, &window_, [this] { cover_.reset(); });
    QObject::connect(&next_, &QTimer::timeout, &window_,
                     [this] { phase_ == Phase::covered ? askForShape() : takeShape(); });
}

QPoint TopLevel::cornerIn(Shape shape) const {
    return shape == Shape::canvas ? QPoint(canvas_.room.left(), canvas_.room.top()) : QPoint();
}

// While the body moves it is as large as the larger of both sizes, and only the body can be seen.
QSize TopLevel::sizeOf(Shape shape) const {
    return shape == Shape::canvas ? canvas_.largestBody.grownBy(canvas_.room)
                                  : host_.body().size().expandedTo(host_.bodyAtRest().size());
}

void TopLevel::begin(Shape shape) {
    shape_ = wanted_ = isWayland() ? Shape::canvas : shape;
    size_ = sizeOf(shape_);
    window_.resize(size_);
    host_.didTakeShape();
}

void TopLevel::takeCanvas(const Canvas& canvas) {
    const QPoint kept = place();
    canvas_ = canvas;
    if (window_.windowHandle() != nullptr) {
        cover_.reset();
        host_.didTakeShape();
        ask({kept - corner(), sizeOf(shape_)});
        tellMargins();
    }
}

void TopLevel::didCreate() {
    window_.windowHandle()->setMinimumSize(size_);
    window_.windowHandle()->setMaximumSize(size_);
    if (shape_ == Shape::canvas) {
        staysCanvas_ = isWayland() || isFrameExtentsKnown();
        tellMargins();
    }
}

bool TopLevel::isCanvas() const {
    return phase_ == Phase::rest && shape_ == Shape::canvas && wanted_ == Shape::canvas;
}

void TopLevel::become(Shape shape) {
    wanted_ = shape;
    if (phase_ == Phase::rest && wanted_ != shape_) {
        phase_ = Phase::covered;
        cover();
        // The first look at a drawer's content takes longer than that.
        QTimer::singleShot(0, &window_, [this] { next_.start(kCoverMilliseconds); });
    }
}

// A picture of the body hides what happens below it, so that nothing seems to move.
void TopLevel::cover() {
    constexpr auto kFlags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                            Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus;
    uncover_.stop();
    if (!window_.isVisible()) {
        return;
    }
    cover_ = std::make_unique<QLabel>(nullptr, kFlags);
    cover_->setAttribute(Qt::WA_ShowWithoutActivating);
    cover_->setPixmap(window_.grab(host_.body()));
    cover_->setGeometry({place(), host_.body().size()});
    cover_->show();
}

void TopLevel::askForShape() {
    if (wanted_ == shape_) {
        arrive();
        return;
    }
    phase_ = Phase::asked;
    // Of the larger shape at its place this is the body, of the smaller one a part of it.
    window_.setMask(QRect(cornerIn(Shape::canvas), host_.body().size()));
    coming_ = wanted_;
    keptPlace_ = coming_ == Shape::body ? host_.placeWithoutDrawers() : place();
    staysCanvas_ = coming_ == Shape::canvas && isFrameExtentsKnown();
    tellMargins();
    ask({keptPlace_ - cornerIn(coming_), sizeOf(coming_)});
    next_.start(kObeyMilliseconds);
}

void TopLevel::ask(const QRect& geometry) {
    QWindow& handle = *window_.windowHandle();
    handle.setMinimumSize(size_.boundedTo(geometry.size()));
    handle.setMaximumSize(size_.expandedTo(geometry.size()));
    handle.setGeometry(withinBorder(geometry));
    size_ = geometry.size();
    handle.setMinimumSize(size_);
    handle.setMaximumSize(size_);
}

// The toolkit leaves out of account that it is the border which comes to the place asked for.
QRect TopLevel::withinBorder(const QRect& geometry) const {
    const int border = borderAround(window_);
    return geometry.translated(-border, -border);
}

// Always those around the smallest body: a window manager that hears of others than before may take
// the difference off the window.
void TopLevel::tellMargins() const {
    if (!staysCanvas_) {
        return;
    }
    const QSize rest = canvas_.largestBody - canvas_.smallestBody;
    publishFrameExtents(window_, canvas_.room + QMargins(0, 0, rest.width(), rest.height()));
}

void TopLevel::didResize() {
    if (phase_ == Phase::asked && window_.size() == size_) {
        takeShape();
    }
}

// The place comes after the size.
void TopLevel::takeShape() {
    next_.stop();
    shape_ = coming_;
    host_.didTakeShape();
    QTimer::singleShot(0, &window_, [this] { arrive(); });
}

void TopLevel::arrive() {
    phase_ = Phase::rest;
    uncover_.start(kUncoverMilliseconds);
    followBody();
    if (wanted_ != shape_) {
        become(wanted_);
        return;
    }
    host_.didArrive();
}

void TopLevel::moveTo(const QPoint& place) {
    if (phase_ == Phase::asked) {
        ask({place - cornerIn(coming_), size_});
        return;
    }
    const QRect geometry(place - corner(), window_.size());
    window_.setGeometry(geometry);  // which is so to us at once
    if (const QRect within = withinBorder(geometry); within != geometry) {
        window_.windowHandle()->setGeometry(within);
    }
}

void TopLevel::followBody() {
    if (cover_ != nullptr && cover_->size() != host_.body().size()) {
        cover_.reset();
    }
    if (window_.windowHandle() == nullptr || phase_ == Phase::asked || shape_ == Shape::canvas) {
        return;
    }
    const bool moves = host_.body().size() != host_.bodyAtRest().size();
    const QSize size = sizeOf(Shape::body).expandedTo(moves ? size_ : QSize());
    if (size != size_) {
        ask({window_.geometry().topLeft(), size});
    }
}

void TopLevel::showOnly(const QRegion& region) {
    if (phase_ == Phase::asked && shape_ != coming_) {
        return;
    }
    const bool isAll = region == window_.rect() && window_.size() == size_;
    if (const QRegion mask = isAll ? QRegion() : region; window_.mask() != mask) {
        window_.setMask(mask);
    }
}

}  // namespace talvex
