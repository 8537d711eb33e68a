#!/usr/bin/env python3
"""Nothing of the library runs when it is loaded:
initialisers_test.py LIBRARY OBJECT..."""

import sys

import elf
from report import finish

INITIALISER_SECTIONS = (".init_array", ".preinit_array", ".ctors")
INITIALISER_SYMBOLS = ("_GLOBAL__sub_I", "_GLOBAL__I", "__cxx_global_var_init", "_Z41__static_init")


def check_symbols(path, file):
    for symbol in file.symbols(".symtab"):
        if symbol.name.startswith(INITIALISER_SYMBOLS):
            yield f"{path} has the initialiser {symbol.name}"


def check_object(path):
    file = elf.Elf(path)
    for section in file.sections:
        if section.name.startswith(INITIALISER_SECTIONS):
            yield f"{path} has a section {section.name}"
    yield from check_symbols(path, file)


def check_library(path):
    """One initialiser is there: frame_dummy, of the C start files."""
    library = elf.Elf(path)
    entries = library.section(".init_array").size * 8 // library.bits
    if entries != 1:
        yield f"{path} has {entries} initialisers instead of the start files' one"
    if library.section(".preinit_array") is not None:
        yield f"{path} has a section .preinit_array"
    if not library.symbols(".symtab"):
        yield f"{path} is stripped, so that its functions cannot be looked at"
    yield from check_symbols(path, library)


def main():
    library, *objects = sys.argv[1:]
    print(f"{len(objects)} objects")
    failures = list(check_library(library))
    if not objects:
        failures.append("no objects are given")
    for path in objects:
        failures += check_object(path)
    finish(failures)


main()
