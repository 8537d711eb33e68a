#!/usr/bin/env python3
"""Builds the library from a release tarball as packaging/yocto and packaging/buildroot say.

    recipes_test.py TARBALL FOLDER

Neither build system is needed: buildroot.mk and recipe.py stand in for what the two recipes
use of them. What is built goes into FOLDER.
"""

from __future__ import annotations

import sys
import tarfile
import unittest
from pathlib import Path

sys.path.append(str(Path(__file__).resolve().parents[1] / "package"))
import recipe
from run import SOURCE, VERSION, files_below, run

HERE = Path(__file__).resolve().parent
BUILDROOT = SOURCE / "packaging/buildroot/package/sys-context"
TARBALL = Path(sys.argv.pop(1)).resolve()
FOLDER = Path(sys.argv.pop(1)).resolve()


class Buildroot(unittest.TestCase):
    def test_builds_for_the_card_and_installs_into_staging_and_target(self) -> None:
        work = FOLDER / "buildroot"
        run("make", "-f", HERE / "buildroot.mk", f"RECIPE={BUILDROOT / 'sys-context.mk'}",
            f"BR2_PACKAGE_SYS_CONTEXT_ARCHIVES=\"{TARBALL.parent}\"",
            f"TOOLCHAIN={SOURCE / 'cmake/arm-linux-gnueabihf.cmake'}", f"WORK={work}")
        for folder in ("staging", "target"):
            files = files_below(work / folder)
            for file in (f"usr/lib/libsys_context.so.{VERSION}", "usr/lib/libsys_context.so.1",
                         "usr/lib/libsys_context.so", "usr/include/sys_context/context.h",
                         "usr/lib/pkgconfig/sys_context.pc",
                         "usr/lib/cmake/sys_context/sys_context-config.cmake"):
                self.assertIn(file, files, folder)
            self.assertNotIn("usr/bin/sysctx", files, folder)
        library = work / "target/usr/lib/libsys_context.so.1"
        self.assertIn("Machine:                           ARM", run("readelf", "-h", library))
        # By the names that hosts put functions in front of, whatever the flags.
        symbols = run("readelf", "--dyn-syms", "-W", library)
        self.assertRegex(symbols, r" fopen(@|\n)")
        self.assertNotRegex(symbols, "fopen64|open64|_chk")

    def test_the_option_is_the_recipes_own(self) -> None:
        self.assertIn("config BR2_PACKAGE_SYS_CONTEXT\n", (BUILDROOT / "Config.in").read_text())
        self.assertIn(f"SYS_CONTEXT_VERSION = {VERSION}\n",
                      (BUILDROOT / "sys-context.mk").read_text())


class Yocto(unittest.TestCase):
    def setUp(self) -> None:
        (path,) = (SOURCE / "packaging/yocto").glob("*.bb")
        self.values = recipe.read(path)

    def expanded(self, name: str) -> str:
        return recipe.expand(self.values, self.values[name])

    def test_is_of_this_version(self) -> None:
        self.assertEqual(self.values["PV"], VERSION)
        self.assertEqual(self.expanded("SRC_URI"), f"file://{TARBALL.name}")

    def test_every_installed_file_has_its_package(self) -> None:
        work = FOLDER / "yocto"
        with tarfile.open(TARBALL) as archive:
            archive.extractall(work, filter="data") if hasattr(tarfile, "data_filter") \
                else archive.extractall(work)
        source = Path(self.expanded("S").replace("WORK", str(work), 1))
        enabled = self.values["PACKAGECONFIG[sysctx]"].split(",")[0]
        run("cmake", "-S", source, "-B", work / "build", "-G", "Ninja",
            "-DCMAKE_INSTALL_PREFIX=/usr", "-DCMAKE_INSTALL_LIBDIR=lib",
            *self.expanded("EXTRA_OECMAKE").split(), enabled)
        run("cmake", "--build", work / "build")
        run("cmake", "--install", work / "build", DESTDIR=work / "image")

        files = [f"/{file}" for file in files_below(work / "image")]
        packages = recipe.files_of_packages(self.values, files)
        self.assertEqual(packages.get("", []), [])
        self.assertEqual(packages["sys-context"], [
            "/usr/lib/libsys_context.so.1", f"/usr/lib/libsys_context.so.{VERSION}"])
        self.assertIn("/usr/bin/sysctx", packages["sysctx"])
        self.assertIn("/usr/share/sysctx/definitions/kt3300-l/equipment.toml",
                      packages["sysctx"])
        self.assertIn("/usr/include/sys_context/platform.h", packages["sys-context-dev"])
        self.assertIn("/usr/lib/libsys_context.so", packages["sys-context-dev"])
        self.assertIn("/usr/lib/pkgconfig/sys_context.pc", packages["sys-context-dev"])
        self.assertIn("/usr/share/man/man1/sysctx.1", packages["sys-context-doc"])

    def test_without_the_simulated_card_by_default(self) -> None:
        self.assertEqual(self.values["PACKAGECONFIG"], "")
        self.assertEqual(self.values["PACKAGECONFIG[sysctx]"].split(",")[1],
                         "-DSYS_CONTEXT_HOST=OFF")


if __name__ == "__main__":
    unittest.main()
