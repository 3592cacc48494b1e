#include "display/utf8.h"

namespace talvex {

void appendUtf8(std::string& text, char16_t character) {
    if (character < 0x80) {
        text += static_cast<char>(character);
    } else if (character < 0x800) {
        text += static_cast<char>(0xC0 | character >> 6);
        text += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        text += static_cast<char>(0xE0 | character >> 12);
        text += static_cast<char>(0x80 | (character >> 6 & 0x3F));
        text += static_cast<char>(0x80 | (character & 0x3F));
    }
}

std::string utf8(std::u16string_view text) {
    std::string result;
    for (const char16_t character : text) {
        appendUtf8(result, character);
    }
    return result;
}

}  // namespace talvex
