#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <utility>

#include "numeric/DYXnan.h"
#include "numeric/integer_conversion.h"
#include "same_bits.h"

namespace talvex {
namespace {

TEST(ErrorValue, IsAQuietNaNWithTheCodeInItsLowBits) {
    const std::pair<char, std::uint64_t> rows[]{
        {'\0', 0x7FF8000000000000U}, {'Q', 0x7FF8000000000051U}, {'\x80', 0x7FF80000FFFFFF80U}};
    for (const auto& [code, bits] : rows) {
        EXPECT_EQ(std::bit_cast<std::uint64_t>(DYXnan(code)), bits) << code;
    }
}

TEST(ErrorValue, IsNamedByItsLowWordAloneOrElseShownByItsPattern) {
    const std::pair<std::uint64_t, const char16_t*> rows[]{
        {0x7FF800000000003FU, u"undefined"},
        {0xFFFFFFFF00000024U, u"input error"},
        {0xFFF8000000000000U, u"indeterminate"},
        {0x7FF8000000000155U, u"NaN (7FF8000000000155)"},
        {0x7FF80000FFFFFF80U, u"NaN (7FF80000FFFFFF80)"},
        {0xFFF8ABCDEF012345U, u"NaN (FFF8ABCDEF012345)"},
    };
    for (const auto& [pattern, text] : rows) {
        EXPECT_EQ(DYXnanString(std::bit_cast<double>(pattern)), text) << pattern;
    }
}

TEST(IntegerConversion, TruncatesAndSaturatesSignedAtTheLowestNumberUnsignedAtBothEnds) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    constexpr std::uint32_t middle = 2147483648U;
    constexpr std::uint32_t most = std::numeric_limits<std::uint32_t>::max();
    const struct {
        double value;
        std::int32_t asSigned;
        std::uint32_t asCount;
    } rows[]{{-0.999999, 0, 0},          {2147483647.9, highest, middle - 1},
             {2.9999999, 2, 2},          {2147483648.0, lowest, middle},
             {-2.9999999, -2, 0},        {-2147483647.5, lowest + 1, 0},
             {-2147483649, lowest, 0},   {-2147483648.9, lowest, 0},
             {4294967296, lowest, most}, {4294967294.9, lowest, most - 1},
             {kInfinity, lowest, most},  {4294967295.9, lowest, most},
             {-kInfinity, lowest, 0},    {DYXnan('L'), lowest, middle}};
    for (const auto& row : rows) {
        EXPECT_EQ(toInt32(row.value), row.asSigned) << row.value;
        EXPECT_EQ(toCount(row.value), row.asCount) << row.value;
    }
}

}  // namespace
}  // namespace talvex
