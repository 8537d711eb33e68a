// Asking for all port types of a board, and for the ports of one type.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/board_tables.h"

namespace {

using std::string;
using test::kNull;
using test::kUntouched;
using test::PlacedBoard;
using test::Ports;
using test::PortsOfTypes1To;

// ---- All port types ---------------------------------------------------------------

struct AllRow {
  const char* name;
  Ports serving;
  Ports special;
  uint32_t room;
  int32_t code;
  std::vector<uint32_t> list;
  string text = "";
  friend std::ostream& operator<<(std::ostream& out, const AllRow& row) { return out << row.name; }
};

class BoardAllPortTypes : public test::BoardTablesTest,
                          public testing::WithParamInterface<AllRow> {};

TEST_P(BoardAllPortTypes, InOrderOfAppearance) {
  PutBoards({.places = {PlacedBoard{7, "PLBD", GetParam().serving, GetParam().special}}});
  std::vector<uint32_t> expected = GetParam().list;
  expected.resize(300, kUntouched);
  AskTwice(GetParam().text, [&] {
    std::vector<uint32_t> list(300, kUntouched);
    uint32_t count = kUntouched;
    EXPECT_EQ(ddGetBoardAllPortTypesByType(7, list.data(), GetParam().room, &count),
              GetParam().code);
    EXPECT_EQ(count, GetParam().list.size());
    EXPECT_EQ(list, expected);
  });
}

string TooSmall(const string& room, const string& needed) {
  return "\r\nddGetBoardAllPortTypesByType err! the range of list is small! ulArrayAmount = " +
         room + ", realPortTypeNum = " + needed + ".";
}

std::vector<uint32_t> From1To(uint32_t last) {
  std::vector<uint32_t> numbers;
  for (uint32_t number = 1; number <= last; ++number) {
    numbers.push_back(number);
  }
  return numbers;
}

constexpr uint32_t kA = 31;
constexpr uint32_t kB = 12;
constexpr uint32_t kC = 23;
const Ports kAab = {{kA, kA, kB}};
const Ports kOneC = {{kC}};

const AllRow kAll[] = {
    {"NoRoom", kAab, kOneC, 0, -9, {}, TooSmall("0", "1")},
    {"RoomForOne", kAab, kOneC, 1, -9, {kA}, TooSmall("1", "2")},
    {"RoomForTheServing", kAab, kOneC, 2, -9, {kA, kB}, TooSmall("2", "3")},
    {"RoomForAll", kAab, kOneC, 3, 0, {kA, kB, kC}},
    {"RoomForMore", kAab, kOneC, 4, 0, {kA, kB, kC}},
    {"LargestRoom", kAab, kOneC, 0xffffffff, 0, {kA, kB, kC}},
    {"KnownTypesNeedNoRoom", {{kA, kB, kA, kB}}, {{kB, kA}}, 2, 0, {kA, kB}},
    {"NewTypeBehindKnownOnes", {{kA, kA, kA, kB}}, {}, 1, -9, {kA}, TooSmall("1", "2")},
    {"NewSpecialBehindKnownOnes", {{kA}}, {{kA, kA, kC}}, 1, -9, {kA}, TooSmall("1", "2")},
    {"SharedTypes", {{kB, kA}}, {{kA, kC, kB, kC}}, 9, 0, {kB, kA, kC}},
    {"StopsInTheServing", {{kA, kB}}, {{kC, kA}}, 1, -9, {kA}, TooSmall("1", "2")},
    {"ServingOnly", kAab, {}, 9, 0, {kA, kB}},
    {"SpecialOnly", {}, {{kC, kB, kC}}, 9, 0, {kC, kB}},
    {"NoRoomForSpecial", {}, kOneC, 0, -9, {}, TooSmall("0", "1")},
    {"NoPorts", {}, {}, 9, 0, {}},
    {"NoPortsAndNoRoom", {}, {}, 0, 0, {}},
    {"TypeZeroAndTheLargest", {{0, 0xffffffff}}, {{0xffffffff, 0}}, 9, 0, {0, 0xffffffff}},
    {"WhatTheListHeldIsNotKnown", {{kA, kUntouched}}, {}, 9, 0, {kA, kUntouched}},
    {"EmptyPlaceFirst", {{kNull, kA}}, {{kNull, kC}}, 9, 0, {kA, kC}},
    {"EmptyPlaceAmongOthers", {{kA, kNull, kB}}, {{kC, kNull, kA}}, 9, 0, {kA, kB, kC}},
    {"EmptyPlacesNeedNoRoom", {{kNull, kA, kNull}}, {{kNull}}, 1, 0, {kA}},
    {"EmptyPlacesOnly", {{kNull, kNull}}, {{kNull}}, 0, 0, {}},
    {"NoServingArray", {{}, 3}, kOneC, 9, 0, {kC}},
    {"NoSpecialArray", kAab, {{}, 3}, 9, 0, {kA, kB}},
    {"NoArrays", {{}, 0xffffffff}, {{}, 0xffffffff}, 9, 0, {}},
    {"ServingArrayWithoutCount", {{kA, kB}, 0}, kOneC, 9, 0, {kC}},
    {"SpecialArrayWithoutCount", kAab, {{kC}, 0}, 9, 0, {kA, kB}},
    {"ServingBehindTheCount", {{kA, kB, kNull}, 1}, {{kC, kNull, kB}, 1}, 9, 0, {kA, kC}},
    {"FullBoard", PortsOfTypes1To(128), PortsOfTypes1To(128), 128, 0, From1To(128)},
    {"FullBoardAndTooLittleRoom",
     PortsOfTypes1To(128),
     {},
     127,
     -9,
     From1To(127),
     TooSmall("127", "128")},
    {"MorePortsThanPossible", {}, PortsOfTypes1To(130), 300, 0, From1To(130)},
    {"MoreServingPortsThanPossible", PortsOfTypes1To(130), {{131}}, 300, 0, From1To(131)},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardAllPortTypes, testing::ValuesIn(kAll),
                         testing::PrintToStringParamName());

using BoardPortTypeList = test::BoardTablesTest;

TEST_F(BoardPortTypeList, NullListOrCount) {
  PutBoards({.has_array = false, .count = 101});  // looked at later only
  uint32_t list[1] = {kUntouched};
  uint32_t count = kUntouched;
  ddDebugPrint = 0;
  EXPECT_EQ(ddGetBoardAllPortTypesByType(7, nullptr, 1, &count), -2);
  EXPECT_EQ(ddGetBoardAllPortTypesByType(7, nullptr, 0, &count), -2);
  EXPECT_EQ(count, kUntouched);
  AskTwice("\r\nddGetBoardAllPortTypesByType err! pulPortTypeNum = 0x0", [&] {
    EXPECT_EQ(ddGetBoardAllPortTypesByType(7, list, 1, nullptr), -2);
    EXPECT_EQ(list[0], kUntouched);
  });
  // The list is not shown.
  AskTwice("\r\nddGetBoardAllPortTypesByType err! pulPortTypeNum = 0x1230", [] {
    EXPECT_EQ(
        ddGetBoardAllPortTypesByType(7, nullptr, 1, reinterpret_cast<uint32_t*>(uintptr_t{0x1230})),
        -2);
  });
}

// ---- Ports of one type ------------------------------------------------------------

struct OneRow {
  const char* name;
  Ports serving;
  Ports special;
  int32_t code;
  uint32_t answer;
  string text = "";
  uint32_t port_type = kA;
  friend std::ostream& operator<<(std::ostream& out, const OneRow& row) { return out << row.name; }
};

class BoardPortsOfOneType : public test::BoardTablesTest,
                            public testing::WithParamInterface<OneRow> {};

TEST_P(BoardPortsOfOneType, ServingElseSpecial) {
  PutBoards({.places = {PlacedBoard{7, "PLBD", GetParam().serving, GetParam().special}}});
  AskTwice(GetParam().text, [] {
    uint32_t number = kUntouched;
    EXPECT_EQ(ddGetBoardOneTypePortsByType(7, GetParam().port_type, &number), GetParam().code);
    EXPECT_EQ(number, GetParam().answer);
  });
}

string EmptyAt(const string& index) {
  return "\r\n ddGetBoardAllPortsByType err! ulSupportedPortIndex = " + index +
         "pServePortArray = 0x0";
}

Ports OfTypeA(size_t count) {
  return {std::vector<std::optional<uint32_t>>(count, kA)};
}

const OneRow kOne[] = {
    {"Serving", {{kA, kB, kA}}, {{kC}}, 0, 2},
    {"Special", {{kB, kC}}, {{kA, kB, kA, kA}}, 0, 3},
    {"NeverAddedTogether", {{kA, kB}}, {{kA, kA, kA}}, 0, 1},
    {"Neither", {{kB}}, {{kC}}, 0, 0},
    {"NoPorts", {}, {}, 0, 0},
    {"NoServingPorts", {}, {{kA}}, 0, 1},
    {"NoSpecialPorts", {{kA, kA}}, {}, 0, 2},
    {"NoSpecialPortsToLookAt", {{kB}}, {}, 0, 0},
    {"TypeZero", {{0, kA}}, {{0, 0}}, 0, 1, "", 0},
    {"LargestType", {{kA}}, {{0xffffffff}}, 0, 1, "", 0xffffffff},
    {"EmptyPlaceFirst", {{kNull, kA}}, {{kA}}, -10, kUntouched, EmptyAt("0")},
    {"EmptyPlaceBehindAMatch", {{kA, kNull, kA}}, {{kA}}, -10, kUntouched, EmptyAt("1")},
    {"EmptyPlaceLast", {{kB, kB, kB, kNull}}, {{kA}}, -10, kUntouched, EmptyAt("3")},
    {"EmptySpecialPlaceFirst", {{kB, kB}}, {{kNull, kA}}, -10, 0, EmptyAt("0")},
    {"EmptySpecialPlaceBehindAMatch", {{kB}}, {{kA, kA, kNull}}, -10, 0, EmptyAt("2")},
    {"EmptySpecialPlaceWithoutServingPorts", {}, {{kA, kNull}}, -10, 0, EmptyAt("1")},
    {"EmptySpecialPlaceNotLookedAt", {{kB, kA}}, {{kNull, kA}}, 0, 1},
    {"EmptyPlacesBehindTheCounts", {{kB, kNull}, 1}, {{kA, kNull}, 1}, 0, 1},
    {"CountsWithoutArrays", {{}, 3}, {{}, 0xffffffff}, 0, 0},
    {"NoServingArray", {{}, 3}, {{kA}}, 0, 1},
    {"NoSpecialArray", {{kA}}, {{}, 3}, 0, 1},
    {"ServingArrayWithoutCount", {{kA, kA}, 0}, {{kA}}, 0, 1},
    {"SpecialArrayWithoutCount", {{kB}}, {{kA}, 0}, 0, 0},
    {"FullBoard", OfTypeA(128), OfTypeA(1), 0, 128},
    {"MorePortsThanPossible", OfTypeA(130), {}, 0, 130},
    {"MoreSpecialPortsThanPossible", {}, OfTypeA(130), 0, 130},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardPortsOfOneType, testing::ValuesIn(kOne),
                         testing::PrintToStringParamName());

}  // namespace
