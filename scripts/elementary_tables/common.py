"""What the scripts of the tables of elementary functions share: numbers as words, and the files.

A script computes its tables with mpmath, asserts the error bounds that the comments in the C++ state, and ends with

    run(__file__, {"name": rows, ...})

where a row is a list of 64-bit words: words(fixed(value, scale)) for a number of 128 bits. The table "name" is
qorvex/base/elementary/detail/tables/name.inc; C++ includes it between the braces of an array.

usage of a script: SCRIPT [--write]     without --write, the status is 1 unless the files are what it would write
"""

import sys
from pathlib import Path

from mpmath import mp, mpf

mp.prec = 400

ROOT = Path(__file__).resolve().parents[2]
FOLDER = ROOT / "qorvex/base/elementary/detail/tables"
COLUMNS = 100


def fixed(value, scale):
    """The integer nearest to value 2^scale."""
    return int(mp.nint(mp.ldexp(mpf(value), scale)))


def words(integer, count=2):
    """The 64-bit words of an integer, from the highest to the lowest."""
    assert 0 <= integer < 1 << 64 * count, f"{integer:#x} has not {count} words"
    return [integer >> 64 * i & (1 << 64) - 1 for i in reversed(range(count))]


def text_of(rows, script):
    """The text of a table, with rows of one word side by side."""
    lines = [f"// Made by scripts/elementary_tables/{Path(script).name}."]
    cells = [", ".join(f"0x{word:016x}" for word in row) for row in rows]
    if all(len(row) == 1 for row in rows):
        per_line = (COLUMNS + 1) // 20
        lines += [", ".join(cells[i : i + per_line]) + "," for i in range(0, len(cells), per_line)]
    else:
        lines += [f"{{{cell}}}," for cell in cells]
    return "\n".join(lines) + "\n"


def run(script, tables):
    """Writes the tables, or checks the files."""
    write = sys.argv[1:] == ["--write"]
    if sys.argv[1:] and not write:
        sys.exit(f"usage: {Path(script).name} [--write]")
    different = []
    for name, rows in tables.items():
        path = FOLDER / f"{name}.inc"
        text = text_of(rows, script)
        if write:
            FOLDER.mkdir(exist_ok=True)
            path.write_text(text)
        elif not path.exists() or path.read_text() != text:
            different.append(str(path.relative_to(ROOT)))
    if different:
        sys.exit("not what the script writes: " + ", ".join(different))
