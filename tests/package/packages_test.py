#!/usr/bin/env python3
"""The Debian packages: what is in them, what they depend on, and that they work.

    packages_test.py FOLDER    (where scripts/package put them)
"""

from __future__ import annotations

import subprocess
import sys
import tempfile
import unittest
from dataclasses import dataclass
from pathlib import Path

from run import (CONSUMER, CONSUMER_OUTPUT, HEADERS, SAMPLES, SOURCE, STAND_INS, VERSION,
                 docs_below, files_below, run)

FOLDER = Path(sys.argv.pop(1)).resolve()
PACKAGE_VERSION = f"{VERSION}-1"
SYSROOT = FOLDER / "build/armhf-sysroot"

# Tags that lintian may say, and why nothing is done about them.
ACCEPTED = {
    "initial-upload-closes-no-bugs": "the packages are not Debian's",
}


@dataclass(frozen=True)
class Machine:
    name: str
    triplet: str
    compiler: str
    emulator: tuple[str, ...]
    depends: dict[str, list[str]]

    def deb(self, package: str) -> Path:
        return FOLDER / f"{package}_{PACKAGE_VERSION}_{self.name}.deb"


LIBRARY = f"libsys-context1 (= {PACKAGE_VERSION})"
MACHINES = [
    Machine("amd64", "x86_64-linux-gnu", "gcc", (), {
        "libsys-context1": ["libc6 (>= 2.14)"],
        "libsys-context-dev": [LIBRARY],
        "sysctx": [
            LIBRARY, "libc6 (>= 2.34)", "libcli1.10 (>= 1.10.2)", "libcurl4 (>= 7.63.0)",
            "libedit2 (>= 3.1-20130712-0)", "libgcc-s1 (>= 3.0)", "libstdc++6 (>= 11)",
            "libtomlplusplus3 (>= 3.2.0)", "zlib1g (>= 1:1.2.0)"]}),
    Machine("armhf", "arm-linux-gnueabihf", "arm-linux-gnueabihf-gcc",
            ("qemu-arm", "-L", str(SYSROOT)), {
        "libsys-context1": ["libc6 (>= 2.4)"],
        "libsys-context-dev": [LIBRARY],
        "sysctx": [
            LIBRARY, "libc6 (>= 2.34)", "libcli1.10 (>= 1.10.2)", "libcurl4 (>= 7.63.0)",
            "libedit2 (>= 3.1-20130712-0)", "libgcc-s1 (>= 3.5)", "libstdc++6 (>= 11)",
            "libtomlplusplus3 (>= 3.2.0)", "zlib1g (>= 1:1.2.0)"]}),
]
PACKAGES = ["libsys-context1", "libsys-context-dev", "sysctx"]
EACH = [(machine, package) for machine in MACHINES for package in PACKAGES]


def debian_files(package: str) -> list[str]:
    return [f"share/doc/{package}/{name}"
            for name in ("changelog.Debian.gz", "changelog.gz", "copyright")]


def expected_files(machine: Machine, package: str) -> list[str]:
    libraries = f"lib/{machine.triplet}"
    files = {
        "libsys-context1": [
            f"{libraries}/libsys_context.so.1", f"{libraries}/libsys_context.so.{VERSION}"],
        "libsys-context-dev": [
            *HEADERS,
            f"{libraries}/cmake/sys_context/sys_context-config-version.cmake",
            f"{libraries}/cmake/sys_context/sys_context-config.cmake",
            f"{libraries}/cmake/sys_context/sys_context-targets-relwithdebinfo.cmake",
            f"{libraries}/cmake/sys_context/sys_context-targets.cmake",
            f"{libraries}/libsys_context.so",
            f"{libraries}/pkgconfig/sys_context.pc",
            *docs_below("share/doc/libsys-context-dev")],
        "sysctx": ["bin/sysctx", *SAMPLES, "share/man/man1/sysctx.1.gz"],
    }[package]
    return sorted(f"usr/{file}" for file in files + debian_files(package))


class Packages(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def field(self, machine: Machine, package: str, field: str) -> str:
        return run("dpkg-deb", "-f", machine.deb(package), field).strip()

    def unpacked(self, machine: Machine, *packages: str) -> Path:
        folder = self.folder / machine.name
        for package in packages:
            run("dpkg-deb", "-x", machine.deb(package), folder)
        return folder

    def test_there_are_these(self) -> None:
        self.assertEqual(sorted(path.name for path in FOLDER.glob("*.deb")), sorted(
            machine.deb(package).name for machine, package in EACH))

    def test_hold_these_files(self) -> None:
        for machine, package in EACH:
            with self.subTest(machine=machine.name, package=package), \
                    tempfile.TemporaryDirectory() as folder:
                run("dpkg-deb", "-x", machine.deb(package), folder)
                self.assertEqual(files_below(Path(folder)), expected_files(machine, package))

    def test_say_what_they_are(self) -> None:
        sections = {"libsys-context1": "libs", "libsys-context-dev": "libdevel", "sysctx": "utils"}
        for machine, package in EACH:
            for field, value in (("Package", package), ("Version", PACKAGE_VERSION),
                                 ("Architecture", machine.name), ("Priority", "optional"),
                                 ("Section", sections[package])):
                with self.subTest(machine=machine.name, package=package, field=field):
                    self.assertEqual(self.field(machine, package, field), value)

    def test_depend_on_what_they_need(self) -> None:
        for machine, package in EACH:
            with self.subTest(machine=machine.name, package=package):
                self.assertEqual(self.field(machine, package, "Depends").split(", "),
                                 machine.depends[package])

    def test_library_has_its_control_files(self) -> None:
        # 1.0.0 is not this version, but the one since which all symbols are there.
        for machine in MACHINES:
            with self.subTest(machine.name):
                deb = machine.deb("libsys-context1")
                self.assertEqual(run("dpkg-deb", "-I", deb, "shlibs"),
                                 "libsys_context 1 libsys-context1 (>= 1.0.0)\n")
                self.assertEqual(run("dpkg-deb", "-I", deb, "triggers"),
                                 "activate-noawait ldconfig\n")
                symbols = run("dpkg-deb", "-I", deb, "symbols").splitlines()
                self.assertEqual(symbols[0], "libsys_context.so.1 libsys-context1 #MINVER#")
                exports = [line.split()[1] for line in
                           (SOURCE / "abi/exports.txt").read_text().splitlines()
                           if line.startswith(("T ", "D "))]
                self.assertEqual(len(exports), 286)
                self.assertEqual(symbols[1:], [f" {name}@Base 1.0.0" for name in exports])

    def test_sysctx_runs(self) -> None:
        for machine in MACHINES:
            with self.subTest(machine.name):
                usr = self.unpacked(machine, "libsys-context1", "sysctx") / "usr"
                sysctx = [*machine.emulator, usr / "bin/sysctx"]
                libraries = usr / "lib" / machine.triplet
                self.assertEqual(run(*sysctx, "--version", LD_LIBRARY_PATH=libraries),
                                 f"sysctx {VERSION}\n")
                self.assertIn("acSupportedSoftVer = KT3300V4.0",
                              run(*sysctx, "run", "show context version",
                                  LD_LIBRARY_PATH=libraries))
                root = (usr / "share/sysctx/definitions/kt3300-l").resolve()
                self.assertIn(f"\nroot: {root}\n", run(*sysctx, LD_LIBRARY_PATH=libraries))

    def test_programs_are_stripped_and_name_no_folder_of_the_build(self) -> None:
        for machine in MACHINES:
            usr = self.unpacked(machine, "libsys-context1", "sysctx") / "usr"
            for name in ("bin/sysctx", f"lib/{machine.triplet}/libsys_context.so.1"):
                with self.subTest(machine=machine.name, name=name):
                    self.assertNotIn(".debug_info", run("readelf", "-SW", usr / name))
                    self.assertNotIn("RUNPATH", run("readelf", "-dW", usr / name))
                    self.assertNotIn(bytes(SOURCE), (usr / name).read_bytes())

    def test_can_be_built_against_as_a_system_root(self) -> None:
        for machine in MACHINES:
            with self.subTest(machine.name):
                root = self.unpacked(machine, "libsys-context1", "libsys-context-dev")
                libraries = root / "usr/lib" / machine.triplet
                flags = run("pkg-config", "--cflags", "--libs", "sys_context",
                            PKG_CONFIG_SYSROOT_DIR=root,
                            PKG_CONFIG_LIBDIR=libraries / "pkgconfig").split()
                self.assertEqual(flags, [f"-I{root}/usr/include", f"-L{libraries}",
                                         "-lsys_context"])
                by_hand = self.folder / f"by-hand-{machine.name}"
                run(machine.compiler, CONSUMER, STAND_INS, *flags, "-o", by_hand)

                build = self.folder / f"build-{machine.name}"
                run("cmake", "-S", SOURCE / "tests/package/outside", "-B", build,
                    "-DLANGUAGE=C", f"-DCMAKE_FIND_ROOT_PATH={root}",
                    f"-DCMAKE_C_COMPILER={machine.compiler}", "-DCMAKE_SYSTEM_NAME=Linux",
                    f"-DCMAKE_LIBRARY_ARCHITECTURE={machine.triplet}")
                run("cmake", "--build", build)
                for program in (by_hand, build / "consumer"):
                    self.assertEqual(
                        run(*machine.emulator, program, LD_LIBRARY_PATH=libraries),
                        CONSUMER_OUTPUT)

    def test_lintian_finds_nothing(self) -> None:
        debs = [machine.deb(package) for machine, package in EACH]
        result = subprocess.run(
            ["lintian", "--allow-root", "--tag-display-limit", "0", "--fail-on", "error,warning",
             "--suppress-tags", ",".join(ACCEPTED), *debs], capture_output=True, text=True)
        self.assertEqual((result.stdout, result.returncode), ("", 0), result.stderr)


if __name__ == "__main__":
    unittest.main()
