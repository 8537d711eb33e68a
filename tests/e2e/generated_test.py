"""Files of scripts/generate-definition: what it says is what sysctx loads."""
import subprocess
import sys
import unittest

import card

GENERATOR = card.SOURCE / "scripts" / "generate-definition"
# What is in a file that is made without options.
COUNTS = "2 versions, 4 modules, 2 system functions"
OLT_COUNTS = "4 OLT port types, 1 main boards, 4 service boards"
FRAME = "KT3300-L, 12 real slots, 24 logic ports, 10 type-2 logic ports"
ONUS = "ONU port types: 4 PON, 4 LAN, 4 POTS, 4 special; 6 ONU types"
NO_FRAME = "(none), 0 real slots, 0 logic ports, 0 type-2 logic ports"
NO_ONUS = "ONU port types: 0 PON, 0 LAN, 0 POTS, 0 special; 0 ONU types"


class Generated(card.CardTest):
    def load(self, *options, optical=None):
        """What sysctx reports about a file made with these options, and about one of
        optical modules made with those."""
        self.define(self.generate(*options))
        if optical is not None:
            self.write("mnt/work/optmodule_definition.ini", self.generate("--optical", *optical))
        done = card.run("--root", self.root)
        self.assertEqual(done.returncode, 0)
        return done.stdout.decode()

    def generate(self, *options):
        return subprocess.run(
            [sys.executable, GENERATOR, *options], capture_output=True, check=True).stdout.decode()

    def check_counts(self, counts, olt_counts, frame, report, onus=ONUS, optical_modules=2):
        self.assertIn(f"loaded: {counts}\nloaded: {olt_counts}\nloaded: frame {frame}\n"
                      f"loaded: {onus}\nloaded: {optical_modules} optical modules\n", report)

    def check_loads(self, counts, olt_counts, *options, frame=FRAME, onus=ONUS):
        report = self.load(*options)
        self.check_counts(counts, olt_counts, frame, report, onus)
        self.assertNotIn("console:", report)
        self.assertNotIn("failed", report)

    def check_refused(self, counts, olt_counts, code, *options, frame=NO_FRAME, onus=NO_ONUS):
        report = self.load(*options)
        self.check_counts(counts, olt_counts, frame, report, onus, optical_modules=0)
        self.assertIn(f"ddInit failed with {code}:", report)

    def test_the_default(self):
        self.check_loads(COUNTS, OLT_COUNTS)

    def test_line_ends_of_carriage_return_and_line_feed(self):
        self.check_loads(COUNTS, OLT_COUNTS, "--line-end", "crlf")

    def test_every_count_at_its_limit(self):
        self.check_loads("30 versions, 200 modules, 200 system functions",
                         "30 OLT port types, 1 main boards, 100 service boards",
                         "--limits", "--main-boards", "1",
                         frame="KT3300-L, 100 real slots, 1280 logic ports, 58 type-2 logic ports",
                         onus="ONU port types: 30 PON, 30 LAN, 30 POTS, 30 special; 200 ONU types")

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
                self.check_counts(COUNTS, olt_counts, FRAME, report)
                self.assertNotIn("failed", report)

    def test_small_frames(self):
        for slots in (1, 2, 11, 12, 13, 14):
            with self.subTest(slots=slots):
                self.check_loads(
                    COUNTS, OLT_COUNTS, "--slots", str(slots), "--frame-ports", "0",
                    "--type2-ports", "0",
                    frame=f"KT3300-L, {slots} real slots, 0 logic ports, 0 type-2 logic ports")

    def test_the_frame_of_another_device_type(self):
        self.write("equipment.toml", "device_type = 6\n")
        self.check_loads(COUNTS, OLT_COUNTS, "--frame-name", "KT2200-A",
                         frame=FRAME.replace("KT3300-L", "KT2200-A"))
        self.check_refused(COUNTS, OLT_COUNTS, -31)

    def test_a_frame_beyond_its_limits_is_refused(self):
        for option, code, frame in (
                (("--slots", "0"), -4, "KT3300-L, 0 real slots, 0 logic ports"),
                (("--slots", "101"), -4, "KT3300-L, 0 real slots, 0 logic ports"),
                (("--frame-ports", "1281"), -22, "KT3300-L, 12 real slots, 0 logic ports"),
                (("--type2-ports", "1281"), -22, "KT3300-L, 12 real slots, 24 logic ports")):
            with self.subTest(option=option):
                self.check_refused(COUNTS, OLT_COUNTS, code, *option,
                                   frame=f"{frame}, 0 type-2 logic ports")

    def test_type_2_logic_ports_beyond_the_numbers_are_told(self):
        report = self.load("--type2-ports", "59")
        self.check_counts(COUNTS, OLT_COUNTS, FRAME.replace("10 type-2", "59 type-2"), report)
        self.assertIn("console: read_balance_switch_logicport_to_portinfo err! iResult = -26, "
                      "ulChipLogciIndex = 58\n", report)
        self.assertNotIn("failed", report)

    def test_onu_types_with_pon_ports_only(self):
        self.check_loads(COUNTS, OLT_COUNTS, "--onu-lan-ports", "0", "--onu-pots-ports", "0",
                         "--onu-special-ports", "0")

    def test_no_onu_type_has_to_be_there(self):
        report = self.load("--onu-types", "0")
        self.check_counts(COUNTS, OLT_COUNTS, FRAME, report, ONUS.replace("6 ONU", "0 ONU"))
        self.assertIn("console: ddReadAllSupportedOnuInformation ok! ulSupportedOnuTypeNum = 0\n",
                      report)
        self.assertNotIn("failed", report)

    def test_too_many_onu_port_types_are_refused(self):
        self.check_refused(COUNTS, OLT_COUNTS, -16, "--onu-port-types", "31", frame=FRAME)

    def test_too_many_onu_types_are_refused(self):
        self.check_refused(COUNTS, OLT_COUNTS, -21, "--onu-types", "201", frame=FRAME,
                           onus=ONUS.replace("6 ONU", "0 ONU"))

    def test_onu_types_without_port_types_are_refused(self):
        self.check_refused(COUNTS, OLT_COUNTS, -27, "--onu-port-types", "0", frame=FRAME)

    def test_an_onu_type_beyond_its_limits_is_left_out(self):
        for option, number in (("--onu-pon-ports", "6"), ("--onu-pon-ports", "0"),
                               ("--onu-lan-ports", "101"), ("--onu-pots-ports", "101"),
                               ("--onu-special-ports", "101")):
            with self.subTest(option=option, number=number):
                report = self.load(option, number)
                self.check_counts(COUNTS, OLT_COUNTS, FRAME, report, ONUS.replace("6 ONU", "0 ONU"))
                self.assertNotIn("failed", report)

    def test_optical_modules(self):
        for options, number in (((), 6), (("--limits",), 50), (("--opt-modules", "0"), 0),
                                (("--opt-paths", "4", "--line-end", "crlf"), 6)):
            with self.subTest(options=options):
                report = self.load(optical=options)
                self.check_counts(COUNTS, OLT_COUNTS, FRAME, report, optical_modules=number)
                self.assertNotIn("failed", report)

    def test_too_many_optical_modules_are_refused(self):
        report = self.load(optical=("--opt-modules", "51"))
        self.check_counts(COUNTS, OLT_COUNTS, FRAME, report, optical_modules=0)
        self.assertIn("ddInit failed with -15:", report)


if __name__ == "__main__":
    unittest.main()
