#!/usr/bin/env python3
"""What `cmake --install` installs, and that it works elsewhere.

    install_test.py BUILD LIBRARY-BUILD

BUILD has sysctx, LIBRARY-BUILD was built without it; both are for a prefix that is not /usr
and a library folder named lib.
"""

from __future__ import annotations

import re
import sys
import tempfile
import unittest
from pathlib import Path

from run import (CONSUMER_OUTPUT, HEADERS, SAMPLES, SOURCE, VERSION, build_consumers, docs_below,
                 files_below, run)

BUILD = Path(sys.argv.pop(1)).resolve()
LIBRARY_BUILD = Path(sys.argv.pop(1)).resolve()

COMPONENTS = {
    "library": ["lib/libsys_context.so.1", f"lib/libsys_context.so.{VERSION}"],
    "development": [
        *HEADERS,
        "lib/cmake/sys_context/sys_context-config-version.cmake",
        "lib/cmake/sys_context/sys_context-config.cmake",
        "lib/cmake/sys_context/sys_context-targets-relwithdebinfo.cmake",
        "lib/cmake/sys_context/sys_context-targets.cmake",
        "lib/libsys_context.so",
        "lib/pkgconfig/sys_context.pc"],
    "sysctx": ["bin/sysctx", *SAMPLES, "share/man/man1/sysctx.1"],
    "docs": docs_below("share/doc/sys_context"),
}


def links_of(page: Path) -> list[str]:
    """The files and folders that a page links to, as they stand in it."""
    targets = (target.split("#")[0] for target in re.findall(r"\]\(([^)]*)\)", page.read_text()))
    return [target for target in targets if target and "://" not in target]


class Scratch(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)


class Components(Scratch):
    def installed(self, build: Path, *options: str) -> list[str]:
        prefix = self.folder / "-".join(["prefix", *options])
        run("cmake", "--install", build, "--prefix", prefix, *options)
        return files_below(prefix)

    def test_each_installs_its_own_files(self) -> None:
        for component, files in COMPONENTS.items():
            with self.subTest(component):
                self.assertEqual(self.installed(BUILD, "--component", component), sorted(files))

    def test_all_of_them_are_all(self) -> None:
        self.assertEqual(self.installed(BUILD), sorted(sum(COMPONENTS.values(), [])))

    def test_without_sysctx_there_is_none(self) -> None:
        self.assertEqual(self.installed(LIBRARY_BUILD), sorted(
            COMPONENTS["library"] + COMPONENTS["development"] + COMPONENTS["docs"]))


class Pages(Scratch):
    def test_link_to_what_is_installed(self) -> None:
        run("cmake", "--install", LIBRARY_BUILD, "--prefix", self.folder, "--component", "docs")
        self.assertIn("docs/integration.md",
                      links_of(self.folder / "share/doc/sys_context/README.md"))
        dead = [f"{page.relative_to(self.folder)}: {link}"
                for page in self.folder.rglob("*.md") for link in links_of(page)
                if not (page.parent / link).exists()]
        self.assertEqual(dead, [])


class Moved(Scratch):
    def setUp(self) -> None:
        super().setUp()
        first = self.folder / "first"
        self.prefix = self.folder / "second" / "place"
        run("cmake", "--install", BUILD, "--prefix", first)
        self.prefix.parent.mkdir()
        first.rename(self.prefix)
        self.libraries = self.prefix / "lib"

    def pkg_config(self, *options: str) -> list[str]:
        return run("pkg-config", *options, "sys_context",
                   PKG_CONFIG_PATH=self.libraries / "pkgconfig").split()

    def cmake(self, source: Path, *options: str) -> tuple[str, Path]:
        """What CMake says, and where it built."""
        build = self.folder / "-".join([source.name, *options])
        said = run("cmake", "-S", source, "-B", build, f"-DCMAKE_PREFIX_PATH={self.prefix}",
                   *options)
        run("cmake", "--build", build)
        return said, build

    def test_pkg_config_finds_it(self) -> None:
        self.assertEqual(self.pkg_config("--modversion"), [VERSION])
        flags = self.pkg_config("--cflags", "--libs")
        for flag, folder in zip(flags, (self.prefix / "include", self.libraries)):
            self.assertTrue(Path(flag[2:]).samefile(folder), flag)
        self.assertEqual([flags[0][:2], flags[1][:2], *flags[2:]], ["-I", "-L", "-lsys_context"])
        for program in build_consumers(flags, self.folder / "consumers"):
            with self.subTest(program.name):
                self.assertEqual(run(program, LD_LIBRARY_PATH=self.libraries), CONSUMER_OUTPUT)

    def test_cmake_finds_it(self) -> None:
        for language in ("C", "CXX"):
            with self.subTest(language):
                said, build = self.cmake(SOURCE / "tests/package/outside",
                                         f"-DLANGUAGE={language}")
                self.assertEqual(run(build / "consumer"), CONSUMER_OUTPUT)
                properties = dict(line[3:].split(": ", 1) for line in said.splitlines()
                                  if line.startswith("-- INTERFACE_"))
                self.assertEqual(properties, {
                    "INTERFACE_INCLUDE_DIRECTORIES": f"{self.prefix}/include",
                    "INTERFACE_LINK_LIBRARIES": "value-NOTFOUND",
                    "INTERFACE_COMPILE_OPTIONS": "value-NOTFOUND",
                    "INTERFACE_COMPILE_DEFINITIONS": "value-NOTFOUND",
                    "INTERFACE_LINK_OPTIONS": "value-NOTFOUND",
                    "INTERFACE_COMPILE_FEATURES": "value-NOTFOUND"})

    def test_the_example_builds_against_it(self) -> None:
        _, build = self.cmake(SOURCE / "examples/minimal-host")
        shown = run(build / "minimal-host",
                    self.prefix / "share/sysctx/definitions/kt3300-l/mnt/work",
                    "show context version")
        self.assertIn("acSupportedSoftVer = KT3300V4.0", shown)

    def test_other_major_versions_are_refused(self) -> None:
        source = self.folder / "too_new"
        source.mkdir()
        (source / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.21)\nproject(too_new LANGUAGES C)\n"
            "find_package(sys_context 2.0 REQUIRED)\n")
        with self.assertRaisesRegex(AssertionError,
                                    f"sys_context-config.cmake, version: {VERSION}"):
            self.cmake(source)

    def test_sysctx_finds_its_library_and_the_large_sample(self) -> None:
        sysctx = self.prefix / "bin/sysctx"
        root = self.prefix / "share/sysctx/definitions/kt3300-l"
        self.assertEqual(run(sysctx, "--version"), f"sysctx {VERSION}\n")
        self.assertIn(f"\nroot: {root.resolve()}\n", run(sysctx))
        self.assertIn("KT3300V4.0", run(sysctx, "run", "show context version"))
        link = self.folder / "link"
        link.symlink_to(sysctx)
        self.assertIn(f"\nroot: {root.resolve()}\n", run(link))

    def test_nothing_names_the_build(self) -> None:
        for name in files_below(self.prefix):
            data = (self.prefix / name).read_bytes()
            if not name.startswith("bin/") and ".so" not in name:  # debug information does
                self.assertNotIn(bytes(BUILD), data, name)
                self.assertNotIn(bytes(SOURCE), data, name)


class Subproject(Scratch):
    def test_the_tree_may_be_part_of_another(self) -> None:
        run("cmake", "-S", SOURCE / "tests/package/subproject", "-B", self.folder)
        run("cmake", "--build", self.folder, "--parallel", "2")
        self.assertEqual(run(self.folder / "consumer"), CONSUMER_OUTPUT)
        self.assertIn("CMAKE_BUILD_TYPE:STRING=\n", (self.folder / "CMakeCache.txt").read_text())


class Changelogs(unittest.TestCase):
    def test_begin_with_this_version(self) -> None:
        headings = re.findall("^## .*", (SOURCE / "CHANGELOG.md").read_text(), re.MULTILINE)
        self.assertEqual(headings[0].split()[1], VERSION)
        debian = (SOURCE / "packaging/debian/changelog").read_text()
        self.assertEqual(debian.split()[:2], ["sys-context", f"({VERSION}-1)"])


class ManPage(unittest.TestCase):
    PAGE = SOURCE / "docs/man/sysctx.1"

    def test_is_sound(self) -> None:
        # Lines are as long as elsewhere in this tree.
        said = [line for line in run("sh", "-c", f"mandoc -T lint '{self.PAGE}' || :").splitlines()
                if "input text line longer than 80 bytes" not in line]
        self.assertEqual(said, [])
        self.assertEqual(run("sh", "-c", f"man --warnings -l '{self.PAGE}' 2>&1 >/dev/null"), "")

    def test_has_what_the_help_has(self) -> None:
        usage = run(BUILD / "host/sysctx", "--help")
        page = run("man", "-l", self.PAGE, MANWIDTH="200")
        for word in ("--root", "--debug", "--telnet", "--help", "--version", "run", "ask",
                     "serve", "pack", "equipment.toml", "127.0.0.1", "ddDebugPrint"):
            with self.subTest(word):
                self.assertIn(word, usage)
                self.assertIn(word, page)

    def test_is_of_this_version(self) -> None:
        version = run(BUILD / "host/sysctx", "--version").strip()
        self.assertIn(f'"{version}"', self.PAGE.read_text())


if __name__ == "__main__":
    unittest.main()
