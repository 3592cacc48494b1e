// What each mode makes of a number: a suite for each mode, a row for each worked example and for
// both sides of each threshold.

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <string>
#include <vector>

#include "core/DYXCalculator.h"
#include "display/display_modes.h"
#include "shown_line.h"

namespace talvex {
namespace {

using Text = std::u16string;

struct FormatRow {
    std::int32_t mode;
    double number;
    std::uint32_t digits;
    Shown shown;
    Text integerSeparator = {};
    Text decimalSeparator = {};
    char16_t point = u'.';
    bool reducesFractions = true;
    bool displaysIrrationals = false;
};

void PrintTo(const FormatRow& row, std::ostream* out) {
    *out << row.number << " at " << row.digits << " digits";
}

// A negative number differs by its sign slot alone, but for the modes that wrap or warn.
bool hasSignSlot(std::int32_t mode) { return mode <= mode::CAR || mode == mode::IRR; }

class DisplayFormat : public testing::TestWithParam<FormatRow> {};

TEST_P(DisplayFormat, FillsEverySlot) {
    const FormatRow& row = GetParam();
    DYXOutputDisplay line(DYXCalculator::plainFields());
    line.setOutputMode(row.mode);
    line.setDigits(row.digits);
    line.setDecimalSeparator(row.point);
    line.setIntegerGroupingSeparator(row.integerSeparator);
    line.setDecimalGroupingSeparator(row.decimalSeparator);
    line.setReduceCarpentryFractions(row.reducesFractions);
    line.setDisplayIrrationals(row.displaysIrrationals);
    for (const TextSlot& slot :
         {line.mantissaField(), line.mantissaSignField(), line.exponentField(),
          line.exponentSignField(), line.statusField()}) {
        slot->setStringValue(u"old");
    }
    line.setOutputTo(row.number);
    EXPECT_EQ(shownBy(line), row.shown);
    const bool warns = isIntegerMode(row.mode) && !row.shown.status.empty();
    EXPECT_EQ(line.mantissaField()->textColor(),
              warns ? DYXOutputDisplay::errorColor() : NSColor::black());
    if (hasSignSlot(row.mode) && row.number > 0) {
        Shown negative = row.shown;
        negative.sign.assign(1, u'-');
        line.setOutputTo(-row.number);
        EXPECT_EQ(shownBy(line), negative);
    }
}

std::string rowName(const testing::TestParamInfo<FormatRow>& info) {
    std::string name = "row" + std::to_string(info.index) + "_";
    for (const char character : testing::PrintToString(info.param.number)) {
        name += character == '-'   ? 'm'
                : character == '.' ? 'p'
                : character == '+' ? '_'
                                   : character;
    }
    return name + "_digits" + std::to_string(info.param.digits);
}

auto rows(std::int32_t mode, std::vector<FormatRow> table) {
    for (FormatRow& row : table) {
        row.mode = mode;
    }
    return testing::ValuesIn(table);
}

constexpr std::int32_t M = 0;  // the mode is filled in
const Text kThin = u"\u2009";
const Text kDot = u"\u2219";

INSTANTIATE_TEST_SUITE_P(
    FIX, DisplayFormat,
    rows(mode::FIX, {{M, 1234567.891, 4, {u"1,234,567.891\u20090"}, u",", kThin},
                     {M, 1234.5678, 4, {u"1234.5678"}},
                     {M, 0.00005, 4, {u"0.0001"}},
                     {M, 0.00004, 4, {u"4.0000", u"05", u"-"}},
                     {M, 1e300, 4, {u"1.0000", u"300"}},
                     {M, 99999999999999, 4, {u"99999999999999.0000"}},
                     {M, 100000000000000, 4, {u"1.0000", u"14"}},
                     {M, 9999000000000000000.0, 0, {u"9999000000000000000"}},
                     {M, 1e19, 0, {u"1", u"19"}},
                     {M, 999999999, 9, {u"999999999.000000000"}},
                     {M, 1000000000, 9, {u"1.000000000", u"09"}},
                     {M, 0.0, 4, {u"0.0000"}},
                     {M, -0.0, 4, {u"0.0000", u"", u"", u"-"}},
                     {M, 0.0, 4, {u"0.0000"}, u"", u"", u'.', true, true},
                     {M, 2.5, 0, {u"2"}},
                     {M, 0.4, 0, {u"4", u"01", u"-"}},
                     {M, 1234567.891, 4, {u"1.234.567,891_0"}, u".", u"_", u','},
                     {M, 1234.5, 1, {u"123,4\u066B5"}, u",", u"_", u'\u066B'},
                     {M, M_PI, 4, {u"\u03C0", u"", u"", u"", u"exact"}, u"", u"", u'.', true, true},
                     {M, M_PI, 4, {u"3.1416"}},
                     {M, 0.5, 4, {u"0.5000"}, u"", u"", u'.', true, true},
                     {M, 3.0, 4, {u"3.0000"}, u"", u"", u'.', true, true}}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    SCI, DisplayFormat,
    rows(mode::SCI,
         {{M, 1234.5678, 4, {u"1.234\u20096", u"03"}, u"", kThin},
          {M, 0.0, 4, {u"0.0000", u"00"}},
          {M, 1e-100, 4, {u"1.0000", u"100", u"-"}},
          {M, 1.23e100, 4, {u"1.2300", u"100"}},
          {M, 999.99999, 4, {u"1.0000", u"03"}},
          {M, 0.5, 0, {u"5", u"01", u"-"}},
          {M, 1234.5678, 9, {u"1,234_567_800", u"03"}, u".", u"_", u','},
          {M, M_PI_4, 4, {u"\u03C0/4", u"", u"", u"", u"exact"}, u"", u"", u'.', true, true}}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    ENG, DisplayFormat,
    rows(mode::ENG,
         {{M, 1234.5678, 4, {u"1.2346", u"03"}},
          {M, 1234.5678, 4, {u"1.234\u20096", u"03"}, u",", kThin},
          {M, 12345.678, 4, {u"12.346", u"03"}},
          {M, 123456.78, 4, {u"123.46", u"03"}},
          {M, 999.99999, 4, {u"1.0000", u"03"}},
          {M, 999999.99, 4, {u"1.0000", u"06"}},
          {M, 0.00012345, 4, {u"123.45", u"06", u"-"}},
          {M, 1e-3, 4, {u"1.0000", u"03", u"-"}},
          {M, 1e-5, 4, {u"10.000", u"06", u"-"}},
          {M, 1.23e100, 4, {u"12.300", u"99"}},
          {M, 1e-7, 4, {u"100.00", u"09", u"-"}},
          {M, 5e-324, 4, {u"4.9407", u"324", u"-"}},
          {M, 0.0, 4, {u"0.0000", u"00"}},
          {M, -0.0, 4, {u"0.0000", u"00", u"", u"-"}},
          {M, 12345, 1, {u"12.", u"03"}},
          {M, 123456.78, 2, {u"123.", u"03"}},
          {M, 123456.78, 1, {u"120.", u"03"}},
          {M, 12345, 0, {u"10", u"03"}},
          {M, 654321, 0, {u"700", u"03"}},
          {M, 7.0, 0, {u"7", u"00"}},
          {M, 1234567.891, 9, {u"1,234_567_891", u"06"}, u".", u"_", u','},
          {M, 12345678.9, 9, {u"12,345_678_90", u"06"}, u".", u"_", u','},
          {M, M_SQRT2, 4, {u"\u221A2", u"", u"", u"", u"exact"}, u"", u"", u'.', true, true}}),
    rowName);

INSTANTIATE_TEST_SUITE_P(MON, DisplayFormat,
                         rows(mode::MON,
                              {{M, 1234.5, 4, {u"1,234.5000"}, u","},
                               {M, 1e300, 4, {u"1.0000", u"300"}},
                               {M, 99.0, 2, {u"99.00"}},
                               {M, 99.5, 2, {u"9.95", u"01"}},
                               {M, 9999.0, 4, {u"9999.0000"}},
                               {M, 9999.5, 4, {u"9.9995", u"03"}},
                               {M, 0.0, 0, {u"0"}},
                               {M, 1.0, 0, {u"1", u"00"}},
                               {M, 0.00001, 4, {u"0.0000"}},
                               {M, -0.004, 2, {u"0.00", u"", u"", u"-"}},
                               {M, 0.0, 4, {u"0.0000"}},
                               {M, -0.0, 2, {u"0.00", u"", u"", u"-"}},
                               {M, M_PI, 2, {u"3.14"}, u"", u"", u'.', true, true},
                               {M, 999999999.0, 9, {u"999999999,000000000"}, u"", u"", u','}}),
                         rowName);

Shown fraction(Text mantissa, Text status) { return {mantissa, u"", u"", u"", status}; }
Shown exact(Text mantissa) { return fraction(mantissa, u"exact"); }
Shown approx(Text mantissa) { return fraction(mantissa, u"approx"); }

INSTANTIATE_TEST_SUITE_P(FRC, DisplayFormat,
                         rows(mode::FRC,
                              {{M, 0.0, 4, exact(u"0")},
                               {M, -0.0, 4, exact(u"0")},
                               {M, 7.0, 4, exact(u"7")},
                               {M, 2.5, 4, exact(u"2  1/2")},
                               {M, 2.75, 4, exact(u"2  3/4")},
                               {M, 0.25, 4, exact(u"1/4")},
                               {M, 0.1, 4, exact(u"1/10")},
                               {M, 1.0 / 3.0, 4, exact(u"1/3")},
                               {M, 1234567.125, 4, exact(u"1,234,567  1/8"), u","},
                               {M, 1234.5, 4, exact(u"1,234  1/2"), u","},
                               {M, 1234.5678, 4, exact(u"1,234  2839/5000"), u",", kThin},
                               {M, 3.141592653589793, 4, approx(u"3  14093/99532")},
                               {M, 1.4142135623730951, 4, approx(u"1  33461/80782")},
                               {M, 0.00001, 4, approx(u"1/99999")},
                               {M, 0.0000001, 4, approx(u"0")},
                               {M, 0.999999, 4, approx(u"1")},
                               {M, 2.9999999999, 4, approx(u"3")},
                               {M, 2.5, 0, exact(u"2")},
                               {M, M_PI, 0, approx(u"3")},
                               {M, 2147483647.5, 4, exact(u"2147483647  1/2")},
                               {M, 2147483647.9999998, 4, {u"2147483648.0000"}},
                               {M, 2147483648.0, 4, {u"2147483648.0000"}},
                               {M, 3000000000.0, 4, {u"3000000000.0000"}},
                               {M, M_PI, 4, exact(u"\u03C0"), u"", u"", u'.', true, true}}),
                         rowName);

INSTANTIATE_TEST_SUITE_P(CAR, DisplayFormat,
                         rows(mode::CAR,
                              {{M, 0.0, 4, exact(u"0")},
                               {M, -0.0, 4, exact(u"0")},
                               {M, 3.0, 4, exact(u"3")},
                               {M, 2.5, 4, exact(u"2  1/2")},
                               {M, 2.5, 4, exact(u"2  8/16"), u"", u"", u'.', false},
                               {M, 0.75, 2, exact(u"3/4"), u"", u"", u'.', false},
                               {M, 0.75, 1, approx(u"1/2"), u"", u"", u'.', false},
                               {M, 0.75, 9, exact(u"384/512"), u"", u"", u'.', false},
                               {M, 0.75, 4'000'000'000U, exact(u"384/512"), u"", u"", u'.', false},
                               {M, 1.0 / 128.0, 4, exact(u"1/128")},
                               {M, 2.3, 4, approx(u"2  76/256")},
                               {M, 2.3, 4, approx(u"2  4/16"), u"", u"", u'.', false},
                               {M, 0.1, 4, approx(u"51/512")},
                               {M, 1.999, 4, approx(u"1  511/512")},
                               {M, 2.99999, 4, approx(u"2")},
                               {M, 2.99999, 4, approx(u"2  15/16"), u"", u"", u'.', false},
                               {M, 0.00001, 4, approx(u"0")},
                               {M, 0.999999, 4, approx(u"0")},
                               {M, 2.5, 0, exact(u"2")},
                               {M, 2.5, 0, approx(u"2"), u"", u"", u'.', false},
                               {M, 1234.5678, 4, approx(u"1,234  290/512"), u",", kThin},
                               {M, 4294967295.5, 4, exact(u"4294967295  1/2")},
                               {M, 4294967296.0, 4, {u"4294967296.0000"}},
                               {M, M_SQRT2, 4, exact(u"\u221A2")}}),
                         rowName);

INSTANTIATE_TEST_SUITE_P(HMS, DisplayFormat,
                         rows(mode::HMS, {{M, 0.0, 4, {u"00 : 00 : 00.0000"}},
                                          {M, -0.0, 4, {u"00 : 00 : 00.0000"}},
                                          {M, 1.5, 4, {u"01 : 30 : 00.0000"}},
                                          {M, 1.5, 2, {u"01 : 30 : 00,00"}, u"", u"", u','},
                                          {M, 12.5826388, 4, {u"12 : 34 : 57.4997"}},
                                          {M, 12.5826388, 0, {u"12 : 34 : 57"}},
                                          {M, 12.5826388, 2, {u"12 : 34 : 57.50"}},
                                          {M, 12.5826388, 6, {u"12 : 34 : 57.499680"}},
                                          {M, 12.5826388, 8, {u"12 : 34 : 57.499680"}},
                                          {M, 1.99999, 0, {u"01 : 59 : 59"}},
                                          {M, 25.5, 4, {u"01 : 30 : 00.0000"}},
                                          {M, 1000.25, 4, {u"16 : 15 : 00.0000"}},
                                          {M, 1234.5678, 4, {u"10 : 34 : 04.0800"}},
                                          {M, -1.0, 4, {u"23 : 00 : 00.0000"}},
                                          {M, -25.5, 4, {u"22 : 30 : 00.0000"}},
                                          {M, -1e-20, 4, {u"24 : 00 : 00.0000"}},
                                          {M, 23.99999999999, 4, {u"24 : 00 : 00.0000"}},
                                          {M, 23.99999999999, 0, {u"24 : 00 : 00"}},
                                          // The decimals round up to a full second.
                                          {M, 12.582499997222222, 4, {u"12 : 34 : 57.0000"}},
                                          {M, 12.582499997222222, 5, {u"12 : 34 : 56.99999"}},
                                          {M, 23.99999999, 1, {u"24 : 00 : 00.0"}},
                                          {M, 1.0166666, 3, {u"01 : 01 : 00.000"}},
                                          {M, 1e23, 4'000'000'000U, {u"08 : 00 : 00.000000"}}}),
                         rowName);

INSTANTIATE_TEST_SUITE_P(DMS, DisplayFormat,
                         rows(mode::DMS,
                              {{M, 0.0, 4, {u"000\u00B0 00' 00.0000\""}},
                               {M, 45.5, 4, {u"045\u00B0 30' 00.0000\""}},
                               {M, 45.5, 0, {u"045\u00B0 30' 00\""}},
                               {M, 45.5, 7, {u"045\u00B0 30' 00.000000\""}},
                               {M, 1.2345, 2, {u"001\u00B0 14' 04.20\""}},
                               {M, 1.2345, 2, {u"001\u00B0 14' 04,20\""}, u".", u"_", u','},
                               {M, -90.0, 4, {u"270\u00B0 00' 00.0000\""}},
                               {M, 370.25, 4, {u"010\u00B0 15' 00.0000\""}},
                               {M, 1234.5678, 4, {u"154\u00B0 34' 04.0800\""}},
                               {M, 359.9999999999999, 4, {u"360\u00B0 00' 00.0000\""}},
                               {M, 359.99999999, 3, {u"360\u00B0 00' 00.000\""}}}),
                         rowName);

Shown based(Text name, Text mantissa, Text status = {}) {
    return {mantissa, name, u"", u"", status};
}
Shown hex(Text mantissa, Text status = {}) { return based(u"hex", mantissa, status); }
Shown oct(Text mantissa, Text status = {}) { return based(u"oct", mantissa, status); }
Shown dec(Text mantissa, Text status = {}) { return based(u"dec", mantissa, status); }
Shown bin(Text mantissa, Text status = {}) { return based(u"bin", mantissa, status); }

INSTANTIATE_TEST_SUITE_P(
    HEX, DisplayFormat,
    rows(mode::HEX,
         {{M, 255, 4, hex(u"00\u200900\u221900\u2009FF"), kDot, kThin},
          {M, 3500000000, 4, hex(u"D0\u20099D\u2219C3\u200900"), kDot, kThin},
          {M, 0.0, 1, hex(u"00")},
          {M, -0.0, 0, hex(u"00")},
          {M, 255, 1, hex(u"FF")},
          {M, 256, 1, hex(u"01\u200900"), kDot, kThin},
          {M, 65535, 2, hex(u"FF\u2009FF"), kDot, kThin},
          {M, 70000, 1, hex(u"01\u221911\u200970"), kDot, kThin},
          {M, 16777216, 1, hex(u"01000000")},
          {M, 5, 3, hex(u"00\u221900\u200905"), kDot, kThin},
          {M, 5, 4'000'000'000U, hex(u"00000005")},
          {M, 1234.5678, 4, hex(u"00\u200900\u221904\u2009D3", u"inexact (1234.567800000)"), kDot,
           kThin},
          {M, 1.5, 1, hex(u"02", u"inexact (1.500000000)")},
          {M, 255.5, 1, hex(u"01\u200900", u"inexact (255.500000000)"), kDot, kThin},
          {M, 0.7, 1, hex(u"01", u"underflow (0.7)")},
          {M, 0.4, 1, hex(u"00", u"underflow (0.4)")},
          {M, -0.5, 1, hex(u"00", u"negative underflow (-0.5)")},
          {M, -1, 4, hex(u"00000000", u"negative overflow (-1)")},
          {M, -1000.5, 1, hex(u"00", u"negative overflow (-1000.5)")},
          {M, 4294967295, 4, hex(u"FFFFFFFF")},
          {M, 4294967295.7, 4, hex(u"FFFFFFFF", u"overflow (4.29497e+09)")},
          {M, 4294967294.5, 4, hex(u"FFFFFFFF", u"inexact (4294967294.500000000)")},
          {M, 1e10, 4, hex(u"FF\u2009FF\u2219FF\u2009FF", u"overflow (1e+10)"), kDot, kThin}}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    OCT, DisplayFormat,
    rows(mode::OCT,
         {{M, 8, 1, oct(u"010")},
          {M, 8, 4, oct(u"000\u2009000\u2219000\u2009010"), kDot, kThin},
          {M, 510, 1, oct(u"776")},
          {M, 511, 1, oct(u"000\u2009777"), kDot, kThin},
          {M, 512, 1, oct(u"001\u2009000"), kDot, kThin},
          {M, 262142, 1, oct(u"777\u2009776"), kDot, kThin},
          {M, 262143, 1, oct(u"000\u2219777\u2009777"), kDot, kThin},
          {M, 134217727, 1, oct(u"777\u2219777\u2009777"), kDot, kThin},
          {M, 134217728, 1, oct(u"001\u2009000\u2219000\u2009000"), kDot, kThin},
          {M, 4294967295, 1, oct(u"037\u2009777\u2219777\u2009777"), kDot, kThin},
          {M, 1234.5678, 4, oct(u"000\u2009000\u2219002\u2009323", u"inexact (1234.567800000)"),
           kDot, kThin}}),
    rowName);

INSTANTIATE_TEST_SUITE_P(
    DEC, DisplayFormat,
    rows(mode::DEC,
         {{M, 0.0, 4, dec(u"0")},
          {M, -0.0, 4, dec(u"0")},
          {M, 1234567, 4, dec(u"1,234,567"), u","},
          {M, -1234567, 4, dec(u"-1,234,567"), u","},
          {M, -123, 4, dec(u"-123"), u","},
          {M, 1234.5678, 4, dec(u"1,235", u"inexact (1234.567800000)"), u",", kThin},
          {M, 2.5, 4, dec(u"3", u"inexact (2.500000000)")},
          {M, -2.5, 4, dec(u"-3", u"inexact (-2.500000000)")},
          {M, 0.4, 4, dec(u"0", u"underflow (0.4)")},
          {M, 0.5, 4, dec(u"1", u"underflow (0.5)")},
          {M, -0.5, 4, dec(u"-1", u"negative underflow (-0.5)")},
          {M, 2147483647, 4, dec(u"2147483647")},
          {M, 2147483647.6, 4, dec(u"2147483647", u"overflow (2.14748e+09)")},
          {M, -2147483648.0, 4, dec(u"-2147483648")},
          {M, -2147483648.4, 4, dec(u"-2147483648", u"negative overflow (-2.14748e+09)")},
          {M, 3000000000, 4, dec(u"2147483647", u"overflow (3e+09)")},
          {M, -3000000000, 4, dec(u"-2147483648", u"negative overflow (-3e+09)")}}),
    rowName);

const Text kAllOnes = u"1111 1111 1111 1111 \u2219 1111 1111 1111 1111 ";

INSTANTIATE_TEST_SUITE_P(
    BIN, DisplayFormat,
    rows(mode::BIN,
         {{M, 5, 1, bin(u"0101 "), kDot, u" "},
          {M, 5, 4, bin(u"0000 0000 0000 0101 "), kDot, u" "},
          {M, 17, 1, bin(u"0001 0001 "), kDot, u" "},
          {M, 65536, 1, bin(u"0001 \u2219 0000 0000 0000 0000 "), kDot, u" "},
          {M, 65536, 1, bin(u"0001 0000000000000000")},
          {M, 5, 0, bin(u"0000 0000 0000 0000 \u2219 0000 0000 0000 0101 "), kDot, u" "},
          {M, 5, 8, bin(u"0000 0000 0000 0000 \u2219 0000 0000 0000 0101 "), kDot, u" "},
          {M, 5, 9, bin(u"0000 0000 0000 0000 \u2219 0000 0000 0000 0101 "), kDot, u" "},
          {M, 1234.5678, 4, bin(u"0000 0100 1101 0011 ", u"inexact (1234.567800000)"), kDot, u" "},
          {M, 4294967295, 1, bin(kAllOnes), kDot, u" "},
          {M, 1e10, 1, bin(kAllOnes, u"overflow (1e+10)"), kDot, u" "}}),
    rowName);

INSTANTIATE_TEST_SUITE_P(IRR, DisplayFormat,
                         rows(mode::IRR, {{M, 3.141592653589793, 4, exact(u"\u03C0")},
                                          {M, 6.283185307179586, 4, exact(u"2\u03C0")},
                                          {M, 0.7853981633974483, 4, exact(u"\u03C0/4")},
                                          {M, 2.356194490192345, 4, exact(u"3\u03C0/4")},
                                          {M, 3.9269908169872414, 4, exact(u"5\u03C0/4")},
                                          {M, 3141592.653589793, 4, exact(u"1000000\u03C0")},
                                          {M, 1047197551.1965977, 4, exact(u"1000000000\u03C0/3")},
                                          {M, 1.4142135623730951, 4, exact(u"\u221A2")},
                                          {M, 0.7071067811865476, 4, exact(u"\u221A2/2")},
                                          {M, 0.6060915267313265, 4, exact(u"3\u221A2/7")},
                                          {M, 5.196152422706632, 4, exact(u"3\u221A3")},
                                          {M, 0.8660254037844386, 4, exact(u"\u221A3/2")},
                                          {M, 2.718281828459045, 4, exact(u"e")},
                                          {M, 1.3591409142295225, 4, exact(u"e/2")},
                                          {M, 4.530469714098408, 4, exact(u"5e/3")},
                                          {M, 0.3183098861837907, 4, exact(u"1/\u03C0")},
                                          {M, 0.1061032953945969, 4, exact(u"1/3\u03C0")},
                                          {M, 0.6366197723675814, 4, exact(u"2/\u03C0")},
                                          {M, 0.2122065907891938, 4, exact(u"2/3\u03C0")},
                                          {M, 0.477464829275686, 4, exact(u"3/2\u03C0")},
                                          {M, 3.141592653589793, 0, exact(u"\u03C0")},
                                          {M, 0.0, 4, exact(u"0")},
                                          {M, -0.0, 4, exact(u"0")},
                                          {M, 2.0, 4, exact(u"2")},
                                          {M, 0.5, 4, exact(u"1/2")},
                                          {M, 0.5, 0, exact(u"0")},
                                          {M, 2.5, 4, exact(u"2  1/2")},
                                          {M, 2.5, 0, exact(u"2")},
                                          {M, 1234567.0, 4, exact(u"1234567"), u","},
                                          {M, 3.142857142857143, 4, exact(u"3  1/7")},
                                          {M, 0.30000000000000004, 4, exact(u"3/10")},
                                          {M, 0.3000000000000001, 4, {u"0.3000"}},
                                          {M, 1.2345678, 4, {u"1.2346"}},
                                          {M, 1234.5678, 4, {u"1,234.567\u20098"}, u",", kThin},
                                          {M, 2147483647.0, 4, exact(u"2147483647")},
                                          {M, 3000000000.0, 4, {u"3000000000.0000"}},
                                          {M, 1e15, 4, {u"1.0000", u"15"}},
                                          {M, 1e-300, 4, {u"1.0000", u"300", u"-"}}}),
                         rowName);

}  // namespace
}  // namespace talvex
