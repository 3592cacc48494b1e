#include "qt/CalculatorWindow.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>
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

// How often to look whether the keys were let go of that were down when the window got the
// keyboard.
constexpr int kAdoptedWatchMilliseconds = 50;

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

QSize sizeOfBody(const WindowLayout& layout) {
    const NSRect frame = NSWindow::frameRectForContentRect(contentFrame(layout));
    return {static_cast<int>(frame.width), static_cast<int>(frame.height)};
}

QSize largestBody() { return sizeOfBody({.displayViewMode = 1, .showStatusLine = true}); }
QSize smallestBody() { return sizeOfBody({.keyPadHidden = true}); }

}  // namespace

CalculatorWindow::CalculatorWindow(DYXWindowController& controller)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      controller_(controller),
      drawerRoom_(roomFor(controller.drawers())),
      helpOn_(controller.localized(u"Help on")),
      place_(*this, controller.views().window, [this] { return bodyRect(); }),
      focusWalk_(*this) {
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    setWindowTitle(toQString(controller_.views().window.title()));
    setFixedSize(largestBody().grownBy(drawerRoom_));
    addShortcuts(*this, controller_.views().menu);
    makeBody();
    makeDrawers();
    body_->raise();
    controller_.hasSavedFrame() ? place_.takePlaceOfRecord() : place_.takeMiddle();
    controller_.views().window.setObserver(this);
    whenScreensChange(*this, [this] {
        place_.comeIntoSight();
        place_.tellRecord();
    });
    showPieces();
    create();
    publishMargins();
    connect(windowHandle(), &QWindow::screenChanged, this, [this] { publishMargins(); });
    windowHandle()->installEventFilter(this);
    adoptedWatch_.setInterval(kAdoptedWatchMilliseconds);
    connect(&adoptedWatch_, &QTimer::timeout, this,
            [this] { keepModifiers(QGuiApplication::queryKeyboardModifiers()); });
}

CalculatorWindow::~CalculatorWindow() { controller_.views().window.setObserver(nullptr); }

void CalculatorWindow::makeBody() {
    body_ = new BodyWidget(
        controller_,
        {.didResize = [this] { showPieces(); }, .didArrive = [this] { openWaitingDrawers(); }},
        this);
    body_->move(drawerRoom_.left(), drawerRoom_.top());
}

void CalculatorWindow::makeDrawers() {
    const DrawerWidget::Host host{
        .body = [this] { return bodyRect(); },
        .bodyAtRest = [this] { return body_->restingPlace(); },
        .isBodyMoving = [this] { return body_->isMoving(); },
        .didMove = [this] { showPieces(); },
        .makeRoom = [this](const QRect& wanted) { place_.makeRoomFor(wanted); },
        .didClose = [this] { giveBackRoom(); }};
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
    if (isVisible()) {
        place_.followRecord();
    }
}

bool CalculatorWindow::isWhole() const {
    return std::count(drawers_.begin(), drawers_.end(), nullptr) == 0;
}

void CalculatorWindow::showPieces() {
    if (!isWhole()) {
        return;
    }
    for (DrawerWidget* const drawer : drawers_) {
        drawer->followBody();
    }
    const QRegion region = visibleRegion();
    if (mask() != region) {
        setMask(region);
    }
}

void CalculatorWindow::openWaitingDrawers() {
    if (isWhole()) {
        for (DrawerWidget* const drawer : drawers_) {
            drawer->drawerDidChange(drawer->record());
        }
    }
}

void CalculatorWindow::giveBackRoom() {
    QRect wanted;
    for (const DrawerWidget* const drawer : drawers_) {
        wanted |= drawer->placeWhenOpen();
    }
    place_.giveBackRoomBut(wanted);
}

// Whatever the layout and whatever a window manager made of the size: one that hears of other
// margins than before may take the difference off the window.
void CalculatorWindow::publishMargins() {
    const QSize rest = largestBody() - smallestBody();
    publishFrameExtents(*this, drawerRoom_ + QMargins(0, 0, rest.width(), rest.height()));
}

void CalculatorWindow::moveEvent(QMoveEvent* /*event*/) { place_.tellRecord(); }

// Over a key the menu begins with the help on that key.
void CalculatorWindow::contextMenuEvent(QContextMenuEvent* event) {
    NSMenu menu = controller_.views().menu;
    const auto* const key = dynamic_cast<const KeyButton*>(childAt(event->pos()));
    if (key != nullptr && key->hasHelp()) {
        NSMenuItem item;
        item.title = helpOn_ + u" \u201C" + key->record().accessibilityLabel() + u"\u201D";
        item.action = [this, command = key->record().command()](const NSMenuItem&) {
            controller_.help().showHelpFor(command);
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
    if (!event->spontaneous()) {
        place_.insistOnceMapped();
    }
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

// A window without the keyboard hears of no release, so that no modifier may outlive that. One that
// gets the keyboard takes over what is held, and watches it: the release may go to the window
// manager, whose key it was.
void CalculatorWindow::adoptModifiers() {
    if (heldModifiers_.adopt(QGuiApplication::queryKeyboardModifiers())) {
        sendFlags();
    }
    if (heldModifiers_.flags() != 0) {
        adoptedWatch_.start();
    }
}

void CalculatorWindow::keepModifiers(Qt::KeyboardModifiers modifiers) {
    if (heldModifiers_.keepOnly(modifiers)) {
        sendFlags();
    }
    if (heldModifiers_.flags() == 0) {
        adoptedWatch_.stop();
    }
}

// A click says which modifier keys are down, as a key does.
bool CalculatorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == windowHandle() && event->type() == QEvent::MouseButtonPress) {
        keepModifiers(static_cast<QMouseEvent*>(event)->modifiers());
    }
    return QWidget::eventFilter(watched, event);
}

void CalculatorWindow::dropModifiers() {
    adoptedWatch_.stop();
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
