// Asking for the port behind a port number: its type, and how many ONUs it may
// serve.
#include <ostream>
#include <string>

#include "catalog/olt/board_tables.h"

namespace {

using std::string;
using test::Board;
using test::kNull;
using test::kUntouched;
using test::Ports;
using test::PortsOfTypes1To;

// ---- Port types -------------------------------------------------------------------

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

class BoardPort : public test::BoardTablesTest, public testing::WithParamInterface<PortRow> {
 protected:
  void Expect(int32_t (*ask)(uint32_t, uint32_t, uint32_t*)) {
    AskTwice(GetParam().text, [=] {
      uint32_t type = kUntouched;
      EXPECT_EQ(ask(GetParam().board_type, GetParam().port, &type), GetParam().code);
      EXPECT_EQ(type, GetParam().answer);
    });
  }
};

// The ports of the other kind must not matter.
const Ports kOtherPorts = {{91, 92}};

class BoardServingPort : public BoardPort {};

TEST_P(BoardServingPort, Type) {
  PutBoards({.places = {Board{7, "PLBD", GetParam().ports, kOtherPorts}}});
  Expect(ddGetPortTypeByBoardType);
}

string NoServingPort(const string& port) {
  return "\r\nddGetPortTypeByBoardType err! ulPortNo = " + port +
         ", MAX_OLT_PORT_NUM_PER_BOARD = 128";
}

string NotAmongServing(const string& port, const string& count) {
  return "\r\nddGetPortTypeByBoardType err! ulPortNo = " + port +
         ", ulTotalServePortNum = " + count + ", MAX_OLT_PORT_NUM_PER_BOARD = 128";
}

const Ports kFour = {{11, 12, 0, 0xffffffff}};
const Ports kHoles = {{kNull, 12, kNull, 14}};

const PortRow kServing[] = {
    {"First", kFour, 1, 0, 11},
    {"Second", kFour, 2, 0, 12},
    {"TypeZero", kFour, 3, 0, 0},
    {"LastAndLargestType", kFour, 4, 0, 0xffffffff},
    {"LastPossible", PortsOfTypes1To(128), 128, 0, 128},
    {"FirstOfAFullBoard", PortsOfTypes1To(128), 1, 0, 1},
    {"BesideEmptyPlaces", kHoles, 4, 0, 14},
    {"PortZero", kFour, 0, -13, kUntouched, NoServingPort("0")},
    {"PortZeroOfNoBoard", kFour, 0, -13, kUntouched, NoServingPort("0"), 9},
    {"PortAboveAllBoards", kFour, 129, -13, kUntouched, NoServingPort("129")},
    {"PortAboveAllBoardsOfNoBoard", kFour, 129, -13, kUntouched, NoServingPort("129"), 9},
    {"LargestPort", kFour, 0xffffffff, -13, kUntouched, NoServingPort("-1")},
    {"PortAboveTheCorruptBoard", PortsOfTypes1To(129), 129, -13, kUntouched, NoServingPort("129")},
    {"LastPossiblePortOfNoBoard", kFour, 128, -18, 0, "", 9},
    {"FirstPortOfNoBoard", kFour, 1, -18, 0, "", 9},
    {"PortAboveTheBoard", kFour, 5, -13, kUntouched, NotAmongServing("5", "4")},
    {"LastPossibleAboveTheBoard", kFour, 128, -13, kUntouched, NotAmongServing("128", "4")},
    {"NoPorts", {}, 1, -13, kUntouched, NotAmongServing("1", "0")},
    {"NoPortsInFrontOfAnArray", {{11}, 0}, 1, -13, kUntouched, NotAmongServing("1", "0")},
    {"TooManyPorts", PortsOfTypes1To(129), 1, -13, kUntouched, NotAmongServing("1", "129")},
    {"TooManyPortsAndTheLastPossible", PortsOfTypes1To(129), 128, -13, kUntouched,
     NotAmongServing("128", "129")},
    {"LargestCount", {{11}, 0xffffffff}, 1, -13, kUntouched, NotAmongServing("1", "-1")},
    {"TooManyIsFoundBeforeTheMissingArray",
     {{}, 129},
     1,
     -13,
     kUntouched,
     NotAmongServing("1", "129")},
    {"NoArray",
     {{}, 4},
     3,
     -2,
     kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulBoardType = 7, pServePortArray = 0x0, ulPortNo = 3"},
    {"FirstPlaceEmpty", kHoles, 1, -2, kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulBoardType = 7, pstOltPortInformation = 0x0, ulPortNo = 1"},
    {"PlaceEmpty", kHoles, 3, -2, kUntouched,
     "\r\nddGetPortTypeByBoardType err! ulBoardType = 7, pstOltPortInformation = 0x0, ulPortNo = 3"},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardServingPort, testing::ValuesIn(kServing),
                         testing::PrintToStringParamName());

class BoardSpecialPort : public BoardPort {};

TEST_P(BoardSpecialPort, Type) {
  PutBoards({.places = {Board{7, "PLBD", kOtherPorts, GetParam().ports}}});
  Expect(ddGetSpecialPortTypeByBoardType);
}

string NoSpecialPort(const string& port) {
  return "\r\nddGetSpecialPortTypeByBoardType err! ulSpcPortNo = " + port +
         ", MAX_OLT_PORT_NUM_PER_BOARD = 128";
}

// It shows the number of serving ports.
string NotAmongSpecial(const string& port) {
  return "\r\nddGetSpecialPortTypeByBoardType err! ulPortNo = " + port +
         ", ulTotalServePortNum = 2, MAX_OLT_PORT_NUM_PER_BOARD = 128";
}

const PortRow kSpecial[] = {
    {"First", kFour, 1, 0, 11},
    {"Second", kFour, 2, 0, 12},
    {"TypeZero", kFour, 3, 0, 0},
    {"LastAndLargestType", kFour, 4, 0, 0xffffffff},
    {"LastPossible", PortsOfTypes1To(128), 128, 0, 128},
    {"FirstOfAFullBoard", PortsOfTypes1To(128), 1, 0, 1},
    {"BesideEmptyPlaces", kHoles, 4, 0, 14},
    {"PortZero", kFour, 0, -13, kUntouched, NoSpecialPort("0")},
    {"PortZeroOfNoBoard", kFour, 0, -13, kUntouched, NoSpecialPort("0"), 9},
    {"PortAboveAllBoards", kFour, 129, -13, kUntouched, NoSpecialPort("129")},
    {"PortAboveAllBoardsOfNoBoard", kFour, 129, -13, kUntouched, NoSpecialPort("129"), 9},
    {"LargestPort", kFour, 0xffffffff, -13, kUntouched, NoSpecialPort("-1")},
    {"PortAboveTheCorruptBoard", PortsOfTypes1To(129), 129, -13, kUntouched, NoSpecialPort("129")},
    {"LastPossiblePortOfNoBoard", kFour, 128, -18, 0, "", 9},
    {"FirstPortOfNoBoard", kFour, 1, -18, 0, "", 9},
    {"PortAboveTheBoard", kFour, 5, -13, kUntouched, NotAmongSpecial("5")},
    {"LastPossibleAboveTheBoard", kFour, 128, -13, kUntouched, NotAmongSpecial("128")},
    {"NoPorts", {}, 1, -13, kUntouched, NotAmongSpecial("1")},
    {"NoPortsInFrontOfAnArray", {{11}, 0}, 1, -13, kUntouched, NotAmongSpecial("1")},
    {"TooManyPorts", PortsOfTypes1To(129), 1, -13, kUntouched, NotAmongSpecial("1")},
    {"TooManyPortsAndTheLastPossible", PortsOfTypes1To(129), 128, -13, kUntouched,
     NotAmongSpecial("128")},
    {"LargestCount", {{11}, 0xffffffff}, 1, -13, kUntouched, NotAmongSpecial("1")},
    {"TooManyIsFoundBeforeTheMissingArray", {{}, 129}, 1, -13, kUntouched, NotAmongSpecial("1")},
    {"NoArray",
     {{}, 4},
     3,
     -2,
     kUntouched,
     "\r\nddGetSpecialPortTypeByBoardType err! ulBoardType = 7, pSpecialPortArray = 0x0, ulPortNo = 3"},
    {"FirstPlaceEmpty", kHoles, 1, -2, kUntouched,
     "\r\nddGetSpecialPortTypeByBoardType err! ulBoardType = 7, pstOltPortInformation = 0x0, ulPortNo = 1"},
    {"PlaceEmpty", kHoles, 3, -2, kUntouched,
     "\r\nddGetSpecialPortTypeByBoardType err! ulBoardType = 7, pstOltPortInformation = 0x0, ulPortNo = 3"},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardSpecialPort, testing::ValuesIn(kSpecial),
                         testing::PrintToStringParamName());

using BoardPortNumber = test::BoardTablesTest;

struct NumberQuery {
  int32_t (*ask)(uint32_t, uint32_t, uint32_t*);
  const char* above_limit;
  const char* no_array;
};
const NumberQuery kNumberQueries[] = {
    {ddGetPortTypeByBoardType, "\r\nddGetPortTypeByBoardType err! ulSupportedBoardTypeNum = 101",
     "\r\nddGetPortTypeByBoardType err! pBoardTypeArray = 0x0"},
    {ddGetSpecialPortTypeByBoardType,
     "\r\nddGetSpecialPortTypeByBoardType err! ulSupportedBoardTypeNum = 101",
     "\r\nddGetSpecialPortTypeByBoardType err! pBoardTypeArray = 0x0"},
};

TEST_F(BoardPortNumber, IsCheckedBehindTheTable) {
  for (const uint32_t port : {0u, 129u}) {
    for (const NumberQuery& query : kNumberQueries) {
      uint32_t type = kUntouched;
      AskTwice(query.no_array, [&] { EXPECT_EQ(query.ask(7, port, &type), -10); });
      Overwrite(gstSupportedBoardType.ulSupportedBoardTypeNum, 101);
      AskTwice(query.above_limit, [&] { EXPECT_EQ(query.ask(7, port, &type), -19); });
      Overwrite(gstSupportedBoardType.ulSupportedBoardTypeNum, 0);
      EXPECT_EQ(type, kUntouched);
    }
  }
}

TEST_F(BoardPortNumber, IsCheckedBehindTheOutput) {
  PutBoards({.places = {Board{7, "PLBD", {{11}}, {{12}}}}});
  AskTwice("\r\nddGetPortTypeByBoardType err! pulPortType = 0x0",
           [] { EXPECT_EQ(ddGetPortTypeByBoardType(7, 0, nullptr), -2); });
  AskTwice("\r\nddGetSpecialPortTypeByBoardType err! pulPortType = 0x0",
           [] { EXPECT_EQ(ddGetSpecialPortTypeByBoardType(7, 129, nullptr), -2); });
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
  PutBoards({.places = {Board{7, "PLBD", {{1, 2, 3, kNull, 5, 6, 0, 0xffffffff}}, {{4}}},
                        Board{8, "NOARRAY", {{}, 2}}, Board{9, "CORRUPT", {{1}, 129}}}});
  PutPortTypes(
      {.places = {test::PortType{1, 64}, kNull, test::PortType{2, 0}, test::PortType{3, 512},
                  test::PortType{1, 32}, test::PortType{5, 513}, test::PortType{0, 8}}});
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
  PutBoards({.places = {Board{7, "PLBD", {{3, 4}}}}});
  ExpectOnus(7, 2, -10, kUntouched,
             "\r\nddGetOltPortSplittingRatioByType err! ulPortType = 4, pOltPortTypeArray = 0x0" +
                 RatioFailed("2", "4"));
}

TEST_F(BoardPonTables, CorruptPortTypes) {
  PutBoards({.places = {Board{7, "PLBD", {{3, 4}}}}});
  PutPortTypes({.places = {test::PortType{3, 64}}, .count = 31});
  ExpectOnus(7, 1, -11, kUntouched,
             "\r\nddGetOltPortSplittingRatioByType err! ulSupportedOltPortTypeNum = 31" +
                 RatioFailed("1", "3"));
}

TEST_F(BoardPonTables, NoTablesAtAll) {
  ExpectOnus(7, 1, -10, kUntouched,
             "\r\nddGetPortTypeByBoardType err! pBoardTypeArray = 0x0" + PonFailed("7", "1"));
}

}  // namespace
