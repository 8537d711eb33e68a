// The printer of the system functions: whole listings.
#include <cstring>
#include <ostream>
#include <string>

#include "cli/printer_test.h"

namespace {

using std::string;
using Printers = test::PrinterTest;

TEST_F(Printers, SystemFunctions) {
  AddModule(1, "OMCI", 64);
  AddModule(123, "OPTICAL_MONITOR", 0);
  AddFunction(123);
  AddFunction(1);
  AddFunction(1);
  EXPECT_PRINTED(ddPrintSysSupportFuncInformation, 0,
                 "\r\nSysSupportFuncInformation:"
                 "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 3"
                 "\r\n 0. ulModuleType = 123, aucModuleName = OPTICAL_MONITOR"
                 "\r\n 1. ulModuleType =  1, aucModuleName = OMCI  "
                 "\r\n 2. ulModuleType =  1, aucModuleName = OMCI  "
                 "\r\n\r\n");
}

TEST_F(Printers, FunctionOfAnUnknownModule) {
  AddModule(1, "OMCI", 64);
  AddFunction(9);
  AddFunction(1);
  AddFunction(0xffffffff);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;  // an unknown type is no message of the query
    EXPECT_PRINTED(ddPrintSysSupportFuncInformation, 0,
                   "\r\nSysSupportFuncInformation:"
                   "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 3"
                   "\r\ndebug_ddPrintSysSupportFuncInformation->ddGetModuleNameByType err! "
                   "ulIndex = 0, ulModuleType = 9"
                   "\r\n 1. ulModuleType =  1, aucModuleName = OMCI  "
                   "\r\ndebug_ddPrintSysSupportFuncInformation->ddGetModuleNameByType err! "
                   "ulIndex = 2, ulModuleType = -1"
                   "\r\n\r\n");
  }
}

TEST_F(Printers, LongestNameOfAFunction) {
  AddModule(1, string(59, 'n'), 64);
  AddFunction(1);
  EXPECT_PRINTED(ddPrintSysSupportFuncInformation, 0,
                 "\r\nSysSupportFuncInformation:"
                 "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 1"
                 "\r\n 0. ulModuleType =  1, aucModuleName = " +
                     string(59, 'n') + "\r\n\r\n");
}

TEST_F(Printers, NameWithoutItsTerminator) {
  AddModule(1, "", 64);
  std::memset(records_[0].acName, 'n', sizeof records_[0].acName);
  records_[0].ulNameLen = 60;
  records_[0].ulSize = 0x41414141;  // what stands behind the name
  AddFunction(1);
  EXPECT_PRINTED(ddPrintSysSupportFuncInformation, 0,
                 "\r\nSysSupportFuncInformation:"
                 "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 1"
                 "\r\n 0. ulModuleType =  1, aucModuleName = " +
                     string(60, 'n') + "\r\n\r\n");
}

TEST_F(Printers, AsManyFunctionsAsPossible) {
  AddModule(7, "QOS", 1);
  for (int i = 0; i < 200; ++i) {
    AddFunction(7);
  }
  const Printed printed = Print(ddPrintSysSupportFuncInformation);
  EXPECT_EQ(printed.code, 0);
  ExpectNoPause(printed);
  EXPECT_TRUE(printed.text.ends_with("\r\n199. ulModuleType =  7, aucModuleName = QOS   \r\n\r\n"))
      << printed.text;
}

TEST_F(Printers, NoFunctions) {
  EXPECT_PRINTED(ddPrintSysSupportFuncInformation, 0,
                 "\r\nSysSupportFuncInformation:"
                 "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 0\r\n\r\n");
}

TEST_F(Printers, CorruptFunctionCount) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 201;
    EXPECT_PRINTED(ddPrintSysSupportFuncInformation, -28,
                   "\r\ndebug_ddPrintSysSupportFuncInformation err! ulSysSupportFuncNum = 201, "
                   "MAX_SUPPORTED_MODULE_TYPE_NUM = 200");
    gstSysSupportFuncType.ulSupportedSysFunctionTypeNum = 0xffffffff;
    EXPECT_PRINTED(ddPrintSysSupportFuncInformation, -28,
                   "\r\ndebug_ddPrintSysSupportFuncInformation err! ulSysSupportFuncNum = -1, "
                   "MAX_SUPPORTED_MODULE_TYPE_NUM = 200");
  }
}

// The module list is broken: every row is an error row, and the query that
// gives the names says why on the console, under the debug switch only.
struct BrokenListRow {
  const char* name;
  uint32_t count;
  const char* debug_console;
  friend std::ostream& operator<<(std::ostream& out, const BrokenListRow& row) {
    return out << row.name;
  }
};

class FunctionsWithoutNames : public Printers, public testing::WithParamInterface<BrokenListRow> {};

TEST_P(FunctionsWithoutNames, AreListedAsErrors) {
  AddFunction(5);
  AddFunction(6);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstModuleTypeList = {GetParam().count, nullptr};
    const Printed printed = Print(ddPrintSysSupportFuncInformation);
    EXPECT_EQ(printed.code, 0);
    EXPECT_EQ(printed.text,
              "\r\nSysSupportFuncInformation:"
              "\r\ngstSysSupportFuncType.ulSysSupportFuncNum = 2"
              "\r\ndebug_ddPrintSysSupportFuncInformation->ddGetModuleNameByType err! "
              "ulIndex = 0, ulModuleType = 5"
              "\r\ndebug_ddPrintSysSupportFuncInformation->ddGetModuleNameByType err! "
              "ulIndex = 1, ulModuleType = 6"
              "\r\n\r\n");
    const string said = string(GetParam().debug_console) + GetParam().debug_console;
    EXPECT_EQ(console_.Text(), debug != 0 ? said : "");
  }
}

constexpr BrokenListRow kBrokenLists[] = {
    {"NoList", 0, "\r\nddGetModuleNameByType err!, pModuleTypeArray = 0x0"},
    {"CorruptCount", 201,
     "\r\nddGetModuleNameByType err!, ulModuleTypeNum = 201, MAX_SUPPORTED_MODULE_TYPE_NUM = 200"},
};
INSTANTIATE_TEST_SUITE_P(Cli, FunctionsWithoutNames, testing::ValuesIn(kBrokenLists),
                         testing::PrintToStringParamName());

}  // namespace
