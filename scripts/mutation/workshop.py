"""Tries mutants of the library on the tests.

Nothing is changed in place. A mutated file lies in a folder of its own, which the compiler
searches first; what it is compiled into takes the place of the library's own objects when a
test program is linked once more. Everything else is built once.
"""

from __future__ import annotations

import json
import os
import re
import shlex
import shutil
import threading
from collections import defaultdict, deque
from dataclasses import dataclass, replace
from pathlib import Path
from typing import Iterable

from mutation.bench import Bench, Program
from mutation.library import Library
from mutation.operators import Mutant
from mutation.tools import CannotBuild, run_tool

ARCHIVE = "tests/libsys_context_objects.a"
C_HOST = "tests/library/c_consumer"
SANITIZERS = "-fsanitize=address,undefined -fno-sanitize-recover=all"
SLOW = 5  # seconds of the processor


@dataclass(frozen=True)
class Verdict:
    # "killed", "survived", "refused" by the compiler, or "broken": could not be tried
    outcome: str
    by: str = ""
    how: str = ""


class Workshop:
    """`tests` is a build folder with the test programs, if there is one already."""

    def __init__(self, repository: Path, folder: Path, tests: Path | None = None) -> None:
        self._repository = repository
        self._folder = folder
        self._tree = folder / "tree"
        self._build = tests or folder / "build"
        self._has_tests = tests is not None
        self._plain = Library(self._tree, folder / "plain")
        self._sanitized = Library(self._tree, folder / "sanitized", SANITIZERS)
        self._lock = threading.Lock()
        self._programs: list[Program] = []
        self._test_commands: dict[str, list[str]] = {}  # by object
        # The tests that killed mutants of a file, the last one first: they go first.
        self._killers: dict[str, deque[tuple[str, str]]] = defaultdict(lambda: deque(maxlen=30))

    def bench(self, name: str) -> Bench:
        return Bench(self._folder / "benches" / name, self._tree, self._build)

    # ---- what is built once ----------------------------------------------------------

    def prepare(self) -> None:
        self._copy_tree()
        self._plain.build()
        if not self._has_tests:
            settings = ("-DCMAKE_BUILD_TYPE=Debug", "-DSYS_CONTEXT_TESTS=ON")
            run_tool(["cmake", "-S", "tree", "-B", "build", "-G", "Ninja", *settings], self._folder)
        names = self._program_names()
        if not self._has_tests:
            run_tool(["ninja", *names, C_HOST], self._build)
        self._programs = [Program(name, self._link_command(name)) for name in names]
        self._programs.append(self._c_host())
        for entry in json.loads((self._build / "compile_commands.json").read_text()):
            command = shlex.split(entry["command"])
            self._test_commands[command[command.index("-o") + 1]] = command
        self._try_tests()

    def _copy_tree(self) -> None:
        """What is as before keeps its time, so that only what is new is built."""
        wanted = {}
        for top in self._repository.iterdir():
            if not top.name.startswith(".") and top.name != "build":
                for path in [top, *top.rglob("*")]:
                    if path.is_file():
                        wanted[self._tree / path.relative_to(self._repository)] = path
        for old in self._tree.rglob("*"):
            if old.is_file() and old not in wanted:
                old.unlink()
        for target, origin in wanted.items():
            if not target.exists() or target.read_bytes() != origin.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(origin, target)

    def _program_names(self) -> list[str]:
        answer = run_tool(["ninja", "-t", "query", ARCHIVE], self._build)
        return sorted(set(re.findall(r"^ +(tests/\S+_test)$", answer, re.MULTILINE)))

    def _link_command(self, name: str) -> list[str]:
        commands = run_tool(["ninja", "-t", "commands", name], self._build)
        words = shlex.split(commands.strip().splitlines()[-1])
        words = words[words.index("&&") + 1 :]
        words = words[: words.index("&&")]
        output = words.index("-o")
        return words[:output] + words[output + 2 :]

    def _c_host(self) -> Program:
        """It knows the first values of the exported variables, which other tests overwrite. Here
        it gets the library's objects, too, and the reserved areas, which must not touch."""
        own = [word for word in self._link_command(C_HOST) if word.endswith(".o")]
        areas = self._build.glob("CMakeFiles/*/context/reserved_area.S.o")
        first, last = (str(path) for path in sorted(areas))
        words = ["g++", first, *own, last]
        return Program(C_HOST, words, [str(self._tree / "abi" / "exports.txt")])

    def _try_tests(self) -> None:
        """They must pass without a mutant; how long they take says how long one may. A program
        that passed before, and is the same to the byte, needs not."""
        notes = self._folder / "passed.json"
        passed = json.loads(notes.read_text()) if notes.exists() else {}
        bench = self.bench("clean")
        for program in self._programs:
            bench.link(program, self._plain, {})
            digest = bench.program_digest()
            if digest not in passed:
                before = os.times()
                if failed := bench.run(program, limit=600):
                    raise CannotBuild(f"{program.name} fails without a mutant: {failed}")
                passed[digest] = os.times().children_user - before.children_user
                notes.write_text(json.dumps(passed))
            program.usual_seconds = passed[digest]
        self._programs.sort(key=lambda program: program.usual_seconds)

    # ---- one mutant ------------------------------------------------------------------

    def try_mutant(self, mutant: Mutant, bench: Bench) -> Verdict:
        """From what is quick to what is thorough, until a test fails."""
        bench.place(mutant)
        affected = self._plain.affected(mutant)
        objects = bench.compile(self._plain, affected)
        if objects is None:
            return Verdict("refused")
        own, others = self._programs_for(mutant)
        quick = [p for p in others if p.usual_seconds < SLOW]
        # Slow ones that mirror another folder are of no use.
        mirrored = {str(Path(file).parent) for file in self._plain.objects} - {mutant.folder}
        slow = [p for p in others if p.usual_seconds >= SLOW and p.folder not in mirrored]
        return (
            self._run(own, mutant, bench, self._plain, objects)
            or self._run(quick, mutant, bench, self._plain, objects)
            or self._run_with_header(own, mutant, bench, objects)
            or self._refuse_messages(mutant, bench)
            or self._run_sanitized(own, mutant, bench, affected)
            or self._run(slow, mutant, bench, self._plain, objects)
            or Verdict("survived")
        )

    def _programs_for(self, mutant: Mutant) -> tuple[list[Program], list[Program]]:
        """Those of the mutant's folder, that which killed last first, and the others."""
        last = [name for name, _ in self._killers[mutant.file]]
        rank = {name: place for place, name in reversed(list(enumerate(last)))}
        order = sorted(self._programs, key=lambda p: rank.get(p.name, len(last)))
        own = [p for p in order if p.folder == mutant.folder and p.usual_seconds < SLOW]
        return own, [p for p in order if p not in own]

    def _run(
        self,
        programs: Iterable[Program],
        mutant: Mutant,
        bench: Bench,
        library: Library,
        objects: dict[str, Path],
        how: str = "tests",
    ) -> Verdict | None:
        for program in programs:
            bench.link(program, library, objects)
            limit = 5 + round(5 * program.usual_seconds)
            killers = [test for name, test in self._killers[mutant.file] if name == program.name]
            failed = killers and bench.run(program, limit, ":".join(killers))
            failed = failed or bench.run(program, limit)
            if failed:
                self._remember(mutant, program, failed)
                return Verdict("killed", f"{program.name} {failed}", how)
        return None

    def _remember(self, mutant: Mutant, program: Program, test: str) -> None:
        killers = self._killers[mutant.file]
        killer = (program.name, test)
        if killer in killers:
            killers.remove(killer)
        killers.appendleft(killer)

    def _run_with_header(
        self, programs: list[Program], mutant: Mutant, bench: Bench, objects: dict[str, Path]
    ) -> Verdict | None:
        """Tests may have what is in a header in themselves: compiles them anew."""
        for program in programs if mutant.file.endswith(".h") else []:
            replaced = {}
            for word in program.link:
                if word in self._test_commands and self._includes(word, mutant.file):
                    replaced[word] = bench.compile_test(self._test_commands[word])
            if None in replaced.values():
                return Verdict("killed", f"{program.name} does not compile", "header")
            if replaced:
                words = [str(replaced.get(word, word)) for word in program.link]
                anew = replace(program, link=words)
                if verdict := self._run([anew], mutant, bench, self._plain, objects, "header"):
                    return verdict
        return None

    def _refuse_messages(self, mutant: Mutant, bench: Bench) -> Verdict | None:
        """What the compiler must refuse is tested by compiling it."""
        if mutant.file == "common/messages.h":
            script = self._tree / "tests" / "common" / "message_refusal.cmake"
            cases = range(len(re.findall("CASE == ", script.with_suffix(".cpp").read_text())))
            for case in cases:
                if not bench.run_script(script, {"COMPILER": "c++", "CASE": str(case)}):
                    return Verdict("killed", f"MessageRefusal/Case{case}", "compiler")
        return None

    def _includes(self, object_file: str, header: str) -> bool:
        return f"/{header}\n" in run_tool(["ninja", "-t", "deps", object_file], self._build)

    def _run_sanitized(
        self, programs: list[Program], mutant: Mutant, bench: Bench, affected: list[str]
    ) -> Verdict | None:
        with self._lock:
            if not self._sanitized.objects:
                self._sanitized.build()
        objects = bench.compile(self._sanitized, affected)
        if objects is None:
            return None
        return self._run(programs, mutant, bench, self._sanitized, objects, "sanitizers")
