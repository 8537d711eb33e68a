// Loading the main boards.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/main_boards.h"
#include "support/definition_file.h"
#include "support/faults.h"
#include "support/leaks.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::MainBoardList;
using test::SmallBoard;

// ---- Loads that succeed --------------------------------------------------------

struct LoadRow {
  const char* name;
  string file;
  uint32_t announced;
  std::vector<int> boards;  // the numbers of the small boards that are kept
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadMainBoards : public test::LibraryTest, public testing::WithParamInterface<LoadRow> {
 protected:
  void ExpectBoards(const test::Faults& faults);
  test::Console console_;
};

void LoadMainBoards::ExpectBoards(const test::Faults& faults) {
  const std::vector<int>& boards = GetParam().boards;
  ASSERT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, boards.size());
  MainBoardInformation** const places = gstSupportedMainBoardType.pBoardTypeArray;
  ASSERT_NE(places, nullptr);
  EXPECT_EQ(faults.blocks.at(places), GetParam().announced * sizeof(MainBoardInformation*));
  for (size_t i = 0; i < GetParam().announced; ++i) {
    if (i >= boards.size()) {
      EXPECT_EQ(places[i], nullptr) << i;
      continue;
    }
    ASSERT_NE(places[i], nullptr) << i;
    EXPECT_EQ(faults.blocks.at(places[i]), test::kMainBoardSize);
    test::ExpectMainBoard(*places[i], test::SmallRecord(boards[i]));
  }
  EXPECT_EQ(faults.blocks.size(), boards.size() + 1);  // and nothing else is kept
}

TEST_P(LoadMainBoards, KeepsWhatReadsWell) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    test::ResetTables();
    ddDebugPrint = debug;
    test::Faults faults;

    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file.path()), 0);

    EXPECT_EQ(console_.Text(), GetParam().console);
    ExpectBoards(faults);
    test::ExpectNoLeak(faults);
    EXPECT_EQ(faults.closes, faults.opens.count());
  }
}

const string kS1 = SmallBoard(1);
const string kS2 = SmallBoard(2);
const string kS3 = SmallBoard(3);

// A list of three boards whose second one is changed.
string Second(const string& from, const string& to) {
  return MainBoardList(3) + kS1 + test::Replaced(kS2, from, to) + kS3;
}

string NoListEntry(const string& code, const string& number) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = " + code +
         ", section = SupportedMainBoardType, key = SupportedMainBoardType" + number;
}
string BoardFailed(const string& code, const string& section) {
  return "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! "
         "iResult = " +
         code + ", section = " + section;
}
string NoType(const string& section, const string& code) {
  return "\r\nddReadOneSupportedMainBoardInformation err! iResult = " + code +
         ", strSectionFrameNameBuf = " + section + ", Key = Type" + BoardFailed("-31", section);
}
// The end of all failures of the second board's maps.
string MapsFailed(const string& code) {
  return "\r\nddReadOneSupportedMainBoardInformation->ddReadAllSwitchChipLogicPortToPhyPort err! "
         "strBoardTypeSection = S2" +
         BoardFailed(code, "S2");
}
string SpecialMapsFailed(const string& code) {
  return "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadSpecialSwitchChipLogicPortToPhyPort "
         "err! iResult = " +
         code + ", strSectionFrameNameBuf = S2, ulSwitchChipLogicPortNum = 1" + MapsFailed(code);
}

std::vector<int> UpTo(int count) {
  std::vector<int> numbers;
  for (int i = 1; i <= count; ++i) {
    numbers.push_back(i);
  }
  return numbers;
}

string Many(int count) {
  string text = MainBoardList(count);
  for (int i = 1; i <= count; ++i) {
    text += SmallBoard(i);
  }
  return text;
}

const LoadRow kLoads[] = {
    {"Three", MainBoardList(3) + kS1 + kS2 + kS3, 3, {1, 2, 3}},
    {"SectionsInAnyOrder", kS3 + MainBoardList(3) + kS2 + kS1, 3, {1, 2, 3}},
    {"NumberWithText", test::Replaced(MainBoardList(1), "Num=1", "Num= +1x") + kS1, 1, {1}},
    {"MoreListedThanAnnounced",
     test::Replaced(MainBoardList(2), "Num=2", "Num=1") + kS1 + kS2,
     1,
     {1}},
    {"AsManyAsPossible", Many(100), 100, UpTo(100)},
    {"SameSectionTwice", test::Replaced(MainBoardList(2), "=S2", "=S1") + kS1, 2, {1, 1}},
    {"ListEntryMissing",
     test::Replaced(MainBoardList(3), "SupportedMainBoardType2=S2\n", "") + kS1 + kS2 + kS3,
     3,
     {1, 3},
     NoListEntry("-2", "2")},
    {"AllListEntriesMissing",
     "[SupportedMainBoardType]\nSupportedMainBoardTypeNum=2\n",
     2,
     {},
     NoListEntry("-2", "1") + NoListEntry("-2", "2")},
    {"BrokenEntryInTheList",
     test::Replaced(MainBoardList(2), "=S1\n", "=S1\nnonsense\n") + kS1 + kS2,
     2,
     {1},
     NoListEntry("-14", "2")},
    {"EntryNamesNoSection", MainBoardList(3) + kS1 + kS3, 3, {1, 3}, NoType("S2", "-1")},
    {"EntryIsEmpty",
     test::Replaced(MainBoardList(2), "=S1", "=") + kS1 + kS2,
     2,
     {2},
     NoType("", "-1")},
    {"FirstAndLastFail", MainBoardList(3) + kS2, 3, {2}, NoType("S1", "-1") + NoType("S3", "-1")},
    {"AllFail", MainBoardList(2), 2, {}, NoType("S1", "-1") + NoType("S2", "-1")},
    {"TypeMissing", Second("Type=2\n", ""), 3, {1, 3}, NoType("S2", "-2")},
    {"NameMissing",
     Second("Name=N2\n", ""),
     3,
     {1, 3},
     "\r\nddReadOneSupportedMainBoardInformation err! iResult = -2, section = S2, key = Name" +
         BoardFailed("-31", "S2")},
    {"NameTooLong",
     Second("N2", string(60, 'n')),
     3,
     {1, 3},
     "\r\nddReadOneSupportedMainBoardInformation err! ulNameLen = 61" + BoardFailed("-33", "S2")},
    {"PortCountMissing",
     Second("SwitchChipLogicPortNum=1\n", ""),
     3,
     {1, 3},
     "\r\nddReadAllSwitchChipLogicPortToPhyPort err! iResult = -2, strSectionFrameNameBuf = S2, "
     "Key = SwitchChipLogicPortNum" +
         MapsFailed("-31")},
    {"TooManyPorts",
     Second("PortNum=1\n", "PortNum=1281\n"),
     3,
     {1, 3},
     "\r\nddReadAllSwitchChipLogicPortToPhyPort err! strSectionFrameNameBuf = S2, "
     "ulSwitchChipLogicPortNum = 1281, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280" +
         MapsFailed("-24")},
    {"PortMissing",
     Second("SwitchChipLogicPort1=2\n", ""),
     3,
     {1, 3},
     "\r\nddReadOneSwitchChipLogicPortToPhyPort err! iResult = -2, strSectionFrameNameBuf = S2, "
     "Key = SwitchChipLogicPort1, ulSwitchChipLogicPortIndex = 0"
     "\r\nddReadAllSwitchChipLogicPortToPhyPort->ddReadOneSwitchChipLogicPortToPhyPort err! "
     "iResult = -31, strSectionFrameNameBuf = S2, ulSwitchChipLogicPortNum = 1, "
     "SwitchChipLogicPort" +
         MapsFailed("-31")},
    {"SpecialCountMissing",
     Second("SpecialChipLogicPortMapPhyPortCardNum=0\n", ""),
     3,
     {1, 3},
     "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = -2, strSectionFrameNameBuf = "
     "S2, Key = SpecialChipLogicPortMapPhyPortNum" +
         SpecialMapsFailed("-31")},
    {"TooManySpecialMaps",
     Second("CardNum=0", "CardNum=20"),
     3,
     {1, 3},
     "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = 0, strSectionFrameNameBuf = "
     "S2, ulSpecialMapNum = 20, MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM - 1 = 19" +
         SpecialMapsFailed("-26")},
    {"SpecialNameTooLong",
     Second("CardNum=0", "CardNum=1\nSpecialChipLogicPortMapPhyPortCard1=" + string(60, 'b')),
     3,
     {1, 3},
     "\r\nddReadSpecialSwitchChipLogicPortToPhyPort err! iResult = 0, strSectionFrameNameBuf = "
     "S2, Key = SpecialChipLogicPortMapPhyPortCard1, ulSpecialMapIndex = 0, ulBoardNameLen + 1 = "
     "62, MAX_BOARD_NAME_LEN = 60" +
         SpecialMapsFailed("-32")},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, LoadMainBoards, testing::ValuesIn(kLoads),
                         testing::PrintToStringParamName());

// ---- Loads that leave no boards ------------------------------------------------

MainBoardInformation** const kOldArray =
    reinterpret_cast<MainBoardInformation**>(uintptr_t{0x1230});

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  int failing_read = 0;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadMainBoards : public test::MainBoardTest,
                             public testing::WithParamInterface<FailRow> {};

TEST_P(FailToLoadMainBoards, ClearsTheCountAlone) {
  const test::DefinitionFile file(GetParam().file);
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstSupportedMainBoardType = {9, kOldArray};
    test::Faults faults;
    faults.reads.FailFrom(GetParam().failing_read, 1);

    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file.path()), GetParam().code);

    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 0u);
    EXPECT_EQ(gstSupportedMainBoardType.pBoardTypeArray, kOldArray);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, 1);
  }
}

string Announce(const string& number) {
  return test::Replaced(MainBoardList(1), "Num=1", "Num=" + number) + kS1;
}
string TooMany(const string& number) {
  return "\r\nddReadAllSupportedMainBoardInformation err! ulSupportedOnuTypeNum = " + number +
         ", MAX_OLT_BOARD_TYPE_NUM = 100";
}
string NoNumber(const string& code) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = " + code +
         ", section = SupportedMainBoardType, key = SupportedMainBoardTypeNum";
}

const FailRow kFails[] = {
    {"OneTooMany", Announce("101"), -19, TooMany("101")},
    {"Negative", Announce("-1"), -19, TooMany("-1")},
    {"Above31Bits", Announce("2147483648"), -19, TooMany("2147483647")},
    {"Above32Bits", Announce("4294967297"), -19, TooMany("2147483647")},
    {"Below32Bits", Announce("-4294967295"), -19, TooMany("-2147483648")},
    {"NoSection", kS1, -31, NoNumber("-1")},
    {"EmptySection", "[SupportedMainBoardType]\n" + kS1, -31, NoNumber("-2")},
    {"NoKey", "[SupportedMainBoardType]\nSupportedMainBoardType1=S1\n" + kS1, -31, NoNumber("-2")},
    {"KeyOfTheServiceBoards", "[SupportedMainBoardType]\nSupportedBoardTypeNum=1\n" + kS1, -31,
     NoNumber("-2")},
    {"BrokenEntry", "[SupportedMainBoardType]\nnonsense\nSupportedMainBoardTypeNum=1\n", -31,
     NoNumber("-14")},
    {"EntryTooLong",
     "[SupportedMainBoardType]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') +
         "\nSupportedMainBoardTypeNum=1\n",
     -31, NoNumber("-22")},
    {"ReadError", Announce("1"), -31, NoNumber("-12"), 1},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, FailToLoadMainBoards, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

class EmptyListOfMainBoards : public test::MainBoardTest,
                              public testing::WithParamInterface<test::ZeroRow> {};

TEST_P(EmptyListOfMainBoards, IsReportedAndLeavesNoArray) {
  const test::DefinitionFile file(Announce(GetParam().text));
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstSupportedMainBoardType = {9, kOldArray};
    test::Faults faults;
    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(file.path()), 0);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllSupportedMainBoardInformation err! ulSupportedOnuTypeNum = 0");
    EXPECT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 0u);
    EXPECT_EQ(gstSupportedMainBoardType.pBoardTypeArray, nullptr);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.opens.count(), 1);
  }
}

INSTANTIATE_TEST_SUITE_P(MainBoards, EmptyListOfMainBoards, testing::ValuesIn(test::kZeros),
                         testing::PrintToStringParamName());

using MainBoards = test::MainBoardTest;

TEST_F(MainBoards, NullPathClearsTheCountAlone) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    gstSupportedMainBoardType = {9, kOldArray};
    EXPECT_EQ(ddReadAllSupportedMainBoardInformation(nullptr), -2);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllSupportedMainBoardInformation err!, strFileName = 0x0");
    EXPECT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 0u);
    EXPECT_EQ(gstSupportedMainBoardType.pBoardTypeArray, kOldArray);
  }
}

TEST_F(MainBoards, MissingFile) {
  gstSupportedMainBoardType = {9, kOldArray};
  EXPECT_EQ(ddReadAllSupportedMainBoardInformation("/nonexistent/device_definition.ini"), -31);
  EXPECT_EQ(console_.Text(), NoNumber("-10"));
  EXPECT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 0u);
  EXPECT_EQ(gstSupportedMainBoardType.pBoardTypeArray, kOldArray);
}

class MainBoardReload : public test::LibraryTest {};

TEST_F(MainBoardReload, ForgetsTheFirstBoards) {
  const test::DefinitionFile first(MainBoardList(2) + kS1 + kS2);
  const test::DefinitionFile second(MainBoardList(1) + kS1);
  test::Faults faults;
  ASSERT_EQ(ddReadAllSupportedMainBoardInformation(first.path()), 0);
  ASSERT_EQ(ddReadAllSupportedMainBoardInformation(second.path()), 0);
  EXPECT_EQ(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 1u);
  EXPECT_EQ(faults.frees, 0);
  test::ExpectAndReleaseLost(faults, 3);
}

}  // namespace
