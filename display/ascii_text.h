#pragma once

#include <string>
#include <string_view>

namespace talvex {

inline std::u16string asciiText(std::string_view ascii) { return {ascii.begin(), ascii.end()}; }

}  // namespace talvex
