// Loading the service boards.
#include <cstdint>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "catalog/olt/service_boards.h"
#include "support/leaks.h"
#include "support/rows.h"
#include "sys_context/cfgfile.h"

// What the search for the largest PON board finds when it is called; it fails
// when a test says so.
struct Finish {
  int calls = 0;
  int32_t code = 0;
  uint32_t count = 0;
};
static Finish finish;

extern "C" {
int32_t __real_ddFindSupportedBoardMaxPonNum();
int32_t __wrap_ddFindSupportedBoardMaxPonNum();

int32_t __wrap_ddFindSupportedBoardMaxPonNum() {
  ++finish.calls;
  finish.count = gstSupportedBoardType.ulSupportedBoardTypeNum;
  return finish.code != 0 ? finish.code : __real_ddFindSupportedBoardMaxPonNum();
}
}  // extern "C"

namespace {

using std::string;
using test::BoardFaults;
using test::BoardList;
using test::BoardSection;
using test::ExpectedBoard;
using test::Names;

BoardInformation** const kOldArray = reinterpret_cast<BoardInformation**>(uintptr_t{0x1230});

class ServiceBoardsTest : public test::LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    finish = {};
  }

  // A table that shows what a load leaves alone.
  static void MarkTable() { gstSupportedBoardType = {9, kOldArray, 0x7e7e, 0x6d6d}; }

  void ExpectMaximum(uint32_t type, uint32_t ports) {
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonType, type);
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonNum, ports);
  }

  // The array has these boards at its start, and nothing else.
  void ExpectBoards(const BoardFaults& faults, size_t announced,
                    const std::vector<ExpectedBoard>& boards) {
    BoardInformation** const slots = gstSupportedBoardType.pBoardTypeArray;
    ASSERT_EQ(faults.blocks.count(slots), 1u);
    EXPECT_EQ(faults.blocks.at(slots), announced * sizeof(BoardInformation*));
    size_t blocks = 1;
    for (size_t i = 0; i < announced; ++i) {
      SCOPED_TRACE(i);
      if (i >= boards.size()) {
        EXPECT_EQ(slots[i], nullptr);
        continue;
      }
      ASSERT_NE(slots[i], nullptr);
      test::ExpectServiceBoard(faults, slots[i], boards[i]);
      blocks += test::BlocksOf(boards[i]);
    }
    EXPECT_EQ(faults.OwnBlocks() - test::LostBlocks(faults).size(), blocks);
  }

  test::Console console_;
};

// ---- Loads --------------------------------------------------------------------

struct LoadRow {
  const char* name;
  string file;
  size_t announced;
  std::vector<ExpectedBoard> boards;
  string console = "";
  size_t lost = 0;  // copies of serving ports that are not released
  friend std::ostream& operator<<(std::ostream& out, const LoadRow& row) { return out << row.name; }
};

class LoadServiceBoards : public ServiceBoardsTest, public testing::WithParamInterface<LoadRow> {};

TEST_P(LoadServiceBoards, KeepsWhatReadsWell) {
  for (const int32_t debug : {0, 1}) {
    finish = {};
    BoardFaults faults(GetParam().file, debug);
    MarkTable();

    EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), 0);

    EXPECT_EQ(console_.Text(), GetParam().console);
    ASSERT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, GetParam().boards.size());
    ExpectBoards(faults, GetParam().announced, GetParam().boards);
    test::ExpectAndReleaseLost(faults, GetParam().lost);
    test::ExpectNoLeak(faults);
    test::ExpectAllClosed(faults);
    EXPECT_EQ(finish.calls, 1);
    EXPECT_EQ(finish.count, GetParam().boards.size());
    ExpectMaximum(0, 0);  // no card is a PON card
  }
}

string Section(const string& number) {
  return BoardSection("S" + number, number, "N" + number, {"GPON", "GE"}, {"XGSPON"});
}
ExpectedBoard Record(uint32_t number) {
  return {number, "N" + std::to_string(number), {"GPON", "GE"}, {"XGSPON"}};
}
const Names kS123 = {"S1", "S2", "S3"};
const string kDecoy1 = BoardSection("S1", "91", "Decoy", {"GE"});
const string kDecoy2 = BoardSection("S2", "92", "Decoy", {"GE"});
const string kDecoy3 = BoardSection("S3", "93", "Decoy", {"GE"});

// A list of three boards, the second of which is this.
string WithSecond(const string& second) {
  return BoardList(kS123) + Section("1") + second + Section("3");
}
const std::vector<ExpectedBoard> kAllThree = {Record(1), Record(2), Record(3)};
const std::vector<ExpectedBoard> kWithoutSecond = {Record(1), Record(3)};
const string k59(59, 'n');
const string k60(60, 'n');

string Announce(const string& number) {
  return "[SupportedBoardType]\nSupportedBoardTypeNum=" + number +
         "\nSupportedBoardType1=S1\nSupportedBoardType2=S2\n" + Section("1") + Section("2");
}

string ManyBoards(int count) {
  Names sections;
  string text;
  for (int i = 1; i <= count; ++i) {
    const string n = std::to_string(i);
    sections.push_back("S" + n);
    text += BoardSection("S" + n, n, "N" + n);
  }
  return BoardList(sections) + text;
}
std::vector<ExpectedBoard> ManyRecords(uint32_t count) {
  std::vector<ExpectedBoard> boards;
  for (uint32_t i = 1; i <= count; ++i) {
    boards.push_back({i, "N" + std::to_string(i), {}, {}});
  }
  return boards;
}

string WithCarriageReturns(const string& text) {
  string result;
  for (const char c : text) {
    result += c == '\n' ? string("\r\n") : string(1, c);
  }
  return result;
}

const LoadRow kLoads[] = {
    {"Three", WithSecond(Section("2")), 3, kAllThree},
    {"ListSectionNotFirst", "; boards\n[X]\nType=9\n" + WithSecond(Section("2")), 3, kAllThree},
    {"SectionsInFrontOfTheListAreNotSeen", kDecoy3 + kDecoy2 + kDecoy1 + WithSecond(Section("2")),
     3, kAllThree},
    {"SectionsInFrontOfTheBoardBeforeAreNotSeen",
     BoardList(kS123) + kDecoy3 + kDecoy2 + Section("1") + kDecoy3 + Section("2") + Section("3"), 3,
     kAllThree},
    {"EarlierSectionWithoutPortsIsNotSeen",
     BoardList(kS123) + "[S2]\nPortNum=\n" + Section("1") + Section("2") + Section("3"), 3,
     kAllThree},
    {"FirstSectionBehindTheBoardBeforeWins", WithSecond(Section("2") + kDecoy1 + kDecoy2), 3,
     kAllThree},
    {"OtherSectionsBetween",
     BoardList(kS123) + "[X]\n" + Section("1") + "[Y]\nnonsense\n" + Section("2") +
         "[Z]\nType=5\n" + Section("3"),
     3, kAllThree},
    {"FirstListWins",
     BoardList({"S1"}) + BoardList(kS123) + Section("1") + Section("2") + Section("3"),
     1,
     {Record(1)}},
    {"CarriageReturns", WithCarriageReturns("; x\n" + kDecoy1 + WithSecond(Section("2"))), 3,
     kAllThree},
    {"NumberWithText", Announce(" +1x"), 1, {Record(1)}},
    {"MoreListedThanAnnounced", Announce("1"), 1, {Record(1)}},
    {"AsManyAsPossible", ManyBoards(100), 100, ManyRecords(100)},
    {"SameSectionTwice",
     BoardList({"S1", "S1", "S2"}) + Section("1") + Section("2"),
     3,
     {Record(1), Record(1), Record(2)}},
    {"SameTypeTwice",
     WithSecond(BoardSection("S2", "1", "Other")),
     3,
     {Record(1), {1, "Other", {}, {}}, Record(3)}},
    {"EmptyType",
     WithSecond(BoardSection("S2", "", "N2")),
     3,
     {Record(1), {0, "N2", {}, {}}, Record(3)}},
    {"TypeIsText",
     WithSecond(BoardSection("S2", "PON", "N2")),
     3,
     {Record(1), {0, "N2", {}, {}}, Record(3)}},
    {"TypeAbove32Bits",
     WithSecond(BoardSection("S2", "4294967297", "N2")),
     3,
     {Record(1), {2147483647, "N2", {}, {}}, Record(3)}},
    {"LongestName",
     WithSecond(BoardSection("S2", "2", k59)),
     3,
     {Record(1), {2, k59, {}, {}}, Record(3)}},
};
INSTANTIATE_TEST_SUITE_P(Good, LoadServiceBoards, testing::ValuesIn(kLoads),
                         testing::PrintToStringParamName());

string NoEntry(const string& code, const string& number) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = " + code +
         ", section = SupportedBoardType, key = SupportedBoardType" + number;
}
string Left(const string& code, const string& section) {
  return "\r\nddReadAllSupportedBoardInformation->ddReadOneSupportedBoardInformation err! iResult "
         "= " +
         code + ", section = " + section;
}
string NoName(const string& code) {
  return "\r\nddReadOneSupportedBoardInformation err! iResult = " + code +
         ", section = S2, key = Name" + Left("-31", "S2");
}
string NoServing(const string& code, const string& reason) {
  return "\r\nddAddSupportedServePortToBoardObj" + reason +
         "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! "
         "strBoardTypeSection = S2" +
         Left(code, "S2");
}
string NoSpecial(const string& code, const string& reason) {
  return "\r\nddAddSupportedSpecialPortToBoardObj" + reason +
         "\r\nddReadOneSupportedBoardInformation->ddAddSupportedSpecialPortToBoardObj err! "
         "strBoardTypeSection = S2" +
         Left(code, "S2");
}
const string kNoSpecialNum = "SpecialPortNum=0\n";
const string kNoNumbers = "PortNum=0\n" + kNoSpecialNum;

const LoadRow kPartialLoads[] = {
    {"ListEntryMissing",
     "[SupportedBoardType]\nSupportedBoardTypeNum=3\nSupportedBoardType1=S1\n"
     "SupportedBoardType3=S3\n" +
         Section("1") + Section("2") + Section("3"),
     3, kWithoutSecond, NoEntry("-2", "2")},
    {"FirstListEntryMissing",
     "[SupportedBoardType]\nSupportedBoardTypeNum=2\nSupportedBoardType2=S2\n" + kDecoy1 +
         Section("2"),
     2,
     {Record(2)},
     NoEntry("-2", "1")},
    {"AllListEntriesMissing",
     "[SupportedBoardType]\nSupportedBoardTypeNum=2\n" + Section("1"),
     2,
     {},
     NoEntry("-2", "1") + NoEntry("-2", "2")},
    {"FewerListedThanAnnounced", Announce("3"), 3, {Record(1), Record(2)}, NoEntry("-2", "3")},
    {"BrokenEntryInTheList",
     "[SupportedBoardType]\nSupportedBoardTypeNum=2\nSupportedBoardType1=S1\nnonsense\n"
     "SupportedBoardType2=S2\n" +
         Section("1") + Section("2"),
     2,
     {Record(1)},
     NoEntry("-14", "2")},
    {"NameMissing", WithSecond("[S2]\nType=2\n" + kNoNumbers), 3, kWithoutSecond, NoName("-2")},
    {"NameTooLong", WithSecond(BoardSection("S2", "2", k60)), 3, kWithoutSecond,
     "\r\nddReadOneSupportedBoardInformation err! ulNameLen = 61" + Left("-33", "S2")},
    {"BrokenEntryBehindTheType", WithSecond("[S2]\nType=2\nnonsense\nName=N2\n" + kNoNumbers), 3,
     kWithoutSecond, NoName("-14")},
    {"PortNumMissing", WithSecond("[S2]\nType=2\nName=N2\n" + kNoSpecialNum), 3, kWithoutSecond,
     NoServing("-31", " err! iResult = -2, section = S2, key = PortNum")},
    {"TooManyPorts", WithSecond("[S2]\nType=2\nName=N2\nPortNum=129\n" + kNoSpecialNum), 3,
     kWithoutSecond,
     NoServing("-13", " err! ulTotalServePortNum = 129, MAX_OLT_PORT_NUM_PER_BOARD = 128")},
    {"SecondPortUnknown", WithSecond(BoardSection("S2", "2", "N2", {"GPON", "EPON"}, {"GE"})), 3,
     kWithoutSecond,
     NoServing("-1",
               "->dd_IsOltPonTypeSupportedBySecName err! iResult = -32, strKey = NameKeyPort2, "
               "ulIndex = 0")},
    {"SpecialPortNumMissing", WithSecond("[S2]\nType=2\nName=N2\nPortNum=0\n"), 3, kWithoutSecond,
     NoSpecial("-31", " err! iResult = -2, section = S2, key = SpecialPortNum")},
    {"TooManySpecialPorts", WithSecond("[S2]\nType=2\nName=N2\nPortNum=0\nSpecialPortNum=-1\n"), 3,
     kWithoutSecond,
     NoSpecial("-13",
               " err! ulTotalSpecialPortNum = -1, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = 128")},
    {"SpecialPortUnknown", WithSecond(BoardSection("S2", "2", "N2", {"GPON", "GE"}, {"EPON"})), 3,
     kWithoutSecond,
     NoSpecial("-1",
               "->dd_IsOltPonTypeSupportedBySecName err! iResult = -32, strKey = "
               "NameKeySpecialPort1, ulIndex = 0"),
     2},
    {"SearchGoesOnFromAFaultyBoard",
     BoardList(kS123) + Section("1") + kDecoy3 + "[S2]\nType=2\n" + kNoNumbers + Section("3"), 3,
     kWithoutSecond, NoName("-2")},
    {"FaultyBoardTwice",
     BoardList({"S2", "S2", "S3"}) + "[S2]\nType=2\n" + Section("3"),
     3,
     {Record(3)},
     NoName("-2") + NoName("-2")},
};
INSTANTIATE_TEST_SUITE_P(Partial, LoadServiceBoards, testing::ValuesIn(kPartialLoads),
                         testing::PrintToStringParamName());

// ---- Nothing to load ----------------------------------------------------------

class LoadNoServiceBoards : public ServiceBoardsTest,
                            public testing::WithParamInterface<test::ZeroRow> {};

TEST_P(LoadNoServiceBoards, ReportsAnEmptyListAndFindsNoMaximum) {
  const string file = Announce(GetParam().text);
  for (const int32_t debug : {0, 1}) {
    BoardFaults faults(file, debug);
    MarkTable();

    EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), 0);

    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllSupportedBoardInformation ok! ulSupportedOnuTypeNum = 0");
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, 0u);
    EXPECT_EQ(gstSupportedBoardType.pBoardTypeArray, nullptr);
    ExpectMaximum(0x7e7e, 0x6d6d);
    EXPECT_EQ(finish.calls, 0);
    EXPECT_TRUE(test::FakePlatform::Get().asked.empty());
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.allocations.count(), 0);
    test::ExpectAllClosed(faults);
  }
}

INSTANTIATE_TEST_SUITE_P(ServiceBoards, LoadNoServiceBoards, testing::ValuesIn(test::kZeros),
                         testing::PrintToStringParamName());

// ---- No number ----------------------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  test::FaultPlan test::Faults::*failing = nullptr;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToLoadServiceBoards : public ServiceBoardsTest,
                                public testing::WithParamInterface<FailRow> {};

TEST_P(FailToLoadServiceBoards, ClearsTheCountOnly) {
  for (const int32_t debug : {0, 1}) {
    BoardFaults faults(GetParam().file, debug);
    if (GetParam().failing != nullptr) {
      (faults.*GetParam().failing).FailFrom(1, 1);
    }
    MarkTable();

    EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), GetParam().code);

    EXPECT_EQ(console_.Text(), GetParam().console);
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, 0u);
    EXPECT_EQ(gstSupportedBoardType.pBoardTypeArray, kOldArray);
    ExpectMaximum(0x7e7e, 0x6d6d);
    EXPECT_EQ(finish.calls, 0);
    EXPECT_EQ(faults.allocations.count(), 0);
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.closes, GetParam().failing == &test::Faults::opens ? 0 : 1);
    gstSupportedBoardType = {};
  }
}

string TooMany(const string& number) {
  return "\r\nddReadAllSupportedBoardInformation err! ulSupportedOnuTypeNum = " + number +
         ", MAX_OLT_BOARD_TYPE_NUM = 100";
}
string NoNumber(const string& code) {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = " + code +
         ", section = SupportedBoardType, key = SupportedBoardTypeNum";
}

const FailRow kFails[] = {
    {"OneTooMany", Announce("101"), -19, TooMany("101")},
    {"OneTooManyListed", ManyBoards(101), -19, TooMany("101")},
    {"Negative", Announce("-1"), -19, TooMany("-1")},
    {"Largest", Announce("2147483647"), -19, TooMany("2147483647")},
    {"Above31Bits", Announce("2147483648"), -19, TooMany("2147483647")},
    {"Above32Bits", Announce("4294967297"), -19, TooMany("2147483647")},
    {"Below32Bits", Announce("-4294967295"), -19, TooMany("-2147483648")},
    {"NoSection", Section("1"), -31, NoNumber("-1")},
    {"SectionOfOtherCase", "[supportedboardtype]\nSupportedBoardTypeNum=1\n", -31, NoNumber("-1")},
    {"NoKey", "[SupportedBoardType]\nSupportedBoardType1=S1\n" + Section("1"), -31, NoNumber("-2")},
    {"BrokenEntry", "[SupportedBoardType]\nnonsense\nSupportedBoardTypeNum=1\n", -31,
     NoNumber("-14")},
    {"BrokenHeader", "[Broken\n" + Announce("1"), -31, NoNumber("-14")},
    {"EntryTooLong",
     "[SupportedBoardType]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') +
         "\nSupportedBoardTypeNum=1\n",
     -31, NoNumber("-22")},
    {"NotOpened", Announce("1"), -31, NoNumber("-10"), &test::Faults::opens},
    {"NotSought", Announce("1"), -31, NoNumber("-12"), &test::Faults::seeks},
    {"NotRead", Announce("1"), -31, NoNumber("-12"), &test::Faults::reads},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, FailToLoadServiceBoards, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

// ---- Abandoned loads ----------------------------------------------------------

struct AbandonRow {
  const char* name;
  string file;
  size_t announced;
  std::vector<ExpectedBoard> boards;
  string console;
  friend std::ostream& operator<<(std::ostream& out, const AbandonRow& row) {
    return out << row.name;
  }
};

class AbandonServiceBoards : public ServiceBoardsTest,
                             public testing::WithParamInterface<AbandonRow> {
 protected:
  void ExpectToAbandon(const AbandonRow& row, int32_t debug);
};

void AbandonServiceBoards::ExpectToAbandon(const AbandonRow& row, int32_t debug) {
  BoardFaults faults(row.file, debug);
  MarkTable();

  EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), -31);

  EXPECT_EQ(console_.Text(), row.console);
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, 9u);  // untouched
  ExpectMaximum(0x7e7e, 0x6d6d);
  EXPECT_EQ(finish.calls, 0);
  test::ExpectAllClosed(faults);
  // The boards stay where they are, and only the count does not tell of them.
  gstSupportedBoardType.ulSupportedBoardTypeNum = static_cast<uint32_t>(row.boards.size());
  ExpectBoards(faults, row.announced, row.boards);
  test::ExpectNoLeak(faults);
}

TEST_P(AbandonServiceBoards, LeavesTheBoardsReadSoFar) {
  for (const int32_t debug : {0, 1}) {
    ExpectToAbandon(GetParam(), debug);
  }
}

string NoSection(const string& section, const string& code = "-1") {
  return "\r\nddReadAllSupportedBoardInformation err! iResult = " + code +
         ", strSectionFrameNameBuf = " + section + ", Key = Type";
}

const AbandonRow kAbandons[] = {
    {"FirstSectionMissing", BoardList(kS123) + Section("2") + Section("3"), 3, {}, NoSection("S1")},
    {"SecondSectionMissing",
     BoardList(kS123) + Section("1") + Section("3"),
     3,
     {Record(1)},
     NoSection("S2")},
    {"LastSectionMissing",
     BoardList(kS123) + Section("1") + Section("2"),
     3,
     {Record(1), Record(2)},
     NoSection("S3")},
    {"SectionInFrontOfTheList", Section("1") + BoardList({"S1"}), 1, {}, NoSection("S1")},
    {"SecondSectionInFrontOfTheList",
     Section("2") + BoardList(kS123) + Section("1") + Section("3"),
     3,
     {Record(1)},
     NoSection("S2")},
    {"SameSectionAgainAfterAnother",
     BoardList({"S1", "S2", "S1"}) + Section("1") + Section("2"),
     3,
     {Record(1), Record(2)},
     NoSection("S1")},
    {"EntryIsEmpty", BoardList({"S1", ""}) + Section("1"), 2, {Record(1)}, NoSection("")},
    {"TypeMissing",
     WithSecond("[S2]\nName=N2\n" + kNoNumbers),
     3,
     {Record(1)},
     NoSection("S2", "-2")},
    {"TypeInTheNextSectionOfTheName",
     WithSecond("[S2]\nName=N2\n" + Section("2")),
     3,
     {Record(1)},
     NoSection("S2", "-2")},
    {"BrokenEntryBeforeTheType",
     WithSecond("[S2]\nnonsense\nType=2\n"),
     3,
     {Record(1)},
     NoSection("S2", "-14")},
    {"BrokenHeaderBetween",
     WithSecond("[Broken\n" + Section("2")),
     3,
     {Record(1)},
     NoSection("S2", "-14")},
    {"EntryBeforeTheTypeTooLong",
     WithSecond("[S2]\nX=" + string(500, 'a') + "+\n" + string(20, 'b') + "\nType=2\n"),
     3,
     {Record(1)},
     NoSection("S2", "-22")},
    {"AfterAFaultyBoard",
     BoardList({"S1", "S2", "S3"}) + Section("1") + Section("3") + "[S2]\nType=2\n" + kNoNumbers,
     3,
     {Record(1)},
     NoName("-2") + NoSection("S3")},
    {"AfterAMissingEntry",
     "[SupportedBoardType]\nSupportedBoardTypeNum=3\nSupportedBoardType2=S2\n"
     "SupportedBoardType3=S1\n" +
         Section("1") + Section("2"),
     3,
     {Record(2)},
     NoEntry("-2", "1") + NoSection("S1")},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, AbandonServiceBoards, testing::ValuesIn(kAbandons),
                         testing::PrintToStringParamName());

// Sections number `first` and `second` (from 1) of `count` have changed places.
// The first of them is found late, and so the one listed behind it is not.
AbandonRow Swapped(int count, int first, int second) {
  AbandonRow row = {"Swapped", "", static_cast<size_t>(count), {}, ""};
  Names sections;
  for (int i = 1; i <= count; ++i) {
    sections.push_back("S" + std::to_string(i));
  }
  row.file = BoardList(sections);
  for (int i = 1; i <= count; ++i) {
    row.file += Section(std::to_string(i == first ? second : i == second ? first : i));
  }
  for (int i = 1; i <= first; ++i) {
    row.boards.push_back(Record(static_cast<uint32_t>(i)));
  }
  row.console = NoSection("S" + std::to_string(first + 1));
  return row;
}

class SwappedServiceBoards : public AbandonServiceBoards {};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, SwappedServiceBoards,
                         testing::Values(Swapped(2, 1, 2), Swapped(3, 1, 2), Swapped(3, 1, 3),
                                         Swapped(3, 2, 3), Swapped(4, 1, 2), Swapped(4, 1, 3),
                                         Swapped(4, 1, 4), Swapped(4, 2, 3), Swapped(4, 2, 4),
                                         Swapped(4, 3, 4)));

TEST_P(SwappedServiceBoards, EndTheLoad) {
  ExpectToAbandon(GetParam(), 0);
}

// ---- The largest PON board ----------------------------------------------------

using ServiceBoards = ServiceBoardsTest;

const string kPonBoards = BoardList({"A", "B", "C", "D"}) + BoardSection("A", "65", "A", {"GPON"}) +
                          BoardSection("B", "66", "B", {"GPON", "GPON"}, {"GE"}) +
                          BoardSection("C", "67", "C", {"GPON", "GPON"}) +
                          BoardSection("D", "68", "D", {"GE", "GE", "GE"});

TEST_F(ServiceBoards, LoadingFindsTheLargestPonBoard) {
  test::FakePlatform::Get().pon_cards = {65, 66, 67};
  BoardFaults faults(kPonBoards);
  EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), 0);
  EXPECT_EQ(console_.Text(), "");
  ExpectMaximum(66, 2);
  EXPECT_EQ(test::FakePlatform::TakeAsked(),
            (std::vector<string>{"pon 65", "pon 66", "pon 67", "pon 68"}));
  test::ExpectNoLeak(faults);
}

TEST_F(ServiceBoards, TheSearchForTheLargestPonBoardFails) {
  for (const int32_t debug : {0, 1}) {
    finish = {0, -77, 0};
    BoardFaults faults(kPonBoards, debug);
    EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), -77);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadAllSupportedBoardInformation->ddFindSupportedBoardMaxPonNum err!");
    EXPECT_EQ(finish.calls, 1);
    EXPECT_EQ(finish.count, 4u);
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, 4u);
    ExpectMaximum(0, 0);
    test::ExpectNoLeak(faults);
  }
}

// ---- Arguments and the file ---------------------------------------------------

TEST_F(ServiceBoards, NullPath) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    MarkTable();
    EXPECT_EQ(ddReadAllSupportedBoardInformation(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddReadAllSupportedBoardInformation err!, strFileName = 0x0");
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, 0u);
    EXPECT_EQ(gstSupportedBoardType.pBoardTypeArray, kOldArray);
    ExpectMaximum(0x7e7e, 0x6d6d);
    gstSupportedBoardType = {};
  }
}

TEST_F(ServiceBoards, MissingFile) {
  MarkTable();
  EXPECT_EQ(ddReadAllSupportedBoardInformation("/nonexistent/device_definition.ini"), -31);
  EXPECT_EQ(console_.Text(), NoNumber("-10"));
  EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, 0u);
  EXPECT_EQ(gstSupportedBoardType.pBoardTypeArray, kOldArray);
  gstSupportedBoardType = {};
}

// The number; for each board its place in the list, its type twice, its name and
// two numbers; and each port.
TEST_F(ServiceBoards, LookupsOfALoad) {
  const string file = WithSecond(Section("2"));
  BoardFaults faults(file);
  EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), 0);
  EXPECT_EQ(faults.opens.count(), 1 + 3 * (6 + 3));
  test::ExpectAllClosed(faults);
}

// Line numbers count from where a search began: here from the list's own header.
TEST_F(ServiceBoards, ListEntriesAreSearchedFromTheListSection) {
  const string file = "; boards\n\n[X]\nA=1\n" + Announce("3");
  BoardFaults faults(file);
  EXPECT_EQ(ddReadAllSupportedBoardInformation(BoardFaults::kPath), 0);
  EXPECT_EQ(console_.Text(), NoEntry("-2", "3"));  // the last lookup
  EXPECT_EQ(CFG_section_line_no, 1);
  EXPECT_EQ(CFG_key_line_no, 5);
}

}  // namespace
