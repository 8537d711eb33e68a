// The ports of a service board: both kinds of them, by the same rows.
#include <cstdint>
#include <cstring>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "catalog/olt/service_boards.h"
#include "support/rows.h"
#include "support/text.h"

// The functions of the port types answer for the name "ODD" as a test says.
struct OddPort {
  int32_t lookup_code = 0;
  uint32_t supported = 1;
  uint32_t index = 0;
  int32_t copy_code = 0;
};
static OddPort odd_port;

extern "C" {
int32_t __real_ddIsOltPortTypeSupportedByName(const char* name, uint32_t* supported,
                                              uint32_t* index);
int32_t __wrap_ddIsOltPortTypeSupportedByName(const char* name, uint32_t* supported,
                                              uint32_t* index);
int32_t __real_ddCreateOneOltPortObjByName(const char* name, OltPortInformation** port);
int32_t __wrap_ddCreateOneOltPortObjByName(const char* name, OltPortInformation** port);

int32_t __wrap_ddIsOltPortTypeSupportedByName(const char* name, uint32_t* supported,
                                              uint32_t* index) {
  if (name == nullptr || std::strcmp(name, "ODD") != 0) {
    return __real_ddIsOltPortTypeSupportedByName(name, supported, index);
  }
  *supported = odd_port.supported;
  *index = odd_port.index;
  return odd_port.lookup_code;
}

int32_t __wrap_ddCreateOneOltPortObjByName(const char* name, OltPortInformation** port) {
  if (name == nullptr || std::strcmp(name, "ODD") != 0) {
    return __real_ddCreateOneOltPortObjByName(name, port);
  }
  *port = odd_port.copy_code == 0 ? test::NewPort(test::KnownPortTypes()[2]) : nullptr;
  if (*port != nullptr) {
    (*port)->ulLink = 0;
  }
  return odd_port.copy_code;
}
}  // extern "C"

namespace {

using std::string;
using test::BoardFaults;
using test::Names;

// A kind of port. Rows for all kinds have "{f}" and so on in their texts.
struct Kind {
  const char* name;
  int32_t (*add)(const char* file, const char* section, int32_t start, BoardInformation* board);
  uint32_t BoardInformation::*count;
  OltPortInformation** BoardInformation::*ports;
  const char* function;
  const char* count_key;
  const char* port_key;
  const char* count_field;
  const char* array_field;
  const char* limit;
  friend std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.name; }
};

const Kind kKinds[] = {
    {"Serving", ddAddSupportedServePortToBoardObj, &BoardInformation::ulTotalServePortNum,
     &BoardInformation::pPortArray, "ddAddSupportedServePortToBoardObj", "PortNum", "NameKeyPort",
     "ulTotalServePortNum", "pPortArray", "MAX_OLT_PORT_NUM_PER_BOARD"},
    {"Special", ddAddSupportedSpecialPortToBoardObj, &BoardInformation::ulTotalSpecialPortNum,
     &BoardInformation::pSpecialPortArray, "ddAddSupportedSpecialPortToBoardObj", "SpecialPortNum",
     "NameKeySpecialPort", "ulTotalSpecialPortNum", "pSpecialPortArray",
     "MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD"},
};

string Of(const Kind& kind, string text) {
  const std::pair<string, string> words[] = {
      {"{f}", kind.function},        {"{count}", kind.count_key},   {"{port}", kind.port_key},
      {"{field}", kind.count_field}, {"{array}", kind.array_field}, {"{limit}", kind.limit},
  };
  for (const auto& [word, value] : words) {
    text = test::With(text, word, value);
  }
  return text;
}

// What a call does to the record.
enum class Effect {
  kNone,
  kNoCount,         // the kind's own count is cleared
  kNoCountNoArray,  // and its array
  kPortFailed,      // the count of SERVING ports and the kind's own array are cleared
  kFilled,
};

// A record in which everything is set, so that every change is seen.
BoardInformation MarkedBoard() {
  BoardInformation board = {};
  board.ulType = 101;
  board.ulSubType = 102;
  board.ulNameLen = 103;
  std::memset(board.acName, 'x', sizeof board.acName);
  board.ulTotalServePortNum = 104;
  board.pPortArray = reinterpret_cast<OltPortInformation**>(uintptr_t{0x1050});
  board.ulTotalSpecialPortNum = 106;
  board.pSpecialPortArray = reinterpret_cast<OltPortInformation**>(uintptr_t{0x1070});
  board.ulReserved = 108;
  return board;
}

void ExpectMarkedBut(const BoardInformation& board, const Kind& kind, Effect effect,
                     size_t filled) {
  BoardInformation expected = MarkedBoard();
  switch (effect) {
    case Effect::kNone:
      break;
    case Effect::kNoCount:
      expected.*kind.count = 0;
      break;
    case Effect::kNoCountNoArray:
      expected.*kind.count = 0;
      expected.*kind.ports = nullptr;
      break;
    case Effect::kPortFailed:
      expected.ulTotalServePortNum = 0;
      expected.*kind.ports = nullptr;
      break;
    case Effect::kFilled:
      expected.*kind.count = static_cast<uint32_t>(filled);
      expected.*kind.ports = board.*kind.ports;  // looked at elsewhere
      break;
  }
  EXPECT_EQ(board.ulType, expected.ulType);
  EXPECT_EQ(board.ulSubType, expected.ulSubType);
  EXPECT_EQ(board.ulNameLen, expected.ulNameLen);
  EXPECT_EQ(string(board.acName, 60), string(60, 'x'));
  EXPECT_EQ(board.ulTotalServePortNum, expected.ulTotalServePortNum);
  EXPECT_EQ(board.pPortArray, expected.pPortArray);
  EXPECT_EQ(board.ulTotalSpecialPortNum, expected.ulTotalSpecialPortNum);
  EXPECT_EQ(board.pSpecialPortArray, expected.pSpecialPortArray);
  EXPECT_EQ(board.ulReserved, expected.ulReserved);
}

void FreePorts(const Kind& kind, BoardInformation& board) {
  for (uint32_t i = 0; i < board.*kind.count; ++i) {
    std::free((board.*kind.ports)[i]);
  }
  std::free(board.*kind.ports);
}

// The words of a failure go to the caught console as well. So nothing is called
// after one: each further failure would repeat those before.
class BoardPortsTest : public test::LibraryTest {
 protected:
  void SetUp() override {
    LibraryTest::SetUp();
    odd_port = {};
  }

  // Reads the ports of section "Sec", and expects that it goes without a word.
  void ExpectToAdd(const Kind& kind, BoardFaults& faults, int32_t start, const Names& ports) {
    if (HasFailure()) {
      return;
    }
    BoardInformation board = MarkedBoard();
    EXPECT_EQ(kind.add(BoardFaults::kPath, "Sec", start, &board), 0);
    EXPECT_EQ(console_.Text(), "");
    ExpectMarkedBut(board, kind, Effect::kFilled, ports.size());
    ASSERT_EQ(board.*kind.count, ports.size());
    test::ExpectPorts(faults, board.*kind.ports, ports);
    EXPECT_EQ(faults.OwnBlocks(), ports.size() + 1);
    test::ExpectAllClosed(faults);
    FreePorts(kind, board);
  }

  // Reads them, and expects that nothing is kept of it.
  void ExpectToFail(const Kind& kind, BoardFaults& faults, int32_t code, Effect effect,
                    const string& console) {
    if (HasFailure()) {
      return;
    }
    BoardInformation board = MarkedBoard();
    EXPECT_EQ(kind.add(BoardFaults::kPath, "Sec", 0, &board), code);
    EXPECT_EQ(console_.Text(), Of(kind, console));
    ExpectMarkedBut(board, kind, effect, 0);
    EXPECT_EQ(faults.OwnBlocks(), 0u);
    test::ExpectAllClosed(faults);
  }

  test::Console console_;
};

// "Sec" with this number, and ports of these types.
string Sec(const string& number, const Names& ports) {
  return "[Sec]\n{count}=" + number + "\n" + test::Numbered("{port}", ports);
}

// ---- Ports that can be had ----------------------------------------------------

struct AddRow {
  const char* name;
  string file;
  Names ports;
  friend std::ostream& operator<<(std::ostream& out, const AddRow& row) { return out << row.name; }
};

class AddPorts : public BoardPortsTest,
                 public testing::WithParamInterface<std::tuple<Kind, AddRow>> {};

TEST_P(AddPorts, KeepsACopyForEach) {
  const auto& [kind, row] = GetParam();
  const string file = Of(kind, row.file);
  for (const int32_t debug : {0, 1}) {
    BoardFaults faults(file, debug);
    ExpectToAdd(kind, faults, 0, row.ports);
    EXPECT_EQ(faults.opens.count(), static_cast<int>(row.ports.size()) + 1);
    EXPECT_EQ(faults.allocations.count(), static_cast<int>(row.ports.size()) + 1);
  }
}

const AddRow kAdds[] = {
    {"One", Sec("1", {"GPON"}), {"GPON"}},
    {"SameTypeTwice", Sec("2", {"GE", "GE"}), {"GE", "GE"}},
    {"AllTypes",
     Sec("4", {string(59, 'p'), "GE", "GPON", "XGSPON"}),
     {string(59, 'p'), "GE", "GPON", "XGSPON"}},
    {"MoreListedThanAnnounced", Sec("1", {"GPON", "none"}), {"GPON"}},
    {"NumberWithText", Sec(" +2x", {"GPON", "GE"}), {"GPON", "GE"}},
    {"KeysInAnyOrder", "[Sec]\n{port}2=GE\nOther=1\n{port}1=GPON\n{count}=2\n", {"GPON", "GE"}},
    {"FirstKeyWins",
     "[Sec]\n{count}=1\n{count}=2\n{port}1=GPON\n{port}1=GE\n{port}2=GE\n",
     {"GPON"}},
    {"OtherKindBeside",
     "[Sec]\nPortNum=1\nSpecialPortNum=1\nNameKeyPort2=none\nNameKeySpecialPort2=none\n"
     "{count}=9\n{port}1=XGSPON\n",
     {"XGSPON"}},
    {"Most", Sec("128", Names(128, "GPON")), Names(128, "GPON")},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, AddPorts,
                         testing::Combine(testing::ValuesIn(kKinds), testing::ValuesIn(kAdds)),
                         test::KindAndRow());

using AddPortsOf = BoardPortsTest;

TEST_F(AddPortsOf, BothKindsOfOneSection) {
  const string file = test::BoardSection("Sec", "1", "N", {"GPON", "GE"}, {"XGSPON"});
  BoardFaults faults(file);
  BoardInformation board = {};
  EXPECT_EQ(ddAddSupportedServePortToBoardObj(BoardFaults::kPath, "Sec", 0, &board), 0);
  EXPECT_EQ(ddAddSupportedSpecialPortToBoardObj(BoardFaults::kPath, "Sec", 0, &board), 0);
  EXPECT_EQ(board.ulTotalServePortNum, 2u);
  EXPECT_EQ(board.ulTotalSpecialPortNum, 1u);
  test::ExpectPorts(faults, board.pPortArray, {"GPON", "GE"});
  test::ExpectPorts(faults, board.pSpecialPortArray, {"XGSPON"});
  for (const Kind& kind : kKinds) {
    FreePorts(kind, board);
  }
}

// ---- Ports that cannot --------------------------------------------------------

struct FailRow {
  const char* name;
  string file;
  int32_t code;
  Effect effect;
  string console = "";
  string debug_console = "";  // before `console`, under the debug switch
  void (*prepare)() = nullptr;
  friend std::ostream& operator<<(std::ostream& out, const FailRow& row) { return out << row.name; }
};

class AddNoPorts : public BoardPortsTest,
                   public testing::WithParamInterface<std::tuple<Kind, FailRow>> {};

TEST_P(AddNoPorts, KeepsNothing) {
  const auto& [kind, row] = GetParam();
  const string file = Of(kind, row.file);
  for (const int32_t debug : {0, 1}) {
    BoardFaults faults(file, debug);
    const SupportedOltPortType port_types = gstSupportedOltPortType;
    if (row.prepare != nullptr) {
      row.prepare();
    }
    ExpectToFail(kind, faults, row.code, row.effect,
                 debug != 0 ? row.debug_console + row.console : row.console);
    gstSupportedOltPortType = port_types;
  }
}

string TooMany(const string& number) {
  return "\r\n{f} err! {field} = " + number + ", {limit} = 128";
}
string NoKey(const string& code, const string& key) {
  return "\r\n{f} err! iResult = " + code + ", section = Sec, key = " + key;
}
string NoType(const string& code, const string& number) {
  return "\r\n{f}->dd_IsOltPonTypeSupportedBySecName err! iResult = " + code + ", strKey = {port}" +
         number + ", ulIndex = 0";
}
const string kTooLong = "X=" + string(500, 'a') + "+\n" + string(20, 'b') + "\n";

const FailRow kNumbers[] = {
    {"None", Sec("0", {"GPON"}), 0, Effect::kNoCount},
    {"EmptyNumber", Sec("", {"GPON"}), 0, Effect::kNoCount},
    {"NumberIsText", Sec("many", {"GPON"}), 0, Effect::kNoCount},
    {"NumberIsHexadecimal", Sec("0x1", {"GPON"}), 0, Effect::kNoCount},
    {"OneTooMany", Sec("129", Names(129, "GPON")), -13, Effect::kNoCount, TooMany("129")},
    {"Negative", Sec("-1", {"GPON"}), -13, Effect::kNoCount, TooMany("-1")},
    {"Largest", Sec("2147483647", {"GPON"}), -13, Effect::kNoCount, TooMany("2147483647")},
    {"Above31Bits", Sec("2147483648", {"GPON"}), -13, Effect::kNoCount, TooMany("2147483647")},
    {"Above32Bits", Sec("4294967297", {"GPON"}), -13, Effect::kNoCount, TooMany("2147483647")},
    {"Below32Bits", Sec("-4294967295", {"GPON"}), -13, Effect::kNoCount, TooMany("-2147483648")},
    {"NoSection", "[sec]\n{count}=1\n{port}1=GPON\n", -31, Effect::kNoCount,
     NoKey("-1", "{count}")},
    {"NoNumber", "[Sec]\n{port}1=GPON\n[Next]\n{count}=1\n", -31, Effect::kNoCount,
     NoKey("-2", "{count}")},
    {"NumberOfOtherCase", "[Sec]\n{port}1=GPON\nportNum=1\nspecialPortNum=1\n", -31,
     Effect::kNoCount, NoKey("-2", "{count}")},
    {"BrokenBeforeTheNumber", "[Sec]\nnonsense\n{count}=1\n{port}1=GPON\n", -31, Effect::kNoCount,
     NoKey("-14", "{count}")},
    {"BrokenHeader", "[Broken\n" + Sec("1", {"GPON"}), -31, Effect::kNoCount,
     NoKey("-14", "{count}")},
    {"TooLongBeforeTheNumber", "[Sec]\n" + kTooLong + "{count}=1\n", -31, Effect::kNoCount,
     NoKey("-22", "{count}")},
};
INSTANTIATE_TEST_SUITE_P(Number, AddNoPorts,
                         testing::Combine(testing::ValuesIn(kKinds), testing::ValuesIn(kNumbers)),
                         test::KindAndRow());

const FailRow kPorts[] = {
    {"FirstMissing", "[Sec]\n{count}=2\n{port}2=GPON\n", -1, Effect::kPortFailed,
     NoKey("-2", "{port}1")},
    {"SecondMissing", "[Sec]\n{count}=3\n{port}1=GPON\n{port}3=GPON\n", -1, Effect::kPortFailed,
     NoKey("-2", "{port}2")},
    {"LastMissing", Sec("3", {"GPON", "GE"}), -1, Effect::kPortFailed, NoKey("-2", "{port}3")},
    {"LastOfMostMissing", Sec("128", Names(127, "GPON")), -1, Effect::kPortFailed,
     NoKey("-2", "{port}128")},
    {"PortInTheNextSection", Sec("1", {}) + "[Next]\n{port}1=GPON\n", -1, Effect::kPortFailed,
     NoKey("-2", "{port}1")},
    {"BrokenBeforeAPort", "[Sec]\n{count}=2\n{port}1=GPON\nnonsense\n{port}2=GE\n", -1,
     Effect::kPortFailed, NoKey("-14", "{port}2")},
    {"TooLongBeforeAPort", "[Sec]\n{count}=2\n{port}1=GPON\n" + kTooLong, -1, Effect::kPortFailed,
     NoKey("-22", "{port}2")},
    {"FirstUnknown", Sec("2", {"EPON", "GPON"}), -1, Effect::kPortFailed, NoType("-32", "1")},
    {"SecondUnknown", Sec("2", {"GPON", "EPON"}), -1, Effect::kPortFailed, NoType("-32", "2")},
    {"TenthUnknown", Sec("10", {"GE", "GE", "GE", "GE", "GE", "GE", "GE", "GE", "GE", "EPON"}), -1,
     Effect::kPortFailed, NoType("-32", "10")},
    {"EmptyName", Sec("1", {""}), -1, Effect::kPortFailed, NoType("-32", "1")},
    {"NameOfOtherCase", Sec("1", {"gpon"}), -1, Effect::kPortFailed, NoType("-32", "1")},
    {"StartOfAName", Sec("1", {"GPO"}), -1, Effect::kPortFailed, NoType("-32", "1")},
    {"MoreThanAName", Sec("1", {"GPON2"}), -1, Effect::kPortFailed, NoType("-32", "1")},
    {"NameTooLong", Sec("2", {"GPON", string(60, 'p')}), -1, Effect::kPortFailed,
     NoType("-33", "2"), "\r\nddIsOltPortTypeSupportedByName err! strlen(strOltPortTypeName) = 60"},
    {"NoPortTypes", Sec("1", {"GPON"}), -1, Effect::kPortFailed, NoType("-11", "1"),
     "\r\nddIsOltPortTypeSupportedByName err! pOltPortTypeArray = 0x0",
     [] { gstSupportedOltPortType = {}; }},
    {"CorruptPortTypes", Sec("1", {"GPON"}), -1, Effect::kPortFailed, NoType("-11", "1"),
     "\r\nddIsOltPortTypeSupportedByName err! ulSupportedOltPortTypeNum = 31",
     [] { gstSupportedOltPortType.ulSupportedOltPortTypeNum = 31; }},
    {"CorruptPortType", Sec("2", {"GPON", "XGSPON"}), -1, Effect::kPortFailed, NoType("-33", "2"),
     "\r\nddIsOltPortTypeSupportedByName err! ulNameLen = 61, ulSupportedOltPortTypeNumIndex = 1",
     [] { gstSupportedOltPortType.pOltPortTypeArray[1]->ulNameLen = 61; }},
};
INSTANTIATE_TEST_SUITE_P(Port, AddNoPorts,
                         testing::Combine(testing::ValuesIn(kKinds), testing::ValuesIn(kPorts)),
                         test::KindAndRow());

// ---- Answers of the port types that no table gives ----------------------------

struct OddRow {
  const char* name;
  OddPort answer;
  string console = "";  // empty: the port is had
  friend std::ostream& operator<<(std::ostream& out, const OddRow& row) { return out << row.name; }
};

class AddOddPort : public BoardPortsTest,
                   public testing::WithParamInterface<std::tuple<Kind, OddRow>> {};

TEST_P(AddOddPort, IsHadOrNoPortIs) {
  const auto& [kind, row] = GetParam();
  const string file = Of(kind, Sec("3", {"GPON", "ODD", "XGSPON"}));
  for (const int32_t debug : {0, 1}) {
    odd_port = row.answer;
    BoardFaults faults(file, debug);
    if (row.console.empty()) {
      ExpectToAdd(kind, faults, 0, {"GPON", "GE", "XGSPON"});
    } else {
      ExpectToFail(kind, faults, -1, Effect::kPortFailed, row.console);
      EXPECT_EQ(faults.opens.count(), 3);  // the third port is not read
    }
  }
}

const OddRow kOdds[] = {
    {"PlaceZero", {.index = 0}},
    {"PlaceAtTheBoardsLimit", {.index = 128}},
    {"PlaceBehindTheBoardsLimit", {.index = 129}, "\r\n{f} err! strKey = {port}2, ulIndex = 129"},
    {"LargestPlace", {.index = 0xffffffff}, "\r\n{f} err! strKey = {port}2, ulIndex = -1"},
    {"NotSupported",
     {.supported = 0, .index = 0},
     "\r\n{f} err! strKey = {port}2, IsSupported = 0"},
    {"NotSupportedInAFarPlace",
     {.supported = 0, .index = 129},
     "\r\n{f} err! strKey = {port}2, IsSupported = 0"},
    {"LookupFails",
     {.lookup_code = -5, .index = 7},
     "\r\n{f}->dd_IsOltPonTypeSupportedBySecName err! iResult = -5, strKey = {port}2, ulIndex = 7"},
    {"LookupFailsInAFarPlace",
     {.lookup_code = -32, .supported = 0, .index = 129},
     "\r\n{f}->dd_IsOltPonTypeSupportedBySecName err! iResult = -32, strKey = {port}2, ulIndex = "
     "129"},
    {"NoCopy",
     {.index = 0, .copy_code = -27},
     "\r\n{f}->dd_CreateOneOnuPonObjBySecName err! strKey = {port}2"},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, AddOddPort,
                         testing::Combine(testing::ValuesIn(kKinds), testing::ValuesIn(kOdds)),
                         test::KindAndRow());

// ---- Arguments, positions, memory ---------------------------------------------

class EachKindOfPort : public BoardPortsTest, public testing::WithParamInterface<Kind> {
 protected:
  // The record stays as it is, and the file closed.
  void ExpectRefused(const char* file, const char* section, int32_t start, BoardInformation* board,
                     int32_t code, const string& console) {
    if (HasFailure()) {
      return;
    }
    test::Faults faults;
    EXPECT_EQ(GetParam().add(file, section, start, board), code);
    EXPECT_EQ(console_.Text(), Of(GetParam(), console));
    EXPECT_EQ(faults.opens.count(), 0);
    EXPECT_EQ(faults.allocations.count(), 0);
    if (board != nullptr) {
      ExpectMarkedBut(*board, GetParam(), Effect::kNone, 0);
    }
  }
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, EachKindOfPort, testing::ValuesIn(kKinds),
                         testing::PrintToStringParamName());

string Pointers(const void* file, const void* section, const void* board) {
  return "\r\n{f} err! strFileName = " + test::Hex(file) +
         ", strBoardTypeSection = " + test::Hex(section) +
         ", pstBoardInformation = " + test::Hex(board);
}

TEST_P(EachKindOfPort, NullArgumentsTouchNothing) {
  const char file[] = "/boards.ini";
  const char section[] = "Sec";
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    for (const int32_t start : {0, -1}) {  // looked at later only
      BoardInformation board = MarkedBoard();
      ExpectRefused(nullptr, section, start, &board, -2, Pointers(nullptr, section, &board));
      ExpectRefused(file, nullptr, start, &board, -2, Pointers(file, nullptr, &board));
      ExpectRefused(file, section, start, nullptr, -2, Pointers(file, section, nullptr));
      ExpectRefused(nullptr, nullptr, start, nullptr, -2,
                    "\r\n{f} err! strFileName = 0x0, strBoardTypeSection = 0x0, "
                    "pstBoardInformation = 0x0");
    }
  }
}

TEST_P(EachKindOfPort, NegativePositionsTouchNothing) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    BoardInformation board = MarkedBoard();
    ExpectRefused("/boards.ini", "Sec", -1, &board, -31, "\r\n{f} err! iOffsetIn = -1");
    ExpectRefused("/boards.ini", "Sec", INT32_MIN, &board, -31,
                  "\r\n{f} err! iOffsetIn = -2147483648");
  }
}

TEST_P(EachKindOfPort, MissingFile) {
  BoardFaults faults;
  BoardInformation board = MarkedBoard();
  EXPECT_EQ(GetParam().add("/nonexistent/boards.ini", "Sec", 0, &board), -31);
  EXPECT_EQ(console_.Text(), Of(GetParam(), NoKey("-10", "{count}")));
  ExpectMarkedBut(board, GetParam(), Effect::kNoCount, 0);
}

TEST_P(EachKindOfPort, EveryKeyIsSearchedFromThePosition) {
  const string first = Of(GetParam(), Sec("1", {"GPON"}));
  const string second = Of(GetParam(), Sec("2", {"GE", "XGSPON"}));
  const string file = first + second;
  const auto header = static_cast<int32_t>(first.size());
  for (const int32_t start : {0, 1, header, header + 1}) {
    SCOPED_TRACE(start);
    BoardFaults faults(file);
    if (start == 0) {
      ExpectToAdd(GetParam(), faults, start, {"GPON"});
    } else if (start <= header) {
      ExpectToAdd(GetParam(), faults, start, {"GE", "XGSPON"});
    } else {
      BoardInformation board = MarkedBoard();
      EXPECT_EQ(GetParam().add(BoardFaults::kPath, "Sec", start, &board), -31);
      EXPECT_EQ(console_.Text(), Of(GetParam(), NoKey("-1", "{count}")));
    }
  }
}

TEST_P(EachKindOfPort, PositionsBehindTheFile) {
  const string file = Of(GetParam(), Sec("1", {"GPON"}));
  for (const int32_t start : {static_cast<int32_t>(file.size()), 100000, INT32_MAX}) {
    BoardFaults faults(file);
    BoardInformation board = MarkedBoard();
    EXPECT_EQ(GetParam().add(BoardFaults::kPath, "Sec", start, &board), -31);
    EXPECT_EQ(console_.Text(), Of(GetParam(), NoKey("-1", "{count}")));
    ExpectMarkedBut(board, GetParam(), Effect::kNoCount, 0);
  }
}

TEST_P(EachKindOfPort, NoMemoryForTheArray) {
  const string file = Of(GetParam(), Sec("2", {"GPON", "GE"}));
  for (const int calls : {1, test::FaultPlan::kForEver}) {
    BoardFaults faults(file);
    faults.allocations.FailFrom(1, calls);
    ExpectToFail(GetParam(), faults, -27, Effect::kNoCountNoArray,
                 "\r\n{f} err! pstBoardInformation->{array} = 0x0");
    EXPECT_EQ(faults.opens.count(), 1);  // no port is read
  }
}

TEST_P(EachKindOfPort, NoMemoryForACopy) {
  const string file = Of(GetParam(), Sec("3", {"XGSPON", "GE", "GPON"}));
  const string places[] = {"1", "2", "0"};
  for (const int calls : {1, test::FaultPlan::kForEver}) {
    for (int failing = 1; failing <= 3; ++failing) {
      SCOPED_TRACE(failing);
      BoardFaults faults(file);
      faults.allocations.FailFrom(failing + 1, calls);
      ExpectToFail(GetParam(), faults, -1, Effect::kPortFailed,
                   "\r\nddCreateOneOltPortObjByName->malloc err! pstOltPortInformationOut = 0x0, "
                   "ulIndex = " +
                       places[failing - 1] +
                       "\r\n{f}->dd_CreateOneOnuPonObjBySecName err! strKey = {port}" +
                       std::to_string(failing));
      EXPECT_EQ(faults.frees, failing);  // the array, and the copies made so far
    }
  }
}

// A lookup that cannot open, seek or read: once, at each key.
TEST_P(EachKindOfPort, OneLookupFails) {
  const string file = Of(GetParam(), Sec("2", {"GPON", "GE"}));
  for (const test::FileFault& fault : {test::kOpenFails, test::kSeekFails, test::kReadFails}) {
    for (int failing = 1; failing <= 3; ++failing) {
      SCOPED_TRACE(failing);
      BoardFaults faults(file);
      (faults.*fault.plan).FailFrom(failing, 1);
      BoardInformation board = MarkedBoard();
      EXPECT_EQ(GetParam().add(BoardFaults::kPath, "Sec", 0, &board), failing == 1 ? -31 : -1);
      const string key = failing == 1 ? "{count}" : "{port}" + std::to_string(failing - 1);
      EXPECT_EQ(console_.Text(), Of(GetParam(), NoKey(fault.code, key)));
      ExpectMarkedBut(board, GetParam(), failing == 1 ? Effect::kNoCount : Effect::kPortFailed, 0);
      EXPECT_EQ(faults.opens.count(), failing);
      EXPECT_EQ(faults.closes, failing - fault.not_closed);
      EXPECT_EQ(faults.OwnBlocks(), 0u);
      if (HasFailure()) {
        return;
      }
    }
  }
}

}  // namespace
