#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "platform/NSFont.h"
#include "platform/NSView.h"

namespace talvex {

enum class NSMatrixMode { radio = 0 };

// One button of a matrix.
struct NSButtonCell {
    std::u16string title;
    NSFont font{.name = u"Lucida Grande", .size = 11.0};
    int controlSize = 0;  // 2 is the smallest
    int bezelStyle = 0;
    int showsStateBy = 0;
    int state = 0;  // 1 on
    bool enabled = true;
    int tag = 0;  // what the cell stands for

    bool operator==(const NSButtonCell&) const = default;
};

// The record of a grid of buttons of which one is selected. Rows count from the top.
class NSMatrix : public NSView {
  public:
    NSMatrix(const NSRect& frame, NSMatrixMode mode, int rows, int columns);

    [[nodiscard]] NSMatrixMode mode() const { return mode_; }
    [[nodiscard]] int numberOfRows() const { return rows_; }
    [[nodiscard]] int numberOfColumns() const { return columns_; }

    [[nodiscard]] const NSButtonCell& cellAt(int row, int column) const;
    void setCellAt(int row, int column, NSButtonCell cell);
    void setStateOfAllCells(int state);

    void setCellSize(const NSSize& size) { update(cellSize_, size); }
    void setIntercellSpacing(const NSSize& spacing) { update(intercellSpacing_, spacing); }
    // The place of a cell within the matrix.
    [[nodiscard]] NSRect cellFrame(int row, int column) const;

    // The selected cell; -1 and -1 before the first selection.
    [[nodiscard]] int selectedRow() const { return selectedRow_; }
    [[nodiscard]] int selectedColumn() const { return selectedColumn_; }
    // Makes the cell the only one that is on; does nothing if there is no such cell.
    void selectCellAtRowColumn(int row, int column);

    // Does nothing if no cell has the tag.
    void selectCellWithTag(int tag);

    void setAction(std::function<void(NSMatrix&)> action) { action_ = std::move(action); }
    // A click on the cell: selects it and sends the action, unless it is disabled.
    void performClickAt(int row, int column);

  private:
    [[nodiscard]] bool hasCell(int row, int column) const;
    [[nodiscard]] std::size_t indexOf(int row, int column) const;

    NSMatrixMode mode_;
    int rows_;
    int columns_;
    std::vector<NSButtonCell> cells_;
    NSSize cellSize_;
    NSSize intercellSpacing_;
    int selectedRow_ = -1;
    int selectedColumn_ = -1;
    std::function<void(NSMatrix&)> action_;
};

}  // namespace talvex
