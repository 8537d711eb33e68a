"""Reads a BitBake recipe, as far as ours goes: assignments, and ${NAME} in their values."""

from __future__ import annotations

import re
from pathlib import Path

ASSIGNMENT = re.compile(r'(?P<name>[A-Z_]+(?:[:\[][^\s=]*)?)\s*(?P<how>\?\?=|\+=|=\+|=)\s*"(?P<value>[^"]*)"$')

# What the build system sets, and what its base class lists for the packages.
SURROUNDINGS = {
    "PN": "sys-context", "WORKDIR": "WORK", "bindir": "/usr/bin", "libdir": "/usr/lib",
    "includedir": "/usr/include", "datadir": "/usr/share", "mandir": "/usr/share/man",
    "docdir": "/usr/share/doc",
    "PACKAGES": "${PN}-dev ${PN}-doc ${PN}",
    "FILES:${PN}": "${bindir}/* ${libdir}/lib*.so.* ${datadir}/${PN}",
    "FILES:${PN}-dev": "${includedir} ${libdir}/lib*.so ${libdir}/pkgconfig ${libdir}/cmake",
    "FILES:${PN}-doc": "${docdir} ${mandir}",
}


def read(path: Path) -> dict[str, str]:
    """The recipe's variables, unexpanded, with PV from the file's name."""
    values = {**SURROUNDINGS, "PV": path.stem.split("_")[1]}
    for number, line in enumerate(path.read_text().splitlines(), 1):
        if not line or line.startswith(("#", "inherit ")):
            continue
        found = ASSIGNMENT.match(line)
        if found is None:
            raise ValueError(f"{path.name}:{number}: not understood: {line}")
        old = values.get(found["name"], "")
        values[found["name"]] = {"=": found["value"], "??=": old or found["value"],
                                 "+=": f"{old} {found['value']}",
                                 "=+": f"{found['value']} {old}"}[found["how"]]
    return values


def expand(values: dict[str, str], text: str) -> str:
    while (found := re.search(r"\$\{([^}]*)\}", text)) is not None:
        text = text[:found.start()] + values[found[1]] + text[found.end():]
    return text


def files_of_packages(values: dict[str, str], files: list[str]) -> dict[str, list[str]]:
    """Every file goes to the first package that lists it; under "", what none does."""
    lists = {expand(values, name): expand(values, value) for name, value in values.items()
             if name.startswith("FILES:")}
    packages: dict[str, list[str]] = {}
    for file in files:
        owners = [package for package in expand(values, values["PACKAGES"]).split()
                  if any(matches(pattern, file) for pattern in lists[f"FILES:{package}"].split())]
        packages.setdefault(owners[0] if owners else "", []).append(file)
    return packages


def matches(pattern: str, file: str) -> bool:
    """A pattern names a file or a folder; "*" stands for anything but "/"."""
    expression = re.escape(pattern).replace(r"\*", "[^/]*")
    return re.fullmatch(f"{expression}(/.*)?", file) is not None
