#!/usr/bin/python3
"""Makes the two tables of the logarithm. A number m in [1, 2) is multiplied by two table values c and r, so that

    m c      is in [1, 1 + 287 2^-16)       c = first[8 bits of m] has 11 fraction bits
    m c r    is in [1, 1 + 2^-15.9)         r = second[bits 9 to 16 of m c] has 20 fraction bits

and z = m c r - 1 is exact. Rows are c 2^29 or r 2^20, and -log c or -log r at scale 2^112. To the logarithms of the first
table -1 and BIAS times -log 2 are added, modulo 2^128: so C++ can add m c r and log 2 times an exponent without a sign.
"""

import random

from common import fixed, mp, mpf, run, words

SCALE = 112
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
LOG_FIRST = [-fixed(mp.log(mpf(c) / 2048), SCALE) - (1 << SCALE) - BIAS * LN2 & MASK128 for c in FIRST]
LOG_SECOND = [-fixed(mp.log(mpf(r) / 2**20), SCALE) for r in SECOND]


def multiply_high(a, b):
    """Two words, as in C++."""
    return a * b >> 64


def log(m, exponent):
    """What C++ computes for m 2^(exponent - 63), at scale 2^112; asserts the ranges on the way."""
    c = FIRST[m >> 55 & 255] << 18
    j = (multiply_high(m, c) >> 12) - 65536
    assert 0 <= j < ROWS_OF_SECOND
    product = m * (c * SECOND[j])
    z = (product << 31) - (1 << 143)
    assert 0 <= z < 1 << 128, "z is below 2^-15"
    high, low = z >> 64, z & MASK64
    square = high * high
    half_square = (square >> 47) + (multiply_high(high, low) >> 46)
    q = THIRD - (high >> 17) + multiply_high(square >> 64, FIFTH - multiply_high(high, SIXTH))
    left, right = 2 * (square >> 64) + 3, 4 * multiply_high(high, q) + 3
    assert left < 1 << 64 and right < 1 << 64
    cube = multiply_high(left, right)
    total = (exponent + BIAS) * LN2 + LOG_FIRST[m >> 55 & 255] + LOG_SECOND[j] + product - half_square + cube & MASK128
    return total - (1 << 128 if total >> 127 else 0)


THIRD = (1 << 64) // 3
FIFTH = (1 << 34) // 5
SIXTH = (1 << 19) // 6


def check_first_stage():
    """Both ends of all intervals, and random numbers: the error is below 2^-109.3 + 2^-113 |exponent|."""
    edges = [(256 + i << 55) + d for i in range(257) for d in (-1, 0)]
    edges += [(65536 + j << 47) + d for j in range(ROWS_OF_SECOND) for d in (-1, 0)]
    numbers = [m for m in edges if 1 << 63 <= m < 1 << 64] + [random.getrandbits(63) | 1 << 63 for _ in range(20000)]
    worst = 0
    for m in numbers:
        for exponent in (0, -1, 16383, -16445):
            error = abs(mp.ldexp(log(m, exponent), -SCALE) - mp.log(mp.ldexp(m, -63)) - exponent * mp.log(2))
            worst = max(worst, error - mp.ldexp(abs(exponent), -113))
    assert worst < mpf(2) ** -109.3, mp.log(worst, 2)
    print(mp.log(worst,2))



def main():
    random.seed(1)
    mp.prec = 200
    check_first_stage()
    run(
        __file__,
        {
            "log_first": [[c << 18, *words(log)] for c, log in zip(FIRST, LOG_FIRST)],
            "log_second": [[r, *words(log)] for r, log in zip(SECOND, LOG_SECOND)],
        },
    )


main()
