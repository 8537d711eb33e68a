#!/usr/bin/env python3
"""What the built library needs from others, by library and by symbol:
dependencies_test.py LIBRARY PLATFORM_SYMBOLS PLATFORM_HEADER"""

import re
import sys

import elf
from report import finish

# What the C start files of a shared library ask for, if it is there.
START_FILES = {"__gmon_start__", "_ITM_deregisterTMCloneTable", "_ITM_registerTMCloneTable"}


def check_libraries(library):
    needed = library.dynamic_texts(elf.DT_NEEDED)
    print("needed:", *needed)
    if "libc.so.6" not in needed:
        yield "the C library is not needed"
    for name in needed:
        if name != "libc.so.6" and not name.startswith("ld-linux"):
            yield f"{name} is needed"
    if library.dynamic_texts(elf.DT_SONAME) != ["libsys_context.so.1"]:
        yield f"the soname is {library.dynamic_texts(elf.DT_SONAME)}"


def check_symbols(library, platform):
    for symbol in library.symbols(".dynsym"):
        if not symbol.name or symbol.section != elf.UNDEFINED:
            continue
        if symbol.version is not None:
            if not symbol.version.startswith("GLIBC_"):
                yield f"{symbol.name} is taken from {symbol.version}"
        elif symbol.name in START_FILES:
            if symbol.binding != elf.STB_WEAK:
                yield f"{symbol.name} cannot be done without"
        elif symbol.name not in platform:
            yield f"{symbol.name} comes neither from the C library nor from the platform"


def check_platform_list(platform, header):
    """The stand-ins of the link check are those that the header declares."""
    with open(header, encoding="ascii") as file:
        text = re.sub(r"/\*.*?\*/", "", file.read(), flags=re.DOTALL)
    declared = set(re.findall(r"^(?:extern )?SYS_CONTEXT_API \w+ \*?(\w+)[(;]", text, re.MULTILINE))
    for name in sorted(declared - platform):
        yield f"{name} is declared for hosts, but has no stand-in"
    for name in sorted(platform - declared):
        yield f"{name} has a stand-in, but is not declared for hosts"


def main():
    library = elf.Elf(sys.argv[1])
    with open(sys.argv[2], encoding="ascii") as file:
        text = file.read()
    platform = set(re.findall(r"^PLATFORM_FUNCTION\((\w+)\)$", text, re.MULTILINE))
    platform |= set(re.findall(r"^extern int (\w+);$", text, re.MULTILINE))
    print(f"{len(platform)} symbols are the platform's")
    finish([
        *check_libraries(library),
        *check_symbols(library, platform),
        *check_platform_list(platform, sys.argv[3]),
    ])


main()
