#include "qt/palette.h"

namespace talvex {
namespace {

WindowColors lightColors() {
    return {.window = QColor(0xE4, 0xE5, 0xE8),
            .border = QColor(0xA9, 0xAC, 0xB3),
            .title = QColor(0x3A, 0x3D, 0x44),
            .focusRing = QColor(0x1F, 0x5F, 0xA8),
            .drawer = QColor(0xD6, 0xD8, 0xDD),
            .displayShade = Qt::transparent,
            .number = {QColor(0xFC, 0xFC, 0xFD), QColor(0x16, 0x18, 0x1C)},
            .function = {QColor(0xCF, 0xD3, 0xDA), QColor(0x1C, 0x1F, 0x26)},
            .operation = {QColor(0x2F, 0x66, 0x9E), QColor(0xFF, 0xFF, 0xFF)},
            .shift = {QColor(0xDF, 0xD5, 0xC3), QColor(0x5A, 0x36, 0x04)},
            .flat = {QColor(0xDA, 0xDC, 0xE1), QColor(0x3A, 0x3D, 0x44)},
            .lit = {QColor(0xF6, 0xB7, 0x3C), QColor(0x22, 0x17, 0x02)}};
}

WindowColors darkColors() {
    return {.window = QColor(0x26, 0x28, 0x2C),
            .border = QColor(0x10, 0x11, 0x13),
            .title = QColor(0xC9, 0xCC, 0xD3),
            .focusRing = QColor(0x8F, 0xC1, 0xF5),
            .drawer = QColor(0x1F, 0x21, 0x24),
            .displayShade = QColor(0x00, 0x04, 0x0C, 0x28),
            .number = {QColor(0x5A, 0x5E, 0x66), QColor(0xFF, 0xFF, 0xFF)},
            .function = {QColor(0x3A, 0x3D, 0x44), QColor(0xEC, 0xEE, 0xF2)},
            .operation = {QColor(0x2B, 0x5F, 0x96), QColor(0xFF, 0xFF, 0xFF)},
            .shift = {QColor(0x46, 0x40, 0x36), QColor(0xF4, 0xD2, 0x96)},
            .flat = {QColor(0x2E, 0x30, 0x35), QColor(0xC9, 0xCC, 0xD3)},
            .lit = {QColor(0xF0, 0xB0, 0x3A), QColor(0x1E, 0x14, 0x02)}};
}

constexpr int kMiddleLightness = 128;
constexpr int kHoverStep = 112;
constexpr int kPressStep = 120;

}  // namespace

const KeyColors& WindowColors::key(KeyGroup group) const {
    switch (group) {
        case KeyGroup::digit:
        case KeyGroup::number:
            return number;
        case KeyGroup::enter:
        case KeyGroup::operation:
            return operation;
        case KeyGroup::shift:
            return shift;
        case KeyGroup::flat:
            return flat;
        case KeyGroup::function:
        case KeyGroup::memory:
        case KeyGroup::stack:
        case KeyGroup::clear:
            break;
    }
    return function;
}

bool isDark(const QColor& ground) { return ground.lightness() < kMiddleLightness; }

bool isDark(const QPalette& palette) { return isDark(palette.color(QPalette::Window)); }

const WindowColors& windowColors(const QPalette& palette) {
    static const WindowColors light = lightColors();
    static const WindowColors dark = darkColors();
    return isDark(palette) ? dark : light;
}

// A bright face can only get darker under the pointer.
QColor hoverFace(const QColor& face) {
    const bool isBright = face.lightness() > 2 * kMiddleLightness - 32;
    return isBright ? face.darker(kHoverStep - 6) : face.lighter(kHoverStep);
}

QColor pressedFace(const QColor& face) { return face.darker(kPressStep); }

}  // namespace talvex
