#!/usr/bin/python3
"""The bits of 2/pi from which the trigonometric functions take a window.

Two words of zeros come first: the window of the smallest argument that is reduced begins there.
"""

from math import log2

from closest_angles import closest_angles
from common import run, words
from mpmath import mp

# The largest exponent is 16383. Its window of six words begins at bit 16383 + 63 and ends in word 262.
WORDS = 263
assert (16383 + 63) // 64 + 6 == WORDS - 1

# What the error bounds of the reduction rest on.
assert log2(closest_angles()[0][0]) > -76.2

with mp.workprec(64 * WORDS + 100):
    bits = int(mp.floor(mp.ldexp(2 / mp.pi, 64 * (WORDS - 2))))

run(__file__, {"two_over_pi": [[word] for word in words(bits, WORDS)]})
