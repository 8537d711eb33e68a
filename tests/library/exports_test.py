#!/usr/bin/env python3
"""The exported symbols of the built library against the two lists of them:
exports_test.py LIBRARY EXPORTS DATA_SIZES"""

import sys

import elf
from report import finish


def read_table(path):
    """The lines of a table as lists of words."""
    with open(path, encoding="ascii") as file:
        return [line.split() for line in file if line.strip() and not line.startswith("#")]


def kind_of(symbol, library):
    """T for what is code, D for what is data."""
    executable = library.sections[symbol.section].flags & elf.SHF_EXECINSTR
    if executable and symbol.kind == elf.STT_FUNC:
        return "T"
    if not executable and symbol.kind == elf.STT_OBJECT:
        return "D"
    return f"neither function nor variable (type {symbol.kind})"


def check_names(library, exported, listed):
    kinds = {name: kind for kind, name in listed}
    if len(kinds) != len(listed):
        names = [name for _, name in listed]
        yield f"listed twice: {', '.join(sorted({n for n in names if names.count(n) > 1}))}"
    for name in sorted(kinds.keys() - exported.keys()):
        yield f"{name} is listed, but the library does not export it"
    for name in sorted(exported.keys() - kinds.keys()):
        yield f"{name} is exported, but not listed"
    for name in sorted(exported.keys() & kinds.keys()):
        kind = kind_of(exported[name], library)
        if kind != kinds[name]:
            yield f"{name} is listed as {kinds[name]}, but is {kind}"


def check_binding(exported):
    """The dynamic linker may resolve each of them to the host's own."""
    for name, symbol in sorted(exported.items()):
        if symbol.binding != elf.STB_GLOBAL:
            yield f"{name} is not global"
        if symbol.visibility != elf.STV_DEFAULT:
            yield f"{name} has not the default visibility"


def check_sizes(library, exported, listed, sizes):
    sizes = {name: int(on_card if library.bits == 32 else wide) for name, on_card, wide in sizes}
    variables = {name for kind, name in listed if kind == "D"}
    for name in sorted(variables - sizes.keys()):
        yield f"no size is listed for the variable {name}"
    for name in sorted(sizes.keys() - variables):
        yield f"a size is listed for {name}, which is no exported variable"
    for name in sorted(sizes.keys() & exported.keys()):
        if exported[name].size != sizes[name]:
            yield f"{name} has {exported[name].size} bytes instead of {sizes[name]}"


def main():
    library = elf.Elf(sys.argv[1])
    listed = read_table(sys.argv[2])
    exported = {
        symbol.name: symbol
        for symbol in library.symbols(".dynsym")
        if symbol.name and symbol.section != elf.UNDEFINED
    }
    print(f"{len(exported)} symbols are exported, {len(listed)} are listed")
    finish([
        *check_names(library, exported, listed),
        *check_binding(exported),
        *check_sizes(library, exported, listed, read_table(sys.argv[3])),
    ])


main()
