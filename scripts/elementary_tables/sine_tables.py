#!/usr/bin/python3
"""Makes the table of sin and cos of i/512 up to pi/4, at scale 2^127, and checks the series of the sine and the tangent.
"""

import random

from common import fixed, multiply_high, run, words
from mpmath import mp, mpf

STEP = mpf(1) / 512
LAST = int(mp.nint(mp.pi / 4 / STEP))
LARGEST_H = 1 << 117  # 2^-10 at scale 2^127


def ratio(a, b, scale):
    return ((a << scale) + b // 2) // b


def word(x):
    """x, which fits a word."""
    assert 0 <= x < 1 << 64
    return x


def multiply_words(a, b):
    return word(a) * word(b) >> 64


def multiply_small(a, b):
    """MultiplyHighOfSmall."""
    word((a >> 64) + (b >> 64))
    return multiply_high(a, b)


def powers(h):
    """h^2/2 at scale 2^128, h^2 at 2^83 and h^4 at 2^102, as in C++."""
    half_square = multiply_small(h, 2 * h)
    square = word(half_square >> 44)
    return half_square, square, multiply_words(square, square)


def series(h):
    """SeriesOf: 1 - cos h and 1 - sin h / h at scale 2^128."""
    half_square, square, fourth = powers(h)
    tails = [
        word(ratio(1, a, scale) - multiply_words(square, ratio(1, b, scale - 19)))
        + multiply_words(fourth, ratio(1, c, scale - 38))
        for a, b, c, scale in ((24, 720, 40320, 68), (120, 5040, 362880, 70))
    ]
    third = ratio(1, 3, 64)
    return (
        half_square - (multiply_words(fourth, tails[0]) << 22),
        multiply_small(half_square, third << 64 | third) - (multiply_words(fourth, tails[1]) << 20),
    )


def tangent_series(h):
    """TangentSeries: tan h / h - 1 at scale 2^128."""
    half_square, square, fourth = powers(h)
    tail = (
        ratio(2, 15, 66)
        + multiply_words(square, ratio(17, 315, 47))
        + multiply_words(fourth, ratio(62, 2835, 28))
    )
    two_thirds = 2 * ratio(1, 3, 64)
    return multiply_small(half_square, two_thirds << 64 | two_thirds) + (multiply_words(fourth, tail) << 24)


def check_series():
    """The errors that the comments in C++ state, at the largest h and at random ones, many of them small."""
    random.seed(1)
    for h in [LARGEST_H] + [random.randint(1, LARGEST_H) >> k % 20 // 2 | 1 for k in range(20000)]:
        exact = mp.ldexp(h, -127)
        cosine_loss, sine_loss = (mp.ldexp(x, -128) for x in series(h))
        tangent = mp.ldexp(tangent_series(h), -128)
        assert abs(cosine_loss - (1 - mp.cos(exact))) < mpf(2) ** -104.4, h
        assert abs(sine_loss - (1 - mp.sin(exact) / exact)) < mpf(2) ** -106, h
        assert abs(tangent - (mp.tan(exact) / exact - 1)) < mpf(2) ** -102.5 + mpf(2) ** -106.8, h


check_series()
run(
    __file__,
    {
        "sine": [
            words(fixed(mp.sin(i * STEP), 127)) + words(fixed(mp.cos(i * STEP), 127)) for i in range(LAST + 1)
        ]
    },
    {
        "angle.h": {"kHalfPi": words(int(mp.floor(mp.ldexp(mp.pi, 126))))},
        "wide256.cpp": {"kPi256": words(int(mp.floor(mp.ldexp(mp.pi, 254))), 4)[::-1]},
    },
)
