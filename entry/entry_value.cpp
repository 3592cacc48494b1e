#include "entry/entry_value.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <system_error>

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

double unsignedValue(const EntryState& entry, int base) {
    if (entry.text.empty() || !hasOnlyDigitsOf(entry.text, base)) {
        return DYXnan(kInputError);
    }
    constexpr std::uint32_t kLimit = std::numeric_limits<std::uint32_t>::max();
    const auto magnitude = leadingInteger<std::uint64_t>(entry.text, 0, base);
    if (magnitude > kLimit) {
        return kLimit;
    }
    const auto value = static_cast<std::uint32_t>(magnitude);
    return entry.isNegative ? 0U - value : value;
}

double sexagesimalValue(const EntryState& entry, const EntryFields& fields) {
    const std::string& text = entry.text;
    if (!hasOnlyDigitsOf(text, 10)) {
        return DYXnan(kInputError);
    }
    const double first = fieldValue(text, 0, fields.ends[0]);
    const double minutes = fieldValue(text, fields.ends[0], fields.ends[1]);
    std::string secondsText = text.substr(std::min(fields.ends[1], text.size()));
    if (text.size() > fields.width()) {
        secondsText.insert(fields.ends[2] - fields.ends[1], 1, '.');
    }
    const double seconds = parseDecimal(secondsText).value_or(0.0);
    const double value = first + minutes / 60.0 + seconds / 3600.0;
    return entry.isNegative ? fields.fullTurn - value : value;
}

double fractionOver(const EntryState& entry, std::int32_t defaultDenominator) {
    const auto whole = leadingInteger<std::int64_t>(entry.wholePart(), 0);
    const auto top = leadingInteger<std::int32_t>(entry.numerator(), 0);
    const auto bottom = leadingInteger<std::int32_t>(entry.denominator(), defaultDenominator);
    const double value =
        static_cast<double>(top) / static_cast<double>(bottom) + static_cast<double>(whole);
    return entry.isNegative ? -value : value;
}

}  // namespace

double scientificValue(const EntryState& entry, const LineSettings& /*settings*/) {
    if (!hasOnlyDigitsOf(entry.text, 10)) {
        return DYXnan(kInputError);
    }
    const int magnitude = 10 * (entry.exponentDigits[0] - '0') + (entry.exponentDigits[1] - '0');
    const int exponent =
        (entry.exponentSign == '-' ? -magnitude : magnitude) - static_cast<int>(entry.decimals);
    const std::string number =
        (entry.isNegative ? '-' : '+') + entry.text + 'e' + std::to_string(exponent);
    const auto value = parseDecimal(number);
    return value ? *value : DYXnan(kInputError);
}

double monetaryValue(const EntryState& entry, const LineSettings& settings) {
    return DYXRoundToDigits(scientificValue(entry, settings), settings.digits);
}

double fractionValue(const EntryState& entry, const LineSettings& /*settings*/) {
    return fractionOver(entry, 1);
}

double carpentryValue(const EntryState& entry, const LineSettings& settings) {
    const double scale = std::pow(2.0, settings.digits);
    return fractionOver(entry, static_cast<std::int32_t>(std::min(scale, 2147483647.0)));
}

double hmsValue(const EntryState& entry, const LineSettings& /*settings*/) {
    return sexagesimalValue(entry, kHoursFields);
}

double dmsValue(const EntryState& entry, const LineSettings& /*settings*/) {
    return sexagesimalValue(entry, kDegreesFields);
}

double hexValue(const EntryState& entry, const LineSettings& /*settings*/) {
    return unsignedValue(entry, 16);
}

double octalValue(const EntryState& entry, const LineSettings& /*settings*/) {
    return unsignedValue(entry, 8);
}

double decimalValue(const EntryState& entry, const LineSettings& /*settings*/) {
    if (entry.text.empty() || !hasOnlyDigitsOf(entry.text, 10)) {
        return DYXnan(kInputError);
    }
    const auto magnitude = leadingInteger<std::int64_t>(entry.text, 0);
    const std::int64_t value = std::clamp<std::int64_t>(entry.isNegative ? -magnitude : magnitude,
                                                        std::numeric_limits<std::int32_t>::min(),
                                                        std::numeric_limits<std::int32_t>::max());
    return static_cast<double>(value);
}

// The last 32 characters count, bit by bit; the sign doesn't.
double binaryValue(const EntryState& entry, const LineSettings& /*settings*/) {
    if (!hasOnlyDigitsOf(entry.text, 2)) {
        return DYXnan(kInputError);
    }
    std::uint32_t value = 0;
    for (const char character : entry.text) {
        value = value << 1U | (character == '1' ? 1U : 0U);
    }
    return value;
}

}  // namespace talvex
