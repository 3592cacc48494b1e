#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "display/LineSettings.h"

// What each mode makes of a number: the worked examples, and both sides of each threshold.
namespace talvex {

struct Row {
    double number;
    std::uint32_t digits;
    std::u16string mantissa;   // with the sign, also where that has a slot of its own
    std::u16string rest = {};  // the exponent with its sign, or the status
};

struct FormatTable {
    LineSettings settings;
    std::vector<Row> rows;
};

inline const LineSettings kPlain;
inline const LineSettings kGrouped{.integerGroupingSeparator = u",",
                                   .decimalGroupingSeparator = u"_"};
inline const LineSettings kWithComma{
    .decimalSeparator = u',', .integerGroupingSeparator = u".", .decimalGroupingSeparator = u"_"};
inline const LineSettings kUnreduced{.reduceCarpentryFractions = false};
inline const LineSettings kIrrationals{.displayIrrationals = true};

template <class... Rows>
FormatTable table(std::int32_t mode, LineSettings settings, const Rows&... rows) {
    settings.outputMode = mode;
    return {std::move(settings), {rows...}};
}

inline const std::vector<FormatTable> kFormatTables{
    table(mode::FIX, kPlain, Row{0.0, 4, u"0.0000"}, Row{-0.0, 4, u"-0.0000"},
          Row{0.00005, 4, u"0.0001"}, Row{0.00004, 4, u"4.0000", u"-05"},
          Row{99999999999999, 4, u"99999999999999.0000"}, Row{100000000000000, 4, u"1.0000", u"14"},
          Row{9999000000000000000.0, 0, u"9999000000000000000"}, Row{1e19, 0, u"1", u"19"},
          Row{2.5, 0, u"2"}),
    table(mode::FIX, kGrouped, Row{1234567.891, 4, u"1,234,567.891_0"}),
    table(mode::FIX, kWithComma, Row{1234567.891, 4, u"1.234.567,891_0"}),
    table(mode::FIX, kIrrationals, Row{0.0, 4, u"0.0000"}, Row{M_PI, 4, u"π", u"exact"},
          Row{0.5, 4, u"0.5000"}),
    table(mode::SCI, kPlain, Row{0.0, 4, u"0.0000", u"00"}, Row{1e-100, 4, u"1.0000", u"-100"},
          Row{999.99999, 4, u"1.0000", u"03"}, Row{0.5, 0, u"5", u"-01"}),
    table(mode::SCI, kWithComma, Row{1234.5678, 9, u"1,234_567_800", u"03"}),
    table(mode::SCI, kIrrationals, Row{M_PI_4, 4, u"π/4", u"exact"}),
    table(mode::ENG, kPlain, Row{0.0, 4, u"0.0000", u"00"}, Row{12345.678, 4, u"12.346", u"03"},
          Row{999.99999, 4, u"1.0000", u"03"}, Row{0.00012345, 4, u"123.45", u"-06"},
          Row{1e-5, 4, u"10.000", u"-06"}, Row{1.23e100, 4, u"12.300", u"99"},
          Row{5e-324, 4, u"4.9407", u"-324"}, Row{12345, 1, u"12.", u"03"},
          Row{123456.78, 1, u"120.", u"03"}, Row{654321, 0, u"700", u"03"}),
    table(mode::ENG, kWithComma, Row{12345678.9, 9, u"12,345_678_90", u"06"}),
    table(mode::ENG, kIrrationals, Row{M_SQRT2, 4, u"√2", u"exact"}),
    table(mode::MON, kPlain, Row{99.0, 2, u"99.00"}, Row{99.5, 2, u"9.95", u"01"},
          Row{1.0, 0, u"1", u"00"}, Row{0.00001, 4, u"0.0000"}, Row{-0.004, 2, u"-0.00"},
          Row{-0.0, 2, u"-0.00"}),
    table(mode::MON, kIrrationals, Row{M_PI, 2, u"3.14"}),
    table(mode::FRC, kPlain, Row{0.0, 4, u"0", u"exact"}, Row{-0.0, 4, u"0", u"exact"},
          Row{2.75, 4, u"2  3/4", u"exact"}, Row{M_PI, 4, u"3  14093/99532", u"approx"},
          Row{0.00001, 4, u"1/99999", u"approx"}, Row{0.0000001, 4, u"0", u"approx"},
          Row{2.9999999999, 4, u"3", u"approx"}, Row{2.5, 0, u"2", u"exact"},
          Row{M_PI, 0, u"3", u"approx"}, Row{2147483647.5, 4, u"2147483647  1/2", u"exact"},
          Row{2147483648.0, 4, u"2147483648.0000"}),
    table(mode::FRC, kGrouped, Row{1234567.125, 4, u"1,234,567  1/8", u"exact"}),
    table(mode::FRC, kIrrationals, Row{M_PI, 4, u"π", u"exact"}),
    table(mode::CAR, kPlain, Row{0.0, 4, u"0", u"exact"}, Row{-0.0, 4, u"0", u"exact"},
          Row{2.5, 4, u"2  1/2", u"exact"}, Row{1.0 / 128.0, 4, u"1/128", u"exact"},
          Row{2.3, 4, u"2  76/256", u"approx"}, Row{1.999, 4, u"1  511/512", u"approx"},
          Row{2.99999, 4, u"2", u"approx"}, Row{2.5, 0, u"2", u"exact"},
          Row{4294967295.5, 4, u"4294967295  1/2", u"exact"},
          Row{4294967296.0, 4, u"4294967296.0000"}, Row{M_SQRT2, 4, u"√2", u"exact"}),
    table(mode::CAR, kUnreduced, Row{2.5, 4, u"2  8/16", u"exact"}, Row{0.75, 1, u"1/2", u"approx"},
          Row{0.75, 4'000'000'000U, u"384/512", u"exact"}, Row{2.99999, 4, u"2  15/16", u"approx"},
          Row{2.5, 0, u"2", u"approx"}),
    // The last ones have decimals that round up to a full second.
    table(mode::HMS, kPlain, Row{-0.0, 4, u"00 : 00 : 00.0000"},
          Row{1e23, 4'000'000'000U, u"08 : 00 : 00.000000"},
          Row{12.5826388, 4, u"12 : 34 : 57.4997"}, Row{12.5826388, 0, u"12 : 34 : 57"},
          Row{12.5826388, 6, u"12 : 34 : 57.499680"}, Row{1.99999, 0, u"01 : 59 : 59"},
          Row{-25.5, 4, u"22 : 30 : 00.0000"}, Row{-1e-20, 4, u"24 : 00 : 00.0000"},
          Row{23.99999999999, 0, u"24 : 00 : 00"}, Row{12.582499997222222, 4, u"12 : 34 : 57.0000"},
          Row{12.582499997222222, 5, u"12 : 34 : 56.99999"},
          Row{23.99999999, 1, u"24 : 00 : 00.0"}),
    table(mode::HMS, kWithComma, Row{1.5, 2, u"01 : 30 : 00,00"}),
    table(mode::DMS, kPlain, Row{45.5, 4, u"045° 30' 00.0000\""}, Row{45.5, 0, u"045° 30' 00\""},
          Row{-90.0, 4, u"270° 00' 00.0000\""}, Row{359.99999999, 3, u"360° 00' 00.000\""}),
    table(mode::HEX, kGrouped, Row{0.0, 1, u"00"}, Row{-0.0, 0, u"00"}, Row{255, 1, u"FF"},
          Row{256, 1, u"01_00"}, Row{3500000000, 4, u"D0_9D,C3_00"},
          Row{5, 4'000'000'000U, u"00_00,00_05"}, Row{1.5, 1, u"02", u"inexact (1.500000000)"},
          Row{0.7, 1, u"01", u"underflow (0.7)"}, Row{0.4, 1, u"00", u"underflow (0.4)"},
          Row{-0.5, 1, u"00", u"negative underflow (-0.5)"},
          Row{-1, 1, u"00", u"negative overflow (-1)"},
          Row{4294967294.5, 4, u"FF_FF,FF_FF", u"inexact (4294967294.500000000)"},
          Row{4294967295, 4, u"FF_FF,FF_FF"},
          Row{4294967295.7, 4, u"FF_FF,FF_FF", u"overflow (4.29497e+09)"}),
    table(mode::HEX, kPlain, Row{16777216, 1, u"01000000"}),
    table(mode::DEC, kPlain, Row{-0.0, 4, u"0"}, Row{2.5, 4, u"3", u"inexact (2.500000000)"},
          Row{0.5, 4, u"1", u"underflow (0.5)"}, Row{-0.5, 4, u"-1", u"negative underflow (-0.5)"},
          Row{2147483647, 4, u"2147483647"},
          Row{2147483647.6, 4, u"2147483647", u"overflow (2.14748e+09)"},
          Row{-2147483648.0, 4, u"-2147483648"},
          Row{-2147483648.4, 4, u"-2147483648", u"negative overflow (-2.14748e+09)"}),
    table(mode::DEC, kGrouped, Row{-1234567, 4, u"-1,234,567"}, Row{-123, 4, u"-123"}),
    table(mode::OCT, kGrouped, Row{8, 1, u"010"}, Row{8, 4, u"000_000,000_010"},
          Row{510, 1, u"776"}, Row{511, 1, u"000_777"}, Row{262142, 1, u"777_776"},
          Row{262143, 1, u"000,777_777"}, Row{134217727, 1, u"777,777_777"},
          Row{134217728, 1, u"001_000,000_000"}, Row{4294967295, 1, u"037_777,777_777"}),
    table(mode::BIN, kGrouped, Row{5, 1, u"0101_"}, Row{5, 4, u"0000_0000_0000_0101_"},
          Row{17, 1, u"0001_0001_"}, Row{65536, 1, u"0001_, 0000_0000_0000_0000_"},
          Row{5, 9, u"0000_0000_0000_0000_, 0000_0000_0000_0101_"},
          Row{1e10, 1, u"1111_1111_1111_1111_, 1111_1111_1111_1111_", u"overflow (1e+10)"}),
    table(mode::IRR, kPlain, Row{M_PI, 0, u"π", u"exact"},
          Row{2.356194490192345, 4, u"3π/4", u"exact"},
          Row{3141592.653589793, 4, u"1000000π", u"exact"},
          Row{1047197551.1965977, 4, u"1000000000π/3", u"exact"},
          Row{4.530469714098408, 4, u"5e/3", u"exact"}, Row{M_1_PI, 4, u"1/π", u"exact"},
          Row{0.477464829275686, 4, u"3/2π", u"exact"}, Row{0.0, 4, u"0", u"exact"},
          Row{-0.0, 4, u"0", u"exact"}, Row{0.5, 4, u"1/2", u"exact"},
          Row{2.5, 4, u"2  1/2", u"exact"}, Row{0.30000000000000004, 4, u"3/10", u"exact"},
          Row{0.3000000000000001, 4, u"0.3000"}, Row{2147483647.0, 4, u"2147483647", u"exact"},
          Row{3000000000.0, 4, u"3000000000.0000"}, Row{1e-300, 4, u"1.0000", u"-300"})};

}  // namespace talvex
