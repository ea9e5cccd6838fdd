#!/usr/bin/python3
"""Makes the two tables of the logarithm. A number m in [1, 2) is multiplied by two table values c and r, so that

    m c      is in [1, 1 + 287 2^-16)       c = first[8 bits of m] has 11 fraction bits
    m c r    is in [1, 1 + 2^-15.9)         r = second[bits 9 to 16 of m c] has 20 fraction bits

and z = m c r - 1 is exact. Rows are c 2^29 or r 2^20, and -log c or -log r at scale 2^112. To the logarithms of the first
table -1 and BIAS times -log 2 are added, modulo 2^128: so C++ can add m c r and log 2 times an exponent without a sign.
"""

import random

from common import fixed, mp, mpf, multiply_high, run, words

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


def multiply_words(a, b):
    """The top word of a product."""
    return a * b >> 64


def log(m, exponent):
    """What C++ computes for m 2^(exponent - 63), at scale 2^112; asserts the ranges on the way."""
    c = FIRST[m >> 55 & 255] << 18
    j = (multiply_words(m, c) >> 12) - 65536
    assert 0 <= j < ROWS_OF_SECOND
    product = m * (c * SECOND[j])
    z = (product << 31) - (1 << 143)
    assert 0 <= z < 1 << 128, "z is below 2^-15"
    high, low = z >> 64, z & MASK64
    square = high * high
    half_square = (square >> 47) + (multiply_words(high, low) >> 46)
    q = THIRD - (high >> 17) + multiply_words(square >> 64, FIFTH - multiply_words(high, SIXTH))
    left, right = 2 * (square >> 64) + 3, 4 * multiply_words(high, q) + 3
    assert left < 1 << 64 and right < 1 << 64
    cube = multiply_words(left, right)
    total = (exponent + BIAS) * LN2 + LOG_FIRST[m >> 55 & 255] + LOG_SECOND[j] + product - half_square + cube & MASK128
    return total - (1 << 128 if total >> 127 else 0)


THIRD = (1 << 64) // 3
FIFTH = (1 << 34) // 5
SIXTH = (1 << 19) // 6


def log_near_1(mantissa, exponent, negative):
    """What C++ computes for ln(1 + t), where |t| = mantissa 2^(exponent - 127) < 2^-12, relative to |t| 2^-127."""
    z = mantissa >> -13 - exponent if exponent > -141 else 0
    square = multiply_high(z, z)
    z_top, square_top = z >> 64, square >> 64

    def odd(factor):
        value = multiply_words(z_top, factor) >> 12
        return -value if negative else value

    from_fourth = MASK64 // 4 - odd(MASK64 // 9 * 2)
    from_second = MASK64 // 3 - odd(MASK64 // 7 * 2) + (multiply_words(square_top, from_fourth) >> 24)
    q = MASK64 // 2 - odd(MASK64 // 5 * 2) + (multiply_words(square_top, from_second) >> 24)
    assert 0 <= from_fourth <= MASK64 and 0 <= from_second <= MASK64 and 0 <= q <= MASK64
    odd_part = (z >> 14) + (square_top * multiply_words(z_top, q) >> 38)
    even_part = (1 << 127) + (multiply_high(square, MASK128 // 3) >> 25)
    w = even_part + odd_part if negative else even_part - odd_part
    assert 1 << 126 < w < 1 << 128
    return mp.ldexp(multiply_high(mantissa, w), 1) / mantissa


def check_by_tables():
    """Both ends of all intervals, and random numbers: the error is below 2^-109.3 + 2^-113 |exponent|."""
    edges = [(256 + i << 55) + d for i in range(257) for d in (-1, 0)]
    edges += [(65536 + j << 47) + d for j in range(ROWS_OF_SECOND) for d in (-1, 0)]
    numbers = [m for m in edges if 1 << 63 <= m < 1 << 64] + [random.getrandbits(63) | 1 << 63 for _ in range(20000)]
    for m in numbers:
        for exponent in (0, -1, 16383, -16445):
            error = abs(mp.ldexp(log(m, exponent), -SCALE) - mp.log(mp.ldexp(m, -63)) - exponent * mp.log(2))
            assert error < mpf(2) ** -109.3 + mp.ldexp(abs(exponent), -113), (m, exponent)


def check_near_1():
    """The relative error is below 2^-98.6 from 2^-13 to 2^-12, and a quarter of that below."""
    for k in range(20000):
        exponent = -13 if k % 2 else -14 - k // 2 % 80
        mantissa = random.getrandbits(127) | 1 << 127 if k > 1 else MASK128
        negative = k // 2 % 2 == 1
        t = mp.ldexp(mantissa, exponent - 127) * (-1 if negative else 1)
        error = abs(log_near_1(mantissa, exponent, negative) * t / mp.log1p(t) - 1)
        assert error < mpf(2) ** (-98.6 if exponent == -13 else -100.6), (k, mp.log(error, 2))


def main():
    random.seed(1)
    mp.prec = 300
    check_by_tables()
    check_near_1()
    inverses = {
        name: words(int(mp.ldexp(1 / mp.log(base), scale)), 4)[::-1]
        for name, base, scale in (("kBase2", 2, 255), ("kBase10", 10, 257))
    }
    run(
        __file__,
        tables={
            "log_first": [[c << 18, *words(log)] for c, log in zip(FIRST, LOG_FIRST)],
            "log_second": [[r, *words(log)] for r, log in zip(SECOND, LOG_SECOND)],
        },
        constants={"log_kernel.h": {"kLogOf2": words(LN2)}, "../log2_log10.cpp": inverses},
    )


main()
