#!/usr/bin/python3
"""Makes the two tables of the logarithm. A number m in [1, 2) is multiplied by two table values c and r, so that

    m c      is in [1, 1 + 287 2^-16)       c = first[8 bits of m] has 11 fraction bits
    m c r    is in [1, 1 + 2^-15.9)         r = second[bits 9 to 16 of m c] has 20 fraction bits

and z = m c r - 1 is exact. Rows are c 2^60 or r 2^20, and -log c or -log r at scale 2^113. To the logarithms of the first
table BIAS times -log 2 is added, modulo 2^128, so that C++ can add log 2 times an exponent without a sign.
"""

import random

from common import fixed, mp, mpf, run, words

SCALE = 113
BIAS = 1 << 15
MASK64 = (1 << 64) - 1
MASK128 = (1 << 128) - 1
LN2 = fixed(mp.log(2), SCALE)
ROWS_OF_SECOND = 287


def ceiling_of_reciprocal(numerator, denominator, bits):
    """2^bits denominator / numerator, rounded up."""
    return -(-(denominator << bits) // numerator)


FIRST = [ceiling_of_reciprocal(256 + i, 256, 11) for i in range(256)]
SECOND = [ceiling_of_reciprocal(65536 + j, 65536, 20) for j in range(ROWS_OF_SECOND)]
LOG_FIRST = [-fixed(mp.log(mpf(c) / 2048), SCALE) - BIAS * LN2 & MASK128 for c in FIRST]
LOG_SECOND = [-fixed(mp.log(mpf(r) / 2**20), SCALE) for r in SECOND]


def multiply_high(a, b):
    """Two words, as in C++."""
    return a * b >> 64


def log(m, exponent):
    """What C++ computes for m 2^(exponent - 63), at scale 2^113; asserts the ranges on the way."""
    i = m >> 55 & 255
    product = m * (FIRST[i] << 49)
    assert product >> 123 == 1
    j = (product >> 107) - 65536
    assert 0 <= j < ROWS_OF_SECOND
    exact = product * SECOND[j] - (1 << 143)
    assert 0 <= exact < 1 << 128, "z is below 2^-15"
    z = product * SECOND[j] & MASK128
    assert z == exact
    high, low = z >> 64, z & MASK64
    square = high * high + 2 * multiply_high(high, low)
    assert square < 1 << 128
    q = THIRD - (high >> 17) + multiply_high(square >> 64, FIFTH - multiply_high(high, SIXTH))
    cube = (square >> 64) * multiply_high(high, q)
    assert cube < 1 << 126
    series = z - (square >> 16) + (cube >> 30)
    total = (exponent + BIAS) * LN2 + LOG_FIRST[i] + LOG_SECOND[j] + (series >> 30) & MASK128
    return total - (1 << 128 if total >> 127 else 0)


THIRD = (1 << 64) // 3
FIFTH = (1 << 34) // 5
SIXTH = (1 << 19) // 6


def check_first_stage():
    """Both ends of all intervals, and random numbers: the error is below 2^-109.3 + 2^-114 |exponent|."""
    edges = [(256 + i << 55) + d for i in range(257) for d in (-1, 0)]
    edges += [(65536 + j << 47) + d for j in range(ROWS_OF_SECOND) for d in (-1, 0)]
    numbers = [m for m in edges if 1 << 63 <= m < 1 << 64] + [random.getrandbits(63) | 1 << 63 for _ in range(20000)]
    worst = 0
    for m in numbers:
        for exponent in (0, -1, 16383, -16445):
            error = abs(mp.ldexp(log(m, exponent), -SCALE) - mp.log(mp.ldexp(m, -63)) - exponent * mp.log(2))
            worst = max(worst, error - mp.ldexp(abs(exponent), -114))
    assert worst < mpf(2) ** -109.3, mp.log(worst, 2)



def main():
    random.seed(1)
    mp.prec = 200
    check_first_stage()
    run(
        __file__,
        {
            "log_first": [[c << 49, *words(log)] for c, log in zip(FIRST, LOG_FIRST)],
            "log_second": [[r, *words(log)] for r, log in zip(SECOND, LOG_SECOND)],
        },
    )


main()
