"""What the scripts of the tables of elementary functions share: numbers as words, and the files.

A script computes its tables with mpmath, asserts the error bounds that the comments in the C++ state, and ends with

    run(__file__, tables={"name": rows, ...}, constants={"core.h": {"kName": words, ...}, ...})

where a row is a list of 64-bit words: words(fixed(value, scale)) for a number of 128 bits. The table "name" is
qorvex/base/elementary/detail/tables/name.inc; C++ includes it between the braces of an array. The few constants that
are written into a header or source are compared with it, whichever way they are grouped.

usage of a script: SCRIPT [--write]     without --write, the status is 1 unless the tables are what it would write
"""

import re
import sys
from pathlib import Path

from mpmath import mp, mpf

mp.prec = 400

ROOT = Path(__file__).resolve().parents[2]
DETAIL = ROOT / "qorvex/base/elementary/detail"
FOLDER = DETAIL / "tables"
COLUMNS = 100


def fixed(value, scale):
    """The integer nearest to value 2^scale."""
    return int(mp.nint(mp.ldexp(mpf(value), scale)))


def words(integer, count=2):
    """The 64-bit words of an integer, from the highest to the lowest."""
    assert 0 <= integer < 1 << 64 * count, f"{integer:#x} has not {count} words"
    return [integer >> 64 * i & (1 << 64) - 1 for i in reversed(range(count))]


def multiply_high(a, b):
    """a b / 2^128, without the product of the low words, as in C++."""
    mask = (1 << 64) - 1
    return (a >> 64) * (b >> 64) + ((a >> 64) * (b & mask) >> 64) + ((a & mask) * (b >> 64) >> 64)


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


def words_of(name, source):
    """The hexadecimal words of the definition of a constant."""
    definition = re.search(rf"\b{name}\b[^;=]*=?[^;]*;", source)
    return [int(word, 16) for word in re.findall(r"0x[0-9a-f]+", definition[0])] if definition else []


def run(script, tables, constants=None):
    """Writes the tables, or checks the files; checks the constants."""
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
            different.append(f"{path.name} is not what the script writes")
    for file, values in (constants or {}).items():
        source = (DETAIL / file).read_text()
        for name, expected in values.items():
            if words_of(name, source) != expected:
                different.append(f"{file}: {name} is not " + ", ".join(f"0x{word:016x}" for word in expected))
    if different:
        sys.exit("\n".join(different))
