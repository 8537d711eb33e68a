"""Files of scripts/generate-definition: what it says is what sysctx loads."""
import subprocess
import sys
import unittest

import card

GENERATOR = card.SOURCE / "scripts" / "generate-definition"
# What is in a file that is made without options.
COUNTS = "2 versions, 4 modules, 2 system functions"
OLT_COUNTS = "4 OLT port types, 1 main boards, 4 service boards"


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

    def check_loads(self, counts, olt_counts, *options):
        report = self.load(*options)
        self.assertIn(f"loaded: {counts}\nloaded: {olt_counts}\n", report)
        self.assertNotIn("console:", report)
        self.assertNotIn("failed", report)

    def check_refused(self, counts, olt_counts, code, *options):
        report = self.load(*options)
        self.assertIn(f"loaded: {counts}\nloaded: {olt_counts}\n", report)
        self.assertIn(f"ddInit failed with {code}", report)

    def test_the_default(self):
        self.check_loads(COUNTS, OLT_COUNTS)

    def test_line_ends_of_carriage_return_and_line_feed(self):
        self.check_loads(COUNTS, OLT_COUNTS, "--line-end", "crlf")

    def test_every_count_at_its_limit(self):
        self.check_loads("30 versions, 200 modules, 200 system functions",
                         "30 OLT port types, 1 main boards, 100 service boards",
                         "--limits", "--main-boards", "1")

    def test_as_many_main_boards_as_possible(self):
        self.check_loads(COUNTS, "4 OLT port types, 100 main boards, 4 service boards",
                         "--main-boards", "100", "--logic-ports", "1", "--special-maps", "19")

    def test_no_main_board_has_to_be_there(self):
        report = self.load("--main-boards", "0")
        self.assertIn("loaded: 4 OLT port types, 0 main boards, 4 service boards\n", report)
        self.assertIn(
            "console: ddReadAllSupportedMainBoardInformation err! ulSupportedOnuTypeNum = 0\n",
            report)

    def test_padding_and_a_huge_section(self):
        self.check_loads(COUNTS, OLT_COUNTS, "--pad-to", "600000", "--huge-section", "10000")

    def test_the_rest_of_too_many_versions_is_ignored(self):
        self.check_loads("30 versions, 4 modules, 2 system functions", OLT_COUNTS,
                         "--versions", "31")

    def test_too_many_modules_are_refused(self):
        self.check_refused("2 versions, 0 modules, 0 system functions",
                           "0 OLT port types, 0 main boards, 0 service boards", -28,
                           "--modules", "201")

    def test_too_many_system_functions_are_refused(self):
        self.check_refused("2 versions, 4 modules, 0 system functions",
                           "0 OLT port types, 0 main boards, 0 service boards", -28,
                           "--sys-functions", "201")

    def test_too_many_olt_port_types_are_refused(self):
        self.check_refused(COUNTS, "0 OLT port types, 0 main boards, 0 service boards", -11,
                           "--olt-ports", "31")

    def test_too_many_main_boards_are_refused(self):
        self.check_refused(COUNTS, "4 OLT port types, 0 main boards, 0 service boards", -19,
                           "--main-boards", "101", "--logic-ports", "1", "--special-maps", "0")

    def test_too_many_service_boards_are_refused(self):
        self.check_refused(COUNTS, "4 OLT port types, 1 main boards, 0 service boards", -19,
                           "--service-boards", "101")

    def test_a_board_beyond_its_limits_is_left_out(self):
        for option, olt_counts in (
                (("--logic-ports", "1281"), "4 OLT port types, 0 main boards, 4 service boards"),
                (("--special-maps", "20"), "4 OLT port types, 0 main boards, 4 service boards"),
                (("--ports-per-board", "129"), "4 OLT port types, 1 main boards, 0 service boards"),
                (("--special-ports-per-board", "129"),
                 "4 OLT port types, 1 main boards, 0 service boards")):
            with self.subTest(option=option):
                report = self.load(*option)
                self.assertIn(f"loaded: {COUNTS}\nloaded: {olt_counts}\n", report)
                self.assertNotIn("failed", report)


if __name__ == "__main__":
    unittest.main()
