#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/Comand.h"

namespace talvex {

// A page of the help: the file "HelpStack.html" for the title "Stack". The tag stands for the page
// in the saved state.
struct HelpPage {
    std::u16string_view title;
    int tag;
};

[[nodiscard]] std::span<const HelpPage> helpPages();

// The page and the place in it that deal with a command, as "Functions#unitGSIN".
[[nodiscard]] std::u16string helpPlaceOfCommand(const Comand& command);

// The URL of a file, given by its path in UTF-8.
[[nodiscard]] std::u16string fileURL(std::string_view path);

}  // namespace talvex
