#!/usr/bin/python3
"""Makes the table of the error functions: one row of 16 coefficients for each piece of

    e^(x^2) erfc(x)       in x        from 1/2 to 8, pieces of 1/16
    x e^(x^2) erfc(x)     in 64/x^2   from 0 to 1, pieces of 1/16
    erf(x) / (2 x)        in x^2      from 0 to 1/4, one piece

about the middle of the piece, the whole of which is the unit. All three are completely monotone: derivatives alternate
in sign, so that the table holds absolute values. The first eight have 128 bits at scale 2^128, the others 64 at 2^100.
"""

import random

from common import fixed, mp, mpf, run, words

TERMS = 16
WIDE_TERMS = 8
NARROW_SCALE = 100
MASK = (1 << 64) - 1


def scaled_erfc(x):
    return mp.exp(x * x) * mp.erfc(x)


def far_erfc(v):
    """The second function; where erfc would underflow to nothing, by its asymptotic series."""
    if v > mpf(1) / 64:
        x = 8 / mp.sqrt(v)
        return x * scaled_erfc(x)
    total, term, n = mpf(0), 1 / mp.sqrt(mp.pi), 0
    while abs(term) > mpf(2) ** -200:
        total += term
        n += 1
        term *= -(2 * n - 1) * v / 128
    return total


def half_slope(u):
    return mp.erf(mp.sqrt(u)) / (2 * mp.sqrt(u)) if u > 0 else 1 / mp.sqrt(mp.pi)


def interpolant(f, middle, half_width):
    """The coefficients of the polynomial through f at the Chebyshev points, in (x - middle) / (2 half_width)."""
    nodes = [mp.cos(mp.pi * (2 * k + 1) / (2 * TERMS)) for k in range(TERMS)]
    values = [f(middle + half_width * x) for x in nodes]
    previous, current = [mpf(1)] + [mpf(0)] * (TERMS - 1), [mpf(0), mpf(1)] + [mpf(0)] * (TERMS - 2)
    total = [mp.fsum(values) / TERMS] + [mpf(0)] * (TERMS - 1)
    for j in range(1, TERMS):
        weight = 2 * mp.fsum(y * mp.cos(j * mp.pi * (2 * k + 1) / (2 * TERMS)) for k, y in enumerate(values)) / TERMS
        total = [a + weight * b for a, b in zip(total, current)]
        previous, current = current, [2 * a - b for a, b in zip([mpf(0)] + current[:-1], previous)]
    return [c * 2**k for k, c in enumerate(total)]


def row_of(f, middle, half_width):
    coefficients = [(-1) ** k * c for k, c in enumerate(interpolant(f, middle, half_width))]
    return [fixed(c, 128) for c in coefficients[:WIDE_TERMS]] + [fixed(c, NARROW_SCALE) for c in coefficients[WIDE_TERMS:]]


def multiply_high(a, b):
    """As in C++: without the product of the low words."""
    return (a >> 64) * (b >> 64) + ((a >> 64) * (b & MASK) >> 64) + ((a & MASK) * (b >> 64) >> 64)


def evaluate(row, t):
    """What the C++ computes at a distance of t 2^-128 pieces from the middle."""
    square = multiply_high(abs(t), abs(t))

    def half(first):
        narrow = 0
        for k in range(TERMS - 2 + first, WIDE_TERMS - 1, -2):
            narrow = row[k] + (narrow * (square >> 64) >> 64)
            assert narrow < 1 << 64
        wide = narrow * (square >> 64) >> NARROW_SCALE - 64
        for k in range(WIDE_TERMS - 2 + first, -1, -2):
            wide = row[k] + (wide if k == WIDE_TERMS - 2 + first else multiply_high(wide, square))
            assert wide < 1 << 128
        return wide
    even, odd = half(0), multiply_high(half(1), abs(t))
    result = even + odd if t < 0 else even - odd
    assert 0 < result < 1 << 128
    return result


def checked_row(f, middle, half_width, bits):
    """The row, whose relative error is below 2^-bits."""
    middle, half_width = mpf(middle), mpf(half_width)
    row = row_of(f, middle, half_width)
    assert all(0 <= c < 1 << (128 if k < WIDE_TERMS else 64) for k, c in enumerate(row))
    end = 1 << 127
    for t in [-end, end, 0, *(random.randint(-end, end) for _ in range(40))]:
        exact = f(middle + 2 * half_width * mp.ldexp(t, -128))
        error = mp.log(abs(mp.ldexp(evaluate(row, t), -128) / exact - 1), 2)
        assert error < -bits, (middle, t, error)
    return row


def main():
    random.seed(1)
    with mp.workprec(300):
        half = mpf(1) / 32
        rows = [checked_row(scaled_erfc, mpf(2 * i + 1) / 32, half, 103) for i in range(8, 128)]
        rows += [checked_row(far_erfc, mpf(2 * i + 1) / 32, half, 106) for i in range(16)]
        rows.append(checked_row(half_slope, mpf(1) / 8, mpf(1) / 8, 104))
    run(__file__, {"erfc_pieces": [[w for c in row[:WIDE_TERMS] for w in words(c)] + row[WIDE_TERMS:] for row in rows]})


main()
