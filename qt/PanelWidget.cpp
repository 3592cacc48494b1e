#include "qt/PanelWidget.h"

#include <QPainter>

#include "qt/FocusWalk.h"
#include "qt/KeyButton.h"
#include "qt/TabViewWidget.h"
#include "qt/palette.h"
#include "qt/rich_text.h"

namespace talvex {
namespace {

constexpr int kPadding = 2;

}  // namespace

StatusFieldWidget::StatusFieldWidget(NSTextField& record, QWidget* parent, const NSView* within)
    : QLabel(parent), record_(record), observer_(*this, record, {}, within) {}

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
    paintLeft(painter, room.adjusted(kPadding, 0, -kPadding, 0), text);
}

PanelWidget::PanelWidget(NSView& view, const std::vector<Key>& keys, QWidget* parent)
    : QWidget(parent), observer_(*this, view) {
    for (const Key& key : keys) {
        new KeyButton(key, this);
    }
}

QWidget* makePanelWidget(const Panel& panel, QWidget* parent) {
    auto* const widget = new PanelWidget(*panel.view, panel.keys, parent);
    new StatusFieldWidget(*panel.view->statusField(), widget);
    return widget;
}

QWidget* makeConversionWidget(const ConversionPanel& panel, QWidget* parent) {
    auto* const widget = new PanelWidget(*panel.view, {}, parent);
    new TabViewWidget(panel, widget);
    new StatusFieldWidget(*panel.tabView->statusField(), widget);
    return widget;
}

}  // namespace talvex
