#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/NSView.h"

namespace talvex {

struct NSTabViewItem {
    std::u16string label;
    std::shared_ptr<NSView> view;
};

// The record of a view that shows one of several pages. The pages are its subviews, and all but the
// selected one are hidden.
class NSTabView : public NSView {
  public:
    using NSView::NSView;

    [[nodiscard]] const std::vector<NSTabViewItem>& tabViewItems() const { return items_; }
    [[nodiscard]] int numberOfTabViewItems() const { return static_cast<int>(items_.size()); }
    void addTabViewItem(NSTabViewItem item);

    // Counted from 0; -1 while there are no pages.
    [[nodiscard]] int indexOfSelectedItem() const { return selected_; }
    virtual void selectTabViewItemAtIndex(int index);

  private:
    std::vector<NSTabViewItem> items_;
    int selected_ = -1;
};

}  // namespace talvex
