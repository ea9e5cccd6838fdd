"""sin and cos of i/512 up to pi/4, at scale 2^127, and the bounds of the sine kernel's intermediate values."""

from common import fixed, run, words
from mpmath import mp, mpf

STEP = mpf(1) / 512
LAST = int(mp.nint(mp.pi / 4 / STEP))


def check_series():
    """h at its largest, 2^-10: every fixed-point number fits its word, and what the series leave out is small."""
    h = STEP / 2
    square = mp.ldexp(h**2, 146)
    assert mp.ldexp(h, 137) <= mpf(2) ** 127 and square <= mpf(2) ** 126
    q = mp.ldexp(square, -64)
    fourth = mp.ldexp(q * q, -64)
    assert fourth <= mpf(2) ** 60
    for denominator, scale in ((24, 68), (120, 70)):
        assert mpf(2) ** 63 < mp.ldexp(mpf(1) / denominator, scale) < mpf(2) ** 64
        assert mp.ldexp(mp.ldexp(h**4, 100) / denominator, scale) < mpf(2) ** 128
    versed = 1 - mp.cos(h) - (h**2 / 2 - h**4 / 24 + h**6 / 720 - h**8 / 40320)
    shrink = 1 - mp.sin(h) / h - (h**2 / 6 - h**4 / 120 + h**6 / 5040)
    assert abs(versed) < mpf(2) ** -121 and abs(shrink) < mpf(2) ** -98


check_series()
run(
    __file__,
    {
        "sine": [
            words(fixed(mp.sin(i * STEP), 127)) + words(fixed(mp.cos(i * STEP), 127)) for i in range(LAST + 1)
        ]
    },
)
