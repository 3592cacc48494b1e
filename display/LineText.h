#pragma once

#include <string>
#include <string_view>

namespace talvex {

// What a line says of a number.
struct LineText {
    std::u16string mantissa = {};
    std::u16string sign = {};
    std::u16string exponentSign = {};
    std::u16string exponent = {};
    std::u16string_view statusWord = {};  // a literal, in English
    std::u16string statusRest = {};
};

}  // namespace talvex
