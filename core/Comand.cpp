#include "core/Comand.h"

namespace talvex {
namespace {

std::uint32_t codeAt(std::u16string_view string, std::size_t start) {
    std::uint32_t code = 0;
    for (const char16_t character : string.substr(start, 4)) {
        code = code << 8U | (character & 0xFFU);
    }
    return code;
}

void appendCode(std::u16string& string, std::uint32_t code) {
    for (unsigned place = 0; place < 4; ++place) {
        string += static_cast<unsigned char>(characterOf(code, place));
    }
}

}  // namespace

Comand commandFromString(std::u16string_view string) {
    switch (string.size()) {
        case 4:
            return {.action = codeAt(string, 0)};
        case 8:
            return {.category = codeAt(string, 0), .action = codeAt(string, 4)};
        case 12:
            return {.category = codeAt(string, 0),
                    .action = codeAt(string, 8),
                    .group = codeAt(string, 4)};
        default:
            return {};
    }
}

std::u16string stringFromCommand(const Comand& command) {
    std::u16string string;
    appendCode(string, command.category);
    if (command.group != 0) {
        appendCode(string, command.group);
    }
    appendCode(string, command.action);
    return string;
}

}  // namespace talvex
