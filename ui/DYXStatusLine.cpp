#include "ui/DYXStatusLine.h"

#include "ui/DYXButton.h"
#include "ui/simple_tex.h"

namespace talvex {
namespace {

std::u16string textOf(const NSView& view, const HotKeys& hotKeys) {
    const auto* const button = dynamic_cast<const CommandButton*>(&view);
    const std::u16string hot =
        button != nullptr ? hotKeys.hotKeyStringForCommand(button->command()) : u"";
    const std::u16string& tip = view.toolTip();
    return hot.empty() || tip.empty() ? hot + tip : hot + u" : " + tip;
}

}  // namespace

std::unique_ptr<DYXStatusLine> DYXStatusLine::statusLineForView(NSView& view,
                                                                const HotKeys& hotKeys) {
    auto line = std::make_unique<DYXStatusLine>(view);
    const std::u16string text = textOf(view, hotKeys);
    if (!text.empty()) {
        line->setStatusString(ZUStringExtensions::simpleTexSingleLine(text));
    }
    view.setToolTip({});
    return line;
}

void DYXStatusLineTracker::mouseEntered(const void* userData) {
    const auto* const line = static_cast<const DYXStatusLine*>(userData);
    if (statusField_) {
        statusField_->setAttributedStringValue(stringForStatusLine(*line));
    }
    currrentStatusLine_ = line;
}

void DYXStatusLineTracker::mouseExited(const void* userData) {
    if (userData == currrentStatusLine_) {
        clearStatusField();
    }
}

void DYXStatusLineTracker::clearStatusField() {
    if (statusField_) {
        statusField_->setStringValue({});
    }
}

void DYXStatusLineTracker::install(const DYXStatusLines& lines) {
    for (const auto& line : lines) {
        NSView& view = line->view();
        view.removeTrackingRect(line->tag());
        line->setTag(view.addTrackingRect(view.bounds(), *this, line.get(), false));
    }
}

void DYXStatusLineTracker::uninstall(const DYXStatusLines& lines) {
    for (const auto& line : lines) {
        line->view().removeTrackingRect(line->tag());
        mouseExited(line.get());
    }
}

}  // namespace talvex
