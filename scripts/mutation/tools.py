"""Running the tools that build."""

from __future__ import annotations

import subprocess
from pathlib import Path
from typing import Iterable


class CannotBuild(Exception):
    """What a tool says that fails."""


def run_tool(command: Iterable[str | Path], folder: Path) -> str:
    words = [str(word) for word in command]
    done = subprocess.run(words, cwd=folder, capture_output=True, text=True)
    if done.returncode != 0:
        raise CannotBuild(f"{' '.join(words)[:200]}\n{(done.stdout + done.stderr)[-3000:]}")
    return done.stdout


def succeeds(command: Iterable[str | Path], folder: Path) -> bool:
    words = [str(word) for word in command]
    return subprocess.run(words, cwd=folder, capture_output=True).returncode == 0
