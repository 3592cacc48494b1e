#include "qt/TabViewWidget.h"

#include <QPainter>

#include "qt/PanelWidget.h"
#include "qt/QtGraphicsContext.h"
#include "qt/palette.h"

namespace talvex {

TabButton::TabButton(DYXTabView& tabView, int index, Scale& scale, QWidget* parent)
    : ControlButton(nullptr, scale, parent), tabView_(tabView), index_(index) {
    setCheckable(true);
    setText(toQString(cell().title));
    setAccessibleName(toQString(cell().title));
    setEnabled(cell().enabled);
    connect(this, &QAbstractButton::clicked, this,
            [this] { tabView_.matrix().performClickAt(row(), column()); });
    show();
}

void TabButton::place() {
    const NSRect& matrix = tabView_.matrix().frame();
    NSRect frame = tabView_.matrix().cellFrame(row(), column());
    frame.x += matrix.x;
    frame.y += matrix.y;
    setGeometry(scale().pixels(frame, tabView_.superview()->frame().height));
    setChecked(cell().state != 0);
}

void TabButton::paintEvent(QPaintEvent* /*event*/) {
    const WindowColors& colors = windowColors(palette());
    const KeyColors& key = isChecked() ? colors.number : colors.function;
    const QColor face = isDown()                       ? pressedFace(key.face)
                        : !isEnabled()                 ? colors.drawer
                        : underMouse() && !isChecked() ? hoverFace(key.face)
                                                       : key.face;
    QPainter painter(this);
    painter.fillRect(rect(), colors.border);
    const int line = scale().line();
    painter.fillRect(rect().adjusted(line, line, -line, -line), face);
    painter.setFont(scale().font(cell().font));
    painter.setPen(key.text);
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    paintFocusRing(painter, 0.0);
}

TabViewWidget::TabViewWidget(const ConversionPanel& panel, Scale& scale, QWidget* parent)
    : QWidget(parent),
      panel_(panel),
      scale_(scale),
      pages_(panel.pages.size(), nullptr),
      observer_(*this, scale, *panel.tabView, [this] {
          showPage();
          placeTabs();
      }) {
    const NSMatrix& matrix = panel.tabView->matrix();
    for (int index = 0; index < matrix.numberOfRows() * matrix.numberOfColumns(); ++index) {
        tabs_.push_back(new TabButton(*panel.tabView, index, scale, parent));
    }
    placeTabs();
}

// A page is made when it is first looked at.
void TabViewWidget::showPage() {
    const auto selected = static_cast<std::size_t>(panel_.tabView->indexOfSelectedItem());
    if (selected < pages_.size() && pages_[selected] == nullptr) {
        pages_[selected] = new PanelWidget(*panel_.tabView->tabViewItems()[selected].view,
                                           panel_.pages[selected], scale_, this);
    }
}

void TabViewWidget::placeTabs() {
    for (TabButton* const tab : tabs_) {
        tab->place();
    }
}

void TabViewWidget::paintEvent(QPaintEvent* /*event*/) {
    // The frame is made of greys for a light ground.
    constexpr double kOnDark = 0.3;
    QPainter painter(this);
    painter.setOpacity(isDark(palette()) ? kOnDark : 1.0);
    QtGraphicsContext context(painter, scale_, panel_.tabView->frame().height);
    panel_.tabView->drawRect(context);
}

}  // namespace talvex
