// A line in any mode, at any precision, with any separators, shows any number whole and true.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "display/DYXOutputDisplay.h"
#include "display/display_modes.h"
#include "fuzz_input.h"

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

// "1,234  1/2", "1/2" or "1,234" is the number where it is called exact, and else near it.
// Multiples of constants aren't read back.
void checkFraction(const DYXOutputDisplay& line, double magnitude) {
    const std::u16string& text = line.mantissaField()->stringValue();
    if (text.find_first_of(u"\u03C0\u221Ae") != std::u16string::npos) {
        return;
    }
    const std::size_t stroke = std::min(text.find(u'/'), text.size());
    const std::size_t blanks = text.rfind(u"  ");
    const bool isPure = blanks == std::u16string::npos && stroke < text.size();
    const std::size_t middle = isPure ? 0 : std::min(blanks, text.size());
    const auto numberIn = [&](std::size_t from, std::size_t to) {
        const std::string digits = plain(text.substr(from, to - from), u'\0', kDigits);
        return digits.empty() ? 0.0 : std::stod(digits);
    };
    const double whole = numberIn(0, middle);
    const double denominator = std::max(numberIn(stroke, text.size()), 1.0);
    const double shown = whole + numberIn(middle, stroke) / denominator;
    // At 0 digits the fraction isn't on show; the smallest numbers count as the neighbours of zero.
    const bool isExact = line.statusField()->stringValue() == DYXOutputDisplay::exactStr() &&
                         line.digits() > 0 && magnitude > 1e-322;
    const double slack = 3.0 * (std::nextafter(magnitude, INFINITY) - magnitude);
    require(std::fabs(shown - magnitude) <= (isExact ? slack : 1.0));
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
    LineSettings settings;
    settings.outputMode = input.take<std::uint8_t>() % mode::count;
    const auto digits = input.take<std::uint32_t>();
    settings.digits = digits % 4 == 0 ? digits : digits / 4 % 20;
    settings.decimalSeparator = input.take<std::uint8_t>() % 2 == 0 ? u'.' : u',';
    settings.integerGroupingSeparator = separator();
    settings.decimalGroupingSeparator = separator();
    settings.groupingDigits = input.take<std::uint8_t>() % 6;
    settings.reduceCarpentryFractions = input.take<std::uint8_t>() % 2 == 0;
    settings.displayIrrationals = input.take<std::uint8_t>() % 2 == 0;
    line.setSettings(std::move(settings));
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
