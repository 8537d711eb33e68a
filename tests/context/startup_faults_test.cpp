// Start-up when the file fails: at every open and read of a whole start, once
// and for ever.
#include <string>
#include <vector>

#include "context/device_file.h"
#include "context/leaks.h"
#include "support/tables.h"

namespace {

using std::string;
using test::DeviceFile;
using test::FaultPlan;

// One lookup of a start on the complete file, and what comes of it if it alone
// fails with the code that stands for the "%".
struct Lookup {
  int32_t code;
  uint32_t versions;
  uint32_t modules;
  uint32_t functions;
  string console;
  string debug_console;  // before `console`, under the debug switch
};

constexpr char kEntryFailed[] =
    "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S";
constexpr char kDriverSuffix[] =
    " err! iResult = -31, strDeviceDefFilePath = /mnt/work/device_definition.ini"
    "\r\nddReadContextFile->ddParseContextFile err! iResult = -31"
    "ddInit initialize......failed!\r\n";

string NoEntry(const string& number) {
  return "\r\nddReadAllModuleInformation err! iResult = %, section = ModuleTypeList, key = Module" +
         number;
}
string NoType(const string& number) {
  return "\r\nddReadOneModuleInformation err! iResult = %, strSectionFrameNameBuf = S" + number +
         ", Key = Type" + kEntryFailed + number;
}
string NoKey(const string& number, const string& key) {
  return "\r\nddReadOneModuleInformation err! iResult = %, section = S" + number +
         ", key = " + key + kEntryFailed + number;
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

const std::vector<Lookup>& Lookups() {
  static const std::vector<Lookup> lookups = {
      {-31, 0, 0, 0,
       string("\r\nddReadVersionInformation err! iResult = %, section = Version, key = Version"
              "\r\nddParseContextFile->ddReadVersionInformation") +
           kDriverSuffix,
       ""},
      {-31, 2, 0, 0,
       string("\r\nddReadAllModuleInformation err! iResult = %, section = ModuleTypeList, key = "
              "ModuleNum"
              "\r\nddParseContextFile->ddReadAllModuleInformation") +
           kDriverSuffix,
       ""},
      {0, 2, 1, 1, NoEntry("1"), NoModule("OMCI")},
      {0, 2, 1, 1, NoType("1"), NoModule("OMCI")},
      {0, 2, 1, 1, NoKey("1", "Name"), NoModule("OMCI")},
      {0, 2, 1, 1, NoKey("1", "Size"), NoModule("OMCI")},
      {0, 2, 1, 1, NoEntry("2"), NoModule("VLAN")},
      {0, 2, 1, 1, NoType("2"), NoModule("VLAN")},
      {0, 2, 1, 1, NoKey("2", "Name"), NoModule("VLAN")},
      {0, 2, 1, 1, NoKey("2", "Size"), NoModule("VLAN")},
      {-31, 2, 2, 0,
       string("\r\nddParseContextFile->ddReadSysSupportFuncInformation") + kDriverSuffix,
       "\r\nddReadSysSupportFuncInformation err! iResult = %, section = SupportedSysFunctionType, "
       "key = SupportedSysFunctionTypeNum"},
      {0, 2, 2, 1, "", NoFunction("1")},
      {0, 2, 2, 1, "", NoFunction("2")},
  };
  return lookups;
}

// The words of a failure go to the caught console as well. So the sweeps stop at
// the first one: each further round would repeat those of all rounds before.
class StartupFaults : public test::LibraryTest {
 protected:
  // Starts, and expects what the failure of `lookup` with `code` leads to.
  void ExpectFailureOf(const Lookup& lookup, const string& code, const test::Faults& faults) {
    EXPECT_EQ(ddInit(), lookup.code);
    string expected = lookup.console;
    if (ddDebugPrint != 0) {
      // The function list comes after the modules and before the driver's words.
      expected =
          lookup.code != 0 ? lookup.debug_console + expected : expected + lookup.debug_console;
    }
    if (const size_t place = expected.find('%'); place != string::npos) {
      expected.replace(place, 1, code);
    }
    EXPECT_EQ(console_.Text(), expected);
    EXPECT_EQ(gstVersionInformation.ulSupportedSoftVerNum, lookup.versions);
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, lookup.modules);
    EXPECT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, lookup.functions);
    EXPECT_LE(faults.closes, faults.opens.count());
    test::ExpectNoLeak(faults);
    test::ResetTables();
  }

  test::Console console_;
};

TEST_F(StartupFaults, OneOpenFails) {
  for (const int32_t debug : {0, 1}) {
    for (size_t failing = 1; failing <= Lookups().size(); ++failing) {
      SCOPED_TRACE(failing);
      ddDebugPrint = debug;
      DeviceFile device;
      device.faults.opens.FailFrom(static_cast<int>(failing), 1);
      ExpectFailureOf(Lookups()[failing - 1], "-10", device.faults);
      EXPECT_EQ(device.faults.closes, device.faults.opens.count() - 1);
      if (HasFailure()) {
        return;
      }
    }
  }
}

// How many reads a start makes in its first `lookups` lookups.
int ReadsOf(size_t lookups) {
  DeviceFile device;
  device.faults.opens.FailFrom(static_cast<int>(lookups + 1), FaultPlan::kForEver);
  ddInit();
  test::ResetTables();
  return device.faults.reads.count();
}

TEST_F(StartupFaults, OneReadFails) {
  int failing = 0;
  for (size_t number = 1; number <= Lookups().size(); ++number) {
    const int reads = ReadsOf(number);
    console_.Text();
    ASSERT_GT(reads, failing);
    while (failing < reads) {
      SCOPED_TRACE(++failing);
      for (const int32_t debug : {0, 1}) {
        ddDebugPrint = debug;
        DeviceFile device;
        device.faults.reads.FailFrom(failing, 1);
        ExpectFailureOf(Lookups()[number - 1], "-12", device.faults);
        EXPECT_EQ(device.faults.closes, device.faults.opens.count());
        if (HasFailure()) {
          return;
        }
      }
    }
  }
}

// From a failing lookup on nothing can be read: what is loaded until then
// stays, and the step that cannot do without fails.
struct Rest {
  int32_t code;
  uint32_t modules;
  uint32_t functions;
};

Rest AfterLookup(size_t failing) {
  if (failing <= 2) {
    return {-31, 0, 0};
  }
  if (failing <= 11) {
    return {-31, failing <= 6 ? 0u : failing <= 10 ? 1u : 2u, 0};
  }
  return {0, 2, static_cast<uint32_t>(failing - 12)};
}

TEST_F(StartupFaults, NoOpenSucceedsFromOneOn) {
  for (size_t failing = 1; failing <= Lookups().size() + 1; ++failing) {
    SCOPED_TRACE(failing);
    DeviceFile device;
    device.faults.opens.FailFrom(static_cast<int>(failing), FaultPlan::kForEver);
    const Rest rest = AfterLookup(failing);
    EXPECT_EQ(ddInit(), rest.code);
    EXPECT_EQ(gstVersionInformation.ulSupportedSoftVerNum, failing == 1 ? 0u : 2u);
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, rest.modules);
    EXPECT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, rest.functions);
    EXPECT_EQ(device.faults.closes, static_cast<int>(failing) - 1);
    test::ExpectNoLeak(device.faults);
    if (HasFailure()) {
      return;
    }
    test::ResetTables();
  }
}

TEST_F(StartupFaults, NoReadSucceedsFromOneOn) {
  int failing = 0;
  for (size_t number = 1; number <= Lookups().size(); ++number) {
    const int reads = ReadsOf(number);
    while (failing < reads) {
      SCOPED_TRACE(++failing);
      DeviceFile device;
      device.faults.reads.FailFrom(failing, FaultPlan::kForEver);
      const Rest rest = AfterLookup(number);
      EXPECT_EQ(ddInit(), rest.code);
      EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, rest.modules);
      EXPECT_EQ(gstSysSupportFuncType.ulSupportedSysFunctionTypeNum, rest.functions);
      EXPECT_EQ(device.faults.closes, device.faults.opens.count());
      test::ExpectNoLeak(device.faults);
      if (HasFailure()) {
        return;
      }
      test::ResetTables();
    }
  }
}

}  // namespace
