#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "numeric/DYXnan.h"
#include "numeric/integer_conversion.h"

namespace talvex {
namespace {

constexpr std::uint64_t kQuietNaN = 0x7FF8000000000000U;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

// The error texts with their codes; the numbers are those of the characters.
struct ErrorRow {
    char code;
    unsigned number;
    const char16_t* text;
};

constexpr ErrorRow kErrors[]{
    {'\0', 0, u"indeterminate"}, {'$', 36, u"input error"},     {'?', 63, u"undefined"},
    {'B', 66, u"Bessel error"},  {'F', 70, u"factorial error"}, {'H', 72, u"hyperbolic error"},
    {'L', 76, u"log error"},     {'O', 79, u"overflow"},        {'P', 80, u"power error"},
    {'Q', 81, u"sqrt error"},    {'T', 84, u"trig error"},      {'U', 85, u"underflow"},
};

TEST(ErrorValue, IsAQuietNaNWithTheCodeInItsLowBits) {
    for (const ErrorRow& row : kErrors) {
        EXPECT_EQ(bitsOf(DYXnan(row.code)), kQuietNaN | row.number) << row.number;
    }
    EXPECT_EQ(bitsOf(DYXnan('\x80')), 0x7FF80000FFFFFF80U);
    EXPECT_EQ(bitsOf(DYXnan('\xFF')), 0x7FF80000FFFFFFFFU);
}

TEST(ErrorValue, IsNamedByItsLowWordAlone) {
    for (const ErrorRow& row : kErrors) {
        SCOPED_TRACE(row.number);
        EXPECT_EQ(DYXnanString(DYXnan(row.code)), row.text);
        for (const std::uint64_t highWord : {0xFFF80000U, 0x7FF80001U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
            const auto value = std::bit_cast<double>(highWord << 32U | row.number);
            EXPECT_EQ(DYXnanString(value), row.text) << highWord;
        }
    }
}

TEST(ErrorValue, OfOrdinaryArithmeticIsIndeterminate) {
    volatile double zero = 0.0;
    volatile double infinity = kInfinity;
    EXPECT_EQ(DYXnanString(zero / zero), u"indeterminate");
    EXPECT_EQ(DYXnanString(-(zero / zero)), u"indeterminate");
    EXPECT_EQ(DYXnanString(infinity - infinity), u"indeterminate");
}

TEST(ErrorValue, OfNoKnownCodeIsShownByItsPattern) {
    const std::pair<std::uint64_t, const char16_t*> rows[]{
        {0x7FF8000000000001U, u"NaN (7FF8000000000001)"},
        {0x7FF8000000000155U, u"NaN (7FF8000000000155)"},
        {0x7FF8000000000040U, u"NaN (7FF8000000000040)"},
        {0x7FF80000FFFFFF80U, u"NaN (7FF80000FFFFFF80)"},
        {0xFFF8ABCDEF012345U, u"NaN (FFF8ABCDEF012345)"},
        {0xFFFFFFFFFFFFFFFFU, u"NaN (FFFFFFFFFFFFFFFF)"},
    };
    for (const auto& [pattern, text] : rows) {
        EXPECT_EQ(DYXnanString(std::bit_cast<double>(pattern)), text) << pattern;
    }
}

TEST(SignedConversion, TruncatesTowardZeroAndSaturatesAtTheLowestNumber) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    const std::pair<double, std::int32_t> rows[]{{0.0, 0},
                                                 {-0.0, 0},
                                                 {0.999, 0},
                                                 {-0.999, 0},
                                                 {2.75, 2},
                                                 {-2.75, -2},
                                                 {2147483647.0, 2147483647},
                                                 {std::nextafter(2147483648.0, 0.0), 2147483647},
                                                 {2147483648.0, lowest},
                                                 {4294967296.0, lowest},
                                                 {1e300, lowest},
                                                 {-2147483647.5, -2147483647},
                                                 {-2147483648.0, lowest},
                                                 {std::nextafter(-2147483649.0, 0.0), lowest},
                                                 {-2147483649.0, lowest},
                                                 {kInfinity, lowest},
                                                 {-kInfinity, lowest},
                                                 {DYXnan('L'), lowest}};
    for (const auto& [value, expected] : rows) {
        EXPECT_EQ(toInt32(value), expected) << value;
    }
}

TEST(UnsignedConversion, TruncatesAndClampsAtBothEnds) {
    const std::pair<double, std::uint32_t> rows[]{{0.0, 0},
                                                  {-0.5, 0},
                                                  {-1e300, 0},
                                                  {-kInfinity, 0},
                                                  {0.999, 0},
                                                  {1.0, 1},
                                                  {2147483648.0, 2147483648U},
                                                  {4294967294.5, 4294967294U},
                                                  {4294967295.0, 4294967295U},
                                                  {std::nextafter(4294967296.0, 0.0), 4294967295U},
                                                  {4294967296.0, 4294967295U},
                                                  {kInfinity, 4294967295U},
                                                  {DYXnan('?'), 2147483648U},
                                                  {-DYXnan('\0'), 2147483648U}};
    for (const auto& [value, expected] : rows) {
        EXPECT_EQ(toCount(value), expected) << value;
    }
}

}  // namespace
}  // namespace talvex
