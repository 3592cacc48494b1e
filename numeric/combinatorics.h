#pragma once

// Functions of counts: the operands go through `toCount`, so that a fraction is cut off, a negative
// number counts as 0 and a NaN as 2147483648. None of them gives an error value; what doesn't fit
// is +infinity.
namespace talvex {

// n! for n up to 170, correctly rounded; +infinity beyond.
double factorial(double x);
// n!! for n up to 299, correctly rounded; +infinity beyond.
double doublefactorial(double x);

// The number of ways to choose x things of y; 0 if x is more than y. Exact up to y = 20; beyond, a
// product of quotients that is rounded at each step and may overflow where the result would fit.
double choose(double x, double y);

}  // namespace talvex
