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

    // The same rules with another value and another echo.
    [[nodiscard]] constexpr Rules with(double (DYXInputDisplay::*otherValue)() const,
                                       void (DYXInputDisplay::*otherEcho)()) const {
        Rules rules = *this;
        rules.value = otherValue;
        rules.echo = otherEcho;
        return rules;
    }
};

}  // namespace talvex
