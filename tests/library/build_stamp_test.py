#!/usr/bin/env python3
"""The version that the library tells is its build date, which a build can set by
SOURCE_DATE_EPOCH; then it builds the same bytes again:
build_stamp_test.py COMPILER PROJECT_FOLDER"""

import os
import subprocess
import sys
import tempfile

from report import finish

SOURCE = "cli/commands.cpp"

# Seconds since 1970, and how the version shows them. The day is padded with a blank.
STAMPS = (
    (1630554666, "Sep  2 2021", "03:51:06"),
    (1635724799, "Oct 31 2021", "23:59:59"),
)

# It is the zone of no machine that the version shows.
ZONES = ("UTC", "XYZ-11")


def compiled(compiler, project, seconds, zone):
    """The object file's bytes."""
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "commands.o")
        subprocess.run(
            [compiler, "-std=c++20", "-O2", f"-I{project}/include", f"-I{project}",
             "-c", os.path.join(project, SOURCE), "-o", path],
            env=os.environ | {"SOURCE_DATE_EPOCH": str(seconds), "TZ": zone}, check=True)
        with open(path, "rb") as file:
            return file.read()


def check_stamp(compiler, project, seconds, texts):
    objects = [compiled(compiler, project, seconds, zone) for zone in ZONES]
    if objects[0] != objects[1]:
        yield f"{seconds}: the object files differ"
    for text in texts:
        if text.encode("ascii") not in objects[0]:
            yield f"{seconds}: the object file does not hold \"{text}\""


def main():
    compiler, project = sys.argv[1:]
    finish([failure
            for seconds, *texts in STAMPS
            for failure in check_stamp(compiler, project, seconds, texts)])


main()
