#!/usr/bin/python3
"""Makes the tables of atan and asin, by pieces: polynomials whose terms are all positive.

With z the square of the argument: atan(sqrt z) / sqrt z on [0, 1], 128 pieces expanded at the right end, and
asin(sqrt z) / sqrt z on [0, 1/4], 129 pieces of width 1/512 expanded at the left end. u in [0, 1/2] is the distance
from that end in units of two widths: every step of Horner's scheme halves what is lost before it. A polynomial
interpolates at the zeros of Chebyshev's polynomial. A row is the coefficients of 1, u, u^2 ... : first those of 128
bits at scale 2^127, then those of 64 bits at their own scale.
"""

import random

from common import fixed, multiply_high, run, words
from mpmath import asin, atan, cos, lu_solve, matrix, mp, mpf, pi, sqrt


def arctan_quotient(z):
    return atan(sqrt(z)) / sqrt(z) if z else mpf(1)


def arcsine_quotient(z):
    return asin(sqrt(z)) / sqrt(z) if z else mpf(1)


def value_of(row, wide, narrow_scale, u):
    """ValueOfPiece: what C++ computes at u, which is at scale 2^128; asserts that nothing is carried out of a word."""
    top = u >> 64
    tail = row[-1]
    for c in row[-2 : 2 * wide - 1 : -1]:
        tail = c + (tail * top >> 64)
        assert tail < 1 << 64
    *above, total = (row[2 * i] << 64 | row[2 * i + 1] for i in range(wide))
    total += (tail * top >> 64) << 127 - narrow_scale
    for c in reversed(above):
        assert (total >> 64) + top < 1 << 64
        total = c + multiply_high(total, u)
    return total


def piece(function, wide, narrow, narrow_scale, bits):
    """The row of function(u), u in [0, 1/2], which it approximates to 2^-105. The relative error in C++ is below
    2^-bits."""
    count = wide + narrow
    nodes = [(1 + cos((2 * k + 1) * pi / (2 * count))) / 4 for k in range(count)]
    powers = matrix([[u**j for j in range(count)] for u in nodes])
    exact = lu_solve(powers, matrix([function(u) for u in nodes]))
    for k in range(4 * count + 1):
        u = mpf(k) / (8 * count)
        assert abs(mp.polyval(exact[::-1], u) - function(u)) < mpf(2) ** -105
    row = []
    for c in exact[:wide]:
        row += words(fixed(c, 127))
    tail = [fixed(c, narrow_scale) for c in exact[wide:]]
    # No carry in the steps: coefficients but the first are below 1/2, and the tail below 2^63.
    assert all(c >= 0 for c in tail) and sum(tail) < 1 << 64
    assert all(0 < word < 1 << 62 for word in row[2::2])
    row += tail
    for u in [0, 1 << 127] + [random.getrandbits(127) for _ in range(20)]:
        value = mp.ldexp(value_of(row, wide, narrow_scale, u), -127)
        assert abs(value / function(mp.ldexp(u, -128)) - 1) < mpf(2) ** -bits, u
    return row


random.seed(1)
with mp.workprec(300):
    run(
        __file__,
        {
            "arctan": [
                piece(lambda u: arctan_quotient((i + 1 - 2 * u) / 128), 5, 7, 97, 99.3) for i in range(128)
            ],
            "arcsine": [
                piece(lambda u: arcsine_quotient((i + 2 * u) / 512), 4, 6, 99, 100.6) for i in range(129)
            ],
        },
    )
