#include "oracle/hard_numbers.h"

#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <limits>

namespace talvex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

constexpr std::array kThresholds{
    0.0,          0.5,          1.0,          2.0,     3.0,       6.0,          20.0,
    21.0,         32.0,         50.0,         90.0,    100.0,     170.0,        171.0,
    180.0,        299.0,        300.0,        515.0,   709.0,     746.0,        1029.0,
    1030.0,       1064.18,      9800.0,       9846.0,  1e9,       2147483647.0, 2147483648.0,
    4294967295.0, 4294967296.0, 1e15,         1e300,   1e-300,    M_PI,         M_PI_2,
    M_PI / 180.0, DBL_MIN,      DBL_TRUE_MIN, DBL_MAX, kInfinity, kNaN};

}  // namespace

double HardNumbers::between(double low, double high) {
    return low + (high - low) * std::uniform_real_distribution<double>()(random_);
}

int HardNumbers::below(int count) {
    return static_cast<int>(random_() % static_cast<unsigned>(count));
}

double HardNumbers::next() {
    const std::uint64_t bits = random_();
    const double sign = random_() % 2 == 0 ? 1.0 : -1.0;
    switch (random_() % 6) {
        case 0:
            return std::bit_cast<double>(bits);
        case 1:
            return sign * static_cast<double>(bits % 4096);
        case 2:
            return sign * static_cast<double>(bits % (std::uint64_t{1} << 33U));
        case 3:
            return sign * kThresholds.at(bits % kThresholds.size());
        case 4:
            return sign * std::nextafter(kThresholds.at(bits % kThresholds.size()),
                                         random_() % 2 == 0 ? kInfinity : -kInfinity);
        default:
            return sign * std::ldexp(between(1.0, 2.0), static_cast<int>(bits % 88) - 44);
    }
}

}  // namespace talvex
