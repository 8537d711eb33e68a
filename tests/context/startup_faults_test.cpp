// Start-up when a file fails: at every open, seek and read of a whole start, once and
// for ever.
#include <string>

#include "context/device_file.h"
#include "context/start_outcome.h"
#include "context/startup_lookups.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"
#include "support/tables.h"
#include "support/text.h"

namespace {

using std::string;
using test::Counts;
using test::DeviceFile;
using test::FakePlatform;
using test::FaultPlan;
using test::FileFault;
using test::kEverything;
using test::kReadFails;
using test::kSeekFails;
using test::Lookup;
using test::Lookups;
using test::Outcome;

// The words of a failure go to the caught console as well. So the sweeps stop at
// the first one: each further round would repeat those of all rounds before.
class StartupFaults : public test::LibraryTest {
 protected:
  // Starts, and expects what comes of lookups that fail with `code`.
  static void ExpectStart(const Outcome& outcome, int32_t code, test::Faults& faults) {
    EXPECT_EQ(ddInit(), outcome.code == test::kOwnCode ? code : outcome.code);
    EXPECT_EQ(Counts::OfTheTables(), outcome.loaded);
    test::ExpectAndReleaseLost(faults, outcome.lost);
    test::ExpectNoLeak(faults);
    test::ResetTables();
  }
  // Starts, and expects what the failure of `lookup` with `code` leads to.
  void ExpectFailureOf(const Lookup& lookup, int32_t code, test::Faults& faults) {
    const bool debug = ddDebugPrint != 0;
    ExpectStart(lookup.once, code, faults);
    EXPECT_EQ(console_.Text(),
              test::With(test::Said(lookup.console, debug), "%", std::to_string(code)));
    EXPECT_EQ(FakePlatform::TakeLog(), test::optical::WithCode(lookup.log, std::to_string(code)));
  }

  test::Console console_;
};

TEST_F(StartupFaults, AStartMakesTheseLookups) {
  DeviceFile device;
  EXPECT_EQ(ddInit(), 0);
  EXPECT_EQ(Counts::OfTheTables(), kEverything);
  EXPECT_EQ(device.faults.opens.count(), static_cast<int>(Lookups().size()));
}

TEST_F(StartupFaults, OneOpenFails) {
  for (const int32_t debug : {0, 1}) {
    for (size_t failing = 1; failing <= Lookups().size(); ++failing) {
      SCOPED_TRACE(failing);
      ddDebugPrint = debug;
      DeviceFile device;
      device.faults.opens.FailFrom(static_cast<int>(failing), 1);
      ExpectFailureOf(Lookups()[failing - 1], -10, device.faults);
      EXPECT_EQ(device.faults.closes, device.faults.opens.count() - 1);
      if (HasFailure()) {
        return;
      }
    }
  }
}

// What comes of it if no lookup behind the first `lookups` succeeds.
Outcome After(size_t lookups) {
  return lookups < Lookups().size() ? Lookups()[lookups].for_ever : Outcome{0, kEverything};
}

// How many calls of a kind a start makes in its first `lookups` lookups.
int CallsOf(size_t lookups, FaultPlan test::Faults::*kind) {
  DeviceFile device;
  device.faults.opens.FailFrom(static_cast<int>(lookups + 1), FaultPlan::kForEver);
  ddInit();
  test::ExpectAndReleaseLost(device.faults, After(lookups).lost);
  test::ResetTables();
  FakePlatform::TakeLog();
  return (device.faults.*kind).count();
}

// Calls on an open file. Each lookup reads; one that begins behind the file's start seeks
// its place, too.
class StartupCalls : public StartupFaults, public testing::WithParamInterface<FileFault> {};
INSTANTIATE_TEST_SUITE_P(Startup, StartupCalls, testing::Values(kReadFails, kSeekFails),
                         testing::PrintToStringParamName());

TEST_P(StartupCalls, OneFails) {
  int failing = 0;
  for (size_t number = 1; number <= Lookups().size(); ++number) {
    const int calls = CallsOf(number, GetParam().plan);
    console_.Text();
    if (GetParam().plan == &test::Faults::reads) {
      ASSERT_GT(calls, failing);
    }
    while (failing < calls) {
      SCOPED_TRACE(++failing);
      for (const int32_t debug : {0, 1}) {
        ddDebugPrint = debug;
        DeviceFile device;
        (device.faults.*GetParam().plan).FailFrom(failing, 1);
        ExpectFailureOf(Lookups()[number - 1], -12, device.faults);
        EXPECT_EQ(device.faults.closes, device.faults.opens.count());
        if (HasFailure()) {
          return;
        }
      }
    }
  }
  EXPECT_GT(failing, 0);
}

TEST_F(StartupFaults, NoOpenSucceedsFromOneOn) {
  for (size_t failing = 1; failing <= Lookups().size() + 1; ++failing) {
    SCOPED_TRACE(failing);
    DeviceFile device;
    device.faults.opens.FailFrom(static_cast<int>(failing), FaultPlan::kForEver);
    ExpectStart(After(failing - 1), -10, device.faults);
    EXPECT_EQ(device.faults.closes, static_cast<int>(failing) - 1);
    if (HasFailure()) {
      return;
    }
  }
}

TEST_F(StartupFaults, NoReadSucceedsFromOneOn) {
  int failing = 0;
  for (size_t number = 1; number <= Lookups().size(); ++number) {
    const int reads = CallsOf(number, &test::Faults::reads);
    while (failing < reads) {
      SCOPED_TRACE(++failing);
      DeviceFile device;
      device.faults.reads.FailFrom(failing, FaultPlan::kForEver);
      ExpectStart(After(number - 1), -12, device.faults);
      EXPECT_EQ(device.faults.closes, device.faults.opens.count());
      if (HasFailure()) {
        return;
      }
    }
  }
}

}  // namespace
