// A line in any mode, at any precision, with any separators, shows any number whole and true.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>

#include "display/DYXOutputDisplay.h"
#include "display/display_modes.h"
#include "fuzz_input.h"
#include "numeric/fraction_search.h"

namespace talvex {
namespace {

constexpr std::size_t kLongestText = 4500;
constexpr std::u16string_view kOld = u"old";

DisplayFields oldFields() {
    DisplayFields fields = plainFields();
    for (const TextSlot& slot : {fields.mantissa, fields.mantissaSign, fields.exponent,
                                 fields.exponentSign, fields.label, fields.status}) {
        slot->setStringValue(std::u16string(kOld));
    }
    return fields;
}

// The digits and the point of a text, without groups; what else counts stands in `kept`.
std::string plain(const std::u16string& text, char16_t point, std::string_view kept) {
    std::string result;
    for (const char16_t character : text) {
        if (character == point) {
            result += '.';
        } else if (character < 0x80 &&
                   kept.find(static_cast<char>(character)) != std::string_view::npos) {
            result += static_cast<char>(character);
        }
    }
    return result;
}

constexpr std::string_view kDigits = "0123456789";

// The text states the magnitude to half a unit of its last digit.
void checkDecimal(const DYXOutputDisplay& line, double magnitude) {
    const std::u16string& mantissa = line.mantissaField()->stringValue();
    const std::string digits = plain(mantissa, line.decimalSeparator(), kDigits);
    const std::string exponent = plain(line.exponentSignField()->stringValue(), u'\0', "-") +
                                 plain(line.exponentField()->stringValue(), u'\0', kDigits);
    const std::size_t point = digits.find('.');
    const auto decimals = point == std::string::npos ? 0 : digits.size() - point - 1;
    const long power = (exponent.empty() ? 0 : std::stol(exponent)) - static_cast<long>(decimals);
    const long double shown =
        std::strtold((digits + 'e' + (exponent.empty() ? "0" : exponent)).c_str(), nullptr);
    // ENG with fewer digits than places fills them with zeros: up to two of them say nothing.
    const std::size_t significant = digits.size() - (point == std::string::npos ? 0 : 1);
    const bool isFilled = line.outputMode() == mode::ENG && line.digits() < 2 && significant <= 3;
    const long double unit = std::pow(10.0L, power + (isFilled ? 2 : 0));
    const long double error = std::fabs(shown - static_cast<long double>(magnitude));
    require(error <= unit * 0.5000001L + std::fabs(shown) * 1e-18L);
}

struct Multiple {
    double numerator = 1.0;
    double denominator = 1.0;
    std::u16string symbol;
};

// "5π/4", "√2", "3/2π", "1,234  1/2": all but the digits, the stroke and the two
// blanks is a symbol, or a separator in the whole part.
Multiple parseMultiple(const std::u16string& text) {
    const std::size_t blanks = text.rfind(u"  ");
    const bool isMixed = blanks != std::u16string::npos;
    const std::u16string fraction = isMixed ? text.substr(blanks) : text;
    const std::size_t stroke = std::min(fraction.find(u'/'), fraction.size());
    Multiple multiple;
    for (const char16_t symbol : {u'\u03C0', u'\u221A', u'e'}) {
        const std::size_t place = fraction.find(symbol);
        if (place != std::u16string::npos) {
            multiple.symbol = fraction.substr(place, symbol == u'\u221A' ? 2 : 1);
            multiple.symbol += place > stroke ? u"i" : u"";
        }
    }
    const auto numberIn = [&](std::size_t from, std::size_t to) {
        std::u16string part = fraction.substr(from, to - from);
        part.erase(std::min(part.find(u'\u221A'), part.size()),
                   multiple.symbol.starts_with(u'\u221A') ? 2 : 0);
        const std::string digits = plain(part, u'\0', kDigits);
        return digits.empty() ? 1.0 : std::stod(digits);
    };
    multiple.numerator = numberIn(0, stroke);
    multiple.denominator = stroke < fraction.size() ? numberIn(stroke, fraction.size()) : 1.0;
    if (isMixed) {
        multiple.numerator +=
            multiple.denominator * std::stod(plain(text.substr(0, blanks), u'\0', kDigits));
    }
    return multiple;
}

double quotientBy(const std::u16string& symbol, double number) {
    static const std::map<std::u16string, double> kConstants{
        {u"", 1.0}, {u"π", M_PI}, {u"√2", M_SQRT2}, {u"√3", 1.7320508075688772}, {u"e", M_E}};
    const auto row = kConstants.find(symbol);
    return row == kConstants.end() ? number * M_PI : number / row->second;
}

// "exact" stands where the fraction on show is the number to the last bit but one, and only there.
void checkFraction(const DYXOutputDisplay& line, double magnitude) {
    const Multiple multiple = parseMultiple(line.mantissaField()->stringValue());
    const bool isExact = line.statusField()->stringValue() == DYXOutputDisplay::exactStr();
    // At 0 digits the fraction isn't on show; so near to zero a quotient is the neighbour of zero.
    if ((multiple.symbol.empty() && line.digits() == 0) || magnitude < 1e-322) {
        return;
    }
    const double shown = multiple.numerator / multiple.denominator;
    const double quotient = quotientBy(multiple.symbol, magnitude);
    // The whole part and the fraction are added after the division: up to a bit of difference.
    const double slack = std::nextafter(quotient, INFINITY) - quotient;
    require(isExact ? std::fabs(shown - quotient) <= 3.0 * slack
                    : !areClose(shown, quotient) || multiple.symbol.empty());
}

void checkInteger(const DYXOutputDisplay& line, double number) {
    const std::u16string& name = line.exponentField()->stringValue();
    const int radix = name == u"hex" ? 16 : name == u"oct" ? 8 : name == u"bin" ? 2 : 10;
    const std::string digits =
        plain(line.mantissaField()->stringValue(), u'\0', "-0123456789ABCDEF");
    const auto shown = static_cast<double>(std::strtoll(digits.c_str(), nullptr, radix));
    const bool isSigned = radix == 10;
    const double nearest = isSigned ? std::round(number) : std::floor(number + 0.5);
    const double low = isSigned ? -2147483648.0 : 0.0;
    const double high = isSigned ? 2147483647.0 : 4294967295.0;
    const double expected = std::clamp(nearest, low, high);
    // Adding a half rounds just below a half; there both integers are near enough.
    require(shown == expected || std::fabs(shown - number) <= 0.5);
    require(line.statusField()->stringValue().empty() == (shown == number));
}

void checkSexagesimal(const DYXOutputDisplay& line, double number) {
    const bool isTime = line.outputMode() == mode::HMS;
    const double modulus = isTime ? 24.0 : 360.0;
    std::array<long double, 3> fields{};
    std::string text = plain(line.mantissaField()->stringValue(), line.decimalSeparator(),
                             isTime ? "0123456789:" : "0123456789' ");
    std::replace(text.begin(), text.end(), ':', ' ');
    char* rest = text.data();
    for (long double& field : fields) {
        field = std::strtold(rest, &rest);
        rest += *rest == '\'' ? 1 : 0;
    }
    const double wrapped = std::fmod(number, modulus);
    const long double seconds = 3600.0L * (wrapped < 0.0 ? wrapped + modulus : wrapped);
    const long double shown = (fields[0] * 60.0L + fields[1]) * 60.0L + fields[2];
    const long double unit =
        line.digits() == 0 ? 1.0L : std::pow(10.0L, -static_cast<int>(std::min(line.digits(), 6U)));
    require(std::fabs(shown - seconds) <= unit + 1e-6L);
    require(fields[1] < 60.0L && fields[2] < 60.0L);
}

void checkText(const DYXOutputDisplay& line, double number) {
    const double magnitude = std::fabs(number);
    const std::u16string& status = line.statusField()->stringValue();
    const std::u16string& exponent = line.exponentField()->stringValue();
    if (!std::isfinite(number)) {
        require(status.empty() && exponent.empty());
    } else if (isIntegerMode(line.outputMode())) {
        checkInteger(line, number);
    } else if (line.outputMode() == mode::HMS || line.outputMode() == mode::DMS) {
        checkSexagesimal(line, number);
    } else if (!status.empty()) {
        checkFraction(line, magnitude);
    } else {
        checkDecimal(line, magnitude);
    }
}

void run(FuzzInput& input) {
    constexpr auto kSeparators =
        std::to_array<std::u16string_view>({u"", u"\u2009", u" ", u"\u2219", u"_"});
    const auto separator = [&] {
        return std::u16string(kSeparators.at(input.take<std::uint8_t>() % kSeparators.size()));
    };
    DYXOutputDisplay line(oldFields());
    line.setOutputMode(input.take<std::uint8_t>() % mode::count);
    const auto digits = input.take<std::uint32_t>();
    line.setDigits(digits % 4 == 0 ? digits : digits / 4 % 20);
    line.setDecimalSeparator(input.take<std::uint8_t>() % 2 == 0 ? u'.' : u',');
    line.setIntegerGroupingSeparator(separator());
    line.setDecimalGroupingSeparator(separator());
    line.setGroupingDigits(input.take<std::uint8_t>() % 6);
    line.setReduceCarpentryFractions(input.take<std::uint8_t>() % 2 == 0);
    line.setDisplayIrrationals(input.take<std::uint8_t>() % 2 == 0);
    const double number = input.takeNumber();
    line.setOutputTo(number);
    for (const TextSlot& slot :
         {line.mantissaField(), line.mantissaSignField(), line.exponentField(),
          line.exponentSignField(), line.statusField()}) {
        require(slot->stringValue() != kOld && slot->stringValue().size() <= kLongestText);
    }
    require(!line.mantissaField()->stringValue().empty());
    require(line.labelField()->stringValue() == kOld);
    checkText(line, number);
}

}  // namespace
}  // namespace talvex

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    talvex::FuzzInput input({data, size});
    while (!input.isAtEnd()) {
        talvex::run(input);
    }
    return 0;
}
