#pragma once

#include <string>
#include <string_view>

namespace talvex {

// Appends a character of the first plane, which all texts of the calculator are made of.
void appendUtf8(std::string& text, char16_t character);

std::string utf8(std::u16string_view text);

}  // namespace talvex
