#pragma once

#include <string>

// Error values: a failed calculation is a quiet NaN that carries a one-character code in its low
// 32 bits. It travels through registers and arithmetic like a number, and the display turns it
// into words.
namespace talvex {

// The error value for a code; code 0 is the plain quiet NaN. A code is sign-extended to 32 bits.
double DYXnan(char code);

// The value, or the plain NaN for any NaN: where the sign of a NaN would be the compiler's choice.
double withPlainNaN(double value);

// The text of a NaN, chosen by its low 32 bits alone; "NaN (7FF8000000000001)" for a NaN whose low
// word is no known code. The caller knows that `value` is a NaN.
std::u16string DYXnanString(double value);

}  // namespace talvex
