#pragma once

#include <span>
#include <string_view>

#include "core/Comand.h"

namespace talvex {

// What the help says about a function besides its name: for which numbers it has a meaning, and
// what it shows where it has none.
struct FunctionNote {
    Comand command;
    std::u16string_view domain;
    std::u16string_view failure;  // empty if there is none
};

[[nodiscard]] std::span<const FunctionNote> functionNotes();

}  // namespace talvex
