#include "numeric/decimal_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "exact_decimal.h"
#include "numeric/DYXRoundToDigits.h"
#include "numeric/DYXnan.h"

namespace talvex {
namespace {

using Limits = std::numeric_limits<double>;

constexpr double kInfinity = Limits::infinity();

std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }

void addWithNeighbours(std::vector<double>& values, double value) {
    for (const double each :
         {std::nextafter(value, 0.0), value, std::nextafter(value, kInfinity)}) {
        if (std::isfinite(each)) {
            values.push_back(each);
        }
    }
}

// Powers of two and ten with their neighbours, ties, both ends of the range, zero.
std::vector<double> boundaryValues() {
    std::vector<double> values{
        0.0,   0.5,   1.5,           2.5,  0.125,     0.375, 1e23, 9007199254740993.0,
        1.005, 0.045, Limits::max(), 5e-5, 999.99999, 9.5};
    for (int exponent = -1074; exponent < 1024; exponent += 61) {
        addWithNeighbours(values, std::ldexp(1.0, exponent));
    }
    for (const double power : {Limits::denorm_min(), Limits::min(), 1e-300, 1e-22, 1e-5, 1e-3, 0.1,
                               1.0, 10.0, 1e9, 1e15, 1e22, 1e300}) {
        addWithNeighbours(values, power);
    }
    return values;
}

// Random bit patterns, and random numbers of the sizes that people type.
std::vector<double> sampleValues() {
    std::vector<double> values = boundaryValues();
    std::mt19937_64 random(20240229);
    while (values.size() < 1000) {
        const auto value = std::bit_cast<double>(random() >> 1U);
        if (std::isfinite(value)) {
            values.push_back(value);
        }
    }
    while (values.size() < 2000) {
        const auto numerator = static_cast<double>(random() % 10'000'000'000'000U);
        values.push_back(numerator / std::pow(10.0, static_cast<double>(random() % 14)));
    }
    return values;
}

// Each test runs in the plain locale and in one that writes a comma.
class DecimalText : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        if (std::setlocale(LC_ALL, GetParam()) == nullptr) {
            GTEST_SKIP() << "no locale " << GetParam();
        }
        ASSERT_STREQ(std::localeconv()->decimal_point, GetParam() == std::string("C") ? "." : ",");
    }
    void TearDown() override { std::setlocale(LC_ALL, "C"); }
};

INSTANTIATE_TEST_SUITE_P(Locales, DecimalText, testing::Values("C", "de_DE.UTF-8"));

TEST(ExactDecimal, PrintsAndRoundsNumbersKnownByHand) {
    EXPECT_EQ(ExactDecimal(0.1).text(),
              "0.1000000000000000055511151231257827021181583404541015625");
    EXPECT_EQ(ExactDecimal(1e22).text(), "10000000000000000000000");
    EXPECT_EQ(ExactDecimal(2.5).fixed(0), "2");
    EXPECT_EQ(ExactDecimal(3.5).fixed(0), "4");
    EXPECT_EQ(ExactDecimal(0.5).fixed(0), "0");
    EXPECT_EQ(ExactDecimal(9.96875).fixed(1), "10.0");
    EXPECT_EQ(ExactDecimal(0.0).fixed(2), "0.00");
    EXPECT_EQ(ExactDecimal(999.5).scientific(2).mantissa, "1.00");
    EXPECT_EQ(ExactDecimal(999.5).scientific(2).exponent, 3);
    EXPECT_EQ(midpointAbove(1.0),
              ExactDecimal("1.00000000000000011102230246251565404236316680908203125"));
    EXPECT_TRUE(isNearestDouble(1.0, midpointAbove(1.0)));
    EXPECT_FALSE(isNearestDouble(std::nextafter(1.0, 2.0), midpointAbove(1.0)));
}

TEST_P(DecimalText, FixedTextIsTheExactValueRounded) {
    for (const double value : sampleValues()) {
        const ExactDecimal exact(value);
        for (const int places : {0, 1, 4, 9, 17, 40}) {
            ASSERT_EQ(fixedText(value, static_cast<unsigned>(places)), exact.fixed(places))
                << value << " to " << places;
        }
    }
}

TEST_P(DecimalText, FixedTextHasAllPlacesAndTheSign) {
    for (const double value : boundaryValues()) {
        const std::string allPlaces = ExactDecimal(value).fixed(kMostDecimalPlaces);
        ASSERT_EQ(fixedText(value, kMostDecimalPlaces), allPlaces) << value;
        ASSERT_EQ(fixedText(value, 4'000'000'000U), allPlaces) << value;
    }
    EXPECT_EQ(fixedText(-2.5, 0), "-2");
    EXPECT_EQ(fixedText(-0.0, 1), "-0.0");
}

TEST_P(DecimalText, ScientificTextIsTheExactMagnitudeRounded) {
    for (const double value : sampleValues()) {
        const ExactDecimal exact(value);
        for (const int places : {0, 4, 9, 16, 30}) {
            const ScientificText text = scientificText(-value, static_cast<unsigned>(places));
            const ExactDecimal::Scientific expected = exact.scientific(places);
            ASSERT_EQ(text.mantissa, expected.mantissa) << value << " to " << places;
            ASSERT_EQ(text.exponent, expected.exponent) << value << " to " << places;
        }
    }
    EXPECT_EQ(scientificText(1.0, 4'000'000'000U).mantissa, "1." + std::string(1074, '0'));
}

TEST_P(DecimalText, ParseTakesEveryNumberBack) {
    for (const double value : sampleValues()) {
        const std::string text = ExactDecimal(value).text();
        ASSERT_EQ(parseDecimal(text), value);
        ASSERT_EQ(parseDecimal("-" + text), -value);
        const ExactDecimal::Scientific shortest = ExactDecimal(value).scientific(16);
        ASSERT_EQ(parseDecimal(shortest.mantissa + "e" + std::to_string(shortest.exponent)), value);
    }
}

TEST_P(DecimalText, ParseRoundsHalfwayNumbersToEvenAndTheirNeighboursAway) {
    for (const double value : sampleValues()) {
        const ExactDecimal middle = midpointAbove(value);
        const bool isEven = bitsOf(value) % 2 == 0;
        const double above = std::nextafter(value, kInfinity);
        const std::string text = middle.text();
        ASSERT_EQ(parseDecimal(text), isEven ? value : above) << text;
        const std::string tail = text.find('.') == std::string::npos ? ".000" : "000";
        ASSERT_EQ(parseDecimal(text + tail + "1"), above) << text;
        std::string less = text + tail;
        --less[less.find_last_of("123456789")];
        less += "9999";
        ASSERT_TRUE(isNearestDouble(parseDecimal(less).value_or(kInfinity), ExactDecimal(less)))
            << less;
    }
}

TEST_P(DecimalText, ParseTakesTheNearestDoubleOfNineteenDigits) {
    std::mt19937_64 random(19);
    for (int count = 0; count < 3000; ++count) {
        const std::string digits =
            std::to_string(random() % 9'000'000'000'000'000'000U + 1'000'000'000'000'000'000U);
        const int exponent = static_cast<int>(random() % 660) - 350;
        const std::string text = digits + "e" + std::to_string(exponent);
        const double value = parseDecimal(text).value_or(std::nan(""));
        ASSERT_FALSE(std::isnan(value)) << text;
        ASSERT_TRUE(isNearestDouble(value, ExactDecimal(digits, exponent))) << text;
    }
}

TEST_P(DecimalText, ParseGoesToTheRightSideOfTheRange) {
    const std::string zeros(400, '0');
    const std::string nines(400, '9');
    const std::vector<std::pair<std::string, double>> rows{
        {"1e309", kInfinity},
        {"1.7976931348623158e308", Limits::max()},
        {"1.7976931348623159e308", kInfinity},
        {"1e99999999999999999999", kInfinity},
        {nines, kInfinity},
        {nines + "e-400", 1.0},
        {nines + ".5e500", kInfinity},
        {"0." + zeros + "1e900", kInfinity},
        {"0." + zeros + "1e401", 1.0},
        {"1" + zeros + "e-400", 1.0},
        {"0." + zeros + "1", 0.0},
        {"1e-400", 0.0},
        {"2.4703282292062327e-324", 0.0},
        {"2.4703282292062328e-324", Limits::denorm_min()},
        {"0e999", 0.0},
        {"0.000e99999999999999999999", 0.0}};
    for (const auto& [text, value] : rows) {
        SCOPED_TRACE(text);
        ASSERT_TRUE(parseDecimal(text).has_value());
        ASSERT_TRUE(parseDecimal("-" + text).has_value());
        EXPECT_EQ(bitsOf(*parseDecimal(text)), bitsOf(value));
        EXPECT_EQ(bitsOf(*parseDecimal("-" + text)), bitsOf(-value));
    }
}

TEST_P(DecimalText, ParseTakesEveryFormOfANumber) {
    const std::vector<std::pair<const char*, double>> rows{
        {"5.", 5.0},   {".5", 0.5},     {"+3", 3.0},       {"-.5e1", -5.0}, {"1E5", 1e5},
        {"1e+5", 1e5}, {"1e-05", 1e-5}, {"007.250", 7.25}, {"0", 0.0},      {"+12.5e3", 12500.0}};
    for (const auto& [text, value] : rows) {
        EXPECT_EQ(parseDecimal(text), value) << text;
    }
    EXPECT_TRUE(std::signbit(parseDecimal("-0").value_or(1.0)));
}

TEST_P(DecimalText, ParseRefusesWhatIsNoNumber) {
    for (const char* text :
         {"",    "+",   "-",     ".",     "-.",       "e5",  ".e5",  "+-1",    "--1",
          "++1", "inf", "-inf",  "INF",   "infinity", "nan", "+nan", "NaN(1)", " ",
          " 1",  "1 ",  "1 2",   "\t1",   "1\n",      "1e",  "1e+",  "1e-",    "0x10",
          "0x",  "1,5", "1.2.3", "1e5.0", "1f",       "1_0", "- 1",  "abc"}) {
        EXPECT_FALSE(parseDecimal(text).has_value()) << '"' << text << '"';
    }
    EXPECT_FALSE(parseDecimal(std::string("1\0", 2)).has_value());
}

TEST_P(DecimalText, RoundingGivesTheNearestDoubleOfThePrintedText) {
    for (const double value : sampleValues()) {
        const ExactDecimal exact(value);
        for (const int places : {0, 2, 4, 9}) {
            const double rounded = DYXRoundToDigits(value, static_cast<unsigned>(places));
            ASSERT_TRUE(isNearestDouble(rounded, ExactDecimal(exact.fixed(places))))
                << value << " to " << places;
            ASSERT_EQ(bitsOf(DYXRoundToDigits(-value, static_cast<unsigned>(places))),
                      bitsOf(-rounded));
        }
        ASSERT_EQ(DYXRoundToDigits(value, 4'000'000'000U), value);
    }
}

TEST_P(DecimalText, RoundingKeepsWhatHasNoDecimals) {
    EXPECT_EQ(DYXRoundToDigits(2.5, 0), 2.0);
    EXPECT_EQ(DYXRoundToDigits(1.005, 2), 1.0);
    EXPECT_EQ(DYXRoundToDigits(123456789012345680.0, 2), 123456789012345680.0);
    EXPECT_EQ(DYXRoundToDigits(kInfinity, 2), kInfinity);
    EXPECT_EQ(DYXRoundToDigits(-kInfinity, 4'000'000'000U), -kInfinity);
    EXPECT_EQ(bitsOf(DYXRoundToDigits(DYXnan('L'), 2)), bitsOf(DYXnan('L')));
    EXPECT_EQ(bitsOf(DYXRoundToDigits(-DYXnan('Q'), 0)), bitsOf(-DYXnan('Q')));
}

}  // namespace
}  // namespace talvex
