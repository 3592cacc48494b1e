#include "numeric/decimal_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace talvex {
namespace {

// 309 digits ahead of the point, the point, the sign, and all the places.
constexpr std::size_t kLongestText = kMostDecimalPlaces + 320;
using Buffer = std::array<char, kLongestText>;

std::string print(double value, std::chars_format format, unsigned places) {
    Buffer buffer;
    const int precision = static_cast<int>(std::min(places, kMostDecimalPlaces));
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    return {buffer.data(), result.ptr};
}

// from_chars reports numbers beyond the range of a double without saying on which side. The side
// is that of the power of ten of the first digit that isn't zero.
double outOfRangeValue(std::string_view number) {
    const std::size_t exponentMark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, exponentMark);
    const std::size_t firstDigit = mantissa.find_first_of("123456789");
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const double power = firstDigit < point ? static_cast<double>(point - firstDigit)
                                            : -static_cast<double>(firstDigit - point);
    double exponent = 0.0;
    if (exponentMark < number.size()) {
        std::string_view digits = number.substr(exponentMark + 1);
        const bool isNegative = digits.front() == '-';
        digits.remove_prefix(isNegative || digits.front() == '+' ? 1 : 0);
        for (const char digit : digits) {
            exponent = exponent * 10.0 + (digit - '0');
        }
        exponent = isNegative ? -exponent : exponent;
    }
    return power + exponent > 0.0 ? std::numeric_limits<double>::infinity() : 0.0;
}

bool startsLikeNumber(std::string_view text) {
    return !text.empty() && (text.front() == '.' || (text.front() >= '0' && text.front() <= '9'));
}

}  // namespace

std::string fixedText(double value, unsigned places) {
    return print(value, std::chars_format::fixed, places);
}

std::string generalText(double value, unsigned digits) {
    return print(value, std::chars_format::general, digits);
}

std::string shortestText(double value) {
    Buffer buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), result.ptr};
}

ScientificText scientificText(double value, unsigned places) {
    const std::string text = print(std::fabs(value), std::chars_format::scientific, places);
    const std::size_t mark = text.find('e');
    const bool isNegative = text[mark + 1] == '-';
    int magnitude = 0;
    std::from_chars(text.data() + mark + 2, text.data() + text.size(), magnitude);
    return {.mantissa = text.substr(0, mark), .exponent = isNegative ? -magnitude : magnitude};
}

std::optional<double> parseDecimal(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (!startsLikeNumber(text)) {
        return std::nullopt;
    }
    double magnitude = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), magnitude);
    if (result.ptr != text.data() + text.size() || result.ec == std::errc::invalid_argument) {
        return std::nullopt;
    }
    if (result.ec == std::errc::result_out_of_range) {
        magnitude = outOfRangeValue(text);
    }
    return isNegative ? -magnitude : magnitude;
}

}  // namespace talvex
