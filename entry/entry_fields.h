#pragma once

#include <array>
#include <cstddef>

namespace talvex {

// Where the fields of a time or an angle end in the typed text: hours or degrees, minutes, seconds.
// What follows the last are the decimals of the seconds.
struct EntryFields {
    std::array<std::size_t, 3> ends;
    double fullTurn;  // what a negative entry counts back from

    [[nodiscard]] constexpr std::size_t width() const { return ends[2]; }
};

inline constexpr EntryFields kHoursFields{.ends = {2, 4, 6}, .fullTurn = 24.0};
inline constexpr EntryFields kDegreesFields{.ends = {3, 5, 7}, .fullTurn = 360.0};

}  // namespace talvex
