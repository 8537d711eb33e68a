"""`sysctx ask`: queries of the library by name, and `--debug`."""
import unittest

import card

LARGE = "kt3300-l"
SMALL = "kt2200-a"

# Sample, question, what is printed.
ANSWERS = (
    # What is loaded
    (SMALL, "ddIsContextVerMatchSoftVer", "code = 0\npulIsSupported = 1\n"),
    (SMALL, "ddGetModuleNameByType 0x13", "code = 0\npcModuleName = OPTICAL-MONITOR\n"),
    (LARGE, "ddGetModuleNameByType 999", "code = -29\npcModuleName = (untouched)\n"),
    (LARGE, "ddGetModuleTypeByName VLAN", "code = 0\npulModuleType = 3\n"),
    (LARGE, "ddIsModuleInList 999", "code = 0\npulIsSupported = 0\n"),
    (SMALL, "ddGetModuleSize 1", "code = 0\npulSize = 64\n"),
    (SMALL, "ddIsSysSupportFunc -1", "code = -29\npulIsSupported = 0\n"),
    # Boards
    (LARGE, "ddGetMainBoardObjByType 101",
     "code = 0\npBoardTypeObjAddr = MCXA, type 101, 162 logic ports, 3 port maps\n"),
    (LARGE, "ddGetMainBoardObjByType 1", "code = -18\npBoardTypeObjAddr = (null)\n"),
    (LARGE, "ddGetSpecialLogicPortToPhyPortObjByType 101 3301",
     "code = 0\npLogicPortToPhyPortTypeObjAddr = 101:UP4X, map 1, 162 logic ports\n"),
    (LARGE, "ddGetSwitchChipLogicPortFromPhyPort 5 101:UP4X",
     "code = 0\npulLogicPort = 2\npulLogicPortNum = 1\n"),
    (LARGE, "ddGetSwitchChipLogicPortFromPhyPort 1281 101:0",
     "code = -23\npulLogicPort = 0\npulLogicPortNum = (untouched)\n"),
    (SMALL, "ddGetSwitchChipPhyPortFromLogicPort 3 111:0", "code = 0\npulPhyPort = 9\n"),
    (SMALL, "ddGetPonMaxOnuNumByBoardType 3105 8", "code = 0\npulMaxOnuNumPerPon = 256\n"),
    (LARGE, "ddGetBoardAllPortTypesByType 3101 8",
     "code = 0\npulPortTypeList = 2\npulPortTypeNum = 1\n"),
    (LARGE, "ddGetCardTypeByNocaseName Up4x", "code = 0\npulCardType = 3301\n"),
    (LARGE, "ddGetPortTypeByBoardType 3101 0", "code = -13\npulPortType = (untouched)\n"),
    # The chassis
    (SMALL, "ddGetFrameName", "code = 0\npcName = KT2200-A\n"),
    (SMALL, "ddCheckFrameInformation", "code = 0\n"),
    (LARGE, "ddGetMaxMainSlot", "value = 10\n"),
    (SMALL, "ddGetMaxMainSlot", "value = 3\n"),
    (LARGE, "get_current_frameno", "value = 1\n"),
    (LARGE, "ddIsRealSlot 7", "code = 0\npulCanPlugIn = 1\n"),
    (LARGE, "ddIsRealSlot 0", "code = -4\npulCanPlugIn = 0\n"),
    (LARGE, "ddIsSlotInSlotList 9 MainSlot", "code = 0\npulIsIn = 1\n"),
    (SMALL, "ddGetRealSlotList 100",
     "code = 0\npulSlotArray = 1 2 3 4 5\npulSlotAmount = 5\n"),
    (SMALL, "ddGetRealSlotList 4",
     "code = -25\npulSlotArray = (untouched)\npulSlotAmount = (untouched)\n"),
    (SMALL, "ddGetVirtualSlotList 4294967295", "code = 0\npulSlotArray =\npulSlotAmount = 0\n"),
    (SMALL, "ddGetHcuSlotRange",
     "code = -3\npulHcuSlotStart = (untouched)\npulHcuSlotEnd = (untouched)\n"),
    # Logic ports
    (SMALL, "ddGetSlotPortFromSwitchChipLogicPort 15",
     "code = 0\npulSlotOut = 2\npulSlotPort = 1\n"),
    (LARGE, "ddGetObjectInfoFromSwitchChipLogicPort 35",
     "code = 0\npulSlotOut = 1\npulSlotPort = 1\npulSlotFlag = 1\n"),
    (LARGE, "get_balance_chipno_phyport_from_switch_logicport 200",
     "code = 0\npulChipPort = 0\npulPhyPort = 29\n"),
    (SMALL, "get_switch_logicportlist_from_slot 2 8",
     "code = 0\npulChipLogicPort = 15 16 17 18 19 20 21 22\npulChipPortCnt = 8\n"),
    (LARGE, "ddGetUplinkLogicPortListOnly 3",
     "code = -9\npulSlotArray = 17 18 19\npulPortAmount = (untouched)\n"),
    (SMALL, "get_higicport_balance_switch_logicportlist 10",
     "code = -36\npulHigigPortList =\npulChipPortCnt = 0\n"),
    (LARGE, "ddRunGetSwitchChipPhyPortFromLogicPort 17", "code = 0\npulPhyPort = 68\n"),
    (SMALL, "ddRunGetSwitchChipPhyPortFromLogicPort 2", "code = 0\npulPhyPort = 5\n"),
    # Port types, and copies of them
    (LARGE, "ddIsOnuPonTypeSupportedByName GPON", "code = 0\npIsSupported = 1\npIndex = 1\n"),
    (LARGE, "ddIsOnuPonTypeSupportedByType 99", "code = -15\npIsSupported = 0\npIndex = 0\n"),
    (LARGE, "ddIsOnuLanTypeSupportedByType 99",
     "code = -32\npIsSupported = 0\npIndex = (untouched)\n"),
    (LARGE, "ddCreateOneOnuLanObjByName GE", "code = 0\npOnuLanTypeObjAddr = GE, type 2\n"),
    (LARGE, "ddCreateOneOnuPonObjByName NONE", "code = -32\npOnuPonTypeObjAddr = (null)\n"),
    (LARGE, "ddCreateOneOltPortObjByName GPON",
     "code = 0\npulOltPortTypeObjAddr = GPON, type 2, splitting ratio 128\n"),
    # ONU types of the definition file
    (LARGE, "ddCheckSupportedOnuTypeNum", "code = 0\npulIsOk = 1\n"),
    (LARGE, "ddGetOnuNameByType 6012", "code = 0\npcOnuName = KT-G142D\n"),
    (LARGE, "ddGetOnuTypeByName KT-G142D", "code = 0\npulOnuType = 6012\n"),
    (LARGE, "ddGetOnuLanPortNumByType 6012", "code = 0\npulOnuLanPortNum = 4\n"),
    (LARGE, "ddGetOnuLanPortNumByType 6309", "code = 0\npulOnuLanPortNum = 26\n"),
    (LARGE, "ddGetOnuPonPortTypeByType 6012 1", "code = 0\npulOnuPonType = 2\n"),
    (LARGE, "ddGetOnuPonPortTypeByType 6012 2", "code = -5\npulOnuPonType = (untouched)\n"),
    (LARGE, "ddGetOnuSpecialPortTypeList 6012 100",
     "code = 0\npulSpecialPortTypeArray = 2 3 4\npulSpecialPortTypeAmount = 3\n"),
    (LARGE, "ddGetOnuSpecialPortTypeList 6012 99",
     "code = -25\npulSpecialPortTypeArray = (untouched)\n"
     "pulSpecialPortTypeAmount = (untouched)\n"),
    (SMALL, "ddGetAllSupportedOnuType 12",
     "code = 0\npulOnuTypeNum = 12\npulOnuTypeArray ="
     " 6001 6003 6008 6012 6014 6101 6106 6301 6306 6401 6403 6407\n"),
    (SMALL, "ddGetAllSupportedOnuType 13",
     "code = -21\npulOnuTypeNum = 13\npulOnuTypeArray = (untouched)\n"),
    # Those that only the platform knows, and those that it does not know either
    (LARGE, "ddGetOnuNameByType 9001", "code = 0\npcOnuName = KT-PLATFORM-ONU-1\n"),
    (LARGE, "ddGetOnuTypeByName KT-PLATFORM-ONU-2", "code = 0\npulOnuType = 9002\n"),
    (LARGE, "ddGetOnuLanPortNumByType 9001", "code = 0\npulOnuLanPortNum = 24\n"),
    (SMALL, "ddGetOnuLanPortNumByType 9001", "code = 0\npulOnuLanPortNum = 2\n"),
    (LARGE, "ddGetOnuLanPortTypeByType 9001 32", "code = 0\npulOnuLanPortType = 2\n"),
    (LARGE, "ddGetOnuPonNumByType 9002", "code = 0\npulOnuPonNum = 2\n"),
    (LARGE, "ddGetOnuSpecialPortNumByType 9001 2", "code = 0\npulOnuSpecialPortNum = 2\n"),
    (LARGE, "ddGetOnuSpecialPortTypeList 9001 100",
     "code = 0\npulSpecialPortTypeArray = 1 2 3\npulSpecialPortTypeAmount = 3\n"),
    (LARGE, "ddGetOnuPotsPortTypeByType 9001 3", "code = -1\npulOnuPotsPortType = 0\n"),
    (LARGE, "ddGetOnuSpecialPortTypeByPortNo 9001 5",
     "code = -20\npulSpecialPortType = (untouched)\n"),
    (LARGE, "ddIsOnuSupportedByType 9003", "code = -20\npulIsSupported = 0\n"),
    (LARGE, "ddGetOnuTypeByName KT-G14", "code = -32\npulOnuType = 0\n"),
    (LARGE, "ddGetSupportedOnuMaxLanNum", "code = 0\npulSupportedOnuMaxLanNum = 32\n"),
    (SMALL, "ddGetSupportedOnuMaxLanNum", "code = 0\npulSupportedOnuMaxLanNum = 24\n"),
    # Power limits of optical modules
    (SMALL, "get_port_optmodule_thresinfo 1 1 1 4",
     "code = 0\npathCount = 1\npaths = inup -800, indn -2800, outup 500, outdn 150\n"),
    (LARGE, "get_port_optmodule_thresinfo 4 1 1 2",
     "code = 0\npathCount = 2\npaths = inup -800, indn -2800, outup 500, outdn 150;"
     " inup -500, indn -2600, outup 500, outdn 200\n"),
    (LARGE, "get_port_optmodule_thresinfo 8 1 1 4",
     "code = -101\npathCount = 4\npaths = (untouched)\n"),
    (LARGE, "get_port_optmodule_thresinfo 12 1 1 4",
     "code = -102\npathCount = 4\npaths = (untouched)\n"),
    (LARGE, "get_onu_optmodule_thresinfo 1 1 1 9 4",
     "code = 0\npathCount = 1\npaths = inup -800, indn -2700, outup 500, outdn 50\n"),
)

# One for each place that refuses; tests/host has all the messages.
REFUSALS = (
    ("ddisrealslot 7", "unknown query 'ddisrealslot'\ndid you mean ddIsRealSlot?\n"),
    ("ddIsRealSlot 7 --debug",
     "ddIsRealSlot takes 1 argument, not 2\nusage: sysctx ask ddIsRealSlot ulSlotOut\n"),
    ("ddIsRealSlot 0x100000000",
     "bad ulSlotOut '0x100000000': a number from 0 to 4294967295 is wanted\n"
     "usage: sysctx ask ddIsRealSlot ulSlotOut\n"),
    ("ddGetSwitchChipPhyPortFromLogicPort 3 101:UP9X",  # with the tables loaded
     "bad pstChipLogicPortToPhyPortType '101:UP9X':"
     " main board 101 has no such map among its 3\n"
     "usage: sysctx ask ddGetSwitchChipPhyPortFromLogicPort ulLogicPortIn"
     " pstChipLogicPortToPhyPortType\n"
     "pstChipLogicPortToPhyPortType: MAINBOARD:MAP, a main board's type and one of its port maps"
     " by number from 0 or by board name\n"),
)


def status(text):
    """The exit status that belongs to an answer."""
    code = int(text.split("\n")[0].split(" = ")[1])
    return code & 0xff if code < 0 else 0


class AskSamples(unittest.TestCase):
    def test_answers(self):
        for sample, question, text in ANSWERS:
            with self.subTest(sample=sample, question=question):
                done = card.run("--root", card.sample(sample), "ask", *question.split())
                self.assertEqual(
                    (done.stdout.decode(), done.stderr, done.returncode),
                    (text, b"", status(text)))

    def test_exit_status_is_the_low_byte_of_a_failure(self):
        self.assertEqual(card.run("ask", "ddIsRealSlot", "0").returncode, 252)
        self.assertEqual(card.run("ask", "ddIsRealSlot", "7").returncode, 0)
        self.assertEqual(card.run("ask", "get_current_frameno").returncode, 0)

    def test_refusals(self):
        for question, message in REFUSALS:
            with self.subTest(question=question):
                done = card.run("ask", *question.split())
                self.assertEqual(
                    (done.stdout, done.stderr.decode(), done.returncode),
                    (b"", "sysctx: " + message, 2))

    def test_no_name_lists_all(self):
        for words in (("ask",), ("--root", "/no/folder", "ask"), ("ask", "--debug")):
            done = card.run(*words)
            self.assertEqual((done.stderr, done.returncode), (b"", 0))
            lines = done.stdout.decode().splitlines()
            self.assertEqual(lines[0], "sysctx ask QUERY ARGUMENT ... calls one of these:")
            families = [line for line in lines if line.endswith(":") and " " not in line]
            self.assertEqual(families, ["context:", "olt:", "frame:", "onu:", "optmodule:"])
            for line in ("  ddIsContextVerMatchSoftVer",
                         "  ddGetBoardAllPortTypesByType ulBoardType ulArrayAmount",
                         "  ddIsRealSlot ulSlotOut",
                         "  ddGetAllSupportedOnuType pulOnuTypeNum",
                         "  get_onu_optmodule_thresinfo address1 address2 address3 phyType"
                         " pathCount"):
                self.assertIn(line, lines)

    def test_debug_shows_the_messages_of_queries(self):
        done = card.run("--debug", "ask", "ddIsRealSlot", "0")
        self.assertEqual(
            (done.stdout, done.stderr, done.returncode),
            (b"code = -4\npulCanPlugIn = 0\n",
             b"console: ddIsRealSlot err! ulSlotOut = 0\n", 252))

    def test_log_lines_stay_out_of_the_answer(self):
        done = card.run("ask", "get_port_optmodule_thresinfo", "4", "1", "1", "1")
        self.assertEqual(
            (done.stdout, done.returncode),
            (b"code = -35\npathCount = 1\npaths = (untouched)\n", 221))
        self.assertEqual(
            done.stderr,
            b"log devmgr level 6: get_port_optmodule_thresinfo:get thresinfo failed, "
            b"curnum = 2, inputnum 1 is less.\n")

    def test_debug_with_run_changes_no_output(self):
        done = card.run("--debug", "run", "show context version | count")
        self.assertEqual((done.stdout, done.returncode), (b"11\r\n", 0))


class Ask(card.CardTest):
    """On definitions of its own."""

    def ask(self, *words, options=()):
        return card.run("--root", self.root, *options, "ask", *words)

    def test_without_definitions(self):
        done = self.ask("ddGetMaxSlotNum")
        self.assertEqual((done.stdout, done.returncode), (b"code = 0\npulSlotRealNum = 0\n", 0))
        self.assertIn(b"\nddInit failed with -31: ", done.stderr)

    def test_a_bad_question_is_refused_before_anything_is_loaded(self):
        done = self.ask("ddGetMaxSlotNum", "1")
        self.assertEqual(
            (done.stdout, done.stderr, done.returncode),
            (b"", b"sysctx: ddGetMaxSlotNum takes 0 arguments, not 1\n"
                  b"usage: sysctx ask ddGetMaxSlotNum\n", 2))

    def test_debug_shows_the_messages_of_start_up(self):
        self.define("[Version]\nSupportedSoftwareVer=KT2200V4.0\n"
                    "[ModuleTypeList]\nModuleNum=0\n"
                    "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=1\n"
                    "SupportedSysFunction1=NONE\n")
        message = b"console: ddReadSysSupportFuncInformation"
        self.assertNotIn(message, self.ask("ddGetMaxSlotNum").stderr)
        self.assertIn(message, self.ask("ddGetMaxSlotNum", options=("--debug",)).stderr)
        shell = card.run("--root", self.root, "--debug", stdin=b"quit\n")
        self.assertIn(message, shell.stdout)

    def test_texts_with_blanks_and_empty_ones(self):
        self.define(card.DEFINITIONS.replace("Name=GP01A", "Name=GP 01A"))
        self.assertIn(b"pulCardType = 3102\n", self.ask("ddGetCardTypeByName", "GP 01A").stdout)
        self.assertIn(b"code = -32\n", self.ask("ddGetCardTypeByName", "").stdout)

    def test_full_device_is_told(self):
        with open("/dev/full", "wb") as full:
            done = card.subprocess.run(
                [card.SYSCTX, "ask", "get_current_frameno"], stdout=full,
                stderr=card.subprocess.PIPE, timeout=card.PATIENCE, check=False)
        self.assertEqual(done.returncode, 1)
        self.assertEqual(done.stderr, b"sysctx: the output cannot be written\n")


if __name__ == "__main__":
    unittest.main()
