#pragma once

#include <string_view>

// Numbers out of any text.
namespace talvex::ZUStringExtensions {

// The longest decimal number, with an optional sign and exponent, that the text starts with behind
// white space; 0 if there is none. "inf" and "nan" are no numbers. No more than the first 65536
// characters are looked at.
double leadingNumber(std::string_view text);

// The same of a text that may have a comma for the point.
double internationalDoubleValue(std::u16string_view text);

}  // namespace talvex::ZUStringExtensions
