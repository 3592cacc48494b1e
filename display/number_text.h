#pragma once

#include <cstdint>
#include <string>

// Pieces of text that several formats share.
namespace talvex {

// "-" if the sign bit of the number is set, also for minus zero.
std::u16string signBitText(double number);
// "-" for a number below zero.
std::u16string signText(double number);

// The magnitude of an exponent, at least two digits.
std::u16string exponentText(int exponent);

// A whole number, with leading zeros to a least number of digits.
std::u16string integerText(std::int64_t number, std::size_t leastDigits = 1);

}  // namespace talvex
