// Printing and reading of decimal text against the C library's under the locale "C", in that locale
// and in one with a comma.

#include "numeric/decimal_text.h"

#include <gtest/gtest.h>

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
#include "same_bits.h"

namespace talvex {
namespace {

using Limits = std::numeric_limits<double>;

// The C library's, which rounds the exact value half to even.
std::string printed(const char* format, int places, double value) {
    std::setlocale(LC_ALL, "C");
    std::array<char, 2500> text{};
    const int length = std::snprintf(text.data(), text.size(), format, places, value);
    return {text.data(), static_cast<std::size_t>(length)};
}

// Ties, powers of two and their neighbours, any bits, and numbers as people type them.
std::vector<double> sampleValues() {
    std::vector<double> values{0.0, 0.5, 1.5, 2.5, 0.125, 0.375, 1e23, 999.9999999, Limits::max()};
    for (int exponent = -1074; exponent < 1024; exponent += 61) {
        const double power = std::ldexp(1.0, exponent);
        values.insert(values.end(),
                      {std::nextafter(power, 0.0), power, std::nextafter(power, kInfinity)});
    }
    std::mt19937_64 random(20240229);
    while (values.size() < 1000) {
        const auto value = std::bit_cast<double>(random() >> 1U);
        values.push_back(std::isfinite(value) ? value : 0.0);
        values.push_back(static_cast<double>(random() % 10'000'000'000'000U) /
                         std::pow(10.0, static_cast<double>(random() % 14)));
    }
    return values;
}

class DecimalText : public testing::TestWithParam<const char*> {
  protected:
    static void enterLocale() {
        if (std::setlocale(LC_ALL, GetParam()) == nullptr) {
            GTEST_SKIP() << "no locale " << GetParam();
        }
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

INSTANTIATE_TEST_SUITE_P(Locales, DecimalText, testing::Values("C", "de_DE.UTF-8"));

TEST_P(DecimalText, IsTheExactValueRoundedHalfToEven) {
    for (const double value : sampleValues()) {
        for (const int places : {0, 1, 4, 17, static_cast<int>(kMostDecimalPlaces)}) {
            const std::string fixed = printed("%.*f", places, -value);
            const std::string scientific = printed("%.*e", places, value);
            const double nearest = std::strtod(fixed.c_str(), nullptr);
            enterLocale();
            const auto unsignedPlaces = static_cast<unsigned>(places);
            ASSERT_EQ(fixedText(-value, unsignedPlaces), fixed);
            ASSERT_TRUE(isSame(parseDecimal(fixed).value_or(1.0), nearest)) << fixed;
            ASSERT_TRUE(isSame(DYXRoundToDigits(-value, unsignedPlaces), nearest)) << fixed;
            const auto [mantissa, exponent] = scientificText(-value, unsignedPlaces);
            const std::size_t mark = scientific.find('e');
            ASSERT_EQ(mantissa, scientific.substr(0, mark)) << value;
            ASSERT_EQ(exponent, std::stoi(scientific.substr(mark + 1))) << value;
        }
        ASSERT_EQ(fixedText(value, 4'000'000'000U), fixedText(value, kMostDecimalPlaces));
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
        {nines, kInfinity},
        {nines + "e-400", 1.0},
        {"1e-400", 0.0},
        {"0." + zeros + "1e900", kInfinity},
        {"0." + zeros + "1e401", 1.0},
        {"1e99999999999999999999", kInfinity},
        {"0.000e99999999999999999999", 0.0},
        {"1.7976931348623158e308", Limits::max()},
        {"1.7976931348623159e308", kInfinity},
        {"2.4703282292062327e-324", 0.0},
        {"2.4703282292062328e-324", Limits::denorm_min()}};
    for (const auto& [text, value] : rows) {
        EXPECT_TRUE(isSame(parseDecimal(text).value_or(-1.0), value)) << text;
        EXPECT_TRUE(isSame(parseDecimal('+' + text).value_or(-1.0), value)) << text;
        EXPECT_TRUE(isSame(parseDecimal('-' + text).value_or(1.0), -value)) << text;
    }
    for (const char* text :
         {"",       "+",  "-",  ".",  "-.",  "e5",   ".e5", "+-1",   "--1",   "inf", "-inf", "nan",
          "NaN(1)", " 1", "1 ", "1e", "1e+", "0x10", "1,5", "1.2.3", "1e5.0", "1f",  "1_0"}) {
        EXPECT_FALSE(parseDecimal(text).has_value()) << '"' << text << '"';
    }
}

TEST(RoundToDigits, KeepsWhatHasNoDecimals) {
    for (const double value : {-kInfinity, DYXnan('L'), -DYXnan('Q')}) {
        EXPECT_TRUE(isSame(DYXRoundToDigits(value, 2), value));
    }
}

}  // namespace
}  // namespace talvex
