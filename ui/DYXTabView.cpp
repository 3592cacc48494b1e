#include "ui/DYXTabView.h"

#include <algorithm>
#include <utility>

#include "ui/bezel.h"

namespace talvex {
namespace {

constexpr int kLeastTabWidth = 100;
constexpr double kTabFontSize = 9.0;
constexpr int kSmallControl = 2;
constexpr int kSquareBezel = 6;
constexpr int kChangesGray = 4;
constexpr NSSize kTabSpacing{-DYXTabView::kTabOverlap, -DYXTabView::kTabOverlap};
constexpr NSColor kFaintGray = NSColor::white(0.5, 0.0625);

int quotientRoundedUp(int dividend, int divisor) { return (dividend + divisor - 1) / divisor; }

}  // namespace

DYXTabView::DYXTabView(const NSRect& frame, std::vector<NSTabViewItem> items,
                       const HotKeys& hotKeys)
    : NSTabView(frame), hotKeys_(hotKeys) {
    for (NSTabViewItem& item : items) {
        addTabViewItem(std::move(item));
    }
    setupDefaultMatrix();
}

void DYXTabView::setupDefaultMatrix() {
    const int columns = std::max(1, static_cast<int>(bounds().width) / kLeastTabWidth);
    setMatrixRowsColumns(quotientRoundedUp(numberOfTabViewItems(), columns), columns);
}

void DYXTabView::setNumberOfRows(int rows) {
    const int count = rows == 0 ? 1 : rows;
    setMatrixRowsColumns(count, quotientRoundedUp(numberOfTabViewItems(), count));
}

// A button past the last tab is empty and disabled.
NSButtonCell DYXTabView::cellForTab(int index) const {
    NSButtonCell cell;
    cell.controlSize = kSmallControl;
    cell.bezelStyle = kSquareBezel;
    cell.font.size = kTabFontSize;
    if (index < numberOfTabViewItems()) {
        cell.title = tabViewItems()[static_cast<std::size_t>(index)].label;
        cell.showsStateBy = kChangesGray;
    } else {
        cell.enabled = false;
    }
    return cell;
}

// The matrix stands on the upper edge of the view.
void DYXTabView::setMatrixRowsColumns(int rows, int columns) {
    const int row = matrix_ ? matrix_->selectedRow() : 0;
    const int column = matrix_ ? matrix_->selectedColumn() : 0;
    if (matrix_) {
        matrix_->removeFromSuperview();
    }
    const NSRect& place = frame();
    matrix_ = std::make_shared<NSMatrix>(NSRect{.x = place.x,
                                                .y = place.y + place.height - rows * kTabOverlap,
                                                .width = place.width,
                                                .height = rows * kTabHeight},
                                         NSMatrixMode::radio, rows, columns);
    for (int index = 0; index < rows * columns; ++index) {
        matrix_->setCellAt(index / columns, index % columns, cellForTab(index));
    }
    matrix_->setAction([this](NSMatrix& matrix) { matrixAction(matrix); });
    matrix_->setIntercellSpacing(kTabSpacing);
    matrix_->setCellSize({(place.width - (columns - 1) * kTabSpacing.width) / columns, kTabHeight});
    if (superview() != nullptr) {
        superview()->addSubview(matrix_);
    }
    matrix_->setAutoresizingMask(autoresizingMask());
    matrix_->selectCellAtRowColumn(row, column);
    setNeedsDisplay();
}

void DYXTabView::matrixAction(NSMatrix& matrix) {
    selectTabViewItemAtIndex(matrix.selectedColumn() +
                             matrix.selectedRow() * matrix.numberOfColumns());
}

void DYXTabView::selectTabViewItemAtIndex(int index) {
    if (index < 0 || index >= numberOfTabViewItems()) {
        return;
    }
    removeTrackingRects();
    NSTabView::selectTabViewItemAtIndex(index);
    matrix_->selectCellAtRowColumn(index / matrix_->numberOfColumns(),
                                   index % matrix_->numberOfColumns());
    addTrackingRects();
    setNeedsDisplay();
}

void DYXTabView::setFrame(const NSRect& frame) {
    NSTabView::setFrame(frame);
    setMatrixRowsColumns(matrix_->numberOfRows(), matrix_->numberOfColumns());
}

void DYXTabView::setAutoresizingMask(std::uint32_t mask) {
    NSTabView::setAutoresizingMask(mask);
    matrix_->setAutoresizingMask(mask);
}

void DYXTabView::drawRect(NSGraphicsContext& context) const {
    ZUDrawBezel(context, bounds(), kFaintGray);
}

void DYXTabView::setShowStatusLines(bool show) {
    showStatusLines_ = show;
    removeTrackingRects();
    addTrackingRects();
}

void DYXTabView::buildStatusLineArrays() {
    if (!statusLineArrays_.empty()) {
        return;
    }
    for (const NSTabViewItem& item : tabViewItems()) {
        DYXStatusLines& lines = statusLineArrays_.emplace_back();
        for (const auto& view : item.view->subviews()) {
            if (!view->toolTip().empty()) {
                lines.push_back(DYXStatusLine::statusLineForView(*view, hotKeys_));
            }
        }
    }
}

void DYXTabView::addTrackingRects() {
    buildStatusLineArrays();
    const int selected = indexOfSelectedItem();
    if (showStatusLines_ && selected >= 0) {
        install(statusLineArrays_[static_cast<std::size_t>(selected)]);
    }
}

void DYXTabView::removeTrackingRects() {
    const int selected = indexOfSelectedItem();
    if (!statusLineArrays_.empty() && selected >= 0) {
        uninstall(statusLineArrays_[static_cast<std::size_t>(selected)]);
    }
}

}  // namespace talvex
