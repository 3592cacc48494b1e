// Printing and reading of decimal text against the exact decimal expansion of a double, in a locale
// with a point and in one with a comma.

#include "numeric/decimal_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "numeric/DYXRoundToDigits.h"
#include "numeric/DYXnan.h"

namespace talvex {
namespace {

using Limits = std::numeric_limits<double>;

constexpr double kInfinity = Limits::infinity();

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

// All digits of a number that is a sum of powers of two: the C library prints them all if asked
// for enough places, and this is asked only under the locale "C".
std::string exactExpansion(long double magnitude) {
    std::array<char, 2500> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.1100Lf", magnitude);
    return {text.data(), static_cast<std::size_t>(length)};
}

// An exact expansion cut to its places, with the last one rounded half to even by hand.
std::string rounded(std::string exact, std::size_t places) {
    const std::size_t end = exact.find('.') + 1 + places;
    const std::string rest = exact.substr(end);
    exact.resize(places == 0 ? end - 1 : end);
    const bool isHalf = rest.find_first_not_of('0', 1) == std::string::npos && rest[0] == '5';
    const bool isUp = isHalf ? (exact.back() - '0') % 2 == 1 : rest[0] >= '5';
    std::size_t place = exact.size();
    bool carries = isUp;
    while (carries && place > 0) {
        --place;
        if (exact[place] != '.') {
            carries = exact[place] == '9';
            exact[place] = static_cast<char>(carries ? '0' : exact[place] + 1);
        }
    }
    return carries ? '1' + exact : exact;
}

// Powers of two and ten with their neighbours, ties, both ends of the range; random bit patterns,
// and random numbers of the sizes that people type.
std::vector<double> sampleValues() {
    std::vector<double> values{0.0,   0.5,   1.5,       2.5,  0.125,         0.375, 1e23,
                               1.005, 0.045, 999.99999, 5e-5, Limits::max(), 9.5,   2.675};
    for (int exponent = -1074; exponent < 1024; exponent += 61) {
        const double power = std::ldexp(1.0, exponent);
        values.insert(values.end(),
                      {std::nextafter(power, 0.0), power, std::nextafter(power, kInfinity)});
    }
    for (double power = 1e-300; power < 1e300; power *= 1e7) {
        values.insert(values.end(),
                      {std::nextafter(power, 0.0), power, std::nextafter(power, kInfinity)});
    }
    std::mt19937_64 random(20240229);
    while (values.size() < 1500) {
        const auto value = std::bit_cast<double>(random() >> 1U);
        if (std::isfinite(value)) {
            values.push_back(value);
        }
    }
    while (values.size() < 3000) {
        values.push_back(static_cast<double>(random() % 10'000'000'000'000U) /
                         std::pow(10.0, static_cast<double>(random() % 14)));
    }
    return values;
}

class DecimalText : public testing::TestWithParam<const char*> {
  protected:
    void enterLocale() {
        if (std::setlocale(LC_ALL, GetParam()) == nullptr) {
            GTEST_SKIP() << "no locale " << GetParam();
        }
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

INSTANTIATE_TEST_SUITE_P(Locales, DecimalText, testing::Values("C", "de_DE.UTF-8"));

TEST_P(DecimalText, IsTheExactValueRoundedHalfToEven) {
    for (const double value : sampleValues()) {
        std::setlocale(LC_ALL, "C");
        const std::string exact = exactExpansion(value);
        enterLocale();
        for (const unsigned places : {0U, 1U, 4U, 9U, 17U, 40U}) {
            ASSERT_EQ(fixedText(value, places), rounded(exact, places)) << value;
        }
        ASSERT_EQ(fixedText(value, 4'000'000'000U), rounded(exact, kMostDecimalPlaces)) << value;
        ASSERT_EQ(parseDecimal(exact), value);
        ASSERT_EQ(parseDecimal('-' + exact), -value);
        const double twoPlaces = DYXRoundToDigits(-value, 2);
        ASSERT_EQ(parseDecimal('-' + rounded(exact, 2)), twoPlaces) << value;
        ASSERT_EQ(DYXRoundToDigits(value, 4'000'000'000U), value);
    }
    EXPECT_EQ(fixedText(-2.5, 0), "-2");
    EXPECT_EQ(fixedText(-0.0, 1), "-0.0");
}

TEST_P(DecimalText, InScientificFormIsTheSameDigits) {
    for (const double value : sampleValues()) {
        std::setlocale(LC_ALL, "C");
        std::string digits = exactExpansion(value);
        const auto point = static_cast<int>(digits.find('.'));
        digits.erase(static_cast<std::size_t>(point), 1);
        const std::size_t first = std::min(digits.find_first_not_of('0'), digits.size());
        enterLocale();
        const auto [mantissa, exponent] = scientificText(-value, 6);
        if (first == digits.size()) {
            ASSERT_EQ(mantissa + ' ' + std::to_string(exponent), "0.000000 0");
            continue;
        }
        const std::string exact =
            digits.substr(first, 1) + '.' + digits.substr(first + 1) + "00000000";
        const std::string expected = rounded(exact, 6);
        const bool carries = expected.size() == 9;
        ASSERT_EQ(mantissa, carries ? "1.000000" : expected) << value;
        ASSERT_EQ(exponent, point - static_cast<int>(first) - (carries ? 0 : 1)) << value;
    }
}

// The middle between two doubles has one more bit than they have, which a long double holds.
TEST_P(DecimalText, ReadsHalfwayNumbersToEvenAndTheirNeighboursAway) {
    for (const double value : sampleValues()) {
        const double above = std::nextafter(value, kInfinity);
        if (std::isinf(above)) {
            continue;
        }
        std::setlocale(LC_ALL, "C");
        const std::string middle =
            exactExpansion((static_cast<long double>(value) + static_cast<long double>(above)) / 2);
        enterLocale();
        const bool isEven = bitsOf(value) % 2 == 0;
        ASSERT_EQ(parseDecimal(middle), isEven ? value : above) << middle;
        ASSERT_EQ(parseDecimal(middle + '1'), above) << middle;
    }
}

TEST_P(DecimalText, ReadsNineteenDigitsToTheNearestDouble) {
    std::mt19937_64 random(19);
    for (int count = 0; count < 3000; ++count) {
        const std::string text =
            std::to_string(random() % 9'000'000'000'000'000'000U + 1'000'000'000'000'000'000U) +
            'e' + std::to_string(static_cast<int>(random() % 660) - 350);
        std::setlocale(LC_ALL, "C");
        const double nearest = std::strtod(text.c_str(), nullptr);
        enterLocale();
        ASSERT_EQ(parseDecimal(text), nearest) << text;
    }
}

TEST_P(DecimalText, ReadsEveryFormOfANumberAndBothSidesOfTheRange) {
    enterLocale();
    const std::string zeros(400, '0');
    const std::string nines(400, '9');
    const std::vector<std::pair<std::string, double>> rows{
        {"5.", 5.0},
        {".5", 0.5},
        {"1E5", 1e5},
        {"1e+5", 1e5},
        {"1e-05", 1e-5},
        {"007.250", 7.25},
        {"1e309", kInfinity},
        {"1.7976931348623158e308", Limits::max()},
        {"1.7976931348623159e308", kInfinity},
        {"1e99999999999999999999", kInfinity},
        {nines, kInfinity},
        {nines + "e-400", 1.0},
        {"0." + zeros + "1e900", kInfinity},
        {"0." + zeros + "1e401", 1.0},
        {"0." + zeros + "1", 0.0},
        {"1e-400", 0.0},
        {"2.4703282292062327e-324", 0.0},
        {"2.4703282292062328e-324", Limits::denorm_min()},
        {"0.000e99999999999999999999", 0.0}};
    for (const auto& [text, value] : rows) {
        EXPECT_EQ(bitsOf(parseDecimal(text).value_or(-1.0)), bitsOf(value)) << text;
        EXPECT_EQ(bitsOf(parseDecimal('+' + text).value_or(-1.0)), bitsOf(value)) << text;
        EXPECT_EQ(bitsOf(parseDecimal('-' + text).value_or(1.0)), bitsOf(-value)) << text;
    }
    for (const char* text :
         {"",    "+",    "-",        ".",     "-.",     "e5", ".e5", "+-1", "--1",
          "inf", "-inf", "infinity", "nan",   "NaN(1)", " ",  " 1",  "1 ",  "1e",
          "1e+", "0x10", "1,5",      "1.2.3", "1e5.0",  "1f", "1_0"}) {
        EXPECT_FALSE(parseDecimal(text).has_value()) << '"' << text << '"';
    }
}

TEST(RoundToDigits, KeepsWhatHasNoDecimals) {
    EXPECT_EQ(DYXRoundToDigits(2.5, 0), 2.0);
    EXPECT_EQ(DYXRoundToDigits(1.005, 2), 1.0);
    EXPECT_EQ(DYXRoundToDigits(-kInfinity, 4'000'000'000U), -kInfinity);
    EXPECT_EQ(bitsOf(DYXRoundToDigits(DYXnan('L'), 2)), bitsOf(DYXnan('L')));
    EXPECT_EQ(bitsOf(DYXRoundToDigits(-DYXnan('Q'), 0)), bitsOf(-DYXnan('Q')));
}

}  // namespace
}  // namespace talvex
