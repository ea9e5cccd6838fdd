"""Pieces of atan and asin, as polynomials whose terms are all positive.

With z the square of the argument: atan(sqrt z) / sqrt z on [0, 1], 128 pieces expanded at the right end, and
asin(sqrt z) / sqrt z on [0, 1/4], 129 pieces of width 1/512 expanded at the left end. u in [0, 1/2] is the distance
from that end in units of two widths: every step of Horner's scheme halves what is lost before it. A polynomial
interpolates at the zeros of Chebyshev's polynomial. A row is the coefficients of 1, u, u^2 ... : first those of 128
bits at scale 2^127, then those of 64 bits at their own scale.
"""

from common import fixed, run, words
from mpmath import asin, atan, cos, lu_solve, matrix, mp, mpf, pi, sqrt


def arctan_quotient(z):
    return atan(sqrt(z)) / sqrt(z) if z else mpf(1)


def arcsine_quotient(z):
    return asin(sqrt(z)) / sqrt(z) if z else mpf(1)


def piece(function, wide, narrow, narrow_scale, bound):
    """The row of function(u), u in [0, 1/2], which it approximates to the bound."""
    count = wide + narrow
    nodes = [(1 + cos((2 * k + 1) * pi / (2 * count))) / 4 for k in range(count)]
    powers = matrix([[u**j for j in range(count)] for u in nodes])
    exact = lu_solve(powers, matrix([function(u) for u in nodes]))
    for k in range(4 * count + 1):
        u = mpf(k) / (8 * count)
        assert abs(mp.polyval(exact[::-1], u) - function(u)) < bound
    row = []
    for c in exact[:wide]:
        row += words(fixed(c, 127))
    tail = [fixed(c, narrow_scale) for c in exact[wide:]]
    # No carry in the steps: coefficients but the first are below 1/2, and the tail below 2^63.
    assert all(c >= 0 for c in tail) and sum(tail) < 1 << 64
    assert all(0 < word < 1 << 62 for word in row[2::2])
    return row + tail


with mp.workprec(300):
    run(
        __file__,
        {
            "arctan": [
                piece(lambda u: arctan_quotient((i + 1 - 2 * u) / 128), 5, 7, 97, mpf(2) ** -105) for i in range(128)
            ],
            "arcsine": [
                piece(lambda u: arcsine_quotient((i + 2 * u) / 512), 4, 6, 99, mpf(2) ** -105) for i in range(129)
            ],
        },
    )
