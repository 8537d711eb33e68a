// At every allocation and at every lookup of a load: what is kept, and what is said.
#include "catalog/port_type_faults.h"

#include "support/leaks.h"
#include "support/text.h"

namespace test {

using std::string;

constexpr int kAllocations = 1 + 3;  // the array, and three records

string PortTypeFaults::NoRecord(int number) {
  return With(GetParam().no_record, "{n}", std::to_string(number));
}

// What the loader prints when the lookup number `lookup` (from 1) answers `code`.
string PortTypeFaults::LookupFailure(int lookup, const string& code) {
  if (lookup == 1) {
    return With(GetParam().number_unreadable, "{code}", code);
  }
  const int number = (lookup - 2) / LookupsPerEntry() + 1;
  const int step = (lookup - 2) % LookupsPerEntry();
  return With(With(GetParam().entry_failed.at(static_cast<size_t>(step)), "{code}", code), "{n}",
              std::to_string(number));
}

// The table holds these types and, behind them, empty places up to the third.
void PortTypeFaults::ExpectTypes(std::initializer_list<uint32_t> types) {
  ASSERT_EQ(*GetParam().count, types.size());
  std::visit(
      [&](auto* array) {
        const auto places = *array;
        ASSERT_NE(places, nullptr);
        size_t place = 0;
        for (const uint32_t type : types) {
          ASSERT_NE(places[place], nullptr) << place;
          EXPECT_EQ(places[place]->ulPortType, type) << place;
          ++place;
        }
        for (; place < 3; ++place) {
          EXPECT_EQ(places[place], nullptr) << place;
        }
      },
      GetParam().types);
}

TEST_P(PortTypeFaults, ALoadTakesMemoryForTheArrayAndItsRecords) {
  Faults faults;
  EXPECT_EQ(GetParam().read_all(file_.path()), 0);
  EXPECT_EQ(faults.allocations.count(), kAllocations);
  EXPECT_EQ(faults.frees, 0);
  EXPECT_EQ(faults.opens.count(), Lookups());
  EXPECT_EQ(faults.reads.count(), Lookups());
  EXPECT_EQ(faults.closes, Lookups());
  ExpectTypes({1, 2, 3});
  ExpectNoLeak(faults);
}

TEST_P(PortTypeFaults, NoMemoryForTheArray) {
  std::visit(
      [&]<typename Record>(Record*** types) {
        Record* place = nullptr;
        for (const int32_t debug : {0, 1}) {
          for (const int calls : {1, FaultPlan::kForEver}) {
            ddDebugPrint = debug;
            *GetParam().count = 9;
            *types = &place;
            Faults faults;
            faults.allocations.FailFrom(1, calls);
            EXPECT_EQ(GetParam().read_all(file_.path()), -27);
            EXPECT_EQ(*GetParam().count, 0u);
            EXPECT_EQ(*types, nullptr);
            *types = nullptr;
            EXPECT_EQ(console_.Text(), GetParam().no_array);
            EXPECT_EQ(faults.opens.count(), 1);  // the number; no entry is read
            EXPECT_TRUE(faults.blocks.empty());
          }
        }
      },
      GetParam().types);
}

TEST_P(PortTypeFaults, NoMemoryForOneRecord) {
  const std::initializer_list<uint32_t> kept[] = {{2, 3}, {1, 3}, {1, 2}};
  for (int failing = 1; failing <= 3; ++failing) {
    Faults faults;
    faults.allocations.FailFrom(failing + 1, 1);
    EXPECT_EQ(GetParam().read_all(file_.path()), 0);
    EXPECT_EQ(console_.Text(), NoRecord(failing));
    ExpectTypes(kept[failing - 1]);
    ExpectNoLeak(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    ResetTables();
  }
}

TEST_P(PortTypeFaults, NoMemoryFromARecordOn) {
  const std::initializer_list<uint32_t> kept[] = {{}, {1}, {1, 2}};
  for (int failing = 1; failing <= 3; ++failing) {
    Faults faults;
    faults.allocations.FailFrom(failing + 1, FaultPlan::kForEver);
    EXPECT_EQ(GetParam().read_all(file_.path()), 0);
    string expected;
    for (int number = failing; number <= 3; ++number) {
      expected += NoRecord(number);
    }
    EXPECT_EQ(console_.Text(), expected);
    ExpectTypes(kept[failing - 1]);
    ExpectNoLeak(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    ResetTables();
  }
}

void PortTypeFaults::LoadWithAFailingLookup(int failing, FaultPlan Faults::*calls,
                                            const string& code) {
  const std::initializer_list<uint32_t> kept[] = {{2, 3}, {1, 3}, {1, 2}};
  Faults faults;
  (faults.*calls).FailFrom(failing, 1);
  EXPECT_EQ(GetParam().read_all(file_.path()), failing == 1 ? -31 : 0);
  EXPECT_EQ(console_.Text(), LookupFailure(failing, code));
  if (failing == 1) {
    EXPECT_EQ(*GetParam().count, 0u);
    EXPECT_EQ(faults.allocations.count(), 0);
  } else {
    ExpectTypes(kept[(failing - 2) / LookupsPerEntry()]);
  }
  ExpectNoLeak(faults);
  EXPECT_EQ(faults.closes, faults.opens.count() - (calls == &Faults::opens ? 1 : 0));
}

TEST_P(PortTypeFaults, OneLookupCannotOpenTheFile) {
  for (int failing = 1; failing <= Lookups() && !HasFailure(); ++failing) {
    SCOPED_TRACE(failing);
    ResetTables();
    LoadWithAFailingLookup(failing, &Faults::opens, "-10");
  }
}

TEST_P(PortTypeFaults, OneLookupCannotReadTheFile) {
  for (int failing = 1; failing <= Lookups() && !HasFailure(); ++failing) {
    SCOPED_TRACE(failing);
    ResetTables();
    LoadWithAFailingLookup(failing, &Faults::reads, "-12");
  }
}

// From a lookup on, nothing can be read: every entry left fails by its own key.
TEST_P(PortTypeFaults, TheFileGoesAwayDuringALoad) {
  const std::initializer_list<uint32_t> kept[] = {{}, {1}, {1, 2}};
  for (int gone = 1; gone <= 3 && !HasFailure(); ++gone) {
    ResetTables();
    Faults faults;
    faults.opens.FailFrom(2 + (gone - 1) * LookupsPerEntry(), FaultPlan::kForEver);
    EXPECT_EQ(GetParam().read_all(file_.path()), 0);
    string expected;
    for (int number = gone; number <= 3; ++number) {
      expected += LookupFailure(2 + (number - 1) * LookupsPerEntry(), "-10");
    }
    EXPECT_EQ(console_.Text(), expected);
    ExpectTypes(kept[gone - 1]);
    ExpectNoLeak(faults);
  }
}

}  // namespace test
