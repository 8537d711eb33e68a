"""Where one mutant at a time is compiled, linked with the tests and run."""

from __future__ import annotations

import hashlib
import os
import re
import resource
import shutil
import signal
import subprocess
from dataclasses import dataclass
from pathlib import Path

from mutation.library import Library
from mutation.operators import Mutant
from mutation.tools import run_tool, succeeds

GIGABYTE = 1 << 30


@dataclass
class Program:
    """A test program on the library's objects."""

    name: str  # its path in the build folder
    link: list[str]  # the command, without the library's objects and the output
    arguments: list[str] | None = None  # none: those of GoogleTest
    usual_seconds: float = 0.0  # of the processor

    @property
    def folder(self) -> str:
        """The library's folder that it mirrors."""
        return str(Path(self.name).parent.relative_to("tests"))


class Bench:
    """`tree` holds the sources, `build` is the build folder of the tests."""

    def __init__(self, folder: Path, tree: Path, build: Path) -> None:
        self._folder = folder
        self._tree = tree
        self._build = build
        self._overlay = folder / "overlay"
        self._temporary = folder / "tmp"
        self._memory = resource.RLIM_INFINITY
        shutil.rmtree(folder, ignore_errors=True)
        self._overlay.mkdir(parents=True)

    def place(self, mutant: Mutant) -> None:
        shutil.rmtree(self._overlay)
        target = self._overlay / mutant.file
        target.parent.mkdir(parents=True)
        target.write_text(mutant.apply((self._tree / mutant.file).read_text()))

    def compile(self, library: Library, sources: list[str]) -> dict[str, Path] | None:
        """The objects by source; none if the compiler refuses one."""
        objects = {}
        for source in sources:
            mutated = self._overlay / source
            origin = mutated if mutated.exists() else self._tree / source
            target = self._folder / f"{library.name}_{source.replace('/', '_')}.o"
            command = [*library.compiler(self._overlay), "-c", origin, "-o", target]
            if not succeeds(command, self._folder):
                return None
            objects[source] = target
        return objects

    def compile_test(self, command: list[str]) -> Path | None:
        """A test's own command, with the mutant in place of the header."""
        output = command.index("-o") + 1
        target = self._folder / command[output].replace("/", "_")
        words = [command[0], f"-I{self._overlay}", *command[1:]]
        words[output + 1] = str(target)
        return target if succeeds(words, self._build) else None

    def link(self, program: Program, library: Library, objects: dict[str, Path]) -> None:
        """The library's objects come first: theirs are the inline functions that are called."""
        # The address sanitizer reserves more than there is.
        self._memory = resource.RLIM_INFINITY if library.flags else 4 * GIGABYTE
        words = [program.link[0], "-fuse-ld=lld", "-Wl,--strip-debug", *library.flags]
        all_objects = {**library.objects, **objects}.values()
        output = ["-o", self._folder / "program"]
        run_tool([*words, *all_objects, *program.link[1:], *output], self._build)

    def program_digest(self) -> str:
        return hashlib.sha256((self._folder / "program").read_bytes()).hexdigest()

    def run_script(self, script: Path, variables: dict[str, str]) -> bool:
        """A test in CMake's language, with the mutant in the tree that it looks at."""
        for top in self._tree.iterdir():
            link = self._overlay / top.name
            if not link.exists():
                link.symlink_to(top)
        settings = {**variables, "ROOT": str(self._overlay)}
        words = [word for name, value in settings.items() for word in ("-D", f"{name}={value}")]
        return succeeds(["cmake", *words, "-P", script], self._folder)

    def run(self, program: Program, limit: int, tests: str = "*") -> str:
        """The test that fails, or what else ends it; an empty text if all pass. The limit is
        one of seconds of the processor; the clock may show ten times as many."""
        output = self._folder / "output"
        with output.open("wb") as stream:
            status = self._start(program, limit, tests, stream.fileno())
        if status == 0:
            return ""
        text = output.read_bytes()[-1_000_000:].decode(errors="replace")
        failed = re.search(r"^\[  FAILED  \] (\w[\w/]*\.[\w/]+)", text, re.MULTILINE)
        started = re.findall(r"^\[ RUN      \] (\S+)", text, re.MULTILINE)
        return failed[1] if failed else started[-1] if started else f"ends with {status}"

    def _start(self, program: Program, limit: int, tests: str, output: int) -> int:
        shutil.rmtree(self._temporary, ignore_errors=True)
        self._temporary.mkdir()
        arguments = program.arguments or ["--gtest_fail_fast", f"--gtest_filter={tests}"]
        process = subprocess.Popen(
            [self._folder / "program", *arguments],
            cwd=self._build / Path(program.name).parent,
            env={**os.environ, "TEST_TMPDIR": f"{self._temporary}/"},
            stdin=subprocess.DEVNULL,
            stdout=output,
            stderr=subprocess.STDOUT,
            start_new_session=True,
            preexec_fn=lambda: self._limit_resources(limit),
        )
        try:
            return process.wait(10 * limit)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            return process.wait()
        except BaseException:  # such as Ctrl-C, which does not reach a session of its own
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
            raise

    def _limit_resources(self, seconds: int) -> None:
        for kind, value in (
            (resource.RLIMIT_DATA, self._memory),
            (resource.RLIMIT_CORE, 0),
            (resource.RLIMIT_CPU, seconds),
            (resource.RLIMIT_FSIZE, GIGABYTE // 16),
        ):
            resource.setrlimit(kind, (value, value))
