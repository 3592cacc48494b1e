#include "ui/DYXStatusLineView.h"

namespace talvex {

void DYXStatusLineView::buildStatusLines(const HotKeys& hotKeys) {
    if (!statusLines_.empty()) {
        return;
    }
    for (const auto& view : subviews()) {
        statusLines_.push_back(DYXStatusLine::statusLineForView(*view, hotKeys));
    }
}

void DYXStatusLineView::renewStatusLine(NSView& view, const HotKeys& hotKeys) {
    for (const auto& line : statusLines_) {
        if (&line->view() == &view) {
            const auto renewed = DYXStatusLine::statusLineForView(view, hotKeys);
            line->setStatusString(renewed->statusString());
        }
    }
}

void DYXStatusLineView::addTrackingRects(const HotKeys& hotKeys) {
    buildStatusLines(hotKeys);
    install(statusLines_);
}

void DYXStatusLineView::removeTrackingRects() { uninstall(statusLines_); }

NSAttributedString DYXStatusLineView::stringForStatusLine(const DYXStatusLine& line) const {
    if (delegate_ != nullptr) {
        const std::optional<NSAttributedString> text = delegate_->statusLineForView(line.view());
        if (text && !text->string.empty()) {
            return *text;
        }
    }
    return DYXStatusLineTracker::stringForStatusLine(line);
}

}  // namespace talvex
