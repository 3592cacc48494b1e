#include "qt/CalculatorWindow.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <utility>

#include "qt/BodyWidget.h"
#include "qt/DrawerWidget.h"
#include "qt/KeyButton.h"
#include "qt/PanelWidget.h"
#include "qt/frame_extents.h"
#include "qt/menus.h"
#include "qt/screen_places.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

constexpr int kBar = static_cast<int>(NSWindow::kTitleBarHeight);

QMargins marginsAround(const QRect& body, const QSize& canvas) {
    return {body.left(), body.top(), canvas.width() - body.right() - 1,
            canvas.height() - body.bottom() - 1};
}

// The room that the drawers need on each side of the body.
QMargins roomFor(const Drawers& drawers) {
    const auto depth = [&drawers](DrawerName name) {
        const NSDrawer& drawer = drawers[name].record;
        const NSSize& size = drawer.maxContentSize();
        return static_cast<int>((drawer.isLevel() ? size.height : size.width) +
                                NSDrawer::kOuterBorder);
    };
    return {depth(DrawerName::constants), depth(DrawerName::conversion), depth(DrawerName::memory),
            depth(DrawerName::functions)};
}

QSize largestBody() {
    const NSRect frame = NSWindow::frameRectForContentRect(
        contentFrame({.displayViewMode = 1, .showStatusLine = true}));
    return {static_cast<int>(frame.width), static_cast<int>(frame.height)};
}

}  // namespace

CalculatorWindow::CalculatorWindow(DYXWindowController& controller)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      controller_(controller),
      drawerRoom_(roomFor(controller.drawers())),
      helpOn_(controller.localized(u"Help on")),
      focusWalk_(*this) {
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    setWindowTitle(toQString(controller_.views().window.title()));
    setFixedSize(largestBody().grownBy(drawerRoom_));
    addShortcuts(*this, controller_.views().menu);
    body_ = new BodyWidget(
        controller_, [this] { showPieces(); }, this);
    body_->move(drawerRoom_.left(), drawerRoom_.top());
    makeDrawers();
    body_->raise();
    placeOnScreen();
    controller_.views().window.setObserver(this);
    whenScreensChange(*this, [this] {
        comeIntoSight();
        tellPlace();
    });
    showPieces();
}

CalculatorWindow::~CalculatorWindow() { controller_.views().window.setObserver(nullptr); }

void CalculatorWindow::makeDrawers() {
    const DrawerWidget::Host host{.body = [this] { return bodyRect(); },
                                  .didMove = [this] { showPieces(); },
                                  .makeRoom = [this](const QRect& wanted) { makeRoomFor(wanted); }};
    const auto make = [&](DrawerName name, std::function<QWidget*(QWidget*)> makeContent) {
        drawers_.at(static_cast<std::size_t>(name)) = new DrawerWidget(
            controller_.drawers()[name].record, std::move(makeContent), host, this);
    };
    const WindowViews& views = controller_.views();
    const auto panel = [](const Panel& content) {
        return [&content](QWidget* parent) { return makePanelWidget(content, parent); };
    };
    make(DrawerName::memory, panel(views.memoryPanel));
    make(DrawerName::constants, panel(views.constantsPanel));
    make(DrawerName::functions, panel(views.functionsPanel));
    make(DrawerName::conversion,
         [&views](QWidget* parent) { return makeConversionWidget(views.conversionPanel, parent); });
}

QRect CalculatorWindow::bodyRect() const { return body_->geometry(); }

QRegion CalculatorWindow::visibleRegion() const {
    QRegion region(bodyRect());
    for (const DrawerWidget* const drawer : drawers_) {
        region += drawer->visibleRect();
    }
    return region;
}

void CalculatorWindow::windowWillAnimate(const NSWindow& /*window*/) { body_->prepareMotion(); }

void CalculatorWindow::windowDidChange(const NSWindow& /*window*/) {
    body_->followRecord();
    const QPoint place = placeOfCanvas();
    if (isVisible() && place != pos() && wouldBeInSight(place)) {
        move(place);
    }
}

void CalculatorWindow::showPieces() {
    if (std::count(drawers_.begin(), drawers_.end(), nullptr) > 0) {
        return;  // not all made yet
    }
    for (DrawerWidget* const drawer : drawers_) {
        drawer->followBody();
    }
    const QRegion region = visibleRegion();
    if (mask() != region) {
        setMask(region);
    }
    if (isVisible()) {
        publishMargins();
    }
}

void CalculatorWindow::publishMargins() {
    const QMargins margins = marginsAround(bodyRect(), size());
    if (margins != std::exchange(publishedMargins_, margins)) {
        publishFrameExtents(*this, margins);
    }
}

// A drawer that would open beyond the edge of the screen moves the window as far as it needs, but
// never the title bar out of sight.
void CalculatorWindow::makeRoomFor(const QRect& wanted) {
    if (!isVisible()) {
        return;
    }
    const QRect all = (wanted | bodyRect()).translated(pos());
    const QRect visible = screen()->availableGeometry();
    QPoint step(std::min(0, visible.right() - all.right()),
                std::min(0, visible.bottom() - all.bottom()));
    step.rx() += std::max(0, visible.left() - all.left() - step.x());
    step.ry() += std::max(0, visible.top() - all.top() - step.y());
    if (!step.isNull()) {
        move(pos() + step);
    }
}

void CalculatorWindow::placeOnScreen() {
    if (controller_.hasSavedFrame()) {
        move(placeOfCanvas());
        comeIntoSight();
    } else {
        moveToMiddle();
    }
}

// A place that is on no screen, or not any more, gives way to the middle of one.
void CalculatorWindow::comeIntoSight() {
    if (!wouldBeInSight(pos())) {
        moveToMiddle();
    }
}

void CalculatorWindow::moveToMiddle() {
    const QRect visible = QGuiApplication::primaryScreen()->availableGeometry();
    move(visible.center() - bodyRect().center());
}

// Where the canvas would be for the body to be at the record's place.
QPoint CalculatorWindow::placeOfCanvas() const {
    return onScreen(controller_.views().window.frame()).topLeft() - bodyRect().topLeft();
}

bool CalculatorWindow::wouldBeInSight(const QPoint& placeOfCanvas) const {
    return isInSight({placeOfCanvas + bodyRect().topLeft(), QSize(bodyRect().width(), kBar)});
}

void CalculatorWindow::moveEvent(QMoveEvent* /*event*/) { tellPlace(); }

// The record counts from the bottom of the first screen, which may change, too.
void CalculatorWindow::tellPlace() {
    NSWindow& record = controller_.views().window;
    const QPoint corner = pos() + bodyRect().topLeft();
    if (onScreen(record.frame()).topLeft() != corner) {
        record.setFrame(placeOfRecord({corner, onScreen(record.frame()).size()}));
    }
}

// Over a key the menu begins with the help on that key.
void CalculatorWindow::contextMenuEvent(QContextMenuEvent* event) {
    NSMenu menu = controller_.views().menu;
    const auto* const key = dynamic_cast<const KeyButton*>(childAt(event->pos()));
    if (key != nullptr && !key->record().alternateTitle().empty()) {
        NSMenuItem item;
        item.title = helpOn_ + u" \u201C" + key->record().accessibilityLabel() + u"\u201D";
        item.action = [this, command = key->record().alternateTitle()](const NSMenuItem&) {
            controller_.showHelpFor(command);
        };
        menu.items.insert(menu.items.begin(), {std::move(item), NSMenuItem{}});
    }
    popUpMenu(menu, event->globalPos(), *this);
}

void CalculatorWindow::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    controller_.terminate();
}

void CalculatorWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    publishedMargins_ = {};
    publishMargins();
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
    if (event->key() == Qt::Key_F10) {
        popUpMenu(controller_.views().menu, body_->mapToGlobal(QPoint(0, kBar)), *this);
        return;
    }
    if (focusWalk_.take(*event)) {
        return;
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

// A window without the keyboard hears of no release, so that no modifier may outlive that; and one
// that gets the keyboard takes over what is held.
void CalculatorWindow::adoptModifiers() {
    if (heldModifiers_.adopt(QGuiApplication::queryKeyboardModifiers())) {
        sendFlags();
    }
}

void CalculatorWindow::dropModifiers() {
    if (heldModifiers_.clear()) {
        sendFlags();
    }
}

void CalculatorWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        isActiveWindow() ? adoptModifiers() : dropModifiers();
    }
}

void CalculatorWindow::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    adoptModifiers();
}

void CalculatorWindow::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    dropModifiers();
}

// Tab is a key of the calculator.
bool CalculatorWindow::focusNextPrevChild(bool /*next*/) { return false; }

}  // namespace talvex
