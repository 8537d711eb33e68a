// Asking for the port behind a port number: its type, and how many ONUs it may
// serve.
#include <ostream>
#include <string>
#include <tuple>

#include "catalog/olt/board_tables.h"
#include "support/rows.h"
#include "support/text.h"

namespace {

using std::string;
using test::kNull;
using test::kUntouched;
using test::PlacedBoard;
using test::Ports;
using test::PortsOfTypes1To;
using test::With;

// ---- Port types -------------------------------------------------------------------

// A kind of port. Rows for both have "{f}" and so on in their texts.
struct Kind {
  const char* name;
  int32_t (*ask)(uint32_t, uint32_t, uint32_t*);
  Ports PlacedBoard::*ports;
  Ports PlacedBoard::*other_ports;
  const char* function;
  const char* port;
  const char* array;
  friend std::ostream& operator<<(std::ostream& out, const Kind& kind) { return out << kind.name; }
};

const Kind kKinds[] = {
    {"Serving", ddGetPortTypeByBoardType, &PlacedBoard::serving, &PlacedBoard::special,
     "ddGetPortTypeByBoardType", "ulPortNo", "pServePortArray"},
    {"Special", ddGetSpecialPortTypeByBoardType, &PlacedBoard::special, &PlacedBoard::serving,
     "ddGetSpecialPortTypeByBoardType", "ulSpcPortNo", "pSpecialPortArray"},
};

string Of(const Kind& kind, string text) {
  text = With(text, "{f}", kind.function);
  text = With(text, "{port}", kind.port);
  return With(text, "{array}", kind.array);
}

struct PortRow {
  const char* name;
  Ports ports;
  uint32_t port;
  int32_t code;
  uint32_t answer = kUntouched;
  string text = "";
  uint32_t board_type = 7;
  friend std::ostream& operator<<(std::ostream& out, const PortRow& row) { return out << row.name; }
};

class BoardPort : public test::BoardTablesTest,
                  public testing::WithParamInterface<std::tuple<Kind, PortRow>> {};

// The ports of the other kind must not matter.
const Ports kOtherPorts = {{91, 92}};

TEST_P(BoardPort, Type) {
  const Kind& kind = std::get<0>(GetParam());
  const PortRow& row = std::get<1>(GetParam());
  PlacedBoard board = {7, "PLBD"};
  board.*kind.ports = row.ports;
  board.*kind.other_ports = kOtherPorts;
  PutBoards({.places = {board}});
  // Of the ports of both kinds it is the number of serving ones that is shown.
  const uint32_t serving = gstSupportedBoardType.pBoardTypeArray[0]->ulTotalServePortNum;
  const string count = std::to_string(static_cast<int32_t>(serving));
  AskTwice(With(Of(kind, row.text), "{serving}", count), [&] {
    uint32_t type = kUntouched;
    EXPECT_EQ(kind.ask(row.board_type, row.port, &type), row.code);
    EXPECT_EQ(type, row.answer);
  });
}

string NoPort(const string& port) {
  return "\r\n{f} err! {port} = " + port + ", MAX_OLT_PORT_NUM_PER_BOARD = 128";
}

string NotAmong(const string& port) {
  return "\r\n{f} err! ulPortNo = " + port +
         ", ulTotalServePortNum = {serving}, MAX_OLT_PORT_NUM_PER_BOARD = 128";
}

const Ports kFour = {{11, 12, 0, 0xffffffff}};
const Ports kHoles = {{kNull, 12, kNull, 14}};

const PortRow kPorts[] = {
    {"First", kFour, 1, 0, 11},
    {"Second", kFour, 2, 0, 12},
    {"TypeZero", kFour, 3, 0, 0},
    {"LastAndLargestType", kFour, 4, 0, 0xffffffff},
    {"LastPossible", PortsOfTypes1To(128), 128, 0, 128},
    {"FirstOfAFullBoard", PortsOfTypes1To(128), 1, 0, 1},
    {"BesideEmptyPlaces", kHoles, 4, 0, 14},
    {"PortZero", kFour, 0, -13, kUntouched, NoPort("0")},
    {"PortZeroOfNoBoard", kFour, 0, -13, kUntouched, NoPort("0"), 9},
    {"PortAboveAllBoards", kFour, 129, -13, kUntouched, NoPort("129")},
    {"PortAboveAllBoardsOfNoBoard", kFour, 129, -13, kUntouched, NoPort("129"), 9},
    {"LargestPort", kFour, 0xffffffff, -13, kUntouched, NoPort("-1")},
    {"PortAboveTheCorruptBoard", PortsOfTypes1To(129), 129, -13, kUntouched, NoPort("129")},
    {"LastPossiblePortOfNoBoard", kFour, 128, -18, 0, "", 9},
    {"FirstPortOfNoBoard", kFour, 1, -18, 0, "", 9},
    {"PortAboveTheBoard", kFour, 5, -13, kUntouched, NotAmong("5")},
    {"LastPossibleAboveTheBoard", kFour, 128, -13, kUntouched, NotAmong("128")},
    {"NoPorts", {}, 1, -13, kUntouched, NotAmong("1")},
    {"NoPortsInFrontOfAnArray", {{11}, 0}, 1, -13, kUntouched, NotAmong("1")},
    {"TooManyPorts", PortsOfTypes1To(129), 1, -13, kUntouched, NotAmong("1")},
    {"TooManyPortsAndTheLastPossible", PortsOfTypes1To(129), 128, -13, kUntouched, NotAmong("128")},
    {"LargestCount", {{11}, 0xffffffff}, 1, -13, kUntouched, NotAmong("1")},
    {"TooManyIsFoundBeforeTheMissingArray", {{}, 129}, 1, -13, kUntouched, NotAmong("1")},
    {"NoArray",
     {{}, 4},
     3,
     -2,
     kUntouched,
     "\r\n{f} err! ulBoardType = 7, {array} = 0x0, ulPortNo = 3"},
    {"FirstPlaceEmpty", kHoles, 1, -2, kUntouched,
     "\r\n{f} err! ulBoardType = 7, pstOltPortInformation = 0x0, ulPortNo = 1"},
    {"PlaceEmpty", kHoles, 3, -2, kUntouched,
     "\r\n{f} err! ulBoardType = 7, pstOltPortInformation = 0x0, ulPortNo = 3"},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardPort,
                         testing::Combine(testing::ValuesIn(kKinds), testing::ValuesIn(kPorts)),
                         test::KindAndRow());

using BoardPortNumber = test::BoardTablesTest;

TEST_F(BoardPortNumber, IsCheckedBehindTheTable) {
  for (const uint32_t port : {0u, 129u}) {
    for (const Kind& kind : kKinds) {
      uint32_t type = kUntouched;
      AskTwice(Of(kind, "\r\n{f} err! pBoardTypeArray = 0x0"),
               [&] { EXPECT_EQ(kind.ask(7, port, &type), -10); });
      Overwrite(gstSupportedBoardType.ulSupportedBoardTypeNum, 101);
      AskTwice(Of(kind, "\r\n{f} err! ulSupportedBoardTypeNum = 101"),
               [&] { EXPECT_EQ(kind.ask(7, port, &type), -19); });
      Overwrite(gstSupportedBoardType.ulSupportedBoardTypeNum, 0);
      EXPECT_EQ(type, kUntouched);
    }
  }
}

TEST_F(BoardPortNumber, IsCheckedBehindTheOutput) {
  PutBoards({.places = {PlacedBoard{7, "PLBD", {{11}}, {{12}}}}});
  for (const uint32_t port : {0u, 129u}) {
    for (const Kind& kind : kKinds) {
      AskTwice(Of(kind, "\r\n{f} err! pulPortType = 0x0"),
               [&] { EXPECT_EQ(kind.ask(7, port, nullptr), -2); });
    }
  }
}

// ---- ONUs of a PON port -------------------------------------------------------------

struct PonRow {
  const char* name;
  uint32_t pon;
  int32_t code;
  uint32_t answer = kUntouched;
  string text = "";
  uint32_t board_type = 7;
  friend std::ostream& operator<<(std::ostream& out, const PonRow& row) { return out << row.name; }
};

class BoardPon : public test::BoardTablesTest, public testing::WithParamInterface<PonRow> {
 protected:
  void ExpectOnus(uint32_t board_type, uint32_t pon, int32_t code, uint32_t answer,
                  const string& text) {
    AskTwice(text, [=] {
      uint32_t onus = kUntouched;
      EXPECT_EQ(ddGetPonMaxOnuNumByBoardType(board_type, pon, &onus), code);
      EXPECT_EQ(onus, answer);
    });
  }
};

TEST_P(BoardPon, Onus) {
  PutBoards(
      {.places = {PlacedBoard{7, "PLBD", {{1, 2, 3, kNull, 5, 6, 0, 0xffffffff}}, {{4}}},
                  PlacedBoard{8, "NOARRAY", {{}, 2}}, PlacedBoard{9, "CORRUPT", {{1}, 129}}}});
  PutPortTypes({.places = {test::PlacedPortType{1, 64}, kNull, test::PlacedPortType{2, 0},
                           test::PlacedPortType{3, 512}, test::PlacedPortType{1, 32},
                           test::PlacedPortType{5, 513}, test::PlacedPortType{0, 8}}});
  ExpectOnus(GetParam().board_type, GetParam().pon, GetParam().code, GetParam().answer,
             GetParam().text);
}

// What follows when the port's type, or the type's ratio, is not found.
string PonFailed(const string& board_type, const string& pon) {
  return "\r\nddGetPonMaxOnuNumByBoardType->ddGetPortTypeByBoardType err! ulBoardType = " +
         board_type + ", ulPonNo = " + pon;
}

string RatioFailed(const string& pon, const string& port_type) {
  return PonFailed("7", pon) + ", ulPortType = " + port_type;
}

const PonRow kPons[] = {
    {"FirstOfTwoOfTheType", 1, 0, 64},
    {"RatioZero", 2, 0, 0},
    {"LargestRatio", 3, 0, 512},
    {"RatioTooLarge", 5, 0, 513,
     "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 5, ulSplittingRatio = 513, DD_MAX_ONU_NUM_PER_PON = 512"},
    {"TypeZero", 7, 0, 8},
    {"TypeUnknown", 6, -12, kUntouched, RatioFailed("6", "6")},
    {"LargestTypeUnknown", 8, -12, kUntouched, RatioFailed("8", "-1")},
    {"PortMissing", 4, -2, kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulBoardType = 7, pstOltPortInformation = 0x0, ulPortNo = 4" +
         PonFailed("7", "4")},
    {"PortZero", 0, -13, kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulPortNo = 0, MAX_OLT_PORT_NUM_PER_BOARD = 128" +
         PonFailed("7", "0")},
    {"LargestPort", 0xffffffff, -13, kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulPortNo = -1, MAX_OLT_PORT_NUM_PER_BOARD = 128" +
         PonFailed("7", "-1")},
    {"PortAboveTheBoard", 9, -13, kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulPortNo = 9, ulTotalServePortNum = 8, MAX_OLT_PORT_NUM_PER_BOARD = 128" +
         PonFailed("7", "9")},
    {"NoArray", 2, -2, kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulBoardType = 8, pServePortArray = 0x0, ulPortNo = 2" +
         PonFailed("8", "2"),
     8},
    {"CorruptBoard", 1, -13, kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulPortNo = 1, ulTotalServePortNum = 129, MAX_OLT_PORT_NUM_PER_BOARD = 128" +
         PonFailed("9", "1"),
     9},
    {"NoBoard", 1, -18, kUntouched, PonFailed("10", "1"), 10},
    {"NoBoardOfTheLargestType", 1, -18, kUntouched, PonFailed("-1", "1"), 0xffffffff},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardPon, testing::ValuesIn(kPons),
                         testing::PrintToStringParamName());

class BoardPonTables : public BoardPon {};

TEST_F(BoardPonTables, NoPortTypes) {
  PutBoards({.places = {PlacedBoard{7, "PLBD", {{3, 4}}}}});
  ExpectOnus(7, 2, -10, kUntouched,
             "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 4, pOltPortTypeArray = 0x0" +
                 RatioFailed("2", "4"));
}

TEST_F(BoardPonTables, CorruptPortTypes) {
  PutBoards({.places = {PlacedBoard{7, "PLBD", {{3, 4}}}}});
  PutPortTypes({.places = {test::PlacedPortType{3, 64}}, .count = 31});
  ExpectOnus(7, 1, -11, kUntouched,
             "\r\nddGetOltPortSplittingRatioByType err! ulSupportedOltPortTypeNum = 31" +
                 RatioFailed("1", "3"));
}

TEST_F(BoardPonTables, NoTablesAtAll) {
  ExpectOnus(7, 1, -10, kUntouched,
             "\r\nddGetPortTypeByBoardType err! pBoardTypeArray = 0x0" + PonFailed("7", "1"));
}

}  // namespace
