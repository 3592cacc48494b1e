#include "platform/NSMatrix.h"

#include <utility>

namespace talvex {

NSMatrix::NSMatrix(const NSRect& frame, NSMatrixMode mode, int rows, int columns)
    : NSView(frame),
      mode_(mode),
      rows_(rows),
      columns_(columns),
      cells_(static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns)) {}

bool NSMatrix::hasCell(int row, int column) const {
    return row >= 0 && row < rows_ && column >= 0 && column < columns_;
}

std::size_t NSMatrix::indexOf(int row, int column) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
}

const NSButtonCell& NSMatrix::cellAt(int row, int column) const {
    return cells_.at(indexOf(row, column));
}

void NSMatrix::setCellAt(int row, int column, NSButtonCell cell) {
    update(cells_.at(indexOf(row, column)), std::move(cell));
}

void NSMatrix::setStateOfAllCells(int state) {
    for (NSButtonCell& cell : cells_) {
        update(cell.state, state);
    }
}

NSRect NSMatrix::cellFrame(int row, int column) const {
    return {.x = column * (cellSize_.width + intercellSpacing_.width),
            .y = frame().height - cellSize_.height -
                 row * (cellSize_.height + intercellSpacing_.height),
            .width = cellSize_.width,
            .height = cellSize_.height};
}

void NSMatrix::selectCellAtRowColumn(int row, int column) {
    if (hasCell(row, column)) {
        update(selectedRow_, row);
        update(selectedColumn_, column);
        setStateOfAllCells(0);
        update(cells_.at(indexOf(row, column)).state, 1);
    }
}

void NSMatrix::selectCellWithTag(int tag) {
    for (int place = 0; place < rows_ * columns_; ++place) {
        if (cellAt(place / columns_, place % columns_).tag == tag) {
            selectCellAtRowColumn(place / columns_, place % columns_);
            return;
        }
    }
}

void NSMatrix::performClickAt(int row, int column) {
    if (!hasCell(row, column) || !cellAt(row, column).enabled) {
        return;
    }
    selectCellAtRowColumn(row, column);
    if (action_) {
        action_(*this);
    }
}

}  // namespace talvex
