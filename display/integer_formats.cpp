// HEX, DEC, OCT and BIN: the number as a 32-bit integer, with a warning where it is none.

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <string_view>

#include "display/DYXOutputDisplay.h"
#include "display/ascii_text.h"
#include "display/number_text.h"
#include "numeric/decimal_text.h"

namespace talvex {

// What a line makes of a number: the integer on show, the limits of its type, the base's name.
struct DYXOutputDisplay::IntegerView {
    double number;
    double shown;
    double least;
    double greatest;
    std::u16string_view baseName;
};

// A base whose digits stand in four groups: `digits` is the least number of groups shown, and one
// to three of them show as long as the integer is not above their limit.
struct DYXOutputDisplay::GroupedBase {
    int radix;
    unsigned bitsInGroup;
    std::size_t digitsInGroup;
    std::array<std::uint32_t, 3> limits;
    std::u16string_view baseName;
};

namespace {

constexpr double kLeastSigned = std::numeric_limits<std::int32_t>::min();
constexpr double kGreatestSigned = std::numeric_limits<std::int32_t>::max();
constexpr double kGreatestUnsigned = std::numeric_limits<std::uint32_t>::max();

// To the nearest integer of the type, a tie upward; a negative number gives 0.
std::uint32_t roundedUnsigned(double number) {
    const auto whole = static_cast<std::uint32_t>(std::clamp(number, 0.0, kGreatestUnsigned));
    return number - whole >= 0.5 && whole != kGreatestUnsigned ? whole + 1 : whole;
}

// To the nearest integer of the type, a tie away from zero.
std::int32_t roundedSigned(double number) {
    const auto whole = static_cast<std::int32_t>(std::clamp(number, kLeastSigned, kGreatestSigned));
    const double rest = number - whole;
    if (rest >= 0.5 && whole != kGreatestSigned) {
        return whole + 1;
    }
    return rest <= -0.5 && whole != kLeastSigned ? whole - 1 : whole;
}

constexpr std::u16string_view kInexact = u"inexact";

// Empty if the integer is the number.
std::u16string_view warningWord(double number, double shown, double least, double greatest) {
    if (number > greatest) {
        return u"overflow";
    }
    if (number > 0.0 && number < 1.0) {
        return u"underflow";
    }
    if (number < 0.0 && number > -1.0) {
        return u"negative underflow";
    }
    if (number < least) {
        return u"negative overflow";
    }
    return number == shown ? u"" : kInexact;
}

std::u16string warningNumber(std::u16string_view word, double number) {
    constexpr unsigned kPlaces = 9;
    const std::string text = word == kInexact ? fixedText(number, kPlaces) : generalText(number);
    return asciiText(" (" + text + ')');
}

std::u16string digitsIn(int radix, std::uint32_t value, std::size_t leastDigits) {
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, radix);
    std::u16string text = asciiText({buffer.data(), result.ptr});
    for (char16_t& digit : text) {
        digit = digit >= u'a' ? static_cast<char16_t>(digit - u'a' + u'A') : digit;
    }
    return text.insert(0, leastDigits - std::min(leastDigits, text.size()), u'0');
}

}  // namespace

void DYXOutputDisplay::showInteger(std::u16string mantissa, const IntegerView& view) {
    LineText text{.mantissa = std::move(mantissa), .exponent = std::u16string(view.baseName)};
    text.statusWord = warningWord(view.number, view.shown, view.least, view.greatest);
    if (!text.statusWord.empty()) {
        text.statusRest = warningNumber(text.statusWord, view.number);
        setTextColor(errorColor());
    }
    show(std::move(text));
}

void DYXOutputDisplay::setGroupedBaseTo(double number, const GroupedBase& base) {
    const std::uint32_t value = roundedUnsigned(number);
    std::size_t groups = 1;
    while (groups <= base.limits.size() &&
           (settings_.digits > groups || value > base.limits.at(groups - 1))) {
        ++groups;
    }
    // The two halves are parted by the one separator, the groups of a half by the other.
    const std::array<std::u16string_view, 4> separators{u"", settings_.decimalGroupingSeparator,
                                                        settings_.integerGroupingSeparator,
                                                        settings_.decimalGroupingSeparator};
    const std::uint32_t mask = (1U << base.bitsInGroup) - 1;
    std::u16string text;
    for (std::size_t group = 0; group < groups; ++group) {
        const std::uint32_t bits = value >> (base.bitsInGroup * group) & mask;
        text = digitsIn(base.radix, bits, base.digitsInGroup)
                   .append(separators.at(group))
                   .append(text);
    }
    showInteger(std::move(text), {.number = number,
                                  .shown = static_cast<double>(value),
                                  .least = 0.0,
                                  .greatest = kGreatestUnsigned,
                                  .baseName = base.baseName});
}

void DYXOutputDisplay::setHEXTo(double number) {
    setGroupedBaseTo(number, {.radix = 16,
                              .bitsInGroup = 8,
                              .digitsInGroup = 2,
                              .limits = {255, 65535, 16777215},
                              .baseName = u"hex"});
}

// The first two limits leave out 777 and 777 777, which show with a group of zeros ahead.
void DYXOutputDisplay::setOctalTo(double number) {
    setGroupedBaseTo(number, {.radix = 8,
                              .bitsInGroup = 9,
                              .digitsInGroup = 3,
                              .limits = {510, 262142, 134217727},
                              .baseName = u"oct"});
}

void DYXOutputDisplay::setDecimalTo(double number) {
    const std::int32_t value = roundedSigned(number);
    showInteger(groupedInteger(value), {.number = number,
                                        .shown = static_cast<double>(value),
                                        .least = kLeastSigned,
                                        .greatest = kGreatestSigned,
                                        .baseName = u"dec"});
}

// `digits` counts groups of four bits; 0 and more than 8 are all of them.
void DYXOutputDisplay::setBinaryTo(double number) {
    constexpr unsigned kGroup = 4;
    constexpr unsigned kHalf = 16;
    const std::uint32_t value = roundedUnsigned(number);
    unsigned bits = settings_.digits >= 1 && settings_.digits <= 8 ? kGroup * settings_.digits : 32;
    while (bits < 32 && value >> bits != 0) {
        bits += kGroup;
    }
    std::u16string text;
    for (unsigned bit = bits; bit-- > 0;) {
        text += (value >> bit & 1U) != 0 ? u'1' : u'0';
        if (bit % kGroup == 0) {
            text += settings_.decimalGroupingSeparator;
        }
        if (bit == kHalf) {
            text += settings_.integerGroupingSeparator + u' ';
        }
    }
    showInteger(std::move(text), {.number = number,
                                  .shown = static_cast<double>(value),
                                  .least = 0.0,
                                  .greatest = kGreatestUnsigned,
                                  .baseName = u"bin"});
}

}  // namespace talvex
