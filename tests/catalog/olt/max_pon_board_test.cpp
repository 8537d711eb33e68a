// The PON board with most serving ports.
#include <cstdint>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "support/tables.h"
#include "sys_context/olt.h"

namespace {

using std::string;

struct Card {
  uint32_t type;
  uint32_t ports;
  bool present = true;
};

// A table that holds what no load has put there.
class MaxPonTest : public test::LibraryTest {
 protected:
  void TearDown() override {
    gstSupportedBoardType = {};  // its records are this fixture's
    LibraryTest::TearDown();
  }

  void Put(const std::vector<Card>& cards) {
    boards_.assign(cards.size(), BoardInformation());
    slots_.assign(cards.size() + 1, nullptr);
    for (size_t i = 0; i < cards.size(); ++i) {
      boards_[i].ulType = cards[i].type;
      boards_[i].ulTotalServePortNum = cards[i].ports;
      boards_[i].ulTotalSpecialPortNum = 99;  // does not count
      slots_[i] = cards[i].present ? &boards_[i] : nullptr;
    }
    gstSupportedBoardType = {static_cast<uint32_t>(cards.size()), slots_.data(), 0x7e7e, 0x6d6d};
  }

  void ExpectMaximum(uint32_t type, uint32_t ports) {
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonType, type);
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardMaxPonNum, ports);
  }

  test::Console console_;
  std::vector<BoardInformation> boards_;
  std::vector<BoardInformation*> slots_;
};

// ---- Finding it ---------------------------------------------------------------

struct FindRow {
  const char* name;
  std::vector<Card> cards;
  std::set<int16_t> pon_cards;
  uint32_t type;
  uint32_t ports;
  std::vector<int16_t> asked;
  friend std::ostream& operator<<(std::ostream& out, const FindRow& row) { return out << row.name; }
};

std::vector<string> QuestionsAbout(const std::vector<int16_t>& types) {
  std::vector<string> questions;
  for (const int16_t type : types) {
    questions.push_back("pon " + std::to_string(type));
  }
  return questions;
}

class FindMaxPonBoard : public MaxPonTest, public testing::WithParamInterface<FindRow> {};

TEST_P(FindMaxPonBoard, AmongTheBoards) {
  for (const int32_t debug : {0, 1}) {
    test::FakePlatform::Reset();
    test::FakePlatform::Get().pon_cards = GetParam().pon_cards;
    Put(GetParam().cards);
    ddDebugPrint = debug;

    EXPECT_EQ(ddFindSupportedBoardMaxPonNum(), 0);

    ExpectMaximum(GetParam().type, GetParam().ports);
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, GetParam().cards.size());
    EXPECT_EQ(gstSupportedBoardType.pBoardTypeArray, slots_.data());
    EXPECT_EQ(test::FakePlatform::TakeAsked(), QuestionsAbout(GetParam().asked));
    EXPECT_EQ(console_.Text(), "");
  }
}

std::vector<Card> HundredCards() {
  std::vector<Card> cards;
  for (uint32_t i = 1; i <= 100; ++i) {
    cards.push_back({i, i});
  }
  return cards;
}
std::vector<int16_t> OneToHundred() {
  std::vector<int16_t> types;
  for (int16_t i = 1; i <= 100; ++i) {
    types.push_back(i);
  }
  return types;
}

const FindRow kFinds[] = {
    {"NoBoard", {}, {1}, 0, 0, {}},
    {"One", {{7, 16}}, {7}, 7, 16, {7}},
    {"OneWithoutPorts", {{7, 0}}, {7}, 0, 0, {7}},
    {"OneWithOnePort", {{7, 1}}, {7}, 7, 1, {7}},
    {"NoPonBoard", {{7, 16}, {8, 8}}, {}, 0, 0, {7, 8}},
    {"First", {{1, 16}, {2, 8}, {3, 4}}, {1, 2, 3}, 1, 16, {1, 2, 3}},
    {"Second", {{1, 8}, {2, 16}, {3, 4}}, {1, 2, 3}, 2, 16, {1, 2, 3}},
    {"Last", {{1, 4}, {2, 8}, {3, 16}}, {1, 2, 3}, 3, 16, {1, 2, 3}},
    {"TieKeepsTheEarlier", {{1, 8}, {2, 16}, {3, 16}}, {1, 2, 3}, 2, 16, {1, 2, 3}},
    {"TieOfAll", {{3, 16}, {2, 16}, {1, 16}}, {1, 2, 3}, 3, 16, {3, 2, 1}},
    {"OtherBoardsDoNotCount", {{1, 48}, {2, 16}, {3, 128}}, {2}, 2, 16, {1, 2, 3}},
    {"SameTypeTwice", {{1, 8}, {1, 16}}, {1}, 1, 16, {1, 1}},
    {"TypeZero", {{0, 16}}, {0}, 0, 16, {0}},
    {"EmptyPlaces",
     {{9, 64, false}, {1, 8}, {9, 64, false}, {2, 16}, {9, 64, false}},
     {1, 2, 9},
     2,
     16,
     {1, 2}},
    {"OnlyEmptyPlaces", {{9, 64, false}, {9, 64, false}}, {9}, 0, 0, {}},
    {"TypeIsAskedIn16Bits", {{65537, 16}}, {1}, 65537, 16, {1}},
    {"TypeAbove16BitsIsNoOther", {{65537, 16}, {2, 4}}, {2}, 2, 4, {1, 2}},
    {"TypesBecomeNegative",
     {{32767, 1}, {32768, 2}, {65535, 3}, {0xffffffff, 4}, {65536, 5}},
     {-1},
     0xffffffff,
     4,
     {32767, -32768, -1, -1, 0}},
    {"MorePortsThanABoardHas",
     {{1, 128}, {2, 129}, {3, 0xffffffff}, {4, 0x7fffffff}},
     {1, 2, 3, 4},
     3,
     0xffffffff,
     {1, 2, 3, 4}},
    {"FullTable", HundredCards(), {1, 99, 100}, 100, 100, OneToHundred()},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, FindMaxPonBoard, testing::ValuesIn(kFinds),
                         testing::PrintToStringParamName());

TEST_F(MaxPonTest, OnlyTheAnswerZeroIsAPonBoard) {
  test::FakePlatform::Get().pon_cards = {2};
  for (const int32_t answer : {-1, 1, 2, INT32_MIN}) {
    test::FakePlatform::Get().not_of_that_kind = answer;
    Put({{1, 16}, {2, 8}, {3, 32}});
    EXPECT_EQ(ddFindSupportedBoardMaxPonNum(), 0);
    ExpectMaximum(2, 8);
  }
}

struct CorruptRow {
  const char* name;
  uint32_t count;
  bool has_array;
  int32_t code;
  string debug_console;
  friend std::ostream& operator<<(std::ostream& out, const CorruptRow& row) {
    return out << row.name;
  }
};

class FindMaxPonBoardInVain : public MaxPonTest, public testing::WithParamInterface<CorruptRow> {};

TEST_P(FindMaxPonBoardInVain, TouchesNothing) {
  for (const int32_t debug : {0, 1}) {
    Put(std::vector<Card>(101, {7, 16}));
    test::FakePlatform::Get().pon_cards = {7};
    gstSupportedBoardType.ulSupportedBoardTypeNum = GetParam().count;
    if (!GetParam().has_array) {
      gstSupportedBoardType.pBoardTypeArray = nullptr;
    }
    ddDebugPrint = debug;

    EXPECT_EQ(ddFindSupportedBoardMaxPonNum(), GetParam().code);

    ExpectMaximum(0x7e7e, 0x6d6d);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
    EXPECT_EQ(gstSupportedBoardType.ulSupportedBoardTypeNum, GetParam().count);
    EXPECT_TRUE(test::FakePlatform::Get().asked.empty());
  }
}

constexpr char kNoArray[] = "\r\nddFindSupportedBoardMaxPonNum err! pBoardTypeArray = 0x0";

const CorruptRow kCorrupt[] = {
    {"OneTooMany", 101, true, -19,
     "\r\nddFindSupportedBoardMaxPonNum err! ulSupportedBoardTypeNum = 101"},
    {"LargestCount", 0xffffffff, true, -19,
     "\r\nddFindSupportedBoardMaxPonNum err! ulSupportedBoardTypeNum = -1"},
    {"OneTooManyAndNoArray", 101, false, -19,
     "\r\nddFindSupportedBoardMaxPonNum err! ulSupportedBoardTypeNum = 101"},
    {"NoArray", 0, false, -10, kNoArray},
    {"NoArrayButACount", 3, false, -10, kNoArray},
    {"NoArrayButAFullCount", 100, false, -10, kNoArray},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, FindMaxPonBoardInVain, testing::ValuesIn(kCorrupt),
                         testing::PrintToStringParamName());

// ---- Asking for its ports -----------------------------------------------------

struct AskRow {
  const char* name;
  uint32_t ports;
  int32_t code;
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const AskRow& row) { return out << row.name; }
};

class MaxPonNum : public MaxPonTest, public testing::WithParamInterface<AskRow> {};

TEST_P(MaxPonNum, IsGivenWithinABoardsLimit) {
  for (const int32_t debug : {0, 1}) {
    // Neither the number of boards nor their array is looked at.
    gstSupportedBoardType = {101, nullptr, 7, GetParam().ports};
    ddDebugPrint = debug;
    uint32_t ports = 77;

    EXPECT_EQ(ddGetSupportedBoardMaxPonNum(&ports), GetParam().code);

    EXPECT_EQ(ports, GetParam().code == 0 ? GetParam().ports : 77);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

string OutOfRange(const string& ports) {
  return "\r\nddGetSupportedBoardMaxPonNum err! ulSupportedBoardMaxPonNum = " + ports +
         ", MAX_OLT_PORT_NUM_PER_BOARD = 128";
}

const AskRow kAsks[] = {
    {"None", 0, -17, OutOfRange("0")},
    {"One", 1, 0},
    {"Most", 128, 0},
    {"OneTooMany", 129, -17, OutOfRange("129")},
    {"Largest", 0xffffffff, -17, OutOfRange("-1")},
};
INSTANTIATE_TEST_SUITE_P(ServiceBoards, MaxPonNum, testing::ValuesIn(kAsks),
                         testing::PrintToStringParamName());

using MaxPonNumOfBoards = MaxPonTest;

TEST_F(MaxPonNumOfBoards, NoResult) {
  gstSupportedBoardType.ulSupportedBoardMaxPonNum = 129;  // looked at later only
  EXPECT_EQ(ddGetSupportedBoardMaxPonNum(nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetSupportedBoardMaxPonNum(nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddGetSupportedBoardMaxPonNum, pulSupportedBoardMaxPonNum = 0x0");
}

TEST_F(MaxPonNumOfBoards, EmptyTable) {
  uint32_t ports = 77;
  EXPECT_EQ(ddGetSupportedBoardMaxPonNum(&ports), -17);
  EXPECT_EQ(ports, 77u);
}

TEST_F(MaxPonNumOfBoards, WhatWasFound) {
  Put({{1, 8}, {2, 16}});
  test::FakePlatform::Get().pon_cards = {1, 2};
  uint32_t ports = 77;
  EXPECT_EQ(ddFindSupportedBoardMaxPonNum(), 0);
  EXPECT_EQ(ddGetSupportedBoardMaxPonNum(&ports), 0);
  EXPECT_EQ(ports, 16u);
}

}  // namespace
