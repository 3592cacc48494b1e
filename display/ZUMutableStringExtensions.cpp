#include "display/ZUMutableStringExtensions.h"

#include <algorithm>
#include <cstddef>

namespace talvex::ZUMutableStringExtensions {

void replaceOccurancesOfStringWithCharacter(std::u16string& text, std::u16string_view string,
                                            char16_t character) {
    if (string.empty()) {
        return;
    }
    std::size_t position = text.find(string);
    while (position != std::u16string::npos) {
        text.replace(position, string.size(), 1, character);
        position = text.find(string, position + 1);
    }
}

void insertDecimalSeparatorEvery(std::u16string& text, std::u16string_view separator,
                                 std::uint32_t groupSize) {
    const std::size_t point = text.find_first_of(u".,");
    if (groupSize == 0 || separator.empty() || point == std::u16string::npos) {
        return;
    }
    const std::size_t group = groupSize;
    for (std::size_t position = point + 1 + group; position < text.size();
         position += group + separator.size()) {
        text.insert(position, separator);
    }
}

void insertIntegerSeparatorEvery(std::u16string& text, std::u16string_view separator,
                                 std::uint32_t groupSize) {
    if (groupSize == 0 || separator.empty()) {
        return;
    }
    const std::size_t group = groupSize;
    std::size_t position = std::min(text.find_first_of(u".,"), text.size());
    while (position > group) {
        position -= group;
        text.insert(position, separator);
    }
}

}  // namespace talvex::ZUMutableStringExtensions
