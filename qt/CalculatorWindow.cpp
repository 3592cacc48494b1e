#include "qt/CalculatorWindow.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "qt/DisplayWidget.h"
#include "qt/KeyButton.h"
#include "qt/TitleBar.h"
#include "qt/frame_extents.h"
#include "qt/menus.h"
#include "qt/palette.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

// The room that the drawers need on each side of the body, and the largest body.
constexpr QMargins kDrawerRoom(360, 240, 200, 220);
constexpr QSize kLargestBody(404, 288 + static_cast<int>(NSWindow::kTitleBarHeight));

QMargins marginsAround(const QRect& body, const QSize& canvas) {
    return {body.left(), body.top(), canvas.width() - body.right() - 1,
            canvas.height() - body.bottom() - 1};
}

// Follows the record of the key pad for as long as the widget lives.
class KeyPadWidget final : public QWidget {
  public:
    KeyPadWidget(const KeyPad& keyPad, QWidget* parent)
        : QWidget(parent), observer_(*this, *keyPad.view()) {
        const auto rows = keyPadRows();
        for (std::size_t index = 0; index < rows.size(); ++index) {
            new KeyButton(*keyPad.buttons()[index], rows[index].group, this);
        }
    }

  private:
    RecordObserver observer_;
};

}  // namespace

CalculatorWindow::CalculatorWindow(DYXWindowController& controller)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      controller_(controller),
      body_(new QWidget(this)),
      titleBar_(new TitleBar(controller, body_)),
      content_(new QWidget(body_)) {
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    setWindowTitle(toQString(controller_.views().window.title()));
    setFixedSize(kLargestBody.grownBy(kDrawerRoom));
    new DisplayWidget(controller_, content_);
    new KeyPadWidget(controller_.views().keyPad, content_);
    addShortcuts(*this, controller_.views().menu);
    if (controller_.hasSavedFrame() && isOnScreen(QRect(placeOfRecord(), size()))) {
        move(placeOfRecord());
    } else {
        centerOnScreen();
    }
    controller_.views().window.setObserver(this);
    windowDidChange(controller_.views().window);
}

CalculatorWindow::~CalculatorWindow() { controller_.views().window.setObserver(nullptr); }

QRect CalculatorWindow::bodyRect() const {
    const NSRect& frame = controller_.views().window.frame();
    return {kDrawerRoom.left(), kDrawerRoom.top(), static_cast<int>(frame.width),
            static_cast<int>(frame.height)};
}

void CalculatorWindow::windowDidChange(const NSWindow& /*window*/) {
    const QRect body = bodyRect();
    constexpr int kBar = static_cast<int>(NSWindow::kTitleBarHeight);
    body_->setGeometry(body);
    titleBar_->setGeometry(0, 0, body.width(), kBar);
    content_->setGeometry(0, kBar, body.width(), body.height() - kBar);
    setMask(body);
    if (isVisible()) {
        if (placeOfRecord() != pos() && isOnScreen(QRect(placeOfRecord(), size()))) {
            move(placeOfRecord());
        }
        publishFrameExtents(*this, marginsAround(body, size()));
    }
    update();
}

void CalculatorWindow::centerOnScreen() {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    move(screen.center() - bodyRect().center());
}

// The record's origin is the lower left corner of the first screen. A saved place may be any
// number.
QPoint CalculatorWindow::placeOfRecord() const {
    static constexpr double kFarthest = 100'000.0;
    const NSRect& frame = controller_.views().window.frame();
    const auto bounded = [](double value) {
        return static_cast<int>(std::clamp(std::isnan(value) ? 0.0 : value, -kFarthest, kFarthest));
    };
    const int bottom = QGuiApplication::primaryScreen()->geometry().bottom() + 1;
    return QPoint(bounded(frame.x), bottom - bounded(frame.y + frame.height)) -
           bodyRect().topLeft();
}

// Whether enough of the title bar is in sight to take hold of it.
bool CalculatorWindow::isOnScreen(const QRect& canvas) const {
    constexpr int kInSight = 40;
    const QRect bar(canvas.topLeft() + bodyRect().topLeft(),
                    QSize(bodyRect().width(), static_cast<int>(NSWindow::kTitleBarHeight)));
    const QList<QScreen*> screens = QGuiApplication::screens();
    return std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
        const QRect seen = screen->availableGeometry().intersected(bar);
        return seen.width() >= kInSight && seen.height() == bar.height();
    });
}

void CalculatorWindow::moveEvent(QMoveEvent* /*event*/) {
    const QPoint corner = pos() + bodyRect().topLeft();
    NSRect frame = controller_.views().window.frame();
    frame.x = corner.x();
    frame.y = QGuiApplication::primaryScreen()->geometry().bottom() + 1 - corner.y() - frame.height;
    if (!(frame == controller_.views().window.frame())) {
        controller_.views().window.setFrame(frame);
    }
}

void CalculatorWindow::contextMenuEvent(QContextMenuEvent* event) {
    popUpMenu(controller_.views().menu, event->globalPos(), *this);
}

void CalculatorWindow::paintEvent(QPaintEvent* /*event*/) {
    const WindowColors& colors = windowColors(palette());
    QPainter painter(this);
    painter.fillRect(bodyRect(), colors.border);
    painter.fillRect(bodyRect().adjusted(1, 1, -1, -1), colors.window);
}

void CalculatorWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    publishFrameExtents(*this, marginsAround(bodyRect(), size()));
    activateWindow();
}

void CalculatorWindow::sendFlags() {
    controller_.views().window.sendEvent(
        {.type = NSFlagsChanged, .modifierFlags = heldModifiers_.flags()});
}

void CalculatorWindow::keyPressEvent(QKeyEvent* event) {
    if (heldModifiers_.take(*event)) {
        sendFlags();
    }
    const auto character = characterOfKey(*event);
    const bool isTaken =
        character && controller_.views().window.sendEvent(
                         {.type = NSKeyDown,
                          .charactersIgnoringModifiers = std::u16string(1, *character),
                          .modifierFlags = heldModifiers_.flags()});
    event->setAccepted(isTaken);
}

void CalculatorWindow::keyReleaseEvent(QKeyEvent* event) {
    if (heldModifiers_.take(*event)) {
        sendFlags();
    }
    event->ignore();
}

// A window without the focus hears of no release, so that no modifier may outlive the focus; and
// one that gets the focus takes over what is held.
void CalculatorWindow::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (heldModifiers_.adopt(QGuiApplication::queryKeyboardModifiers())) {
        sendFlags();
    }
}

void CalculatorWindow::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    if (heldModifiers_.clear()) {
        sendFlags();
    }
}

// Tab is a key of the calculator.
bool CalculatorWindow::focusNextPrevChild(bool /*next*/) { return false; }

}  // namespace talvex
