#pragma once

#include <string>

namespace talvex {

// A finite number as it is set in print, in simple TeX and with the digits that it takes to be read
// back as the same number: "6.626\u00D710^{\u221234}".
std::u16string printedNumber(double value);

}  // namespace talvex
