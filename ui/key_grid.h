#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "platform/NSGeometry.h"

// Keys in columns and rows, and how much room they take.
namespace talvex {

// All keys of the pad and of the drawers are of one height, with the same room between them.
inline constexpr double kKeyHeight = 21.0;
inline constexpr double kKeyGap = 3.0;

constexpr std::size_t quotientRoundedUp(std::size_t dividend, std::size_t divisor) {
    return (dividend + divisor - 1) / divisor;
}

// Columns from the left or rows from the bottom. Each is as large as its keys and the gap beyond.
struct Lanes {
    double start = 0.0;  // the room ahead of the first one
    std::size_t count = 0;
    double size = 0.0;                   // of each lane
    std::span<const double> ownSizes{};  // of the first ones, if they have sizes of their own
    double beyond = 0.0;                 // the room beyond the last one

    // The near edge of a lane, which is the far edge of the one before.
    [[nodiscard]] constexpr double edge(std::size_t lane) const {
        double edge = start;
        for (std::size_t before = 0; before < lane; ++before) {
            edge += before < ownSizes.size() ? ownSizes[before] : size;
        }
        return edge;
    }

    // The start, the lanes and the room beyond.
    [[nodiscard]] constexpr double length() const { return edge(count) + beyond; }

    // Where a drawer that is drawn out in part shows whole lanes: from the largest size down.
    [[nodiscard]] std::vector<double> restingPlaces() const {
        std::vector<double> places;
        for (std::size_t lane = count; lane-- > 1;) {
            places.push_back(edge(lane) + beyond);
        }
        return places;
    }
};

struct KeyPlace {
    std::size_t column = 0;
    std::size_t row = 0;
    std::size_t columnSpan = 1;
};

struct KeyGrid {
    Lanes columns;
    Lanes rows;

    [[nodiscard]] constexpr NSSize size() const {
        return {.width = columns.length(), .height = rows.length()};
    }
    [[nodiscard]] constexpr std::size_t capacity() const { return columns.count * rows.count; }

    // The frame of a key whose row counts from the bottom, or from the top.
    [[nodiscard]] constexpr NSRect frameFromBottom(const KeyPlace& place) const {
        const double left = columns.edge(place.column);
        return {.x = left,
                .y = rows.edge(place.row + 1) - kKeyGap - kKeyHeight,
                .width = columns.edge(place.column + place.columnSpan) - kKeyGap - left,
                .height = kKeyHeight};
    }
    [[nodiscard]] constexpr NSRect frameFromTop(const KeyPlace& place) const {
        return frameFromBottom({.column = place.column,
                                .row = rows.count - 1 - place.row,
                                .columnSpan = place.columnSpan});
    }

    // The frames of keys that fill one column or one row after the other, from the top left.
    [[nodiscard]] constexpr NSRect frameByColumns(std::size_t number) const {
        return frameFromTop({.column = number / rows.count, .row = number % rows.count});
    }
    [[nodiscard]] constexpr NSRect frameByRows(std::size_t number) const {
        return frameFromTop({.column = number % columns.count, .row = number / columns.count});
    }
};

constexpr bool liesWithin(const NSRect& frame, const NSSize& size) {
    return frame.x >= 0.0 && frame.y >= 0.0 && frame.x + frame.width <= size.width &&
           frame.y + frame.height <= size.height;
}

constexpr bool overlap(const NSRect& one, const NSRect& other) {
    return one.x < other.x + other.width && other.x < one.x + one.width &&
           one.y < other.y + other.height && other.y < one.y + one.height;
}

// Whether all keys from 0 to `Count` lie within the panel, none on another.
template <std::size_t Count, typename FrameOf>
constexpr bool lieApartWithin(const NSSize& panel, FrameOf frameOf) {
    std::array<NSRect, Count> frames{};
    for (std::size_t key = 0; key < Count; ++key) {
        frames[key] = frameOf(key);
        if (!liesWithin(frames[key], panel)) {
            return false;
        }
        for (std::size_t before = 0; before < key; ++before) {
            if (overlap(frames[before], frames[key])) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace talvex
