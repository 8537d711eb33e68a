"""Running what a script needs."""

from __future__ import annotations

import subprocess
import sys
from pathlib import Path
from typing import NoReturn, Sequence

LINES = 60  # of what a command printed that failed


def fail(message: str) -> NoReturn:
    sys.exit(f"{Path(sys.argv[0]).name}: {message}")


def output_of(command: Sequence[str | Path], directory: Path | None = None) -> str:
    """What the command prints; its failure is the script's."""
    result = subprocess.run(command, cwd=directory, capture_output=True, text=True,
                            errors="replace")
    if result.returncode != 0:
        printed = (result.stdout + result.stderr).splitlines()[-LINES:]
        fail("\n".join([f"{' '.join(map(str, command))} failed:", *printed]))
    return result.stdout
