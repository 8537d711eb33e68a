// One service board: reading it from its own section, and releasing it.
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/service_boards.h"
#include "support/leaks.h"
#include "support/null_arguments.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::BoardFaults;
using test::BoardSection;
using test::ExpectedBoard;
using test::Names;

BoardInformation* const kUntouched = reinterpret_cast<BoardInformation*>(uintptr_t{0x1234});
const string k59(59, 'n');
const string k60(60, 'n');
const Names k127(127, "GPON");
const Names k128(128, "GPON");

class ServiceBoardTest : public test::LibraryTest {
 protected:
  // Releases a board that has fewer than 128 ports of each kind.
  void ExpectToRelease(const BoardFaults& faults, BoardInformation* board) {
    EXPECT_EQ(ddFreeOneBoardAllObj(board), 0);
    EXPECT_EQ(console_.Text(), "");
    EXPECT_EQ(faults.OwnBlocks(), 0u);
  }

  test::Console console_;
};

// ---- A board that reads well --------------------------------------------------

struct ReadRow {
  const char* name;
  string file;
  ExpectedBoard board;
  friend std::ostream& operator<<(std::ostream& out, const ReadRow& row) { return out << row.name; }
};

class ReadServiceBoard : public ServiceBoardTest, public testing::WithParamInterface<ReadRow> {};

TEST_P(ReadServiceBoard, HandsOverARecord) {
  const ExpectedBoard& expected = GetParam().board;
  for (const int32_t debug : {0, 1}) {
    BoardFaults faults(GetParam().file, debug);
    BoardInformation* board = kUntouched;

    ASSERT_EQ(ddReadOneSupportedBoardInformation(BoardFaults::kPath, "Sec", 0, &board), 0);

    EXPECT_EQ(console_.Text(), "");
    test::ExpectServiceBoard(faults, board, expected);
    EXPECT_EQ(faults.OwnBlocks(), test::BlocksOf(expected));
    EXPECT_EQ(faults.opens.count(),
              static_cast<int>(4 + expected.serving.size() + expected.special.size()));
    test::ExpectAllClosed(faults);
    ExpectToRelease(faults, board);
  }
}

string Sec(const string& type, const string& name = "N") {
  return BoardSection("Sec", type, name, {"GPON"}, {"GE"});
}
ExpectedBoard SecBoard(uint32_t type, const string& name = "N") {
  return {type, name, {"GPON"}, {"GE"}};
}

const ReadRow kReads[] = {
    {"Plain", Sec("7"), SecBoard(7)},
    {"NoPorts", BoardSection("Sec", "7", "N"), {7, "N", {}, {}}},
    {"OnlyServingPorts",
     BoardSection("Sec", "7", "N", {"GE", "GPON"}),
     {7, "N", {"GE", "GPON"}, {}}},
    {"OnlySpecialPorts",
     BoardSection("Sec", "7", "N", {}, {"GE", "GPON"}),
     {7, "N", {}, {"GE", "GPON"}}},
    {"KeysInAnyOrder",
     "[Other]\nType=9\n[Sec]\nNameKeySpecialPort1=GE\nSpecialPortNum=1\nNameKeyPort1=GPON\n"
     "PortNum=1\nSubType=8\nName=N\nType=7\n",
     SecBoard(7)},
    {"FirstKeyWins", Sec("7") + "Type=8\nName=B\nPortNum=0\nSpecialPortNum=0\n", SecBoard(7)},
    {"FirstSectionWins", Sec("7") + Sec("8", "B"), SecBoard(7)},
    {"NameEmpty", Sec("1", ""), SecBoard(1, "")},
    {"NameWithBlanks", Sec("1", "two words"), SecBoard(1, "two words")},
    {"NameLongest", Sec("1", k59), SecBoard(1, k59)},
    {"MostPortsBelowTheBound", BoardSection("Sec", "1", "N", k127, k127), {1, "N", k127, k127}},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, ReadServiceBoard, testing::ValuesIn(kReads),
                         testing::PrintToStringParamName());

std::vector<ReadRow> TypeReads() {
  std::vector<ReadRow> rows;
  for (const test::TypeRow& row : test::kTypes) {
    rows.push_back({row.name, Sec(row.text), SecBoard(row.type)});
  }
  return rows;
}
INSTANTIATE_TEST_SUITE_P(Types, ReadServiceBoard, testing::ValuesIn(TypeReads()),
                         testing::PrintToStringParamName());

using ServiceBoardRecord = ServiceBoardTest;

TEST_F(ServiceBoardRecord, AsManyPortsAsPossible) {
  const string file = BoardSection("Sec", "1", "N", k128, Names(128, "GE"));
  BoardFaults faults(file);
  BoardInformation* board = nullptr;
  ASSERT_EQ(ddReadOneSupportedBoardInformation(BoardFaults::kPath, "Sec", 0, &board), 0);
  test::ExpectServiceBoard(faults, board, {1, "N", k128, Names(128, "GE")});
  EXPECT_EQ(ddFreeOneBoardAllObj(board), 0);
  EXPECT_EQ(faults.OwnBlocks(), 256u);
  test::ExpectAndReleaseLost(faults, 256);  // the copies of both full lists
}

TEST_F(ServiceBoardRecord, EveryKeyIsSearchedFromThePosition) {
  const string first = BoardSection("Sec", "1", "First", {"GPON"}, {"GE"});
  const string second = BoardSection("Sec", "2", "Second", {"GE", "XGSPON"}, {"GPON", "GPON"});
  const string file = first + second;
  for (const size_t start : {size_t{0}, size_t{1}, first.size()}) {
    SCOPED_TRACE(start);
    BoardFaults faults(file);
    BoardInformation* board = nullptr;
    ASSERT_EQ(ddReadOneSupportedBoardInformation(BoardFaults::kPath, "Sec",
                                                 static_cast<int32_t>(start), &board),
              0);
    if (start == 0) {
      test::ExpectServiceBoard(faults, board, {1, "First", {"GPON"}, {"GE"}});
    } else {
      test::ExpectServiceBoard(faults, board, {2, "Second", {"GE", "XGSPON"}, {"GPON", "GPON"}});
    }
    ExpectToRelease(faults, board);
  }
}

// ---- A board that does not ----------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  string console;
  int32_t start = 0;
  size_t lost = 0;  // copies of serving ports that are not released
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class FailToReadServiceBoard : public ServiceBoardTest,
                               public testing::WithParamInterface<FailRow> {};

TEST_P(FailToReadServiceBoard, ReleasesItAndClearsThePointer) {
  for (const int32_t debug : {0, 1}) {
    BoardFaults faults(GetParam().file, debug);
    BoardInformation* board = kUntouched;

    EXPECT_EQ(
        ddReadOneSupportedBoardInformation(BoardFaults::kPath, "Sec", GetParam().start, &board),
        GetParam().code);

    EXPECT_EQ(board, nullptr);
    EXPECT_EQ(console_.Text(), GetParam().console);
    test::ExpectAllClosed(faults);
    EXPECT_EQ(faults.OwnBlocks(), GetParam().lost);
    for (void* const block : test::LostBlocks(faults)) {
      EXPECT_EQ(faults.blocks.at(block), sizeof(OltPortInformation));
    }
    test::ExpectAndReleaseLost(faults, GetParam().lost);
  }
}

string NoType(const string& code) {
  return "\r\nddReadOneSupportedBoardInformation err! iResult = " + code +
         ", strSectionFrameNameBuf = Sec, Key = Type";
}
string NoName(const string& code) {
  return "\r\nddReadOneSupportedBoardInformation err! iResult = " + code +
         ", section = Sec, key = Name";
}
string NameTooLong(const string& length) {
  return "\r\nddReadOneSupportedBoardInformation err! ulNameLen = " + length;
}
string NoServing(const string& reason) {
  return "\r\nddAddSupportedServePortToBoardObj" + reason +
         "\r\nddReadOneSupportedBoardInformation->ddAddSupportedServePortToBoardObj err! "
         "strBoardTypeSection = Sec";
}
string NoSpecial(const string& reason) {
  return "\r\nddAddSupportedSpecialPortToBoardObj" + reason +
         "\r\nddReadOneSupportedBoardInformation->ddAddSupportedSpecialPortToBoardObj err! "
         "strBoardTypeSection = Sec";
}

// "Sec" of two serving ports, and then this.
string Two(const string& special) {
  return "[Sec]\nType=1\nName=N\nPortNum=2\nNameKeyPort1=GPON\nNameKeyPort2=GE\n" + special;
}
// "Sec" of so many serving ports, and then this.
string Many(const Names& serving, const string& special) {
  return "[Sec]\nType=1\nName=N\n" + test::ServingPorts(serving) + special;
}
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kFails[] = {
    {"NoSection", "[sec]\nType=1\nName=N\n", -31, NoType("-1")},
    {"EmptySection", "[Sec]\n[Next]\nType=1\n", -31, NoType("-2")},
    {"NoType", "[Sec]\nName=N\nPortNum=0\nSpecialPortNum=0\n", -31, NoType("-2")},
    {"TypeOfOtherCase", "[Sec]\ntype=1\nName=N\n", -31, NoType("-2")},
    {"BrokenBeforeType", "[Sec]\nnonsense\nType=1\nName=N\n", -31, NoType("-14")},
    {"BrokenHeader", "[Broken\n" + Sec("1"), -31, NoType("-14")},
    {"TooLongBeforeType", "[Sec]\n" + kTooLong + "Type=1\nName=N\n", -31, NoType("-22")},
    {.name = "SectionBeforeThePosition",
     .file = Sec("1"),
     .code = -31,
     .console = NoType("-1"),
     .start = 1},
    {.name = "PositionBehindTheFile",
     .file = Sec("1"),
     .code = -31,
     .console = NoType("-1"),
     .start = 100000},
    {.name = "LargestPosition",
     .file = Sec("1"),
     .code = -31,
     .console = NoType("-1"),
     .start = INT32_MAX},
    {"NoName", "[Sec]\nType=1\nPortNum=0\nSpecialPortNum=0\n", -31, NoName("-2")},
    {"BrokenBeforeName", "[Sec]\nType=1\nnonsense\nName=N\n", -31, NoName("-14")},
    {"TooLongBeforeName", "[Sec]\nType=1\n" + kTooLong + "Name=N\n", -31, NoName("-22")},
    {"NameTooLong", Sec("1", k60), -33, NameTooLong("61")},
    {"NameFarTooLong", Sec("1", string(507, 'n')), -33, NameTooLong("508")},
    {"NameTooLongAndNoPorts", "[Sec]\nType=1\nName=" + k60 + "\n", -33, NameTooLong("61")},
    {"NoPortNum", "[Sec]\nType=1\nName=N\nSpecialPortNum=0\n", -31,
     NoServing(" err! iResult = -2, section = Sec, key = PortNum")},
    {"TooManyPorts", "[Sec]\nType=1\nName=N\nPortNum=129\n", -13,
     NoServing(" err! ulTotalServePortNum = 129, MAX_OLT_PORT_NUM_PER_BOARD = 128")},
    {"NegativePortNum", "[Sec]\nType=1\nName=N\nPortNum=-1\n", -13,
     NoServing(" err! ulTotalServePortNum = -1, MAX_OLT_PORT_NUM_PER_BOARD = 128")},
    {"PortMissing", "[Sec]\nType=1\nName=N\nPortNum=2\nNameKeyPort1=GPON\nSpecialPortNum=0\n", -1,
     NoServing(" err! iResult = -2, section = Sec, key = NameKeyPort2")},
    {"PortUnknown",
     "[Sec]\nType=1\nName=N\nPortNum=2\nNameKeyPort1=GPON\nNameKeyPort2=EPON\nSpecialPortNum=0\n",
     -1,
     NoServing("->dd_IsOltPonTypeSupportedBySecName err! iResult = -32, strKey = NameKeyPort2, "
               "ulIndex = 0")},
    {"NoSpecialPortNum", Two(""), -31,
     NoSpecial(" err! iResult = -2, section = Sec, key = SpecialPortNum")},
    {"TooManySpecialPorts", Two("SpecialPortNum=129\n"), -13,
     NoSpecial(" err! ulTotalSpecialPortNum = 129, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = 128")},
    {"NegativeSpecialPortNum", Two("SpecialPortNum=-1\n"), -13,
     NoSpecial(" err! ulTotalSpecialPortNum = -1, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = 128")},
    {.name = "SpecialPortMissing",
     .file = Two("SpecialPortNum=2\nNameKeySpecialPort1=GE\n"),
     .code = -1,
     .console = NoSpecial(" err! iResult = -2, section = Sec, key = NameKeySpecialPort2"),
     .lost = 2},
    {.name = "SpecialPortUnknown",
     .file = Two("SpecialPortNum=1\nNameKeySpecialPort1=EPON\n"),
     .code = -1,
     .console = NoSpecial("->dd_IsOltPonTypeSupportedBySecName err! iResult = -32, strKey = "
                          "NameKeySpecialPort1, ulIndex = 0"),
     .lost = 2},
    {"SpecialPortMissingWithoutServingPorts",
     "[Sec]\nType=1\nName=N\nPortNum=0\nSpecialPortNum=2\nNameKeySpecialPort1=GE\n", -1,
     NoSpecial(" err! iResult = -2, section = Sec, key = NameKeySpecialPort2")},
    {"NoSpecialPortNumBehind127Ports", Many(k127, ""), -31,
     NoSpecial(" err! iResult = -2, section = Sec, key = SpecialPortNum")},
    {.name = "NoSpecialPortNumBehind128Ports",
     .file = Many(k128, ""),
     .code = -31,
     .console = NoSpecial(" err! iResult = -2, section = Sec, key = SpecialPortNum"),
     .lost = 128},
    {.name = "TooManySpecialPortsBehind128Ports",
     .file = Many(k128, "SpecialPortNum=129\n"),
     .code = -13,
     .console =
         NoSpecial(" err! ulTotalSpecialPortNum = 129, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = 128"),
     .lost = 128},
    {.name = "SpecialPortMissingBehind127Ports",
     .file = Many(k127, "SpecialPortNum=1\n"),
     .code = -1,
     .console = NoSpecial(" err! iResult = -2, section = Sec, key = NameKeySpecialPort1"),
     .lost = 127},
    {.name = "SpecialPortMissingBehind128Ports",
     .file = Many(k128, "SpecialPortNum=1\n"),
     .code = -1,
     .console = NoSpecial(" err! iResult = -2, section = Sec, key = NameKeySpecialPort1"),
     .lost = 128},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, FailToReadServiceBoard, testing::ValuesIn(kFails),
                         testing::PrintToStringParamName());

TEST_F(ServiceBoardRecord, NullArgumentsTouchNothing) {
  BoardInformation* board = kUntouched;
  for (const int32_t start : {0, -1}) {  // looked at later only
    test::ExpectNullArgumentsRefused(
        console_,
        "\r\nddReadOneSupportedBoardInformation err! strFileName = {file}, strOltPonTypeSection = {section}, pOltPonTypeObjAddr = {record}",
        &board, [=](const char* file, const char* section, BoardInformation** output) {
          return ddReadOneSupportedBoardInformation(file, section, start, output);
        });
  }
  EXPECT_EQ(board, kUntouched);
}

TEST_F(ServiceBoardRecord, NegativePositionsTouchNothing) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    BoardInformation* board = kUntouched;
    test::Faults faults;
    EXPECT_EQ(ddReadOneSupportedBoardInformation("/boards.ini", "Sec", -1, &board), -31);
    EXPECT_EQ(console_.Text(), "\r\nddReadOneSupportedBoardInformation err! iOffsetIn = -1");
    EXPECT_EQ(ddReadOneSupportedBoardInformation("/boards.ini", "Sec", INT32_MIN, &board), -31);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadOneSupportedBoardInformation err! iOffsetIn = -2147483648");
    EXPECT_EQ(board, kUntouched);
    EXPECT_EQ(faults.opens.count(), 0);
  }
}

TEST_F(ServiceBoardRecord, MissingFile) {
  BoardInformation* board = kUntouched;
  EXPECT_EQ(ddReadOneSupportedBoardInformation("/nonexistent/boards.ini", "Sec", 0, &board), -31);
  EXPECT_EQ(board, nullptr);
  EXPECT_EQ(console_.Text(), NoType("-10"));
}

TEST_F(ServiceBoardRecord, NoMemory) {
  const string file = Sec("1");
  for (const int calls : {1, test::FaultPlan::kForEver}) {
    BoardInformation* board = kUntouched;
    BoardFaults faults(file);
    faults.allocations.FailFrom(1, calls);
    EXPECT_EQ(ddReadOneSupportedBoardInformation(BoardFaults::kPath, "Sec", 0, &board), -27);
    EXPECT_EQ(board, nullptr);
    EXPECT_EQ(console_.Text(),
              "\r\nddReadOneSupportedBoardInformation->malloc err! pstBoardInformation = 0x0");
    EXPECT_EQ(faults.opens.count(), 1);
    EXPECT_EQ(faults.OwnBlocks(), 0u);
  }
}

TEST_F(ServiceBoardRecord, NoMemoryForPorts) {
  const string file = Sec("1");
  for (const bool special : {false, true}) {
    BoardInformation* board = kUntouched;
    BoardFaults faults(file);
    faults.allocations.FailFrom(special ? 4 : 2, 1);
    EXPECT_EQ(ddReadOneSupportedBoardInformation(BoardFaults::kPath, "Sec", 0, &board), -27);
    EXPECT_EQ(board, nullptr);
    EXPECT_EQ(console_.Text(), special
                                   ? NoSpecial(" err! pstBoardInformation->pSpecialPortArray = 0x0")
                                   : NoServing(" err! pstBoardInformation->pPortArray = 0x0"));
    EXPECT_EQ(faults.OwnBlocks(), 0u);
  }
}

// ---- Releasing a board --------------------------------------------------------

// A list of ports: its array has `places`, of which `present` hold a port.
struct PortList {
  uint32_t count = 0;
  size_t places = 0;
  std::vector<size_t> empty = {};
};

PortList Ports(uint32_t count) {
  return {count, count};
}
const PortList kNoArray = {5, 0};

struct ReleaseRow {
  const char* name;
  PortList serving;
  PortList special;
  size_t lost;
  friend std::ostream& operator<<(std::ostream& out, const ReleaseRow& row) {
    return out << row.name;
  }
};

class ReleaseServiceBoard : public ServiceBoardTest,
                            public testing::WithParamInterface<ReleaseRow> {
 protected:
  static OltPortInformation** Make(const PortList& list) {
    if (list.places == 0) {
      return nullptr;
    }
    auto** const ports = test::ZeroedBlocks<OltPortInformation*>(list.places);
    for (size_t i = 0; i < list.places; ++i) {
      ports[i] = test::ZeroedBlocks<OltPortInformation>(1);
    }
    for (const size_t place : list.empty) {
      std::free(ports[place]);
      ports[place] = nullptr;
    }
    return ports;
  }
};

TEST_P(ReleaseServiceBoard, ButThePortsOfAFullList) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    test::Faults faults;
    auto* const board = test::ZeroedBlocks<BoardInformation>(1);
    board->ulTotalServePortNum = GetParam().serving.count;
    board->pPortArray = Make(GetParam().serving);
    board->ulTotalSpecialPortNum = GetParam().special.count;
    board->pSpecialPortArray = Make(GetParam().special);

    EXPECT_EQ(ddFreeOneBoardAllObj(board), 0);

    EXPECT_EQ(console_.Text(), "");
    for (const auto& [block, size] : faults.blocks) {
      EXPECT_EQ(size, sizeof(OltPortInformation));
    }
    test::ExpectAndReleaseLost(faults, GetParam().lost);
  }
}

const ReleaseRow kReleases[] = {
    {"NoPorts", {}, {}, 0},
    {"CountsWithoutArrays", kNoArray, kNoArray, 0},
    {"FullCountsWithoutArrays", {128, 0}, {128, 0}, 0},
    {"LargestCountsWithoutArrays", {0xffffffff, 0}, {0xffffffff, 0}, 0},
    {"One", Ports(1), Ports(1), 0},
    {"OnlyServing", Ports(3), {}, 0},
    {"OnlySpecial", {}, Ports(3), 0},
    {"ServingWithoutSpecialArray", Ports(3), kNoArray, 0},
    {"SpecialWithoutServingArray", kNoArray, Ports(3), 0},
    {"127", Ports(127), Ports(127), 0},
    {"128Serving", Ports(128), Ports(127), 128},
    {"128Special", Ports(127), Ports(128), 128},
    {"128Both", Ports(128), Ports(128), 256},
    {"129Serving", Ports(129), Ports(2), 129},
    {"129Special", Ports(2), Ports(129), 129},
    {"CorruptServingCount", {0xffffffff, 3}, Ports(2), 3},
    {"CorruptSpecialCount", Ports(2), {0xffffffff, 3}, 3},
    {"ServingCountCleared", {0, 2}, Ports(2), 2},
    {"SpecialCountCleared", Ports(2), {0, 2}, 2},
    {"PortsBehindTheCount", {2, 5}, {1, 3}, 5},
    {"EmptyPlaces", {4, 4, {0, 2}}, {3, 3, {1, 2}}, 0},
    {"OnlyEmptyPlaces", {2, 2, {0, 1}}, {2, 2, {0, 1}}, 0},
    {"EmptyPlacesInFullLists", {128, 128, {0, 127}}, {128, 128, {5}}, 126 + 127},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, ReleaseServiceBoard, testing::ValuesIn(kReleases),
                         [](const auto& row) { return string("Of") + row.param.name; });

TEST_F(ServiceBoardRecord, ReleasingNone) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_EQ(ddFreeOneBoardAllObj(nullptr), -2);
    EXPECT_EQ(console_.Text(), "\r\nddAddSupportedLanToOnuObj err! pstBoardInformation = 0x0");
  }
}

}  // namespace
