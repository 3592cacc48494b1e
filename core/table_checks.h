#pragma once

#include <cstddef>

namespace talvex {

// Whether no two rows of a table have the same action, so that no row hides another.
template <class Table>
consteval bool hasUniqueActions(const Table& table) {
    for (std::size_t first = 0; first < table.size(); ++first) {
        for (std::size_t second = first + 1; second < table.size(); ++second) {
            if (table[first].action == table[second].action) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace talvex
