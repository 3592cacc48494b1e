#include "qt/CalculatorWindow.h"

#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <utility>

#include "qt/BodyWidget.h"
#include "qt/DrawerWidget.h"
#include "qt/KeyButton.h"
#include "qt/PanelWidget.h"
#include "qt/SizeGrip.h"
#include "qt/menus.h"
#include "qt/screen_places.h"
#include "qt/window_size.h"
#include "ui/window_layout.h"

namespace talvex {
namespace {

// How often to look whether the keys were let go of that were down when the window got the
// keyboard.
constexpr int kAdoptedWatchMilliseconds = 50;

// The room that the drawers need on each side of the body.
QMargins roomFor(const Drawers& drawers, const Scale& scale) {
    const auto depth = [&](DrawerName name) {
        const NSDrawer& drawer = drawers[name].record;
        const NSSize& size = drawer.maxContentSize();
        return scale.pixels(drawer.isLevel() ? size.height : size.width) +
               scale.pixels(NSDrawer::kOuterBorder);
    };
    return {depth(DrawerName::constants), depth(DrawerName::conversion), depth(DrawerName::memory),
            depth(DrawerName::functions)};
}

NSSize sizeOfBody(const WindowLayout& layout) {
    const NSRect frame = NSWindow::frameRectForContentRect(contentFrame(layout));
    return {frame.width, frame.height};
}

NSSize largestBody() { return sizeOfBody({.displayViewMode = 1, .showStatusLine = true}); }
NSSize smallestBody() { return sizeOfBody({.keyPadHidden = true}); }

TopLevel::Canvas canvasFor(const Drawers& drawers, const Scale& scale) {
    return {.room = roomFor(drawers, scale),
            .smallestBody = scale.pixels(smallestBody()),
            .largestBody = scale.pixels(largestBody())};
}

}  // namespace

CalculatorWindow::CalculatorWindow(DYXWindowController& controller, Scale& scale)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint),
      controller_(controller),
      scale_(scale),
      helpOn_(controller.localized(u"Help on")),
      topLevel_(*this, canvasFor(controller.drawers(), scale),
                {.body = [this] { return bodyRect(); },
                 .bodyAtRest = [this] { return body_->restingPlace(); },
                 .placeWithoutDrawers = [this] { return place_.home(); },
                 .didTakeShape = [this] { putBody(); },
                 .didArrive = [this] { didTakeShape(); }}),
      place_(topLevel_, controller.views().window, scale, [this] { return bodyRect().size(); }),
      focusWalk_(*this) {
    setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::StrongFocus);
    setWindowTitle(toQString(controller_.views().window.title()));
    addShortcuts(*this, controller_.views().menu);
    scale_.setFactor(factorOfRecord());
    makeBody();
    makeDrawers();
    body_->raise();
    topLevel_.takeCanvas(canvasFor(controller_.drawers(), scale_));
    topLevel_.begin(controller_.drawers().areClosed() ? TopLevel::Shape::body
                                                      : TopLevel::Shape::canvas);
    controller_.hasSavedFrame() ? place_.takePlaceOfRecord() : place_.takeMiddle();
    controller_.views().window.setObserver(this);
    whenScreensChange(*this, [this] {
        takeSize();
        place_.comeIntoSight();
        place_.tellRecord();
    });
    showPieces();
    create();
    topLevel_.didCreate();
    windowDidChangeLevel(controller_.views().window);
    connect(windowHandle(), &QWindow::screenChanged, this, [this] { topLevel_.tellMargins(); });
    windowHandle()->installEventFilter(this);
    adoptedWatch_.setInterval(kAdoptedWatchMilliseconds);
    connect(&adoptedWatch_, &QTimer::timeout, this,
            [this] { keepModifiers(QGuiApplication::queryKeyboardModifiers()); });
}

CalculatorWindow::~CalculatorWindow() { controller_.views().window.setObserver(nullptr); }

void CalculatorWindow::makeBody() {
    body_ = new BodyWidget(
        controller_, scale_,
        {.didResize = [this] { showPieces(); }, .didArrive = [this] { openWaitingDrawers(); }},
        this);
    sizeGrip_ = new SizeGrip(
        scale_, [this](double factor) { askForSize(factor); }, body_);
}

void CalculatorWindow::putBody() {
    body_->move(topLevel_.corner());
    showPieces();
}

void CalculatorWindow::didTakeShape() {
    place_.followShape();
    takeSize();
    openWaitingDrawers();
}

bool CalculatorWindow::mayDrawerOpen() {
    if (body_->isMoving()) {
        return false;
    }
    topLevel_.becomeCanvas();
    return topLevel_.isCanvas();
}

void CalculatorWindow::makeDrawers() {
    const DrawerWidget::Host host{
        .body = [this] { return bodyRect(); },
        .bodyAtRest = [this] { return body_->restingPlace(); },
        .mayOpen = [this] { return mayDrawerOpen(); },
        .didMove = [this] { showPieces(); },
        .makeRoom =
            [this](const QRect& wanted) {
                place_.makeRoomFor(wanted.translated(-topLevel_.corner()));
            },
        .didClose = [this] { giveBackRoom(); },
        .makeContent = {}};
    const auto make = [&](DrawerName name, std::function<QWidget*(QWidget*)> makeContent) {
        DrawerWidget::Host own = host;
        own.makeContent = std::move(makeContent);
        drawers_.at(static_cast<std::size_t>(name)) =
            new DrawerWidget(controller_.drawers()[name].record, scale_, std::move(own), this);
    };
    const WindowViews& views = controller_.views();
    const auto panel = [this](const Panel& content) {
        return
            [this, &content](QWidget* parent) { return makePanelWidget(content, scale_, parent); };
    };
    make(DrawerName::memory, panel(views.memoryPanel));
    make(DrawerName::constants, panel(views.constantsPanel));
    make(DrawerName::functions, panel(views.functionsPanel));
    make(DrawerName::conversion, [this, &views](QWidget* parent) {
        return makeConversionWidget(views.conversionPanel, scale_, parent);
    });
}

QRect CalculatorWindow::bodyRect() const { return body_->geometry(); }

QRegion CalculatorWindow::visibleRegion() const {
    QRegion region(bodyRect());
    for (const DrawerWidget* const drawer : drawers_) {
        region += drawer->visibleRect();
    }
    return region;
}

void CalculatorWindow::showAlert() { body_->flashDisplay(); }

void CalculatorWindow::windowWillAnimate(const NSWindow& /*window*/) { body_->prepareMotion(); }

void CalculatorWindow::windowDidChangeLevel(const NSWindow& window) {
    windowHandle()->setFlag(Qt::WindowStaysOnTopHint, window.level() == NSWindowLevel::floating);
}

void CalculatorWindow::windowDidChange(const NSWindow& /*window*/) {
    takeSize();
    body_->followRecord();
    if (isVisible()) {
        place_.followRecord();
    }
}

bool CalculatorWindow::isWhole() const {
    return std::count(drawers_.begin(), drawers_.end(), nullptr) == 0;
}

void CalculatorWindow::showPieces() {
    if (sizeGrip_ != nullptr) {
        sizeGrip_->place();
    }
    if (!isWhole()) {
        return;
    }
    for (DrawerWidget* const drawer : drawers_) {
        drawer->followBody();
    }
    topLevel_.followBody();
    topLevel_.showOnly(visibleRegion());
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
    if (!wanted.isEmpty() || topLevel_.staysCanvas()) {
        place_.giveBackRoomBut(wanted.translated(-topLevel_.corner()));
    }
    // The key pad may go with the last drawer.
    QTimer::singleShot(0, this, [this] {
        if (controller_.drawers().areClosed() && !topLevel_.staysCanvas() && !body_->isMoving()) {
            topLevel_.becomeBody();
        }
    });
}

double CalculatorWindow::factorOfRecord() const {
    const NSSize body = largestBody();
    const QRect room = availableAround(isVisible() ? bodyRect().translated(pos())
                                                   : onScreen(controller_.views().window.frame()));
    return factorFor(controller_.views().window.size(),
                     {static_cast<int>(body.width), static_cast<int>(body.height)}, room.size());
}

void CalculatorWindow::takeSize() {
    const double factor = factorOfRecord();
    if (factor == scale_.factor() || topLevel_.isChanging()) {
        return;
    }
    const QPoint place = topLevel_.place();
    scale_.setFactor(factor);
    body_->takeSize();
    topLevel_.takeCanvas(canvasFor(controller_.drawers(), scale_));
    for (DrawerWidget* const drawer : drawers_) {
        drawer->takeSize();
    }
    place_.keep(place);
    showPieces();
}

void CalculatorWindow::askForSize(double factor) {
    controller_.choose(
        settingRow<&Settings::windowSize>(),
        std::max(kSmallestSize, static_cast<std::int32_t>(std::lround(100.0 * factor))));
}

// With Ctrl the wheel sets the size; a touch pad tells a notch of it in many small parts.
void CalculatorWindow::wheelEvent(QWheelEvent* event) {
    constexpr double kStep = 0.05;
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        event->ignore();
        return;
    }
    wheelWay_ += event->angleDelta().y();
    const int notches = wheelWay_ / QWheelEvent::DefaultDeltasPerStep;
    if (notches != 0) {
        wheelWay_ -= notches * QWheelEvent::DefaultDeltasPerStep;
        askForSize(scale_.factor() + kStep * notches);
    }
}

void CalculatorWindow::moveEvent(QMoveEvent* /*event*/) {
    if (!topLevel_.isChanging()) {
        place_.tellRecord();
    }
}

void CalculatorWindow::resizeEvent(QResizeEvent* /*event*/) {
    topLevel_.didResize();
    showPieces();
}

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
    popUpMenu(menu, event->globalPos(), scale_, *this);
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
        popUpMenu(controller_.views().menu,
                  body_->mapToGlobal(QPoint(0, scale_.pixels(NSWindow::kTitleBarHeight))), scale_,
                  *this);
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
