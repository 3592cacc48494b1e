#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Operations on the text of a number that is being laid out. Positions count UTF-16 units.
namespace talvex::ZUMutableStringExtensions {

// Replaces every occurrence of `string` by the one character.
void replaceOccurancesOfStringWithCharacter(std::u16string& text, std::u16string_view string,
                                            char16_t character);

// Groups the digits behind the first "." or ",": the separator goes in behind each full group that
// has a digit after it. A group size of 0 or an empty separator changes nothing.
void insertDecimalSeparatorEvery(std::u16string& text, std::u16string_view separator,
                                 std::uint32_t groupSize);

// Groups the digits ahead of the first "." or ",", or all of them if there is none, from the right.
// What stands ahead is taken to be all digits.
void insertIntegerSeparatorEvery(std::u16string& text, std::u16string_view separator,
                                 std::uint32_t groupSize);

}  // namespace talvex::ZUMutableStringExtensions
