#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "core/memory_registers.h"
#include "platform/NSDrawer.h"
#include "ui/DYXTabView.h"
#include "ui/key_grid.h"
#include "ui/tables/panel_tables.h"
#include "ui/window_layout.h"

// Where the keys of the drawers stand, and so how large the drawers are. All of it follows from the
// sizes of columns and rows and from the number of keys.
namespace talvex {

// Beside what a drawer has around its content, these make the margins even.
inline constexpr double kPanelMargin = 5.0;
inline constexpr double kMarginAtBody = 9.0;
inline constexpr double kMarginAtEdge = kMarginAtBody - NSDrawer::kOuterBorder;
inline constexpr double kKeyPitch = kKeyHeight + kKeyGap;
// The keys stand right above the status field.
inline constexpr double kPanelKeysBottom = 14.0;

constexpr NSRect statusFrame(const KeyGrid& grid) {
    const double margin = grid.columns.start;
    return {.x = margin, .width = grid.size().width - 2.0 * margin, .height = grid.rows.start};
}

// The drawers at the sides hang beside the body, which is as high as this.
inline constexpr double kSideDrawerRoom = contentFrame({}).height - NSDrawer::kEnds;

// The constants fill one column after the other. The first columns have widths of their own.
inline constexpr std::size_t kConstantRows = 6;
inline constexpr double kConstantColumn = 42.0;
inline constexpr std::array kFirstConstantColumns{42.0, 44.0, 42.0, 49.0, 47.0};

constexpr KeyGrid constantsGrid(std::size_t keys) {
    return {.columns = {.start = kMarginAtEdge,
                        .count = quotientRoundedUp(keys, kConstantRows),
                        .size = kConstantColumn,
                        .ownSizes = kFirstConstantColumns,
                        .beyond = kPanelMargin - kMarginAtEdge},
            .rows = {.start = kPanelKeysBottom,
                     .count = kConstantRows,
                     .size = kKeyPitch,
                     .beyond = kPanelMargin - kKeyGap}};
}

// The memory: keys by their places in the table, and below them the registers.
inline constexpr std::size_t kMemoryColumns = 5;
inline constexpr double kMemoryColumn = 36.0 + kKeyGap;

constexpr std::size_t rowsAboveRegisters(std::span<const MemoryKeyRow> keys) {
    std::size_t rows = 0;
    for (const MemoryKeyRow& key : keys) {
        rows = std::max(rows, key.row + std::size_t{1});
    }
    return rows;
}

constexpr KeyGrid memoryGrid(std::span<const MemoryKeyRow> keys) {
    return {.columns = {.start = kMarginAtBody,
                        .count = kMemoryColumns,
                        .size = kMemoryColumn,
                        .beyond = kMarginAtEdge - kKeyGap},
            .rows = {.start = kPanelKeysBottom,
                     .count = rowsAboveRegisters(keys) +
                              quotientRoundedUp(kRegisterKeys, kMemoryColumns),
                     .size = kKeyPitch,
                     .beyond = kPanelMargin - kKeyGap}};
}

constexpr NSRect memoryKeyFrame(const KeyGrid& grid, const MemoryKeyRow& key) {
    return grid.frameFromTop({.column = key.column, .row = key.row, .columnSpan = key.columnSpan});
}

// The registers take the last rows.
constexpr NSRect registerFrame(const KeyGrid& grid, std::size_t number) {
    const std::size_t rows = quotientRoundedUp(kRegisterKeys, kMemoryColumns);
    return grid.frameByRows((grid.rows.count - rows) * kMemoryColumns + number);
}

// The drawers above and below have one width, which their columns share.
inline constexpr double kLevelMargin = 9.0;
inline constexpr std::size_t kUnitColumns = 6;
inline constexpr double kUnitColumn = 58.0 + kKeyGap;
inline constexpr double kLevelColumns = kUnitColumns * kUnitColumn;
inline constexpr double kLevelWidth = kLevelMargin + kLevelColumns - kKeyGap + kLevelMargin;
static_assert(kLevelWidth + NSDrawer::kEnds <= contentFrame({}).width,
              "a drawer above or below is no wider than the body");

// More functions, by their places in the table. The first rows have heights of their own.
inline constexpr double kFunctionRow = 26.0;
inline constexpr std::array kFirstFunctionRows{24.0, 26.0, 25.0, 28.0, 27.0, 29.0};

constexpr KeyGrid functionsGrid(std::span<const FunctionKeyRow> keys) {
    std::size_t columns = 1;
    std::size_t rows = 0;
    for (const FunctionKeyRow& key : keys) {
        columns = std::max(columns, std::size_t{key.column} + key.columnSpan);
        rows = std::max(rows, key.row + std::size_t{1});
    }
    const std::size_t wholePoints = static_cast<std::size_t>(kLevelColumns) / columns;
    const auto column = static_cast<double>(wholePoints);
    return {
        .columns = {.start = kLevelMargin,
                    .count = columns,
                    .size = column,
                    .beyond = kLevelWidth - kLevelMargin - static_cast<double>(columns) * column},
        .rows = {.start = kPanelKeysBottom,
                 .count = rows,
                 .size = kFunctionRow,
                 .ownSizes = kFirstFunctionRows,
                 .beyond = kMarginAtBody}};
}

constexpr NSRect functionKeyFrame(const KeyGrid& grid, const FunctionKeyRow& key) {
    return grid.frameFromBottom(
        {.column = key.column, .row = key.row, .columnSpan = key.columnSpan});
}

// The units: pages as high as the fullest one, and the tabs above them.
inline constexpr std::size_t kTabRows = 4;
inline constexpr double kTabsBottom = 22.0;

constexpr KeyGrid unitsGrid(std::span<const UnitPage> pages) {
    std::size_t keys = 0;
    for (const UnitPage& page : pages) {
        keys = std::max(keys, page.units.size());
    }
    return {.columns = {.start = kPanelMargin,
                        .count = kUnitColumns,
                        .size = kUnitColumn,
                        .beyond = kPanelMargin - kKeyGap},
            .rows = {.start = kPanelMargin,
                     .count = quotientRoundedUp(keys, kUnitColumns),
                     .size = kKeyPitch,
                     .beyond = kPanelMargin - kKeyGap}};
}

constexpr NSRect tabFrame(const NSSize& page) {
    return {.x = (kLevelWidth - page.width) / 2.0,
            .y = kTabsBottom,
            .width = page.width,
            .height = page.height};
}

constexpr NSRect conversionStatusFrame() {
    return {.x = kPanelMargin, .width = kLevelWidth - 2.0 * kPanelMargin, .height = kTabsBottom};
}

constexpr NSSize conversionPanelSize(const NSSize& page) {
    return {.width = kLevelWidth,
            .height = kTabsBottom + page.height + kTabRows * DYXTabView::kTabPitch + kPanelMargin};
}

}  // namespace talvex
