#include "numeric/power_and_slope.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>

#include "numeric/integer_conversion.h"

namespace talvex {
namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kHalfTurn = 180.0;
constexpr double kQuarterTurn = 90.0;
// 20 log10 of 1000 millivolts per volt.
constexpr double kMillivoltDecibels = 60.0;

double convertMillivoltDecibels(double ohms, double value, Conversion direction) {
    return direction == Conversion::toBase
               ? std::pow(10.0, (value - kMillivoltDecibels) / 10.0) / ohms
               : std::log10(value * ohms) * 10.0 + kMillivoltDecibels;
}

// The slope at an exact multiple of 90 degrees.
std::optional<double> slopeAtQuarterTurns(double degrees) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    static constexpr std::array kSlopes{0.0, kInfinity, 0.0, -kInfinity};
    const double quarters = std::round(degrees / kQuarterTurn);
    if (quarters * kQuarterTurn != degrees) {
        return std::nullopt;
    }
    return kSlopes.at(static_cast<std::size_t>(toInt32(quarters)) % kSlopes.size());
}

}  // namespace

double DYXConvertdBm(const DYXMathContext&, double value, Conversion direction) {
    return direction == Conversion::toBase ? std::pow(10.0, value / 10.0) / 1000.0
                                           : std::log10(value) * 10.0 + 30.0;
}

double DYXConvertdBmV50(const DYXMathContext&, double value, Conversion direction) {
    return convertMillivoltDecibels(50.0, value, direction);
}

double DYXConvertdBmV75(const DYXMathContext&, double value, Conversion direction) {
    return convertMillivoltDecibels(75.0, value, direction);
}

double DYXConvertPercentGrade(const DYXMathContext&, double value, Conversion direction) {
    if (direction == Conversion::toBase) {
        return std::atan(value / 100.0) * kHalfTurn / kPi;
    }
    const std::optional<double> exact = slopeAtQuarterTurns(value);
    return exact ? *exact : std::tan(value * kPi / kHalfTurn) * 100.0;
}

double DYXConvertSlope(const DYXMathContext&, double value, Conversion direction) {
    if (direction == Conversion::toBase) {
        return std::atan(value) * kHalfTurn / kPi;
    }
    const std::optional<double> exact = slopeAtQuarterTurns(value);
    return exact ? *exact : std::tan(value * kPi / kHalfTurn);
}

}  // namespace talvex
