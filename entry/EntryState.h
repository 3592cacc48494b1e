#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace talvex {

// A number as it is being typed. What the characters are worth and how they are shown is for the
// rules of the input mode to say, and the mode may change at any time.
struct EntryState {
    // The typed characters, without sign, point or separators.
    std::string text = {};
    bool isNegative = false;
    // The decimal key has been taken, and in FRC and CAR a second time.
    bool hasDecimal = false;
    bool hasFraction = false;
    // How many characters were typed behind the first decimal key, and how many behind the second.
    std::size_t decimals = 0;
    std::size_t denominatorDigits = 0;
    // Digits go to the exponent.
    bool inExponent = false;
    std::array<char, 2> exponentDigits{'0', '0'};
    char exponentSign = ' ';  // a blank, '+' or '-'

    bool operator==(const EntryState&) const = default;

    // The pieces of the text, within its bounds whatever the counts are.
    [[nodiscard]] std::string_view wholePart() const;
    [[nodiscard]] std::string_view behindDecimal() const;
    [[nodiscard]] std::string_view numerator() const;
    [[nodiscard]] std::string_view denominator() const;
    // Whether the exponent is anything but "00".
    [[nodiscard]] bool hasExponent() const;

    // Adds a character to the text, unless it has so many already.
    void append(char character, std::size_t mostCharacters);
    // The digit 1, and an exponent of "00" to which digits go. A decimal key stays taken.
    void startWithOne();
    // A sign and two digits, such as "-03". Any other text leaves the exponent as it is.
    void setExponent(std::string_view exponent);
    // The sign of the exponent when digits go there, else that of the number.
    void changeSign();
    // Takes back the last key: a digit, or a decimal key as if it were one.
    void removeCharacter();
};

}  // namespace talvex
