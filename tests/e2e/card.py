"""What the end-to-end tests share: the program, its samples and roots made up
for a test. The program's path is in the environment variable SYSCTX, the
source folder in SYSCTX_SOURCE."""
import os
import pathlib
import subprocess
import tempfile
import unittest

SYSCTX = os.environ["SYSCTX"]
SOURCE = pathlib.Path(os.environ["SYSCTX_SOURCE"])
SAMPLES = ("kt3300-l", "kt2200-a")
PATIENCE = 60  # seconds; generous, since sanitizers are slow

DEFINITIONS = """\
[Version]
SupportedSoftwareVer=KT2200V4.0|KT2200V4.1
[ModuleTypeList]
ModuleNum=1
Module1=Module_OMCI
[Module_OMCI]
Type=1
Name=OMCI
Size=64
[SupportedSysFunctionType]
SupportedSysFunctionTypeNum=1
SupportedSysFunction1=OMCI
[SupportedOltPortType]
SupportedOltPortTypeNum=1
SupportedOltPortType1=Port_GPON
[Port_GPON]
Type=2
Name=GPON
SplittingRatio=128
[SupportedMainBoardType]
SupportedMainBoardTypeNum=1
SupportedMainBoardType1=Board_MCXA
[Board_MCXA]
Type=101
Name=MCXA
SwitchChipLogicPortNum=1
SwitchChipLogicPort1=5
SpecialChipLogicPortMapPhyPortCardNum=0
[SupportedBoardType]
SupportedBoardTypeNum=2
SupportedBoardType1=Board_GP01A
SupportedBoardType2=Board_PWDA
[Board_GP01A]
Type=3102
Name=GP01A
PortNum=1
NameKeyPort1=GPON
SpecialPortNum=0
[Board_PWDA]
Type=3401
Name=PWDA
PortNum=0
SpecialPortNum=0
[KT3300-L_FrameInfomation]
Type=15
Name=KT3300-L
MaxOnuNum=1024
MaxUserNum=4096
RealSlotNum=2
RealSlotList=1,2
VirtualSlotNum=0
HcuSlotNum=0
FanSlotNum=0
CioSlotNum=0
PowerSlotNum=0
ServeBoardSlotNum=1
ServeBoardSlotList=1
MainSlotNum=1
MainSlotList=2
UplinkSlotNum=0
SupportedBoardTypeSlot1=GP01A|PWDA
SupportedBoardTypeSlot2=MCXA
SwitchChipLogicPortNum=2
SwitchChipLogicPort1=1,0,0
SwitchChipLogicPort2=2,1,0
Type2SwitchChipLogicPortNum=1
Type2SwitchChipLogicPort1=1,0,0,29,1
[SupportedOnuPonType]
SupportedOnuPonTypeNum=1
SupportedOnuPonType1=OnuPon_GPON
[OnuPon_GPON]
Type=2
Name=GPON
[SupportedOnuLanType]
SupportedOnuLanTypeNum=1
SupportedOnuLanType1=OnuLan_GE
[OnuLan_GE]
Type=3
Name=GE
[SupportedOnuPotsType]
SupportedOnuPotsTypeNum=1
SupportedOnuPotsType1=OnuPots_FXS
[OnuPots_FXS]
Type=1
Name=FXS
[SupportedOnuSpecialPortType]
SupportedOnuSpecialPortTypeNum=1
SupportedOnuSpecialPortType1=OnuSpecial_CATV
[OnuSpecial_CATV]
Type=5
Name=CATV
[SupportedOnuType]
SupportedOnuTypeNum=2
SupportedOnuType1=Onu_KT-G101
SupportedOnuType2=Onu_KT-G112C
[Onu_KT-G101]
Type=6001
Name=KT-G101
PonNum=1
NameKeyPon1=GPON
LanPortNum=1
NameKeyLanPort1=GE
PotsPortNum=0
SpecialPortNum=0
[Onu_KT-G112C]
Type=6020
Name=KT-G112C
PonNum=1
NameKeyPon1=GPON
LanPortNum=2
NameKeyLanPort1=GE
NameKeyLanPort2=GE
PotsPortNum=1
NameKeyPotsPort1=FXS
SpecialPortNum=1
NameKeySpecialPort1=CATV
"""
OPTICAL_MODULES = """\
[SupportedOptModuleInfo]
SupportedOptModuleInfoNum=2
SupportedOptModuleInfo1=OltGponClassB
SupportedOptModuleInfo2=OnuCombo
[OltGponClassB]
PortKind=1
PortType=2
PhyType=1
PathNum=1
Path1=500,150,-800,-2800
[OnuCombo]
PortKind=3
PortType=2
PhyType=7
PathNum=2
Path1=500,50,-800,-2700
Path2=900,400,-900,-2850
"""
# What sysctx says of them.
LOADED = (
    "loaded: 2 versions, 1 modules, 1 system functions\n"
    "loaded: 1 OLT port types, 1 main boards, 2 service boards\n"
    "loaded: frame KT3300-L, 2 real slots, 2 logic ports, 1 type-2 logic ports\n"
    "loaded: ONU port types: 1 PON, 1 LAN, 1 POTS, 1 special; 2 ONU types\n"
    "loaded: 2 optical modules\n")
NO_FRAME = "loaded: frame (none), 0 real slots, 0 logic ports, 0 type-2 logic ports\n"
NO_ONUS = "loaded: ONU port types: 0 PON, 0 LAN, 0 POTS, 0 special; 0 ONU types\n"
NO_OPTICAL_MODULES = "loaded: 0 optical modules\n"


def sample(name):
    return SOURCE / "definitions" / name


def definition_file(name):
    """A sample's device definition file."""
    return sample(name) / "mnt/work/device_definition.ini"


def run(*arguments, stdin=b""):
    """Runs sysctx to its end."""
    return subprocess.run(
        [SYSCTX, *map(str, arguments)], input=stdin, capture_output=True,
        timeout=PATIENCE, check=False)


class CardTest(unittest.TestCase):
    """A test with a root of its own in self.root."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name).resolve()
        self.write("equipment.toml", "")

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, newline="")
        return path

    def define(self, text=DEFINITIONS):
        """Gives the root its definition files; `text` is the device's."""
        self.write("mnt/work/device_definition.ini", text)
        self.write("mnt/work/optmodule_definition.ini", OPTICAL_MODULES)

    def check_bytes(self, came, expected):
        """assertEqual for texts that are too long to be shown."""
        if came != expected:
            place = next((i for i, (a, b) in enumerate(zip(came, expected)) if a != b),
                         min(len(came), len(expected)))
            self.fail(f"{len(came)} bytes came, not {len(expected)}; they differ from byte {place}:"
                      f" {came[place:place + 80]!r} instead of {expected[place:place + 80]!r}")
