#include "qt/ModifierWatch.h"

#include <QGuiApplication>

namespace talvex {
namespace {

// How often to look whether the keys were let go of that were down when the window got the
// keyboard.
constexpr int kAdoptedWatchMilliseconds = 50;

}  // namespace

ModifierWatch::ModifierWatch(NSWindow& window) : window_(window) {
    adoptedWatch_.setInterval(kAdoptedWatchMilliseconds);
    QObject::connect(&adoptedWatch_, &QTimer::timeout,
                     [this] { keepOnly(QGuiApplication::queryKeyboardModifiers()); });
}

void ModifierWatch::take(const QKeyEvent& event) {
    if (held_.take(event)) {
        tellRecord();
    }
}

void ModifierWatch::keepOnly(Qt::KeyboardModifiers modifiers) {
    if (held_.keepOnly(modifiers)) {
        tellRecord();
    }
    if (held_.flags() == 0) {
        adoptedWatch_.stop();
    }
}

void ModifierWatch::didGetKeyboard() {
    if (held_.adopt(QGuiApplication::queryKeyboardModifiers())) {
        tellRecord();
    }
    if (held_.flags() != 0) {
        adoptedWatch_.start();
    }
}

void ModifierWatch::didLoseKeyboard() {
    adoptedWatch_.stop();
    if (held_.clear()) {
        tellRecord();
    }
}

void ModifierWatch::tellRecord() {
    window_.sendEvent({.type = NSFlagsChanged, .modifierFlags = held_.flags()});
}

}  // namespace talvex
