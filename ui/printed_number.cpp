#include "ui/printed_number.h"

#include "display/ascii_text.h"
#include "numeric/decimal_text.h"

namespace talvex {

std::u16string printedNumber(double value) {
    std::u16string text = asciiText(shortestText(value));
    const std::size_t mark = text.find(u'e');
    std::u16string mantissa = text.substr(0, mark);
    if (mantissa.front() == u'-') {
        mantissa.front() = u'\u2212';
    }
    if (mark == std::u16string::npos) {
        return mantissa;
    }
    std::u16string exponent = text.substr(mark + 1);
    const bool isNegative = exponent.front() == u'-';
    exponent.erase(0, exponent.find_first_not_of(u"+-0"));
    return mantissa + u"\u00D710^{" + (isNegative ? u"\u2212" : u"") + exponent + u"}";
}

}  // namespace talvex
