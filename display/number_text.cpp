#include "display/number_text.h"

#include <cmath>
#include <cstdlib>

#include "display/ascii_text.h"

namespace talvex {

std::u16string signBitText(double number) { return std::signbit(number) ? u"-" : u""; }

std::u16string signText(double number) { return number < 0.0 ? u"-" : u""; }

std::u16string exponentText(int exponent) {
    constexpr std::size_t kLeastDigits = 2;
    return integerText(std::abs(exponent), kLeastDigits);
}

std::u16string integerText(std::int64_t number, std::size_t leastDigits) {
    std::u16string digits = asciiText(std::to_string(std::abs(number)));
    if (digits.size() < leastDigits) {
        digits.insert(0, leastDigits - digits.size(), u'0');
    }
    return number < 0 ? u'-' + digits : digits;
}

}  // namespace talvex
