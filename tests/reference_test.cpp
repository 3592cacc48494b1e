// Functions against results of arbitrary precision; make_reference_values.py says how those came
// about.

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "display/ascii_text.h"

namespace talvex {
namespace {

// How many doubles away; those around zero are neighbours.
std::int64_t distance(double left, double right) {
    const auto place = [](double value) {
        const auto bits = std::bit_cast<std::int64_t>(value);
        return bits < 0 ? INT64_MIN - bits : bits;
    };
    return std::abs(place(left) - place(right));
}

TEST(ReferenceValues, AreMetWithinTheToleranceOfEachFunction) {
    std::ifstream file(TALVEX_REFERENCE_VALUES);
    ASSERT_TRUE(file);
    int rows = 0;
    for (std::string line; std::getline(file, line); ++rows) {
        SCOPED_TRACE(line);
        std::array<std::string, 6> fields;
        std::istringstream stream(line);
        for (std::string& field : fields) {
            std::getline(stream, field, ',');
        }
        const auto& [name, angleMode, tolerance, x, y, expected] = fields;
        const auto number = [](const std::string& text) { return std::strtod(text.c_str(), {}); };
        const Comand command = commandFromString(asciiText(name));
        DYXMathContext context;
        context.angleMode = AngleMode{std::atoi(angleMode.c_str())};
        const double result =
            command.category == fourCC("unit")
                ? (*findFunction(unitaries(), command.action))(context, number(x))
                : (*findFunction(binaries(), command.action))(context, number(x), number(y));
        ASSERT_FALSE(std::isnan(result));
        // In units in the last place.
        EXPECT_LE(distance(result, number(expected)), std::atoll(tolerance.c_str())) << result;
    }
    EXPECT_GT(rows, 800);
}

}  // namespace
}  // namespace talvex
