#include "entry/entry_echo.h"

#include <array>
#include <string>
#include <string_view>

#include "display/ascii_text.h"
#include "entry/entry_fields.h"

namespace talvex {
namespace {

std::u16string signText(const EntryState& entry) { return entry.isNegative ? u"-" : u""; }

LineText fractionOver(const EntryState& entry, std::u16string_view defaultDenominator) {
    std::u16string mantissa = asciiText(entry.wholePart());
    if (entry.hasDecimal && entry.decimals == 0) {
        mantissa.append(u"  0/").append(defaultDenominator);
    } else if (entry.hasDecimal) {
        mantissa +=
            u"  " + (entry.numerator().empty() ? u"0" : asciiText(entry.numerator())) + u'/';
        mantissa +=
            entry.hasFraction ? asciiText(entry.denominator()) : std::u16string(defaultDenominator);
    }
    return {.mantissa = std::move(mantissa), .sign = signText(entry)};
}

LineText integerEcho(const EntryState& entry, std::u16string_view baseName) {
    return {.mantissa = asciiText(entry.text),
            .sign = signText(entry),
            .exponent = std::u16string(baseName)};
}

}  // namespace

LineText scientificEcho(const EntryState& entry, const LineSettings& settings) {
    LineText line{.mantissa = asciiText(entry.wholePart()), .sign = signText(entry)};
    if (entry.hasDecimal) {
        line.mantissa += settings.decimalSeparator + asciiText(entry.behindDecimal());
    }
    if (entry.hasExponent()) {
        line.exponentSign = asciiText({&entry.exponentSign, 1});
    }
    if (entry.hasExponent() || entry.inExponent) {
        line.exponent = asciiText({entry.exponentDigits.data(), entry.exponentDigits.size()});
    }
    return line;
}

LineText fractionEcho(const EntryState& entry, const LineSettings& /*settings*/) {
    return fractionOver(entry, u"1");
}

LineText carpentryEcho(const EntryState& entry, const LineSettings& settings) {
    static constexpr auto kDenominators = std::to_array<std::u16string_view>(
        {u"1", u"2", u"4", u"8", u"16", u"32", u"64", u"128", u"256", u"512"});
    return fractionOver(entry, settings.digits < kDenominators.size()
                                   ? kDenominators.at(settings.digits)
                                   : std::u16string_view());
}

LineText hmsEcho(const EntryState& entry, const LineSettings& settings) {
    std::u16string mantissa;
    for (std::size_t place = 0; place < entry.text.size(); ++place) {
        if (place == kHoursFields.width()) {
            mantissa += settings.decimalSeparator;
        }
        mantissa += static_cast<char16_t>(entry.text[place]);
        if (place + 1 == kHoursFields.ends[0] || place + 1 == kHoursFields.ends[1]) {
            mantissa += u" : ";
        }
    }
    return {.mantissa = std::move(mantissa), .sign = signText(entry)};
}

LineText dmsEcho(const EntryState& entry, const LineSettings& settings) {
    std::u16string mantissa;
    for (std::size_t place = 0; place < entry.text.size(); ++place) {
        if (place == kDegreesFields.width()) {
            mantissa += settings.decimalSeparator;
        }
        mantissa += static_cast<char16_t>(entry.text[place]);
        if (place + 1 == kDegreesFields.ends[0]) {
            mantissa += u"\u00B0 ";
        } else if (place + 1 == kDegreesFields.ends[1]) {
            mantissa += u"' ";
        }
    }
    if (entry.text.size() >= kDegreesFields.width()) {
        mantissa += u'"';
    }
    return {.mantissa = std::move(mantissa), .sign = signText(entry)};
}

LineText hexEcho(const EntryState& entry, const LineSettings& /*settings*/) {
    return integerEcho(entry, u"hex");
}

LineText decimalEcho(const EntryState& entry, const LineSettings& /*settings*/) {
    return {.mantissa = signText(entry) + asciiText(entry.text), .exponent = u"dec"};
}

LineText octalEcho(const EntryState& entry, const LineSettings& /*settings*/) {
    return integerEcho(entry, u"oct");
}

LineText binaryEcho(const EntryState& entry, const LineSettings& /*settings*/) {
    return integerEcho(entry, u"bin");
}

}  // namespace talvex
