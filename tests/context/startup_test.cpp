// Start-up: what is loaded in which order, what a failing step leaves, and
// what is said about it.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "context/device_file.h"
#include "support/tables.h"

namespace {

using std::string;
using test::DeviceFile;

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
  // Every byte of a table.
  template <typename Table>
  static bool IsZero(const Table& table) {
    const char* const bytes = reinterpret_cast<const char*>(&table);
    return std::all_of(bytes, bytes + sizeof table, [](char byte) { return byte == 0; });
  }
  // Leaves over from an earlier life.
  static void FillWithOldData() {
    std::memset(&gstVersionInformation, 0x5a, sizeof gstVersionInformation);
    std::memset(&gstSysSupportFuncType, 0x5a, sizeof gstSysSupportFuncType);
    gstModuleTypeList = {9, reinterpret_cast<ModuleInformation**>(uintptr_t{0x1230})};
  }
  test::Console console_;
};

TEST_F(Startup, LoadsEveryTable) {
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    DeviceFile device;
    EXPECT_EQ(ddInit(), 0);
    ExpectVersions();
    ExpectModules();
    ExpectFunctions();
    EXPECT_EQ(console_.Text(), "");
    EXPECT_EQ(device.faults.opens.count(), 1 + 1 + 2 * 4 + 1 + 2);
    EXPECT_EQ(device.faults.closes, device.faults.opens.count());
    EXPECT_EQ(device.faults.blocks.size(), 3u);  // the list and its two records
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
    EXPECT_EQ(device.faults.opens.count(), 1);
    EXPECT_TRUE(IsZero(gstVersionInformation));
    EXPECT_TRUE(IsZero(gstModuleTypeList));
    EXPECT_TRUE(IsZero(gstSysSupportFuncType));
    EXPECT_TRUE(device.faults.blocks.empty());
  }
}

TEST_F(Startup, ClearsTheWholeTablesBeforeTheLoad) {
  FillWithOldData();
  DeviceFile device(
      "[Version]\nSupportedSoftwareVer=V\n[ModuleTypeList]\nModuleNum=0\n"
      "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=0\n");
  EXPECT_EQ(ddInit(), 0);
  VersionInformation versions = {};
  versions.ulSupportedSoftVerNum = 1;
  versions.astSupportedSoftVer[0] = {2, "V"};
  EXPECT_EQ(std::memcmp(&gstVersionInformation, &versions, sizeof versions), 0);
  EXPECT_TRUE(IsZero(gstModuleTypeList));
  EXPECT_TRUE(IsZero(gstSysSupportFuncType));
}

TEST_F(Startup, SecondCallForgetsTheFirstTablesAndFreesNothing) {
  DeviceFile device;
  EXPECT_EQ(ddInit(), 0);
  EXPECT_EQ(device.faults.frees, 1);  // the work buffer
  const ModuleTypeList first = gstModuleTypeList;

  EXPECT_EQ(ddInit(), 0);

  EXPECT_EQ(device.faults.frees, 2);
  EXPECT_EQ(device.faults.blocks.size(), 6u);
  ExpectVersions();
  ExpectModules();
  ExpectFunctions();
  EXPECT_NE(gstModuleTypeList.pModuleTypeArray, first.pModuleTypeArray);
  ASSERT_EQ(device.faults.blocks.count(first.pModuleTypeArray), 1u);
  EXPECT_STREQ(first.pModuleTypeArray[1]->acName, "VLAN");

  device.Remove();
  const ModuleTypeList second = gstModuleTypeList;
  EXPECT_EQ(ddInit(), -31);
  EXPECT_EQ(device.faults.frees, 3);
  EXPECT_EQ(device.faults.blocks.size(), 6u);
  EXPECT_TRUE(IsZero(gstModuleTypeList));

  for (const ModuleTypeList& list : {first, second}) {
    std::free(list.pModuleTypeArray[0]);
    std::free(list.pModuleTypeArray[1]);
    std::free(list.pModuleTypeArray);
  }
}

// ---- Failing steps -------------------------------------------------------------

constexpr char kVersions[] = "[Version]\nSupportedSoftwareVer=KT2200V4.0|KT2200V4.1\n";
constexpr char kModules[] =
    "[ModuleTypeList]\nModuleNum=2\nModule1=S1\nModule2=S2\n"
    "[S1]\nType=1\nName=OMCI\nSize=64\n[S2]\nType=3\nName=VLAN\nSize=32\n";

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  int steps_done;  // of: versions, modules, functions
  string loader_console;
  string debug_console;  // what the loader says under the debug switch only
  string loader;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailingStep : public Startup, public testing::WithParamInterface<FailRow> {
 protected:
  static void ExpectStepsDone() {
    if (GetParam().steps_done >= 1) {
      ExpectVersions();
    } else {
      EXPECT_TRUE(IsZero(gstVersionInformation));
    }
    if (GetParam().steps_done >= 2) {
      ExpectModules();
    } else {
      EXPECT_TRUE(IsZero(gstModuleTypeList));
    }
    EXPECT_TRUE(IsZero(gstSysSupportFuncType));
  }
  // What the loader and the parse driver say.
  static string Said() {
    return GetParam().loader_console + (ddDebugPrint != 0 ? GetParam().debug_console : "") +
           "\r\nddParseContextFile->" + GetParam().loader +
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
    ExpectStepsDone();
  }
}

TEST_P(FailingStep, OfTheReader) {
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    DeviceFile device(GetParam().file);
    EXPECT_EQ(ddReadContextFile(), GetParam().code);
    EXPECT_EQ(console_.Text(), Said() + SaidByTheReader());
    ExpectStepsDone();
    EXPECT_EQ(device.faults.frees, 1);  // the work buffer
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
    ExpectStepsDone();
  }
}

const FailRow kFails[] = {
    {"VersionsNoSection", kModules, -31, 0,
     "\r\nddReadVersionInformation err! iResult = -1, section = Version, key = Version", "",
     "ddReadVersionInformation"},
    {"VersionsBroken", string("[Version\n") + kModules, -31, 0,
     "\r\nddReadVersionInformation err! iResult = -14, section = Version, key = Version", "",
     "ddReadVersionInformation"},
    {"ModulesNoSection", kVersions, -31, 1,
     "\r\nddReadAllModuleInformation err! iResult = -1, section = ModuleTypeList, key = ModuleNum",
     "", "ddReadAllModuleInformation"},
    {"ModulesTooMany", string(kVersions) + "[ModuleTypeList]\nModuleNum=201\n", -28, 1,
     "\r\nddReadAllModuleInformation err! ulModuleTypeNum = 201, MAX_SUPPORTED_MODULE_TYPE_NUM = "
     "200",
     "", "ddReadAllModuleInformation"},
    {"FunctionsNoSection", string(kVersions) + kModules, -31, 2, "",
     "\r\nddReadSysSupportFuncInformation err! iResult = -1, section = SupportedSysFunctionType, "
     "key = SupportedSysFunctionTypeNum",
     "ddReadSysSupportFuncInformation"},
    {"FunctionsTooMany",
     string(kVersions) + kModules + "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=-1\n",
     -28, 2, "",
     "\r\nddReadSysSupportFuncInformation err! iResult = 0, ulSupportedSysFunctionTypeNum = -1",
     "ddReadSysSupportFuncInformation"},
};
INSTANTIATE_TEST_SUITE_P(Startup, FailingStep, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

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
  EXPECT_TRUE(test::FakePlatform::Get().installed.empty());
  EXPECT_TRUE(test::FakePlatform::Get().registered_modules.empty());
  EXPECT_EQ(console_.Text(), "");
  EXPECT_TRUE(IsZero(gstVersionInformation));
}

TEST_F(Startup, TouchesNoPlatformFunction) {
  DeviceFile device;
  EXPECT_EQ(ddInit(), 0);
  EXPECT_TRUE(test::FakePlatform::Get().installed.empty());
  EXPECT_TRUE(test::FakePlatform::Get().registered_modules.empty());
  EXPECT_TRUE(test::FakePlatform::Get().delays.empty());
  EXPECT_EQ(test::FakePlatform::Get().terminal, "");
}

}  // namespace
