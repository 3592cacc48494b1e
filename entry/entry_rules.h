#pragma once

#include <cstdint>
#include <string_view>

#include "display/LineSettings.h"
#include "display/LineText.h"
#include "entry/EntryState.h"
#include "entry/entry_editing.h"

namespace talvex {

// Everything that an input mode decides about the entry, one row for each mode.
struct EntryRules {
    using Value = double (*)(const EntryState&, const LineSettings&);
    using Echo = LineText (*)(const EntryState&, const LineSettings&);

    std::string_view digits;
    bool hasDecimalKey;
    bool hasExponentKey;
    bool hasSignKey;
    KeyAnswer (*append)(EntryState&, char, const LineSettings&);
    KeyAnswer (*appendDecimal)(EntryState&);
    Value value;
    Echo echo;

    // The same rules with another value and another echo.
    [[nodiscard]] constexpr EntryRules with(Value otherValue, Echo otherEcho) const {
        EntryRules rules = *this;
        rules.value = otherValue;
        rules.echo = otherEcho;
        return rules;
    }
};

// The rules of FIX for a number that is of no mode.
[[nodiscard]] const EntryRules& entryRules(std::int32_t inputMode);

}  // namespace talvex
