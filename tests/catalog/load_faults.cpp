// The tests that all loads of a catalog have in common; see the header.
#include "catalog/load_faults.h"

#include "support/leaks.h"
#include "support/text.h"

namespace test {

void LoadFaultsTest::ExpectFailure(const FaultyLoad& load, Faults& faults,
                                   const LoadFailure& failure) {
  EXPECT_EQ(load.run(), failure.code);
  EXPECT_EQ(console_.Text(), (ddDebugPrint != 0 ? failure.debug_console : "") + failure.console);
  load.expect(failure);
  for (void* const block : LostBlocks(faults)) {
    EXPECT_EQ(faults.blocks.at(block), load.port_size);
  }
  ExpectAndReleaseLost(faults, failure.lost);
  ExpectNoLeak(faults);
}

// ---- Memory -------------------------------------------------------------------

TEST_P(LoadFaults, ALoadAllocatesWhatItsTableHolds) {
  const auto faults = GetParam().watch(0);
  ExpectFailure(GetParam(), *faults, {0, kBoth, 0, ""});
  EXPECT_EQ(faults->allocations.count(), static_cast<int>(GetParam().allocations().size()));
  EXPECT_EQ(faults->frees, 0);
}

TEST_P(LoadFaults, OneAllocationFails) {
  const std::vector<LoadFailure>& failures = GetParam().allocations();
  for (const int32_t debug : {0, 1}) {
    for (size_t failing = 1; failing <= failures.size(); ++failing) {
      SCOPED_TRACE(failing);
      const auto faults = GetParam().watch(debug);
      faults->allocations.FailFrom(static_cast<int>(failing), 1);
      ExpectFailure(GetParam(), *faults, failures[failing - 1]);
      ExpectAllClosed(*faults);
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }
}

TEST_P(LoadFaults, NoAllocationSucceedsFromOneOn) {
  const std::vector<LoadFailure>& failures = GetParam().allocations();
  for (size_t failing = 1; failing <= failures.size(); ++failing) {
    SCOPED_TRACE(failing);
    const auto faults = GetParam().watch(0);
    faults->allocations.FailFrom(static_cast<int>(failing), FaultPlan::kForEver);
    LoadFailure failure = failures[failing - 1];
    if (failure.kept == kSecond) {
      failure.kept = kNone;
      failure.console += GetParam().also_no_record;
    }
    ExpectFailure(GetParam(), *faults, failure);
    ExpectAllClosed(*faults);
    if (HasFailure()) {
      return;
    }
  }
}

// ---- The file -----------------------------------------------------------------

// The file is small: each lookup opens it, seeks and reads once.
TEST_P(LoadFaults, LookupsOfALoad) {
  const auto faults = GetParam().watch(0);
  ExpectFailure(GetParam(), *faults, {0, kBoth, 0, ""});
  const int lookups = static_cast<int>(GetParam().lookups().size());
  EXPECT_EQ(faults->opens.count(), lookups);
  EXPECT_EQ(faults->seeks.count(), lookups);
  EXPECT_EQ(faults->reads.count(), lookups);
  EXPECT_EQ(faults->closes, lookups);
}

TEST_P(LoadFileFaults, OneLookupFails) {
  const auto& [load, fault] = GetParam();
  const std::vector<LoadFailure>& failures = load.lookups();
  for (const int32_t debug : {0, 1}) {
    for (size_t failing = 1; failing <= failures.size(); ++failing) {
      SCOPED_TRACE(failing);
      const auto faults = load.watch(debug);
      ((*faults).*fault.plan).FailFrom(static_cast<int>(failing), 1);
      LoadFailure failure = failures[failing - 1];
      failure.console = With(failure.console, "%", fault.code);
      ExpectFailure(load, *faults, failure);
      EXPECT_EQ(faults->closes, faults->opens.count() - fault.not_closed);
      if (HasFailure()) {
        return;
      }
    }
  }
}

// From a failing lookup on nothing can be read. The second's place in the list is then
// missing, which leaves it out.
TEST_P(LoadFileFaults, NoLookupSucceedsFromOneOn) {
  const auto& [load, fault] = GetParam();
  const std::vector<LoadFailure>& failures = load.lookups();
  for (size_t failing = 1; failing <= failures.size(); ++failing) {
    SCOPED_TRACE(failing);
    const auto faults = load.watch(0);
    ((*faults).*fault.plan).FailFrom(static_cast<int>(failing), FaultPlan::kForEver);
    LoadFailure failure = failures[failing - 1];
    if (failure.kept == kSecond) {
      failure.kept = kNone;
      failure.console += load.also_no_entry;
    }
    failure.console = With(failure.console, "%", fault.code);
    ExpectFailure(load, *faults, failure);
    if (HasFailure()) {
      return;
    }
  }
}

}  // namespace test
