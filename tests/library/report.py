"""How the tests of the built library end."""

import sys


def finish(failures):
    """Shows what is wrong, if anything is, and ends the program."""
    for failure in failures:
        print("FAILED:", failure)
    print("ok" if not failures else f"{len(failures)} failures")
    sys.exit(1 if failures else 0)
