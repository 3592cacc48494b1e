#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "shown_line.h"

// What each mode makes of a number: the worked examples, and both sides of each threshold.
namespace talvex {

using Text = std::u16string;

struct FormatRow {
    double number;
    std::uint32_t digits;
    Shown shown;
    Text integerSeparator = {};
    Text decimalSeparator = {};
    char16_t point = u'.';
    bool reducesFractions = true;
    bool displaysIrrationals = false;
};

inline const Text kThin = u"\u2009";
inline const Text kDot = u"\u2219";
inline const Text kAllOnes = u"1111 1111 1111 1111 \u2219 1111 1111 1111 1111 ";

inline Shown fraction(const Text& mantissa, const Text& status) {
    return {mantissa, u"", u"", u"", status};
}
inline Shown exact(const Text& mantissa) { return fraction(mantissa, u"exact"); }
inline Shown approx(const Text& mantissa) { return fraction(mantissa, u"approx"); }

inline Shown based(const Text& name, const Text& mantissa, const Text& status = {}) {
    return {mantissa, name, u"", u"", status};
}
inline Shown hex(const Text& mantissa, const Text& status = {}) {
    return based(u"hex", mantissa, status);
}
inline Shown oct(const Text& mantissa, const Text& status = {}) {
    return based(u"oct", mantissa, status);
}
inline Shown dec(const Text& mantissa, const Text& status = {}) {
    return based(u"dec", mantissa, status);
}
inline Shown bin(const Text& mantissa, const Text& status = {}) {
    return based(u"bin", mantissa, status);
}

inline const std::vector<FormatRow> kFIXRows{
    {1234567.891, 4, {u"1,234,567.891\u20090"}, u",", kThin},
    {1234.5678, 4, {u"1234.5678"}},
    {0.00005, 4, {u"0.0001"}},
    {0.00004, 4, {u"4.0000", u"05", u"-"}},
    {1e300, 4, {u"1.0000", u"300"}},
    {99999999999999, 4, {u"99999999999999.0000"}},
    {100000000000000, 4, {u"1.0000", u"14"}},
    {9999000000000000000.0, 0, {u"9999000000000000000"}},
    {1e19, 0, {u"1", u"19"}},
    {999999999, 9, {u"999999999.000000000"}},
    {1000000000, 9, {u"1.000000000", u"09"}},
    {0.0, 4, {u"0.0000"}},
    {-0.0, 4, {u"0.0000", u"", u"", u"-"}},
    {0.0, 4, {u"0.0000"}, u"", u"", u'.', true, true},
    {2.5, 0, {u"2"}},
    {0.4, 0, {u"4", u"01", u"-"}},
    {1234567.891, 4, {u"1.234.567,891_0"}, u".", u"_", u','},
    {1234.5, 1, {u"123,4\u066B5"}, u",", u"_", u'\u066B'},
    {M_PI, 4, {u"\u03C0", u"", u"", u"", u"exact"}, u"", u"", u'.', true, true},
    {M_PI, 4, {u"3.1416"}},
    {0.5, 4, {u"0.5000"}, u"", u"", u'.', true, true},
    {3.0, 4, {u"3.0000"}, u"", u"", u'.', true, true}};

inline const std::vector<FormatRow> kSCIRows{
    {1234.5678, 4, {u"1.234\u20096", u"03"}, u"", kThin},
    {0.0, 4, {u"0.0000", u"00"}},
    {1e-100, 4, {u"1.0000", u"100", u"-"}},
    {1.23e100, 4, {u"1.2300", u"100"}},
    {999.99999, 4, {u"1.0000", u"03"}},
    {0.5, 0, {u"5", u"01", u"-"}},
    {1234.5678, 9, {u"1,234_567_800", u"03"}, u".", u"_", u','},
    {M_PI_4, 4, {u"\u03C0/4", u"", u"", u"", u"exact"}, u"", u"", u'.', true, true}};

inline const std::vector<FormatRow> kENGRows{
    {1234.5678, 4, {u"1.2346", u"03"}},
    {1234.5678, 4, {u"1.234\u20096", u"03"}, u",", kThin},
    {12345.678, 4, {u"12.346", u"03"}},
    {123456.78, 4, {u"123.46", u"03"}},
    {999.99999, 4, {u"1.0000", u"03"}},
    {999999.99, 4, {u"1.0000", u"06"}},
    {0.00012345, 4, {u"123.45", u"06", u"-"}},
    {1e-3, 4, {u"1.0000", u"03", u"-"}},
    {1e-5, 4, {u"10.000", u"06", u"-"}},
    {1.23e100, 4, {u"12.300", u"99"}},
    {1e-7, 4, {u"100.00", u"09", u"-"}},
    {5e-324, 4, {u"4.9407", u"324", u"-"}},
    {0.0, 4, {u"0.0000", u"00"}},
    {-0.0, 4, {u"0.0000", u"00", u"", u"-"}},
    {12345, 1, {u"12.", u"03"}},
    {123456.78, 2, {u"123.", u"03"}},
    {123456.78, 1, {u"120.", u"03"}},
    {12345, 0, {u"10", u"03"}},
    {654321, 0, {u"700", u"03"}},
    {7.0, 0, {u"7", u"00"}},
    {1234567.891, 9, {u"1,234_567_891", u"06"}, u".", u"_", u','},
    {12345678.9, 9, {u"12,345_678_90", u"06"}, u".", u"_", u','},
    {M_SQRT2, 4, {u"\u221A2", u"", u"", u"", u"exact"}, u"", u"", u'.', true, true}};

inline const std::vector<FormatRow> kMONRows{
    {1234.5, 4, {u"1,234.5000"}, u","},
    {1e300, 4, {u"1.0000", u"300"}},
    {99.0, 2, {u"99.00"}},
    {99.5, 2, {u"9.95", u"01"}},
    {9999.0, 4, {u"9999.0000"}},
    {9999.5, 4, {u"9.9995", u"03"}},
    {0.0, 0, {u"0"}},
    {1.0, 0, {u"1", u"00"}},
    {0.00001, 4, {u"0.0000"}},
    {-0.004, 2, {u"0.00", u"", u"", u"-"}},
    {0.0, 4, {u"0.0000"}},
    {-0.0, 2, {u"0.00", u"", u"", u"-"}},
    {M_PI, 2, {u"3.14"}, u"", u"", u'.', true, true},
    {999999999.0, 9, {u"999999999,000000000"}, u"", u"", u','}};

inline const std::vector<FormatRow> kFRCRows{
    {0.0, 4, exact(u"0")},
    {-0.0, 4, exact(u"0")},
    {7.0, 4, exact(u"7")},
    {2.5, 4, exact(u"2  1/2")},
    {2.75, 4, exact(u"2  3/4")},
    {0.25, 4, exact(u"1/4")},
    {0.1, 4, exact(u"1/10")},
    {1.0 / 3.0, 4, exact(u"1/3")},
    {1234567.125, 4, exact(u"1,234,567  1/8"), u","},
    {1234.5, 4, exact(u"1,234  1/2"), u","},
    {1234.5678, 4, exact(u"1,234  2839/5000"), u",", kThin},
    {3.141592653589793, 4, approx(u"3  14093/99532")},
    {1.4142135623730951, 4, approx(u"1  33461/80782")},
    {0.00001, 4, approx(u"1/99999")},
    {0.0000001, 4, approx(u"0")},
    {0.999999, 4, approx(u"1")},
    {2.9999999999, 4, approx(u"3")},
    {2.5, 0, exact(u"2")},
    {M_PI, 0, approx(u"3")},
    {2147483647.5, 4, exact(u"2147483647  1/2")},
    {2147483647.9999998, 4, {u"2147483648.0000"}},
    {2147483648.0, 4, {u"2147483648.0000"}},
    {3000000000.0, 4, {u"3000000000.0000"}},
    {M_PI, 4, exact(u"\u03C0"), u"", u"", u'.', true, true}};

inline const std::vector<FormatRow> kCARRows{
    {0.0, 4, exact(u"0")},
    {-0.0, 4, exact(u"0")},
    {3.0, 4, exact(u"3")},
    {2.5, 4, exact(u"2  1/2")},
    {2.5, 4, exact(u"2  8/16"), u"", u"", u'.', false},
    {0.75, 2, exact(u"3/4"), u"", u"", u'.', false},
    {0.75, 1, approx(u"1/2"), u"", u"", u'.', false},
    {0.75, 9, exact(u"384/512"), u"", u"", u'.', false},
    {0.75, 4'000'000'000U, exact(u"384/512"), u"", u"", u'.', false},
    {1.0 / 128.0, 4, exact(u"1/128")},
    {2.3, 4, approx(u"2  76/256")},
    {2.3, 4, approx(u"2  4/16"), u"", u"", u'.', false},
    {0.1, 4, approx(u"51/512")},
    {1.999, 4, approx(u"1  511/512")},
    {2.99999, 4, approx(u"2")},
    {2.99999, 4, approx(u"2  15/16"), u"", u"", u'.', false},
    {0.00001, 4, approx(u"0")},
    {0.999999, 4, approx(u"0")},
    {2.5, 0, exact(u"2")},
    {2.5, 0, approx(u"2"), u"", u"", u'.', false},
    {1234.5678, 4, approx(u"1,234  290/512"), u",", kThin},
    {4294967295.5, 4, exact(u"4294967295  1/2")},
    {4294967296.0, 4, {u"4294967296.0000"}},
    {M_SQRT2, 4, exact(u"\u221A2")}};

inline const std::vector<FormatRow> kHMSRows{{0.0, 4, {u"00 : 00 : 00.0000"}},
                                             {-0.0, 4, {u"00 : 00 : 00.0000"}},
                                             {1.5, 4, {u"01 : 30 : 00.0000"}},
                                             {1.5, 2, {u"01 : 30 : 00,00"}, u"", u"", u','},
                                             {12.5826388, 4, {u"12 : 34 : 57.4997"}},
                                             {12.5826388, 0, {u"12 : 34 : 57"}},
                                             {12.5826388, 2, {u"12 : 34 : 57.50"}},
                                             {12.5826388, 6, {u"12 : 34 : 57.499680"}},
                                             {12.5826388, 8, {u"12 : 34 : 57.499680"}},
                                             {1.99999, 0, {u"01 : 59 : 59"}},
                                             {25.5, 4, {u"01 : 30 : 00.0000"}},
                                             {1000.25, 4, {u"16 : 15 : 00.0000"}},
                                             {1234.5678, 4, {u"10 : 34 : 04.0800"}},
                                             {-1.0, 4, {u"23 : 00 : 00.0000"}},
                                             {-25.5, 4, {u"22 : 30 : 00.0000"}},
                                             {-1e-20, 4, {u"24 : 00 : 00.0000"}},
                                             {23.99999999999, 4, {u"24 : 00 : 00.0000"}},
                                             {23.99999999999, 0, {u"24 : 00 : 00"}},
                                             // The decimals round up to a full second.
                                             {12.582499997222222, 4, {u"12 : 34 : 57.0000"}},
                                             {12.582499997222222, 5, {u"12 : 34 : 56.99999"}},
                                             {23.99999999, 1, {u"24 : 00 : 00.0"}},
                                             {1.0166666, 3, {u"01 : 01 : 00.000"}},
                                             {1e23, 4'000'000'000U, {u"08 : 00 : 00.000000"}}};

inline const std::vector<FormatRow> kDMSRows{
    {0.0, 4, {u"000\u00B0 00' 00.0000\""}},
    {45.5, 4, {u"045\u00B0 30' 00.0000\""}},
    {45.5, 0, {u"045\u00B0 30' 00\""}},
    {45.5, 7, {u"045\u00B0 30' 00.000000\""}},
    {1.2345, 2, {u"001\u00B0 14' 04.20\""}},
    {1.2345, 2, {u"001\u00B0 14' 04,20\""}, u".", u"_", u','},
    {-90.0, 4, {u"270\u00B0 00' 00.0000\""}},
    {370.25, 4, {u"010\u00B0 15' 00.0000\""}},
    {1234.5678, 4, {u"154\u00B0 34' 04.0800\""}},
    {359.9999999999999, 4, {u"360\u00B0 00' 00.0000\""}},
    {359.99999999, 3, {u"360\u00B0 00' 00.000\""}}};

inline const std::vector<FormatRow> kHEXRows{
    {255, 4, hex(u"00\u200900\u221900\u2009FF"), kDot, kThin},
    {3500000000, 4, hex(u"D0\u20099D\u2219C3\u200900"), kDot, kThin},
    {0.0, 1, hex(u"00")},
    {-0.0, 0, hex(u"00")},
    {255, 1, hex(u"FF")},
    {256, 1, hex(u"01\u200900"), kDot, kThin},
    {65535, 2, hex(u"FF\u2009FF"), kDot, kThin},
    {70000, 1, hex(u"01\u221911\u200970"), kDot, kThin},
    {16777216, 1, hex(u"01000000")},
    {5, 3, hex(u"00\u221900\u200905"), kDot, kThin},
    {5, 4'000'000'000U, hex(u"00000005")},
    {1234.5678, 4, hex(u"00\u200900\u221904\u2009D3", u"inexact (1234.567800000)"), kDot, kThin},
    {1.5, 1, hex(u"02", u"inexact (1.500000000)")},
    {255.5, 1, hex(u"01\u200900", u"inexact (255.500000000)"), kDot, kThin},
    {0.7, 1, hex(u"01", u"underflow (0.7)")},
    {0.4, 1, hex(u"00", u"underflow (0.4)")},
    {-0.5, 1, hex(u"00", u"negative underflow (-0.5)")},
    {-1, 4, hex(u"00000000", u"negative overflow (-1)")},
    {-1000.5, 1, hex(u"00", u"negative overflow (-1000.5)")},
    {4294967295, 4, hex(u"FFFFFFFF")},
    {4294967295.7, 4, hex(u"FFFFFFFF", u"overflow (4.29497e+09)")},
    {4294967294.5, 4, hex(u"FFFFFFFF", u"inexact (4294967294.500000000)")},
    {1e10, 4, hex(u"FF\u2009FF\u2219FF\u2009FF", u"overflow (1e+10)"), kDot, kThin}};

inline const std::vector<FormatRow> kOCTRows{
    {8, 1, oct(u"010")},
    {8, 4, oct(u"000\u2009000\u2219000\u2009010"), kDot, kThin},
    {510, 1, oct(u"776")},
    {511, 1, oct(u"000\u2009777"), kDot, kThin},
    {512, 1, oct(u"001\u2009000"), kDot, kThin},
    {262142, 1, oct(u"777\u2009776"), kDot, kThin},
    {262143, 1, oct(u"000\u2219777\u2009777"), kDot, kThin},
    {134217727, 1, oct(u"777\u2219777\u2009777"), kDot, kThin},
    {134217728, 1, oct(u"001\u2009000\u2219000\u2009000"), kDot, kThin},
    {4294967295, 1, oct(u"037\u2009777\u2219777\u2009777"), kDot, kThin},
    {1234.5678, 4, oct(u"000\u2009000\u2219002\u2009323", u"inexact (1234.567800000)"), kDot,
     kThin}};

inline const std::vector<FormatRow> kDECRows{
    {0.0, 4, dec(u"0")},
    {-0.0, 4, dec(u"0")},
    {1234567, 4, dec(u"1,234,567"), u","},
    {-1234567, 4, dec(u"-1,234,567"), u","},
    {-123, 4, dec(u"-123"), u","},
    {1234.5678, 4, dec(u"1,235", u"inexact (1234.567800000)"), u",", kThin},
    {2.5, 4, dec(u"3", u"inexact (2.500000000)")},
    {-2.5, 4, dec(u"-3", u"inexact (-2.500000000)")},
    {0.4, 4, dec(u"0", u"underflow (0.4)")},
    {0.5, 4, dec(u"1", u"underflow (0.5)")},
    {-0.5, 4, dec(u"-1", u"negative underflow (-0.5)")},
    {2147483647, 4, dec(u"2147483647")},
    {2147483647.6, 4, dec(u"2147483647", u"overflow (2.14748e+09)")},
    {-2147483648.0, 4, dec(u"-2147483648")},
    {-2147483648.4, 4, dec(u"-2147483648", u"negative overflow (-2.14748e+09)")},
    {3000000000, 4, dec(u"2147483647", u"overflow (3e+09)")},
    {-3000000000, 4, dec(u"-2147483648", u"negative overflow (-3e+09)")}};

inline const std::vector<FormatRow> kBINRows{
    {5, 1, bin(u"0101 "), kDot, u" "},
    {5, 4, bin(u"0000 0000 0000 0101 "), kDot, u" "},
    {17, 1, bin(u"0001 0001 "), kDot, u" "},
    {65536, 1, bin(u"0001 \u2219 0000 0000 0000 0000 "), kDot, u" "},
    {65536, 1, bin(u"0001 0000000000000000")},
    {5, 0, bin(u"0000 0000 0000 0000 \u2219 0000 0000 0000 0101 "), kDot, u" "},
    {5, 8, bin(u"0000 0000 0000 0000 \u2219 0000 0000 0000 0101 "), kDot, u" "},
    {5, 9, bin(u"0000 0000 0000 0000 \u2219 0000 0000 0000 0101 "), kDot, u" "},
    {1234.5678, 4, bin(u"0000 0100 1101 0011 ", u"inexact (1234.567800000)"), kDot, u" "},
    {4294967295, 1, bin(kAllOnes), kDot, u" "},
    {1e10, 1, bin(kAllOnes, u"overflow (1e+10)"), kDot, u" "}};

inline const std::vector<FormatRow> kIRRRows{{3.141592653589793, 4, exact(u"\u03C0")},
                                             {6.283185307179586, 4, exact(u"2\u03C0")},
                                             {0.7853981633974483, 4, exact(u"\u03C0/4")},
                                             {2.356194490192345, 4, exact(u"3\u03C0/4")},
                                             {3.9269908169872414, 4, exact(u"5\u03C0/4")},
                                             {3141592.653589793, 4, exact(u"1000000\u03C0")},
                                             {1047197551.1965977, 4, exact(u"1000000000\u03C0/3")},
                                             {1.4142135623730951, 4, exact(u"\u221A2")},
                                             {0.7071067811865476, 4, exact(u"\u221A2/2")},
                                             {0.6060915267313265, 4, exact(u"3\u221A2/7")},
                                             {5.196152422706632, 4, exact(u"3\u221A3")},
                                             {0.8660254037844386, 4, exact(u"\u221A3/2")},
                                             {2.718281828459045, 4, exact(u"e")},
                                             {1.3591409142295225, 4, exact(u"e/2")},
                                             {4.530469714098408, 4, exact(u"5e/3")},
                                             {0.3183098861837907, 4, exact(u"1/\u03C0")},
                                             {0.1061032953945969, 4, exact(u"1/3\u03C0")},
                                             {0.6366197723675814, 4, exact(u"2/\u03C0")},
                                             {0.2122065907891938, 4, exact(u"2/3\u03C0")},
                                             {0.477464829275686, 4, exact(u"3/2\u03C0")},
                                             {3.141592653589793, 0, exact(u"\u03C0")},
                                             {0.0, 4, exact(u"0")},
                                             {-0.0, 4, exact(u"0")},
                                             {2.0, 4, exact(u"2")},
                                             {0.5, 4, exact(u"1/2")},
                                             {0.5, 0, exact(u"0")},
                                             {2.5, 4, exact(u"2  1/2")},
                                             {2.5, 0, exact(u"2")},
                                             {1234567.0, 4, exact(u"1234567"), u","},
                                             {3.142857142857143, 4, exact(u"3  1/7")},
                                             {0.30000000000000004, 4, exact(u"3/10")},
                                             {0.3000000000000001, 4, {u"0.3000"}},
                                             {1.2345678, 4, {u"1.2346"}},
                                             {1234.5678, 4, {u"1,234.567\u20098"}, u",", kThin},
                                             {2147483647.0, 4, exact(u"2147483647")},
                                             {3000000000.0, 4, {u"3000000000.0000"}},
                                             {1e15, 4, {u"1.0000", u"15"}},
                                             {1e-300, 4, {u"1.0000", u"300", u"-"}}};

}  // namespace talvex
