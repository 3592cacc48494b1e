// The walk to the nearest fraction against the search that tries every denominator.

#include "numeric/fraction_search.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>

#include "oracle/hard_numbers.h"
#include "oracle/naive_functions.h"

namespace talvex {
namespace {

double neighbour(HardNumbers& numbers, double value) {
    for (int steps = numbers.below(4); steps > 0; --steps) {
        value = std::nextafter(value, numbers.below(2) == 0 ? 0.0 : 1.0);
    }
    return value;
}

// Neighbours of fractions with denominators around the limit and of multiples of pi; tiny or nearly
// whole; halfway between two fractions of the largest denominators; random.
double hardNumber(HardNumbers& numbers, int limit) {
    const double near = std::ldexp(numbers.between(-1.0, 1.0), -numbers.below(60));
    const double ratio = numbers.below(2 * limit) / (1.0 + numbers.below(2 * limit));
    switch (numbers.below(5)) {
        case 0:
            return neighbour(numbers, ratio);
        case 1:
            return neighbour(numbers, 3.141592653589793 * ratio);
        case 2:
            return near / 2.0 + numbers.below(2) / 2.0;
        case 3:
            return numbers.below(2 * limit) / (2.0 * limit) + near / limit;
        default:
            return numbers.between(0.0, 1.0);
    }
}

void expectSameAsTryingAll(int limit, int values, std::uint64_t seed) {
    HardNumbers numbers(seed);
    for (int value = 0; value < values;) {
        const double number = hardNumber(numbers, limit);
        const double f = number - std::floor(number);
        if (f > 0.0 && f < 1.0) {
            const auto most = static_cast<std::uint32_t>(limit);
            ASSERT_EQ(bestDenominator(f, most), naiveDenominator(f, most))
                << std::hexfloat << f << " with denominators up to " << limit;
            ++value;
        }
    }
}

TEST(FractionSearch, FindsWhatTryingAllFinds) {
    expectSameAsTryingAll(999, 150'000, 1);
    for (const int limit : {2, 3, 5, 10, 36}) {
        expectSameAsTryingAll(limit, 10'000, 2);
    }
    // Each of these takes half a millisecond to check; the variable asks for more.
    const char* const more = std::getenv("TALVEX_FRACTION_SEARCHES");
    expectSameAsTryingAll(99999, more == nullptr ? 1'000 : std::atoi(more), 3);
}

}  // namespace
}  // namespace talvex
