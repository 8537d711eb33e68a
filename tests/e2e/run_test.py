"""`sysctx run`: one command's output byte for byte, and its result."""
import unittest

import card
import expected

OMCI_ROW = b" 0. ModuleType =  1, ulNameLen =  5, acName = OMCI         , ulSize = 64\r\n"


class RunOnSamples(unittest.TestCase):
    def check_golden(self, *options, sample):
        texts = {f"context {command}": expected.context(sample, command)
                 for command in expected.CONTEXT_COMMANDS}
        texts.update((f"optmodule fileinfo index {index}", text)
                     for index, text in expected.optical_modules(sample).items())
        for command, text in texts.items():
            with self.subTest(sample=sample, command=command):
                done = card.run(*options, "run", f"show {command}")
                self.assertEqual(done.stdout, text)
                self.assertEqual(done.stderr, b"")
                self.assertEqual(done.returncode, 0)

    def test_output_of_every_command(self):
        for sample in card.SAMPLES:
            self.check_golden("--root", card.sample(sample), sample=sample)

    def test_the_large_sample_is_the_default(self):
        self.check_golden(sample="kt3300-l")


class Run(card.CardTest):
    def setUp(self):
        super().setUp()
        self.define()

    def run_command(self, *words):
        return card.run("--root", self.root, "run", *words)

    def test_abbreviated(self):
        done = self.run_command("sh con mod | inc OMCI")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, OMCI_ROW, b""))

    def test_words_unquoted(self):
        done = self.run_command("show", "context", "module_all", "|", "include", "OMCI")
        self.assertEqual((done.returncode, done.stdout, done.stderr), (0, OMCI_ROW, b""))

    def test_include_filter(self):
        done = self.run_command("show context version | include KT")
        self.assertEqual(
            done.stdout,
            b" 0. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.0\r\n"
            b" 1. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.1\r\n")

    def test_board_filters(self):
        done = self.run_command("show context board_all | include Index")
        self.assertEqual((done.returncode, done.stdout), (0, b"Index = 0\r\nIndex = 1\r\n"))
        done = self.run_command("show context main_board | include PhyPort")
        self.assertEqual(
            done.stdout, b"NoSpecialUplinkBoard_SwitchChipLogicPort =  1  ---> PhyPort: 5\r\n")

    def test_frame_filters(self):
        done = self.run_command("show context frame | include SwitchChipLogicPortNum")
        self.assertEqual(
            (done.returncode, done.stdout, done.stderr),
            (0, b"ulSwitchChipLogicPortNum =  2\r\n"
                b"SwitchChipLogicPortNum =  1  ---> (SlotOut: 1, Port: 0)\r\n"
                b"SwitchChipLogicPortNum =  2  ---> (SlotOut: 2, Port: 1)\r\n"
                b"ulType2SwitchChipLogicPortNum =  1\r\n"
                b"Type2SwitchChipLogicPortNum =  1 --->(SlotOut: 1, Port: 0, ChipPort: 0, "
                b"PhyPort:29, HigigFlag: 1 )\r\n", b""))
        done = self.run_command("show context frame | include ulSLotOut")
        self.assertEqual(
            done.stdout, b"ulSLotOut =  1, GP01A|PWDA|\r\nulSLotOut =  2, MCXA|\r\n")

    def test_onu_filters(self):
        done = self.run_command("show context onu_type_all | include ulOnuType")
        self.assertEqual(
            (done.returncode, done.stdout, done.stderr),
            (0, b" 0. ulOnuType = 6001, ulNameLen =  8, acName = KT-G101        , "
                b"ulTotalPonNum = 1, ulTotalLanPortNum =  1\r\n"
                b" 1. ulOnuType = 6020, ulNameLen =  9, acName = KT-G112C       , "
                b"ulTotalPonNum = 1, ulTotalLanPortNum =  2\r\n", b""))
        done = self.run_command("show context onu_special_port | include CATV")
        self.assertEqual(
            done.stdout, b" 0. ulPortType =   5, ulNameLen =  5, acName =            CATV\r\n")

    def test_one_onu_type_is_chosen_by_its_index(self):
        for index, name in (("0", b"KT-G101"), ("1", b"KT-G112C"), ("abc", b"KT-G101"),
                            ("1x", b"KT-G112C")):
            with self.subTest(index=index):
                done = self.run_command(f"show context onu_d index {index} | include One")
                self.assertEqual((done.returncode, done.stdout, done.stderr),
                                 (0, b"SupportedOneOnuInformation: " + name + b"\r\n", b""))
        done = self.run_command("show context onu_detail index 2")
        self.assertEqual(
            (done.returncode, done.stdout, done.stderr),
            (0, b"\r\ndebug_ddPrintOneSupportedOnuInfomation err! ulOnuIndex = 2, "
                b"ulSupportedOnuTypeNum = 2\r\nIndex err! must from 0 to 1\r\n", b""))

    def test_one_optical_module_is_chosen_by_its_index(self):
        for index, text in (
                ("1", b"OLT PON Optical Module Index 1:\r\nPortType: 2,  PhyType: 1  \r\n"
                      b"PON path num: 1 \r\n"
                      b"path 1: inup: -800, indn -2800, outup 500, outdn 150.\r\n"),
                ("65538x", b"ONU PON Optical Module Index 2:\r\nPortType: 2,  PhyType: 7  \r\n"
                           b"PON path num: 2 \r\n"
                           b"path 1: inup: -800, indn -2700, outup 500, outdn 50.\r\n"
                           b"path 2: inup: -900, indn -2850, outup 900, outdn 400.\r\n"),
                ("abc", b"index 0 is out of range 1 ~ 2.\r\n"),
                ("3", b"index 3 is out of range 1 ~ 2.\r\n"),
                ("-1", b"index 65535 is out of range 1 ~ 2.\r\n")):
            with self.subTest(index=index):
                done = self.run_command(f"sh opt f i {index}")
                self.assertEqual((done.returncode, done.stdout, done.stderr), (0, text, b""))

    def test_the_file_filtered(self):
        done = self.run_command("show context file | include KT-G112C")
        self.assertEqual(
            (done.returncode, done.stdout, done.stderr),
            (0, b"SupportedOnuType2=Onu_KT-G112C\r\n[Onu_KT-G112C]\r\nName=KT-G112C\r\n", b""))

    def test_an_upload_needs_four_arguments(self):
        for arguments in ("127.0.0.1", "127.0.0.1 user", "127.0.0.1 user password",
                          "127.0.0.1 user password file another"):
            with self.subTest(arguments=arguments):
                done = self.run_command(f"upload ftp context {arguments}")
                self.assertEqual((done.returncode, done.stdout, done.stderr),
                                 (255, b"Command error!\r\n", b""))

    def test_the_frame_is_the_device_types(self):
        self.write("equipment.toml", "device_type = 17\n")
        self.define(card.DEFINITIONS.replace("[KT3300-L", "[KT3300-N"))
        done = self.run_command("show context frame | include ulNameLen")
        self.assertEqual(
            (done.returncode, done.stdout, done.stderr),
            (0, b"eType = 15, ulNameLen = 9, acName = KT3300-L\r\n", b""))

    def test_an_unknown_device_type_is_told(self):
        self.write("equipment.toml", "device_type = 99\n")
        done = self.run_command("show context frame | include eType")
        self.assertEqual(
            (done.returncode, done.stdout, done.stderr),
            (0, b"eType = 15, ulNameLen = 9, acName = KT3300-L\r\n",
             b"console: ddGetFrameName err!, iFrameType = 99,set default KT3300_L_FRAME\n"))

    def test_count_filter(self):
        self.assertEqual(self.run_command("show context version | count").stdout, b"5\r\n")

    def test_question_lists_words(self):
        done = self.run_command("show context ?")
        self.assertEqual(done.returncode, 0)
        for line in (b"version              version info.",
                     b"module_all           all module info.",
                     b"sys_support_func     sys support func info.",
                     b"main_board           main board info.",
                     b"olt_port             olt port info.",
                     b"board_all            all board info.",
                     b"frame                frame info.",
                     b"onu_pon              onu pon info.",
                     b"onu_lan              onu lan info.",
                     b"onu_pots             onu pots info.",
                     b"onu_special_port     onu special port info.",
                     b"onu_type_all         all onu type info.",
                     b"onu_detail           all onu type info.",
                     b"onu_all              all onu detail info.",
                     b"device_all           all devices info.",
                     b"file                 context file info."):
            self.assertIn(b"  " + line + b"\n", done.stdout)

    def test_question_lists_arguments(self):
        for words, text in (
                ("show ?", b"  context              context info.\n"
                           b"  optmodule            optmodule.\n"),
                ("show optmodule fileinfo index ?",
                 b"  <indexno>            please input index no 1~26.\n"),
                ("upload ?",
                 b"  ftp                  Upload file to ftp server use ftp protocal.\n"),
                ("upload ftp context ?",
                 b"  <A.B.C.D>            "
                 b"Please input ftp server's IP address, such as A.B.C.D\n"),
                ("upload ftp context 127.0.0.1 user password ?",
                 b"  <filename>           Please input the file name.\n")):
            with self.subTest(words=words):
                done = self.run_command(words)
                self.assertEqual((done.returncode, done.stderr), (0, b""))
                self.assertTrue(done.stdout.startswith(text), done.stdout)

    def test_refused_commands(self):
        for command, message in (
                ("show nothing", b'sysctx: Invalid command "show nothing"\n'),
                ("h", b'sysctx: Ambiguous command "h": help history\n'),
                ("show context m",
                 b'sysctx: Ambiguous command "show context m": module_all main_board\n'),
                ("show context", b"sysctx: Incomplete command\n"),
                ("show context onu",
                 b'sysctx: Ambiguous command "show context onu": onu_pon onu_lan onu_pots '
                 b'onu_special_port onu_type_all onu_detail onu_all\n'),
                ("show context f",
                 b'sysctx: Ambiguous command "show context f": frame file\n'),
                ("show optmodule fileinfo", b"sysctx: Incomplete command\n"),
                ("upload ftp context",
                 b"sysctx: Incomplete command, missing required argument 'A.B.C.D' for command "
                 b"'context'\n"),
                ("show context onu_detail", b"sysctx: Incomplete command\n"),
                ("show context onu_detail index",
                 b"sysctx: Incomplete command, missing required argument 'indexno' for command "
                 b"'index'\n"),
                ("show context version 1",
                 b'sysctx: Invalid argument "1": the command takes none\n'),
                ("show context version | sort", b'sysctx: Invalid command "sort"\n')):
            with self.subTest(command=command):
                done = self.run_command(command)
                self.assertEqual((done.returncode, done.stdout, done.stderr), (2, b"", message))

    def test_console_text_stays_out_of_the_output(self):
        self.define(card.DEFINITIONS.replace("ModuleNum=1", "ModuleNum=2"))
        done = self.run_command("show context module_all | include OMCI")
        self.assertEqual((done.returncode, done.stdout), (0, OMCI_ROW))
        self.assertEqual(
            done.stderr,
            b"console: ddReadAllModuleInformation err! iResult = -2, section = ModuleTypeList,"
            b" key = Module2\n")

    def test_boards_that_are_left_out_are_told(self):
        self.define(card.DEFINITIONS.replace("NameKeyPort1=GPON", "NameKeyPort1=EPON"))
        done = self.run_command("show context board_all | include Index")
        self.assertEqual((done.returncode, done.stdout), (0, b"Index = 0\r\n"))
        self.assertEqual(
            done.stderr,
            b"console: ddAddSupportedServePortToBoardObj->dd_IsOltPonTypeSupportedBySecName err!"
            b" iResult = -32, strKey = NameKeyPort1, ulIndex = 0\n"
            b"console: ddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err!"
            b" strBoardTypeSection = Board_GP01A\n"
            b"console: ddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err!"
            b" iResult = -1, section = Board_GP01A\n"
            b"console: ddReadSlotSupportBoard err! iResult = -32, _tmp = GP01A,"
            b" ulSlotListIndex = 0, ulSlotOut = 1, ulSLotEnd = 2\n")

    def test_onu_types_that_are_left_out_are_told(self):
        self.define(card.DEFINITIONS.replace("NameKeyLanPort2=GE", "NameKeyLanPort2=FE"))
        done = self.run_command("show context onu_type_all | include acName")
        self.assertEqual(
            (done.returncode, done.stdout),
            (0, b" 0. ulOnuType = 6001, ulNameLen =  8, acName = KT-G101        , "
                b"ulTotalPonNum = 1, ulTotalLanPortNum =  1\r\n"))
        self.assertEqual(
            done.stderr,
            b"console: ddAddSupportedLanToOnuObj->ddIsOnuLanTypeSupportedByName err!"
            b" iResult = -32, strKey = NameKeyLanPort2, ulIndex = 0\n"
            b"console: ddReadOneSupportedOnuInformation->ddAddSupportedLanToOnuObj err!"
            b" strOnuTypeSection = Onu_KT-G112C\n"
            b"console: ddReadAllSupportedOnuInformation->ddReadOneSupportedOnuInformation err!"
            b" iResult = -27, section = Onu_KT-G112C\n")

    def test_full_device_is_told(self):
        with open("/dev/full", "wb") as full:
            done = card.subprocess.run(
                [card.SYSCTX, "--root", str(self.root), "run", "show context version"],
                stdout=full, stderr=card.subprocess.PIPE, timeout=card.PATIENCE, check=False)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, b"sysctx: the output cannot be written\n")


class Script(card.CardTest):
    """Commands read from an input that is no terminal."""

    def setUp(self):
        super().setUp()
        self.define()

    def feed(self, text):
        return card.run("--root", self.root, stdin=text)

    def test_lines_are_run_one_by_one(self):
        done = self.feed(b"\nshow context version | count\r\n  show context mod | inc OMCI")
        self.assertTrue(done.stdout.endswith(b"\n5\r\n" + OMCI_ROW), done.stdout)
        self.assertEqual((done.returncode, done.stderr), (0, b""))

    def test_start_up_is_reported_first(self):
        lines = self.feed(b"").stdout.decode().splitlines()
        self.assertRegex(lines[0], r"^sysctx \d+\.\d+\.\d+, simulated control card$")
        self.assertEqual(lines[1], f"root: {self.root}")
        self.assertEqual(
            lines[2],
            "  equipment.toml: device type 15, main card 0 in slot 0, 0 configured cards")
        self.assertEqual(
            lines[3], f"  /mnt/work/device_definition.ini: {len(card.DEFINITIONS)} bytes")
        self.assertEqual(
            lines[4], f"  /mnt/work/optmodule_definition.ini: {len(card.OPTICAL_MODULES)} bytes")
        self.assertEqual("\n".join(lines[5:10]) + "\n", card.LOADED)
        self.assertEqual(lines[10], f"commands: {len(expected.COMMANDS)} installed")
        self.assertRegex("\n".join(lines), r"module 1: SysContext, version \"\w{3} [ \d]\d \d{4} ")

    def test_the_tables_of_the_samples_are_counted(self):
        for sample, tables in (
                ("kt3300-l", "68 ONU types\n"),
                ("kt2200-a", "12 ONU types\n")):
            with self.subTest(sample=sample):
                modules = expected.OPTICAL_MODULES[sample]
                done = card.run("--root", card.sample(sample))
                self.assertIn(f"{tables}loaded: {modules} optical modules\n", done.stdout.decode())

    def test_status_is_the_last_commands(self):
        self.assertEqual(self.feed(b"hide\nshow context version\n").returncode, 0)
        done = self.feed(b"show context version\nhide\n")
        self.assertEqual((done.returncode, done.stderr), (2, b'Invalid command "hide"\n'))

    def test_quit_ends(self):
        done = self.feed(b"quit\nhide\n")
        self.assertEqual((done.returncode, done.stderr), (0, b""))


if __name__ == "__main__":
    unittest.main()
