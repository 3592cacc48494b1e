#pragma once

#include <optional>
#include <span>

namespace talvex {

// Answers the options that need no window, and refuses those that nobody knows. Gives the status to
// end the program with, or nothing if it is to open its window; options of the toolkit are left to
// the toolkit.
std::optional<int> answerCommandLine(std::span<const char* const> arguments);

}  // namespace talvex
