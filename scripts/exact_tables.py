#!/usr/bin/env python3
"""Makes the reference tables of pairs, weighted values and frequency tables: exact_pairs.csv, weighted.csv and
weighted_grouped.csv.

All inputs are 80-bit values. All figures are computed with fractions, as sums over deviations from the mean, and
rounded once to the nearest 80-bit value, ties to even. 21 digits identify such a value.

usage: exact_tables.py FOLDER
"""

import random
import sys
from fractions import Fraction
from math import isqrt
from pathlib import Path

BITS = 64


def rounded(value, root=False):
    """The nearest 80-bit value to a fraction, or to its square root."""
    value = Fraction(value)
    if value == 0:
        return value
    magnitude = abs(value)
    exponent = magnitude.numerator.bit_length() - magnitude.denominator.bit_length()
    if root:
        exponent //= 2
    shift = max(exponent - BITS - 2, -16445 - 3)
    scaled = magnitude / Fraction(2) ** (2 * shift if root else shift)
    whole = scaled.numerator // scaled.denominator
    exact = whole == scaled
    if root:
        exact = exact and isqrt(whole) ** 2 == whole
        whole = isqrt(whole)
    drop = max(whole.bit_length() - BITS, -16445 - shift)
    quotient, rest = divmod(whole, 1 << drop)
    half = 1 << (drop - 1)
    if rest > half or rest == half and (not exact or quotient % 2 == 1):
        quotient += 1
    result = quotient * Fraction(2) ** (shift + drop)
    return -result if value < 0 else result


def text(value):
    """21 significant digits."""
    value = Fraction(value)
    if value == 0:
        return "0"
    if value.denominator == 1 and abs(value) < 10**21:
        return str(value)
    magnitude = abs(value)
    exponent = len(str(magnitude.numerator)) - len(str(magnitude.denominator))
    if Fraction(10) ** exponent > magnitude:
        exponent -= 1
    digits = round(magnitude / Fraction(10) ** (exponent - 20))
    if digits == 10**21:
        digits, exponent = 10**20, exponent + 1
    return ("-" if value < 0 else "") + f"{str(digits)[0]}.{str(digits)[1:]}".rstrip("0").rstrip(".") + f"e{exponent}"


def signed_root(numerator, square):
    """numerator / sqrt(square), rounded once."""
    root = rounded(numerator**2 / square, root=True)
    return -root if numerator < 0 else root


def pair_figures(x, y, decimals):
    x, y = ([v / 10**places for v in column] for column, places in zip((x, y), decimals))
    n = len(x)
    mean_x, mean_y = sum(x) / n, sum(y) / n
    xx = sum((a - mean_x) ** 2 for a in x)
    yy = sum((b - mean_y) ** 2 for b in y)
    xy = sum((a - mean_x) * (b - mean_y) for a, b in zip(x, y))
    slope = xy / xx
    intercept = mean_y - slope * mean_x
    errors = sum((b - intercept - slope * a) ** 2 for a, b in zip(x, y))
    return {
        "sum_x": rounded(sum(x)), "sum_of_squares_y": rounded(sum(b**2 for b in y)),
        "sum_of_products": rounded(sum(a * b for a, b in zip(x, y))),
        "mean_x": rounded(mean_x), "mean_y": rounded(mean_y),
        "sample_variance_x": rounded(xx / (n - 1)), "population_variance_y": rounded(yy / n),
        "population_std_dev_x": rounded(xx / n, True), "sample_std_dev_y": rounded(yy / (n - 1), True),
        "sample_covariance": rounded(xy / (n - 1)), "population_covariance": rounded(xy / n),
        "correlation": signed_root(xy, xx * yy), "determination": rounded(xy**2 / (xx * yy)),
        "slope": rounded(slope), "intercept": rounded(intercept), "sse": rounded(errors), "regression": rounded(yy - errors),
    }


def weighted_figures(values, weights):
    total = sum(weights)
    mean = sum(v * w for v, w in zip(values, weights)) / total
    deviations = sum(w * (v - mean) ** 2 for v, w in zip(values, weights))
    variances = {
        "frequency": deviations / (total - 1),
        "reliability": deviations / (total - sum(w**2 for w in weights) / total),
        "population": deviations / total,
    }
    figures = {"mean": rounded(mean)}
    for kind, variance in variances.items():
        figures["variance_" + kind] = rounded(variance)
        figures["std_dev_" + kind] = rounded(variance, True)
    return figures


def grouped_figures(freq):
    values = [Fraction(i) for i, count in enumerate(freq) for _ in range(int(count))]
    n = Fraction(len(values))
    mean = sum(values) / n
    square, cube, fourth = (sum((v - mean) ** k for v in values) for k in (2, 3, 4))
    sample, population = square / (n - 1), square / n
    return {
        "sample_skew": signed_root(n * cube / ((n - 1) * (n - 2)), sample**3),
        "population_skew": signed_root(cube / n, population**3),
        "sample_kurtosis": rounded(n * (n + 1) * fourth / ((n - 1) * (n - 2) * (n - 3) * sample**2)
                                   - 3 * (n - 1) ** 2 / ((n - 2) * (n - 3))),
        "population_kurtosis": rounded(fourth / (n * population**2) - 3),
    }


def decimals(rng, n, centre, spread, places):
    """80-bit values of decimal numbers."""
    return [rounded(Fraction(round(rng.uniform(-spread, spread) * 10**places), 10**places) + centre) for _ in range(n)]


def scattered(rng, n, exponents):
    """Values with all 64 bits and random exponents."""
    return [Fraction(rng.choice((-1, 1)) * rng.randrange(1 << 63, 1 << 64)) * Fraction(2) ** rng.randint(*exponents)
            for _ in range(n)]


def write(path, title, names, rows, figures):
    lines = []
    for row in rows:
        computed = figures(*row)
        lines.append([" ".join(text(v) for v in column) for column in row] + [text(v) for v in computed.values()])
    header = ",".join([*names, *computed])
    path.write_text("\n".join([f"# {title} Made by scripts/exact_tables.py.", header, *(",".join(l) for l in lines)]) + "\n")


def main():
    sys.set_int_max_str_digits(0)
    folder = Path(sys.argv[1])
    rng = random.Random(18)

    pairs = [(decimals(rng, n, 0, 100, 2), decimals(rng, n, 0, 1000, 1)) for n in (2, 3, 5, 12)]
    years = [Fraction(year) for year in range(2000, 2026)]
    pairs.append((years, decimals(rng, 26, 50, 3, 2)))
    pairs.append((decimals(rng, 8, 10**12, 1, 1), decimals(rng, 8, -(10**15), 1, 3)))
    pairs += [(scattered(rng, n, (-70, 10)), scattered(rng, n, (-200, 200))) for n in (3, 7)]
    pairs.append((scattered(rng, 4, (-8000, -7990)), scattered(rng, 4, (8000, 8100))))
    pairs.append(([Fraction(k) for k in range(9)], [Fraction((1 << 60) // 10, 1 << 60) * k for k in range(9)]))
    pairs.append((pairs[0][0], [-v for v in pairs[0][0]]))
    rows = [(x, y, (0, 0)) for x, y in pairs]
    rows += [([Fraction(rng.randint(-9999, 9999)) for _ in range(12)], [Fraction(rng.randint(1, 99)) for _ in range(12)],
              places) for places in ((2, 0), (0, 1), (3, 2))]
    write(folder / "exact_pairs.csv",
          "Pairs of 80-bit values and their figures, rounded once. Values with decimals stand for value / 10^decimals.",
          ("x", "y", "decimals"), rows, pair_figures)

    weighted = [(decimals(rng, n, 0, 100, 1), [Fraction(rng.randint(1, 9)) for _ in range(n)]) for n in (2, 4, 20)]
    weighted += [(decimals(rng, n, 10**9, 1, 3), decimals(rng, n, 2, 1, 3)) for n in (3, 15)]
    weighted.append((scattered(rng, 5, (-100, 100)), [abs(v) for v in scattered(rng, 5, (-64, 40))]))
    weighted.append((scattered(rng, 3, (-8262, -8255)), [abs(v) for v in scattered(rng, 3, (8000, 16310))]))
    write(folder / "weighted.csv", "Weighted 80-bit values and their figures, rounded once.", ("values", "weights"),
          weighted, weighted_figures)

    grouped = [([2, 3, 5, 1, 4],), ([0, 0, 7, 0, 1, 0],), ([5, 0, 0, 5],), ([1, 30, 200, 441, 260, 60, 9],),
               ([26000, 0, 1, 99, 900],)]
    grouped.append(([rng.randint(0, 40) for _ in range(60)],))
    write(folder / "weighted_grouped.csv", "Frequencies of classes and the moments of the values, rounded once.",
          ("freq",), grouped, grouped_figures)


if __name__ == "__main__":
    main()
