// Every lookup of a start on the complete files.
#include "context/startup_lookups.h"

#include "support/optmodule_messages.h"

namespace test {
namespace {

using std::string;

// ---- What is loaded ----------------------------------------------------------------

// What is loaded when a start stops in a table, of which it has so many records by then.
constexpr Counts InVersions() {
  return {};
}
constexpr Counts InModules(uint32_t records) {
  return {.versions = 2, .modules = records};
}
constexpr Counts InFunctions(uint32_t records) {
  return {.versions = 2, .modules = 2, .functions = records};
}
constexpr Counts InPortTypes(uint32_t records) {
  return {.versions = 2, .modules = 2, .functions = 2, .port_types = records};
}
constexpr Counts InMainBoards(uint32_t records) {
  Counts loaded = InPortTypes(2);
  loaded.main_boards = records;
  return loaded;
}
constexpr Counts InBoards(uint32_t records) {
  Counts loaded = InMainBoards(1);
  loaded.boards = records;
  return loaded;
}
constexpr Counts InFrame(const FrameCounts& frame) {
  Counts loaded = InBoards(2);
  loaded.frame = frame;
  return loaded;
}
constexpr Counts InSlots(uint32_t slots) {
  return InFrame({.name_length = 9, .onus = 64, .users = 128, .slots = slots});
}
constexpr Counts InSlotBoards(uint32_t boards) {
  Counts loaded = InSlots(6);
  loaded.frame.boards = boards;
  return loaded;
}
constexpr Counts InLogicPorts(uint32_t ports) {
  Counts loaded = InSlotBoards(3);
  loaded.frame.logic_ports = ports;
  return loaded;
}

constexpr Counts InBalancePorts(uint32_t ports) {
  Counts loaded = InLogicPorts(2);
  loaded.frame.balance_ports = ports;
  return loaded;
}

// ---- What a failure leads to -------------------------------------------------------

constexpr Outcome Failed(const Counts& loaded) {
  return {.code = -31, .loaded = loaded};
}

// The start fails, whether all lookups behind it fail as well or not.
Lookup Stops(const string& console, const Outcome& outcome) {
  return {console, outcome, outcome};
}
Lookup Stops(const string& console, const Counts& loaded) {
  return Stops(console, Failed(loaded));
}

// The start goes on, and comes to `once` if nothing else fails; else it stops.
Lookup LeavesOut(const string& console, const Outcome& once, const Counts& stopped) {
  return {console, once, Failed(stopped)};
}

// The start goes on, and if all behind it fail comes to `for_ever` and stops at the optical
// modules.
Lookup LeavesOut(const string& console, const Outcome& once, const Outcome& for_ever) {
  return {console, once, StoppedAtOpticalModules(for_ever, -1)};
}

// ---- Modules and functions -------------------------------------------------------

constexpr char kModuleFailed[] =
    "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S";

string NoModuleEntry(const string& number) {
  return "\r\nddReadAllModuleInformation err! iResult = %, section = ModuleTypeList, key = Module" +
         number;
}
string NoModuleType(const string& number) {
  return "\r\nddReadOneModuleInformation err! iResult = %, strSectionFrameNameBuf = S" + number +
         ", Key = Type" + kModuleFailed + number;
}
string NoModuleKey(const string& number, const string& key) {
  return "\r\nddReadOneModuleInformation err! iResult = %, section = S" + number +
         ", key = " + key + kModuleFailed + number;
}
string NoFunction(const string& number) {
  return "{\r\nddReadSysSupportFuncInformation err! iResult = %, section = "
         "SupportedSysFunctionType, key = SupportedSysFunction" +
         number + "}";
}
// What the function list says of a module that was left out.
string NoModule(const string& name) {
  return "{\r\nddReadSysSupportFuncInformation->ddGetModuleTypeByName err! iResult = -32, "
         "strValueBuf = " +
         name + "}";
}

// ---- OLT port types ----------------------------------------------------------------

constexpr char kPortTypeFailed[] =
    "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOltPortInformation err! "
    "iResult = -31, strValueBuf = P";

// What the board list says of the board whose port type was left out.
string NoPortType(const string& number) {
  return "\r\nddAddSupportedServePortToBoardObj->dd_IsOltPonTypeSupportedBySecName err! "
         "iResult = -32, strKey = NameKeyPort1, ulIndex = 0"
         "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! "
         "strBoardTypeSection = B" +
         number +
         "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! "
         "iResult = -1, section = B" +
         number;
}
string NoPortTypeEntry(const string& number) {
  return "\r\nddReadAllSupportedOltPortInformation err! iResult = %, section = "
         "SupportedOltPortType, key = SupportedOltPortType" +
         number + NoPortType(number);
}
string NoPortTypeType(const string& number) {
  return "\r\nddReadOneSupportedOltPortInformation err! iResult = %, strSectionFrameNameBuf = P" +
         number + ", Key = Type" + kPortTypeFailed + number + NoPortType(number);
}
string NoPortTypeKey(const string& number, const string& key) {
  return "\r\nddReadOneSupportedOltPortInformation err! iResult = %, section = P" + number +
         ", key = " + key + kPortTypeFailed + number + NoPortType(number);
}

// ---- Main boards -------------------------------------------------------------------

constexpr char kMainBoardFailed[] =
    "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! "
    "iResult = -31, section = M1";
constexpr char kMapsFailed[] =
    "\r\nddReadOneSupportedMainBoardInformation->ddReadAllSwitchChipLogicPortToPhyPort err! "
    "strBoardTypeSection = M1"
    "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! "
    "iResult = -31, section = M1";

string NoDefaultPair() {
  return string(
             "\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = %, "
             "strSectionFrameNameBuf = M1, Key = SwitchChipLogicPort1, "
             "ulSwitchChipLogicPortIndex = 0"
             "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort "
             "err! iResult = -31, strSectionFrameNameBuf = M1, ulSwitchChipLogicPortNum = 1, "
             "SwitchChipLogicPort") +
         kMapsFailed;
}
// A special map, behind what is said of it first.
string NoSpecialMap(const string& first) {
  return first +
         "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadSpecialSwitchChipLogicPortToPhyPort "
         "err! iResult = -31, strSectionFrameNameBuf = M1, ulSwitchChipLogicPortNum = 1" +
         kMapsFailed;
}

// ---- Service boards ----------------------------------------------------------------

constexpr char kBoardFailed[] =
    "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! iResult = ";

string NoBoardEntry(const string& number) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = %, section = SupportedBoardType, "
         "key = SupportedBoardType" +
         number;
}
string NoBoardSection(const string& number) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = %, strSectionFrameNameBuf = B" +
         number + ", Key = Type" + DriverSays("ddReadAllSupportedBoardInformation", "-31");
}
string NoBoardType(const string& number) {
  return "\r\nddReadOneSupportedBoardInformation err! iResult = %, strSectionFrameNameBuf = B" +
         number + ", Key = Type" + kBoardFailed + "-31, section = B" + number;
}
string NoBoardName(const string& number) {
  return "\r\nddReadOneSupportedBoardInformation err! iResult = %, section = B" + number +
         ", key = Name" + kBoardFailed + "-31, section = B" + number;
}
string NoBoardPorts(const string& adder, const string& number, const string& key,
                    const string& code) {
  return "\r\n" + adder + " err! iResult = %, section = B" + number + ", key = " + key +
         "\r\nddReadOneSupportedBoardInformation->" + adder + " err! strBoardTypeSection = B" +
         number + kBoardFailed + code + ", section = B" + number;
}
string NoServePorts(const string& number, const string& key, const string& code) {
  return NoBoardPorts("ddAddSupportedServePortToBoardObj", number, key, code);
}
string NoSpecialPorts(const string& number) {
  return NoBoardPorts("ddAddSupportedSpecialPortToBoardObj", number, "SpecialPortNum", "-31");
}

// ---- The frame ---------------------------------------------------------------------

constexpr char kPlainReader[] = "ddReadSwitchChipLogicPortToSlotPort";
constexpr char kBalanceReader[] = "read_balance_switch_logicport_to_portinfo";

string NoFrameKey(const string& shown_as, const string& key) {
  return "\r\nddReadFrameInformation err! iResult = %, strSectionFrameNameBuf = "
         "KT3300-L_FrameInfomation, " +
         shown_as + " = " + key + DriverSays("ddReadFrameInformation", "-31");
}
string NoSlotKey(const string& word, const string& ending, const string& code) {
  return "\r\nddReadOneSlotClass err! iResult = %, section = KT3300-L_FrameInfomation, key = " +
         word + ending + "\r\nddReadFrameInformation->ddReadOneSlotClass err! iResult = " + code +
         ", strSectionFrameNameBuf = KT3300-L_FrameInfomation, Key = " + word +
         DriverSays("ddReadFrameInformation", code);
}
string NoSlotAmount(const string& word) {
  return NoSlotKey(word, "Num", "-31");
}
string NoSlotList(const string& word) {
  return NoSlotKey(word, "List", "%");
}
string NoSlotBoards(const string& slot) {
  return "\r\nddReadSlotSupportBoard err! iResult = %, section = KT3300-L_FrameInfomation, "
         "key = SupportedBoardTypeSlot" +
         slot;
}
string NoLogicPort(const string& reader, const string& key) {
  return "\r\n" + reader + " err! iResult = %, section = KT3300-L_FrameInfomation, key = " + key;
}
string NoLogicPortAmount(const string& reader, const string& key) {
  return NoLogicPort(reader, key) + "{\r\nddReadFrameInformation->" + reader +
         " err! iResult = -31, strSectionFrameNameBuf = KT3300-L_FrameInfomation}" +
         DriverSays("ddReadFrameInformation", "-31");
}

// ---- ONU port types ------------------------------------------------------------------

string NoOnuTypeCount(const string& loader, const string& section, const string& key) {
  return "\r\n" + loader + " err! iResult = %, section = " + section + ", key = " + key +
         DriverSays(loader, "-31");
}
string NoOnuTypeEntry(const string& loader, const string& section) {
  return "\r\n" + loader + " err! iResult = %, section = " + section + ", key = " + section + "1";
}
string NoOnuTypeKey(const string& reader, const string& section, const string& key,
                    const string& loader) {
  return "\r\n" + reader + " err! iResult = %, section = " + section + ", key = " + key + "\r\n" +
         loader +
         "->ddReadOneSupportedOnuPonInformation err! iResult = -31, strValueBuf = " + section;
}
string NoOnuPonTypeKey(const string& key) {
  return NoOnuTypeKey("ddReadOneSupportedOnuPonInformation", "OnuPon", key,
                      "ddReadAllSupportedOltPortInformation");
}
string NoOnuLanTypeKey(const string& key) {
  return NoOnuTypeKey("ddReadOneSupportedOnuLanInformation", "OnuLan", key,
                      "ddReadAllSupportedOltPortInformation");
}
string NoOnuPotsTypeKey(const string& key) {
  return NoOnuTypeKey("ddReadOneSupportedOnuPotsInformation", "OnuPots", key,
                      "ddReadAllSupportedOnuPotsInformation");
}
string NoOnuSpecialPortTypeKey(const string& key) {
  return NoOnuTypeKey("ddReadOneSupportedOnuSpecialPortInformation", "OnuSpecial", key,
                      "ddReadAllSupportedOnuSpecialPortInformation");
}

// ---- ONU types -----------------------------------------------------------------------

constexpr OnuCounts kOnuPortTypes = {1, 1, 1, 1};

string NoOnuEntry(const string& number) {
  return NoListKey("%", "SupportedOnuType" + number);
}
string NoOnuSection(const string& number) {
  return NoSection("%", "U" + number) + DriverSays("ddReadAllSupportedOnuInformation", "-31");
}
string NoOnuKey(const string& number, const string& key) {
  return NoOwnKey("%", "U" + number, key);
}
string NoOnuPorts(const string& number, const string& kind, const string& key, const string& code) {
  return NoPorts(kind, code, "U" + number,
                 " err! iResult = %, section = U" + number + ", key = " + key);
}

// ---- Optical modules -----------------------------------------------------------------

// The lookups of a module with these keys of paths; its kind is read twice. If one of them
// fails, the start goes on without the module, and succeeds whatever fails behind.
std::vector<Lookup> OpticalModule(const string& number, const Names& paths, const Outcome& once,
                                  const Outcome& for_ever) {
  const string section = "O" + number;
  const auto leaves_out = [&](const Names& log) { return Lookup{"", once, for_ever, log}; };
  const auto without_number = [&](const string& key, const string& code) {
    return leaves_out({optical::NoNumber("%", section, key), optical::Left(code, section)});
  };
  std::vector<Lookup> lookups = {leaves_out({optical::NoEntry("%", number)}),
                                 leaves_out({optical::NoSection("%", section)}),
                                 without_number("PortKind", "-1"),
                                 without_number("PortType", "-2"),
                                 without_number("PhyType", "-3"),
                                 without_number("PathNum", "-4")};
  for (const string& path : paths) {
    lookups.push_back(
        leaves_out({optical::NoPath("%", section, path), optical::Left("-6", section)}));
  }
  return lookups;
}

std::vector<Lookup> OpticalFileLookups() {
  std::vector<Lookup> lookups = {{kOpticalFailed,
                                  StoppedAtOpticalModules({.loaded = kEverything}, -1),
                                  StoppedAtOpticalModules({.loaded = kEverything}, -1),
                                  {optical::NoCount("%"), optical::NotLoaded("-1")}}};
  for (const std::vector<Lookup>& module :
       {OpticalModule("1", {"Path1", "Path2"}, kWithoutTheFirstOpticalModule,
                      kWithoutOpticalModules),
        OpticalModule("2", {"Path1"}, kWithoutTheSecondOpticalModule,
                      kWithoutTheSecondOpticalModule)}) {
    lookups.insert(lookups.end(), module.begin(), module.end());
  }
  return lookups;
}

// ---- The device file -----------------------------------------------------------------

std::vector<Lookup> DeviceFileLookups() {
  return {
      // Versions
      Stops("\r\nddReadVersionInformation err! iResult = %, section = Version, key = Version" +
                DriverSays("ddReadVersionInformation", "-31"),
            InVersions()),

      // Modules
      Stops("\r\nddReadAllModuleInformation err! iResult = %, section = ModuleTypeList, key = "
            "ModuleNum" +
                DriverSays("ddReadAllModuleInformation", "-31"),
            InModules(0)),
      LeavesOut(NoModuleEntry("1") + NoModule("OMCI"), kWithoutAModule, InModules(0)),
      LeavesOut(NoModuleType("1") + NoModule("OMCI"), kWithoutAModule, InModules(0)),
      LeavesOut(NoModuleKey("1", "Name") + NoModule("OMCI"), kWithoutAModule, InModules(0)),
      LeavesOut(NoModuleKey("1", "Size") + NoModule("OMCI"), kWithoutAModule, InModules(0)),
      LeavesOut(NoModuleEntry("2") + NoModule("VLAN"), kWithoutAModule, InModules(1)),
      LeavesOut(NoModuleType("2") + NoModule("VLAN"), kWithoutAModule, InModules(1)),
      LeavesOut(NoModuleKey("2", "Name") + NoModule("VLAN"), kWithoutAModule, InModules(1)),
      LeavesOut(NoModuleKey("2", "Size") + NoModule("VLAN"), kWithoutAModule, InModules(1)),

      // Functions
      Stops(
          "{\r\nddReadSysSupportFuncInformation err! iResult = %, section = SupportedSysFunctionType, "
          "key = SupportedSysFunctionTypeNum}" +
              DriverSays("ddReadSysSupportFuncInformation", "-31"),
          InFunctions(0)),
      LeavesOut(NoFunction("1"), kWithoutAFunction, InFunctions(0)),
      LeavesOut(NoFunction("2"), kWithoutAFunction, InFunctions(1)),

      // OLT port types; a board is left out with its port's type
      Stops("\r\nddReadAllSupportedOltPortInformation err! iResult = %, section = "
            "SupportedOltPortType, key = SupportedOltPortTypeNum" +
                DriverSays("ddReadAllSupportedOltPortInformation", "-31"),
            InPortTypes(0)),
      LeavesOut(NoPortTypeEntry("1") + NoCardOfBoard("1"), kWithoutAPortType, InPortTypes(0)),
      LeavesOut(NoPortTypeType("1") + NoCardOfBoard("1"), kWithoutAPortType, InPortTypes(0)),
      LeavesOut(NoPortTypeKey("1", "Name") + NoCardOfBoard("1"), kWithoutAPortType, InPortTypes(0)),
      LeavesOut(NoPortTypeKey("1", "SplittingRatio") + NoCardOfBoard("1"), kWithoutAPortType,
                InPortTypes(0)),
      LeavesOut(NoPortTypeEntry("2") + NoCardOfBoard("2"), kWithoutAPortType, InPortTypes(1)),
      LeavesOut(NoPortTypeType("2") + NoCardOfBoard("2"), kWithoutAPortType, InPortTypes(1)),
      LeavesOut(NoPortTypeKey("2", "Name") + NoCardOfBoard("2"), kWithoutAPortType, InPortTypes(1)),
      LeavesOut(NoPortTypeKey("2", "SplittingRatio") + NoCardOfBoard("2"), kWithoutAPortType,
                InPortTypes(1)),

      // Main boards, in part in the words of the service boards
      Stops("\r\nddReadAllSupportedBoardInformation err! iResult = %, section = "
            "SupportedMainBoardType, key = SupportedMainBoardTypeNum" +
                DriverSays("ddReadAllSupportedMainBoardInformation", "-31"),
            InMainBoards(0)),
      LeavesOut("\r\nddReadAllSupportedBoardInformation err! iResult = %, section = "
                "SupportedMainBoardType, key = SupportedMainBoardType1" +
                    NoMainCard(),
                kWithoutTheMainBoard, InMainBoards(0)),
      LeavesOut(string("\r\nddReadOneSupportedMainBoardInformation err! iResult = %, "
                       "strSectionFrameNameBuf = M1, Key = Type") +
                    kMainBoardFailed + NoMainCard(),
                kWithoutTheMainBoard, InMainBoards(0)),
      LeavesOut(string("\r\nddReadOneSupportedMainBoardInformation err! iResult = %, section = M1, "
                       "key = Name") +
                    kMainBoardFailed + NoMainCard(),
                kWithoutTheMainBoard, InMainBoards(0)),
      LeavesOut(string("\r\nddReadAllSwitchChipLogicPortToPhyPort err! iResult = %, "
                       "strSectionFrameNameBuf = M1, Key = SwitchChipLogicPortNum") +
                    kMapsFailed + NoMainCard(),
                kWithoutTheMainBoard, InMainBoards(0)),
      LeavesOut(NoDefaultPair() + NoMainCard(), kWithoutTheMainBoard, InMainBoards(0)),
      LeavesOut(
          NoSpecialMap("\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %, "
                       "strSectionFrameNameBuf = M1, Key = SpecialChipLogicPortMapPhyPortNum") +
              NoMainCard(),
          kWithoutTheMainBoard, InMainBoards(0)),
      LeavesOut(
          NoSpecialMap("\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %, "
                       "strSectionFrameNameBuf = M1, Key = SpecialChipLogicPortMapPhyPortCard1, "
                       "ulSpecialMapIndex = 0") +
              NoMainCard(),
          kWithoutTheMainBoard, InMainBoards(0)),
      LeavesOut(NoSpecialMap("\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = %, "
                             "strSectionFrameNameBuf = M1, Key = UP4X_SwitchChipLogicPort1, "
                             "ulSwitchChipLogicPortIndex = 0"
                             "\r\nddReadSpecialSwitchChipLogicPortToPhyPort->"
                             "ddReadOneSwitchChipLogicPortToPhyPort err! iResult = -31, "
                             "strSectionFrameNameBuf = M1, ulSwitchChipLogicPortNum = 1, "
                             "Key = UP4X_SwitchChipLogicPort, ulSpecialMapIndex = 0") +
                    NoMainCard(),
                kWithoutTheMainBoard, InMainBoards(0)),

      // Service boards; without the section of the second one the first one's
      // record, its list of ports and its port are lost
      Stops(
          "\r\nddReadAllSupportedBoardInformation err! iResult = %, section = SupportedBoardType, "
          "key = SupportedBoardTypeNum" +
              DriverSays("ddReadAllSupportedBoardInformation", "-31"),
          InBoards(0)),
      LeavesOut(NoBoardEntry("1") + NoCardOfBoard("1"), kWithoutABoard, InBoards(0)),
      Stops(NoBoardSection("1"), InBoards(0)),
      LeavesOut(NoBoardType("1") + NoCardOfBoard("1"), kWithoutABoard, InBoards(0)),
      LeavesOut(NoBoardName("1") + NoCardOfBoard("1"), kWithoutABoard, InBoards(0)),
      LeavesOut(NoServePorts("1", "PortNum", "-31") + NoCardOfBoard("1"), kWithoutABoard,
                InBoards(0)),
      LeavesOut(NoServePorts("1", "NameKeyPort1", "-1") + NoCardOfBoard("1"), kWithoutABoard,
                InBoards(0)),
      LeavesOut(NoSpecialPorts("1") + NoCardOfBoard("1"), kWithoutABoard, InBoards(0)),
      LeavesOut(NoBoardEntry("2") + NoCardOfBoard("2"), kWithoutABoard, InBoards(1)),
      Stops(NoBoardSection("2"), {.code = -31, .loaded = InBoards(0), .lost = 3}),
      LeavesOut(NoBoardType("2") + NoCardOfBoard("2"), kWithoutABoard, InBoards(1)),
      LeavesOut(NoBoardName("2") + NoCardOfBoard("2"), kWithoutABoard, InBoards(1)),
      LeavesOut(NoServePorts("2", "PortNum", "-31") + NoCardOfBoard("2"), kWithoutABoard,
                InBoards(1)),
      LeavesOut(NoServePorts("2", "NameKeyPort1", "-1") + NoCardOfBoard("2"), kWithoutABoard,
                InBoards(1)),
      LeavesOut(NoSpecialPorts("2") + NoCardOfBoard("2"), kWithoutABoard, InBoards(1)),

      // The frame
      Stops(NoFrameKey("dd_gstrKeyFrameType", "Type"), InFrame({})),
      Stops(NoFrameKey("dd_gstrKeyFrameName", "Name"), InFrame({})),
      Stops(NoFrameKey("Key", "MaxOnuNum"), InFrame({.name_length = 9})),
      Stops(NoFrameKey("Key", "MaxUserNum"), InFrame({.name_length = 9, .onus = 64})),
      Stops(NoSlotAmount("RealSlot"), InSlots(0)),
      Stops(NoSlotList("RealSlot"), {.code = kOwnCode, .loaded = InSlots(2)}),
      Stops(NoSlotAmount("VirtualSlot"), InSlots(2)),
      Stops(NoSlotList("VirtualSlot"), {.code = kOwnCode, .loaded = InSlots(3)}),
      Stops(NoSlotAmount("HcuSlot"), InSlots(3)),
      Stops(NoSlotList("HcuSlot"), {.code = kOwnCode, .loaded = InSlots(4)}),
      Stops(NoSlotAmount("FanSlot"), InSlots(4)),
      Stops(NoSlotAmount("CioSlot"), InSlots(4)),
      Stops(NoSlotAmount("PowerSlot"), InSlots(4)),
      Stops(NoSlotAmount("ServeBoardSlot"), InSlots(4)),
      Stops(NoSlotList("ServeBoardSlot"), {.code = kOwnCode, .loaded = InSlots(5)}),
      Stops(NoSlotAmount("MainSlot"), InSlots(5)),
      Stops(NoSlotList("MainSlot"), {.code = kOwnCode, .loaded = InSlots(6)}),
      Stops(NoSlotAmount("UplinkSlot"), InSlots(6)),
      LeavesOut(NoSlotBoards("1"), EverythingBut([](Counts& all) { all.frame.boards = 1; }),
                InSlots(6)),
      LeavesOut(NoSlotBoards("2"), EverythingBut([](Counts& all) { all.frame.boards = 2; }),
                InSlotBoards(2)),
      Stops(NoLogicPortAmount(kPlainReader, "SwitchChipLogicPortNum"), InSlotBoards(3)),
      LeavesOut(NoLogicPort(kPlainReader, "SwitchChipLogicPort1"),
                EverythingBut([](Counts& all) { all.frame.logic_ports = 1; }), InSlotBoards(3)),
      LeavesOut(NoLogicPort(kPlainReader, "SwitchChipLogicPort2"),
                EverythingBut([](Counts& all) { all.frame.logic_ports = 1; }), InLogicPorts(1)),
      Stops(NoLogicPortAmount(kBalanceReader, "Type2SwitchChipLogicPortNum"), InLogicPorts(2)),
      LeavesOut(NoLogicPort(kBalanceReader, "Type2SwitchChipLogicPort1"),
                EverythingBut([](Counts& all) { all.frame.balance_ports = 1; }), InBalancePorts(0)),
      LeavesOut(NoLogicPort(kBalanceReader, "Type2SwitchChipLogicPort2"),
                EverythingBut([](Counts& all) { all.frame.balance_ports = 1; }), InBalancePorts(1)),

      // ONU port types; the ONU types with a port of that type are left out with it
      Stops(NoOnuTypeCount("ddReadAllSupportedOnuPonInformation", "SupportedOltPonType",
                           "SupportedOltPonTypeNum"),
            InOnus({})),
      LeavesOut(NoOnuTypeEntry("ddReadAllSupportedOnuPonInformation", "SupportedOnuPonType") +
                    NoOnusOfPonType(),
                kWithoutOnuPonTypes, InOnus({})),
      LeavesOut(NoOnuPonTypeKey("Type") + NoOnusOfPonType(), kWithoutOnuPonTypes, InOnus({})),
      LeavesOut(NoOnuPonTypeKey("Speed") + NoOnusOfPonType(), kWithoutOnuPonTypes, InOnus({})),
      Stops(NoOnuTypeCount("ddReadAllSupportedOnuLanInformation", "SupportedOnuLanType",
                           "SupportedOnuLanTypeNum"),
            InOnus({1})),
      LeavesOut(NoOnuTypeEntry("ddReadAllSupportedOnuPonInformation", "SupportedOnuLanType") +
                    NoOnuOfLanType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::lan_types>, InOnus({1})),
      LeavesOut(NoOnuLanTypeKey("Type") + NoOnuOfLanType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::lan_types>, InOnus({1})),
      LeavesOut(NoOnuLanTypeKey("Speed") + NoOnuOfLanType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::lan_types>, InOnus({1})),
      Stops(NoOnuTypeCount("ddReadAllSupportedOnuPotsInformation", "SupportedOnuPotsType",
                           "SupportedOnuPotsTypeNum"),
            InOnus({1, 1})),
      LeavesOut(NoOnuTypeEntry("ddReadAllSupportedOnuPotsInformation", "SupportedOnuPotsType") +
                    NoOnuOfPotsType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::pots_types>, InOnus({1, 1})),
      LeavesOut(NoOnuPotsTypeKey("Type") + NoOnuOfPotsType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::pots_types>, InOnus({1, 1})),
      LeavesOut(NoOnuPotsTypeKey("Speed") + NoOnuOfPotsType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::pots_types>, InOnus({1, 1})),
      Stops(NoOnuTypeCount("ddReadAllSupportedOnuSpecialPortInformation",
                           "SupportOnuSpecialPortType", "SupportOnuSpecialPortTypeNum"),
            InOnus({1, 1, 1})),
      LeavesOut(NoOnuTypeEntry("ddReadAllSupportedOnuSpecialPortInformation",
                               "SupportedOnuSpecialPortType") +
                    NoOnuOfSpecialPortType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::special_types>, InOnus({1, 1, 1})),
      LeavesOut(NoOnuSpecialPortTypeKey("Type") + NoOnuOfSpecialPortType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::special_types>, InOnus({1, 1, 1})),
      LeavesOut(NoOnuSpecialPortTypeKey("Speed") + NoOnuOfSpecialPortType(),
                kWithoutTypesOfTheFirstOnu<&OnuCounts::special_types>, InOnus({1, 1, 1})),

      // ONU types; without the section of the second one the first one's record, its lists
      // of ports and its ports are lost
      Stops("\r\nddReadAllSupportedOnuInformation err! iResult = %, section = SupportedOnuLanType, "
            "key = SupportedOnuLanTypeNum" +
                DriverSays("ddReadAllSupportedOnuInformation", "-31"),
            InOnus(kOnuPortTypes)),
      LeavesOut(NoOnuEntry("1"), kWithoutTheFirstOnu, kWithoutOnus),
      Stops(NoOnuSection("1"), InOnus(kOnuPortTypes)),
      LeavesOut(NoOnuKey("1", "Type"), kWithoutTheFirstOnu, kWithoutOnus),
      LeavesOut(NoOnuKey("1", "Speed"), kWithoutTheFirstOnu, kWithoutOnus),
      LeavesOut(NoOnuPorts("1", "Pon", "PonNum", "-31"), kWithoutTheFirstOnu, kWithoutOnus),
      LeavesOut(NoOnuPorts("1", "Pon", "NameKeyPon1", "-1"), kWithoutTheFirstOnu, kWithoutOnus),
      LeavesOut(NoOnuPorts("1", "Lan", "LanPortNum", "-31"), kWithoutTheFirstOnu, kWithoutOnus),
      LeavesOut(NoOnuPorts("1", "Lan", "NameKeyLanPort1", "-27"), kWithoutTheFirstOnu,
                kWithoutOnus),
      LeavesOut(NoOnuPorts("1", "Pots", "PotsPortNum", "-31"), kWithoutTheFirstOnu, kWithoutOnus),
      LeavesOut(NoOnuPorts("1", "Pots", "NameKeyPotsPort1", "-1"), kWithoutTheFirstOnu,
                kWithoutOnus),
      LeavesOut(NoOnuPorts("1", "SpecialPort", "SpecialPortNum", "-31"), kWithoutTheFirstOnu,
                kWithoutOnus),
      LeavesOut(NoOnuPorts("1", "SpecialPort", "NameKeySpecialPort1", "-1"), kWithoutTheFirstOnu,
                kWithoutOnus),
      LeavesOut(NoOnuEntry("2"), kWithoutTheSecondOnu, kWithoutTheSecondOnu),
      Stops(NoOnuSection("2"), {.code = -31, .loaded = InOnus(kOnuPortTypes), .lost = 9}),
      LeavesOut(NoOnuKey("2", "Type"), kWithoutTheSecondOnu, kWithoutTheSecondOnu),
      LeavesOut(NoOnuKey("2", "Speed"), kWithoutTheSecondOnu, kWithoutTheSecondOnu),
      LeavesOut(NoOnuPorts("2", "Pon", "PonNum", "-31"), kWithoutTheSecondOnu,
                kWithoutTheSecondOnu),
      LeavesOut(NoOnuPorts("2", "Pon", "NameKeyPon1", "-1"), kWithoutTheSecondOnu,
                kWithoutTheSecondOnu),
      LeavesOut(NoOnuPorts("2", "Lan", "LanPortNum", "-31"), kWithoutTheSecondOnu,
                kWithoutTheSecondOnu),
      LeavesOut(NoOnuPorts("2", "Pots", "PotsPortNum", "-31"), kWithoutTheSecondOnu,
                kWithoutTheSecondOnu),
      LeavesOut(NoOnuPorts("2", "SpecialPort", "SpecialPortNum", "-31"), kWithoutTheSecondOnu,
                kWithoutTheSecondOnu),
  };
}

}  // namespace

const std::vector<Lookup>& Lookups() {
  static const std::vector<Lookup> lookups = [] {
    std::vector<Lookup> all = DeviceFileLookups();
    for (const Lookup& lookup : OpticalFileLookups()) {
      all.push_back(lookup);
    }
    return all;
  }();
  return lookups;
}

}  // namespace test
