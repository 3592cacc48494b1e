#pragma once

#include <optional>
#include <string>
#include <string_view>

// Decimal text of a double and back, exactly rounded (ties to even on the exact binary value) and
// blind to the C library's locale: the separator is always the point.
namespace talvex {

// More places than this add only zeros: the smallest subnormal ends at the 1074th.
inline constexpr unsigned kMostDecimalPlaces = 1074;

// Plain decimal text of a finite `value` with `places` decimals, as "%.*f" prints it. Places
// beyond `kMostDecimalPlaces` are left out.
std::string fixedText(double value, unsigned places);

// A finite `value` with at most so many significant digits, plain or with an exponent, as "%.*g"
// prints it.
inline constexpr unsigned kGeneralDigits = 6;
std::string generalText(double value, unsigned digits = kGeneralDigits);

// The shortest decimal that is read back as the same finite `value`.
std::string shortestText(double value);

// A number in scientific form: one digit, a point if there are more, the other digits; and the
// decimal exponent.
struct ScientificText {
    std::string mantissa;
    int exponent = 0;
};

// Scientific form of the magnitude of a finite `value` with `places` decimals in the mantissa, as
// "%.*e" prints it. Places beyond `kMostDecimalPlaces` are left out.
ScientificText scientificText(double value, unsigned places);

// The double nearest to a decimal number such as "-12.5e3", with an optional sign of either kind
// in front. The whole text has to be the number: else nothing, and "inf" and "nan" are no numbers.
// A number too large gives an infinity, one too small a zero, both with their sign.
std::optional<double> parseDecimal(std::string_view text);

}  // namespace talvex
