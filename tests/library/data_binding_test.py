#!/usr/bin/env python3
"""Exported data is the host's to write: the library does not bind it to itself,
and the host program of the test has it by copy relocation:
data_binding_test.py LIBRARY HOST_PROGRAM VARIABLE..."""

import sys

import elf
from report import finish


def check_library(library):
    if library.dynamic(elf.DT_SYMBOLIC):
        yield "the library is linked with -Bsymbolic (DT_SYMBOLIC)"
    if any(flags & elf.DF_SYMBOLIC for flags in library.dynamic(elf.DT_FLAGS)):
        yield "the library is linked with -Bsymbolic (DF_SYMBOLIC)"


def check_host(host, variables):
    kind = elf.COPY_RELOCATION[host.machine]
    copied = {r.symbol for r in host.dynamic_relocations() if r.kind == kind}
    print("copied into the host:", *sorted(copied))
    for name in variables:
        if name not in copied:
            yield f"the host program does not hold a copy of {name}, so it proves nothing"


def main():
    finish([
        *check_library(elf.Elf(sys.argv[1])),
        *check_host(elf.Elf(sys.argv[2]), sys.argv[3:]),
    ])


main()
