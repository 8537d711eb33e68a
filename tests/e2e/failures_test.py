"""Everything that keeps sysctx from starting: one line, a status, no output.
And a card whose library fails to start, which stays usable."""
import re
import socket
import unittest

import card


class BadLines(card.CardTest):
    def setUp(self):
        super().setUp()
        self.define()

    def check(self, message, *arguments):
        with self.subTest(arguments=arguments):
            done = card.run(*arguments)
            self.assertEqual(done.stderr.decode(), f"sysctx: {message}\n")
            self.assertEqual(done.stdout, b"")
            self.assertEqual(done.returncode, 1)

    def test_options(self):
        hint = " (see sysctx --help)"
        self.check(f"unknown option '--rot'{hint}", "--rot", "x")
        self.check(f"unknown word 'start'{hint}", "start")
        self.check(f"option '--root' needs a value{hint}", "--root")
        self.check(f"'run' needs a command{hint}", "run")
        self.check(f"'serve' needs --telnet PORT{hint}", "serve")
        self.check(f"option '--telnet' needs a value{hint}", "serve", "--telnet")
        self.check(f"--telnet goes with 'serve'{hint}", "--telnet", "2323")

    def test_port_numbers(self):
        for port in ("x", "-1", "65536", "23x", "99999999999999999999", " 23"):
            self.check(f"bad port '{port}': a number from 0 to 65535 is wanted",
                       "serve", "--telnet", port)

    def test_port_in_use(self):
        with socket.create_server(("127.0.0.1", 0)) as taken:
            port = taken.getsockname()[1]
            self.check(f"port {port}: Address already in use",
                       "--root", self.root, "serve", "--telnet", port)

    def test_missing_root(self):
        missing = self.root / "missing"
        self.check(f"root '{missing}': No such file or directory", "--root", missing)
        self.check(f"root '{missing}': No such file or directory",
                   "--root", missing, "run", "show context version")

    def test_root_that_is_a_file(self):
        file = self.root / "equipment.toml"
        self.check(f"root '{file}' is no folder", "--root", file)

    def test_root_without_equipment(self):
        (self.root / "equipment.toml").unlink()
        self.check(f"{self.root}/equipment.toml: No such file or directory",
                   "--root", self.root, "run", "show context version")

    def test_bad_equipment(self):
        file = self.root / "equipment.toml"
        for text, message in (
                ("device_type = \"x\"\n",
                 ":1: key 'device_type': expected an integer, found a string"),
                ("\n[main_card]\nslots = 9\n", ":3: key 'main_card.slots': unknown key"),
                ("[ftp]\nport = 70000\n", ":2: key 'ftp.port': 70000 is not within 1..65535")):
            file.write_text(text)
            self.check(f"{file}{message}", "--root", self.root)

    def test_equipment_with_a_syntax_error(self):
        file = self.root / "equipment.toml"
        file.write_text("device_type = 15\n[main_card\n")
        done = card.run("--root", self.root)
        self.assertRegex(done.stderr.decode(), f"^sysctx: {re.escape(str(file))}:2: .+\n$")
        self.assertEqual((done.returncode, done.stdout), (1, b""))


class Information(unittest.TestCase):
    def test_help(self):
        done = card.run("--help")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertTrue(done.stdout.startswith(b"Usage: sysctx [--root DIR] ["))

    def test_version(self):
        done = card.run("--version")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertRegex(done.stdout.decode(), r"^sysctx \d+\.\d+\.\d+\n$")


class FailedStart(card.CardTest):
    """ddInit fails, the shell works on what was loaded before the failure."""

    VERSIONS = b"\r\n 0. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.0"

    def break_modules(self):
        self.define(card.DEFINITIONS.replace("ModuleNum=1", "ModuleNum=201"))

    def test_run_prints_what_is_there(self):
        self.break_modules()
        done = card.run("--root", self.root, "run", "show context version")
        self.assertEqual(done.returncode, 0)
        self.assertTrue(done.stdout.startswith(b"\r\nVersion:\r\n"), done.stdout)
        self.assertIn(self.VERSIONS, done.stdout)
        self.assertNotIn(b"ddInit", done.stdout)
        report = done.stderr.decode()
        self.assertIn("\nddInit failed with -28: tables behind the failure are empty\n", report)
        self.assertIn("\nconsole: ddReadAllModuleInformation err! ulModuleTypeNum = 201,", report)
        self.assertIn("loaded: 2 versions, 0 modules, 0 system functions\n"
                      "loaded: 0 OLT port types, 0 main boards, 0 service boards\n" + card.NO_FRAME
                      + card.NO_ONUS + card.NO_OPTICAL_MODULES, report)

    def test_shell_says_so_and_works(self):
        self.break_modules()
        done = card.run("--root", self.root, stdin=b"show context version\n")
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        self.assertIn(b"\nddInit failed with -28: tables behind the failure are empty\n"
                      b"the shell is usable all the same\n", done.stdout)
        self.assertIn(self.VERSIONS, done.stdout)

    def test_tables_in_front_of_the_failure_are_shown(self):
        self.define(card.DEFINITIONS.replace("MainBoardTypeNum=1", "MainBoardTypeNum=101"))
        for command, text in (
                ("olt_port", b"acName =                 GPON, ulSplittingRatio = 128\r\n"),
                ("main_board", b"\r\nddPrintAllSupportedMainBoardInformation err!, "
                               b"pBoardTypeArray = 0x0"),
                ("board_all", b"\r\ngstSupportedBoardType.ulSupportedBoardTypeNum = 0\r\n")):
            with self.subTest(command=command):
                done = card.run("--root", self.root, "run", f"show context {command}")
                self.assertEqual(done.returncode, 0)
                self.assertIn(text, done.stdout)
                report = done.stderr.decode()
                self.assertIn("\nddInit failed with -19: tables behind the failure are empty\n",
                              report)
                self.assertIn("loaded: 2 versions, 1 modules, 1 system functions\n"
                              "loaded: 1 OLT port types, 0 main boards, 0 service boards\n"
                              + card.NO_FRAME + card.NO_ONUS + card.NO_OPTICAL_MODULES, report)

    def check_frame(self, code, frame, text):
        """The frame fails, and so much of it was loaded."""
        done = card.run("--root", self.root, "run", "show context frame")
        self.assertEqual(done.returncode, 0)
        self.assertIn(text, done.stdout)
        report = done.stderr.decode()
        self.assertIn(f"\nddInit failed with {code}: tables behind the failure are empty\n", report)
        self.assertIn("loaded: 1 OLT port types, 1 main boards, 2 service boards\n" + frame
                      + card.NO_ONUS + card.NO_OPTICAL_MODULES, report)

    def test_a_frame_that_fails_stays_as_far_as_it_was_loaded(self):
        self.define(card.DEFINITIONS.replace("SwitchChipLogicPort2=2,1,0",
                                             "SwitchChipLogicPort2=3,1,0"))
        self.check_frame(
            -3, "loaded: frame KT3300-L, 2 real slots, 0 logic ports, 0 type-2 logic ports\n",
            b"\r\nulSLotOut =  2, MCXA|\r\n\r\nulSwitchChipLogicPortNum =  0\r\n")

    def test_no_frame_of_the_device_type(self):
        self.define()
        self.write("equipment.toml", "device_type = 6\n")
        self.check_frame(-31, card.NO_FRAME, b"\r\neType = 0, ulNameLen = 0, acName = \r\n")

    def check_onus(self, code, tables, shown):
        """The ONU catalog fails, and so much of it was loaded; `shown`: texts by command."""
        for command, text in shown:
            with self.subTest(command=command):
                done = card.run("--root", self.root, "run", f"show context {command}")
                self.assertEqual(done.returncode, 0)
                self.assertIn(text, done.stdout)
                report = done.stderr.decode()
                self.assertIn(f"\nddInit failed with {code}: tables behind the failure are empty\n",
                              report)
                self.assertIn(f" 1 type-2 logic ports\nloaded: {tables}\n"
                              + card.NO_OPTICAL_MODULES, report)

    def test_onu_port_types_in_front_of_the_failure_are_shown(self):
        self.define(card.DEFINITIONS.replace("OnuPotsTypeNum=1", "OnuPotsTypeNum=31"))
        self.check_onus(-16, "ONU port types: 1 PON, 1 LAN, 0 POTS, 0 special; 0 ONU types", (
            ("onu_lan", b"\r\n 0. ulLanType =   3, ulNameLen =  3, acName =              GE\r\n"),
            ("onu_pots", b"\r\nddPrintAllSupportedOnuPotsInfomation err! pOnuPotsTypeArray = 0x0"),
            ("onu_type_all", b"\r\nddPrintAllSupportedOnuTypeBaseInfomation, "
                             b"ulSupportedOnuTypeNum = 0, pOnuTypeArray = 0x0")))

    def test_onu_types_need_a_lan_port_type(self):
        self.define(card.DEFINITIONS.replace("OnuLanTypeNum=1", "OnuLanTypeNum=0"))
        self.check_onus(-27, "ONU port types: 1 PON, 0 LAN, 1 POTS, 1 special; 0 ONU types", (
            ("onu_detail index 0", b"\r\nddPrintOneSupportedOnuInfomation, "
                                   b"ulSupportedOnuTypeNum = 0, pOnuTypeArray = 0x0"),))

    def test_onu_types_out_of_order_are_none(self):
        self.define(card.DEFINITIONS.replace("OnuType1=Onu_KT-G101", "OnuType1=Onu_KT-G112C")
                    .replace("OnuType2=Onu_KT-G112C", "OnuType2=Onu_KT-G101"))
        self.check_onus(-31, "ONU port types: 1 PON, 1 LAN, 1 POTS, 1 special; 0 ONU types", (
            ("onu_type_all", b"\r\ngstSupportedOnuType.ulSupportedOnuTypeNum = 0\r\n"),
            ("onu_detail index 0", b"\r\nNo supported onu!\r\nulSupportedOnuTypeNum = 0")))

    def test_every_table_is_shown_without_a_definition_file(self):
        done = card.run("--root", self.root, "run", "show context device_all")
        self.assertEqual(done.returncode, 0)
        self.assertIn(b"\r\nddPrintOneSupportedOnuInfomation, ulSupportedOnuTypeNum = 0, "
                      b"pOnuTypeArray = 0x0\r\n\r\n/*****", done.stdout)
        self.assertTrue(done.stdout.endswith(
            b" System device describe end! *****************/\r\n" + b" " * 64 + b"\r\n"),
            done.stdout[-200:])

    def check_optical_modules(self, code, file, index, shown):
        """The optical modules fail, behind tables that are all loaded."""
        done = card.run("--root", self.root, "run", f"show optmodule fileinfo index {index}")
        self.assertEqual((done.returncode, done.stdout), (0, shown))
        report = done.stderr.decode()
        self.assertIn(f"  /mnt/work/optmodule_definition.ini: {file}\n", report)
        self.assertIn(f"\nddInit failed with {code}: tables behind the failure are empty\n", report)
        self.assertIn("console: ddInit optfile initialize......failed!\n", report)
        self.assertIn(" 1 special; 2 ONU types\n" + card.NO_OPTICAL_MODULES, report)

    def test_missing_optical_modules(self):
        self.define()
        (self.root / "mnt/work/optmodule_definition.ini").unlink()
        self.check_optical_modules(-1, "missing", 1, b"index 1 is out of range 1 ~ 0.\r\n")

    def test_too_many_optical_modules(self):
        self.define()
        text = card.OPTICAL_MODULES.replace("InfoNum=2", "InfoNum=51")
        self.write("mnt/work/optmodule_definition.ini", text)
        self.check_optical_modules(-15, f"{len(text)} bytes", 0,
                                   b"index 0 is out of range 1 ~ 0.\r\n")

    def test_an_optical_module_that_is_left_out(self):
        self.define()
        self.write("mnt/work/optmodule_definition.ini",
                   card.OPTICAL_MODULES.replace("PortKind=1\n", ""))
        done = card.run("--root", self.root, stdin=b"show optmodule fileinfo index 1\n")
        self.assertIn(b"\nloaded: 1 optical modules\n", done.stdout)
        self.assertNotIn(b"failed", done.stdout)
        self.assertIn(b"\nONU PON Optical Module Index 1:\r\nPortType: 2,  PhyType: 7  \r\n",
                      done.stdout)
        self.assertIn(b"optmodule_infolist_read: err! ret = -2, strSectionFrameNameBuf = "
                      b"OltGponClassB, Key = PortKind.", done.stderr)

    def test_missing_definition_file(self):
        done = card.run("--root", self.root, "run", "show context version")
        self.assertEqual(done.returncode, 0)
        self.assertIn(b"ulSupportedSoftVerNum = 0\r\n", done.stdout)
        report = done.stderr.decode()
        self.assertIn("  /mnt/work/device_definition.ini: missing\n", report)
        self.assertIn("\nddInit failed with -31:", report)


if __name__ == "__main__":
    unittest.main()
