#pragma once

#include <cstdint>
#include <span>
#include <variant>

#include "numeric/DYXMathContext.h"

// The tables behind the keys: an action code and the function to call. A row holds a plain
// function, or one that reads the calculator's settings; X always comes first, then Y.
namespace talvex {

template <class... Operands>
struct FunctionRow {
    using Plain = double (*)(Operands...);
    using Checked = double (*)(const DYXMathContext&, Operands...);

    std::uint32_t action = 0;
    std::variant<Plain, Checked> function;

    [[nodiscard]] double operator()(const DYXMathContext& context, Operands... operands) const {
        if (const Plain* plain = std::get_if<Plain>(&function)) {
            return (*plain)(operands...);
        }
        return std::get<Checked>(function)(context, operands...);
    }
};

using UnaryRow = FunctionRow<double>;
using BinaryRow = FunctionRow<double, double>;
using TrinaryRow = FunctionRow<double, double, double>;
using QuadranaryRow = FunctionRow<double, double, double, double>;

// A number with a key of its own; physical constants in SI units.
struct ConstantRow {
    std::uint32_t action;
    double value;
};

[[nodiscard]] std::span<const UnaryRow> unitaries();
[[nodiscard]] std::span<const BinaryRow> binaries();
[[nodiscard]] std::span<const TrinaryRow> trinaries();
[[nodiscard]] std::span<const QuadranaryRow> quadranaries();
[[nodiscard]] std::span<const ConstantRow> constants();

// The row of the action, or null.
template <class Row>
[[nodiscard]] const Row* findFunction(std::span<const Row> table, std::uint32_t action) {
    for (const Row& row : table) {
        if (row.action == action) {
            return &row;
        }
    }
    return nullptr;
}

[[nodiscard]] const ConstantRow* findConstant(std::uint32_t action);

}  // namespace talvex
