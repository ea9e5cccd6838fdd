#!/usr/bin/env python3
"""Makes the tables of the exponential functions: exp_high.inc and exp_low.inc.

usage: exp_tables.py [--write]
"""

from mpmath import mp, mpf

from common import fixed, run, words

LN2 = mp.log(2)
STEP = LN2 / 2**16

# The reduced argument r = |x| - n STEP. The estimate of n, in units of 1/64, is too small by less than 3.
LARGEST_R = STEP * (1 + mpf(3) / 64)
LARGEST_X = mpf(2) ** 40
assert fixed(LARGEST_X / STEP, 6) < 1 << 63

# e^r = 1 + r + r^2/2 + r^3 (c3 + c4 r + c5 r^2), with r^3 / 720 replaced by its best quadratic (Chebyshev) on
# [0, LARGEST_R].
A = LARGEST_R
C5 = fixed(mpf(1) / 120 + A * 3 / 2 / 720, 34)
C4 = fixed(mpf(1) / 24 - A**2 * 9 / 16 / 720, 50)
C3 = fixed(mpf(1) / 6 + A**3 / 32 / 720, 66)


def cubic(r):
    """The polynomial as it is evaluated, without cutting off."""
    return r**3 * (mp.ldexp(C3, -66) + mp.ldexp(C4, -50) * r + mp.ldexp(C5, -34) * r**2)


worst = max(abs(mp.expm1(r) - r - r**2 / 2 - cubic(r)) for r in (A * i / 500 for i in range(501)))
assert worst < mpf(2) ** -113.2, mp.log(worst, 2)

# Words and their ranges, from the largest r.
word = int(mp.floor(mp.ldexp(A, 80)))
square = word * word >> 64
cube = square * word >> 64
inner = C4 + (word * C5 >> 64)
outer = C3 + (word * inner >> 64)
assert max(word, square, cube, inner, outer) < 1 << 64
# The errors by cutting off: of the word, the square, the cube, the sums and the product.
cut = mpf(2) ** -80 * A**2 / 2 + mpf(2) ** -96 * A / 6 + mpf(2) ** -112 / 6 + mpf(2) ** -66 * 2 * A**3 + mpf(2) ** -114
# Units of 2^-127: the argument and its reduction 3, r^2/2 2, the tables and their product 4, the last product 4.
assert worst + cut + 13 * mpf(2) ** -127 < mpf(2) ** -111, mp.log(worst + cut, 2)

HIGH = [fixed(mpf(2) ** (mpf(i) / 256), 127) for i in range(256)]
LOW = [fixed(mpf(2) ** (mpf(i) / 65536) - 1, 128) for i in range(256)]
assert HIGH[255] + (HIGH[255] * LOW[255] >> 128) < 1 << 128

run(
    __file__,
    tables={"exp_high": [words(t) for t in HIGH], "exp_low": [words(t) for t in LOW]},
    constants={
        "exp_core.h": {
            "kInverseLn2": words(int(mp.floor(mp.ldexp(1 / LN2, 63))), 1),
            "kLn2Step": words(int(mp.floor(mp.ldexp(STEP, 191))), 3),
            "kCoefficients": [C3, C4, C5],
        },
    },
)
