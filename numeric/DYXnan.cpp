#include "numeric/DYXnan.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace talvex {
namespace {

struct ErrorText {
    char code;
    std::u16string_view text;
};

constexpr auto kErrorTexts = std::to_array<ErrorText>({
    {.code = '\0', .text = u"indeterminate"},
    {.code = '$', .text = u"input error"},
    {.code = '?', .text = u"undefined"},
    {.code = 'B', .text = u"Bessel error"},
    {.code = 'F', .text = u"factorial error"},
    {.code = 'H', .text = u"hyperbolic error"},
    {.code = 'L', .text = u"log error"},
    {.code = 'O', .text = u"overflow"},
    {.code = 'P', .text = u"power error"},
    {.code = 'Q', .text = u"sqrt error"},
    {.code = 'T', .text = u"trig error"},
    {.code = 'U', .text = u"underflow"},
});

std::u16string patternText(std::uint64_t pattern) {
    std::array<char, 16> digits{};
    const auto* const end =
        std::to_chars(digits.data(), digits.data() + digits.size(), pattern, 16).ptr;
    std::u16string text = u"NaN (";
    for (const char* digit = digits.data(); digit != end; ++digit) {
        const bool isLetter = *digit >= 'a';
        text += static_cast<char16_t>(isLetter ? *digit - 'a' + 'A' : *digit);
    }
    return text + u')';
}

}  // namespace

double DYXnan(char code) {
    const auto byte = static_cast<std::uint32_t>(static_cast<unsigned char>(code));
    const std::uint32_t signExtended = byte < 0x80U ? byte : byte | 0xFFFFFF00U;
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(std::nan("")) | signExtended);
}

double withPlainNaN(double value) { return std::isnan(value) ? DYXnan('\0') : value; }

std::u16string DYXnanString(double value) {
    const auto pattern = std::bit_cast<std::uint64_t>(value);
    const auto lowWord = static_cast<std::uint32_t>(pattern);
    for (const ErrorText& row : kErrorTexts) {
        if (lowWord == static_cast<unsigned char>(row.code)) {
            return std::u16string(row.text);
        }
    }
    return patternText(pattern);
}

}  // namespace talvex
