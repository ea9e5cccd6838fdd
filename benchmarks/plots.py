"""Draws the plot of docs/performance.md: time against size, one panel per routine, as SVG."""

import math

WIDTH, HEIGHT = 900, 690
PANEL_WIDTH, PANEL_HEIGHT = 270, 240
LEFT, TOP = 48, 56  # of the first panel
STEP_X, STEP_Y = 450, 345  # from panel to panel
LINE_HEIGHT = 15

# The lines of a panel: routine, elements, who, label, class.
PANELS = [
    ('Sum', 'ns per element', 'elements', [
        ('SumVector', 'Float', 'ours', 'Qorvex, Float', 'float'),
        ('SumVector', 'Float', 'std::accumulate', 'std::accumulate', 'float peer'),
        ('SumVector', 'Double', 'ours', 'Qorvex, Double', 'double'),
        ('SumVector', 'LInt', 'ours', 'Qorvex, LInt', 'integer'),
        ('SumVector', 'LInt', 'loop', 'int64 loop', 'integer peer')]),
    ('Sort', 'ns per element', 'elements', [
        ('QSortVector', 'Float', 'ours', 'Qorvex, Float', 'float'),
        ('QSortVector', 'Float', 'std::sort', 'std::sort, Float', 'float peer'),
        ('QSortVector', 'Double', 'ours', 'Qorvex, Double', 'double'),
        ('QSortVector', 'Double', 'std::sort', 'std::sort, Double', 'double peer'),
        ('QSortVector', 'Double', 'vqsort', 'vqsort, Double', 'double peer')]),
    ('Matrix product', 'ns per multiplication', 'order', [
        ('MultiplyMatrices', 'Float', 'ours', 'Qorvex, Float', 'float'),
        ('MultiplyMatrices', 'Float', 'Eigen', 'Eigen, Float', 'float peer'),
        ('MultiplyMatrices', 'Float', 'uBLAS', 'uBLAS, Float', 'float peer'),
        ('MultiplyMatrices', 'Double', 'ours', 'Qorvex, Double', 'double')]),
    ('Inverse', 'ns per multiplication', 'order', [
        ('MatrixInverse', 'Float', 'ours', 'Qorvex, Float', 'float'),
        ('MatrixInverse', 'Float', 'Eigen', 'Eigen, Float', 'float peer'),
        ('MatrixInverse', 'Float', 'uBLAS', 'uBLAS, Float', 'float peer'),
        ('MatrixInverse', 'Double', 'ours', 'Qorvex, Double', 'double')]),
]

# An opaque background, because a page may be light where the reader's system is dark.
STYLE = """
text { font: 13px system-ui, "Segoe UI", "DejaVu Sans", sans-serif; fill: #59636e }
.title { font-weight: 600; font-size: 15px; fill: #1f2328 }
.background { fill: #ffffff }
.grid { stroke: #d1d9e0; stroke-width: 1 }
path { fill: none; stroke-width: 2.5; stroke-linejoin: round }
.peer { stroke-width: 1.5; stroke-dasharray: 5 3 }
circle { stroke: none }
path.float { stroke: #0550ae } .float.mark, text.float { fill: #0550ae }
path.double { stroke: #bc4c00 } .double.mark, text.double { fill: #bc4c00 }
path.integer { stroke: #8250df } .integer.mark, text.integer { fill: #8250df }
@media (prefers-color-scheme: dark) {
  text { fill: #9198a1 } .title { fill: #f0f6fc } .background { fill: #0d1117 } .grid { stroke: #3d444d }
  path.float { stroke: #58a6ff } .float.mark, text.float { fill: #58a6ff }
  path.double { stroke: #f0883e } .double.mark, text.double { fill: #f0883e }
  path.integer { stroke: #bc8cff } .integer.mark, text.integer { fill: #bc8cff }
}
"""


class Axis:
    """A logarithmic axis from one pixel to another, from the lowest tick to the highest."""

    def __init__(self, ticks, start, end):
        self.ticks, self.start, self.end = ticks, start, end

    def __call__(self, value):
        part = math.log(value / self.ticks[0]) / math.log(self.ticks[-1] / self.ticks[0])
        return self.start + part * (self.end - self.start)


def ticks_around(values):
    """The numbers 1, 2 and 5 times a power of ten from the last below all values to the first above."""
    decades = range(math.floor(math.log10(min(values))), math.ceil(math.log10(max(values))) + 1)
    ticks = [step * 10.0 ** decade for decade in decades for step in (1, 2, 5)]
    return [t for t in ticks if max(u for u in ticks if u <= min(values)) <= t <=
            min(u for u in ticks if u >= max(values))]


def spread(wanted):
    """Positions near the wanted ones, at least a line apart, in the same order."""
    order = sorted(range(len(wanted)), key=lambda i: wanted[i])
    groups = []  # of labels that touch: members, centre
    for i in order:
        groups.append(([i], wanted[i]))
        while len(groups) > 1 and (groups[-1][1] - groups[-2][1] <
                                   (len(groups[-1][0]) + len(groups[-2][0])) * LINE_HEIGHT / 2):
            (b, at_b), (a, at_a) = groups.pop(), groups.pop()
            groups.append((a + b, (at_a * len(a) + at_b * len(b)) / (len(a) + len(b))))
    placed = list(wanted)
    for members, centre in groups:
        for k, i in enumerate(members):
            placed[i] = centre + (k - (len(members) - 1) / 2) * LINE_HEIGHT
    return placed


def number(value):
    exponent = round(math.log10(value))
    return '10' + '⁰¹²³⁴⁵⁶⁷⁸⁹'[exponent] if value >= 1000 and value == 10 ** exponent else f'{value:g}'


def draw_panel(times, x0, y0, title, unit, size, lines):
    curves = []
    for routine, elements, who, label, kind in lines:
        points = sorted((int(n), of_row[who]) for (r, e, n), of_row in times.items()
                        if (r, e) == (routine, elements) and who in of_row)
        if points:
            curves.append((points, label, kind))
    if not curves:
        return []
    sizes = sorted({n for points, *_ in curves for n, _ in points})
    x_axis = Axis(sizes, x0, x0 + PANEL_WIDTH)
    y_axis = Axis(ticks_around([t for points, *_ in curves for _, t in points]), y0 + PANEL_HEIGHT, y0)
    out = [f'<text class="title" x="{x0}" y="{y0 - 30}">{title}</text>',
           f'<text x="{x0}" y="{y0 - 12}">{unit}</text>']
    for tick in y_axis.ticks:
        y = y_axis(tick)
        out.append(f'<line class="grid" x1="{x0}" x2="{x0 + PANEL_WIDTH}" y1="{y:.1f}" y2="{y:.1f}"/>')
        out.append(f'<text x="{x0 - 8}" y="{y + 4:.1f}" text-anchor="end">{number(tick)}</text>')
    for tick in x_axis.ticks:
        out.append(f'<text x="{x_axis(tick):.1f}" y="{y0 + PANEL_HEIGHT + 20}" text-anchor="middle">'
                   f'{number(tick)}</text>')
    out.append(f'<text x="{x0 + PANEL_WIDTH / 2}" y="{y0 + PANEL_HEIGHT + 40}" text-anchor="middle">{size}</text>')
    label_ys = spread([y_axis(points[-1][1]) for points, *_ in curves])
    for (points, label, kind), label_y in zip(curves, label_ys):
        path = ' L'.join(f'{x_axis(n):.1f},{y_axis(t):.1f}' for n, t in points)
        out.append(f'<path class="{kind}" d="M{path}"/>')
        if 'peer' not in kind:
            out += [f'<circle class="{kind} mark" cx="{x_axis(n):.1f}" cy="{y_axis(t):.1f}" r="3"/>'
                    for n, t in points]
        out.append(f'<text class="{kind}" x="{x_axis(points[-1][0]) + 8:.1f}" y="{label_y + 4:.1f}">{label}</text>')
    return out


def draw(times):
    out = [f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {WIDTH} {HEIGHT}" role="img" '
           'aria-label="Time against size: sum, sort, matrix product, inverse">',
           f'<style>{STYLE}</style>', f'<rect class="background" width="{WIDTH}" height="{HEIGHT}"/>']
    for i, panel in enumerate(PANELS):
        out += draw_panel(times, LEFT + i % 2 * STEP_X, TOP + i // 2 * STEP_Y, *panel)
    return '\n'.join(out) + '\n</svg>\n'
