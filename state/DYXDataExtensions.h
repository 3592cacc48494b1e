#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "platform/NSGeometry.h"

// Numbers and rectangles as the bytes in which the saved state holds them, most significant first
// on every machine.
namespace talvex::DYXDataExtensions {

// The IEEE 754 bits of a double, error codes of NaNs included.
std::array<std::uint8_t, 8> dataWithDouble(double value);
// The first 8 bytes as a double; 0 if there are fewer.
double doubleValue(std::span<const std::uint8_t> data);

// x, y, width and height, each rounded to the nearest IEEE 754 binary32 number.
std::array<std::uint8_t, 16> dataWithRect(const NSRect& rect);
// The first 16 bytes as a rectangle; all 0 if there are fewer.
NSRect rectValue(std::span<const std::uint8_t> data);

}  // namespace talvex::DYXDataExtensions
