"""Tables of completely monotone functions, whose derivatives alternate in sign, as polynomials on pieces.

A row has the absolute values of 16 coefficients about the middle of a piece, the whole of which is the unit: six of
128 bits at scale 2^128, and ten of 64 at a scale of the table's. C++ evaluates them in monotone_piece.h.
"""

import random

from common import fixed, mp, mpf, multiply_high, words

TERMS = 16
WIDE_TERMS = 6


def interpolant(f, middle, width):
    """The coefficients of the polynomial through f at the Chebyshev points, in (x - middle) / width."""
    nodes = [mp.cos(mp.pi * (2 * k + 1) / (2 * TERMS)) for k in range(TERMS)]
    values = [f(middle + width * x / 2) for x in nodes]
    previous, current = [mpf(1)] + [mpf(0)] * (TERMS - 1), [mpf(0), mpf(1)] + [mpf(0)] * (TERMS - 2)
    total = [mp.fsum(values) / TERMS] + [mpf(0)] * (TERMS - 1)
    for j in range(1, TERMS):
        weight = 2 * mp.fsum(y * mp.cos(j * mp.pi * (2 * k + 1) / (2 * TERMS)) for k, y in enumerate(values)) / TERMS
        total = [a + weight * b for a, b in zip(total, current)]
        previous, current = current, [2 * a - b for a, b in zip([mpf(0)] + current[:-1], previous)]
    return [c * 2**k for k, c in enumerate(total)]


def evaluate(row, t, narrow_scale):
    """What the C++ computes at t 2^-128 from the middle."""
    square = multiply_high(abs(t), abs(t))

    def half(first):
        narrow = 0
        for k in range(TERMS - 2 + first, WIDE_TERMS - 1, -2):
            narrow = row[k] + (narrow * (square >> 64) >> 64)
            assert narrow < 1 << 64
        wide = row[WIDE_TERMS - 2 + first] + (narrow * (square >> 64) >> narrow_scale - 64)
        for k in range(WIDE_TERMS - 4 + first, -1, -2):
            wide = row[k] + multiply_high(wide, square)
            assert wide < 1 << 128
        return wide
    even, odd = half(0), multiply_high(half(1), abs(t))
    result = even + odd if t < 0 else even - odd
    assert 0 < result < 1 << 128
    return result


def row_of(f, middle, width, narrow_scale, bits, final=lambda y: y):
    """The words of a row. The relative error of final(f) is below 2^-bits at both ends and at random points."""
    coefficients = [(-1) ** k * c for k, c in enumerate(interpolant(f, middle, width))]
    row = [fixed(c, 128 if k < WIDE_TERMS else narrow_scale) for k, c in enumerate(coefficients)]
    assert all(0 <= c < 1 << (128 if k < WIDE_TERMS else 64) for k, c in enumerate(row))
    end = 1 << 127
    random.seed(1)
    for t in [-end, end, 0, *(random.randint(-end, end) for _ in range(30))]:
        exact = final(f(middle + width * mp.ldexp(t, -128)))
        error = final(mp.ldexp(evaluate(row, t, narrow_scale), -128)) / exact - 1
        assert abs(error) < mpf(2) ** -bits, (middle, t, mp.log(abs(error), 2))
    return [w for c in row[:WIDE_TERMS] for w in words(c)] + row[WIDE_TERMS:]
