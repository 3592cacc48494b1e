// What the entry is worth, by input mode. Decimal texts are read to the nearest double; a text
// longer than its integer type gives the type's limit.

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <system_error>

#include "entry/DYXInputDisplay.h"
#include "entry/entry_fields.h"
#include "numeric/DYXRoundToDigits.h"
#include "numeric/DYXnan.h"
#include "numeric/decimal_text.h"

namespace talvex {
namespace {

constexpr char kInputError = '$';

bool isDigitOf(char character, int base) {
    int value = 0;
    return std::from_chars(&character, &character + 1, value, base).ec == std::errc();
}

bool hasOnlyDigitsOf(std::string_view text, int base) {
    return std::all_of(text.begin(), text.end(),
                       [base](char character) { return isDigitOf(character, base); });
}

// The number that the text starts with, or `fallback` if it starts with none.
template <class Integer>
Integer leadingInteger(std::string_view text, Integer fallback, int base = 10) {
    Integer value = fallback;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value, base);
    return result.ec == std::errc::result_out_of_range ? std::numeric_limits<Integer>::max()
                                                       : value;
}

double fieldValue(std::string_view text, std::size_t start, std::size_t end) {
    if (start >= text.size()) {
        return 0.0;
    }
    return leadingInteger(text.substr(start, end - start), 0);
}

}  // namespace

double DYXInputDisplay::ScientificValue() const {
    if (!hasOnlyDigitsOf(text_, 10)) {
        return DYXnan(kInputError);
    }
    const int magnitude = 10 * (eex_[0] - '0') + (eex_[1] - '0');
    const int exponent = (eex_[2] == '-' ? -magnitude : magnitude) + exp_;
    const std::string number = (sgn_ ? '-' : '+') + text_ + 'e' + std::to_string(exponent);
    const auto value = parseDecimal(number);
    return value ? *value : DYXnan(kInputError);
}

double DYXInputDisplay::MonetaryValue() const {
    return DYXRoundToDigits(ScientificValue(), digits());
}

double DYXInputDisplay::unsignedValue(int base) const {
    if (text_.empty() || !hasOnlyDigitsOf(text_, base)) {
        return DYXnan(kInputError);
    }
    constexpr std::uint32_t kLimit = std::numeric_limits<std::uint32_t>::max();
    const auto magnitude = leadingInteger<std::uint64_t>(text_, 0, base);
    if (magnitude > kLimit) {
        return kLimit;
    }
    const auto value = static_cast<std::uint32_t>(magnitude);
    return sgn_ ? 0U - value : value;
}

double DYXInputDisplay::HEXValue() const { return unsignedValue(16); }
double DYXInputDisplay::OctalValue() const { return unsignedValue(8); }

double DYXInputDisplay::DecimalValue() const {
    if (text_.empty() || !hasOnlyDigitsOf(text_, 10)) {
        return DYXnan(kInputError);
    }
    const auto magnitude = leadingInteger<std::int64_t>(text_, 0);
    const std::int64_t value = std::clamp<std::int64_t>(sgn_ ? -magnitude : magnitude,
                                                        std::numeric_limits<std::int32_t>::min(),
                                                        std::numeric_limits<std::int32_t>::max());
    return static_cast<double>(value);
}

// The last 32 characters count, bit by bit; the sign doesn't.
double DYXInputDisplay::BinaryValue() const {
    if (!hasOnlyDigitsOf(text_, 2)) {
        return DYXnan(kInputError);
    }
    std::uint32_t value = 0;
    for (const char character : text_) {
        value = value << 1U | (character == '1' ? 1U : 0U);
    }
    return value;
}

double DYXInputDisplay::sexagesimalValue(const EntryFields& fields) const {
    if (!hasOnlyDigitsOf(text_, 10)) {
        return DYXnan(kInputError);
    }
    const double first = fieldValue(text_, 0, fields.ends[0]);
    const double minutes = fieldValue(text_, fields.ends[0], fields.ends[1]);
    std::string secondsText = text_.substr(std::min(fields.ends[1], text_.size()));
    if (text_.size() > fields.width()) {
        secondsText.insert(fields.ends[2] - fields.ends[1], 1, '.');
    }
    const double seconds = parseDecimal(secondsText).value_or(0.0);
    const double value = first + minutes / 60.0 + seconds / 3600.0;
    return sgn_ ? fields.fullTurn - value : value;
}

double DYXInputDisplay::HMSValue() const { return sexagesimalValue(kHoursFields); }
double DYXInputDisplay::DMSValue() const { return sexagesimalValue(kDegreesFields); }

double DYXInputDisplay::fractionOver(std::int32_t defaultDenominator) const {
    const auto whole = leadingInteger<std::int64_t>(wholePart(), 0);
    const auto top = leadingInteger<std::int32_t>(numerator(), 0);
    const auto bottom = leadingInteger<std::int32_t>(denominator(), defaultDenominator);
    const double value =
        static_cast<double>(top) / static_cast<double>(bottom) + static_cast<double>(whole);
    return sgn_ ? -value : value;
}

double DYXInputDisplay::FractionValue() const { return fractionOver(1); }

double DYXInputDisplay::CarpentryValue() const {
    const double scale = std::pow(2.0, digits());
    return fractionOver(static_cast<std::int32_t>(std::min(scale, 2147483647.0)));
}

}  // namespace talvex
