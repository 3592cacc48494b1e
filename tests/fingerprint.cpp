// Prints one line for each function and unit: a hash over the bits of its results for operands of
// all kinds. Two builds that compute the same print the same.

#include <bit>
#include <cstdint>
#include <cstdio>

#include "core/Comand.h"
#include "core/converter_table.h"
#include "core/function_tables.h"
#include "oracle/hard_numbers.h"

namespace talvex {
namespace {

constexpr int kOperands = 3000;

DYXMathContext contextOf(int round) {
    DYXMathContext context;
    context.angleMode = AngleMode{round % 5};
    context.inverse = round / 5 % 2 == 1;
    context.hyperbolic = round / 10 % 2 == 1;
    return context;
}

// A line for each row of a table; `result` is asked for one of its results.
template <class Rows, class Result>
void printRows(const Rows& rows, Result result) {
    HardNumbers numbers(5);
    for (const auto& row : rows) {
        std::uint64_t hash = 14695981039346656037U;
        for (int round = 0; round < kOperands; ++round) {
            const double x = round % 3 == 0 ? numbers.between(-10.0, 60.0) : numbers.next();
            const double y = round % 9 == 0 ? numbers.between(-10.0, 60.0) : numbers.next();
            const double each = result(row, contextOf(round), x, y);
            hash = (hash ^ std::bit_cast<std::uint64_t>(each)) * 1099511628211U;
            hash ^= hash >> 29U;
        }
        for (unsigned place = 0; place < 4; ++place) {
            std::putchar(characterOf(row.action, place));
        }
        std::printf(" %016llx\n", static_cast<unsigned long long>(hash));
    }
}

}  // namespace
}  // namespace talvex

int main() {
    using namespace talvex;
    using Context = DYXMathContext;
    printRows(unitaries(), [](const UnaryRow& row, const Context& context, double x, double) {
        return row(context, x);
    });
    printRows(binaries(), [](const BinaryRow& row, const Context& context, double x, double y) {
        return row(context, x, y);
    });
    printRows(converters(),
              [](const ConverterRow& row, const Context& context, double x, double y) {
                  return x < y ? row.toBase(context, x) : row.fromBase(context, x);
              });
}
