#!/usr/bin/python3
"""Makes the table of the normal quantile z, at which the upper tail is p, with one row for each piece of

    z / (4 q)        for q = 1/2 - p, in -q^2, from q^2 = 0 to 9/64, pieces of 1/64
    1 - z / 2^s      in L = -ln p, from 2 to 2^14, eight pieces between powers of two; z < 2^s
"""

from common import mp, mpf, run
from monotone_pieces import row_of

NARROW_SCALE = 84


def tail_quantile(log_tail):
    """By Newton's method for the logarithm of the tail."""
    z = mp.sqrt(2 * log_tail - mp.log(4 * mp.pi * log_tail)) if log_tail > 2 else mpf(2) / 3
    while True:
        tail = mp.erfc(z / mp.sqrt(2)) / 2
        step = (mp.log(tail) + log_tail) * tail / mp.npdf(z)
        z += step
        if abs(step) < mpf(2) ** -200:
            return z


def central(minus_square):
    """z / (4 q)."""
    if minus_square > -mpf(2) ** -240:
        return mp.sqrt(2 * mp.pi) / 4
    q = mp.sqrt(-minus_square)
    return tail_quantile(-mp.log(mpf(1) / 2 - q)) / (4 * q)


def binade_rows(k):
    s = (k + 3) // 2
    width = mpf(2) ** (k - 3)
    return [row_of(lambda x: 1 - tail_quantile(x) / 2**s, (8 + i + mpf(1) / 2) * width, width, NARROW_SCALE, 83,
                   lambda y: 1 - y) for i in range(8)]


def main():
    with mp.workprec(400):
        width = mpf(1) / 64
        rows = [row_of(central, -(i + mpf(1) / 2) * width, width, NARROW_SCALE, 83) for i in range(9)]
        for k in range(1, 14):
            rows += binade_rows(k)
    run(__file__, {"normal_quantile_pieces": rows})


main()
