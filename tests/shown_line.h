#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "display/DYXOutputDisplay.h"

namespace talvex {

// What a line shows, slot by slot.
struct Shown {
    std::u16string mantissa = {};
    std::u16string exponent = {};
    std::u16string exponentSign = {};
    std::u16string sign = {};
    std::u16string status = {};
    bool operator==(const Shown&) const = default;
};

inline void PrintTo(const Shown& shown, std::ostream* out) {
    for (const auto& text : {shown.sign, shown.mantissa, shown.exponentSign, shown.exponent}) {
        *out << testing::PrintToString(text) << ' ';
    }
    *out << testing::PrintToString(shown.status);
}

inline Shown shownBy(const DYXOutputDisplay& line) {
    const auto textOf = [](const TextSlot& slot) {
        return slot ? slot->stringValue() : std::u16string();
    };
    return {.mantissa = textOf(line.mantissaField()),
            .exponent = textOf(line.exponentField()),
            .exponentSign = textOf(line.exponentSignField()),
            .sign = textOf(line.mantissaSignField()),
            .status = textOf(line.statusField())};
}

}  // namespace talvex
