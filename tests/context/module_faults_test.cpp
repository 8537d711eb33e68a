// The module list when memory runs out: at every allocation of a load, once
// and for ever.
#include <string>

#include "support/definition_file.h"
#include "support/faults.h"
#include "support/leaks.h"
#include "support/tables.h"

namespace {

using std::string;

constexpr char kFile[] =
    "[ModuleTypeList]\nModuleNum=3\nModule1=S1\nModule2=S2\nModule3=S3\n"
    "[S1]\nType=1\nName=N1\nSize=10\n"
    "[S2]\nType=2\nName=N2\nSize=20\n"
    "[S3]\nType=3\nName=N3\nSize=30\n";
constexpr int kAllocations = 4;  // the list, and three records

string NoRecord(int number) {
  return "\r\nddReadOneModuleInformation->malloc err! pstModuleInformation = 0x0"
         "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -27, section = "
         "S" +
         std::to_string(number);
}

class ModuleFaults : public test::LibraryTest {
 protected:
  test::DefinitionFile file_{kFile};
  test::Console console_;
};

TEST_F(ModuleFaults, ALoadAllocatesTheListAndItsRecords) {
  test::Faults faults;
  EXPECT_EQ(ddReadAllModuleInformation(file_.path()), 0);
  EXPECT_EQ(faults.allocations.count(), kAllocations);
  EXPECT_EQ(faults.frees, 0);
  test::ExpectNoLeak(faults);
}

TEST_F(ModuleFaults, NoMemoryForTheList) {
  for (const int calls : {1, test::FaultPlan::kForEver}) {
    gstModuleTypeList.ulModuleTypeNum = 9;
    test::Faults faults;
    faults.allocations.FailFrom(1, calls);
    EXPECT_EQ(ddReadAllModuleInformation(file_.path()), -27);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllModuleInformation->malloc err! pModuleTypeArray = 0x0");
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, 0u);
    EXPECT_EQ(gstModuleTypeList.pModuleTypeArray, nullptr);
    EXPECT_EQ(faults.opens.count(), 1);  // the number; no entry is read
    EXPECT_TRUE(faults.blocks.empty());
  }
}

TEST_F(ModuleFaults, NoMemoryForOneRecord) {
  for (int failing = 1; failing <= 3; ++failing) {
    test::Faults faults;
    faults.allocations.FailFrom(failing + 1, 1);
    EXPECT_EQ(ddReadAllModuleInformation(file_.path()), 0);
    EXPECT_EQ(console_.Text(), NoRecord(failing));
    ASSERT_EQ(gstModuleTypeList.ulModuleTypeNum, 2u);
    EXPECT_EQ(gstModuleTypeList.pModuleTypeArray[0]->ulModuleType, failing == 1 ? 2u : 1u);
    EXPECT_EQ(gstModuleTypeList.pModuleTypeArray[1]->ulModuleType, failing == 3 ? 2u : 3u);
    EXPECT_EQ(gstModuleTypeList.pModuleTypeArray[2], nullptr);
    test::ExpectNoLeak(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
}

TEST_F(ModuleFaults, NoMemoryFromARecordOn) {
  for (int failing = 1; failing <= 3; ++failing) {
    test::Faults faults;
    faults.allocations.FailFrom(failing + 1, test::FaultPlan::kForEver);
    EXPECT_EQ(ddReadAllModuleInformation(file_.path()), 0);
    string expected;
    for (int number = failing; number <= 3; ++number) {
      expected += NoRecord(number);
    }
    EXPECT_EQ(console_.Text(), expected);
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, static_cast<uint32_t>(failing - 1));
    test::ExpectNoLeak(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
}

// What the loader prints when the lookup number `lookup` (from 1) answers `code`.
string LookupFailure(int lookup, const string& code) {
  if (lookup == 1) {
    return "\r\nddReadAllModuleInformation err! iResult = " + code +
           ", section = ModuleTypeList, key = ModuleNum";
  }
  const string number = std::to_string((lookup - 2) / 4 + 1);
  const string record_failed =
      "\r\nddReadAllModuleInformation->ddReadOneModuleInformation err! iResult = -31, section = S" +
      number;
  switch ((lookup - 2) % 4) {
    case 0:
      return "\r\nddReadAllModuleInformation err! iResult = " + code +
             ", section = ModuleTypeList, key = Module" + number;
    case 1:
      return "\r\nddReadOneModuleInformation err! iResult = " + code +
             ", strSectionFrameNameBuf = S" + number + ", Key = Type" + record_failed;
    case 2:
      return "\r\nddReadOneModuleInformation err! iResult = " + code + ", section = S" + number +
             ", key = Name" + record_failed;
    default:
      return "\r\nddReadOneModuleInformation err! iResult = " + code + ", section = S" + number +
             ", key = Size" + record_failed;
  }
}

TEST_F(ModuleFaults, OneLookupCannotOpenTheFile) {
  constexpr int kLookups = 1 + 3 * 4;
  for (int failing = 1; failing <= kLookups; ++failing) {
    test::Faults faults;
    faults.opens.FailFrom(failing, 1);
    EXPECT_EQ(ddReadAllModuleInformation(file_.path()), failing == 1 ? -31 : 0) << failing;
    EXPECT_EQ(console_.Text(), LookupFailure(failing, "-10")) << failing;
    EXPECT_EQ(gstModuleTypeList.ulModuleTypeNum, failing == 1 ? 0u : 2u) << failing;
    test::ExpectNoLeak(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
  test::Faults faults;
  EXPECT_EQ(ddReadAllModuleInformation(file_.path()), 0);
  EXPECT_EQ(faults.opens.count(), kLookups);
}

}  // namespace
