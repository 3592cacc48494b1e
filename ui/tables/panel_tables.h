#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "ui/DYXButton.h"

// Every key of the drawers, one row each. Titles and hints are simple TeX.
namespace talvex {

struct ConstantKeyRow {
    Comand command;
    std::u16string_view title;
    std::u16string_view name;
    std::u16string_view unit;  // empty for pure numbers
};

// By columns, from the top.
[[nodiscard]] std::span<const ConstantKeyRow> constantKeyRows();

struct FunctionKeyRow {
    Comand command;
    std::u16string_view title;
    std::u16string_view hint;
    std::uint8_t row;
    std::uint8_t column;
    std::uint8_t columnSpan = 1;
};

[[nodiscard]] std::span<const FunctionKeyRow> functionKeyRows();

struct MemoryKeyRow {
    Comand command;
    std::u16string_view title;
    std::u16string_view hint;
    KeyGroup group;
    std::uint8_t row;
    std::uint8_t column;
    std::uint8_t columnSpan = 1;
    KeyClass keyClass = KeyClass::key;
};

// The keys above the registers, which fill the rows below.
[[nodiscard]] std::span<const MemoryKeyRow> memoryKeyRows();

struct UnitKeyRow {
    std::uint32_t action;
    std::u16string_view title;
    std::u16string_view name;
};

// One page of the conversion drawer.
struct UnitPage {
    std::u16string_view label;
    std::uint32_t group;
    std::span<const UnitKeyRow> units;

    [[nodiscard]] constexpr Comand commandOf(const UnitKeyRow& unit) const {
        return {.category = fourCC("conv"), .action = unit.action, .group = group};
    }
};

[[nodiscard]] std::span<const UnitPage> unitPages();

}  // namespace talvex
