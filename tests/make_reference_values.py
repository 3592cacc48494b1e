#!/usr/bin/python3
"""Makes tests/reference_values.csv: results to 60 digits, rounded once to a double.

Needs the Debian package python3-mpmath. Columns: the command of the calculator, the angle mode, the
tolerance in units in the last place, X, Y, and the expected result.
"""
import csv
import os
import random
import sys
from fractions import Fraction
from functools import partial

from mpmath import mp, mpf
import mpmath as m

mp.dps = 60
RANDOM = random.Random(2026)
HERE = os.path.dirname(os.path.abspath(__file__))


def spread(low, high, count=10):
    return [low + (high - low) * RANDOM.random() for _ in range(count)]


def magnitudes(low, high, count=10, signs=(1,)):
    return [RANDOM.choice(signs) * 10 ** RANDOM.uniform(low, high) for _ in range(count)]


BOTH = (1, -1)
DEGREES = [mpf(1), m.pi / 180, m.pi / 200, m.pi / 12, 2 * m.pi]
TURN = [6.28, 360.0, 400.0, 24.0, 1.0]
REAL = magnitudes(-3, 2.5, 10, BOTH) + [0.5, -1.0, 1e-5]
POSITIVE = magnitudes(-200, 200, 6) + magnitudes(-2, 4, 6) + [5e-324]
UNIT = spread(-1, 1) + [1 - 2.0**-53, 2.0**-30]
BEYOND = [1 / u for u in spread(-1, 1) if u]

# Code, tolerance, operands of X, function.
UNARY = [
    *[(code, 2, REAL, getattr(m, code.lower())) for code in ("SINH", "COSH", "TANH")],
    ("SNHI", 3, REAL + magnitudes(5, 300, 4, BOTH), m.asinh),
    ("CSHI", 3, [1 + x for x in magnitudes(-3, 200)], m.acosh),
    ("TNHI", 3, UNIT, m.atanh),
    *[(code, 3, REAL, getattr(m, code.lower())) for code in ("CSCH", "SECH", "COTH")],
    ("ROOT", 0, POSITIVE, m.sqrt),
    ("CBRT", 2, POSITIVE + magnitudes(-3, 3, 4, (-1,)), lambda x: m.sign(x) * m.cbrt(abs(x))),
    ("SQR ", 0, magnitudes(-150, 150, 10, BOTH), lambda x: x * x),
    ("INV ", 0, magnitudes(-300, 300, 10, BOTH), lambda x: 1 / x),
    ("EXP ", 1, spread(-740, 709, 14), m.exp),
    ("10^X", 1, spread(-323, 308, 14), lambda x: mpf(10) ** x),
    ("2^X ", 1, spread(-1070, 1023, 14), lambda x: mpf(2) ** x),
    ("NLOG", 1, POSITIVE + [1 + 2.0**-20], m.log),
    ("LG10", 2, POSITIVE, m.log10),
    ("LOG2", 2, POSITIVE, lambda x: m.log(x, 2)),
    ("GAMA", 5, spread(-20, 170, 14) + [1e-10], m.gamma),
    ("LGAM", 5, spread(2.5, 100, 8) + magnitudes(3, 300, 6), m.loggamma),
    ("ZETA", 5, spread(2, 60, 12), m.zeta),
    ("ZETA", 12, spread(0, 2, 12), m.zeta),
    ("ZETA", 2 ** 15, spread(-1.5, 0, 12), m.zeta),
    ("ERF ", 2, spread(-4, 4, 12), m.erf),
    ("ERFC", 5, spread(-4, 26, 12), m.erfc),
    # Away from the zeros of J and Y, where digits are lost.
    ("J0  ", 4, spread(0, 2, 4) + spread(4, 5, 4) + magnitudes(1, 2, 4), m.j0),
    ("J1  ", 4, spread(0, 3, 4) + spread(5, 6, 4) + magnitudes(1, 2, 4), m.j1),
    ("Y0  ", 4, spread(0, .7, 4) + spread(5, 6, 4) + magnitudes(1, 2, 4), partial(m.bessely, 0)),
    ("Y1  ", 4, spread(0, 2, 4) + spread(3, 5, 4) + magnitudes(1, 2, 4), partial(m.bessely, 1)),
]
CIRCULAR = ("SIN ", "COS ", "TAN ", "CSC ", "SEC ", "COT ")
ARCS = {"ASIN": UNIT, "ACOS": UNIT, "ATAN": REAL, "ACSC": BEYOND, "ASEC": BEYOND,
        "ACOT": spread(-2, 2)}
COUNTS = [(RANDOM.randint(1, n), n) for n in RANDOM.choices(range(21, 500), k=14)]
# Orders, then arguments.
LOW = [*zip(spread(-3, 3, 12), spread(0.05, 1.99, 12))]
HIGH = [*zip(spread(0, 40, 12), spread(2, 60, 12)), (0.0, 10.0), (2.5, 3.0)]
BINARY = [
    ("x^y ", 1, zip(POSITIVE, spread(-1.5, 1.5, 13)), lambda x, y: x ** y),
    ("y~x ", 3, zip(magnitudes(0.5, 5), magnitudes(1, 200)), lambda x, y: m.log(y) / m.log(x)),
    ("HYPT", 1, zip(REAL, REAL[::-1]), m.hypot),
    ("MEAN", 1, zip(magnitudes(-100, 100), magnitudes(-100, 100)), lambda x, y: m.sqrt(x * y)),
    ("CHOS", 16, COUNTS, lambda x, y: m.binomial(y, x)),
    ("Jx  ", 2 ** 24, LOW, m.besselj),
    ("Yx  ", 2 ** 24, LOW, m.bessely),
    ("Jx  ", 2 ** 9, HIGH, m.besselj),
    ("Yx  ", 2 ** 9, HIGH, m.bessely),
]


def near_zero(code, order, x, result):
    """How much smaller a Bessel function is than the amplitude it oscillates with."""
    if code not in ("Jx  ", "Yx  ") or x < max(order, 2):
        return 1
    return m.hypot(m.besselj(order, x), m.bessely(order, x)) / abs(result)


def rounded(value):
    """The nearest double, also below the normal numbers."""
    sign, mantissa, exponent, _ = mpf(value)._mpf_
    exact = Fraction(int(mantissa)) * Fraction(2) ** int(exponent)
    return float(-exact if sign else exact)


def rows():
    for code, tolerance, operands, function in UNARY:
        for x in operands:
            yield "unit" + code, 0, tolerance, x, 0.0, function(mpf(x))
    for mode, unit in enumerate(DEGREES):
        for code in CIRCULAR:
            function = getattr(m, code.strip().lower())
            for x in spread(-TURN[mode], TURN[mode], 6):
                # The angle's unit and the product with it are rounded before the function.
                result, slope = function(x * unit), m.diff(function, x * unit)
                condition = 0 if mode == 0 else abs(2 * x * unit * slope / result)
                yield "unit" + code, mode, 2 + int(condition), x, 0.0, result
        for code, operands in ARCS.items():
            for x in operands[:6]:
                yield "unit" + code, mode, 3, x, 0.0, getattr(m, code.lower())(mpf(x)) / unit
    for code, tolerance, operands, function in BINARY:
        for x, y in operands:
            result = function(mpf(x), mpf(y))
            yield "bina" + code, 0, int(tolerance * near_zero(code, x, y, result)), x, y, result


def main():
    with open(os.path.join(HERE, "reference_values.csv"), "w", newline="\n") as file:
        writer = csv.writer(file, lineterminator="\n")
        for command, mode, tolerance, x, y, expected in rows():
            if abs(expected) < sys.float_info.max:
                numbers = [repr(float(number)) for number in (x, y, rounded(expected))]
                writer.writerow([command, mode, tolerance, *numbers])


if __name__ == "__main__":
    main()
