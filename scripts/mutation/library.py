"""The library's objects, compiled quickly, and which of them a change concerns."""

from __future__ import annotations

import re
import shlex
from functools import cache
from pathlib import Path

from mutation.operators import Mutant
from mutation.tools import run_tool

FOLDERS = ("common", "cfgfile", "context", "catalog", "optmodule", "cli")
FLAGS = "-std=c++20 -O0 -fno-exceptions -fno-rtti -fno-threadsafe-statics -w"


def sources(tree: Path) -> list[Path]:
    """Those of the library that are mutated."""
    return [
        path
        for folder in FOLDERS
        for path in sorted((tree / folder).rglob("*"))
        if path.suffix in (".cpp", ".h")
    ]


class Library:
    """`tree` holds the sources, `folder` the objects."""

    def __init__(self, tree: Path, folder: Path, flags: str = "") -> None:
        self.name = folder.name
        self.flags = flags.split()
        self.objects: dict[str, Path] = {}  # by source
        self._tree = tree
        self._folder = folder
        self._sources_of: dict[str, set[str]] = {}  # by file that they include

    def build(self) -> None:
        self._folder.mkdir(exist_ok=True)
        self._precompile_headers()
        rule = " ".join(self.compiler(None)) + " -MMD -MF $out.d -c $in -o $out"
        objects = {}
        lines = ["rule compile", f"  command = {rule}", "  depfile = $out.d"]
        for source in sources(self._tree):
            if source.suffix == ".cpp":
                file = str(source.relative_to(self._tree))
                objects[file] = self._folder / (file + ".o")
                lines.append(f"build {objects[file]}: compile {source}")
        (self._folder / "build.ninja").write_text("\n".join(lines) + "\n")
        run_tool(["ninja"], self._folder)
        for file, object_file in objects.items():
            for included in self._read_dependencies(object_file):
                self._sources_of.setdefault(included, set()).add(file)
        self.objects = objects

    def compiler(self, overlay: Path | None) -> list[str]:
        """The command without a source. What is in the overlay is compiled in its place."""
        folders = [overlay, self._tree] if overlay else [self._tree]
        includes = [f"-I{folder}" for folder in [*folders, self._tree / "include"]]
        return ["g++", *FLAGS.split(), *self.flags, "-include", str(self._system_header), *includes]

    def affected(self, mutant: Mutant) -> list[str]:
        """The sources that the change can concern. That of a named constant concerns those
        that name it, or include what does."""
        affected = self._sources_of.get(mutant.file, set())
        definition = re.match(r"constexpr \w+ (k\w+) = ", mutant.line)
        if mutant.file.endswith(".h") and definition:
            name = re.compile(rf"\b{definition[1]}\b")
            naming = {f for f in self._sources_of if name.search(self._text(f))}
            if len(name.findall(self._text(mutant.file))) == 1:
                naming.remove(mutant.file)
            affected = affected & {s for f in naming for s in self._sources_of[f]}
        return sorted(affected)

    @property
    def _system_header(self) -> Path:
        return self._folder / "system.h"

    def _precompile_headers(self) -> None:
        """Those of the system, which are most of what a source compiles."""
        includes = {
            line
            for path in sources(self._tree)
            for line in path.read_text().splitlines()
            if line.startswith("#include <")
        }
        text = "\n".join(sorted(includes)) + "\n"
        header = self._system_header
        compiled = Path(f"{header}.gch")
        if not compiled.exists() or header.read_text() != text:
            header.write_text(text)
            language = ["-x", "c++-header", header, "-o", compiled]
            run_tool(["g++", *FLAGS.split(), *self.flags, *language], self._folder)

    def _read_dependencies(self, object_file: Path) -> list[str]:
        words = shlex.split(Path(f"{object_file}.d").read_text().replace("\\\n", ""))
        inside = [Path(word) for word in words if word.startswith(f"{self._tree}/")]
        return [str(path.relative_to(self._tree)) for path in inside]

    @cache
    def _text(self, file: str) -> str:
        return (self._tree / file).read_text()
