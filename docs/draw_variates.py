#!/usr/bin/python3
"""Draws the histograms of docs/random_variates.md from the output of qorvex random and qorvex dist.

This is the only script that needs matplotlib (the Debian package python3-matplotlib). Build the program first:

    docs/draw_variates.py [--program build/release/bin/qorvex] [--format svg] [--folder docs/images]

With the same versions of the program and matplotlib, the files are identical.
"""

import argparse
import pathlib
import subprocess

import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plt
import numpy as np
from matplotlib.patches import PathPatch
from matplotlib.path import Path

COUNT = 100_000
SEED = 1
BARS, LINE, TEXT, AXIS = "#c9dcec", "#0b4a80", "#333333", "#999999"

STYLE = {
    "svg.hashsalt": "qorvex",
    "svg.fonttype": "none",
    "font.size": 9,
    "text.color": TEXT,
    "axes.labelcolor": TEXT,
    "axes.edgecolor": AXIS,
    "axes.linewidth": 0.8,
    "axes.spines.top": False,
    "axes.spines.right": False,
    "xtick.color": AXIS,
    "ytick.color": AXIS,
    "xtick.labelcolor": TEXT,
    "ytick.labelcolor": TEXT,
    "legend.frameon": False,
}


class Program:
    def __init__(self, path):
        self.path = path

    def numbers(self, *arguments):
        run = subprocess.run([self.path, *arguments], check=True, capture_output=True, text=True)
        return np.array([line.split(",") for line in run.stdout.splitlines()], dtype=float)

    def sample(self, variate):
        seed = ["--count", str(COUNT), "--seed", str(SEED)]
        return self.numbers("random", *variate.split(), *seed)[:, 0]

    def density(self, distribution, *range_options):
        family, *parameters = distribution.split()
        return self.numbers("dist", family, "table", *parameters, *range_options).T


def draw_bars(axes, left, width, heights, bottom, label):
    """Draws all bars as one path, which makes the file a third smaller."""
    right = left + width
    base = np.full_like(heights, bottom)
    corners = [(left, base), (left, heights), (right, heights), (right, base), (left, base)]
    vertices = np.moveaxis(np.array(corners), 2, 0).reshape(-1, 2)
    codes = [Path.MOVETO, Path.LINETO, Path.LINETO, Path.LINETO, Path.CLOSEPOLY] * len(heights)
    axes.add_patch(PathPatch(Path(vertices, codes), facecolor=BARS, edgecolor="none", label=label))


def draw_continuous(axes, program, arguments, ends, top=None, density=None, bins=50, bottom=0):
    sample = program.sample(arguments)
    counts, edges = np.histogram(sample, bins=bins, range=ends)
    widths = np.diff(edges)
    # Variates beyond the ends count, although they are not shown.
    heights = counts / (len(sample) * widths)
    draw_bars(axes, edges[:-1] + 0.05 * widths, 0.9 * widths, np.maximum(heights, bottom), bottom,
              "histogram")
    lo, hi = ends
    if density is None:
        # The density may be infinite at an end.
        inset = 2e-3 * (hi - lo)
        steps = ["--from", repr(lo + inset), "--to", repr(hi - inset), "--n", "200"]
        points, densities = program.density(arguments, *steps)
    else:
        points = np.linspace(lo, hi, 201)
        densities = density(points)
    axes.plot(points, densities, color=LINE, linewidth=1.2, label="density")
    axes.set_xlim(ends)
    axes.set_ylim(bottom, top or 1.12 * max(densities))
    axes.set_xlabel("variate")
    axes.set_ylabel("density")


def draw_von_mises(axes, program, concentration):
    scale = 1 / (2 * np.pi * np.i0(concentration))
    draw_continuous(axes, program, f"von-mises --concentration {concentration}", (-np.pi, np.pi),
                    density=lambda x: scale * np.exp(concentration * np.cos(x)), bins=48)
    axes.set_xticks(np.linspace(-np.pi, np.pi, 5), ["\u2212π", "\u2212π/2", "0", "π/2", "π"])
    axes.set_xlabel("angle")


def draw_tails(axes, program, arguments, ends, bottom):
    axes.set_yscale("log")
    draw_continuous(axes, program, arguments, ends, top=1, bottom=bottom)
    axes.set_ylabel("density, logarithmic")
    axes.minorticks_off()


def draw_discrete(axes, program, arguments, ends):
    sample = program.sample(arguments)
    lo, hi = ends
    points, probabilities = program.density(arguments, "--from", str(lo), "--to", str(hi))
    shares = np.array([np.mean(sample == k) for k in points])
    draw_bars(axes, points - 0.42, 0.84, shares, 0, "share")
    axes.plot(points, probabilities, "o", color=LINE, markersize=3, label="probability")
    axes.set_xlim(lo - 0.6, hi + 0.6)
    axes.set_ylim(0, 1.12 * max(probabilities))
    axes.set_xlabel("count")
    axes.set_ylabel("probability")


# File name, title, function that draws the picture, and its arguments.
PICTURES = [
    ("gamma", "Gamma, shape 2.5", draw_continuous, "gamma --shape 2.5", (0.0, 10.0)),
    ("beta", "Beta, shapes 0.6 and 0.8", draw_continuous, "beta --a 0.6 --b 0.8", (0.0, 1.0), 2.6),
    ("student_t", "Student t, 4 degrees of freedom",
     draw_tails, "student-t --df 4", (-12.0, 12.0), 2e-5),
    ("von_mises", "Von Mises, concentration 2", draw_von_mises, 2),
    ("binomial", "Binomial, 40 trials with probability 0.3",
     draw_discrete, "binomial --trials 40 --success-probability 0.3", (1, 24)),
    ("poisson", "Poisson, mean 15", draw_discrete, "poisson --lambda 15", (2, 31)),
]


def main():
    root = pathlib.Path(__file__).resolve().parent.parent
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--program", default=root / "build/release/bin/qorvex")
    parser.add_argument("--format", default="svg")
    parser.add_argument("--folder", type=pathlib.Path, default=root / "docs/images")
    options = parser.parse_args()
    program = Program(options.program)

    plt.rcParams.update(STYLE)
    count = f"{COUNT:,}".replace(",", "\N{NO-BREAK SPACE}")
    metadata = {"Date": None} if options.format == "svg" else None
    for name, title, draw, *arguments in PICTURES:
        figure, axes = plt.subplots(figsize=(4.8, 3.2), layout="constrained")
        figure.get_layout_engine().set(w_pad=0.12, h_pad=0.12)
        draw(axes, program, *arguments)
        axes.set_title(title, loc="left", pad=20, fontsize=11, fontweight="bold")
        axes.annotate(f"{count} variates, seed {SEED}", (0, 1), (0, 8), "axes fraction",
                      "offset points", fontsize=8.5)
        axes.legend(loc="upper right", fontsize=8, handlelength=1.4)
        figure.savefig(options.folder / f"{name}.{options.format}", dpi=150, metadata=metadata)
        plt.close(figure)


if __name__ == "__main__":
    main()
