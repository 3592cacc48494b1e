#pragma once

// Operations on 32-bit signed integers. The operands go through `toInt32`; the result is that
// integer as a double, from -2147483648 to 2147483647. None of them fails: a NaN and whatever
// doesn't fit count as -2147483648.
namespace talvex {

double notf(double x);          // complement
double shift1leftf(double x);   // twice x, wrapping at 32 bits
double shift1rightf(double x);  // half of x, downward: the sign is copied

double andf(double x, double y);
double nandf(double x, double y);
double orf(double x, double y);
double xorf(double x, double y);

// y shifted by the low five bits of x; to the right the sign is copied.
double shiftleftf(double x, double y);
double shiftrightf(double x, double y);

}  // namespace talvex
