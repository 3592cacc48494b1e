#include "state/ZUStringExtensions.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "display/ZUMutableStringExtensions.h"
#include "numeric/decimal_text.h"

namespace talvex::ZUStringExtensions {
namespace {

constexpr std::size_t kLongestNumber = 65536;
constexpr std::string_view kBlanks = " \t\n\v\f\r";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kSigns = "+-";

std::size_t skip(std::string_view text, std::size_t from, std::string_view characters) {
    return std::min(text.find_first_not_of(characters, from), text.size());
}

std::size_t skipSign(std::string_view text, std::size_t from) {
    const bool isSign = from < text.size() && kSigns.find(text[from]) != std::string_view::npos;
    return from + (isSign ? 1 : 0);
}

// Behind the mantissa that the text starts with; the sign alone is none.
std::size_t endOfMantissa(std::string_view text) {
    const std::size_t start = skipSign(text, 0);
    const std::size_t point = skip(text, start, kDigits);
    if (point == text.size() || text[point] != '.') {
        return point == start ? 0 : point;
    }
    const std::size_t end = skip(text, point + 1, kDigits);
    return end - start == 1 ? 0 : end;
}

// Behind the exponent, if there is one with digits.
std::size_t endOfExponent(std::string_view text, std::size_t mantissaEnd) {
    if (mantissaEnd == text.size() || (text[mantissaEnd] != 'e' && text[mantissaEnd] != 'E')) {
        return mantissaEnd;
    }
    const std::size_t digits = skipSign(text, mantissaEnd + 1);
    const std::size_t end = skip(text, digits, kDigits);
    return end == digits ? mantissaEnd : end;
}

}  // namespace

double leadingNumber(std::string_view text) {
    text = text.substr(0, kLongestNumber);
    text.remove_prefix(skip(text, 0, kBlanks));
    const std::size_t mantissaEnd = endOfMantissa(text);
    if (mantissaEnd == 0) {
        return 0.0;
    }
    return parseDecimal(text.substr(0, endOfExponent(text, mantissaEnd))).value_or(0.0);
}

double internationalDoubleValue(std::u16string_view text) {
    std::u16string pointed(text.substr(0, kLongestNumber));
    ZUMutableStringExtensions::replaceOccurancesOfStringWithCharacter(pointed, u",", u'.');
    std::string ascii;
    for (const char16_t character : pointed) {
        const bool isBlank = character == u'\u00A0' || character == u'\u2009';
        ascii += isBlank ? ' ' : character < 0x80 ? static_cast<char>(character) : '?';
    }
    return leadingNumber(ascii);
}

}  // namespace talvex::ZUStringExtensions
