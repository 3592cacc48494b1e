// Functions against results of arbitrary precision; make_reference_values.py tells how those came
// about. Reports the worst row of each function.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <string>

#include "core/Comand.h"
#include "core/function_tables.h"
#include "display/ascii_text.h"

namespace talvex {
namespace {

struct ReferenceRow {
    std::string what;
    Comand command;
    DYXMathContext context;
    std::int64_t tolerance;  // in units in the last place
    double x, y, expected;
};

ReferenceRow parse(const std::string& line) {
    std::array<std::string, 7> fields;
    std::istringstream stream(line);
    for (std::string& field : fields) {
        std::getline(stream, field, ',');
    }
    const auto number = [&](std::size_t index) {
        return std::strtod(fields.at(index).c_str(), {});
    };
    DYXMathContext context;
    context.angleMode = std::atoi(fields[2].c_str());
    return {fields[0], commandFromString(asciiText(fields[1])),
            context,   std::atoll(fields[3].c_str()),
            number(4), number(5),
            number(6)};
}

double result(const ReferenceRow& row) {
    if (row.command.category == fourCC("unit")) {
        return (*findFunction(unitaries(), row.command.action))(row.context, row.x);
    }
    return (*findFunction(binaries(), row.command.action))(row.context, row.x, row.y);
}

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
    std::map<std::string, std::pair<std::int64_t, ReferenceRow>> worst;
    int rows = 0;
    for (std::string line; std::getline(file, line); ++rows) {
        const ReferenceRow row = parse(line);
        const double actual = result(row);
        const std::int64_t error = std::isnan(actual) ? INT64_MAX : distance(actual, row.expected);
        EXPECT_LE(error, row.tolerance) << line << " gives " << actual;
        const auto entry = worst.try_emplace(row.what, -1, row).first;
        entry->second =
            std::max(entry->second, {error, row},
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    }
    EXPECT_GT(rows, 800);
    for (const auto& [what, row] : worst) {
        std::cout << what << ": " << row.first << " of " << row.second.tolerance << " at "
                  << row.second.x << ", " << row.second.y << "\n";
    }
}

}  // namespace
}  // namespace talvex
