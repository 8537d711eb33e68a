#!/usr/bin/env python3
"""The exported interface of a built library against that of the last release, types and
all; or the record of it:
abi_test.py {check,record} LIBRARY RECORD ROOT

The library must have debug information. Whoever was built with the release must run with
this library; so what is added is no difference."""

from __future__ import annotations

import subprocess
import sys
from pathlib import Path

from report import finish

# Types that no public header has are the library's own business.
RECORD = ["--drop-private-types", "--exported-interfaces-only", "--drop-undefined-syms",
          "--no-show-locs", "--no-comp-dir-path", "--no-corpus-path", "--no-parameter-names",
          "--no-write-default-sizes", "--type-id-style", "hash"]
# Not --drop-private-types: the record does not say where a type is declared, so abidiff
# would take every type for one of these, and be silent about its changes.
COMPARE = ["--exported-interfaces-only", "--no-added-syms", "--no-show-locs",
           "--fail-no-debug-info"]
UNUSABLE = 1 | 2  # what abidiff ends with when it was used wrongly or failed


def output_of(command: list[str | Path]) -> subprocess.CompletedProcess:
    return subprocess.run(command, capture_output=True, text=True)


def record(library: Path, to: Path, root: Path) -> list[str]:
    described = output_of(["abidw", "--headers-dir", root / "include", *RECORD, library])
    if described.returncode != 0 or "<function-decl" not in described.stdout:
        return [f"abidw cannot describe {library}:\n{described.stderr}"]
    to.parent.mkdir(parents=True, exist_ok=True)
    to.write_text(described.stdout.replace(f"path='{root}/", "path='"), encoding="ascii")
    print(to)
    return []


def check(library: Path, recorded: Path, _: Path) -> list[str]:
    compared = output_of(["abidiff", *COMPARE, recorded, library])
    if compared.returncode == 0:
        return []
    if compared.returncode & UNUSABLE:
        return [f"abidiff cannot compare them:\n{compared.stdout}{compared.stderr}"]
    return [f"the interface is not that of {recorded}:\n{compared.stdout}"]


def main() -> None:
    action = {"check": check, "record": record}[sys.argv[1]]
    finish(action(*map(Path, sys.argv[2:])))


main()
