// Every function and every unit takes any bits as operands, in any mode.

#include <cstdint>

#include "core/converter_table.h"
#include "core/function_tables.h"
#include "fuzz_input.h"

namespace talvex {
namespace {

double result(FuzzInput& input, const DYXMathContext& context) {
    const double x = input.takeNumber();
    const double y = input.takeNumber();
    std::size_t choice = input.take<std::uint16_t>() %
                         (unitaries().size() + binaries().size() + 2 * converters().size());
    if (choice < unitaries().size()) {
        return unitaries()[choice](context, x);
    }
    choice -= unitaries().size();
    if (choice < binaries().size()) {
        return binaries()[choice](context, x, y);
    }
    choice -= binaries().size();
    const ConverterRow& unit = converters()[choice / 2];
    return choice % 2 == 0 ? unit.toBase(context, x) : unit.fromBase(context, x);
}

void run(FuzzInput& input) {
    const auto modifiers = input.take<std::uint8_t>();
    DYXMathContext context;
    const auto angleMode = input.take<std::int32_t>();
    context.angleMode = AngleMode{modifiers % 2 == 0 ? angleMode : angleMode % 5};
    context.inverse = (modifiers & 2U) != 0;
    context.hyperbolic = (modifiers & 4U) != 0;
    context.useHPStylePowerAndLogs = (modifiers & 8U) != 0;
    const volatile double kept = result(input, context);
    static_cast<void>(kept);
}

}  // namespace
}  // namespace talvex

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    talvex::FuzzInput input({data, size});
    while (!input.isAtEnd()) {
        talvex::run(input);
    }
    return 0;
}
