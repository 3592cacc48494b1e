// Every function and every unit takes any bits as operands, in any mode.

#include <bit>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>

#include "core/converter_table.h"
#include "core/function_tables.h"

namespace talvex {
namespace {

// What one step reads of the input.
struct Step {
    std::uint16_t choice;
    std::uint8_t kinds;
    std::uint8_t modifiers;
    std::int32_t angleMode;
    std::uint64_t x;
    std::uint64_t y;
};

// Random bits are seldom a NaN, an infinity, a subnormal or a whole number; the kind makes them
// one.
double operand(std::uint64_t bits, unsigned kind) {
    constexpr std::uint64_t exponent = std::uint64_t{0x7FF} << 52U;
    switch (kind % 5) {
        case 1:
            return std::bit_cast<double>(bits | exponent);
        case 2:
            return std::bit_cast<double>(bits & ~exponent);
        case 3:
            return static_cast<double>(static_cast<std::int64_t>(bits) >> 30U);
        case 4:
            return std::bit_cast<double>((bits & (std::uint64_t{1} << 63U)) | exponent);
        default:
            return std::bit_cast<double>(bits);
    }
}

void run(const Step& step) {
    DYXMathContext context;
    context.angleMode = step.modifiers % 2 == 0 ? step.angleMode : step.angleMode % 5;
    context.inverse = (step.modifiers & 2U) != 0;
    context.hyperbolic = (step.modifiers & 4U) != 0;
    context.useHPStylePowerAndLogs = (step.modifiers & 8U) != 0;
    const double x = operand(step.x, step.kinds);
    const double y = operand(step.y, step.kinds / 5U);

    std::size_t choice =
        step.choice % (unitaries().size() + binaries().size() + 2 * converters().size());
    volatile double result = 0.0;
    if (choice < unitaries().size()) {
        result = unitaries()[choice](context, x);
    } else if (choice -= unitaries().size(); choice < binaries().size()) {
        result = binaries()[choice](context, x, y);
    } else {
        choice -= binaries().size();
        const ConverterRow& unit = converters()[choice / 2];
        result = choice % 2 == 0 ? unit.toBase(context, x) : unit.fromBase(context, x);
    }
    static_cast<void>(result);
}

}  // namespace
}  // namespace talvex

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    talvex::Step step{};
    for (; size >= sizeof step; data += sizeof step, size -= sizeof step) {
        std::memcpy(&step, data, sizeof step);
        talvex::run(step);
    }
    return 0;
}
