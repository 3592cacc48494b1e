#pragma once

#include <string_view>

#include "entry/DYXInputDisplay.h"

namespace talvex {

// Everything that an input mode decides about the entry, one row for each mode.
struct DYXInputDisplay::Rules {
    std::string_view digits;
    bool hasDecimalKey;
    bool hasExponentKey;
    bool hasSignKey;
    void (DYXInputDisplay::*append)(char);
    void (DYXInputDisplay::*appendDecimal)();
    bool (DYXInputDisplay::*setToDecimal)();
    double (DYXInputDisplay::*value)() const;
    void (DYXInputDisplay::*echo)();
};

}  // namespace talvex
