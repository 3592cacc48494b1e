#pragma once

#include <cstddef>
#include <variant>

// What the compiler checks of the tables.
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

// Whether every row of a table of functions has its function.
template <class Table>
consteval bool hasFunctions(const Table& table) {
    for (const auto& row : table) {
        if (std::visit([](auto function) { return function == nullptr; }, row.function)) {
            return false;
        }
    }
    return true;
}

}  // namespace talvex
