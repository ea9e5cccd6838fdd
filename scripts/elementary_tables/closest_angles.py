#!/usr/bin/python3
"""The extended numbers closest to multiples of pi/2, over all exponents.

For x = m 2^(e - 63), m < 2^64, the distance of x 2/pi from an integer is smallest where m is the denominator of a
convergent of 2^(e - 63) 2/pi (Kahan 1983, "Minimizing q m - n").

usage: closest_angles.py [COUNT]     prints significand, exponent and log2 of the distance in quadrants, closest first
"""

import sys
from math import log2

from mpmath import mp

LARGEST = 16383
PRECISION = 400


def convergents(fraction, limit):
    """(q, |q f - p|) of the convergents p/q, q < limit, of f = fraction 2^-PRECISION < 1."""
    one = 1 << PRECISION
    before, q = 0, 1
    numerator, denominator = fraction, one
    while True:
        distance = q * fraction % one
        yield q, min(distance, one - distance) / one
        quotient, rest = divmod(denominator, numerator)
        before, q = q, before + quotient * q
        if q >= limit:
            return
        denominator, numerator = numerator, rest


def closest_angles():
    """(distance, significand, exponent), closest first."""
    with mp.workprec(LARGEST + PRECISION + 100):
        bits = int(mp.floor(mp.ldexp(2 / mp.pi, LARGEST + PRECISION)))
    found = set()
    for exponent in range(-1, LARGEST + 1):
        # The fraction of 2^(exponent - 63) 2/pi; bits has zeros in front below exponent 63.
        fraction = bits >> LARGEST - exponent + 63
        fraction &= (1 << PRECISION) - 1
        for q, distance in convergents(fraction, 1 << 64):
            shift = 64 - q.bit_length()
            # Numbers below pi/4 are close to 0.
            if exponent - shift >= 0:
                found.add((distance, q << shift, exponent - shift))
    return sorted(found)


if __name__ == "__main__":
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 100
    for distance, significand, exponent in closest_angles()[:count]:
        print(f"{significand:016x} {exponent} {log2(distance):.2f}")
