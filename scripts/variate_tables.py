#!/usr/bin/python3
"""Makes tests/data/tables/variate_sums.csv: what 20,000 variates of each kind draw, and their sum to the last bit.

The methods are written down here once more, from the articles that the headers of qorvex/random name. MPFR rounds each
operation and each function to 64 bits, as the library does on every processor, in the same order of operations.

usage: variate_tables.py [--write]    without --write, the status is 1 unless the table is what it would write
"""

import sys
from pathlib import Path

import gmpy2
from gmpy2 import acos, cos, exp, lngamma, log, log1p, mpfr, sqrt

gmpy2.set_context(gmpy2.context(precision=64, emax=16384, emin=-16444, subnormalize=True))

TABLE = Path(__file__).resolve().parent.parent / "tests/data/tables/variate_sums.csv"
COUNT = 20000
TINY, HUGE = mpfr("5e-324"), mpfr("1.7e308")
PI = gmpy2.const_pi()


def mersenne_twister(seed):
    """The words of MT19937-64 (Nishimura 2000)."""
    mask = (1 << 64) - 1
    state = [seed]
    for i in range(1, 312):
        state.append((6364136223846793005 * (state[-1] ^ state[-1] >> 62) + i) & mask)
    while True:
        for i in range(312):
            word = state[i] >> 31 << 31 | state[(i + 1) % 312] & (1 << 31) - 1
            state[i] = state[(i + 156) % 312] ^ word >> 1 ^ (0xB5026F5AA96619E9 if word & 1 else 0)
        for word in state:
            word ^= word >> 29 & 0x5555555555555555
            word ^= word << 17 & 0x71D67FFFEDA60000
            word ^= word << 37 & 0xFFF7EEE000000000
            yield word ^ word >> 43


class Source:
    """Uniform values, which all variates share."""

    def __init__(self):
        self.words = mersenne_twister(5489)
        self.values = []
        self.drawn = 0

    def restart(self):
        self.drawn = 0

    def __call__(self):
        if self.drawn == len(self.values):
            self.values.append(gmpy2.div_2exp(mpfr(next(self.words)), 64))
        self.drawn += 1
        return self.values[self.drawn - 1]


def power(x, y):
    """XtoY: small whole exponents are products."""
    if 0 <= y <= 8 and y == int(y):
        product = mpfr(1)
        for _ in range(int(y)):
            product *= x
        return product
    return x**y


def normal(s):
    a, b, c, d, e = (mpfr(t) for t in ("1.7156", "0.449871", "0.386595", "0.196", "0.25472"))
    accept, reject = mpfr("0.27597"), mpfr("0.27846")
    while True:
        u = s()
        v = (s() - mpfr("0.5")) * a
        x = u - b
        y = abs(v) + c
        q = x * x + y * (d * y - e * x)
        if q < accept or (q <= reject and u * u * (log(u) * -4) > v * v):
            return v / u


def exponential(s):
    u = s()
    while not u > TINY:
        u = s()
    return -log(u)


def cauchy(s):
    while True:
        w1 = 2 * (s() - mpfr("0.5"))
        w2 = 2 * (s() - mpfr("0.5"))
        if abs(w2) > TINY and w1 * w1 + w2 * w2 < 1:
            return w1 / w2


def marsaglia_tsang(shape):
    d = shape - mpfr("0.3333333333333333")
    c = 1 / sqrt(9 * d)

    def draw(s):
        while True:
            x = normal(s)
            root = 1 + c * x
            v = root * root * root
            if not v > 0:
                continue
            u = s()
            square = x * x
            if u < 1 - mpfr("0.0331") * (square * square):
                return d * v
            excess = log1p(v - 1) - (v - 1) if v > mpfr("0.5") else 1 - v + log(v)
            if log(u) < mpfr("0.5") * square + d * excess:
                return d * v

    return draw


def ahrens_dieter(shape):
    a = 1 - shape
    p = a / (a + shape * exp(-a))
    c = 1 / shape
    zero = p * power(TINY / a, shape)
    d = a * log(a)

    def draw(s):
        while True:
            r = s()
            if r > p:
                x = a - log((1 - r) / (1 - p))
                w = a * log(x) - d
            elif r > zero:
                x = w = a * power(r / p, c)
            else:
                return mpfr(0)
            r = s()
            if 1 - r <= w and r > 0 and (r * (w + 1) >= 1 or -log(r) <= w):
                continue
            return x

    return draw


def gamma(shape):
    return marsaglia_tsang(shape) if shape > 1 else ahrens_dieter(shape) if shape < 1 else exponential


def chi_square(df):
    half = gamma(df / 2)
    return lambda s: 2 * half(s)


def weibull(a):
    exponent = 1 / a
    return lambda s: power(exponential(s), exponent)


def student_t(df):
    c = mpfr("-0.25") * (df + 1)
    a = 4 / power(1 + 1 / df, c)
    f = 16 / a
    b = power((df + 1) / (df - 1), c) * sqrt(2 * df / (df - 1)) if df > 1 else mpfr(1)

    def draw(s):
        while True:
            u = s()
            while u <= 0:
                u = s()
            x = b * (2 * s() - 1) / u
            q = x * x
            if q <= 5 - a * u or (u * (q + 3) <= f and u <= power(1 + q / df, c)):
                return x

    return draw


def log_normal(mean, std_dev):
    deviation = sqrt(log(std_dev * std_dev))
    location = log(mean)
    return lambda s: exp(normal(s) * deviation + location)


def beta(a, b):
    lo, hi = min(a, b), max(a, b)
    ratio, total = hi / lo, lo + hi
    if lo <= 1:
        shape, limit = lo, 1 / (1 + power(hi / (lo * HUGE), lo))
    else:
        shape, limit = sqrt((2 * lo * hi - total) / (total - 2)), mpfr(1)
    log_four = mpfr("1.3862943611198906")

    def ordered(s):
        while True:
            u1, u2 = s(), s()
            z = u2 * (u1 * u1)
            if not (u1 >= TINY and z > 0):
                continue
            if u1 >= limit:
                if 4 * z <= power(1 + 1 / ratio, total):
                    return mpfr(1)
                continue
            v = log(u1 / (1 - u1)) / shape
            w = ratio * exp(v)
            t = v * (shape + hi) + total * log((ratio + 1) / (w + 1)) - log_four
            if z - 1 <= t or (z - z * t <= 1 and log(z) <= t):
                return w / (1 + w)

    return lambda s: 1 - ordered(s) if a < b else ordered(s)


def inverse_gaussian(h, b):
    def mode(k):
        return (k + sqrt(h * h + k * k)) / h

    ym, xm = mode(-(b + 1)), mode(b - 1)
    c = mpfr("-0.25") * h
    inner = xm + 1 / xm - ym - 1 / ym
    r = power(xm * ym, mpfr("-0.5") * b) * sqrt(xm / ym) * exp(mpfr("0.25") * h * inner)
    half = mpfr("0.5") * (b - 1)
    at_mode = -half * log(xm) - c * (xm + 1 / xm)

    def draw(s):
        while True:
            u = s()
            if not u > 0:
                continue
            x = r * s() / u
            if x > 0 and log(u) < at_mode + c * (x + 1 / x) + half * log(x):
                return x

    return draw


def von_mises(k):
    count = int(gmpy2.trunc(2 * k + 1)) if k > mpfr("0.5") else 1
    ends = [mpfr(0)] + [acos(1 - mpfr(j) / k) for j in range(1, count)] + [PI]
    nodes = [
        (mpfr("0.238619186083197"), mpfr("0.467913934572691")),
        (mpfr("0.661209386466265"), mpfr("0.360761573048139")),
        (mpfr("0.932469514203152"), mpfr("0.171324492379170")),
    ]

    def integral(lo, hi):
        middle, half = (lo + hi) / 2, (hi - lo) / 2
        total = mpfr(0)
        for x, weight in nodes:
            total += weight * (exp(k * cos(middle + x * half)) + exp(k * cos(middle - x * half)))
        return half * total

    weights = [mpfr(1)]
    if count > 1:
        weights = [integral(lo, hi) for lo, hi in zip(ends, ends[1:])]
        total = mpfr(0)
        for weight in weights:
            total += weight
        weights = [weight / total for weight in weights]

    def is_accepted(x, s):
        accepted = True
        u = s()
        while u <= x:
            x = u
            accepted = not accepted
            u = s()
        return accepted

    def draw(s):
        j = 0
        u = s() - weights[0]
        while not u < 0 and j + 1 < count:
            j += 1
            u -= weights[j]
        place = -u / weights[j] if u < 0 else mpfr(0)
        while True:
            angle = ends[j] + place * (ends[j + 1] - ends[j])
            if is_accepted(k - j - k * cos(angle), s):
                return -angle if s() < mpfr("0.5") else angle
            place = s()

    return draw


def binomial_by_inversion(n, p):
    mode = min(gmpy2.floor((n + 1) * p), n)
    at_mode = exp(
        lngamma(n + 1) - lngamma(mode + 1) - lngamma(n - mode + 1) + mode * log(p) + (n - mode) * log(1 - p)
    )
    odds = p / (1 - p)

    def draw(s):
        down = up = float(at_mode)
        remainder = float(s()) - down
        if remainder < 0:
            return mode
        low = high = mode
        while True:
            if low > 0:
                low -= 1
                down = float(down * (low + 1) / ((n - low) * odds))
                remainder -= down
                if remainder < 0:
                    return low
            if high < n:
                high += 1
                up = float(up * (n - high + 1) * odds / high)
                remainder -= up
                if remainder < 0:
                    return high

    return draw


def power_of_complement(p, n):
    return power(1 - p, n) if n <= 8 and n == int(n) else exp(n * log1p(-p))


def binomial_from_zero(n, p):
    at_zero = power_of_complement(p, n)
    odds = p / (1 - p)
    a = odds * (n + 1)

    def draw(s):
        while True:
            u = s()
            probability = at_zero
            for y in range(int(min(n, 110)) + 1):
                if u < probability:
                    return mpfr(y)
                u -= probability
                probability *= a / (y + 1) - odds

    return draw


def btpe(n, p):
    q = 1 - p
    centre = n * p + p
    mode = gmpy2.floor(centre)
    variance = n * p * q
    half = mpfr("0.5")
    triangle = gmpy2.floor(mpfr("2.195") * sqrt(variance) - mpfr("4.6") * q) + half
    middle = mode + half
    left, right = middle - triangle, middle + triangle
    slope = mpfr("0.134") + mpfr("20.5") / (mpfr("15.3") + mode)

    def rate(a):
        return a * (1 + a / 2)

    left_rate = rate((centre - left) / (centre - left * p))
    right_rate = rate((right - centre) / (right * q))
    parallelograms = triangle * (1 + 2 * slope)
    left_tail = parallelograms + slope / left_rate
    right_tail = left_tail + slope / right_rate

    def quotient(y):
        odds = p / q
        a = odds * (n + 1)
        product = mpfr(1)
        for i in range(int(mode) + 1, int(y) + 1):
            product *= a / i - odds
        for i in range(int(y) + 1, int(mode) + 1):
            product /= a / i - odds
        return product

    def correction(z):
        z2 = z * z
        return (13860 - (462 - (132 - (99 - 140 / z2) / z2) / z2) / z2) / z / 166320

    def log_quotient(y):
        x1, f1, z, w = y + 1, mode + 1, n - mode + 1, n - y + 1
        return (
            (mode + half) * log1p((mode - y) / x1)
            + (n - mode + half) * log1p((y - mode) / w)
            + (y - mode) * log(w * p / (x1 * q))
            + correction(f1)
            + correction(z)
            - correction(x1)
            - correction(w)
        )

    def is_accepted(v, y):
        distance = abs(y - mode)
        if distance <= 20 or distance >= variance / 2 - 1:
            return v <= quotient(y)
        relative = distance / variance
        bound = relative * (
            (distance * (distance / 3 + mpfr("0.625")) + mpfr(1) / 6) / variance + half
        )
        centre_of_bounds = -distance * distance / (2 * variance)
        logarithm = log(v)
        if logarithm < centre_of_bounds - bound:
            return True
        return logarithm <= centre_of_bounds + bound and logarithm <= log_quotient(y)

    def draw(s):
        while True:
            u = s() * right_tail
            v = s()
            if u <= triangle:
                return gmpy2.floor(middle - triangle * v + u)
            if u <= parallelograms:
                x = left + (u - triangle) / slope
                v = v * slope + 1 - abs(mode - x + half) / triangle
                if v > 1 or v <= 0:
                    continue
                y = gmpy2.floor(x)
            elif u <= left_tail:
                y = gmpy2.floor(left + log(v) / left_rate)
                if y < 0:
                    continue
                v *= (u - parallelograms) * left_rate
            else:
                y = gmpy2.floor(right - log(v) / right_rate)
                if y > n:
                    continue
                v *= (u - left_tail) * right_rate
            if is_accepted(v, y):
                return y

    return draw


def binomial(n, p):
    r = min(p, 1 - p)
    draw = binomial_from_zero(n, r) if n * r < 30 else btpe(n, r)
    return (lambda s: n - draw(s)) if p > mpfr("0.5") else draw


def negative_binomial(sk, p):
    direct = int(gmpy2.trunc(sk)) if p > mpfr("0.7") else 0
    rest = sk - direct
    log_p = log(p)
    at_zero = power_of_complement(p, rest)

    def draw(s):
        x = mpfr(0)
        for _ in range(direct):
            r = s()
            while not r > 0:
                r = s()
            x += gmpy2.trunc(log(r) / log_p)
        u = s()
        probability, g, count = at_zero, rest, 0
        while probability <= u:
            u -= probability
            count += 1
            probability = g * p * probability / count
            g += 1
        return gmpy2.trunc(x + count + mpfr("0.5"))

    return draw


def poisson_by_inversion(mu):
    at_zero = exp(-mu)

    def draw(s):
        while True:
            u = s()
            probability = total = at_zero
            for k in range(36):
                if u <= total:
                    return mpfr(k)
                probability *= mu / (k + 1)
                total += probability

    return draw


def corrected_normal(mu):
    deviation = sqrt(mu)
    omega = mpfr("0.3989423") / deviation
    b1 = mpfr("0.04166667") / mu
    b2 = mpfr("0.3") * b1 * b1
    c3 = mpfr("0.1428571") * b1 * b2
    c2 = b2 - 15 * c3
    c1 = b1 - 6 * b2 + 45 * c3
    c0 = 1 - b1 + 3 * b2 - 15 * c3
    c = mpfr("0.1069") / mu
    series = "0.125006 -0.1384794 0.1421878 -0.1661269 0.2000118 -0.2500068 0.3333333 -0.5"
    series = [mpfr(t) for t in series.split()]

    def densities(k):
        if k < 10:
            px = -mu
            py = power(mu, k) / gmpy2.fac(int(k))
        else:
            delta = mpfr("0.08333333") / k
            delta -= mpfr("4.8") * delta * delta * delta
            v = (mu - k) / k
            if abs(v) > mpfr("0.25"):
                px = k * log(1 + v) - (mu - k) - delta
            else:
                total = series[0]
                for coefficient in series[1:]:
                    total = total * v + coefficient
                px = k * v * v * total - delta
            py = mpfr("0.3989423") / sqrt(k)
        x = (k - mu + mpfr("0.5")) / deviation
        x2 = x * x
        return px, py, mpfr("-0.5") * x2, omega * (((c3 * x2 + c2) * x2 + c1) * x2 + c0)

    def draw(s):
        g = mu + deviation * normal(s)
        if g >= 0:
            k = gmpy2.floor(g)
            if k >= gmpy2.floor(mu - mpfr("1.1484")):
                return k
            u = s()
            below = mu - k
            if 6 * mu * mu * u >= below * below * below:
                return k
            px, py, fx, fy = densities(k)
            if fy * (1 - u) <= py * exp(px - fx):
                return k
        while True:
            e = exponential(s)
            u = 2 * s() - 1
            t = mpfr("1.8") + (-e if u < 0 else e)
            if not t > mpfr("-0.6744"):
                continue
            k = gmpy2.floor(mu + deviation * t)
            px, py, fx, fy = densities(k)
            if c * abs(u) <= py * exp(px + e) - fy * exp(fx + e):
                return k

    return draw


def poisson(mu):
    return corrected_normal(mu) if mu >= 10 else poisson_by_inversion(mu)


VARIATES = {
    "normal": lambda: normal,
    "exponential": lambda: exponential,
    "cauchy": lambda: cauchy,
    "gamma": gamma,
    "chi-square": chi_square,
    "weibull": weibull,
    "student-t": student_t,
    "log-normal": log_normal,
    "beta": beta,
    "inverse-gaussian": inverse_gaussian,
    "von-mises": von_mises,
    "binomial-1": binomial_by_inversion,
    "binomial-2": binomial,
    "negative-binomial": negative_binomial,
    "poisson": poisson,
}

HEADER = """\
# The uniform values that 20000 variates take from MT19937-64 of seed 5489, and their sum in this order, with every step
# rounded to 64 bits by MPFR. Made by scripts/variate_tables.py.
variate,a,b,draws,sum
"""


def row(name, a, b, source):
    draw = VARIATES[name](*(mpfr(text) for text in (a, b) if text))
    source.restart()
    total = mpfr(0)
    for _ in range(COUNT):
        total += draw(source)
    return f"{name},{a},{b},{source.drawn},{total:.24g}\n"


def main():
    old = TABLE.read_text()
    rows = [line.split(",")[:3] for line in old.splitlines() if line[0] != "#"][1:]
    source = Source()
    new = HEADER + "".join(row(*cells, source) for cells in rows)
    if sys.argv[1:] == ["--write"]:
        TABLE.write_text(new)
    elif new != old:
        sys.exit(f"{TABLE} is not what {Path(__file__).name} makes")


if __name__ == "__main__":
    main()
