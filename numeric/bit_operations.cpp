#include "numeric/bit_operations.h"

#include <cstdint>

#include "numeric/integer_conversion.h"

namespace talvex {
namespace {

constexpr std::uint32_t kShiftMask = 31;

std::uint32_t bits(double value) { return static_cast<std::uint32_t>(toInt32(value)); }

double signedValue(std::uint32_t pattern) { return static_cast<std::int32_t>(pattern); }

}  // namespace

double notf(double x) { return signedValue(~bits(x)); }
double shift1leftf(double x) { return signedValue(bits(x) << 1U); }
double shift1rightf(double x) { return toInt32(x) >> 1; }

double andf(double x, double y) { return signedValue(bits(y) & bits(x)); }
double nandf(double x, double y) { return signedValue(~(bits(y) & bits(x))); }
double orf(double x, double y) { return signedValue(bits(y) | bits(x)); }
double xorf(double x, double y) { return signedValue(bits(y) ^ bits(x)); }

double shiftleftf(double x, double y) { return signedValue(bits(y) << (bits(x) & kShiftMask)); }
double shiftrightf(double x, double y) { return toInt32(y) >> (bits(x) & kShiftMask); }

}  // namespace talvex
