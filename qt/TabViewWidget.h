#pragma once

#include <QWidget>
#include <vector>

#include "qt/ControlButton.h"
#include "qt/RecordObserver.h"
#include "ui/Panel.h"

namespace talvex {

class TabButton;

// The tab view of units: the frame, the page of keys in it, and the tab buttons above.
class TabViewWidget final : public QWidget {
  public:
    TabViewWidget(const ConversionPanel& panel, Scale& scale, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void placeTabs();
    void showPage();

    const ConversionPanel& panel_;
    Scale& scale_;
    std::vector<QWidget*> pages_;  // null until first shown
    std::vector<TabButton*> tabs_;
    RecordObserver observer_;
};

// One button of the matrix of a tab view, by its place in reading order.
class TabButton final : public ControlButton {
  public:
    TabButton(DYXTabView& tabView, int index, Scale& scale, QWidget* parent);

    void place();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    [[nodiscard]] int row() const { return index_ / tabView_.matrix().numberOfColumns(); }
    [[nodiscard]] int column() const { return index_ % tabView_.matrix().numberOfColumns(); }
    [[nodiscard]] const NSButtonCell& cell() const {
        return tabView_.matrix().cellAt(row(), column());
    }

    DYXTabView& tabView_;
    int index_;
};

}  // namespace talvex
