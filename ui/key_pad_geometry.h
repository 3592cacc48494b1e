#pragma once

#include "ui/key_grid.h"

// Where the keys of the key pad stand, and so how large it is.
namespace talvex {

inline constexpr std::size_t kPadColumns = 10;
inline constexpr std::size_t kPadRows = 6;
// A little more room between the functions and the number keys.
inline constexpr std::size_t kFirstNumberColumn = 5;
inline constexpr double kPadGroupGap = 3.0;

inline constexpr double kPadKeyWidth = 36.0;
inline constexpr double kPadSideMargin = 7.0;
inline constexpr double kPadTopMargin = 5.0;

// The flat keys of the drawers below the others.
inline constexpr double kDrawerKeyHeight = 13.0;
inline constexpr double kDrawerKeysBottom = 4.0;

// The keys, and the gaps between them.
inline constexpr double kPadKeysWidth =
    kPadColumns * (kPadKeyWidth + kKeyGap) - kKeyGap + kPadGroupGap;
inline constexpr double kPadKeysBottom = kDrawerKeysBottom + kDrawerKeyHeight + kKeyGap;

inline constexpr NSSize kKeyPadSize{
    .width = 2.0 * kPadSideMargin + kPadKeysWidth,
    .height = kPadKeysBottom + kPadRows * (kKeyHeight + kKeyGap) - kKeyGap + kPadTopMargin};

// A key by its place from the top left.
constexpr NSRect padKeyFrame(std::size_t column, std::size_t row, std::size_t rowSpan) {
    const std::size_t rowsBelow = kPadRows - row - rowSpan;
    return {.x = kPadSideMargin + static_cast<double>(column) * (kPadKeyWidth + kKeyGap) +
                 (column >= kFirstNumberColumn ? kPadGroupGap : 0.0),
            .y = kPadKeysBottom + static_cast<double>(rowsBelow) * (kKeyHeight + kKeyGap),
            .width = kPadKeyWidth,
            .height = static_cast<double>(rowSpan) * (kKeyHeight + kKeyGap) - kKeyGap};
}

// One of `count` keys of drawers, which share the width of all others.
constexpr NSRect drawerKeyFrame(std::size_t place, std::size_t count) {
    const double pitch = (kPadKeysWidth + kKeyGap) / static_cast<double>(count);
    return {.x = kPadSideMargin + static_cast<double>(place) * pitch,
            .y = kDrawerKeysBottom,
            .width = pitch - kKeyGap,
            .height = kDrawerKeyHeight};
}

}  // namespace talvex
