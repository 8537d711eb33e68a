"""What the tests of the packages and of the recipes use."""

from __future__ import annotations

import os
import re
import subprocess
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent.parent
VERSION = re.search(r"project\(sys_context VERSION ([\d.]+)",
                    (SOURCE / "CMakeLists.txt").read_text())[1]
STAND_INS = SOURCE / "abi/platform_symbols.c"
CONSUMER = SOURCE / "tests/package/consumer.c"
CONSUMER_OUTPUT = "ddIsRealSlot 0: -4\n"

HEADERS = [f"include/sys_context/{name}.h" for name in (
    "api", "cfgfile", "cli", "context", "frame", "olt", "onu", "optmodule", "platform")]
SAMPLES = [f"share/sysctx/definitions/{sample}/{name}"
           for sample in ("kt2200-a", "kt3300-l")
           for name in ("equipment.toml", "mnt/work/device_definition.ini",
                        "mnt/work/optmodule_definition.ini")]


def docs_below(folder: str) -> list[str]:
    example = "examples/minimal-host"
    return [f"{folder}/README.md", f"{folder}/CHANGELOG.md", f"{folder}/CONTRIBUTING.md",
            *(f"{folder}/{example}/{name}" for name in (
                "CMakeLists.txt", "Makefile", "README.md", "desk.c", "desk.h", "equipment.c",
                "main.c", "services.c", "shell.c", "shell.h")),
            *(f"{folder}/docs/{path.name}" for path in (SOURCE / "docs").glob("*.md"))]


def run(*command: str | Path, **variables: str | Path) -> str:
    """What the command prints; its failure is the test's."""
    environment = {name: value for name, value in os.environ.items()
                   if name not in ("LD_LIBRARY_PATH", "DESTDIR")}
    environment.update((name, str(value)) for name, value in variables.items())
    result = subprocess.run(command, capture_output=True, text=True, env=environment,
                            stdin=subprocess.DEVNULL)
    if result.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}\n{result.stdout}{result.stderr}")
    return result.stdout


def files_below(folder: Path) -> list[str]:
    """All files and links, in order, as they are seen from `folder`."""
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*")
                  if path.is_symlink() or not path.is_dir())


def build_consumers(flags: list[str], folder: Path) -> list[Path]:
    """The consumer in C and in C++, with the flags that pkg-config gave."""
    folder.mkdir(parents=True)
    stand_ins = folder / "stand_ins.o"
    run("cc", "-c", STAND_INS, "-o", stand_ins)
    for program, compiler in (("c", ["cc"]), ("cpp", ["c++", "-x", "c++"])):
        run(*compiler, "-Wall", "-Wextra", "-pedantic", "-Werror", CONSUMER, "-x", "none",
            stand_ins, *flags, "-o", folder / program)
    return [folder / "c", folder / "cpp"]
