#pragma once

#include <QColor>
#include <QPalette>

#include "ui/DYXButton.h"

namespace talvex {

struct KeyColors {
    QColor face;
    QColor text;
};

// The colours of the window around the display, for a light and for a dark desktop. Three faces
// have a meaning: what enters numbers, what computes with them, and the four operators with ENTER;
// the shift keys stand apart, and a lit key looks the same whichever it is.
struct WindowColors {
    QColor window;
    QColor border;
    QColor title;
    QColor focusRing;
    QColor drawer;
    QColor displayShade;  // laid over the pale display
    KeyColors number;
    KeyColors function;
    KeyColors operation;
    KeyColors shift;
    KeyColors flat;
    KeyColors lit;

    [[nodiscard]] const KeyColors& key(KeyGroup group) const;
    // Of a key that is on. What moves the window's parts lights up less than what changes the
    // meaning of the next key.
    [[nodiscard]] const KeyColors& litKey(KeyGroup group) const {
        return group == KeyGroup::flat ? number : lit;
    }
};

[[nodiscard]] bool isDark(const QColor& ground);
[[nodiscard]] bool isDark(const QPalette& palette);
[[nodiscard]] const WindowColors& windowColors(const QPalette& palette);

// The face of a key under the pointer, and while it is pressed.
[[nodiscard]] QColor hoverFace(const QColor& face);
[[nodiscard]] QColor pressedFace(const QColor& face);

}  // namespace talvex
