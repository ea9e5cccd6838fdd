#!/usr/bin/python3
"""Makes the table of the error functions, with one row for each piece of

    e^(x^2) erfc(x) / 2       in x        from 0 to 8, pieces of 1/16
    x e^(x^2) erfc(x) / 2     in 64/x^2   from 0 to 1, pieces of 1/16
    erf(x) / (8 x)            in x^2      from 0 to 1/4, one piece
"""

from common import mp, mpf, run, words
from monotone_pieces import row_of

NARROW_SCALE = 91


def scaled_erfc(x):
    return mp.exp(x * x) * mp.erfc(x) / 2


def far_erfc(v):
    """The second function; where erfc would be too small, by its asymptotic series."""
    if v > mpf(1) / 64:
        x = 8 / mp.sqrt(v)
        return x * scaled_erfc(x)
    total, term, n = mpf(0), 1 / (2 * mp.sqrt(mp.pi)), 0
    while abs(term) > mpf(2) ** -200:
        total += term
        n += 1
        term *= -(2 * n - 1) * v / 128
    return total


def eighth_of_slope(u):
    return mp.erf(mp.sqrt(u)) / (8 * mp.sqrt(u)) if u > 0 else 1 / (4 * mp.sqrt(mp.pi))


def main():
    with mp.workprec(300):
        width = mpf(1) / 16
        rows = [row_of(scaled_erfc, (i + mpf(1) / 2) * width, width, NARROW_SCALE, 91) for i in range(128)]
        rows += [row_of(far_erfc, (i + mpf(1) / 2) * width, width, NARROW_SCALE, 91) for i in range(16)]
        rows.append(row_of(eighth_of_slope, mpf(1) / 8, mpf(1) / 4, NARROW_SCALE, 91))
    two_over_root_pi = words(int(mp.floor(mp.ldexp(2 / mp.sqrt(mp.pi), 255))), 4)
    run(__file__, {"erfc_pieces": rows}, {"../erf.cpp": {"kTwoOverRootPi": two_over_root_pi[::-1]}})


main()
