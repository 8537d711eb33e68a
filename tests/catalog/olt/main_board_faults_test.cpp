// The load of the main boards when memory runs out and when the file cannot be
// read: at every allocation, once and for ever, and at every lookup.
#include <string>
#include <vector>

#include "catalog/olt/main_boards.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/leaks.h"

namespace {

using std::string;

class MainBoardMemory : public test::LibraryTest {
 protected:
  void ExpectBoards(const std::vector<int>& boards);

  test::DefinitionFile file_{test::MainBoardList(3) + test::SmallBoard(1) + test::SmallBoard(2) +
                             test::SmallBoard(3)};
  test::Console console_;
};

void MainBoardMemory::ExpectBoards(const std::vector<int>& boards) {
  ASSERT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, boards.size());
  for (size_t i = 0; i < 3; ++i) {
    const MainBoardInformation* const board = gstSupportedMainBoardType.pBoardTypeArray[i];
    if (i >= boards.size()) {
      EXPECT_EQ(board, nullptr);
      continue;
    }
    ASSERT_NE(board, nullptr);
    test::ExpectMainBoard(*board, test::SmallRecord(boards[i]));
  }
}

string NoRecord(int number) {
  return "\r\nddReadOneSupportedMainBoardInformation->malloc err! pstMainBoardInformation = 0x0"
         "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! "
         "iResult = -27, section = S" +
         std::to_string(number);
}

TEST_F(MainBoardMemory, IsTakenForTheListAndEachRecord) {
  test::Faults faults;
  EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file_.path()), 0);
  EXPECT_EQ(faults.allocations.count(), 4);
  EXPECT_EQ(faults.frees, 0);
  for (uint32_t i = 0; i < 3; ++i) {
    EXPECT_EQ(faults.blocks.at(gstSupportedMainBoardType.pBoardTypeArray[i]), 103760u);
  }
  test::ExpectNoLeak(faults);
}

TEST_F(MainBoardMemory, NoneForTheList) {
  for (const int calls : {1, test::FaultPlan::kForEver}) {
    gstSupportedMainBoardType.ulSupportedBoardTypeNum = 9;
    test::Faults faults;
    faults.allocations.FailFrom(1, calls);
    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file_.path()), -27);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllSupportedOnuInformation->malloc err! pBoardTypeArray = 0x0");
    EXPECT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 0u);
    EXPECT_EQ(gstSupportedMainBoardType.pBoardTypeArray, nullptr);
    EXPECT_EQ(faults.opens.count(), 1);  // the number; no entry is read
    EXPECT_EQ(faults.closes, 1);
    EXPECT_TRUE(faults.blocks.empty());
  }
}

TEST_F(MainBoardMemory, NoneForOneRecord) {
  const std::vector<int> kept[] = {{2, 3}, {1, 3}, {1, 2}};
  for (int failing = 1; failing <= 3; ++failing) {
    test::Faults faults;
    faults.allocations.FailFrom(failing + 1, 1);
    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file_.path()), 0);
    EXPECT_EQ(console_.Text(), NoRecord(failing));
    ExpectBoards(kept[failing - 1]);
    test::ExpectNoLeak(faults);
    EXPECT_EQ(faults.closes, faults.opens.count());
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
}

TEST_F(MainBoardMemory, NoneFromARecordOn) {
  const std::vector<int> kept[] = {{}, {1}, {1, 2}};
  for (int failing = 1; failing <= 3; ++failing) {
    test::Faults faults;
    faults.allocations.FailFrom(failing + 1, test::FaultPlan::kForEver);
    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file_.path()), 0);
    string expected;
    for (int number = failing; number <= 3; ++number) {
      expected += NoRecord(number);
    }
    EXPECT_EQ(console_.Text(), expected);
    ExpectBoards(kept[failing - 1]);
    test::ExpectNoLeak(faults);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
}

// ---- Lookups -------------------------------------------------------------------

string NoListKey(const string& code, const string& key) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = " + code +
         ", section = SupportedMainBoardType, key = " + key;
}
string BoardFailed(const string& section) {
  return "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! "
         "iResult = -31, section = " +
         section;
}
string NoType(const string& code, const string& section) {
  return "\r\nddReadOneSupportedMainBoardInformation err! iResult = " + code +
         ", strSectionFrameNameBuf = " + section + ", Key = Type" + BoardFailed(section);
}
string NoName(const string& code, const string& section) {
  return "\r\nddReadOneSupportedMainBoardInformation err! iResult = " + code +
         ", section = " + section + ", key = Name" + BoardFailed(section);
}
string MapsFailed(const string& section) {
  return "\r\nddReadOneSupportedMainBoardInformation->ddReadAllSwitchChipLogicPortToPhyPort err! "
         "strBoardTypeSection = " +
         section + BoardFailed(section);
}
string NoPortCount(const string& code, const string& section) {
  return "\r\nddReadAllSwitchChipLogicPortToPhyPort err! iResult = " + code +
         ", strSectionFrameNameBuf = " + section + ", Key = SwitchChipLogicPortNum" +
         MapsFailed(section);
}
string NoPort(const string& code, const string& section, const string& key, const string& index) {
  return "\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = " + code +
         ", strSectionFrameNameBuf = " + section + ", Key = " + key +
         ", ulSwitchChipLogicPortIndex = " + index;
}
string NoDefaultPort(const string& code, const string& section, const string& count,
                     const string& key, const string& index) {
  return NoPort(code, section, key, index) +
         "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort err! "
         "iResult = -31, strSectionFrameNameBuf = " +
         section + ", ulSwitchChipLogicPortNum = " + count + ", SwitchChipLogicPort" +
         MapsFailed(section);
}
string SpecialFailed(const string& section, const string& count) {
  return "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadSpecialSwitchChipLogicPortToPhyPort "
         "err! iResult = -31, strSectionFrameNameBuf = " +
         section + ", ulSwitchChipLogicPortNum = " + count + MapsFailed(section);
}
string NoSpecialKey(const string& code, const string& section, const string& count,
                    const string& rest) {
  return "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = " + code +
         ", strSectionFrameNameBuf = " + section + ", Key = SpecialChipLogicPortMapPhyPort" + rest +
         SpecialFailed(section, count);
}
string NoSpecialPort(const string& code, const string& prefix, const string& key,
                     const string& index, const string& map) {
  return NoPort(code, "Sec", key, index) +
         "\r\nddReadSpecialSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort "
         "err! iResult = -31, strSectionFrameNameBuf = Sec, ulSwitchChipLogicPortNum = 2, Key = " +
         prefix + ", ulSpecialMapIndex = " + map + SpecialFailed("Sec", "2");
}

// A board with two special maps and a small one. What the loader prints when the
// lookups, in their order, answer `code`.
std::vector<string> LookupFailures(const string& code) {
  return {
      NoListKey(code, "SupportedMainBoardTypeNum"),
      NoListKey(code, "SupportedMainBoardType1"),
      NoType(code, "Sec"),
      NoName(code, "Sec"),
      NoPortCount(code, "Sec"),
      NoDefaultPort(code, "Sec", "2", "SwitchChipLogicPort1", "0"),
      NoDefaultPort(code, "Sec", "2", "SwitchChipLogicPort2", "1"),
      NoSpecialKey(code, "Sec", "2", "Num"),
      NoSpecialKey(code, "Sec", "2", "Card1, ulSpecialMapIndex = 0"),
      NoSpecialPort(code, "ETHA_SwitchChipLogicPort", "ETHA_SwitchChipLogicPort1", "0", "0"),
      NoSpecialPort(code, "ETHA_SwitchChipLogicPort", "ETHA_SwitchChipLogicPort2", "1", "0"),
      NoSpecialKey(code, "Sec", "2", "Card2, ulSpecialMapIndex = 1"),
      NoSpecialPort(code, "ETHB_SwitchChipLogicPort", "ETHB_SwitchChipLogicPort1", "0", "1"),
      NoSpecialPort(code, "ETHB_SwitchChipLogicPort", "ETHB_SwitchChipLogicPort2", "1", "1"),
      NoListKey(code, "SupportedMainBoardType2"),
      NoType(code, "S9"),
      NoName(code, "S9"),
      NoPortCount(code, "S9"),
      NoDefaultPort(code, "S9", "1", "SwitchChipLogicPort1", "0"),
      NoSpecialKey(code, "S9", "1", "Num"),
  };
}
constexpr int kLookups = 20;
constexpr int kSecondEntry = 15;  // the lookup of its name

class MainBoardLookups : public test::LibraryTest {
 protected:
  void ExpectBoards(int failing);

  test::DefinitionFile file_{
      "[SupportedMainBoardType]\nSupportedMainBoardTypeNum=2\n"
      "SupportedMainBoardType1=Sec\nSupportedMainBoardType2=S9\n" +
      test::kSection + test::SmallBoard(9)};
  test::Console console_;
};

void MainBoardLookups::ExpectBoards(int failing) {
  if (failing == 1) {
    EXPECT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 0u);
    EXPECT_EQ(gstSupportedMainBoardType.pBoardTypeArray, nullptr);
    return;
  }
  ASSERT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 1u);
  test::ExpectMainBoard(*gstSupportedMainBoardType.pBoardTypeArray[0],
                        failing < kSecondEntry ? test::SmallRecord(9) : test::SectionBoard());
  EXPECT_EQ(gstSupportedMainBoardType.pBoardTypeArray[1], nullptr);
}

TEST_F(MainBoardLookups, OpenAndReadTheFileOnceEach) {
  test::Faults faults;
  EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file_.path()), 0);
  EXPECT_EQ(faults.opens.count(), kLookups);
  EXPECT_EQ(faults.reads.count(), kLookups);
  EXPECT_EQ(faults.closes, kLookups);
  EXPECT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 2u);
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(MainBoardLookups, OneCannotOpenTheFile) {
  const std::vector<string> failures = LookupFailures("-10");
  ASSERT_EQ(failures.size(), static_cast<size_t>(kLookups));
  for (int failing = 1; failing <= kLookups; ++failing) {
    test::Faults faults;
    faults.opens.FailFrom(failing, 1);
    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file_.path()), failing == 1 ? -31 : 0);
    EXPECT_EQ(console_.Text(), failures[static_cast<size_t>(failing) - 1]) << failing;
    ExpectBoards(failing);
    test::ExpectNoLeak(faults);
    EXPECT_EQ(faults.closes, faults.opens.count() - 1);
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
}

TEST_F(MainBoardLookups, OneCannotReadTheFile) {
  const std::vector<string> failures = LookupFailures("-12");
  for (int failing = 1; failing <= kLookups; ++failing) {
    test::Faults faults;
    faults.reads.FailFrom(failing, 1);
    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file_.path()), failing == 1 ? -31 : 0);
    EXPECT_EQ(console_.Text(), failures[static_cast<size_t>(failing) - 1]) << failing;
    ExpectBoards(failing);
    test::ExpectNoLeak(faults);
    EXPECT_EQ(faults.closes, faults.opens.count());
    if (HasFailure()) {
      return;  // its words are on the caught console as well
    }
    test::ResetTables();
  }
}

}  // namespace
