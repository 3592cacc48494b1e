#pragma once

#include <array>
#include <cstddef>

namespace talvex {

// Widths or heights of the content at which a drawer comes to rest, besides none and all: from the
// largest down, ended by the first that isn't above 0.
using DrawerPositions = std::array<float, 8>;

inline constexpr DrawerPositions kNoPositions{};
inline constexpr DrawerPositions kConstantsPositions{313, 271, 229, 182, 133, 91, 47};
inline constexpr DrawerPositions kFunctionsPositions{182, 153, 126, 98, 73, 47};

// The far edges of a panel's columns or rows, from the smallest on: a drawer at rest shows whole
// ones. The last reaches the full size.
template <std::size_t Count>
constexpr std::array<double, Count> edgesOf(const DrawerPositions& positions, double fullSize) {
    static_assert(Count <= std::tuple_size_v<DrawerPositions>);
    std::array<double, Count> edges{};
    for (std::size_t place = 0; place + 1 < Count; ++place) {
        edges[place] = positions[Count - 2 - place];
    }
    edges[Count - 1] = fullSize;
    return edges;
}

}  // namespace talvex
