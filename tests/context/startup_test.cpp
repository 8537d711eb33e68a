// Start-up: what is loaded in which order, what a failing step leaves, and
// what is said about it.
#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "context/device_file.h"
#include "context/start_outcome.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"
#include "support/optmodules.h"
#include "support/tables.h"
#include "support/text.h"
#include "sys_context/frame.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"
#include "sys_context/optmodule.h"

namespace {

using std::string;
using test::DeviceFile;
using test::FakePlatform;
using test::FileBefore;
using test::Names;
using test::optical::NoCount;
using test::optical::NotLoaded;
using enum test::Loader;
using test::kSteps;

// What the tables of the complete files lead to: ten arrays, two modules, two port
// types, a main board, two boards, each with an array and a port, the boards of the
// slots, an ONU port type of each kind, two ONU types, one with a port of each kind
// in an array of its own, the other with one, and two optical modules, each with an
// array, and their three paths.
constexpr size_t kBlocks = 10 + 2 + 2 + 1 + 2 * 3 + 1 + 4 + 1 + 4 * 2 + 1 + 2 + 2 * 2 + 3;

class Startup : public test::LibraryTest {
 protected:
  static void ExpectVersions() {
    ASSERT_EQ(gstVersionInformation.ulSupportedSoftVerNum, 2u);
    EXPECT_STREQ(gstVersionInformation.astSupportedSoftVer[0].acSupportedSoftVer, "KT2200V4.0");
    EXPECT_STREQ(gstVersionInformation.astSupportedSoftVer[1].acSupportedSoftVer, "KT2200V4.1");
  }
  static void ExpectModules() {
    ASSERT_EQ(gstModuleTypeList.ulModuleTypeNum, 2u);
    EXPECT_STREQ(gstModuleTypeList.pModuleTypeArray[0]->acName, "OMCI");
    EXPECT_STREQ(gstModuleTypeList.pModuleTypeArray[1]->acName, "VLAN");
  }
  static void ExpectFunctions() {
    ASSERT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, 2u);
    EXPECT_EQ(gstSysSupportFuncType.aulSupportedSysFunctionType[0], 3u);
    EXPECT_EQ(gstSysSupportFuncType.aulSupportedSysFunctionType[1], 1u);
  }
  static void ExpectPortTypes() {
    ASSERT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, 2u);
    EXPECT_STREQ(gstSupportedOltPortType.pOltPortTypeArray[0]->acName, "GPON");
    EXPECT_STREQ(gstSupportedOltPortType.pOltPortTypeArray[1]->acName, "GE");
  }
  static void ExpectMainBoards() {
    ASSERT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 1u);
    const MainBoardInformation& board = *gstSupportedMainBoardType.pBoardTypeArray[0];
    EXPECT_STREQ(board.acName, "MCXA");
    ASSERT_EQ(board.ulChipLogicPortToPhyPortTypeNum, 2u);
    EXPECT_EQ(board.astPortMap[0].astPortPair[0].usPhyPort, 5);
    EXPECT_EQ(board.astPortMap[1].astPortPair[0].usPhyPort, 7);
  }
  static void ExpectBoards() {
    ASSERT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, 2u);
    BoardInformation** const boards = gstSupportedBoardType.pBoardTypeArray;
    EXPECT_STREQ(boards[0]->acName, "GP01A");
    EXPECT_STREQ(boards[1]->acName, "ET01G");
    ASSERT_EQ(boards[0]->ulTotalServePortNum, 1u);
    EXPECT_STREQ(boards[0]->pPortArray[0]->acName, "GPON");
  }
  static void ExpectSlots(const SlotClassInformation& slots, uint32_t amount, uint32_t start,
                          uint32_t end) {
    EXPECT_EQ(slots.ulSlotAmount, amount);
    EXPECT_EQ(slots.ulSlotStart, start);
    EXPECT_EQ(slots.ulSlotEnd, end);
    EXPECT_EQ(slots.ucSlotArray[0], start);
  }
  static void ExpectFrame() {
    EXPECT_EQ(gstFrame.eType, 15);
    EXPECT_EQ(gstFrame.ulNameLen, 9u);
    EXPECT_STREQ(gstFrame.acName, "KT3300-L");
    EXPECT_EQ(gstFrame.ulMaxOnuNum, 64u);
    EXPECT_EQ(gstFrame.ulMaxUserNum, 128u);
    ExpectSlots(gstFrame.stRealSlot, 2, 1, 2);
    ExpectSlots(gstFrame.stVirtualSlot, 1, 31, 31);
    ExpectSlots(gstFrame.stHcuSlot, 1, 801, 801);
    ExpectSlots(gstFrame.stFanSlot, 0, 0, 0);
    ExpectSlots(gstFrame.stPowerSlot, 0, 0, 0);
    ExpectSlots(gstFrame.stCioSlot, 0, 0, 0);
    ExpectSlots(gstFrame.stServeBoardSlot, 1, 1, 1);
    ExpectSlots(gstFrame.stMainSlot, 1, 2, 2);
    ExpectSlots(gstFrame.stUplinkSlot, 0, 0, 0);
    ASSERT_NE(gstFrame.pstSlotArray, nullptr);
    EXPECT_EQ(gstFrame.pstSlotArray[1].aulBoardType[0], 3102u);
    EXPECT_EQ(gstFrame.pstSlotArray[1].aulBoardType[1], 3201u);
    EXPECT_EQ(gstFrame.pstSlotArray[2].aulBoardType[0], 101u);
    ASSERT_EQ(gstFrame.ulSwitchChipLogicPortNum, 2u);
    EXPECT_EQ(gstFrame.astSwitchChipLogicPort[1].ucSlotPort, 4);
    ASSERT_EQ(gstFrame.ulType2SwitchChipLogicPortNum, 2u);
    EXPECT_EQ(gstFrame.astType2SwitchChipLogicPort[1].usPhyPort, 6);
  }
  static void ExpectOnuPorts(uint32_t count, OnuPortTypeInformation* const* ports, uint32_t type,
                             const char* name) {
    ASSERT_EQ(count, 1u);
    EXPECT_EQ(ports[0]->ulPortType, type);
    EXPECT_STREQ(ports[0]->acName, name);
  }
  static void ExpectOnuPonTypes() {
    const SupportedOnuPonType& table = gstSupportedOnuPonType;
    ExpectOnuPorts(table.ulSupportedOnuPonTypeNum, table.pOnuPonTypeArray, 2, "GPON");
  }
  static void ExpectOnuLanTypes() {
    const SupportedOnuLanType& table = gstSupportedOnuLanType;
    ExpectOnuPorts(table.ulSupportedOnuLanTypeNum, table.pOnuLanTypeArray, 3, "FE");
  }
  static void ExpectOnuPotsTypes() {
    const SupportedOnuPotsType& table = gstSupportedOnuPotsType;
    ExpectOnuPorts(table.ulSupportedOnuPotsTypeNum, table.pOnuPotsTypeArray, 4, "FXS");
  }
  static void ExpectOnuSpecialPortTypes() {
    const SupportedOnuSpecialPortType& table = gstSupportedOnuSpecialPortType;
    ExpectOnuPorts(table.ulSupportedOnuSpecialPortTypeNum, table.pOnuSpecialPortTypeArray, 5,
                   "CATV");
  }
  static void ExpectOnus() {
    ASSERT_EQ(gstSupportedOnuType.ulSupportedOnuTypeNum, 2u);
    const OnuInformation& first = *gstSupportedOnuType.pOnuTypeArray[0];
    EXPECT_EQ(first.ulOnuType, 6001u);
    EXPECT_STREQ(first.acName, "KT-G101");
    ExpectOnuPorts(first.ulTotalPonNum, first.pOnuPonArray, 2, "GPON");
    ExpectOnuPorts(first.ulTotalLanPortNum, first.pOnuLanPortArray, 3, "FE");
    ExpectOnuPorts(first.ulTotalPotsNum, first.pOnuPotsPortArray, 4, "FXS");
    ExpectOnuPorts(first.ulTotalSpecialPortNum, first.pOnuSpecialPortArray, 5, "CATV");
    EXPECT_EQ(gstSupportedOnuType.pOnuTypeArray[1]->ulOnuType, 6002u);
    EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuMaxLanOnuType, 6001u);
    EXPECT_EQ(gstSupportedOnuType.ulSupportedOnuMaxLanNum, 1u);
  }
  static void ExpectOpticalModules() {
    ASSERT_EQ(g_optmdule_infolist.listnum, 2);
    test::ExpectOptModule(*g_optmdule_infolist.objlist[0],
                          {1, 2, 7, {{-10, -30, -5, -28}, {50, 10, -70, -270}}});
    test::ExpectOptModule(*g_optmdule_infolist.objlist[1], {2, 31, 0, {{1, 2, 3, 4}}});
  }
  // All that the device file gives.
  static void ExpectTables() {
    ExpectVersions();
    ExpectModules();
    ExpectFunctions();
    ExpectPortTypes();
    ExpectMainBoards();
    ExpectBoards();
    ExpectFrame();
    ExpectOnuPonTypes();
    ExpectOnuLanTypes();
    ExpectOnuPotsTypes();
    ExpectOnuSpecialPortTypes();
    ExpectOnus();
  }
  static void ExpectEverything() {
    ExpectTables();
    ExpectOpticalModules();
  }
  static bool AreZero(const void* bytes, size_t size) {
    const char* const begin = static_cast<const char*>(bytes);
    return std::all_of(begin, begin + size, [](char byte) { return byte == 0; });
  }
  // Every byte of a table, or every field.
  template <typename Table>
  static bool IsZero(const Table& table) {
    return AreZero(&table, sizeof table);
  }
  static bool IsZero(const ModuleTypeList& table) {
    return table.ulModuleTypeNum == 0 && table.pModuleTypeArray == nullptr;
  }
  static bool IsZero(const SupportedOltPortType& table) {
    return table.ulSupportedOltPortTypeNum == 0 && table.pOltPortTypeArray == nullptr;
  }
  static bool IsZero(const SupportedMainBoardType& table) {
    return table.ulSupportedBoardTypeNum == 0 && table.pBoardTypeArray == nullptr;
  }
  static bool IsZero(const SupportedBoardType& table) {
    return table.ulSupportedBoardTypeNum == 0 && table.pBoardTypeArray == nullptr &&
           table.ulSupportedBoardMaxPonType == 0 && table.ulSupportedBoardMaxPonNum == 0;
  }
  static bool IsZero(const SupportedOnuPonType& table) {
    return table.ulSupportedOnuPonTypeNum == 0 && table.pOnuPonTypeArray == nullptr;
  }
  static bool IsZero(const SupportedOnuLanType& table) {
    return table.ulSupportedOnuLanTypeNum == 0 && table.pOnuLanTypeArray == nullptr;
  }
  static bool IsZero(const SupportedOnuPotsType& table) {
    return table.ulSupportedOnuPotsTypeNum == 0 && table.pOnuPotsTypeArray == nullptr;
  }
  static bool IsZero(const SupportedOnuSpecialPortType& table) {
    return table.ulSupportedOnuSpecialPortTypeNum == 0 && table.pOnuSpecialPortTypeArray == nullptr;
  }
  static bool IsZero(const SupportedOnuType& table) {
    return table.ulSupportedOnuTypeNum == 0 && table.pOnuTypeArray == nullptr &&
           table.ulSupportedOnuMaxLanOnuType == 0 && table.ulSupportedOnuMaxLanNum == 0;
  }
  static bool IsZero(const OptModuleInfoList& list) {
    return list.listnum == 0 && list.objlist == nullptr;
  }
  static bool IsZero(const FrameInformation& frame) {
    const auto is_zero = [](const BalanceSwitchLogicPortInfo& entry) {
      return entry.ucSlotOut == 0 && entry.ucSlotPort == 0 && entry.usChipPort == 0 &&
             entry.usPhyPort == 0 && entry.ucHigigFlag == 0;
    };
    return AreZero(&frame, offsetof(FrameInformation, pstSlotArray)) &&
           frame.pstSlotArray == nullptr && frame.ulSwitchChipLogicPortNum == 0 &&
           AreZero(frame.astSwitchChipLogicPort, sizeof frame.astSwitchChipLogicPort) &&
           frame.ulType2SwitchChipLogicPortNum == 0 &&
           std::all_of(std::begin(frame.astType2SwitchChipLogicPort),
                       std::end(frame.astType2SwitchChipLogicPort), is_zero);
  }
  static void ExpectAllZero() {
    EXPECT_TRUE(IsZero(gstVersionInformation));
    EXPECT_TRUE(IsZero(gstModuleTypeList));
    EXPECT_TRUE(IsZero(gstSysSupportFuncType));
    EXPECT_TRUE(IsZero(gstSupportedOltPortType));
    EXPECT_TRUE(IsZero(gstSupportedMainBoardType));
    EXPECT_TRUE(IsZero(gstSupportedBoardType));
    EXPECT_TRUE(IsZero(gstFrame));
    EXPECT_TRUE(IsZero(gstSupportedOnuPonType));
    EXPECT_TRUE(IsZero(gstSupportedOnuLanType));
    EXPECT_TRUE(IsZero(gstSupportedOnuPotsType));
    EXPECT_TRUE(IsZero(gstSupportedOnuSpecialPortType));
    EXPECT_TRUE(IsZero(gstSupportedOnuType));
    EXPECT_TRUE(IsZero(g_optmdule_infolist));
  }
  // Leaves over from an earlier life.
  static void FillWithOldData() {
    std::memset(&gstVersionInformation, 0x5a, sizeof gstVersionInformation);
    std::memset(&gstSysSupportFuncType, 0x5a, sizeof gstSysSupportFuncType);
    gstModuleTypeList = {9, SomeAddress<ModuleInformation*>()};
    gstSupportedOltPortType = {9, SomeAddress<OltPortInformation*>()};
    gstSupportedMainBoardType = {9, SomeAddress<MainBoardInformation*>()};
    gstSupportedBoardType = {9, SomeAddress<BoardInformation*>(), 8, 7};
    std::memset(&gstFrame, 0x5a, sizeof gstFrame);
    gstSupportedOnuPonType = {9, SomeAddress<OnuPortTypeInformation*>()};
    gstSupportedOnuLanType = {9, SomeAddress<OnuPortTypeInformation*>()};
    gstSupportedOnuPotsType = {9, SomeAddress<OnuPortTypeInformation*>()};
    gstSupportedOnuSpecialPortType = {9, SomeAddress<OnuPortTypeInformation*>()};
    gstSupportedOnuType = {9, SomeAddress<OnuInformation*>(), 8, 7};
    g_optmdule_infolist = {9, SomeAddress<OptModuleInfo*>()};
  }
  template <typename Record>
  static Record* SomeAddress() {
    return reinterpret_cast<Record*>(uintptr_t{0x1230});
  }
  test::Console console_;
};

TEST_F(Startup, LoadsEveryTable) {
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    DeviceFile device;
    EXPECT_EQ(ddInit(), 0);
    ExpectEverything();
    EXPECT_EQ(console_.Text(), "");
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
    EXPECT_EQ(device.faults.closes, device.faults.opens.count());
    EXPECT_EQ(device.faults.blocks.size(), kBlocks);
    test::ExpectNoLeak(device.faults);
    EXPECT_EQ(ddDebugPrint, debug);
  }
}

TEST_F(Startup, ReadsTheLiteralPathWhateverTheMemoryFileIsCalled) {
  strDeviceDefFilePath = "/nonexistent/dd.ini";
  DeviceFile device;
  EXPECT_EQ(ddInit(), 0);
  ExpectVersions();
  EXPECT_STREQ(strDeviceDefFilePath, "/nonexistent/dd.ini");
}

TEST_F(Startup, FailureMessageShowsTheLiteralPathToo) {
  strDeviceDefFilePath = "/nonexistent/dd.ini";
  DeviceFile device;
  device.Remove();
  EXPECT_EQ(ddParseContextFile(), -31);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadVersionInformation err! iResult = -10, section = Version, key = Version"
            "\r\nddParseContextFile->ddReadVersionInformation err! iResult = -31, "
            "strDeviceDefFilePath = /mnt/work/device_definition.ini");
}

// The optical modules come behind it.
TEST_F(Startup, TheReaderReadsTheDeviceFileOnly) {
  DeviceFile device;
  g_optmdule_infolist = {9, SomeAddress<OptModuleInfo*>()};
  EXPECT_EQ(ddReadContextFile(), 0);
  ExpectTables();
  EXPECT_EQ(g_optmdule_infolist.listnum, 9);
  EXPECT_EQ(g_optmdule_infolist.objlist, SomeAddress<OptModuleInfo*>());
  g_optmdule_infolist = {};
}

// Nothing of the optical file is read then, and an old list of its modules is forgotten.
TEST_F(Startup, MissingFileIsReportedFromTheLookupUp) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    FillWithOldData();
    DeviceFile device;
    device.Remove();
    EXPECT_EQ(ddInit(), -31);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadVersionInformation err! iResult = -10, section = Version, key = Version"
              "\r\nddParseContextFile->ddReadVersionInformation err! iResult = -31, "
              "strDeviceDefFilePath = /mnt/work/device_definition.ini"
              "\r\nddReadContextFile->ddParseContextFile err! iResult = -31"
              "ddInit initialize......failed!\r\n");
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
    EXPECT_EQ(device.faults.opens.count(), 1);
    ExpectAllZero();
    EXPECT_TRUE(device.faults.blocks.empty());
  }
}

TEST_F(Startup, ClearsTheWholeTablesBeforeTheLoad) {
  FillWithOldData();
  DeviceFile device(
      "[Version]\nSupportedSoftwareVer=V\n[ModuleTypeList]\nModuleNum=0\n"
      "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=0\n"
      "[SupportedOltPortType]\nSupportedOltPortTypeNum=0\n"
      "[SupportedMainBoardType]\nSupportedMainBoardTypeNum=0\n"
      "[SupportedBoardType]\nSupportedBoardTypeNum=0\n"
      "[KT3300-L_FrameInfomation]\nType=0\nName=F\nMaxOnuNum=0\nMaxUserNum=0\n"
      "RealSlotNum=1\nRealSlotList=1\nVirtualSlotNum=0\nHcuSlotNum=0\nFanSlotNum=0\nCioSlotNum=0\n"
      "PowerSlotNum=0\nServeBoardSlotNum=0\nMainSlotNum=0\nUplinkSlotNum=0\n"
      "SwitchChipLogicPortNum=0\nType2SwitchChipLogicPortNum=0\n"
      "[SupportedOnuPonType]\nSupportedOnuPonTypeNum=0\n"
      "[SupportedOnuLanType]\nSupportedOnuLanTypeNum=0\n"
      "[SupportedOnuPotsType]\nSupportedOnuPotsTypeNum=0\n"
      "[SupportedOnuSpecialPortType]\nSupportedOnuSpecialPortTypeNum=0\n"
      "[SupportedOnuType]\nSupportedOnuTypeNum=0\n",
      "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=0\n");
  // When the work buffer is released, the old list of optical modules is long forgotten.
  device.faults.on_free = [](void*, size_t) { EXPECT_TRUE(IsZero(g_optmdule_infolist)); };
  EXPECT_EQ(ddInit(), 0);
  device.faults.on_free = nullptr;
  EXPECT_EQ(device.faults.frees, 1);
  EXPECT_EQ(console_.Text(),
            "\r\nddReadAllSupportedOltPortInformation err! ulSupportedOltPortTypeNum = 0"
            "\r\nddReadAllSupportedMainBoardInformation err! ulSupportedOnuTypeNum = 0"
            "\r\nddReadAllSupportedBoardInformation ok! ulSupportedOnuTypeNum = 0"
            "\r\nddReadSlotSupportBoard err! iResult = -2, section = KT3300-L_FrameInfomation, "
            "key = SupportedBoardTypeSlot1"
            "\r\nddReadAllSupportedOnuPonInformation ok! ulSupportedOnuPonTypeNum = 0"
            "\r\nddReadAllSupportedOnuLanInformation ok! ulSupportedOnuLanTypeNum = 0"
            "\r\nddReadAllSupportedOnuPotsInformation ok! ulSupportedOnuPotsTypeNum = 0"
            "\r\nddReadAllSupportedOnuSpecialPortInformation ok! "
            "ulSupportedOnuSpecialPortTypeNum = 0"
            "\r\nddReadAllSupportedOnuInformation ok! ulSupportedOnuTypeNum = 0");
  EXPECT_EQ(FakePlatform::TakeLog(), Names{test::optical::kNoneAnnounced});
  VersionInformation versions = {};
  versions.ulSupportedSoftVerNum = 1;
  versions.astSupportedSoftVer[0] = {2, "V"};
  EXPECT_EQ(std::memcmp(&gstVersionInformation, &versions, sizeof versions), 0);
  gstVersionInformation = {};
  // What was loaded of the frame; the rest of it must be zero.
  EXPECT_STREQ(gstFrame.acName, "F");
  ASSERT_NE(gstFrame.pstSlotArray, nullptr);
  std::free(gstFrame.pstSlotArray);
  gstFrame.pstSlotArray = nullptr;
  gstFrame.ulNameLen = 0;
  gstFrame.acName[0] = '\0';
  SlotClassInformation& real = gstFrame.stRealSlot;
  ExpectSlots(real, 1, 1, 1);
  real.ulSlotAmount = real.ulSlotStart = real.ulSlotEnd = real.ucSlotArray[0] = 0;
  ExpectAllZero();
}

TEST_F(Startup, SecondCallForgetsTheFirstTablesAndFreesNothing) {
  DeviceFile device;
  EXPECT_EQ(ddInit(), 0);
  EXPECT_EQ(device.faults.frees, 1);  // the work buffer
  const ModuleTypeList first = gstModuleTypeList;

  EXPECT_EQ(ddInit(), 0);
  EXPECT_EQ(device.faults.frees, 2);
  EXPECT_EQ(device.faults.blocks.size(), 2 * kBlocks);
  ExpectEverything();
  EXPECT_NE(gstModuleTypeList.pModuleTypeArray, first.pModuleTypeArray);
  ASSERT_EQ(device.faults.blocks.count(first.pModuleTypeArray), 1u);
  EXPECT_STREQ(first.pModuleTypeArray[1]->acName, "VLAN");
  test::ExpectAndReleaseLost(device.faults, kBlocks);

  device.Remove();
  EXPECT_EQ(ddInit(), -31);
  ExpectAllZero();
  EXPECT_EQ(device.faults.blocks.size(), kBlocks);
  test::ExpectAndReleaseLost(device.faults, kBlocks);
}

// ---- Failing steps -------------------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  test::Step step;  // that fails
  string loader_console;
  string debug_console = "";  // what the loader says under the debug switch only
  int frees = 1;              // the work buffer
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailingStep : public Startup, public testing::WithParamInterface<FailRow> {
 protected:
  // The tables of the steps before the failure are there, the others are empty.
  static void ExpectStepsBefore() {
    void (*const expect_table[kSteps])() = {ExpectVersions,
                                            ExpectModules,
                                            ExpectFunctions,
                                            ExpectPortTypes,
                                            ExpectMainBoards,
                                            ExpectBoards,
                                            ExpectFrame,
                                            ExpectOnuPonTypes,
                                            ExpectOnuLanTypes,
                                            ExpectOnuPotsTypes,
                                            ExpectOnuSpecialPortTypes,
                                            ExpectOnus};
    const bool is_zero[kSteps] = {IsZero(gstVersionInformation),
                                  IsZero(gstModuleTypeList),
                                  IsZero(gstSysSupportFuncType),
                                  IsZero(gstSupportedOltPortType),
                                  IsZero(gstSupportedMainBoardType),
                                  IsZero(gstSupportedBoardType),
                                  IsZero(gstFrame),
                                  IsZero(gstSupportedOnuPonType),
                                  IsZero(gstSupportedOnuLanType),
                                  IsZero(gstSupportedOnuPotsType),
                                  IsZero(gstSupportedOnuSpecialPortType),
                                  IsZero(gstSupportedOnuType)};
    for (size_t step = 0; step < kSteps; ++step) {
      SCOPED_TRACE(step);
      EXPECT_EQ(is_zero[step], step >= GetParam().step);
      if (step < GetParam().step) {
        expect_table[step]();
      }
    }
    EXPECT_TRUE(IsZero(g_optmdule_infolist));
    EXPECT_EQ(FakePlatform::TakeLog(), Names());
  }
  // What the loader and the parse driver say.
  static string Said() {
    return GetParam().loader_console + (ddDebugPrint != 0 ? GetParam().debug_console : "") +
           "\r\nddParseContextFile->" + test::kLoaderNames[GetParam().step] +
           " err! iResult = " + std::to_string(GetParam().code) +
           ", strDeviceDefFilePath = /mnt/work/device_definition.ini";
  }
  static string SaidByTheReader() {
    return "\r\nddReadContextFile->ddParseContextFile err! iResult = " +
           std::to_string(GetParam().code);
  }
};

TEST_P(FailingStep, OfTheParse) {
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    DeviceFile device(GetParam().file);
    EXPECT_EQ(ddParseContextFile(), GetParam().code);
    EXPECT_EQ(console_.Text(), Said());
    ExpectStepsBefore();
  }
}

TEST_P(FailingStep, OfTheReader) {
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    DeviceFile device(GetParam().file);
    EXPECT_EQ(ddReadContextFile(), GetParam().code);
    EXPECT_EQ(console_.Text(), Said() + SaidByTheReader());
    ExpectStepsBefore();
    EXPECT_EQ(device.faults.frees, GetParam().frees);
    test::ExpectNoLeak(device.faults);
  }
}

TEST_P(FailingStep, OfTheInitialisation) {
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    FillWithOldData();
    ddDebugPrint = debug;
    DeviceFile device(GetParam().file);
    EXPECT_EQ(ddInit(), GetParam().code);
    EXPECT_EQ(console_.Text(), Said() + SaidByTheReader() + "ddInit initialize......failed!\r\n");
    ExpectStepsBefore();
  }
}

// The parts of the complete file in front of a step's, and another for that step.
string FileWith(size_t step, const char* more) {
  return FileBefore(step) + more;
}

const FailRow kFails[] = {
    {"VersionsNoSection", "[ModuleTypeList]\nModuleNum=0\n", -31, kVersions,
     "\r\nddReadVersionInformation err! iResult = -1, section = Version, key = Version"},
    {"VersionsBroken", "[Version\n" + FileBefore(kFrame), -31, kVersions,
     "\r\nddReadVersionInformation err! iResult = -14, section = Version, key = Version"},
    {"ModulesNoSection", FileBefore(kModules), -31, kModules,
     "\r\nddReadAllModuleInformation err! iResult = -1, section = ModuleTypeList, key = ModuleNum"},
    {"ModulesTooMany", FileWith(kModules, "[ModuleTypeList]\nModuleNum=201\n"), -28, kModules,
     "\r\nddReadAllModuleInformation err! ulModuleTypeNum = 201, MAX_SUPPORTED_MODULE_TYPE_NUM = "
     "200"},
    {"FunctionsNoSection", FileBefore(kFunctions), -31, kFunctions, "",
     "\r\nddReadSysSupportFuncInformation err! iResult = -1, section = SupportedSysFunctionType, "
     "key = SupportedSysFunctionTypeNum"},
    {"FunctionsTooMany",
     FileWith(kFunctions, "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=-1\n"), -28,
     kFunctions, "",
     "\r\nddReadSysSupportFuncInformation err! iResult = 0, ulSupportedSysFunctionTypeNum = -1"},
    {"PortTypesNoSection", FileBefore(kPortTypes), -31, kPortTypes,
     "\r\nddReadAllSupportedOltPortInformation err! iResult = -1, section = SupportedOltPortType, "
     "key = SupportedOltPortTypeNum"},
    {"PortTypesTooMany",
     FileWith(kPortTypes, "[SupportedOltPortType]\nSupportedOltPortTypeNum=31\n"), -11, kPortTypes,
     "\r\nddReadAllSupportedOltPortInformation err! ulSupportedOltPortTypeNum = 31, "
     "MAX_OLT_PORT_TYPE_NUM = 30"},
    {"MainBoardsNoSection", FileBefore(kMainBoards), -31, kMainBoards,
     "\r\nddReadAllSupportedBoardInformation err! iResult = -1, section = SupportedMainBoardType, "
     "key = SupportedMainBoardTypeNum"},
    {"MainBoardsTooMany",
     FileWith(kMainBoards, "[SupportedMainBoardType]\nSupportedMainBoardTypeNum=101\n"), -19,
     kMainBoards,
     "\r\nddReadAllSupportedMainBoardInformation err! ulSupportedOnuTypeNum = 101, "
     "MAX_OLT_BOARD_TYPE_NUM = 100"},
    {"BoardsNoSection", FileBefore(kBoards), -31, kBoards,
     "\r\nddReadAllSupportedBoardInformation err! iResult = -1, section = SupportedBoardType, "
     "key = SupportedBoardTypeNum"},
    {"BoardsTooMany", FileWith(kBoards, "[SupportedBoardType]\nSupportedBoardTypeNum=101\n"), -19,
     kBoards,
     "\r\nddReadAllSupportedBoardInformation err! ulSupportedOnuTypeNum = 101, "
     "MAX_OLT_BOARD_TYPE_NUM = 100"},
    {"FrameNoSection", FileBefore(kFrame), -31, kFrame,
     "\r\nddReadFrameInformation err! iResult = -1, strSectionFrameNameBuf = "
     "KT3300-L_FrameInfomation, dd_gstrKeyFrameType = Type"},
    {"FrameInconsistent",
     test::Replaced(FileBefore(kOnuPonTypes), "PowerSlotNum=0",
                    "PowerSlotNum=2\nPowerSlotList=9,3"),
     -3, kFrame,
     "\r\nddGetMainSlotRange err! ulPowerSlotAmount = 2, ulPowerSlotStart = 9, "
     "ulPowerSlotEnd = 3",
     "\r\nddReadFrameInformation->ddCheckFrameInformation err! iResult = -3",
     2},  // and the boards of the slots
    {"OnuPonTypesNoSection", FileBefore(kOnuPonTypes), -31, kOnuPonTypes,
     "\r\nddReadAllSupportedOnuPonInformation err! iResult = -1, section = SupportedOltPonType, "
     "key = SupportedOltPonTypeNum"},
    {"OnuPonTypesTooMany",
     FileWith(kOnuPonTypes, "[SupportedOnuPonType]\nSupportedOnuPonTypeNum=31\n"), -16,
     kOnuPonTypes,
     "\r\nddReadAllSupportedOnuPonInformation err! ulSupportedOnuPonTypeNum = 31, "
     "MAX_ONU_PON_TYPE_NUM = 30"},
    {"OnuLanTypesNoSection", FileBefore(kOnuLanTypes), -31, kOnuLanTypes,
     "\r\nddReadAllSupportedOnuLanInformation err! iResult = -1, section = SupportedOnuLanType, "
     "key = SupportedOnuLanTypeNum"},
    {"OnuLanTypesTooMany",
     FileWith(kOnuLanTypes, "[SupportedOnuLanType]\nSupportedOnuLanTypeNum=31\n"), -16,
     kOnuLanTypes,
     "\r\nddReadAllSupportedOnuLanInformation err! ulSupportedOnuLanTypeNum = 31, "
     "MAX_ONU_LAN_TYPE_NUM = 30"},
    {"OnuPotsTypesNoSection", FileBefore(kOnuPotsTypes), -31, kOnuPotsTypes,
     "\r\nddReadAllSupportedOnuPotsInformation err! iResult = -1, section = SupportedOnuPotsType, "
     "key = SupportedOnuPotsTypeNum"},
    {"OnuPotsTypesTooMany",
     FileWith(kOnuPotsTypes, "[SupportedOnuPotsType]\nSupportedOnuPotsTypeNum=31\n"), -16,
     kOnuPotsTypes,
     "\r\nddReadAllSupportedOnuPotsInformation err! ulSupportedOnuPotsTypeNum = 31, "
     "MAX_ONU_POTS_TYPE_NUM = 30"},
    {"OnuSpecialPortTypesNoSection", FileBefore(kOnuSpecialPortTypes), -31, kOnuSpecialPortTypes,
     "\r\nddReadAllSupportedOnuSpecialPortInformation err! iResult = -1, "
     "section = SupportOnuSpecialPortType, key = SupportOnuSpecialPortTypeNum"},
    {"OnuSpecialPortTypesTooMany",
     FileWith(kOnuSpecialPortTypes,
              "[SupportedOnuSpecialPortType]\nSupportedOnuSpecialPortTypeNum=31\n"),
     -16, kOnuSpecialPortTypes,
     "\r\nddReadAllSupportedOnuSpecialPortInformation err! ulSupportedOnuSpecialPortTypeNum = 31, "
     "MAX_ONU_SPECIAL_PORT_TYPE_NUM = 30"},
    {"OnusNoSection", FileBefore(kOnus), -31, kOnus,
     "\r\nddReadAllSupportedOnuInformation err! iResult = -1, section = SupportedOnuLanType, "
     "key = SupportedOnuLanTypeNum"},
    {"OnusTooMany", FileWith(kOnus, "[SupportedOnuType]\nSupportedOnuTypeNum=201\n"), -21, kOnus,
     "\r\nddReadAllSupportedOnuInformation err! ulSupportedOnuTypeNum = 201, "
     "MAX_ONU_TYPE_NUM = 200"},
};
INSTANTIATE_TEST_SUITE_P(Startup, FailingStep, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

// ---- The optical file ----------------------------------------------------------

struct OpticalRow {
  const char* name;
  const char* file;  // null: there is none
  int32_t code;
  Names log;
  friend std::ostream& operator<<(std::ostream& out, const OpticalRow& row) {
    return out << row.name;
  }
};

class FailingOpticalFile : public Startup, public testing::WithParamInterface<OpticalRow> {};

// The old list is forgotten, not released.
TEST_P(FailingOpticalFile, LeavesTheOtherTables) {
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    FillWithOldData();
    ddDebugPrint = debug;
    DeviceFile device(FileBefore(kSteps), GetParam().file != nullptr ? GetParam().file : "");
    if (GetParam().file == nullptr) {
      device.RemoveOptical();
    }
    EXPECT_EQ(ddInit(), GetParam().code);
    EXPECT_EQ(console_.Text(), "ddInit optfile initialize......failed!\r\n");
    EXPECT_EQ(FakePlatform::TakeLog(), GetParam().log);
    ExpectTables();
    EXPECT_TRUE(IsZero(g_optmdule_infolist));
    EXPECT_EQ(device.faults.frees, 1);  // the work buffer
    test::ExpectNoLeak(device.faults);
  }
}

const OpticalRow kOpticalRows[] = {
    {"Missing", nullptr, -1, {NoCount("-10"), NotLoaded("-1")}},
    {"NoSection", "[O1]\nPortKind=1\n", -1, {NoCount("-1"), NotLoaded("-1")}},
    {"TooMany",
     "[SupportedOptModuleInfo]\nSupportedOptModuleInfoNum=51\n",
     -15,
     {test::optical::TooMany("51"), NotLoaded("-15")}},
};
INSTANTIATE_TEST_SUITE_P(Startup, FailingOpticalFile, testing::ValuesIn(kOpticalRows),
                         testing::PrintToStringParamName());

// The sections of one file are not looked for in the other.
TEST_F(Startup, TheFilesAreNotMixed) {
  DeviceFile swapped(test::kOpticalPart, FileBefore(kSteps));
  EXPECT_EQ(ddInit(), -31);
  swapped.faults.paths[test::kDeviceFile] = swapped.optical.path();
  EXPECT_EQ(ddInit(), -1);
  test::ResetTables();
  swapped.faults.paths[test::kOpticalFile] = swapped.file.path();
  EXPECT_EQ(ddInit(), 0);
  ExpectEverything();
}

// ---- Placeholders ----------------------------------------------------------------

TEST_F(Startup, HooksAndPlaceholdersDoNothing) {
  DeviceFile device;
  dosFsMsgLevel = 5;
  EXPECT_EQ(context_module_init(), 0);
  EXPECT_EQ(context_cmd_module_init(), 0);
  EXPECT_EQ(dosFsVolumeBioBufferSize(), 0);
  EXPECT_EQ(dosFsMsgLevel, 5);
  EXPECT_EQ(device.faults.opens.count(), 0);
  EXPECT_EQ(device.faults.allocations.count(), 0);
  EXPECT_TRUE(FakePlatform::Get().installed.empty());
  EXPECT_TRUE(FakePlatform::Get().registered_modules.empty());
  EXPECT_EQ(console_.Text(), "");
  EXPECT_TRUE(IsZero(gstVersionInformation));
}

TEST_F(Startup, AsksThePlatformOnlyForPonCardsAndForTheDeviceType) {
  FakePlatform::Get().pon_cards = {3102};
  DeviceFile device;
  EXPECT_EQ(ddInit(), 0);
  EXPECT_EQ(FakePlatform::TakeAsked(),
            (std::vector<string>{"pon 3102", "pon 3201", "device type"}));
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonType, 3102u);
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonNum, 1u);
  EXPECT_TRUE(FakePlatform::Get().installed.empty());
  EXPECT_TRUE(FakePlatform::Get().registered_modules.empty());
  EXPECT_TRUE(FakePlatform::Get().delays.empty());
  EXPECT_EQ(FakePlatform::Get().terminal, "");
}

}  // namespace
