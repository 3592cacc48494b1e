#include "qt/conversions.h"

#include <cmath>

namespace talvex {
namespace {

// One family has all the signs of the keys and of the display, so that no text needs a fallback
// font.
constexpr auto kProportionalFamily = "DejaVu Sans";
constexpr auto kMonospacedFamily = "DejaVu Sans Mono";

}  // namespace

QString toQString(const std::u16string& text) { return QString::fromStdU16String(text); }

QColor toQColor(const NSColor& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

QFont toQFont(const NSFont& font) {
    const bool isMonospaced = font.name.find(u"Mono") != std::u16string_view::npos;
    QFont result(QString::fromLatin1(isMonospaced ? kMonospacedFamily : kProportionalFamily));
    result.setPixelSize(static_cast<int>(std::lround(font.size)));
    return result;
}

}  // namespace talvex
