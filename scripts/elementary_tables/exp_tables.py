#!/usr/bin/python3
"""Makes the tables of the exponential functions: exp_high.inc and exp_low.inc.

usage: exp_tables.py [--write]
"""

from mpmath import mp, mpf

from common import fixed, run, words

LN2 = mp.log(2)
STEP = LN2 / 2**16

# The reduced argument r = |x| - n STEP. The estimate of n, in units of 2^-32, is too small by less than 3.
LARGEST_R = STEP * (1 + mpf(3) / 2**32)
LARGEST_X = mpf(2) ** 14
assert fixed(LARGEST_X / STEP, 32) < 1 << 64

# e^r = 1 + r + r (r/2 + r^2 (c3 + c4 r + c5 r^2)), with r^3 / 720 replaced by its best quadratic (Chebyshev) on
# [0, LARGEST_R].
A = LARGEST_R
C5 = fixed(mpf(1) / 120 + A * 3 / 2 / 720, 34)
C4 = fixed(mpf(1) / 24 - A**2 * 9 / 16 / 720, 50)
C3 = fixed(mpf(1) / 6 + A**3 / 32 / 720, 66)


def cubic(r):
    """r^3 (c3 + c4 r + c5 r^2)."""
    return r**3 * (mp.ldexp(C3, -66) + mp.ldexp(C4, -50) * r + mp.ldexp(C5, -34) * r**2)


worst = max(abs(mp.expm1(r) - r - r**2 / 2 - cubic(r)) for r in (A * i / 500 for i in range(501)))
assert worst < mpf(2) ** -113.3, mp.log(worst, 2)

# Words and their ranges, from the largest r.
word = int(mp.floor(mp.ldexp(A, 80)))
square = word * word >> 64
inner = C4 + (word * C5 >> 64)
outer = C3 + (word * inner >> 64)
tail = square * outer >> 64
assert max(word, square, inner, outer, tail) < 1 << 64
# The errors of the tail by cutting off: of the word, of the square, of the sums and of the product.
cut = A * (mpf(2) ** -80 * 2 * A / 6 + mpf(2) ** -96 / 6 + mpf(2) ** -66 * 3 * A**2 + mpf(2) ** -98)
assert cut < mpf(2) ** -112.3, mp.log(cut, 2)
# What STEP loses, once for each step, and 8 units of 2^-127 for the tables and the products.
CUT_STEP = int(mp.floor(mp.ldexp(STEP, 144)))
reduction = LARGEST_X / STEP * (STEP - mp.ldexp(CUT_STEP, -144))
assert reduction < mpf(2) ** -115.4, mp.log(reduction, 2)
total = reduction + worst + cut + 8 * mpf(2) ** -127
assert total < mpf(2) ** -111, mp.log(total, 2)

HIGH = [fixed(mpf(2) ** (mpf(i) / 256), 127) for i in range(256)]
LOW = [fixed(mpf(2) ** (mpf(i) / 65536) - 1, 128) for i in range(256)]
assert HIGH[255] + (HIGH[255] * LOW[255] >> 128) < 1 << 128

# e^x - 1 = x (1 + x^2 / 3! ... + x^10 / 11! + x (1 / 2! + x^2 / 4! ... + x^8 / 10!)) for |x| < 2^-8.
FACTORIALS = {
    first: [word for n in (0, 2, 4) for word in words(fixed(1 / mp.factorial(first + n), 127))]
    + [fixed(1 / mp.factorial(first + n), 63) for n in (6, 8)]
    for first in (2, 3)
}
left_out = sum(mpf(2) ** (-8 * (n - 1)) / mp.factorial(n) for n in range(12, 20))
assert left_out < mpf(2) ** -116.6, mp.log(left_out, 2)

run(
    __file__,
    tables={"exp_high": [words(t) for t in HIGH], "exp_low": [words(t) for t in LOW]},
    constants={
        "exp_core.h": {
            "kInverseLn2": words(int(mp.floor(mp.ldexp(1 / LN2, 63))), 1),
            "kLn2Step": words(CUT_STEP),
            "kExpCoefficients": [C3, C4, C5],
        },
        "wide.h": {"kLn2": words(int(mp.floor(mp.ldexp(LN2, 128))))},
        "wide256.cpp": {"kLn2Of256": words(int(mp.floor(mp.ldexp(LN2, 256))), 4)[::-1]},
        "../expm1.cpp": {"kEvenFactorials": FACTORIALS[2], "kOddFactorials": FACTORIALS[3]},
    },
)
