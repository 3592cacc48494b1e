#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace talvex {

// A four-character code: the first character in the most significant byte. Shorter words are padded
// with blanks, and the blanks are part of the code. Evaluated while compiling; a text of another
// length doesn't compile.
consteval std::uint32_t fourCC(const char (&text)[5]) {
    std::uint32_t code = 0;
    for (int place = 0; place < 4; ++place) {
        code = code << 8U | static_cast<unsigned char>(text[place]);
    }
    return code;
}

// The character of a code at a place from 0 to 3.
constexpr char characterOf(std::uint32_t code, unsigned place) {
    return static_cast<char>(static_cast<unsigned char>(code >> (24U - 8U * place)));
}

// What a key of the pad or of the keyboard asks for. The category selects the handler, the action
// says what to do, and the group is a second key of unit conversions. A code of 0 is none.
struct Comand {
    std::uint32_t category = 0;
    std::uint32_t action = 0;
    std::uint32_t group = 0;

    bool operator==(const Comand&) const = default;
};

// A command of a key, written as its codes: `command("unit", "SQR ")`, and with the group of its
// units between them: `command("conv", "len ", "ft  ")`.
consteval Comand command(const char (&category)[5], const char (&action)[5]) {
    return {.category = fourCC(category), .action = fourCC(action)};
}
consteval Comand command(const char (&category)[5], const char (&group)[5],
                         const char (&action)[5]) {
    return {.category = fourCC(category), .action = fourCC(action), .group = fourCC(group)};
}

// The key of a memory register from 0 to 99, and that of a digit, "0" to "9" or "A" to "F".
constexpr Comand registerCommand(unsigned number) {
    return {.category = fourCC("memo"),
            .action = fourCC("M000") + (number / 10U << 8U) + number % 10U};
}
constexpr Comand digitCommand(char digit) {
    return {.category = fourCC("data"),
            .action = fourCC("N000") - '0' + static_cast<unsigned char>(digit)};
}

// The command that a text stands for: "cateacti", "categrupacti" or "acti". A text of any other
// length gives no codes at all. Of each character only the low 8 bits count.
Comand commandFromString(std::u16string_view string);
// The text that stands for a command, of 8 characters or, with a group, of 12.
std::u16string stringFromCommand(const Comand& command);

}  // namespace talvex
