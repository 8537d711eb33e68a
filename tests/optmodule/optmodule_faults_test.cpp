// Loading optical modules when memory runs out or the file fails: at every allocation and
// every lookup, one at a time and all from one on.
#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

#include "optmodule/optmodule_files.h"
#include "support/leaks.h"
#include "support/optmodule_messages.h"

namespace {

using std::string;
using test::FakePlatform;
using test::FaultPlan;
using test::FileFault;
using test::ModuleFaults;
using test::Names;
using test::OptModule;
using test::optical::kNoMemoryForList;
using test::optical::kNoMemoryForModule;
using test::optical::kNoMemoryForPath;
using test::optical::Left;
using test::optical::NoCount;
using test::optical::NoEntry;
using test::optical::NoMemoryForPaths;
using test::optical::NoNumber;
using test::optical::NoPath;
using test::optical::NoSection;
using test::optical::PathNotRead;

string TwoModules() {
  return test::ModuleList({"A", "B"}) +
         test::ModuleSection("A", "1", "11", "3", {"1,2,3,4", "5,6,7,8"}) +
         test::ModuleSection("B", "2", "12", "4", {"-1,-2,-3,-4"});
}
const OptModule kA = {1, 11, 3, {{1, 2, 3, 4}, {5, 6, 7, 8}}};
const OptModule kB = {2, 12, 4, {{-1, -2, -3, -4}}};

using Modules = std::vector<OptModule>;
const Modules kNone = {};
const Modules kOnlyA = {kA};
const Modules kOnlyB = {kB};

// What comes of one step of the load, if it alone fails. In the messages of lookups "%"
// stands for the code of the one that failed.
struct LoadFailure {
  int32_t code;
  size_t announced;
  Modules kept;
  Names log;
};

// ---- A module by itself -----------------------------------------------------------

struct ModuleFailure {
  int32_t code;
  Names log;
};

const ModuleFailure kAllocationsOfA[] = {
    {-22, {kNoMemoryForModule}},
    {-22, {NoMemoryForPaths("2")}},
    {-7, {kNoMemoryForPath, PathNotRead("-22", "1,2,3,4")}},
    {-7, {kNoMemoryForPath, PathNotRead("-22", "5,6,7,8")}},
};

class OptModuleFaults : public test::OptModuleTest {};

TEST_F(OptModuleFaults, AllocationsOfAModule) {
  int failing = 0;
  for (const ModuleFailure& failure : kAllocationsOfA) {
    SCOPED_TRACE(++failing);
    Twice([&](int32_t debug) {
      ModuleFaults faults(TwoModules(), debug);
      faults.allocations.FailFrom(failing, 1);
      OptModuleInfo old = {};
      OptModuleInfo* module = &old;
      EXPECT_EQ(optmodule_oneinfo_read(ModuleFaults::kPath, "A", 0, &module), failure.code);
      EXPECT_EQ(module, nullptr);
      EXPECT_EQ(faults.blocks.size(), 0u);
      EXPECT_EQ(FakePlatform::TakeLog(), failure.log);
    });
  }
}

// ---- The list ---------------------------------------------------------------------

const LoadFailure kAllocations[] = {
    {-22, 0, kNone, {kNoMemoryForList}},
    {0, 2, kOnlyB, {kNoMemoryForModule, Left("-22", "A")}},
    {0, 2, kOnlyB, {NoMemoryForPaths("2"), Left("-22", "A")}},
    {0, 2, kOnlyB, {kNoMemoryForPath, PathNotRead("-22", "1,2,3,4"), Left("-7", "A")}},
    {0, 2, kOnlyB, {kNoMemoryForPath, PathNotRead("-22", "5,6,7,8"), Left("-7", "A")}},
    {0, 2, kOnlyA, {kNoMemoryForModule, Left("-22", "B")}},
    {0, 2, kOnlyA, {NoMemoryForPaths("1"), Left("-22", "B")}},
    {0, 2, kOnlyA, {kNoMemoryForPath, PathNotRead("-22", "-1,-2,-3,-4"), Left("-7", "B")}},
};

const LoadFailure kLookups[] = {
    {-1, 0, kNone, {NoCount("%")}},
    {0, 2, kOnlyB, {NoEntry("%", "1")}},
    {0, 2, kOnlyB, {NoSection("%", "A")}},
    {0, 2, kOnlyB, {NoNumber("%", "A", "PortKind"), Left("-1", "A")}},
    {0, 2, kOnlyB, {NoNumber("%", "A", "PortType"), Left("-2", "A")}},
    {0, 2, kOnlyB, {NoNumber("%", "A", "PhyType"), Left("-3", "A")}},
    {0, 2, kOnlyB, {NoNumber("%", "A", "PathNum"), Left("-4", "A")}},
    {0, 2, kOnlyB, {NoPath("%", "A", "Path1"), Left("-6", "A")}},
    {0, 2, kOnlyB, {NoPath("%", "A", "Path2"), Left("-6", "A")}},
    {0, 2, kOnlyA, {NoEntry("%", "2")}},
    {0, 2, kOnlyA, {NoSection("%", "B")}},
    {0, 2, kOnlyA, {NoNumber("%", "B", "PortKind"), Left("-1", "B")}},
    {0, 2, kOnlyA, {NoNumber("%", "B", "PortType"), Left("-2", "B")}},
    {0, 2, kOnlyA, {NoNumber("%", "B", "PhyType"), Left("-3", "B")}},
    {0, 2, kOnlyA, {NoNumber("%", "B", "PathNum"), Left("-4", "B")}},
    {0, 2, kOnlyA, {NoPath("%", "B", "Path1"), Left("-6", "B")}},
};

class OptModuleFaultsTest : public test::OptModuleTest {
 protected:
  // Loads, and expects what that leads to.
  void ExpectFailure(ModuleFaults& faults, const LoadFailure& failure, const char* code = "") {
    EXPECT_EQ(optmodule_infolist_read(ModuleFaults::kPath), failure.code);
    EXPECT_EQ(FakePlatform::TakeLog(), test::optical::WithCode(failure.log, code));
    test::ExpectModules(faults, failure.announced, failure.kept);
    test::ExpectNoLeak(faults);
  }

  // The second module is not to be had either, for the reason that this message gives.
  static LoadFailure NorTheSecond(LoadFailure failure, const Names& reason) {
    if (failure.kept.size() == 1 && failure.kept[0].kind == kB.kind) {
      failure.kept = {};
      failure.log.insert(failure.log.end(), reason.begin(), reason.end());
    }
    return failure;
  }
};

// ---- Memory -------------------------------------------------------------------

TEST_F(OptModuleFaultsTest, ALoadAllocatesWhatItsListHolds) {
  ModuleFaults faults(TwoModules());
  ExpectFailure(faults, {0, 2, {kA, kB}, {}});
  EXPECT_EQ(faults.allocations.count(), static_cast<int>(std::size(kAllocations)));
  EXPECT_EQ(faults.frees, 0);
  test::ExpectAllClosed(faults);
}

TEST_F(OptModuleFaultsTest, OneAllocationFails) {
  for (size_t failing = 1; failing <= std::size(kAllocations); ++failing) {
    SCOPED_TRACE(failing);
    Twice([&](int32_t debug) {
      ModuleFaults faults(TwoModules(), debug);
      faults.allocations.FailFrom(static_cast<int>(failing), 1);
      ExpectFailure(faults, kAllocations[failing - 1]);
      test::ExpectAllClosed(faults);
    });
  }
}

TEST_F(OptModuleFaultsTest, NoAllocationSucceedsFromOneOn) {
  for (size_t failing = 1; failing <= std::size(kAllocations); ++failing) {
    SCOPED_TRACE(failing);
    ModuleFaults faults(TwoModules());
    faults.allocations.FailFrom(static_cast<int>(failing), FaultPlan::kForEver);
    ExpectFailure(faults,
                  NorTheSecond(kAllocations[failing - 1], {kNoMemoryForModule, Left("-22", "B")}));
    test::ExpectAllClosed(faults);
  }
}

// ---- The file -----------------------------------------------------------------

// The file is small: each lookup opens it, seeks and reads once.
TEST_F(OptModuleFaultsTest, LookupsOfALoad) {
  ModuleFaults faults(TwoModules());
  ExpectFailure(faults, {0, 2, {kA, kB}, {}});
  const int lookups = static_cast<int>(std::size(kLookups));
  EXPECT_EQ(faults.opens.count(), lookups);
  EXPECT_EQ(faults.seeks.count(), lookups);
  EXPECT_EQ(faults.reads.count(), lookups);
  EXPECT_EQ(faults.closes, lookups);
}

class OptModuleFileFaults : public OptModuleFaultsTest,
                            public testing::WithParamInterface<FileFault> {};

TEST_P(OptModuleFileFaults, OneLookupFails) {
  for (size_t failing = 1; failing <= std::size(kLookups); ++failing) {
    SCOPED_TRACE(failing);
    Twice([&](int32_t debug) {
      ModuleFaults faults(TwoModules(), debug);
      (faults.*GetParam().plan).FailFrom(static_cast<int>(failing), 1);
      ExpectFailure(faults, kLookups[failing - 1], GetParam().code);
      EXPECT_EQ(faults.closes, faults.opens.count() - GetParam().not_closed);
    });
  }
}

TEST_P(OptModuleFileFaults, NoLookupSucceedsFromOneOn) {
  for (size_t failing = 1; failing <= std::size(kLookups); ++failing) {
    SCOPED_TRACE(failing);
    ModuleFaults faults(TwoModules());
    (faults.*GetParam().plan).FailFrom(static_cast<int>(failing), FaultPlan::kForEver);
    ExpectFailure(faults, NorTheSecond(kLookups[failing - 1], {NoEntry("%", "2")}),
                  GetParam().code);
  }
}

INSTANTIATE_TEST_SUITE_P(Load, OptModuleFileFaults,
                         testing::Values(test::kOpenFails, test::kSeekFails, test::kReadFails),
                         testing::PrintToStringParamName());

}  // namespace
