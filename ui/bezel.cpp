#include "ui/bezel.h"

namespace talvex {
namespace {

constexpr double kInset = 2.0;

NSRect insideOf(const NSRect& rect) {
    return {.x = rect.x + kInset,
            .y = rect.y + kInset,
            .width = rect.width - 2.0 * kInset,
            .height = rect.height - 2.0 * kInset};
}

}  // namespace

NSRect ZUDrawBezel(NSGraphicsContext& context, const NSRect& rect,
                   const std::optional<NSColor>& fill) {
    context.setShouldAntialias(false);
    if (fill) {
        context.fillRect(rect, *fill);
    }
    return context.isFlipped() ? ZUDrawBezelFlipped(context, rect)
                               : ZUDrawBezelUnflipped(context, rect);
}

NSRect ZUDrawBezelUnflipped(NSGraphicsContext& context, const NSRect& rect) {
    const auto [x, y, w, h] = rect;
    context.strokeLine({x, y}, {w, 0}, NSColor::white(0.75));
    context.strokeLine({x, y + h - 1}, {w, 0}, NSColor::white(0.375));
    context.strokeLine({x + 1, y + h - 2}, {w - 2, 0}, NSColor::white(0.75));
    context.strokeLine({x, y + 1}, {0, h - 1}, NSColor::white(0.625));
    context.strokeLine({x + w - 1, y + 1}, {0, h - 2}, NSColor::white(0.625));
    return insideOf(rect);
}

NSRect ZUDrawBezelFlipped(NSGraphicsContext& context, const NSRect& rect) {
    const auto [x, y, w, h] = rect;
    context.strokeLine({x, y + h}, {w, 0}, NSColor::white(0.75));
    context.strokeLine({x, y + 1}, {w, 0}, NSColor::white(0.375));
    context.strokeLine({x + 1, y + 2}, {w - 2, 0}, NSColor::white(0.75));
    context.strokeLine({x, y + 1}, {0, h - 1}, NSColor::white(0.625));
    context.strokeLine({x + w - 1, y + 1}, {0, h - 2}, NSColor::white(0.625));
    return insideOf(rect);
}

}  // namespace talvex
