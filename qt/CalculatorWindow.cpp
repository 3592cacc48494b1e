#include "qt/CalculatorWindow.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <cmath>

#include "qt/BodyWidget.h"
#include "qt/KeyButton.h"
#include "qt/SizeGrip.h"
#include "qt/canvas_size.h"
#include "qt/menus.h"
#include "qt/screen_places.h"
#include "qt/window_size.h"

namespace talvex {

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
      modifiers_(controller.views().window),
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
    drawers_ = std::make_unique<WindowDrawers>(controller_.drawers(), controller_.views(), scale_,
                                               host, this);
}

QRect CalculatorWindow::bodyRect() const { return body_->geometry(); }

QRegion CalculatorWindow::visibleRegion() const { return drawers_->visibleRegion() + bodyRect(); }

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

void CalculatorWindow::showPieces() {
    if (sizeGrip_ != nullptr) {
        sizeGrip_->place();
    }
    if (drawers_ == nullptr) {
        return;
    }
    drawers_->followBody();
    topLevel_.followBody();
    topLevel_.showOnly(visibleRegion());
}

void CalculatorWindow::openWaitingDrawers() {
    if (drawers_ != nullptr) {
        drawers_->openWaiting();
    }
}

void CalculatorWindow::giveBackRoom() {
    const QRect wanted = drawers_->placeWhenOpen();
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
    drawers_->takeSize();
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

void CalculatorWindow::keyPressEvent(QKeyEvent* event) {
    modifiers_.take(*event);
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
                          .modifierFlags = modifiers_.flags()});
    event->setAccepted(isTaken);
}

void CalculatorWindow::keyReleaseEvent(QKeyEvent* event) {
    modifiers_.take(*event);
    event->ignore();
}

// A click says which modifier keys are down, as a key does.
bool CalculatorWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == windowHandle() && event->type() == QEvent::MouseButtonPress) {
        modifiers_.keepOnly(static_cast<QMouseEvent*>(event)->modifiers());
    }
    return QWidget::eventFilter(watched, event);
}

void CalculatorWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        isActiveWindow() ? modifiers_.didGetKeyboard() : modifiers_.didLoseKeyboard();
    }
}

void CalculatorWindow::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    modifiers_.didGetKeyboard();
}

void CalculatorWindow::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    modifiers_.didLoseKeyboard();
}

// Tab is a key of the calculator.
bool CalculatorWindow::focusNextPrevChild(bool /*next*/) { return false; }

}  // namespace talvex
