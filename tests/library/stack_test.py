#!/usr/bin/env python3
"""The deepest call chain of the library, by the frames that GCC laid out:
stack_test.py ROOT EXPORTS OBJECT..."""

from __future__ import annotations

import subprocess
import sys
from pathlib import Path

from call_graph import CallGraph
from report import finish

LIMIT = 16 * 1024
IN_ASSEMBLER = "vkpJumpTableEntry"  # begins the names of those that nothing describes


class Chains:
    """The deepest chain from each function on."""

    def __init__(self, graph: CallGraph) -> None:
        self.functions = graph.functions
        self.depths: dict[str, int] = {}
        self.following: dict[str, str] = {}
        self.recursions: list[str] = []
        self._entered: list[str] = []

    def depth(self, title: str) -> int:
        """In bytes."""
        if title in self._entered:
            around = [*self._entered[self._entered.index(title) :], title]
            symbols = [self.functions[each].symbol for each in around]
            self.recursions.append(f"recursion: {' > '.join(symbols)}")
            return 0
        if title not in self.depths:
            function = self.functions[title]
            self._entered.append(title)
            below = 0
            for callee in sorted(function.calls):
                if (depth := self.depth(callee)) > below:
                    below, self.following[title] = depth, callee
            self._entered.pop()
            self.depths[title] = (function.frame or 0) + below
        return self.depths[title]

    def chain(self, title: str) -> list[str]:
        """As titles."""
        chain = [title]
        while chain[-1] in self.following:
            chain.append(self.following[chain[-1]])
        return chain


def readable(symbols: list[str]) -> list[str]:
    """The names without parameters, as the sources have them."""
    text = "\n".join(symbols)
    return subprocess.run(["c++filt", "-p"], input=text, capture_output=True, text=True,
                          check=True).stdout.splitlines()


def exported_functions(path: Path) -> list[str]:
    lines = path.read_text(encoding="ascii").splitlines()
    return [line.split()[1] for line in lines if line.startswith("T ")]


def show(graph: CallGraph, chain: list[str]) -> None:
    functions = [graph.functions[title] for title in chain]
    names = readable([function.symbol for function in functions])
    for function, name in zip(functions, names):
        print(f"{function.frame:>6}  {name}")
    others = sorted(function.symbol for function in graph.functions.values()
                    if function.frame is None)
    print("not counted, since they are not the library's:", *others)


def main() -> None:
    root, exports, *objects = map(Path, sys.argv[1:])
    graph = CallGraph(root, objects)
    exported = [name for name in exported_functions(exports)
                if not name.startswith(IN_ASSEMBLER)]
    failures = graph.failures + [f"{name} is exported, but not described" for name in exported
                                 if name not in graph.functions]
    if failures:
        finish(failures)
    chains = Chains(graph)
    deepest = max(exported, key=chains.depth)
    depth = chains.depth(deepest)
    print(f"{len(exported)} exported functions; the deepest chain takes {depth} of {LIMIT} bytes:")
    show(graph, [title for title in chains.chain(deepest)
                 if graph.functions[title].frame is not None])
    too_deep = [f"{depth} bytes are not less than {LIMIT}"] if depth >= LIMIT else []
    finish(chains.recursions + too_deep)


main()
