#!/usr/bin/python3
"""x^(-1/3) on [1, 2) in 64 pieces, for the first 30 bits of a cube root.

A piece of width 2^-6 is a polynomial of degree 3 in the distance u from its right end, in units of the width: so all
terms are positive. It interpolates at the zeros of Chebyshev's polynomial, and is lowered so that it stays below
x^(-1/3). Scale 2^64.
"""

from common import fixed, run, words
from mpmath import cbrt, cos, lu_solve, matrix, mp, mpf, pi

PIECES = 64
DEGREE = 3
LOWERED = mpf(2) ** -33


def inverse_root(piece, u):
    return 1 / cbrt(1 + (piece + 1 - u) / mpf(PIECES))


def coefficients(piece):
    count = DEGREE + 1
    nodes = [(1 + cos((2 * k + 1) * pi / (2 * count))) / 2 for k in range(count)]
    powers = matrix([[u**j for j in range(count)] for u in nodes])
    values = matrix([inverse_root(piece, u) - LOWERED for u in nodes])
    return [fixed(c, 64) for c in lu_solve(powers, values)]


def checked(piece):
    """The coefficients, after a look at the error and at that of a cube root, 1 - x y^3, for y cut off at 32 bits."""
    row = coefficients(piece)
    for k in range(65):
        u = mpf(k) / 64
        value = mp.ldexp(sum(c * u**j for j, c in enumerate(row)), -64)
        exact = inverse_root(piece, u)
        assert mpf(2) ** -34.5 < exact - value < mpf(2) ** -32.3
        # 3 (1 + 2^-32.3) / 2^32 and what the products lose.
        assert 3 * (mpf(2) ** -32 + exact - value) / exact < mpf(2) ** -29.3
    return row


with mp.workprec(200):
    rows = [checked(piece) for piece in range(PIECES)]
    assert all(0 <= c < 1 << 64 for row in rows for c in row)
    powers_of_root = [words(fixed(mp.root(2**j, 3), 127)) for j in range(3)]

run(__file__, {"inverse_cube_root": rows, "roots_of_powers": powers_of_root})
