// Start-up when memory runs out: at every allocation, once and for ever.
#include <string>

#include "context/device_file.h"
#include "context/start_outcome.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"
#include "support/tables.h"

namespace {

using std::string;
using test::Counts;
using test::DeviceFile;
using test::DriverSays;
using test::FaultPlan;
using test::InOnus;
using test::kWithoutABoard;
using test::kWithoutAModule;
using test::kWithoutAPortType;
using test::kWithoutOnuPonTypes;
using test::kWithoutOnus;
using test::kWithoutOpticalModules;
using test::kWithoutTheFirstOnu;
using test::kWithoutTheFirstOpticalModule;
using test::kWithoutTheMainBoard;
using test::kWithoutTheSecondOnu;
using test::kWithoutTheSecondOpticalModule;
using test::kWithoutTypesOfTheFirstOnu;
using test::NoCardOfBoard;
using test::NoMainCard;
using test::NoOnuOfLanType;
using test::NoOnuOfPotsType;
using test::NoOnuOfSpecialPortType;
using test::NoOnusOfPonType;
using test::OnuCounts;
using test::Outcome;
using test::StoppedAtOpticalModules;
using test::optical::kNoMemoryForModule;
using test::optical::kNoMemoryForPath;
using test::optical::Left;
using test::optical::NoMemoryForPaths;
using test::optical::PathNotRead;

constexpr char kNoBuffer[] =
    "\r\nddReadContextFile err! Not enough memory for pFileBuf buffer.\r\n";

class StartupMemory : public test::LibraryTest {
 protected:
  // Starts while `calls` allocations from number `failing` on fail.
  static void ExpectStart(int failing, int calls, const Outcome& outcome) {
    DeviceFile device;
    device.faults.allocations.FailFrom(failing, calls);
    EXPECT_EQ(ddInit(), outcome.code);
    EXPECT_EQ(Counts::OfTheTables(), outcome.loaded);
    test::ExpectNoLeak(device.faults);
    test::ResetTables();
  }

  test::Console console_;
};

TEST_F(StartupMemory, NoMemoryForTheWorkBuffer) {
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, FaultPlan::kForEver}) {
      ddDebugPrint = debug;
      DeviceFile device;
      device.faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(ddReadContextFile(), -1);
      EXPECT_EQ(console_.Text(), kNoBuffer);
      EXPECT_EQ(device.faults.opens.count(), 0);
      EXPECT_EQ(device.faults.allocations.count(), 1);
    }
  }
}

TEST_F(StartupMemory, NoMemoryForTheWorkBufferLeavesEmptyTables) {
  gstVersionInformation.ulSupportedSoftVerNum = 9;
  gstModuleTypeList.ulModuleTypeNum = 9;
  gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 9;
  gstSupportedOltPortType.ulSupportedOltPortTypeNum = 9;
  gstSupportedMainBoardType.ulSupportedBoardTypeNum = 9;
  gstSupportedBoardType.ulSupportedBoardTypeNum = 9;
  gstFrame.ulNameLen = 9;
  gstSupportedOnuPonType.ulSupportedOnuPonTypeNum = 9;
  gstSupportedOnuLanType.ulSupportedOnuLanTypeNum = 9;
  gstSupportedOnuPotsType.ulSupportedOnuPotsTypeNum = 9;
  gstSupportedOnuSpecialPortType.ulSupportedOnuSpecialPortTypeNum = 9;
  gstSupportedOnuType.ulSupportedOnuTypeNum = 9;
  gstSupportedOnuType.ulSupportedOnuMaxLanNum = 9;
  g_optmdule_infolist.listnum = 9;
  DeviceFile device;
  device.faults.allocations.FailFrom(1, 1);
  EXPECT_EQ(ddInit(), -1);
  EXPECT_EQ(console_.Text(), string(kNoBuffer) + "ddInit initialize......failed!\r\n");
  EXPECT_EQ(device.faults.opens.count(), 0);
  EXPECT_EQ(Counts::OfTheTables(), Counts{});
}

// ---- Every allocation ------------------------------------------------------------

constexpr char kBoardFailed[] =
    "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! iResult = ";

string NoModule(const string& number) {
  return "\r\nddReadOneModuleInformation->malloc err! pstModuleInformation = 0x0"
         "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -27, "
         "section = S" +
         number +
         "{\r\nddReadSysSupportFuncInformation->ddGetModuleTypeByName err! iResult = -32, "
         "strValueBuf = " +
         (number == "1" ? "OMCI" : "VLAN") + "}";
}
// The board whose port is of that type is left out with it.
string NoPortType(const string& number) {
  return "\r\nddReadOneSupportedOltPortInformation->malloc err! pstOltPortInformation = 0x0"
         "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOltPortInformation err! "
         "iResult = -27, strValueBuf = P" +
         number +
         "\r\nddAddSupportedServePortToBoardObj->dd_IsOltPonTypeSupportedBySecName err! "
         "iResult = -32, strKey = NameKeyPort1, ulIndex = 0"
         "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! "
         "strBoardTypeSection = B" +
         number + kBoardFailed + "-1, section = B" + number;
}
string NoBoard(const string& number) {
  return string("\r\nddReadOneSupportedBoardInformation->malloc err! pstBoardInformation = 0x0") +
         kBoardFailed + "-27, section = B" + number;
}
string NoPorts(const string& number) {
  return "\r\nddAddSupportedServePortToBoardObj err! pstBoardInformation->pPortArray = 0x0"
         "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! "
         "strBoardTypeSection = B" +
         number + kBoardFailed + "-27, section = B" + number;
}
string NoPort(const string& number) {
  return "\r\nddCreateOneOltPortObjByName->malloc err! pstOltPortInformationOut = 0x0, ulIndex = " +
         string(number == "1" ? "0" : "1") +
         "\r\nddAddSupportedServePortToBoardObj->dd_CreateOneOnuPonObjBySecName err! "
         "strKey = NameKeyPort1"
         "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! "
         "strBoardTypeSection = B" +
         number + kBoardFailed + "-1, section = B" + number;
}

// ONU port types: the list, and the only record of it.
string NoOnuTypeList(const string& loader, const string& array) {
  return "\r\n" + loader + "->malloc err! " + array + " = 0x0" + DriverSays(loader, "-27");
}
string NoOnuTypeRecord(const string& kind, const string& record, const string& loader,
                       const string& section) {
  return "\r\nddReadOneSupported" + kind + "Information->malloc err! " + record + " = 0x0\r\n" +
         loader +
         "->ddReadOneSupportedOnuPonInformation err! iResult = -27, "
         "strValueBuf = " +
         section;
}
// ONU types.
string NoOnuRecord(const string& number) {
  return "\r\nddReadOneSupportedOnuInformation->malloc err! pstOnuInformation = 0x0" +
         test::Left("-27", "U" + number);
}
string NoOnuPorts(const string& number, const string& named, const string& array,
                  const string& adder) {
  return "\r\n" + named + " err! pstOnuInformation->" + array + " = 0x0" +
         test::NotAdded(adder, "-27", "U" + number);
}
string NoOnuPort(const string& number, const string& copy, const string& kind, const string& key,
                 const string& code) {
  return copy + test::NoPorts(kind, code, "U" + number,
                              "->ddCreateOneOnu" + kind + "ObjByName err! strKey = " + key);
}
constexpr char kNoPonCopy[] =
    "{\r\ndd_CreateOneOnuPonObjBySecName, pstOnuPonInformationOut = 0x0, ulIndex = 0}";

// What comes of a start without any memory from an ONU type on.
constexpr Outcome kStopsWithoutOnus = StoppedAtOpticalModules(kWithoutOnus, -22);
constexpr Outcome kStopsWithoutTheSecondOnu = StoppedAtOpticalModules(kWithoutTheSecondOnu, -22);

// The frame when the loader finds no room for the boards of its slots.
constexpr test::FrameCounts kFrameWithoutRows = {9, 64, 128, 6};

// In the order in which they are made.
struct AllocationRow {
  const char* name;
  string console;        // what is said if it alone fails; in braces: under the debug switch
  Outcome once;          // if it alone fails
  Outcome for_ever;      // if all behind it fail as well
  test::Names log = {};  // what is logged if it alone fails
};

const AllocationRow kAllocations[] = {
    {"WorkBuffer", string(kNoBuffer) + "ddInit initialize......failed!\r\n", {-1, {}}, {-1, {}}},
    {"ModuleList",
     "\r\nddReadAllModuleInformation->malloc err! pModuleTypeArray = 0x0" +
         DriverSays("ddReadAllModuleInformation", "-27"),
     {-27, {2}},
     {-27, {2}}},
    {"FirstModule", NoModule("1"), kWithoutAModule, {-27, {2}}},
    {"SecondModule", NoModule("2"), kWithoutAModule, {-27, {2, 1, 1}}},
    {"PortTypeList",
     "\r\nddReadAllSupportedOltPortInformation->malloc err! pOltPortTypeArray = 0x0" +
         DriverSays("ddReadAllSupportedOltPortInformation", "-27"),
     {-27, {2, 2, 2}},
     {-27, {2, 2, 2}}},
    {"FirstPortType", NoPortType("1") + NoCardOfBoard("1"), kWithoutAPortType, {-27, {2, 2, 2}}},
    {"SecondPortType",
     NoPortType("2") + NoCardOfBoard("2"),
     kWithoutAPortType,
     {-27, {2, 2, 2, 1}}},
    {"MainBoardList",
     "\r\nddReadAllSupportedOnuInformation->malloc err! pBoardTypeArray = 0x0" +
         DriverSays("ddReadAllSupportedMainBoardInformation", "-27"),
     {-27, {2, 2, 2, 2}},
     {-27, {2, 2, 2, 2}}},
    {"MainBoard",
     string("\r\nddReadOneSupportedMainBoardInformation->malloc err! "
            "pstMainBoardInformation = 0x0") +
         kBoardFailed + "-27, section = M1" + NoMainCard(),
     kWithoutTheMainBoard,
     {-27, {2, 2, 2, 2}}},
    {"BoardList",
     "\r\nddReadAllSupportedOnuInformation->malloc err! pBoardTypeArray = 0x0" +
         DriverSays("ddReadAllSupportedBoardInformation", "-27"),
     {-27, {2, 2, 2, 2, 1}},
     {-27, {2, 2, 2, 2, 1}}},
    {"FirstBoard",
     NoBoard("1") + NoCardOfBoard("1"),
     kWithoutABoard,
     {-27, {2, 2, 2, 2, 1, 0, kFrameWithoutRows}}},
    {"FirstBoardsPorts",
     NoPorts("1") + NoCardOfBoard("1"),
     kWithoutABoard,
     {-27, {2, 2, 2, 2, 1, 0, kFrameWithoutRows}}},
    {"FirstBoardsPort",
     NoPort("1") + NoCardOfBoard("1"),
     kWithoutABoard,
     {-27, {2, 2, 2, 2, 1, 0, kFrameWithoutRows}}},
    {"SecondBoard",
     NoBoard("2") + NoCardOfBoard("2"),
     kWithoutABoard,
     {-27, {2, 2, 2, 2, 1, 1, kFrameWithoutRows}}},
    {"SecondBoardsPorts",
     NoPorts("2") + NoCardOfBoard("2"),
     kWithoutABoard,
     {-27, {2, 2, 2, 2, 1, 1, kFrameWithoutRows}}},
    {"SecondBoardsPort",
     NoPort("2") + NoCardOfBoard("2"),
     kWithoutABoard,
     {-27, {2, 2, 2, 2, 1, 1, kFrameWithoutRows}}},
    {"BoardsOfTheSlots",
     "\r\nddReadSlotSupportBoard->malloc err! gstFrame.pstSlotArray = 0x0"
     "{\r\nddReadFrameInformation->ddReadSlotSupportBoard err! iResult = -27, "
     "strSectionFrameNameBuf = KT3300-L_FrameInfomation}" +
         DriverSays("ddReadFrameInformation", "-27"),
     {-27, {2, 2, 2, 2, 1, 2, kFrameWithoutRows}},
     {-27, {2, 2, 2, 2, 1, 2, kFrameWithoutRows}}},
    {"OnuPonTypeList",
     NoOnuTypeList("ddReadAllSupportedOnuPonInformation", "pOnuPonTypeArray"),
     {-27, InOnus({})},
     {-27, InOnus({})}},
    {"OnuPonType",
     NoOnuTypeRecord("OnuPon", "pstOnuPonInformation", "ddReadAllSupportedOltPortInformation",
                     "OnuPon") +
         NoOnusOfPonType(),
     kWithoutOnuPonTypes,
     {-27, InOnus({})}},
    {"OnuLanTypeList",
     NoOnuTypeList("ddReadAllSupportedOnuLanInformation", "pOnuLanTypeArray"),
     {-27, InOnus({1})},
     {-27, InOnus({1})}},
    {"OnuLanType",
     NoOnuTypeRecord("OnuLan", "pstOnuLanPortInformation", "ddReadAllSupportedOltPortInformation",
                     "OnuLan") +
         NoOnuOfLanType(),
     kWithoutTypesOfTheFirstOnu<&OnuCounts::lan_types>,
     {-27, InOnus({1})}},
    {"OnuPotsTypeList",
     NoOnuTypeList("ddReadAllSupportedOnuPotsInformation", "pOnuPotsTypeArray"),
     {-27, InOnus({1, 1})},
     {-27, InOnus({1, 1})}},
    {"OnuPotsType",
     NoOnuTypeRecord("OnuPots", "pstOnuPotsPortInformation", "ddReadAllSupportedOnuPotsInformation",
                     "OnuPots") +
         NoOnuOfPotsType(),
     kWithoutTypesOfTheFirstOnu<&OnuCounts::pots_types>,
     {-27, InOnus({1, 1})}},
    {"OnuSpecialPortTypeList",
     NoOnuTypeList("ddReadAllSupportedOnuSpecialPortInformation", "pOnuSpecialPortTypeArray"),
     {-27, InOnus({1, 1, 1})},
     {-27, InOnus({1, 1, 1})}},
    {"OnuSpecialPortType",
     NoOnuTypeRecord("OnuSpecialPort", "pstOnuSpecialPortInformation",
                     "ddReadAllSupportedOnuSpecialPortInformation", "OnuSpecial") +
         NoOnuOfSpecialPortType(),
     kWithoutTypesOfTheFirstOnu<&OnuCounts::special_types>,
     {-27, InOnus({1, 1, 1})}},
    // kept as is: the message names the LAN port types.
    {"OnuList",
     NoOnuTypeList("ddReadAllSupportedOnuInformation", "pOnuLanTypeArray"),
     {-27, InOnus({1, 1, 1, 1})},
     {-27, InOnus({1, 1, 1, 1})}},
    {"FirstOnu", NoOnuRecord("1"), kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"FirstOnusPonPorts",
     NoOnuPorts("1", "ddAddSupportedPonToOnuObj", "pOnuPonArray", "ddAddSupportedPonToOnuObj"),
     kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"FirstOnusPonPort", NoOnuPort("1", kNoPonCopy, "Pon", "NameKeyPon1", "-1"),
     kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"FirstOnusLanPorts",
     NoOnuPorts("1", "ddAddSupportedPonToOnuObj", "pOnuLanPortArray", "ddAddSupportedLanToOnuObj"),
     kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"FirstOnusLanPort",
     NoOnuPort("1", "\r\nddCreateOneOnuLanObjByName, pstOnuLanPortInformationOut = 0x0, ulIndex= 0",
               "Lan", "NameKeyLanPort1", "-27"),
     kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"FirstOnusPotsPorts",
     NoOnuPorts("1", "ddAddSupportedPotsToOnuObj", "pOnuPotsPortArray",
                "ddAddSupportedPotsToOnuObj"),
     kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"FirstOnusPotsPort",
     NoOnuPort("1",
               "\r\nddCreateOneOnuPotsObjByName, pstOnuPotsPortInformationOut = 0x0, ulIndex = 0",
               "Pots", "NameKeyPotsPort1", "-1"),
     kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"FirstOnusSpecialPorts",
     NoOnuPorts("1", "ddAddSupportedSpecialPortToOnuObj", "pOnuSpecialPortArray",
                "ddAddSupportedSpecialPortToOnuObj"),
     kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"FirstOnusSpecialPort",
     NoOnuPort("1",
               "\r\nddCreateOneOnuSpecialPortObjByName, pstOnuSpecialPortInformationOut = 0x0, "
               "ulIndex = 0",
               "SpecialPort", "NameKeySpecialPort1", "-1"),
     kWithoutTheFirstOnu, kStopsWithoutOnus},
    {"SecondOnu", NoOnuRecord("2"), kWithoutTheSecondOnu, kStopsWithoutTheSecondOnu},
    {"SecondOnusPonPorts",
     NoOnuPorts("2", "ddAddSupportedPonToOnuObj", "pOnuPonArray", "ddAddSupportedPonToOnuObj"),
     kWithoutTheSecondOnu, kStopsWithoutTheSecondOnu},
    {"SecondOnusPonPort", NoOnuPort("2", kNoPonCopy, "Pon", "NameKeyPon1", "-1"),
     kWithoutTheSecondOnu, kStopsWithoutTheSecondOnu},
    {"OpticalList",
     test::kOpticalFailed,
     StoppedAtOpticalModules({.loaded = test::kEverything}, -22),
     StoppedAtOpticalModules({.loaded = test::kEverything}, -22),
     {test::optical::kNoMemoryForList, test::optical::NotLoaded("-22")}},
    {"FirstOpticalModule",
     "",
     kWithoutTheFirstOpticalModule,
     kWithoutOpticalModules,
     {kNoMemoryForModule, Left("-22", "O1")}},
    {"FirstOpticalModulesPaths",
     "",
     kWithoutTheFirstOpticalModule,
     kWithoutOpticalModules,
     {NoMemoryForPaths("2"), Left("-22", "O1")}},
    {"FirstOpticalModulesFirstPath",
     "",
     kWithoutTheFirstOpticalModule,
     kWithoutOpticalModules,
     {kNoMemoryForPath, PathNotRead("-22", "-10,-30,-5,-28"), Left("-7", "O1")}},
    {"FirstOpticalModulesSecondPath",
     "",
     kWithoutTheFirstOpticalModule,
     kWithoutOpticalModules,
     {kNoMemoryForPath, PathNotRead("-22", "50,10,-70,-270"), Left("-7", "O1")}},
    {"SecondOpticalModule",
     "",
     kWithoutTheSecondOpticalModule,
     kWithoutTheSecondOpticalModule,
     {kNoMemoryForModule, Left("-22", "O2")}},
    {"SecondOpticalModulesPaths",
     "",
     kWithoutTheSecondOpticalModule,
     kWithoutTheSecondOpticalModule,
     {NoMemoryForPaths("1"), Left("-22", "O2")}},
    {"SecondOpticalModulesPath",
     "",
     kWithoutTheSecondOpticalModule,
     kWithoutTheSecondOpticalModule,
     {kNoMemoryForPath, PathNotRead("-22", "1,2,3,4"), Left("-7", "O2")}},
};

TEST_F(StartupMemory, AStartMakesTheseAllocations) {
  DeviceFile device;
  EXPECT_EQ(ddInit(), 0);
  EXPECT_EQ(device.faults.allocations.count(), static_cast<int>(std::size(kAllocations)));
  EXPECT_EQ(device.faults.frees, 1);  // the work buffer
  test::ExpectNoLeak(device.faults);
}

TEST_F(StartupMemory, OneAllocationFails) {
  int failing = 0;
  for (const AllocationRow& row : kAllocations) {
    SCOPED_TRACE(row.name);
    ++failing;
    for (const int32_t debug : {0, 1}) {
      ddDebugPrint = debug;
      ExpectStart(failing, 1, row.once);
      EXPECT_EQ(console_.Text(), test::Said(row.console, debug != 0));
      EXPECT_EQ(test::FakePlatform::TakeLog(), row.log);
      if (HasFailure()) {
        return;  // its words go to the caught console, too
      }
    }
  }
}

TEST_F(StartupMemory, NoAllocationSucceedsFromOneOn) {
  int failing = 0;
  for (const AllocationRow& row : kAllocations) {
    SCOPED_TRACE(row.name);
    ExpectStart(++failing, FaultPlan::kForEver, row.for_ever);
  }
}

}  // namespace
