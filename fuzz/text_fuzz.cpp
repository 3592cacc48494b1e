// Texts of any kind: simple TeX becomes text of the same characters without marks; a number becomes
// text and the same number again; any text begins with a number, or counts as 0.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>

#include "fuzz_input.h"
#include "numeric/decimal_text.h"
#include "state/ZUStringExtensions.h"
#include "ui/printed_number.h"
#include "ui/simple_tex.h"

namespace talvex {
namespace {

void checkTex(const std::u16string& tex) {
    const NSFont font{.name = u"any", .size = 12.0};
    const NSAttributedString title = simpleTexTitle(tex, font);
    require(title.string.size() == title.attributes.size());
    require(title.string.size() <= tex.size());
    for (const NSTextAttributes& attributes : title.attributes) {
        require(std::abs(attributes.superscript) <= 1);
        require(attributes.font.size == (attributes.superscript == 0 ? 12.0 : 9.0));
    }
    const NSAttributedString line = ZUStringExtensions::simpleTexSingleLine(tex);
    require(line.string.size() == line.attributes.size());
    require(line.string.size() <= 2 * tex.size() + 1);
    const bool isRaised =
        std::any_of(line.attributes.begin(), line.attributes.end(),
                    [](const NSTextAttributes& attributes) { return attributes.superscript > 0; });
    require(isRaised || tex.find(u'^') != std::u16string::npos);
}

void checkNumber(double number) {
    if (!std::isfinite(number)) {
        return;
    }
    const std::optional<double> again = parseDecimal(shortestText(number));
    require(again && std::memcmp(&*again, &number, sizeof number) == 0);
    require(parseDecimal(fixedText(number, kMostDecimalPlaces)) == number);
    require(!printedNumber(number).empty());
}

}  // namespace
}  // namespace talvex

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace talvex;
    FuzzInput input({data, size});
    checkNumber(input.takeNumber());
    std::u16string text;
    while (!input.isAtEnd()) {
        const auto byte = input.take<std::uint8_t>();
        text += byte < 0xF0 ? static_cast<char16_t>(byte) : input.take<char16_t>();
    }
    checkTex(text);
    require(!std::isnan(ZUStringExtensions::internationalDoubleValue(text)));
    return 0;
}
