// Every lookup of a start on the complete file.
#include "context/startup_lookups.h"

namespace test {
namespace {

using std::string;

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
  return "\r\nddReadSysSupportFuncInformation err! iResult = %, section = "
         "SupportedSysFunctionType, key = SupportedSysFunction" +
         number;
}
// What the function list says of a module that was left out.
string NoModule(const string& name) {
  return "\r\nddReadSysSupportFuncInformation->ddGetModuleTypeByName err! iResult = -32, "
         "strValueBuf = " +
         name;
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

}  // namespace

const std::vector<Lookup>& Lookups() {
  static const std::vector<Lookup> lookups = {
      // Versions
      {"\r\nddReadVersionInformation err! iResult = %, section = Version, key = Version" +
           DriverSays("ddReadVersionInformation", "-31"),
       "",
       {-31, {}},
       {-31, {}}},

      // Modules
      {"\r\nddReadAllModuleInformation err! iResult = %, section = ModuleTypeList, key = "
       "ModuleNum" +
           DriverSays("ddReadAllModuleInformation", "-31"),
       "",
       {-31, {2}},
       {-31, {2}}},
      {NoModuleEntry("1"), NoModule("OMCI"), {0, {2, 1, 1, 2, 1, 2}}, {-31, {2}}},
      {NoModuleType("1"), NoModule("OMCI"), {0, {2, 1, 1, 2, 1, 2}}, {-31, {2}}},
      {NoModuleKey("1", "Name"), NoModule("OMCI"), {0, {2, 1, 1, 2, 1, 2}}, {-31, {2}}},
      {NoModuleKey("1", "Size"), NoModule("OMCI"), {0, {2, 1, 1, 2, 1, 2}}, {-31, {2}}},
      {NoModuleEntry("2"), NoModule("VLAN"), {0, {2, 1, 1, 2, 1, 2}}, {-31, {2, 1}}},
      {NoModuleType("2"), NoModule("VLAN"), {0, {2, 1, 1, 2, 1, 2}}, {-31, {2, 1}}},
      {NoModuleKey("2", "Name"), NoModule("VLAN"), {0, {2, 1, 1, 2, 1, 2}}, {-31, {2, 1}}},
      {NoModuleKey("2", "Size"), NoModule("VLAN"), {0, {2, 1, 1, 2, 1, 2}}, {-31, {2, 1}}},

      // Functions
      {DriverSays("ddReadSysSupportFuncInformation", "-31"),
       "\r\nddReadSysSupportFuncInformation err! iResult = %, section = SupportedSysFunctionType, "
       "key = SupportedSysFunctionTypeNum",
       {-31, {2, 2}},
       {-31, {2, 2}}},
      {"", NoFunction("1"), {0, {2, 2, 1, 2, 1, 2}}, {-31, {2, 2}}},
      {"", NoFunction("2"), {0, {2, 2, 1, 2, 1, 2}}, {-31, {2, 2, 1}}},

      // OLT port types; a board is left out with its port's type
      {"\r\nddReadAllSupportedOltPortInformation err! iResult = %, section = "
       "SupportedOltPortType, key = SupportedOltPortTypeNum" +
           DriverSays("ddReadAllSupportedOltPortInformation", "-31"),
       "",
       {-31, {2, 2, 2}},
       {-31, {2, 2, 2}}},
      {NoPortTypeEntry("1"), "", {0, {2, 2, 2, 1, 1, 1}}, {-31, {2, 2, 2}}},
      {NoPortTypeType("1"), "", {0, {2, 2, 2, 1, 1, 1}}, {-31, {2, 2, 2}}},
      {NoPortTypeKey("1", "Name"), "", {0, {2, 2, 2, 1, 1, 1}}, {-31, {2, 2, 2}}},
      {NoPortTypeKey("1", "SplittingRatio"), "", {0, {2, 2, 2, 1, 1, 1}}, {-31, {2, 2, 2}}},
      {NoPortTypeEntry("2"), "", {0, {2, 2, 2, 1, 1, 1}}, {-31, {2, 2, 2, 1}}},
      {NoPortTypeType("2"), "", {0, {2, 2, 2, 1, 1, 1}}, {-31, {2, 2, 2, 1}}},
      {NoPortTypeKey("2", "Name"), "", {0, {2, 2, 2, 1, 1, 1}}, {-31, {2, 2, 2, 1}}},
      {NoPortTypeKey("2", "SplittingRatio"), "", {0, {2, 2, 2, 1, 1, 1}}, {-31, {2, 2, 2, 1}}},

      // Main boards, in part in the words of the service boards
      {"\r\nddReadAllSupportedBoardInformation err! iResult = %, section = "
       "SupportedMainBoardType, key = SupportedMainBoardTypeNum" +
           DriverSays("ddReadAllSupportedMainBoardInformation", "-31"),
       "",
       {-31, {2, 2, 2, 2}},
       {-31, {2, 2, 2, 2}}},
      {"\r\nddReadAllSupportedBoardInformation err! iResult = %, section = "
       "SupportedMainBoardType, key = SupportedMainBoardType1",
       "",
       {0, {2, 2, 2, 2, 0, 2}},
       {-31, {2, 2, 2, 2}}},
      {string("\r\nddReadOneSupportedMainBoardInformation err! iResult = %, "
              "strSectionFrameNameBuf = M1, Key = Type") +
           kMainBoardFailed,
       "",
       {0, {2, 2, 2, 2, 0, 2}},
       {-31, {2, 2, 2, 2}}},
      {string("\r\nddReadOneSupportedMainBoardInformation err! iResult = %, section = M1, "
              "key = Name") +
           kMainBoardFailed,
       "",
       {0, {2, 2, 2, 2, 0, 2}},
       {-31, {2, 2, 2, 2}}},
      {string("\r\nddReadAllSwitchChipLogicPortToPhyPort err! iResult = %, "
              "strSectionFrameNameBuf = M1, Key = SwitchChipLogicPortNum") +
           kMapsFailed,
       "",
       {0, {2, 2, 2, 2, 0, 2}},
       {-31, {2, 2, 2, 2}}},
      {NoDefaultPair(), "", {0, {2, 2, 2, 2, 0, 2}}, {-31, {2, 2, 2, 2}}},
      {NoSpecialMap("\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %, "
                    "strSectionFrameNameBuf = M1, Key = SpecialChipLogicPortMapPhyPortNum"),
       "",
       {0, {2, 2, 2, 2, 0, 2}},
       {-31, {2, 2, 2, 2}}},
      {NoSpecialMap("\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = %, "
                    "strSectionFrameNameBuf = M1, Key = SpecialChipLogicPortMapPhyPortCard1, "
                    "ulSpecialMapIndex = 0"),
       "",
       {0, {2, 2, 2, 2, 0, 2}},
       {-31, {2, 2, 2, 2}}},
      {NoSpecialMap("\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = %, "
                    "strSectionFrameNameBuf = M1, Key = UP4X_SwitchChipLogicPort1, "
                    "ulSwitchChipLogicPortIndex = 0"
                    "\r\nddReadSpecialSwitchChipLogicPortToPhyPort->"
                    "ddReadOneSwitchChipLogicPortToPhyPort err! iResult = -31, "
                    "strSectionFrameNameBuf = M1, ulSwitchChipLogicPortNum = 1, "
                    "Key = UP4X_SwitchChipLogicPort, ulSpecialMapIndex = 0"),
       "",
       {0, {2, 2, 2, 2, 0, 2}},
       {-31, {2, 2, 2, 2}}},

      // Service boards; without the section of the second one the first one's
      // record, its list of ports and its port are lost
      {"\r\nddReadAllSupportedBoardInformation err! iResult = %, section = SupportedBoardType, "
       "key = SupportedBoardTypeNum" +
           DriverSays("ddReadAllSupportedBoardInformation", "-31"),
       "",
       {-31, {2, 2, 2, 2, 1}},
       {-31, {2, 2, 2, 2, 1}}},
      {NoBoardEntry("1"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1}}},
      {NoBoardSection("1"), "", {-31, {2, 2, 2, 2, 1}}, {-31, {2, 2, 2, 2, 1}}},
      {NoBoardType("1"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1}}},
      {NoBoardName("1"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1}}},
      {NoServePorts("1", "PortNum", "-31"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1}}},
      {NoServePorts("1", "NameKeyPort1", "-1"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1}}},
      {NoSpecialPorts("1"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1}}},
      {NoBoardEntry("2"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1, 1}}},
      {NoBoardSection("2"), "", {-31, {2, 2, 2, 2, 1}, 3}, {-31, {2, 2, 2, 2, 1}, 3}},
      {NoBoardType("2"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1, 1}}},
      {NoBoardName("2"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1, 1}}},
      {NoServePorts("2", "PortNum", "-31"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1, 1}}},
      {NoServePorts("2", "NameKeyPort1", "-1"),
       "",
       {0, {2, 2, 2, 2, 1, 1}},
       {0, {2, 2, 2, 2, 1, 1}}},
      {NoSpecialPorts("2"), "", {0, {2, 2, 2, 2, 1, 1}}, {0, {2, 2, 2, 2, 1, 1}}},
  };
  return lookups;
}

}  // namespace test
