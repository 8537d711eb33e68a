// Asking how many ports a board has.
#include <ostream>
#include <string>

#include "catalog/olt/board_tables.h"

namespace {

using std::string;
using test::kNull;
using test::kUntouched;
using test::PlacedBoard;
using test::Ports;
using test::PortsOfTypes1To;

// ---- Serving ports, and the total that never comes ------------------------------

using BoardPortCount = test::BoardTablesTest;

TEST_F(BoardPortCount, ServingPortsAsStored) {
  PutBoards({.places = {
                 PlacedBoard{1, "NONE", {}, {{9}}}, PlacedBoard{2, "FULL", PortsOfTypes1To(128)},
                 PlacedBoard{3, "ABOVE", {{1}, 129}}, PlacedBoard{4, "MOST", {{}, 0xffffffff}},
                 PlacedBoard{0, "ZERO", {{kNull, 2}}}, PlacedBoard{0xffffffff, "LARGEST", {{1}}}}});
  const std::pair<uint32_t, uint32_t> kAmounts[] = {{1, 0},          {2, 128}, {3, 129},
                                                    {4, 0xffffffff}, {0, 2},   {0xffffffff, 1}};
  for (const auto& [type, expected] : kAmounts) {
    AskTwice("", [&, type = type, expected = expected] {
      uint32_t amount = kUntouched;
      EXPECT_EQ(ddGetBoardServePortAmountByType(type, &amount), 0);
      EXPECT_EQ(amount, expected) << type;
    });
  }
}

TEST_F(BoardPortCount, NoTotalOfAnyBoard) {
  PutBoards({.places = {PlacedBoard{1, "A", {{1, 2}}, {{3}}}, kNull, PlacedBoard{1, "B", {{1}}},
                        PlacedBoard{2, "C", {{}, 0xffffffff}, {{}, 0xffffffff}}}});
  for (const uint32_t type : {0u, 1u, 2u, 3u, 0xffffffffu}) {
    AskTwice("", [=] {
      uint32_t amount = kUntouched;
      EXPECT_EQ(ddGetBoardTotailPortAmountByType(type, &amount), -18);
      EXPECT_EQ(amount, 0u) << type;
    });
  }
}

// ---- Special ports ---------------------------------------------------------------

struct SpecialRow {
  const char* name;
  Ports special;
  uint32_t port_type;  // asked for
  int32_t code;
  uint32_t answer;
  string text = "";
  friend std::ostream& operator<<(std::ostream& out, const SpecialRow& row) {
    return out << row.name;
  }
};

class BoardSpecialPorts : public test::BoardTablesTest,
                          public testing::WithParamInterface<SpecialRow> {};

TEST_P(BoardSpecialPorts, OfOneType) {
  PutBoards({.places = {PlacedBoard{7, "PLBD", {{5, 5, 5, 5}}, GetParam().special}}});
  AskTwice(GetParam().text, [] {
    uint32_t number = kUntouched;
    EXPECT_EQ(ddGetBoardSpecialPortNumByType(7, GetParam().port_type, &number), GetParam().code);
    EXPECT_EQ(number, GetParam().answer);
  });
}

constexpr char kNoSpecialArray[] =
    "\r\nddGetBoardSpecialPortNumByType err! pSpecialPortArray = 0x0";
constexpr char kEmptySpecialPlace[] =
    "\r\nddGetBoardSpecialPortNumByType err! ulBoardType = 7, ulPortType = 5, pstOltPortInformation = 0x0";

string TooManyOf(const string& port_type, const string& count) {
  return "\r\nddGetBoardSpecialPortNumByType err! ulBoardType = 7, ulPortType = " + port_type +
         ", ulBoardSpecialPortNum = " + count + ", MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = 128";
}

Ports OfType5(size_t count) {
  return {std::vector<std::optional<uint32_t>>(count, 5)};
}

const SpecialRow kSpecial[] = {
    {"One", {{4, 5, 6}}, 5, 0, 1},
    {"FirstAndLast", {{5, 4, 5}}, 5, 0, 2},
    {"All", {{5, 5, 5}}, 5, 0, 3},
    {"None", {{4, 6}}, 5, 0, 0},
    {"TypeZero", {{0, 5, 0}}, 0, 0, 2},
    {"LargestType", {{0xffffffff, 5}}, 0xffffffff, 0, 1},
    {"AsManyAsPossible", OfType5(128), 5, 0, 128},
    {"OneTooMany", OfType5(129), 5, -13, kUntouched, TooManyOf("5", "129")},
    {"OneTooManyOfTheLargestType", OfType5(129), 0xffffffff, -13, kUntouched,
     TooManyOf("-1", "129")},
    {"LargestCount", {{5}, 0xffffffff}, 5, -13, kUntouched, TooManyOf("5", "-1")},
    {"TooManyIsFoundBeforeTheMissingArray", {{}, 129}, 5, -13, kUntouched, TooManyOf("5", "129")},
    {"CountZeroAndNoArray", {}, 5, 0, 0},
    {"CountZeroInFrontOfAnArray", {{5, kNull}, 0}, 5, 0, 0},
    {"NoArray", {{}, 2}, 5, -13, kUntouched, kNoSpecialArray},
    {"NoArrayForAsManyAsPossible", {{}, 128}, 5, -13, kUntouched, kNoSpecialArray},
    {"EmptyPlaceFirst", {{kNull, 5}}, 5, -13, kUntouched, kEmptySpecialPlace},
    {"EmptyPlaceBehindAMatch", {{5, kNull, 5}}, 5, -13, kUntouched, kEmptySpecialPlace},
    {"EmptyPlaceLast", {{5, 5, kNull}}, 5, -13, kUntouched, kEmptySpecialPlace},
    {"EmptyPlaceBehindTheCount", {{5, kNull}, 1}, 5, 0, 1},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardSpecialPorts, testing::ValuesIn(kSpecial),
                         testing::PrintToStringParamName());

struct TotalRow {
  const char* name;
  Ports special;
  int32_t code;
  uint32_t answer;
  string text = "";
  friend std::ostream& operator<<(std::ostream& out, const TotalRow& row) {
    return out << row.name;
  }
};

class BoardTotalSpecialPorts : public test::BoardTablesTest,
                               public testing::WithParamInterface<TotalRow> {};

TEST_P(BoardTotalSpecialPorts, AsStored) {
  PutBoards({.places = {PlacedBoard{7, "PLBD", {{5, 5, 5, 5}}, GetParam().special}}});
  AskTwice(GetParam().text, [] {
    uint32_t number = kUntouched;
    EXPECT_EQ(ddGetBoardTotalSpecialPortNum(7, &number), GetParam().code);
    EXPECT_EQ(number, GetParam().answer);
  });
}

const TotalRow kTotals[] = {
    {"None", {}, 0, 0},
    {"Some", {{5, 6, 5}}, 0, 3},
    {"EmptyPlacesCount", {{kNull, kNull}}, 0, 2},
    {"WithoutAnArray", {{}, 4}, 0, 4},
    {"AsManyAsPossible", {{}, 128}, 0, 128},
    {"OneTooMany",
     {{}, 129},
     -13,
     kUntouched,
     "\r\nddGetBoardTotalSpecialPortNum err! ulBoardType = 7, ulBoardSpecialPortNum = 129, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = 128"},
    {"LargestCount",
     {{}, 0xffffffff},
     -13,
     kUntouched,
     "\r\nddGetBoardTotalSpecialPortNum err! ulBoardType = 7, ulBoardSpecialPortNum = -1, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = 128"},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardTotalSpecialPorts, testing::ValuesIn(kTotals),
                         testing::PrintToStringParamName());

}  // namespace
