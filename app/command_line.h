#pragma once

#include <optional>
#include <span>

namespace talvex {

// Answers the options that need no window, and refuses those that nobody knows. Gives the status to
// end the program with, or nothing if it is to open its window; options of the toolkit are left to
// the toolkit. The X server that is named becomes that of the environment, where the clipboard is
// asked for.
std::optional<int> answerCommandLine(std::span<const char* const> arguments);

}  // namespace talvex
