#!/usr/bin/env python3
"""Makes the reference tables of the distributions that have no other source: tests/data/tables/<family>.csv.

Each row has a family's parameters; a point with its density or probability, both tails and their logarithms; and, but
for counts, a probability with its lower and upper quantile. All inputs are 80-bit values. All figures have 30
significant digits: they are computed twice with mpmath, with 50 and with 70 digits, and have to agree.

usage: distribution_tables.py FOLDER [FAMILY...]
"""

import sys
from functools import cache
from pathlib import Path

from mpmath import mp, mpf

DIGITS = 30


def extended(value):
    """The nearest 80-bit value."""
    with mp.workprec(64):
        return +mpf(value)


def short(value):
    """A nearby value of 24 bits."""
    with mp.workprec(24):
        return +mpf(value)


def whole_tails(lower=None, upper=None):
    """Both tails, the larger one from the smaller."""
    return (lower, 1 - lower) if upper is None else (1 - upper, upper)


def log_complement(p, q):
    """The logarithm of q = 1 - p."""
    return mp.log1p(-p) if p < q else mp.log(q)


def exponential_tails(t):
    """P(X <= t) and P(X > t) of the exponential distribution with mean 1."""
    return -mp.expm1(-t), mp.exp(-t)


@cache
def legendre_rule(count, digits):
    """The nodes and weights of a Gauss-Legendre rule on (-1, 1)."""
    with mp.workdps(digits + 10):
        rule = []
        for i in range(count):
            x = mp.cos(mp.pi * (i + mpf(3) / 4) / (count + mpf(1) / 2))
            for _ in range(8):
                previous, value = mpf(1), x
                for n in range(2, count + 1):
                    previous, value = value, ((2 * n - 1) * x * value - (n - 1) * previous) / n
                slope = count * (x * value - previous) / (x * x - 1)
                x -= value / slope
            rule.append((x, 2 / ((1 - x * x) * slope**2)))
        return rule


class Uniform:
    columns = ["least", "greatest"]
    parameters = [(0, 1), (-1, 3), (-0.1, 0.3), (1e10, 1e10 + 1), (-1e-300, 2e-300), (-7e4000, 1e4000), (3, 1e300), (0.7, 0.75)]
    positions = [mpf(10) ** -e for e in (4900, 300, 30, 18, 9, 4)]
    positions += [mpf(i) / 11 for i in range(1, 11)] + [1 - mpf(2) ** -e for e in (9, 40)]

    def points(self, least, greatest):
        return [x for x in (extended(least + (greatest - least) * u) for u in self.positions) if least < x < greatest]

    def density(self, least, greatest, x):
        return 1 / (greatest - least)

    def tails(self, least, greatest, x):
        return (x - least) / (greatest - least), (greatest - x) / (greatest - least)

    def quantile(self, least, greatest, p, q):
        return least + (greatest - least) * p


class ClosedForm:
    """Points at given distances into both tails; quantile takes p and q = 1 - p."""
    far = [7000, 4900, 900, 60, 20, 12, 6, 3, 1]

    def points(self, *parameters):
        lower = [self.quantile(*parameters, mpf(10) ** -e, 1 - mpf(10) ** -e) for e in self.far]
        upper = [self.quantile(*parameters, 1 - mpf(10) ** -e, mpf(10) ** -e) for e in self.far]
        points = [short(x) for x in lower + [self.quantile(*parameters, mpf(1) / 3, mpf(2) / 3)] + upper]
        return [x for x in points if mpf(10) ** -4900 < abs(x) < mpf(10) ** 4900]


class LogNormal(ClosedForm):
    columns = ["log_mean", "log_std_dev"]
    parameters = [(0, 1), (0.5, 2), (-3, 0.1), (1000, 30), (7, 1e-9), (-2, 150)]

    def density(self, log_mean, log_std_dev, x):
        return mp.npdf((mp.log(x) - log_mean) / log_std_dev) / (x * log_std_dev)

    def tails(self, log_mean, log_std_dev, x):
        t = (mp.log(x) - log_mean) / (log_std_dev * mp.sqrt(2))
        return mp.erfc(-t) / 2, mp.erfc(t) / 2

    def quantile(self, log_mean, log_std_dev, p, q):
        """By Newton's method for the logarithm of the smaller tail of the standard normal distribution."""
        if p == q:
            return mp.exp(log_mean)
        log_tail = mp.log(min(p, q))
        z = mp.sqrt(max(2 * -log_tail - mp.log(-4 * mp.pi * log_tail), mpf(1) / 4))
        while True:
            tail = mp.erfc(z / mp.sqrt(2)) / 2
            step = (mp.log(tail) - log_tail) * tail / mp.npdf(z)
            z += step
            if abs(step) <= abs(z) * mpf(10) ** (6 - mp.dps):
                return mp.exp(log_mean + log_std_dev * (-z if p < q else z))


class Exponential(ClosedForm):
    columns = ["mean"]
    parameters = [(1,), (2,), (0.3,), (1e-300,), (mpf(10) ** 4000,), (1 / mpf(3),)]

    def density(self, mean, x):
        return mp.exp(-x / mean) / mean

    def tails(self, mean, x):
        return exponential_tails(x / mean)

    def quantile(self, mean, p, q):
        return -mean * log_complement(p, q)


class Weibull(ClosedForm):
    columns = ["shape", "scale"]
    parameters = [(1, 1), (2.5, 3), (0.3, 1e-7), (30, 2), (1e5, 1e3), (-1, 1), (-3.5, 0.2), (-0.02, 4), (-1e7, 7)]

    def density(self, shape, scale, x):
        t = (x / scale) ** shape
        return abs(shape) / x * t * mp.exp(-t)

    def tails(self, shape, scale, x):
        tails = exponential_tails((x / scale) ** shape)
        return tails if shape > 0 else tails[::-1]

    def quantile(self, shape, scale, p, q):
        return scale * (-log_complement(*((p, q) if shape > 0 else (q, p)))) ** (1 / shape)


class Cauchy(ClosedForm):
    columns = ["location", "scale"]
    parameters = [(0, 1), (0.1, 0.3), (-5, 1e-3), (1e6, 2), (0, 1e-2000), (3e100, 1e90), (-1, 1e300), (7, 7)]

    def density(self, location, scale, x):
        return 1 / (mp.pi * scale * (1 + ((x - location) / scale) ** 2))

    def tails(self, location, scale, x):
        z = (x - location) / scale
        return mp.atan2(1, -z) / mp.pi, mp.atan2(1, z) / mp.pi

    def quantile(self, location, scale, p, q):
        if p == q:
            return location
        return location - scale * mp.cot(mp.pi * p) if p < q else location + scale * mp.cot(mp.pi * q)


class Logistic(ClosedForm):
    columns = ["location", "scale"]
    parameters = [(0, 1), (0.1, 0.3), (-5, 1e-3), (1e6, 2), (0, 1e-2000), (3e100, 1e90), (-1, 1e300)]

    def density(self, location, scale, x):
        z = (x - location) / scale
        return 1 / (scale * (1 + mp.exp(z)) * (1 + mp.exp(-z)))

    def tails(self, location, scale, x):
        z = (x - location) / scale
        return 1 / (1 + mp.exp(-z)), 1 / (1 + mp.exp(z))

    def quantile(self, location, scale, p, q):
        return location + scale * (log_complement(q, p) - log_complement(p, q))


class Gumbel(ClosedForm):
    columns = ["location", "scale"]
    parameters = [(0, 1), (0.1, 0.3), (-5, 1e-3), (1e6, 2), (0, 1e-2000), (3e100, 1e90), (-1, 1e300)]

    def density(self, location, scale, x):
        z = (x - location) / scale
        return mp.exp(-z - mp.exp(-z)) / scale

    def tails(self, location, scale, x):
        return exponential_tails(mp.exp(-(x - location) / scale))[::-1]

    def quantile(self, location, scale, p, q):
        return location - scale * mp.log(-log_complement(q, p))


class Geometric:
    columns = ["p"]
    parameters = [(0.5,), (0.1,), (0.999,), (1e-3,), (1e-8,), (1e-30,), (0.3,)]
    counts = [0, 1, 2, 3, 5, 9, 20, 50, 100, 333, 1000, 5000, 40000, 10**6, 10**8, 4294967294]

    def points(self, p):
        return self.counts

    def density(self, p, k):
        return p * (1 - p) ** k

    def tails(self, p, k):
        log_upper = (k + 1) * mp.log1p(-p)
        return -mp.expm1(log_upper), mp.exp(log_upper)


class NegativeBinomial:
    columns = ["p", "failures"]
    parameters = [(0.5, 1), (0.5, 4), (0.3, 2.5), (0.1, 30.25), (0.9, 0.75), (0.99, 12), (1e-3, 700), (0.7, 200.5),
                  (1e-10, 3.5), (0.25, 1e-3)]
    distances = [-60, -12, -4, -2, -1, -0.3, 0, 0.4, 1, 2, 5, 12, 40, 150, 700]

    def points(self, p, failures):
        mean = failures * p / (1 - p)
        deviation = mp.sqrt(mean / (1 - p))
        counts = {0, 1, 2} | {int(mp.ceil(mean + d * deviation)) for d in self.distances}
        return sorted(k for k in counts if k >= 0)

    def density(self, p, failures, k):
        return mp.gamma(k + failures) / mp.gamma(failures) / mp.factorial(k) * p**k * (1 - p) ** failures

    def tails(self, p, failures, k):
        lower, term = mpf(0), (1 - p) ** failures
        i = 0
        while i <= k:
            lower += term
            i += 1
            term *= p * (failures + i - 1) / i
        upper, least = mpf(0), mpf(10) ** -mp.dps
        while term > upper * least * (1 - p):
            upper += term
            i += 1
            term *= p * (failures + i - 1) / i
        assert abs(lower + upper - 1) < mpf(10) ** (8 - mp.dps)
        return lower, upper


class Quadrature:
    """Tails of a density without a closed form, by Gauss-Legendre rules over panels in which its logarithm phi changes
    by little."""

    def integral(self, phi, start, step, end):
        """The integral of exp(phi(t) - phi(start)) from start to end, or until nothing is left."""
        total, left, reference = mpf(0), start, phi(start)
        rule = legendre_rule(mp.dps // 2, mp.dps)
        while left != end:
            right = left + step(left) * (1 if end > left else -1)
            if (right > end) == (end > left):
                right = end
            middle, half = (left + right) / 2, (right - left) / 2
            panel = abs(half) * mp.fsum(w * mp.exp(phi(middle + half * x) - reference) for x, w in rule)
            total += panel
            left = right
            if panel < total * mpf(10) ** (-mp.dps - 5):
                break
        return total

    def quantile(self, *arguments):
        """By Newton's iteration for the logarithm of the smaller tail in the logarithm of a distance."""
        *parameters, p, q = arguments
        side, log_tail = (0, mp.log(p)) if p < q else (1, mp.log(q))

        def newton_step(distance):
            tail = self.tail_at(side, *parameters, distance)
            slope = distance * self.density(*parameters, self.point(side, distance)) / tail
            return (log_tail - mp.log(tail)) / slope
        with mp.workdps(20):
            distance = self.start(*parameters, min(p, q))
            step = 1
            while abs(step) > mpf(10) ** -12:
                step = self.limited(newton_step(distance))
                distance *= mp.exp(step if self.grows(side) else -step)
        for _ in range(3):
            step = newton_step(distance)
            distance *= mp.exp(step if self.grows(side) else -step)
        assert abs(step) < mpf(10) ** -(DIGITS + 3), (arguments, step)
        return self.point(side, distance)


class VonMises(Quadrature):
    columns = ["concentration"]
    parameters = [(0,), (0.01,), (0.5,), (2,), (9.5,), (40,), (600,), (1e5,), (1e12,)]

    def points(self, k):
        width = min(mpf(1), 1 / mp.sqrt(k) if k > 0 else mpf(1))
        points = [0, width / 100, width / 3, width, 2 * width, 5 * width, 20 * width, 1.5, 2.5, 3, 3.14159, 3.1415926535897932]
        points = sorted({extended(x) for x in points if x < mp.pi})
        return points + [-points[3], -points[-3]]

    def tails(self, k, x):
        upper = self.tail_at(1, k, mp.pi - abs(x))
        return whole_tails(upper=upper) if x > 0 else whole_tails(lower=upper)

    def tail_at(self, side, k, distance):
        """The tail at a distance from pi or -pi."""
        def step(s):
            return min(mpf(1) / 2, 3 / (k * mp.sin(s) + mp.sqrt(k) + 1))
        area = self.integral(lambda s: -2 * k * mp.cos(s / 2) ** 2, distance, step, mpf(0))
        return area * self.density(k, self.point(1, distance))

    def point(self, side, distance):
        """Quantiles are found as distances from pi, which may be far below the working precision."""
        return mp.pi - distance if side == 1 else distance - mp.pi

    def quantile(self, k, p, q):
        return mpf(0) if p == q else super().quantile(k, p, q)

    def grows(self, side):
        """Whether the tail grows with the distance."""
        return True

    def start(self, k, p):
        nearby = p / self.density(k, +mp.pi)
        if nearby < 0.1:
            return nearby
        low, high = mpf(0), +mp.pi
        for _ in range(40):
            middle = (low + high) / 2
            low, high = (low, middle) if self.tail_at(1, k, middle) > p else (middle, high)
        return low

    def limited(self, step):
        return step

    def density(self, k, x):
        # The scaled Bessel function; for large arguments by its asymptotic series.
        if k < 1000:
            scaled = mp.besseli(0, k) * mp.exp(-k)
        else:
            term = scaled = mpf(1)
            n = 0
            while term > mpf(10) ** -(mp.dps + 5):
                n += 1
                term *= mpf(2 * n - 1) ** 2 / (8 * n * k)
                scaled += term
            scaled /= mp.sqrt(2 * mp.pi * k)
        return mp.exp(-2 * k * mp.sin(x / 2) ** 2) / (2 * mp.pi * scaled)


class GeneralisedInverseGaussian(Quadrature):
    columns = ["h", "b"]
    parameters = [(2, 0.5), (2, -0.5), (1, 0), (0.1, 3), (30, -7), (1e-3, 0.25), (1e-8, 1), (1e4, 12), (5, 1e5), (1e9, -0.5)]
    distances = [-160, -60, -30, -12, -5, -1.5, 0, 0.7, 2, 6, 15, 40, 160]

    def mode(self, h, b):
        return mp.asinh(mpf(b) / h)

    def points(self, h, b):
        mode = self.mode(h, b)
        # The distances are standard deviations of ln X where that is about normal. Elsewhere the exponent is limited.
        unit = 1 / mp.sqrt(h * mp.cosh(mode))
        reach = mp.inf if unit < 0.02 else mp.acosh(mp.cosh(mode) + 9000 / h) - abs(mode)
        points = [short(mp.exp(mode + max(-reach, min(reach, d * unit)) if d else mode)) for d in self.distances]
        return sorted(set(points))

    def density(self, h, b, x):
        return x ** (b - 1) * mp.exp(-h / 2 * (x + 1 / x)) / (2 * mp.besselk(b, h))

    def tails(self, h, b, x):
        lower, upper = self.tail_at(0, h, b, x), self.tail_at(1, h, b, x)
        assert abs(lower + upper - 1) < mpf(10) ** -(DIGITS + 3)
        return lower, upper

    def tail_at(self, side, h, b, x):
        def phi(u):
            power = mp.exp(u)
            return b * u - h / 2 * (power + 1 / power)

        def step(u):
            return min(mpf(1) / 2, 3 / (abs(b - h * mp.sinh(u)) + mp.sqrt(h * mp.cosh(u))))
        u, mode, end = mp.log(x), self.mode(h, b), mpf(40000 if side == 1 else -40000)
        at_point = x * self.density(h, b, x)
        if (mode - u) * end <= 0:
            return self.integral(phi, u, step, end) * at_point
        # Through the mode.
        parts = self.integral(phi, mode, step, u) + self.integral(phi, mode, step, end)
        return parts * mp.exp(phi(mode) - phi(u)) * at_point

    def point(self, side, distance):
        return distance

    def grows(self, side):
        return side == 0

    def start(self, h, b, p):
        return mp.exp(self.mode(h, b))

    def limited(self, step):
        return max(mpf(-1), min(mpf(1), step))


FAMILIES = {
    "uniform": Uniform(),
    "log_normal": LogNormal(),
    "exponential": Exponential(),
    "weibull": Weibull(),
    "cauchy": Cauchy(),
    "negative_binomial": NegativeBinomial(),
    "von_mises": VonMises(),
    "generalised_inverse_gaussian": GeneralisedInverseGaussian(),
    "geometric": Geometric(),
    "logistic": Logistic(),
    "gumbel": Gumbel(),
}
EXPONENTS = [4000, 300, 40, 9, 2]
PROBABILITIES = [mpf(10) ** -e for e in EXPONENTS] + [mpf(1) / 5, mpf(1) / 2, mpf(7) / 10, 1 - mpf(1) / 1000, 1 - mpf(2) ** -50]


def decimal(value):
    """30 digits; empty for what has no place in 80 bits."""
    if value == 0:
        return "0"
    return mp.nstr(value, DIGITS, min_fixed=-5, max_fixed=5) if mpf(10) ** -4931 < abs(value) < mpf(10) ** 4932 else ""


def figures(family, parameters, x, p):
    """At the working precision. It has to grow where a tail is what a larger one leaves of 1."""
    lower, upper = family.tails(*parameters, x)
    log_lower = mp.log(lower) if lower < 0.5 else mp.log1p(-upper)
    log_upper = mp.log(upper) if upper < 0.5 else mp.log1p(-lower)
    row = [family.density(*parameters, x), lower, upper, log_lower, log_upper]
    if p is not None:
        row += [family.quantile(*parameters, p, 1 - p), family.quantile(*parameters, 1 - p, p)]
    return row


def make_row(family, parameters, x, p):
    results = []
    for digits in (50, 70):
        with mp.workdps(digits):
            results.append(figures(family, parameters, x, p))
    for first, second in zip(*results):
        assert abs(first - second) <= abs(second) * mpf(10) ** (-DIGITS - 2), (parameters, x, p, first, second)
    inputs = [mp.nstr(v, 25, min_fixed=-5, max_fixed=20) for v in (*parameters, x)]
    outputs = [decimal(v) for v in results[1]]
    if p is not None:
        outputs.insert(5, mp.nstr(p, 25, min_fixed=-5, max_fixed=5))
    return ",".join(inputs + outputs)


def main():
    folder, *names = sys.argv[1:]
    for name in names or FAMILIES:
        family = FAMILIES[name]
        is_count = not hasattr(family, "quantile")
        density = "pmf" if is_count else "pdf"
        columns = [*family.columns, "k" if is_count else "x", density, "lower", "upper", "log_lower", "log_upper"]
        columns += [] if is_count else ["p", "quantile", "upper_quantile"]
        lines = [f"# {DIGITS} significant digits by scripts/distribution_tables.py with mpmath; inputs are 80-bit values.",
                 "# The quantiles are those of p, and belong to the same parameters as the point.", ",".join(columns)]
        if is_count:
            del lines[1]
        row = 0
        with mp.workdps(50):
            for parameters in family.parameters:
                parameters = [extended(v) for v in parameters]
                for x in family.points(*parameters):
                    p = None if is_count else extended(PROBABILITIES[row % len(PROBABILITIES)])
                    lines.append(make_row(family, parameters, mpf(x), p))
                    row += 1
        Path(folder, name + ".csv").write_text("\n".join(lines) + "\n")
        print(f"{name}: {row} rows")


if __name__ == "__main__":
    main()
