#!/usr/bin/python3
"""The tables of qorvex/base/special/detail/gamma_wide.cpp.

gamma      Q(u) = (Gamma(x) - 1) / ((x - 1) (x - 2)) for u = 2 - x in [0, 1], in pieces of 1/64: the coefficients of a
           polynomial of degree 11 in 64 u - i, the first six at scale 2^128 with two words each, the rest at 2^101
stirling   Stirling's series of ln Gamma in 1/x^2 for x >= 16: the sizes of its coefficients, which alternate in sign,
           times 2^-7k, four at scale 2^128 and ten at 2^102

usage: gamma_tables.py [--write]
"""

from common import fixed, run, words
from mpmath import bernoulli, cos, gamma, lu_solve, matrix, mpf, pi, polyval

PIECES = 64
DEGREE = 11
WIDE = 6
SHORT_SCALE = 101
STIRLING_TERMS = 14
STIRLING_WIDE = 4
STIRLING_SHORT_SCALE = 102


def quotient(u):
    x = 2 - u
    return (gamma(x) - 1) / ((x - 1) * (x - 2))


def interpolate(piece):
    """The polynomial through the Chebyshev nodes of a piece, from the constant term up."""
    nodes = [(1 - cos(pi * (2 * j + 1) / (2 * (DEGREE + 1)))) / 2 for j in range(DEGREE + 1)]
    powers = matrix(DEGREE + 1, DEGREE + 1)
    values = matrix(DEGREE + 1, 1)
    for row, node in enumerate(nodes):
        values[row] = quotient((piece + node) / PIECES)
        for k in range(DEGREE + 1):
            powers[row, k] = node**k
    return list(lu_solve(powers, values))


def gamma_rows():
    rows = []
    for piece in range(PIECES):
        exact = interpolate(piece)
        wide = [fixed(c, 128) for c in exact[:WIDE]]
        short = [fixed(c, SHORT_SCALE) for c in exact[WIDE:]]
        # All are positive, so that Horner's scheme needs no signs; nothing overflows.
        assert min(wide) > 0 and min(short) > 0 and sum(short) < 2**64
        rounded = [mpf(c) / mpf(2) ** 128 for c in wide] + [mpf(c) / mpf(2) ** SHORT_SCALE for c in short]
        for j in range(100):
            h = (j + mpf(1) / 3) / 100
            error = abs(polyval(rounded[::-1], h) - quotient((piece + h) / PIECES))
            assert error < mpf(2) ** -96, (piece, j)
        rows.append([word for c in wide for word in words(c)] + short)
    return rows


def stirling_rows():
    sizes = [abs(bernoulli(2 * k + 2)) / ((2 * k + 2) * (2 * k + 1)) / mpf(2) ** (7 * k) for k in range(STIRLING_TERMS + 1)]
    # Each is smaller than the one before, so no difference is negative.
    assert all(b < a / 2 for a, b in zip(sizes, sizes[1:]))
    # What is left out, at 16.
    assert sizes[-1] / mpf(2) ** STIRLING_TERMS / 16 < mpf(2) ** -96
    short = [[fixed(c, STIRLING_SHORT_SCALE)] for c in sizes[STIRLING_WIDE:-1]]
    assert max(short)[0] < 2**64
    return [words(fixed(c, 128)) for c in sizes[:STIRLING_WIDE]], short


stirling_wide, stirling_short = stirling_rows()
run(__file__, {"gamma": gamma_rows(), "stirling_wide": stirling_wide, "stirling_short": stirling_short})
