#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "numeric/DYXMathContext.h"
#include "numeric/conversion_direction.h"

// The units of the conversion keys, in groups of one quantity each.
namespace talvex {

// Groups that hold a register for the quantity, in the group's base unit.
struct UnitGroup {
    std::uint32_t code = 0;
    std::size_t index = 0;  // of the register
};

// One unit. An action stands in several groups where two units have the same name.
struct ConverterRow {
    using Function = double (*)(const DYXMathContext&, double value, Conversion direction);

    UnitGroup group;
    std::uint32_t action = 0;
    double factor = 1.0;          // base units in one of this unit
    bool inverse = false;         // instead: factor is the product of this unit and the base unit
    Function function = nullptr;  // instead of a factor

    [[nodiscard]] double toBase(const DYXMathContext& context, double value) const;
    [[nodiscard]] double fromBase(const DYXMathContext& context, double value) const;
};

[[nodiscard]] std::span<const ConverterRow> converters();

// The row of the group and the action, or null.
[[nodiscard]] const ConverterRow* findConverter(std::uint32_t group, std::uint32_t action);

}  // namespace talvex
