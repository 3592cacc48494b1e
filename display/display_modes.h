#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The thirteen display modes, for output and for input alike. The numbers are stored in the saved
// state: they are a file format.
namespace talvex {

namespace mode {
inline constexpr std::int32_t FIX = 0;
inline constexpr std::int32_t SCI = 1;
inline constexpr std::int32_t ENG = 2;
inline constexpr std::int32_t MON = 3;
inline constexpr std::int32_t FRC = 4;
inline constexpr std::int32_t CAR = 5;
inline constexpr std::int32_t HMS = 6;
inline constexpr std::int32_t DMS = 7;
inline constexpr std::int32_t HEX = 8;
inline constexpr std::int32_t DEC = 9;
inline constexpr std::int32_t OCT = 10;
inline constexpr std::int32_t BIN = 11;
inline constexpr std::int32_t IRR = 12;
inline constexpr std::int32_t count = 13;
}  // namespace mode

// Whether the number is that of a mode; saved values may be anything.
constexpr bool isDisplayMode(std::int32_t number) { return number >= 0 && number < mode::count; }

// A table with a row for each mode, in the order of their numbers. One row more or less doesn't
// compile.
template <class Row, std::size_t Count>
consteval std::array<Row, Count> tableOfModes(const Row (&rows)[Count]) {
    static_assert(Count == mode::count);
    return std::to_array(rows);
}

// The mode that a number stands for: FIX for all that are of no mode.
constexpr std::int32_t effectiveMode(std::int32_t number) {
    return isDisplayMode(number) ? number : mode::FIX;
}

// HEX, DEC, OCT and BIN.
constexpr bool isIntegerMode(std::int32_t number) {
    return number >= mode::HEX && number <= mode::BIN;
}

// The three letters of a mode, and what they stand for.
struct DisplayModeName {
    std::u16string_view code;
    std::u16string_view meaning;
};

inline constexpr auto kDisplayModeNames = tableOfModes<DisplayModeName>({
    {u"FIX", u"fixed number of decimals"},
    {u"SCI", u"scientific, with an exponent"},
    {u"ENG", u"engineering, exponents in steps of three"},
    {u"MON", u"money, X itself is rounded"},
    {u"FRC", u"fractions"},
    {u"CAR", u"carpentry, marks of a folding rule"},
    {u"HMS", u"hours, minutes, seconds"},
    {u"DMS", u"degrees, minutes, seconds"},
    {u"HEX", u"hexadecimal, 32 bits"},
    {u"DEC", u"decimal integers, 32 bits"},
    {u"OCT", u"octal, 32 bits"},
    {u"BIN", u"binary, 32 bits"},
    {u"IRR", u"irrational, multiples of \u03C0, \u221A2, \u221A3 and e"},
});

// The three letters of a mode; "???" for any other number.
std::u16string displayModeName(std::int32_t number);

}  // namespace talvex
