// Loading the system functions: module names in the file, types in the table.
#include <algorithm>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "support/definition_file.h"
#include "support/faults.h"
#include "support/tables.h"

namespace {

using std::string;

// Modules "OMCI" 1, "VLAN" 3, "vlan" 4, "BIG" -1.
constexpr char kModules[] =
    "[ModuleTypeList]\nModuleNum=4\nModule1=S1\nModule2=S2\nModule3=S3\nModule4=S4\n"
    "[S1]\nType=1\nName=OMCI\nSize=1\n"
    "[S2]\nType=3\nName=VLAN\nSize=1\n"
    "[S3]\nType=4\nName=vlan\nSize=1\n"
    "[S4]\nType=-1\nName=BIG\nSize=1\n";

// The list as a file writes it, with the number it announces.
string Functions(const string& number, const std::vector<string>& names) {
  string text = "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=" + number + "\n";
  for (size_t i = 0; i < names.size(); ++i) {
    text += "SupportedSysFunction" + std::to_string(i + 1) + "=" + names[i] + "\n";
  }
  return text;
}

class LoaderTest : public test::LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    const test::DefinitionFile modules(kModules);
    ASSERT_EQ(ddReadAllModuleInformation(modules.path()), 0);
  }
  // Leaves over from an earlier life, to see what the loader writes.
  static void FillWithOldData() {
    std::memset(&gstSysSupportFuncType, 0x5a, sizeof gstSysSupportFuncType);
    gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 17;
  }
  test::Console console_;
};

struct LoadRow {
  const char* name;
  string file;
  std::vector<uint32_t> types;
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadFunctions : public LoaderTest, public testing::WithParamInterface<LoadRow> {};

TEST_P(LoadFunctions, StoresTheTypes) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    FillWithOldData();
    test::Faults faults;

    EXPECT_EQ(ddReadSysSupportFuncInformation(file.path()), 0);

    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
    ASSERT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, GetParam().types.size());
    EXPECT_EQ(std::vector<uint32_t>(
                  gstSysSupportFuncType.aulSupportedSysFunctionType,
                  gstSysSupportFuncType.aulSupportedSysFunctionType + GetParam().types.size()),
              GetParam().types);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.closes, faults.opens.count());
  }
}

string NoEntry(const string& code, const string& number) {
  return "\r\nddReadSysSupportFuncInformation err! iResult = " + code +
         ", section = SupportedSysFunctionType, key = SupportedSysFunction" + number;
}
string NoModule(const string& name) {
  return "\r\nddReadSysSupportFuncInformation->ddGetModuleTypeByName err! iResult = -32, "
         "strValueBuf = " +
         name;
}

const LoadRow kLoads[] = {
    {"Two", Functions("2", {"VLAN", "OMCI"}), {3, 1}},
    {"CaseDecides", Functions("2", {"vlan", "VLAN"}), {4, 3}},
    {"DuplicatesStay", Functions("3", {"VLAN", "VLAN", "VLAN"}), {3, 3, 3}},
    {"LargestType", Functions("1", {"BIG"}), {0xffffffff}},
    {"MoreListedThanAnnounced", Functions("1", {"VLAN", "OMCI"}), {3}},
    {"None", Functions("0", {"VLAN"}), {}},
    {"EmptyNumber", Functions("", {"VLAN"}), {}},
    {"NumberIsText", Functions("some", {"VLAN"}), {}},
    {"NumberIsHexadecimal", Functions("0x1", {"VLAN"}), {}},
    {"NumberWithText", Functions(" +1x", {"VLAN"}), {3}},
    {"AsManyAsPossible", Functions("200", std::vector<string>(200, "VLAN")),
     std::vector<uint32_t>(200, 3)},
    {"UnknownName", Functions("3", {"VLAN", "none", "OMCI"}), {3, 1}, NoModule("none")},
    {"EmptyName", Functions("2", {"", "OMCI"}), {1}, NoModule("")},
    {"NameOfOtherCase", Functions("1", {"Omci"}), {}, NoModule("Omci")},
    {"AllUnknown", Functions("2", {"a", "b"}), {}, NoModule("a") + NoModule("b")},
    {"EntryMissing",
     "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=3\nSupportedSysFunction1=VLAN\n"
     "SupportedSysFunction3=OMCI\n",
     {3, 1},
     NoEntry("-2", "2")},
    {"BrokenEntry",
     "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=2\nSupportedSysFunction1=VLAN\n"
     "nonsense\nSupportedSysFunction2=OMCI\n",
     {3},
     NoEntry("-14", "2")},
    {"EntryTooLong",
     "[SupportedSysFunctionType]\nSupportedSysFunctionTypeNum=2\nSupportedSysFunction1=VLAN\nX=" +
         string(500, 'a') + "+\n" + string(20, 'b') + "\nSupportedSysFunction2=OMCI\n",
     {3},
     NoEntry("-22", "2")},
};
INSTANTIATE_TEST_SUITE_P(SystemFunctions, LoadFunctions, testing::ValuesIn(kLoads),
                         testing::PrintToStringParamName());

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string debug_console;
  int failing_read = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadFunctions : public LoaderTest, public testing::WithParamInterface<FailRow> {};

TEST_P(FailToLoadFunctions, LeavesTheTable) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    FillWithOldData();
    const SysSupportFuncType before = gstSysSupportFuncType;
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);

    EXPECT_EQ(ddReadSysSupportFuncInformation(file.path()), GetParam().code);

    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
    EXPECT_EQ(std::memcmp(&gstSysSupportFuncType, &before, sizeof before), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, 1);
  }
}

string NoNumber(const string& code) {
  return "\r\nddReadSysSupportFuncInformation err! iResult = " + code +
         ", section = SupportedSysFunctionType, key = SupportedSysFunctionTypeNum";
}
// The lookup of the number succeeded, so its result is 0.
string TooMany(const string& number) {
  return "\r\nddReadSysSupportFuncInformation err! iResult = 0, ulSupportedSysFunctionTypeNum = " +
         number;
}

const FailRow kFails[] = {
    {"OneTooMany", Functions("201", {"VLAN"}), -28, TooMany("201")},
    {"Negative", Functions("-1", {"VLAN"}), -28, TooMany("-1")},
    {"Above31Bits", Functions("2147483648", {"VLAN"}), -28, TooMany("2147483647")},
    {"Above32Bits", Functions("4294967297", {"VLAN"}), -28, TooMany("2147483647")},
    {"Below32Bits", Functions("-4294967295", {"VLAN"}), -28, TooMany("-2147483648")},
    {"NoSection", "[SupportedSysFunction]\nSupportedSysFunctionTypeNum=1\n", -31, NoNumber("-1")},
    {"NoKey", "[SupportedSysFunctionType]\n[Next]\n", -31, NoNumber("-2")},
    {"BrokenEntry", "[SupportedSysFunctionType]\nnonsense\n", -31, NoNumber("-14")},
    {"BrokenHeader", "[Broken\n" + Functions("1", {"VLAN"}), -31, NoNumber("-14")},
    {"EntryTooLong",
     "[SupportedSysFunctionType]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n", -31,
     NoNumber("-22")},
    {"ReadError", Functions("1", {"VLAN"}), -31, NoNumber("-12"), 1},
};
INSTANTIATE_TEST_SUITE_P(SystemFunctions, FailToLoadFunctions, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

using FunctionsLoader = LoaderTest;

TEST_F(FunctionsLoader, NullPath) {
  FillWithOldData();
  const SysSupportFuncType before = gstSysSupportFuncType;
  EXPECT_EQ(ddReadSysSupportFuncInformation(nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddReadSysSupportFuncInformation(nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddReadSysSupportFuncInformation err!, strFileName = 0x0");
  EXPECT_EQ(std::memcmp(&gstSysSupportFuncType, &before, sizeof before), 0);
}

TEST_F(FunctionsLoader, MissingFile) {
  EXPECT_EQ(ddReadSysSupportFuncInformation("/nonexistent/device_definition.ini"), -31);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddReadSysSupportFuncInformation("/nonexistent/device_definition.ini"), -31);
  EXPECT_EQ(console_.Text(), NoNumber("-10"));
}

TEST_F(FunctionsLoader, WithoutModulesEveryNameIsUnknown) {
  const test::DefinitionFile file(Functions("2", {"VLAN", "OMCI"}));
  test::ResetTables();
  FillWithOldData();
  EXPECT_EQ(ddReadSysSupportFuncInformation(file.path()), 0);
  EXPECT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, 0u);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddReadSysSupportFuncInformation(file.path()), 0);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetModuleTypeByName err!, pModuleTypeArray = 0x0"
            "\r\nddReadSysSupportFuncInformation->ddGetModuleTypeByName err! iResult = -10, "
            "strValueBuf = VLAN"
            "\r\nddGetModuleTypeByName err!, pModuleTypeArray = 0x0"
            "\r\nddReadSysSupportFuncInformation->ddGetModuleTypeByName err! iResult = -10, "
            "strValueBuf = OMCI");
}

}  // namespace
