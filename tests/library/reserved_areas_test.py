#!/usr/bin/env python3
"""The two reserved code areas: 8192 zero bytes each, at the very start and at
the very end of the code: reserved_areas_test.py LIBRARY"""

import sys

import elf
from report import finish

SIZE = 8192


def check_area(library, number, begin, end):
    if end.value - begin.value != SIZE:
        yield f"area {number} has {end.value - begin.value} bytes instead of {SIZE}"
    elif library.bytes_at(begin.value, SIZE) != bytes(SIZE):
        yield f"area {number} is not all zero"
    for label in (begin, end):
        if library.sections[label.section].name != ".text":
            yield f"{label.name} lies in {library.sections[label.section].name}"


def main():
    library = elf.Elf(sys.argv[1])
    labels = {symbol.name: symbol for symbol in library.symbols(".dynsym")}
    begin = [labels[f"vkpJumpTableEntryBegin_{number}"] for number in (0, 1)]
    end = [labels[f"vkpJumpTableEntryEnd_{number}"] for number in (0, 1)]
    text = library.section(".text")
    print(f"code from {text.address:#x} to {text.address + text.size:#x}, areas at",
          *(f"{label.value:#x}" for label in begin))
    failures = []
    for number in (0, 1):
        failures += check_area(library, number, begin[number], end[number])
    if begin[0].value != text.address:
        failures.append(f"area 0 begins {begin[0].value - text.address} bytes behind the code's start")
    if end[1].value != text.address + text.size:
        failures.append(f"area 1 ends {text.address + text.size - end[1].value} bytes before the code's end")
    finish(failures)


main()
