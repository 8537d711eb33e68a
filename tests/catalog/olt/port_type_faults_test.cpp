// The OLT port types when memory runs out or the file cannot be had: at every
// allocation and at every lookup of a load.
#include <string>

#include "catalog/olt/port_types.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/leaks.h"

namespace {

using std::string;
using test::PortTypeSection;

constexpr int kAllocations = 1 + 3;  // the array, and three records
constexpr int kLookups = 1 + 3 * 4;  // the number; each entry and its three keys

string LeftOut(const string& code, int number) {
  return "\r\nddReadAllSupportedOltPortInformation->ddReadOneSupportedOltPortInformation err! "
         "iResult = " +
         code + ", strValueBuf = S" + std::to_string(number);
}

string NoRecord(int number) {
  return "\r\nddReadOneSupportedOltPortInformation->malloc err! pstOltPortInformation = 0x0" +
         LeftOut("-27", number);
}

// What the loader prints when the lookup number `lookup` (from 1) answers `code`.
string LookupFailure(int lookup, const string& code) {
  const string all = "\r\nddReadAllSupportedOltPortInformation err! iResult = " + code;
  const string one = "\r\nddReadOneSupportedOltPortInformation err! iResult = " + code;
  if (lookup == 1) {
    return all + ", section = SupportedOltPortType, key = SupportedOltPortTypeNum";
  }
  const int number = (lookup - 2) / 4 + 1;
  const string n = std::to_string(number);
  switch ((lookup - 2) % 4) {
    case 0:
      return all + ", section = SupportedOltPortType, key = SupportedOltPortType" + n;
    case 1:
      return one + ", strSectionFrameNameBuf = S" + n + ", Key = Type" + LeftOut("-31", number);
    case 2:
      return one + ", section = S" + n + ", key = Name" + LeftOut("-31", number);
    default:
      return one + ", section = S" + n + ", key = SplittingRatio" + LeftOut("-31", number);
  }
}

class PortTypeFaults : public test::LibraryTest {
 protected:
  void ExpectTypes(std::initializer_list<uint32_t> types);
  void LoadWithAFailingLookup(int failing, test::FaultPlan test::Faults::*calls,
                              const string& code);

  test::DefinitionFile file_{test::ThreePortTypes(PortTypeSection("S1", "1", "N1", "10") +
                                                  PortTypeSection("S2", "2", "N2", "20") +
                                                  PortTypeSection("S3", "3", "N3", "30"))};
  test::Console console_;
};

// The table holds these types and, behind them, empty places up to the third.
void PortTypeFaults::ExpectTypes(std::initializer_list<uint32_t> types) {
  OltPortInformation** const places = gstSupportedOltPortType.pOltPortTypeArray;
  ASSERT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, types.size());
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
}

TEST_F(PortTypeFaults, ALoadTakesMemoryForTheArrayAndItsRecords) {
  test::Faults faults;
  EXPECT_EQ(ddReadAllSupportedOltPortInformation(file_.path()), 0);
  EXPECT_EQ(faults.allocations.count(), kAllocations);
  EXPECT_EQ(faults.frees, 0);
  EXPECT_EQ(faults.opens.count(), kLookups);
  EXPECT_EQ(faults.reads.count(), kLookups);
  EXPECT_EQ(faults.closes, kLookups);
  ExpectTypes({1, 2, 3});
  test::ExpectNoLeak(faults);
}

TEST_F(PortTypeFaults, NoMemoryForTheArray) {
  OltPortInformation* place = nullptr;
  for (const int32_t debug : {0, 1}) {
    for (const int calls : {1, test::FaultPlan::kForEver}) {
      ddDebugPrint = debug;
      gstSupportedOltPortType = {9, &place};
      test::Faults faults;
      faults.allocations.FailFrom(1, calls);
      EXPECT_EQ(ddReadAllSupportedOltPortInformation(file_.path()), -27);
      EXPECT_EQ(console_.Text(),
                "\r\nddReadAllSupportedOltPortInformation->malloc err! pOltPortTypeArray = 0x0");
      EXPECT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, 0u);
      EXPECT_EQ(gstSupportedOltPortType.pOltPortTypeArray, nullptr);
      gstSupportedOltPortType = {};
      EXPECT_EQ(faults.opens.count(), 1);  // the number; no entry is read
      EXPECT_TRUE(faults.blocks.empty());
    }
  }
}

TEST_F(PortTypeFaults, NoMemoryForOneRecord) {
  const std::initializer_list<uint32_t> kept[] = {{2, 3}, {1, 3}, {1, 2}};
  for (int failing = 1; failing <= 3; ++failing) {
    test::Faults faults;
    faults.allocations.FailFrom(failing + 1, 1);
    EXPECT_EQ(ddReadAllSupportedOltPortInformation(file_.path()), 0);
    EXPECT_EQ(console_.Text(), NoRecord(failing));
    ExpectTypes(kept[failing - 1]);
    test::ExpectNoLeak(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
}

TEST_F(PortTypeFaults, NoMemoryFromARecordOn) {
  const std::initializer_list<uint32_t> kept[] = {{}, {1}, {1, 2}};
  for (int failing = 1; failing <= 3; ++failing) {
    test::Faults faults;
    faults.allocations.FailFrom(failing + 1, test::FaultPlan::kForEver);
    EXPECT_EQ(ddReadAllSupportedOltPortInformation(file_.path()), 0);
    string expected;
    for (int number = failing; number <= 3; ++number) {
      expected += NoRecord(number);
    }
    EXPECT_EQ(console_.Text(), expected);
    ExpectTypes(kept[failing - 1]);
    test::ExpectNoLeak(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
}

void PortTypeFaults::LoadWithAFailingLookup(int failing, test::FaultPlan test::Faults::*calls,
                                            const string& code) {
  const std::initializer_list<uint32_t> kept[] = {{2, 3}, {1, 3}, {1, 2}};
  test::Faults faults;
  (faults.*calls).FailFrom(failing, 1);
  EXPECT_EQ(ddReadAllSupportedOltPortInformation(file_.path()), failing == 1 ? -31 : 0);
  EXPECT_EQ(console_.Text(), LookupFailure(failing, code));
  if (failing == 1) {
    EXPECT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, 0u);
    EXPECT_EQ(faults.allocations.count(), 0);
  } else {
    ExpectTypes(kept[(failing - 2) / 4]);
  }
  test::ExpectNoLeak(faults);
  EXPECT_EQ(faults.closes, faults.opens.count() - (calls == &test::Faults::opens ? 1 : 0));
}

TEST_F(PortTypeFaults, OneLookupCannotOpenTheFile) {
  for (int failing = 1; failing <= kLookups && !HasFailure(); ++failing) {
    SCOPED_TRACE(failing);
    test::ResetTables();
    LoadWithAFailingLookup(failing, &test::Faults::opens, "-10");
  }
}

TEST_F(PortTypeFaults, OneLookupCannotReadTheFile) {
  for (int failing = 1; failing <= kLookups && !HasFailure(); ++failing) {
    SCOPED_TRACE(failing);
    test::ResetTables();
    LoadWithAFailingLookup(failing, &test::Faults::reads, "-12");
  }
}

// From a lookup on, nothing can be read: every entry left fails by its own key.
TEST_F(PortTypeFaults, TheFileGoesAwayDuringALoad) {
  for (int gone = 1; gone <= 3; ++gone) {
    test::ResetTables();
    test::Faults faults;
    faults.opens.FailFrom(2 + (gone - 1) * 4, test::FaultPlan::kForEver);
    EXPECT_EQ(ddReadAllSupportedOltPortInformation(file_.path()), 0);
    string expected;
    for (int number = gone; number <= 3; ++number) {
      expected += LookupFailure(2 + (number - 1) * 4, "-10");
    }
    EXPECT_EQ(console_.Text(), expected);
    EXPECT_EQ(gstSupportedOltPortType.ulSupportedOltPortTypeNum, static_cast<uint32_t>(gone - 1));
    test::ExpectNoLeak(faults);
  }
}

}  // namespace
