// What all questions about service boards have in common: the refusals before a
// board is looked at, and which board answers.
#include <algorithm>
#include <iterator>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/board_tables.h"

namespace {

using std::string;
using test::kNull;
using test::kUntouched;
using test::PlacedBoard;

// All that the queries write to.
struct Output {
  uint32_t number = kUntouched;
  uint32_t place = kUntouched;
  std::vector<uint32_t> list = std::vector<uint32_t>(4, kUntouched);
  string name = string(60, '#');

  bool operator==(const Output&) const = default;
  friend std::ostream& operator<<(std::ostream& out, const Output& output) {
    return out << output.number << " at " << output.place << ", " << output.name << ", "
               << testing::PrintToString(output.list);
  }
};

// A query about board 7, named PLBD.
struct Query {
  const char* name;
  int32_t (*ask)(Output* output);  // with null outputs when there are none
  string null_output;
  string above_limit;  // before the count
  string no_array;
  string behind = "";  // what follows each of these two, and `not_found`
  uint32_t refused = kUntouched;
  int32_t not_found_code = -18;
  uint32_t not_found_number = kUntouched;
  string not_found = "";
  Output answer;
  int32_t answer_code = 0;
  friend std::ostream& operator<<(std::ostream& out, const Query& query) {
    return out << query.name;
  }
};

uint32_t* Number(Output* output) {
  return output == nullptr ? nullptr : &output->number;
}

const Query kQueries[] = {
    {.name = "IsBoardTypeSupportedByName",
     .ask =
         [](Output* output) {
           return ddIsBoardTypeSupportedByName(output == nullptr ? nullptr : "PLBD", Number(output),
                                               output == nullptr ? nullptr : &output->place);
         },
     .null_output =
         "\r\nddIsBoardTypeSupportedByName err! strBoardTypeSection = 0x0, pIsSupported = 0x0, pIndex = 0x0",
     .above_limit = "\r\nddIsBoardTypeSupportedByName err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddIsBoardTypeSupportedByName err! pBoardTypeArray = 0x0",
     .refused = 0,
     .not_found_code = -32,
     .not_found_number = 0,
     .answer = {.number = 1, .place = 0}},
    {.name = "GetBoardNameByType",
     .ask =
         [](Output* output) {
           return ddGetBoardNameByType(7, output == nullptr ? nullptr : output->name.data());
         },
     .null_output = "\r\nddGetBoardNameByType err!, pcBoardName = 0x0",
     .above_limit = "\r\nddGetBoardNameByType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetBoardNameByType err! pBoardTypeArray = 0x0",
     .answer = {.name = string("PLBD\0", 5) + string(55, '#')}},
    {.name = "GetBoardTypeByName",
     .ask =
         [](Output* output) {
           return ddGetBoardTypeByName(output == nullptr ? nullptr : "PLBD", Number(output));
         },
     .null_output = "\r\nddGetBoardTypeByName err!, pcBoardName = 0x0, pulBoardType = 0x0",
     .above_limit = "\r\nddGetBoardTypeByName err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetBoardTypeByName err! pBoardTypeArray = 0x0",
     .not_found_code = -32,
     .answer = {.number = 7}},
    {.name = "GetBoardServePortAmountByType",
     .ask = [](Output* output) { return ddGetBoardServePortAmountByType(7, Number(output)); },
     .null_output = "\r\nddGetBoardServePortNumByType err! pulBoardServePortAmount = 0x0",
     .above_limit = "\r\nddGetBoardServePortNumByType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetBoardServePortNumByType err! pBoardTypeArray = 0x0",
     .not_found_number = 0,
     .answer = {.number = 3}},
    {.name = "GetBoardTotailPortAmountByType",
     .ask = [](Output* output) { return ddGetBoardTotailPortAmountByType(7, Number(output)); },
     .null_output = "\r\nddGetBoardServePortNumByType err! pulBoardServePortAmount = 0x0",
     .above_limit = "\r\nddGetBoardServePortNumByType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetBoardServePortNumByType err! pBoardTypeArray = 0x0",
     .not_found_number = 0,
     .answer = {.number = 0},
     .answer_code = -18},
    {.name = "GetBoardSpecialPortNumByType",
     .ask = [](Output* output) { return ddGetBoardSpecialPortNumByType(7, 3, Number(output)); },
     .null_output = "\r\nddGetBoardSpecialPortNumByType err! pulBoardSpecialPortNum = 0x0",
     .above_limit = "\r\nddGetBoardSpecialPortNumByType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetBoardSpecialPortNumByType err! pBoardTypeArray = 0x0",
     .answer = {.number = 1}},
    {.name = "GetBoardTotalSpecialPortNum",
     .ask = [](Output* output) { return ddGetBoardTotalSpecialPortNum(7, Number(output)); },
     .null_output = "\r\nddGetBoardTotalSpecialPortNum err! pulBoardSpecialPortNum = 0x0",
     .above_limit = "\r\nddGetBoardTotalSpecialPortNum err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetBoardTotalSpecialPortNum err! pBoardTypeArray = 0x0",
     .answer = {.number = 1}},
    {.name = "GetPortTypeByBoardType",
     .ask = [](Output* output) { return ddGetPortTypeByBoardType(7, 3, Number(output)); },
     .null_output = "\r\nddGetPortTypeByBoardType err! pulPortType = 0x0",
     .above_limit = "\r\nddGetPortTypeByBoardType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetPortTypeByBoardType err! pBoardTypeArray = 0x0",
     .not_found_number = 0,
     .answer = {.number = 2}},
    {.name = "GetSpecialPortTypeByBoardType",
     .ask = [](Output* output) { return ddGetSpecialPortTypeByBoardType(7, 1, Number(output)); },
     .null_output = "\r\nddGetSpecialPortTypeByBoardType err! pulPortType = 0x0",
     .above_limit = "\r\nddGetSpecialPortTypeByBoardType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetSpecialPortTypeByBoardType err! pBoardTypeArray = 0x0",
     .not_found_number = 0,
     .answer = {.number = 3}},
    {.name = "GetPonMaxOnuNumByBoardType",
     .ask = [](Output* output) { return ddGetPonMaxOnuNumByBoardType(7, 1, Number(output)); },
     .null_output = "\r\nddGetPonMaxOnuNumByBoardType err! pulMaxOnuNumPerPon = 0x0",
     .above_limit = "\r\nddGetPortTypeByBoardType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetPortTypeByBoardType err! pBoardTypeArray = 0x0",
     .behind =
         "\r\nddGetPonMaxOnuNumByBoardType->ddGetPortTypeByBoardType err! ulBoardType = 7, ulPonNo = 1",
     .answer = {.number = 64}},
    {.name = "GetBoardAllPortTypesByType",
     .ask =
         [](Output* output) {
           return ddGetBoardAllPortTypesByType(7, output == nullptr ? nullptr : output->list.data(),
                                               4, Number(output));
         },
     .null_output = "\r\nddGetBoardAllPortTypesByType err! pulPortTypeNum = 0x0",
     .above_limit = "\r\nddGetBoardAllPortTypesByType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\nddGetBoardAllPortTypesByType err! pBoardTypeArray = 0x0",
     .not_found_number = 0,
     .not_found = "\r\nddGetBoardAllPortTypesByType err! ulBoardType = 7",
     .answer = {.number = 3, .list = {1, 2, 3, kUntouched}}},
    {.name = "GetBoardOneTypePortsByType",
     .ask = [](Output* output) { return ddGetBoardOneTypePortsByType(7, 1, Number(output)); },
     .null_output = "\r\n ddGetBoardAllPortsByType err! pulPortNum = 0x0",
     .above_limit = "\r\n ddGetBoardAllPortsByType err! ulSupportedBoardTypeNum = ",
     .no_array = "\r\n ddGetBoardAllPortsByType err! pBoardTypeArray = 0x0",
     .not_found_number = 0,
     .not_found = "\r\nddGetBoardAllPortTypesByType err! ulBoardType = 7",
     .answer = {.number = 2}},
};

const PlacedBoard kBoard7 = {7, "PLBD", {{1, 1, 2}}, {{3}}};
const PlacedBoard kOther = {9, "OTHER", {{4}}, {{5, 3}}};

class BoardQuery : public test::BoardTablesTest, public testing::WithParamInterface<Query> {
 protected:
  void SetUp() override {
    BoardTablesTest::SetUp();
    PutMainBoards({});  // some queries ask them first
    PutPortTypes({.places = {test::PlacedPortType{1, 64}}});
  }

  void Expect(int32_t code, const Output& expected, const string& text) {
    AskTwice(text, [&] {
      Output output;
      EXPECT_EQ(GetParam().ask(&output), code);
      EXPECT_EQ(output, expected);
    });
  }

  // The name lookup clears both its outputs, the others none or one.
  void ExpectRefusal(int32_t code, uint32_t number, const string& text) {
    Output expected;
    expected.number = number;
    if (GetParam().answer.place != kUntouched) {
      expected.place = 0;
    }
    Expect(code, expected, text + GetParam().behind);
  }

  void ExpectNotFound() {
    ExpectRefusal(GetParam().not_found_code, GetParam().not_found_number, GetParam().not_found);
  }

  // Board 7 answers; it stands at that place.
  void ExpectAnswer(uint32_t place) {
    Output expected = GetParam().answer;
    if (expected.place != kUntouched) {
      expected.place = place;
    }
    Expect(GetParam().answer_code, expected, "");
  }
};

TEST_P(BoardQuery, NullOutputBeforeATableCheck) {
  PutBoards({.has_array = false, .count = 101});
  Overwrite(gstSupportedMainBoardType.ulSupportedBoardTypeNum, 101);
  AskTwice(GetParam().null_output, [] { EXPECT_EQ(GetParam().ask(nullptr), -2); });
}

TEST_P(BoardQuery, NullOutput) {
  PutBoards({.places = {kBoard7}});
  AskTwice(GetParam().null_output, [] { EXPECT_EQ(GetParam().ask(nullptr), -2); });
}

TEST_P(BoardQuery, CountAboveLimit) {
  PutBoards({.places = {kBoard7}});
  Overwrite(gstSupportedBoardType.ulSupportedBoardTypeNum, 101);
  ExpectRefusal(-19, GetParam().refused, GetParam().above_limit + "101");
  Overwrite(gstSupportedBoardType.ulSupportedBoardTypeNum, 0x80000000);
  ExpectRefusal(-19, GetParam().refused, GetParam().above_limit + "-2147483648");
  Overwrite(gstSupportedBoardType.ulSupportedBoardTypeNum, 0xffffffff);
  ExpectRefusal(-19, GetParam().refused, GetParam().above_limit + "-1");
}

TEST_P(BoardQuery, CountIsCheckedBeforeTheArray) {
  PutBoards({.has_array = false, .count = 101});
  ExpectRefusal(-19, GetParam().refused, GetParam().above_limit + "101");
}

TEST_P(BoardQuery, NoArray) {
  PutBoards({.has_array = false});
  ExpectRefusal(-10, GetParam().refused, GetParam().no_array);
  Overwrite(gstSupportedBoardType.ulSupportedBoardTypeNum, 100);
  ExpectRefusal(-10, GetParam().refused, GetParam().no_array);
}

TEST_P(BoardQuery, NoBoards) {
  PutBoards({});
  ExpectNotFound();
}

TEST_P(BoardQuery, OtherBoards) {
  PutBoards({.places = {kOther, PlacedBoard{8, "PLB"}, PlacedBoard{0, "PLBD1"}}});
  ExpectNotFound();
}

TEST_P(BoardQuery, EmptyPlacesOnly) {
  PutBoards({.places = {kNull, kNull}});
  ExpectNotFound();
}

TEST_P(BoardQuery, BoardBehindTheCount) {
  PutBoards({.places = {kOther, kBoard7}, .count = 1});
  ExpectNotFound();
}

TEST_P(BoardQuery, OnlyBoard) {
  PutBoards({.places = {kBoard7}});
  ExpectAnswer(0);
}

TEST_P(BoardQuery, BehindAnEmptyPlace) {
  PutBoards({.places = {kNull, kBoard7, kNull}});
  ExpectAnswer(1);
}

TEST_P(BoardQuery, FirstOfThatTypeAndName) {
  PutBoards({.places = {kOther, kBoard7, PlacedBoard{7, "SECOND"}, PlacedBoard{8, "PLBD"}}});
  ExpectAnswer(1);
}

TEST_P(BoardQuery, LastOfAFullTable) {
  test::PlacedBoards boards = {.places = {99, kOther}};
  boards.places.push_back(kBoard7);
  PutBoards(boards);
  ExpectAnswer(99);
}

INSTANTIATE_TEST_SUITE_P(All, BoardQuery, testing::ValuesIn(kQueries),
                         testing::PrintToStringParamName());

// ---- Types are 32 bits wide ------------------------------------------------------

class WideTypes : public test::BoardTablesTest {
 protected:
  // Two boards, and two port types, that differ in their upper bits only.
  void SetUp() override {
    test::BoardTablesTest::SetUp();
    PutBoards(
        {.places = {PlacedBoard{0x80010007, "WIDE", {{5, 0x10005, 5}}, {{0x10006, 6, 0x10006}}},
                    PlacedBoard{0x10007, "MIDDLE", {{1, 1}}}, PlacedBoard{7, "NARROW", {{2}}}}});
  }
};

TEST_F(WideTypes, OfBoards) {
  const struct {
    uint32_t type;
    string name;
    uint32_t ports;
  } boards[] = {{0x80010007, "WIDE", 3}, {0x10007, "MIDDLE", 2}, {7, "NARROW", 1}};
  for (const auto& board : boards) {
    char name[60] = {};
    uint32_t ports = 0;
    EXPECT_EQ(ddGetBoardNameByType(board.type, name), 0);
    EXPECT_EQ(name, board.name);
    EXPECT_EQ(ddGetBoardServePortAmountByType(board.type, &ports), 0);
    EXPECT_EQ(ports, board.ports);
  }
}

TEST_F(WideTypes, OfPorts) {
  uint32_t list[5] = {};
  uint32_t number = 0;
  EXPECT_EQ(ddGetBoardAllPortTypesByType(0x80010007, list, 5, &number), 0);
  EXPECT_EQ(std::vector<uint32_t>(list, list + number),
            (std::vector<uint32_t>{5, 0x10005, 0x10006, 6}));
  EXPECT_EQ(ddGetBoardOneTypePortsByType(0x80010007, 5, &number), 0);
  EXPECT_EQ(number, 2u);
  EXPECT_EQ(ddGetBoardOneTypePortsByType(0x80010007, 0x10006, &number), 0);
  EXPECT_EQ(number, 2u);
  EXPECT_EQ(ddGetBoardSpecialPortNumByType(0x80010007, 6, &number), 0);
  EXPECT_EQ(number, 1u);
}

}  // namespace
