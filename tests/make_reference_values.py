#!/usr/bin/python3
"""Makes tests/reference_values.csv: results to 60 digits, rounded once to a double.

Needs the Debian package python3-mpmath. Columns: what is tested, the command of the calculator, the
angle mode, the tolerance in units in the last place, X, Y, and the expected result.
"""
import csv
import os
import random
import sys
from fractions import Fraction

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
DEGREES = {0: mpf(1), 1: m.pi / 180, 2: m.pi / 200, 3: m.pi / 12, 4: 2 * m.pi}
ANGLES = {0: "radians", 1: "degrees", 2: "grads", 3: "hours", 4: "revolutions"}
TURN = {0: 6.28, 1: 360.0, 2: 400.0, 3: 24.0, 4: 1.0}
REAL = magnitudes(-3, 2.5, 10, BOTH) + [0.5, -1.0, 1e-5]
POSITIVE = magnitudes(-200, 200, 6) + magnitudes(-2, 4, 6) + [5e-324]
UNIT = spread(-1, 1) + [1 - 2.0**-53, 2.0**-30]
BEYOND = [1 / u for u in spread(-1, 1) if u]

# What, command, tolerance, operands of X, function.
UNARY = [
    ("hyperbolic sine", "unitSINH", 2, REAL, m.sinh),
    ("hyperbolic cosine", "unitCOSH", 2, REAL, m.cosh),
    ("hyperbolic tangent", "unitTANH", 2, REAL, m.tanh),
    ("inverse hyperbolic sine", "unitSNHI", 3, REAL + magnitudes(5, 300, 4, BOTH), m.asinh),
    ("inverse hyperbolic cosine", "unitCSHI", 3, [1 + x for x in magnitudes(-3, 200)], m.acosh),
    ("inverse hyperbolic tangent", "unitTNHI", 3, UNIT, m.atanh),
    ("hyperbolic cosecant", "unitCSCH", 3, REAL, m.csch),
    ("hyperbolic secant", "unitSECH", 3, REAL, m.sech),
    ("hyperbolic cotangent", "unitCOTH", 3, REAL, m.coth),
    ("square root", "unitROOT", 0, POSITIVE, m.sqrt),
    ("cube root", "unitCBRT", 2, POSITIVE + magnitudes(-3, 3, 4, (-1,)), lambda x: m.sign(x) * m.cbrt(abs(x))),
    ("square", "unitSQR ", 0, magnitudes(-150, 150, 10, BOTH), lambda x: x * x),
    ("reciprocal", "unitINV ", 0, magnitudes(-300, 300, 10, BOTH), lambda x: 1 / x),
    ("exponential", "unitEXP ", 1, spread(-740, 709, 14), m.exp),
    ("power of ten", "unit10^X", 1, spread(-323, 308, 14), lambda x: mpf(10) ** x),
    ("power of two", "unit2^X ", 1, spread(-1070, 1023, 14), lambda x: mpf(2) ** x),
    ("natural logarithm", "unitNLOG", 1, POSITIVE + [1 + 2.0**-20], m.log),
    ("decimal logarithm", "unitLG10", 2, POSITIVE, m.log10),
    ("binary logarithm", "unitLOG2", 2, POSITIVE, lambda x: m.log(x, 2)),
    ("gamma function", "unitGAMA", 5, spread(-20, 170, 14) + [1e-10], m.gamma),
    ("logarithm of gamma", "unitLGAM", 5, spread(2.5, 100, 8) + magnitudes(3, 300, 6), m.loggamma),
    ("zeta from 2", "unitZETA", 5, spread(2, 60, 12), m.zeta),
    ("zeta near the pole", "unitZETA", 12, spread(0, 2, 12), m.zeta),
    ("zeta a little below 0", "unitZETA", 2 ** 15, spread(-1.5, 0, 12), m.zeta),
    ("error function", "unitERF ", 2, spread(-4, 4, 12), m.erf),
    ("complementary error function", "unitERFC", 5, spread(-4, 26, 12), m.erfc),
    ("J of order 0", "unitJ0  ", 4, spread(0, 2, 4) + spread(4, 5, 4) + magnitudes(1, 2, 4), lambda x: m.besselj(0, x)),
    ("J of order 1", "unitJ1  ", 4, spread(0, 3, 4) + spread(5, 6, 4) + magnitudes(1, 2, 4), lambda x: m.besselj(1, x)),
    ("Y of order 0", "unitY0  ", 4, spread(0, .7, 4) + spread(5, 6, 4) + magnitudes(1, 2, 4), lambda x: m.bessely(0, x)),
    ("Y of order 1", "unitY1  ", 4, spread(0, 2, 4) + spread(3, 5, 4) + magnitudes(1, 2, 4), lambda x: m.bessely(1, x)),
]

CIRCULAR = [
    ("sine", "SIN ", m.sin),
    ("cosine", "COS ", m.cos),
    ("tangent", "TAN ", m.tan),
    ("cosecant", "CSC ", m.csc),
    ("secant", "SEC ", m.sec),
    ("cotangent", "COT ", m.cot),
]
ARCS = [
    ("arc sine", "ASIN", UNIT, m.asin),
    ("arc cosine", "ACOS", UNIT, m.acos),
    ("arc tangent", "ATAN", REAL, m.atan),
    ("arc cosecant", "ACSC", BEYOND, m.acsc),
    ("arc secant", "ASEC", BEYOND, m.asec),
    ("arc cotangent", "ACOT", spread(-2, 2), m.acot),
]


def pairs(first, second):
    return list(zip(first, second))


COUNTS = [(RANDOM.randint(1, n), n) for n in RANDOM.choices(range(21, 500), k=14)]
# Orders, then arguments: away from the zeros of J and Y, where digits are lost.
LOW = pairs(spread(-3, 3, 12), spread(0.05, 1.99, 12))
HIGH = pairs(spread(0, 40, 12), spread(2, 60, 12)) + [(0.0, 10.0), (2.5, 3.0)]
BINARY = [
    ("power", "binax^y ", 1, pairs(POSITIVE, spread(-1.5, 1.5, 13)), lambda x, y: x ** y),
    ("logarithm to a base", "binay~x ", 3, pairs(magnitudes(0.5, 5), magnitudes(1, 200)), lambda x, y: m.log(y) / m.log(x)),
    ("hypotenuse", "binaHYPT", 1, pairs(REAL, REAL[::-1]), lambda x, y: m.sqrt(x * x + y * y)),
    ("geometric mean", "binaMEAN", 1, pairs(magnitudes(-100, 100), magnitudes(-100, 100)), lambda x, y: m.sqrt(x * y)),
    ("binomial coefficient", "binaCHOS", 16, COUNTS, lambda x, y: m.binomial(y, x)),
    ("J of real order below 2", "binaJx  ", 2 ** 24, LOW, m.besselj),
    ("Y of real order below 2", "binaYx  ", 2 ** 24, LOW, m.bessely),
    ("J of real order from 2", "binaJx  ", 2 ** 9, HIGH, m.besselj),
    ("Y of real order from 2", "binaYx  ", 2 ** 9, HIGH, m.bessely),
]


def near_zero(command, order, x, result):
    """How much smaller a Bessel function is than the amplitude it oscillates with."""
    if command[4:] not in ("Jx  ", "Yx  ") or x < max(order, 2):
        return 1
    return m.hypot(m.besselj(order, x), m.bessely(order, x)) / abs(result)


def rounded(value):
    """The nearest double, also below the normal numbers."""
    sign, mantissa, exponent, _ = mpf(value)._mpf_
    exact = Fraction(int(mantissa)) * Fraction(2) ** int(exponent)
    return float(-exact if sign else exact)


def rows():
    for what, command, tolerance, operands, function in UNARY:
        for x in operands:
            yield what, command, 0, tolerance, x, 0.0, function(mpf(x))
    for mode, unit in DEGREES.items():
        for what, code, function in CIRCULAR:
            for x in spread(-TURN[mode], TURN[mode], 6):
                # The angle's unit and the product with it are rounded before the function.
                result, slope = function(x * unit), m.diff(function, x * unit)
                condition = 0 if mode == 0 else abs(2 * x * unit * slope / result)
                yield f"{what} in {ANGLES[mode]}", "unit" + code, mode, 2 + int(condition), x, 0.0, result
        for what, code, operands, function in ARCS:
            for x in operands[:6]:
                yield f"{what} in {ANGLES[mode]}", "unit" + code, mode, 3, x, 0.0, function(mpf(x)) / unit
    for what, command, tolerance, operands, function in BINARY:
        for x, y in operands:
            result = function(mpf(x), mpf(y))
            yield what, command, 0, int(tolerance * near_zero(command, x, y, result)), x, y, result


def main():
    with open(os.path.join(HERE, "reference_values.csv"), "w", newline="\n") as file:
        writer = csv.writer(file, lineterminator="\n")
        for what, command, mode, tolerance, x, y, expected in rows():
            if abs(expected) < sys.float_info.max:
                numbers = [repr(float(number)) for number in (x, y, rounded(expected))]
                writer.writerow([what, command, mode, tolerance, *numbers])


if __name__ == "__main__":
    main()
