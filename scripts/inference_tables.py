#!/usr/bin/env python3
"""Makes the reference tables of tests of hypotheses and intervals: tests/data/tables/inference.csv and intervals.csv.

The samples are those of inference_samples.csv, as 80-bit numbers; a sample "formula N S" has the N
values ((i * 7919) mod 8191) / 8192 from i = S on. Statistics are computed with fractions, tails with mpmath and 60 digits or more, in
each case by another method than the library's where there is one. All figures have 30 significant digits.

usage: inference_tables.py FOLDER
"""

import math
import sys
from fractions import Fraction
from pathlib import Path

from mpmath import mp, mpf

DIGITS = 30
mp.dps = 60


def extended(value):
    """The 80-bit number nearest to a decimal text or a fraction, as a fraction."""
    x = Fraction(value)
    if x == 0:
        return x
    exponent = 0
    magnitude = abs(x)
    exponent = magnitude.numerator.bit_length() - magnitude.denominator.bit_length() - 64
    scaled = magnitude / Fraction(2) ** exponent
    while scaled >= 2**64:
        exponent += 1
        scaled /= 2
    while scaled < 2**63:
        exponent -= 1
        scaled *= 2
    return Fraction(round(scaled)) * Fraction(2) ** exponent * (1 if x > 0 else -1)


def real(x):
    return mpf(x.numerator) / mpf(x.denominator) if isinstance(x, Fraction) else mpf(x)


def signed_root(square, sign):
    return mp.sqrt(real(square)) * (sign > 0) - mp.sqrt(real(square)) * (sign < 0)


def mean(sample):
    return sum(sample) / len(sample)


def deviations(sample):
    centre = mean(sample)
    return sum((x - centre) ** 2 for x in sample)


# Tails: (lower, upper), each by itself.
def student_tails(t, df):
    beyond = mp.betainc(df / 2, mpf(1) / 2, 0, df / (df + t * t), regularized=True) / 2
    return (beyond, 1 - beyond) if t < 0 else (1 - beyond, beyond)


def normal_tails(z):
    return mp.ncdf(z), mp.ncdf(-z)


def chi_square_tails(x, df):
    return (mp.gammainc(df / mpf(2), 0, x / 2, regularized=True),
            mp.gammainc(df / mpf(2), x / 2, mp.inf, regularized=True))


def f_tails(f, df1, df2):
    x = df1 * f / (df1 * f + df2)
    y = df2 / (df1 * f + df2)
    half1, half2 = mpf(df1) / 2, mpf(df2) / 2
    return (mp.betainc(half1, half2, 0, x, regularized=True),
            mp.betainc(half2, half1, 0, y, regularized=True))


def p_of(tails, alternative):
    """p, and what it leaves of 1."""
    lower, upper = tails
    if alternative == "less":
        return lower, upper
    if alternative == "greater":
        return upper, lower
    p = min(2 * min(lower, upper), mpf(1))
    return p, 1 - p


class Result:
    def __init__(self, statistic, p, form, df="", df2=""):
        self.statistic, self.form, self.df, self.df2 = statistic, form, df, df2
        if not isinstance(p, tuple):
            p = (p, 1 - p) if abs(1 - p) > mpf(10) ** (10 - mp.dps) else (mpf(1), mpf(0))
        self.p, self.rest = p


def student(estimate, squared_error, df, alternative, form="exact"):
    t = signed_root(estimate * estimate / squared_error, (estimate > 0) - (estimate < 0))
    return Result(t, p_of(student_tails(t, real(df)), alternative), form, df)


def one_sample_t(alternative, x, centre=0):
    n = len(x)
    return student(mean(x) - extended(centre), deviations(x) / (n * (n - 1)), n - 1, alternative)


def two_sample_t(alternative, x, y, difference=0):
    m, n = len(x), len(y)
    pooled = (deviations(x) + deviations(y)) / (m + n - 2)
    return student(mean(x) - mean(y) - extended(difference), pooled * (Fraction(1, m) + Fraction(1, n)), m + n - 2, alternative)


def welch_parts(x, y):
    m, n = len(x), len(y)
    v, w = deviations(x) / (m * (m - 1)), deviations(y) / (n * (n - 1))
    return v + w, (v + w) ** 2 / (v * v / (m - 1) + w * w / (n - 1))


def welch_t(alternative, x, y, difference=0):
    squared_error, df = welch_parts(x, y)
    # The library rounds the degrees of freedom before it takes the tail.
    result = student(mean(x) - mean(y) - extended(difference), squared_error, extended(df), alternative, "welch")
    result.df = df
    return result


def paired_t(alternative, x, y, difference=0):
    return one_sample_t(alternative, [a - b for a, b in zip(x, y)], difference)


def variance(alternative, x, variance):
    statistic = deviations(x) / extended(variance)
    return Result(statistic, p_of(chi_square_tails(real(statistic), len(x) - 1), alternative), "exact", len(x) - 1)


def variance_ratio(alternative, x, y, ratio=1):
    m, n = len(x), len(y)
    f = deviations(x) * (n - 1) / (deviations(y) * (m - 1)) / extended(ratio)
    return Result(f, p_of(f_tails(real(f), m - 1, n - 1), alternative), "exact", m - 1, n - 1)


def fit(alternative, counts, proportions=None, fitted=0):
    p = proportions or [Fraction(1)] * len(counts)
    expected = [sum(counts) * x / sum(p) for x in p]
    statistic = sum((o - e) ** 2 / e for o, e in zip(counts, expected))
    df = len(counts) - 1 - int(fitted)
    return Result(statistic, chi_square_tails(real(statistic), df)[1], "chi-square", df)


def independence(alternative, *arguments):
    *rows, correction = arguments
    columns = list(zip(*rows))
    total = sum(map(sum, rows))
    statistic = 0
    for row in rows:
        for j, observed in enumerate(row):
            expected = sum(row) * sum(columns[j]) / total
            difference = abs(observed - expected)
            if correction == 1:
                difference -= min(Fraction(1, 2), difference)
            statistic += difference**2 / expected
    df = (len(rows) - 1) * (len(columns) - 1)
    return Result(statistic, chi_square_tails(real(statistic), df)[1], "chi-square", df)


def binomial(alternative, successes, trials, p="0.5"):
    k, n, p = int(successes), int(trials), real(extended(p))
    probability = [mp.binomial(n, i) * p**i * (1 - p) ** (n - i) for i in range(n + 1)]
    if alternative == "less":
        total = mp.fsum(probability[: k + 1])
    elif alternative == "greater":
        total = mp.fsum(probability[k:])
    else:
        limit = probability[k] * (1 + mpf(10) ** -7)
        total = mp.fsum(x for x in probability if x <= limit)
    return Result(k, min(total, mpf(1)), "exact")


def order_statistics_within(least, greatest):
    """The probability that the uniform order statistics are within these bounds: Steck's determinant (1971), of a
    Hessenberg matrix, expanded by its last column."""
    n = len(least)
    with mp.workdps(mp.dps + 2 * n):
        least, greatest = [real(x) for x in least], [real(x) for x in greatest]
        factorials = [mp.factorial(i) for i in range(n + 2)]
        minors = [mpf(1)]
        for i in range(n):
            total, sign = mpf(0), 1
            for j in range(i, -1, -1):
                if greatest[j] <= least[i]:
                    break
                total += sign * minors[j] * (greatest[j] - least[i]) ** (i - j + 1) / factorials[i - j + 1]
                sign = -sign
            minors.append(total)
        return minors[n] * factorials[n]


def kolmogorov_tail(n, d, alternative):
    """P(D >= d); for one side of long samples by Birnbaum and Tingey (1951), and where all values must be in one tail
    from its probability."""
    if n * (1 - d) < 1:
        return (2 if alternative == "two-sided" else 1) * real(1 - d) ** n
    if alternative != "two-sided" and n > 200:
        d = real(d)
        terms = [mp.binomial(n, j) * (d + mpf(j) / n) ** (j - 1) * (1 - d - mpf(j) / n) ** (n - j) for j in range(int(n * (1 - d)) + 1)]
        return d * mp.fsum(terms)
    least = [max(Fraction(i, n) - d, Fraction(0)) for i in range(1, n + 1)]
    greatest = [min(Fraction(i, n) + d, Fraction(1)) for i in range(n)]
    if alternative != "two-sided":
        greatest = [Fraction(1)] * n
    with mp.workdps(mp.dps + 40):
        return 1 - order_statistics_within(least, greatest)


def kolmogorov_limit(n, d, alternative):
    t = n * d * d
    if alternative != "two-sided":
        return mp.exp(-2 * t)
    return 2 * mp.nsum(lambda k: (-1) ** (int(k) - 1) * mp.exp(-2 * k * k * t), [1, mp.inf])


def ks_uniform(alternative, x, first, last):
    n = len(x)
    ordered = sorted(min(max((u - first) / (last - first), Fraction(0)), Fraction(1)) for u in x)
    above = max(Fraction(i + 1, n) - u for i, u in enumerate(ordered))
    below = max(u - Fraction(i, n) for i, u in enumerate(ordered))
    d = {"two-sided": max(above, below), "greater": above, "less": below}[alternative]
    if n <= 1000:
        return Result(d, kolmogorov_tail(n, d, alternative), "exact")
    return Result(d, kolmogorov_limit(n, real(d), alternative), "limit")


def ks_two(alternative, x, y):
    m, n = len(x), len(y)
    places = {}
    for v in sorted(set(x) | set(y)):
        i, j = sum(a <= v for a in x), sum(b <= v for b in y)
        places[i + j] = i * n - j * m
    measure = {"two-sided": abs, "greater": lambda v: v, "less": lambda v: -v}[alternative]
    bound = max(measure(v) for v in places.values())
    if max(m, n) > 1000:
        return Result(Fraction(bound, m * n), kolmogorov_limit(mpf(m) * n / (m + n), mpf(bound) / (m * n), alternative), "limit")
    # Paths that stay below the bound.
    paths = [0] * (n + 1)
    for i in range(m + 1):
        for j in range(n + 1):
            if i == j == 0:
                count = 1
            else:
                count = (paths[j] if i > 0 else 0) + (paths[j - 1] if j > 0 else 0)
            paths[j] = 0 if i + j in places and measure(i * n - j * m) >= bound else count
    return Result(Fraction(bound, m * n), real(1 - Fraction(paths[n], math.comb(m + n, m))), "exact")


def polynomial(x, *coefficients):
    return sum(mpf(c) * x**i for i, c in enumerate(coefficients))


def shapiro_wilk(alternative, x):
    """Royston (1995)."""
    x = sorted(x)
    n = len(x)
    if n == 3:
        w = (x[2] - x[0]) ** 2 / 2 / deviations(x)
        p = 6 / mp.pi * (mp.asin(mp.sqrt(real(w))) - mp.pi / 3) if w != Fraction(3, 4) else mpf(0)
        return Result(w, p, "exact")
    m = [mp.sqrt(2) * mp.erfinv(2 * (i - mpf(3) / 8) / (n + mpf(1) / 4) - 1) for i in range(1, n + 1)]
    norm = sum(v * v for v in m)
    u = 1 / mp.sqrt(n)
    last = m[-1] / mp.sqrt(norm) + polynomial(u, "0", "0.221157", "-0.147981", "-2.07119", "4.434685", "-2.706056")
    a = [mpf(0)] * n
    a[-1], a[0] = last, -last
    if n > 5:
        second = m[-2] / mp.sqrt(norm) + polynomial(u, "0", "0.042981", "-0.293762", "-1.752461", "5.682633", "-3.582633")
        a[-2], a[1] = second, -second
        phi = (norm - 2 * m[-1] ** 2 - 2 * m[-2] ** 2) / (1 - 2 * last**2 - 2 * second**2)
        inner = range(2, n - 2)
    else:
        phi = (norm - 2 * m[-1] ** 2) / (1 - 2 * last**2)
        inner = range(1, n - 1)
    for i in inner:
        a[i] = m[i] / mp.sqrt(phi)
    w = sum(c * real(v) for c, v in zip(a, x)) ** 2 / real(deviations(x)) / sum(c * c for c in a)
    y = mp.log(1 - w)
    if n <= 11:
        y = -mp.log(polynomial(n, "-2.273", "0.459") - y)
        centre = polynomial(n, "0.544", "-0.39978", "0.025054", "-0.0006714")
        spread = mp.exp(polynomial(n, "1.3822", "-0.77857", "0.062767", "-0.0020322"))
    else:
        centre = polynomial(mp.log(n), "-1.5861", "-0.31082", "-0.083751", "0.0038915")
        spread = mp.exp(polynomial(mp.log(n), "-0.4803", "-0.082676", "0.0030302"))
    return Result(w, normal_tails((y - centre) / spread)[1], "normal")


def ranks(values):
    """Ranks from 1, means among equal values; and the sum of t^3 - t over runs of t equal values."""
    result = [Fraction(sum(v < x for v in values)) + Fraction(values.count(x) + 1, 2) for x in values]
    return result, sum(values.count(x) ** 3 - values.count(x) for x in set(values))


def from_counts(statistic, counts, alternative):
    """p from a dictionary of the values of the statistic and their numbers."""
    total = sum(counts.values())
    lower = sum(c for v, c in counts.items() if v <= statistic)
    upper = sum(c for v, c in counts.items() if v >= statistic)
    return p_of((real(Fraction(lower, total)), real(Fraction(upper, total))), alternative)[0]


def approximated(statistic, centre, variance, alternative):
    distance = statistic - centre
    if alternative == "two-sided":
        distance -= Fraction((distance > 0) - (distance < 0), 2)
    else:
        distance += Fraction(1 if alternative == "less" else -1, 2)
    z = signed_root(distance**2 / variance, (distance > 0) - (distance < 0))
    return Result(statistic, p_of(normal_tails(z), alternative), "normal")


def mann_whitney(alternative, x, y, shift=0):
    x = [v - extended(shift) for v in x]
    m, n = len(x), len(y)
    rank, ties = ranks(x + y)
    u = sum(rank[:m]) - Fraction(m * (m + 1), 2)
    if max(m, n) > 50 or ties:
        variance = Fraction(m * n, 12) * (m + n + 1 - Fraction(ties, (m + n) * (m + n - 1)))
        return approximated(u, Fraction(m * n, 2), variance, alternative)
    # The value with rank r belongs to either sample.
    counts = {(0, 0): 1}
    for r in range(1, m + n + 1):
        longer = dict(counts)
        for (size, total), c in counts.items():
            if size < m:
                longer[size + 1, total + r] = longer.get((size + 1, total + r), 0) + c
        counts = longer
    counts = {total - m * (m + 1) // 2: c for (size, total), c in counts.items() if size == m}
    return Result(u, from_counts(u, counts, alternative), "exact")


def signed_rank(alternative, x, centre=0):
    differences = [v - extended(centre) for v in x]
    kept = [d for d in differences if d != 0]
    rank, ties = ranks([abs(d) for d in kept])
    v = sum(r for r, d in zip(rank, kept) if d > 0)
    n = len(kept)
    if n > 50 or ties or n < len(x):
        variance = Fraction(n * (n + 1) * (2 * n + 1), 24) - Fraction(ties, 48)
        return approximated(v, Fraction(n * (n + 1), 4), variance, alternative)
    counts = {0: 1}
    for r in range(1, n + 1):
        more = dict(counts)
        for total, c in counts.items():
            more[total + r] = more.get(total + r, 0) + c
        counts = more
    return Result(v, from_counts(v, counts, alternative), "exact")


def signed_rank_pairs(alternative, x, y, centre=0):
    return signed_rank(alternative, [a - b for a, b in zip(x, y)], centre)


TESTS = {"one-sample-t": one_sample_t, "two-sample-t": two_sample_t, "welch-t": welch_t, "paired-t": paired_t,
         "variance": variance, "variance-ratio": variance_ratio, "fit": fit, "independence": independence,
         "binomial": binomial, "ks-uniform": ks_uniform, "ks-two": ks_two, "shapiro-wilk": shapiro_wilk,
         "mann-whitney": mann_whitney, "signed-rank": signed_rank, "signed-rank-pairs": signed_rank_pairs}
CASES = {
    "one-sample-t": ["extra_a|0", "extra_b|0.75", "pair|4", "pair|4.0000000001", "far_pair|0.1", "offset|1000000000000.5", "precise|999", "tiny|0",
                     "huge|1e4900", "formula 1000 0|0.49", "formula 1000 0|100"],
    "two-sample-t": ["extra_a|extra_b", "extra_b|extra_a|0.5", "offset|offset_up", "precise|offset", "pair|precise"],
    "welch-t": ["extra_a|extra_b", "extra_b|extra_a|0.5", "offset|offset_up", "precise|offset", "pair|precise"],
    "paired-t": ["extra_a|extra_b", "extra_b|extra_a|0.5", "precise|formula 40 3|1e30"],
    "variance": ["extra_a|2", "offset|0.1", "precise|0.003", "formula 1000 0|0.01", "formula 1000 0|10", "tiny|3e-4000"],
    "variance-ratio": ["extra_a|extra_b", "extra_b|extra_a|2.5", "offset|offset_up", "formula 1000 0|precise", "wide|formula 200 9"],
    "fit": ["89 37 30 28 2|0.4 0.2 0.2 0.15 0.05", "89 37 30 28 2|40 20 20 15 5|2", "12 15 9 20 0|1 1 1 1 1",
            "4000000000000000000 4000000000500000000|1 1", "1000 0 7|0.001 0.5 0.499", "5 5 5|1 1 1"],
    "independence": ["762 327 468|484 239 477|0", "10 2|3 15|0", "10 2|3 15|1", "5 5|6 5|1", "9 8 7|1 2 30|4 4 4|90 1 0|0",
                     "0 1000000000000|1000000000001 1|0"],
    "binomial": ["682|925|0.75", "5|10|0.5", "0|10|0.1", "10|10|0.3", "3|20|0.15", "60|1000|0.05", "999|1000|0.001", "7|13|0.3",
                 "0|0|0.25", "2|10|0.45111520088274406617", "4|7|0", "7|7|1", "2|12|0.55"],
    "ks-uniform": ["uniform_ten|0|1", "4e-1700 5e-1600 3e-1650|0|1", "3e-11 1e-10 2e-11|0|1", "uniform_ends|0|1", "low|0|1", "beyond|0|8", "0.4 0.6 0.95|0|1",
                   "0.24 0.3 0.55 0.7 0.9|0|1", "three|0|3.5", "pair|0|7", "far_pair|-100.5|7.25", "formula 100 0|0|1.1",
                   "formula 100 3|-0.3|1", "formula 1000 5|0|1.06", "formula 300 5|-0.2|1.2", "formula 1001 0|0|1.03",
                   "formula 4000 0|0|1", "formula 4000 0|0|1.006", "formula 4000 0|0|1.012", "formula 4000 0|0|1.4"],
    "ks-two": ["extra_a|extra_b", "tied_a|tied_b", "group_a|group_b", "pair|extra_a", "formula 90 0|uniform_ten", "low|wide",
               "formula 400 0|low", "formula 1001 0|low"],
    "shapiro-wilk": ["three", "three_tied", "four", "five", "seven", "eleven", "twelve", "extra_a", "skewed", "tied_a", "offset",
                     "tiny", "huge", "precise", "formula 5000 0"],
    "mann-whitney": ["group_a|group_b", "group_b|group_a|0.25", "extra_a|extra_b", "tied_a|tied_b", "precise|formula 50 0",
                     "precise|formula 50 0|999.5", "formula 50 0|formula 50 90|0.0625", "formula 51 0|precise|-999.625", "pair|far_pair"],
    "signed-rank": ["signs", "signs|0.5", "signs_tied", "wide", "formula 50 0|0.40625", "formula 51 0|0.4", "formula 50 0|-3",
                    "pair|1"],
    "signed-rank-pairs": ["extra_a|extra_b", "precise|formula 40 0|999.75", "tied_a|signs|0.5"],
}
ALTERNATIVES = {"fit": ["greater"], "independence": ["greater"], "shapiro-wilk": ["greater"]}


# Intervals.
def quantile(upper_tail, tail, low, high):
    """Where a falling upper tail has this value, by bisection."""
    while high - low > mpf(10) ** (10 - mp.dps) * max(abs(low), abs(high)):
        middle = (low + high) / 2
        low, high = (middle, high) if upper_tail(middle) > tail else (low, middle)
    return (low + high) / 2


def side(confidence):
    return real((1 - confidence) / 2)


def student_interval(estimate, squared_error, df, confidence):
    t = quantile(lambda x: student_tails(x, real(df))[1], side(confidence), mpf(0), mpf(10) ** 9)
    half_width = t * mp.sqrt(real(squared_error))
    return real(estimate) - half_width, real(estimate) + half_width


def mean_interval(x, confidence):
    return student_interval(mean(x), deviations(x) / (len(x) * (len(x) - 1)), len(x) - 1, confidence)


def prediction_interval(x, confidence):
    n = len(x)
    return student_interval(mean(x), deviations(x) / (n - 1) * (1 + Fraction(1, n)), n - 1, confidence)


def variance_interval(x, confidence):
    def chi_square(tail):
        return quantile(lambda v: chi_square_tails(v, len(x) - 1)[1], tail, mpf(0), mpf(10) ** 5)
    return real(deviations(x)) / chi_square(side(confidence)), real(deviations(x)) / chi_square(1 - side(confidence))


def pooled_interval(x, y, confidence):
    m, n = len(x), len(y)
    pooled = (deviations(x) + deviations(y)) / (m + n - 2)
    return student_interval(mean(x) - mean(y), pooled * (Fraction(1, m) + Fraction(1, n)), m + n - 2, confidence)


def welch_interval(x, y, confidence):
    squared_error, df = welch_parts(x, y)
    return student_interval(mean(x) - mean(y), squared_error, df, confidence)


def clopper_pearson(successes, trials, confidence):
    k, n = int(successes), int(trials)

    def at_most(i, p):
        return mp.fsum(mp.binomial(n, j) * p**j * (1 - p) ** (n - j) for j in range(i + 1))

    def at_least(i, p):
        return mp.fsum(mp.binomial(n, j) * p**j * (1 - p) ** (n - j) for j in range(i, n + 1))
    low = mpf(0) if k == 0 else quantile(lambda p: -at_least(k, p), -side(confidence), mpf(0), mpf(1))
    return low, mpf(1) if k == n else quantile(lambda p: at_most(k, p), side(confidence), mpf(0), mpf(1))


def normal_quantile(tail):
    return quantile(lambda z: normal_tails(z)[1], tail, mpf(0), mpf(200))


def wilson(successes, trials, confidence):
    z = normal_quantile(side(confidence))
    p, n = real(successes / trials), real(trials)
    centre, root = p + z**2 / (2 * n), z * mp.sqrt(p * (1 - p) / n + z**2 / (4 * n**2))
    return (centre - root) / (1 + z**2 / n), (centre + root) / (1 + z**2 / n)


def correlation(r, n, confidence):
    half_width = normal_quantile(side(confidence)) / mp.sqrt(real(n - 3))
    return mp.tanh(mp.atanh(real(r)) - half_width), mp.tanh(mp.atanh(real(r)) + half_width)


INTERVALS = {"mean": mean_interval, "prediction": prediction_interval, "variance": variance_interval,
             "pooled-difference": pooled_interval, "welch-difference": welch_interval, "clopper-pearson": clopper_pearson,
             "wilson": wilson, "correlation": correlation}
SAMPLES = ["extra_a|0.95", "pair|0.5", "offset|0.99", "precise|0.999999", "formula 200 0|0.9"]
PAIRS = ["extra_a|extra_b|0.95", "offset|offset_up|0.75", "pair|precise|0.999"]
PROPORTIONS = ["682|925|0.95", "0|10|0.99", "10|10|0.9", "1|1000|0.95", "7|13|0.999999"]
INTERVAL_CASES = {"mean": SAMPLES, "prediction": SAMPLES, "variance": SAMPLES, "pooled-difference": PAIRS, "welch-difference": PAIRS,
                  "clopper-pearson": PROPORTIONS, "wilson": PROPORTIONS,
                  "correlation": ["0.5|10|0.95", "-0.999|50|0.99", "0|4|0.5", "0.2|5000|0.999"]}


def read_samples(folder):
    lines = [line for line in (folder / "inference_samples.csv").read_text().splitlines() if line[0] != "#"]
    return {name: values for name, values in (line.split(",") for line in lines[1:])}


def read_arguments(text, samples):
    arguments = []
    for part in text.split("|"):
        words = samples.get(part, part).split()
        if words[0] == "formula":
            count, start = int(words[1]), int(words[2])
            arguments.append([Fraction(i * 7919 % 8191, 8192) for i in range(start, start + count)])
        else:
            values = [extended(word) for word in words]
            arguments.append(values if len(values) > 1 else values[0])
    return arguments


def decimal(value):
    """30 digits."""
    if value == "":
        return ""
    value = real(value)
    return "0" if value == 0 else mp.nstr(value, DIGITS, min_fixed=-5, max_fixed=15)


def confirmed(compute):
    """What is computed with 60 digits, if 90 agree."""
    rows = []
    for digits in (60, 90):
        with mp.workdps(digits):
            rows.append([decimal(value) if not isinstance(value, str) else value for value in compute()])
    if rows[0] != rows[1]:
        raise ArithmeticError(f"{rows[0]} is not {rows[1]}")
    return rows[0]


def test_row(test, case, alternative, samples):
    result = TESTS[test](alternative, *read_arguments(case, samples))
    p = result.p
    log_p = "-inf" if p == 0 else mp.log(p) if p < 0.5 else mp.log1p(-result.rest)
    return [result.statistic, result.df, result.df2, p, log_p, result.form]


def write(path, comment, columns, rows):
    path.write_text("\n".join([*comment, columns, *(",".join(row) for row in rows)]) + "\n")
    print(path, len(rows))


def main():
    folder = Path(sys.argv[1])
    samples = read_samples(folder)
    comment = ["# 30 significant digits by scripts/inference_tables.py with fractions and mpmath.",
               "# Arguments are samples of inference_samples.csv, numbers, or formulas as in the script."]
    rows = []
    for test, cases in CASES.items():
        for case in cases:
            for alternative in ALTERNATIVES.get(test, ["two-sided", "less", "greater"]):
                figures = confirmed(lambda: test_row(test, case, alternative, samples))
                rows.append([test, case, alternative, *figures])
    write(folder / "inference.csv", comment, "test,arguments,alternative,statistic,df,df2,p,log_p,form", rows)
    rows = [[name, case, *confirmed(lambda: INTERVALS[name](*read_arguments(case, samples)))]
            for name, cases in INTERVAL_CASES.items() for case in cases]
    write(folder / "intervals.csv", comment, "interval,arguments,least,greatest", rows)


main()
