"""Files of scripts/generate-definition: what it says is what sysctx loads."""
import subprocess
import sys
import unittest

import card

GENERATOR = card.SOURCE / "scripts" / "generate-definition"


class Generated(card.CardTest):
    def load(self, *options):
        """What sysctx reports about a file made with these options."""
        text = subprocess.run(
            [sys.executable, GENERATOR, *options], capture_output=True, check=True).stdout
        path = self.root / "mnt/work/device_definition.ini"
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(text)
        done = card.run("--root", self.root)
        self.assertEqual(done.returncode, 0)
        return done.stdout.decode()

    def check_loads(self, counts, *options):
        report = self.load(*options)
        self.assertIn(f"loaded: {counts}\n", report)
        self.assertNotIn("console:", report)
        self.assertNotIn("failed", report)

    def test_the_default(self):
        self.check_loads("2 versions, 4 modules, 2 system functions")

    def test_line_ends_of_carriage_return_and_line_feed(self):
        self.check_loads("2 versions, 4 modules, 2 system functions", "--line-end", "crlf")

    def test_every_count_at_its_limit(self):
        self.check_loads(
            "30 versions, 200 modules, 200 system functions", "--limits", "--main-boards", "1")

    def test_padding_and_a_huge_section(self):
        self.check_loads("2 versions, 4 modules, 2 system functions",
                         "--pad-to", "600000", "--huge-section", "10000")

    def test_the_rest_of_too_many_versions_is_ignored(self):
        self.check_loads("30 versions, 4 modules, 2 system functions", "--versions", "31")

    def test_too_many_modules_are_refused(self):
        report = self.load("--modules", "201")
        self.assertIn("loaded: 2 versions, 0 modules, 0 system functions\n", report)
        self.assertIn("ddInit failed with -28", report)

    def test_too_many_system_functions_are_refused(self):
        report = self.load("--sys-functions", "201")
        self.assertIn("loaded: 2 versions, 4 modules, 0 system functions\n", report)
        self.assertIn("ddInit failed with -28", report)


if __name__ == "__main__":
    unittest.main()
