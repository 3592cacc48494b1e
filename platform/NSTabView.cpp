#include "platform/NSTabView.h"

#include <utility>

namespace talvex {

void NSTabView::addTabViewItem(NSTabViewItem item) {
    item.view->setHidden(!items_.empty());
    addSubview(item.view);
    items_.push_back(std::move(item));
    if (selected_ < 0) {
        selected_ = 0;
    }
}

void NSTabView::selectTabViewItemAtIndex(int index) {
    if (index < 0 || index >= numberOfTabViewItems() || index == selected_) {
        return;
    }
    items_[static_cast<std::size_t>(selected_)].view->setHidden(true);
    items_[static_cast<std::size_t>(index)].view->setHidden(false);
    selected_ = index;
    setNeedsDisplay();
}

}  // namespace talvex
