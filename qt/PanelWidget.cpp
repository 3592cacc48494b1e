#include "qt/PanelWidget.h"

#include <QPainter>

#include "qt/FocusWalk.h"
#include "qt/KeyButton.h"
#include "qt/TabViewWidget.h"
#include "qt/palette.h"
#include "qt/rich_text.h"

namespace talvex {
namespace {

constexpr double kPadding = 2.0;

}  // namespace

StatusFieldWidget::StatusFieldWidget(NSTextField& record, Scale& scale, QWidget* parent,
                                     const NSView* within)
    : QLabel(parent),
      record_(record),
      scale_(scale),
      observer_(*this, scale, record, {}, {.within = within}) {}

void StatusFieldWidget::paintEvent(QPaintEvent* /*event*/) {
    const NSAttributedString& text = record_.attributedStringValue();
    if (text.string.empty()) {
        return;
    }
    // The field may reach over the edge of what it lies on, or have its place beyond it.
    const QRect room = rect() & parentWidget()->rect().translated(-pos());
    if (room.height() < height() / 2) {
        return;
    }
    QPainter painter(this);
    painter.setPen(windowColors(palette()).title);
    const int padding = scale_.pixels(kPadding);
    paintLeft(painter, room.adjusted(padding, 0, -padding, 0), scale_, text);
}

PanelWidget::PanelWidget(NSView& view, const std::vector<Key>& keys, Scale& scale, QWidget* parent)
    : QWidget(parent), observer_(*this, scale, view) {
    for (const Key& key : keys) {
        new KeyButton(key, scale, this);
    }
}

QWidget* makePanelWidget(const Panel& panel, Scale& scale, QWidget* parent) {
    auto* const widget = new PanelWidget(*panel.view, panel.keys, scale, parent);
    new StatusFieldWidget(*panel.view->statusField(), scale, widget);
    return widget;
}

QWidget* makeConversionWidget(const ConversionPanel& panel, Scale& scale, QWidget* parent) {
    auto* const widget = new PanelWidget(*panel.view, {}, scale, parent);
    new TabViewWidget(panel, scale, widget);
    new StatusFieldWidget(*panel.tabView->statusField(), scale, widget);
    return widget;
}

}  // namespace talvex
