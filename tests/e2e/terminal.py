"""sysctx at a terminal."""
import os

import pexpect

import card


def spawn(test, environment={}, **more):
    """Starts the shell on the root of a test; it ends with the test."""
    shell = pexpect.spawn(
        card.SYSCTX, ["--root", str(test.root)], env=dict(os.environ, **environment),
        timeout=card.PATIENCE, **more)
    test.addCleanup(shell.close, force=True)
    return shell
