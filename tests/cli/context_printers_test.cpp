// The printers of versions and modules: whole listings.
#include <string>

#include "cli/printer_test.h"

namespace {

using std::string;
using Printers = test::PrinterTest;

// ---- Versions --------------------------------------------------------------------

TEST_F(Printers, Versions) {
  AddVersion("KT2200V4.0");
  AddVersion("V1");
  AddVersion("");
  AddVersion("100%s");
  EXPECT_PRINTED(ddPrintVersionInformation, 0,
                 "\r\nVersion:"
                 "\r\nSupportedSoftwareVer:"
                 "\r\ngstVersionInformation.ulSupportedSoftVerNum = 4"
                 "\r\n 0. ulSupportedSoftVerLen = 11, acSupportedSoftVer = KT2200V4.0"
                 "\r\n 1. ulSupportedSoftVerLen =  3, acSupportedSoftVer = V1    "
                 "\r\n 2. ulSupportedSoftVerLen =  1, acSupportedSoftVer =       "
                 "\r\n 3. ulSupportedSoftVerLen =  6, acSupportedSoftVer = 100%s "
                 "\r\n\r\n");
}

TEST_F(Printers, AsManyVersionsAsPossible) {
  for (int i = 0; i < 30; ++i) {
    AddVersion(string(99, 'v'));
  }
  const Printed printed = Print(ddPrintVersionInformation);
  EXPECT_EQ(printed.code, 0);
  ExpectNoPause(printed);
  EXPECT_TRUE(printed.text.starts_with(
      "\r\nVersion:\r\nSupportedSoftwareVer:\r\ngstVersionInformation.ulSupportedSoftVerNum = 30"
      "\r\n 0. ulSupportedSoftVerLen = 100, acSupportedSoftVer = vvvvv"))
      << printed.text;
  EXPECT_TRUE(printed.text.ends_with(
      "\r\n29. ulSupportedSoftVerLen = 100, acSupportedSoftVer = " + string(99, 'v') + "\r\n\r\n"))
      << printed.text;
}

TEST_F(Printers, NoVersions) {
  EXPECT_PRINTED(ddPrintVersionInformation, 0,
                 "\r\nVersion:\r\nSupportedSoftwareVer:"
                 "\r\ngstVersionInformation.ulSupportedSoftVerNum = 0\r\n\r\n");
}

TEST_F(Printers, CorruptVersionCount) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstVersionInformation.ulSupportedSoftVerNum = 31;
    EXPECT_PRINTED(ddPrintVersionInformation, -30,
                   "\r\nddPrintVersionInformation err! ulSupportedSoftVerNum = 31, "
                   "MAX_SUPPORTED_SOFT_VER_NUM = 30");
    gstVersionInformation.ulSupportedSoftVerNum = 0xffffffff;
    EXPECT_PRINTED(ddPrintVersionInformation, -30,
                   "\r\nddPrintVersionInformation err! ulSupportedSoftVerNum = -1, "
                   "MAX_SUPPORTED_SOFT_VER_NUM = 30");
  }
}

// ---- Modules ---------------------------------------------------------------------

TEST_F(Printers, Modules) {
  AddModule(1, "OMCI", 64);
  AddModule(123, "OPTICAL_MONITOR", 0);
  AddPlace(nullptr);
  AddModule(0xffffffff, "", 300);
  EXPECT_PRINTED(ddPrintAllModuleInformation, 0,
                 "\r\nModuleTypeList:"
                 "\r\ngstModuleTypeList.ulModuleTypeNum = 4"
                 "\r\n 0. ModuleType =  1, ulNameLen =  5, acName = OMCI         , ulSize = 64"
                 "\r\n 1. ModuleType = 123, ulNameLen = 16, acName = OPTICAL_MONITOR, ulSize = 0"
                 "\r\n 3. ModuleType = -1, ulNameLen =  1, acName =              , ulSize = 300"
                 "\r\n\r\n");
}

TEST_F(Printers, AsManyModulesAsPossible) {
  for (uint32_t i = 0; i < 200; ++i) {
    AddModule(i, string(59, 'n'), i);
  }
  const Printed printed = Print(ddPrintAllModuleInformation);
  EXPECT_EQ(printed.code, 0);
  ExpectNoPause(printed);
  EXPECT_TRUE(printed.text.ends_with("\r\n199. ModuleType = 199, ulNameLen = 60, acName = " +
                                     string(59, 'n') + ", ulSize = 199\r\n\r\n"))
      << printed.text;
}

TEST_F(Printers, OnlyEmptyPlaces) {
  AddPlace(nullptr);
  AddPlace(nullptr);
  EXPECT_PRINTED(ddPrintAllModuleInformation, 0,
                 "\r\nModuleTypeList:\r\ngstModuleTypeList.ulModuleTypeNum = 2\r\n\r\n");
}

TEST_F(Printers, NoModules) {
  constexpr char kEmpty[] = "\r\nModuleTypeList:\r\ngstModuleTypeList.ulModuleTypeNum = 0\r\n\r\n";
  EXPECT_PRINTED(ddPrintAllModuleInformation, 0, kEmpty);
  gstModuleTypeList = {0, places_};  // all announced modules were left out
  EXPECT_PRINTED(ddPrintAllModuleInformation, 0, kEmpty);
}

TEST_F(Printers, CorruptModuleCount) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstModuleTypeList = {201, places_};
    EXPECT_PRINTED(ddPrintAllModuleInformation, -28,
                   "\r\nddPrintAllModuleInformation err! ulModuleTypeNum = 201");
    gstModuleTypeList = {201, nullptr};
    EXPECT_PRINTED(ddPrintAllModuleInformation, -28,
                   "\r\nddPrintAllModuleInformation err! ulModuleTypeNum = 201");
    gstModuleTypeList = {0xffffffff, places_};
    EXPECT_PRINTED(ddPrintAllModuleInformation, -28,
                   "\r\nddPrintAllModuleInformation err! ulModuleTypeNum = -1");
  }
}

TEST_F(Printers, ModulesWithoutTheirList) {
  for (const uint32_t count : {1u, 200u}) {
    gstModuleTypeList = {count, nullptr};
    EXPECT_PRINTED(ddPrintAllModuleInformation, -10,
                   "\r\nddPrintAllModuleInformation err!, pModuleTypeArray = 0x0");
  }
}

}  // namespace
