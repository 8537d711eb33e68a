#!/usr/bin/env python3
"""What a start with the large sample takes of the heap, against what it may take:
heap_test.py POINTER_BYTES PROGRAM ARGUMENT..."""

from __future__ import annotations

import subprocess
import sys

from report import finish

# By the rows of the program's table: blocks, bytes asked for, bytes taken.
# The blocks that stay and what was asked for them are exact. What the allocator takes depends
# on the C library, as does the open file, which is in the peak: these are bounds.
LIMITS = {
    4: {
        "after ddInit": (1_504, 310_188, 317_856),
        "peak during ddInit": (1_430, 3_390_000, 3_400_000),
    },
    8: {
        "after ddInit": (1_504, 317_796, 339_840),
        "peak during ddInit": (1_430, 3_400_000, 3_425_000),
    },
}
COLUMNS = ("blocks", "bytes asked for", "bytes taken")
EXACT = {("after ddInit", "blocks"), ("after ddInit", "bytes asked for")}


def rows_of(table: str) -> dict[str, list[int]]:
    rows = {}
    for line in table.splitlines():
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if len(cells) == 1 + len(COLUMNS) and all(cell.isdigit() for cell in cells[1:]):
            rows[cells[0]] = [int(cell) for cell in cells[1:]]
    return rows


def main() -> None:
    pointer_bytes, *command = sys.argv[1:]
    measured = subprocess.run(command, stdout=subprocess.PIPE, text=True, check=True).stdout
    print(measured)
    rows = rows_of(measured)
    failures = []
    for name, limits in LIMITS[int(pointer_bytes)].items():
        for column, value, limit in zip(COLUMNS, rows.get(name, ()), limits):
            if (name, column) in EXACT and value != limit:
                failures.append(f"{name}: {value} {column} instead of {limit}")
            elif value > limit:
                failures.append(f"{name}: {value} {column} instead of at most {limit}")
        if name not in rows:
            failures.append(f"{name} was not measured")
    finish(failures)


main()
