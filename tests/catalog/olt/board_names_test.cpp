// Asking for the names and the types of boards.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/name_tables.h"

namespace {

using namespace test;  // for its tables, rows and texts
using std::string;

// ---- Name by type -------------------------------------------------------------------

class BoardName : public NameByTypeTest {};

TEST_P(BoardName, ByType) {
  Expect(ddGetBoardNameByType);
}

constexpr char kMostMainForName[] =
    "\r\nddGetMainBoardNameByType err!, ulSupportedBoardTypeNum = -1, MAX_OLT_BOARD_TYPE_NUM = 100";

const NameRow kNames[] = {
    {"MainBoard", kMain, kService, 2, 0, "CTLB"},
    {"FirstMainBoardBeforeTheServiceBoard", kMain, kService, 1, 0, "CTLA"},
    {"ServiceBoard", kMain, kService, 8, 0, "plbd"},
    {"FirstOfTwoServiceBoards", kMain, kService, 7, 0, "PLBD"},
    {"TypeZero", kMain, kService, 0, 0, "ZERO"},
    {"LargestTypeWithAnEmptyName", kMain, kService, 0xffffffff, 0, ""},
    {"LongestName", kMain, kService, 10, 0, k59},
    {"CorruptMainNamePassedOver", kMain, kService, 5, 0, "FIVE"},
    {"CorruptMainNameAndAServiceBoard", kMain, kService, 6, 0, "SIX"},
    {"CorruptNamePassedOver", kMain, kService, 9, 0, "NINE"},
    {"CorruptNameOnly", kMain, kService, 11, -18},
    {"LargestNameLength",
     kMain,
     {.places = {PlacedBoard{7, "PLBD", {}, {}, 0xffffffff}, PlacedBoard{7, "G2"}}},
     7,
     0,
     "G2"},
    {"Unknown", kMain, kService, 77, -18},
    {"NoMainBoards", kNoArray, kService, 7, 0, "PLBD", kNoMainForName},
    {"NoMainBoardsAndUnknown", kNoArrayButCount, kService, 77, -18, "", kNoMainForName},
    {"CorruptMainBoards", kCorrupt, kService, 1, 0, "ONE", kCorruptMainForName},
    {"CorruptMainBoardsAndUnknown", kCorruptMost, kService, 77, -18, "", kMostMainForName},
    {"MainBoardBehindAHole", kMainWithHole, kService, 1, 0, "CTLA", kHoleForName},
    {"ServiceBoardAndHoles", kMainWithHole, kService, 7, 0, "PLBD", kHoleForName + kHoleForName},
    {"MainBoardWithoutServiceBoards", kMain, kNoArray, 1, 0, "CTLA"},
    {"MainBoardAndCorruptServiceBoards", kMain, kCorrupt, 1, 0, "CTLA"},
    {"NoServiceBoards", kMain, kNoArray, 7, -10, "", kNoBoardsForName},
    {"NoServiceBoardsButACount", kMain, kNoArrayButCount, 7, -10, "", kNoBoardsForName},
    {"CorruptServiceBoards", kMain, kCorrupt, 7, -19, "", kCorruptForName},
    {"CorruptServiceBoardsWithoutArray", kMain, kCorruptNoArray, 7, -19, "", kCorruptForName},
    {"CorruptMostServiceBoards", kMain, kCorruptMost, 7, -19, "",
     "\r\nddGetBoardNameByType err! ulSupportedBoardTypeNum = -1"},
    {"NoTables", kNoArray, kNoArray, 7, -10, "", kNoMainForName + kNoBoardsForName},
    {"CorruptTables", kCorrupt, kCorrupt, 7, -19, "", kCorruptMainForName + kCorruptForName},
    {"NoMainAndCorruptServiceBoards", kNoArray, kCorrupt, 7, -19, "",
     kNoMainForName + kCorruptForName},
    {"CorruptMainAndNoServiceBoards", kCorrupt, kNoArray, 7, -10, "",
     kCorruptMainForName + kNoBoardsForName},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardName, testing::ValuesIn(kNames),
                         testing::PrintToStringParamName());

using BoardNames = BoardTablesTest;

TEST_F(BoardNames, NullBufferForAMainBoard) {
  PutMainBoards(kMain);
  AskTwice("\r\nddGetBoardNameByType err!, pcBoardName = 0x0",
           [] { EXPECT_EQ(ddGetBoardNameByType(1, nullptr), -2); });
}

TEST_F(BoardNames, AsMuchOfTheNameIsGivenAsItsLengthTells) {
  const uint32_t lengths[] = {0, 3, 5, 60};  // and the types of their boards
  PlacedBoards boards;
  for (const uint32_t length : lengths) {
    boards.places.push_back(PlacedBoard{.type = length, .name = "PLBD", .name_length = length});
  }
  PutBoards(boards);
  for (const uint32_t length : lengths) {
    string buffer(61, '#');
    EXPECT_EQ(ddGetBoardNameByType(length, buffer.data()), 0);
    string expected("PLBD", length < 5 ? length : 4);
    expected.resize(length);
    expected.resize(61, '#');
    EXPECT_EQ(buffer, expected) << length;
  }
}

// ---- Type by name -------------------------------------------------------------------

class BoardType : public TypeByNameTest {};

TEST_P(BoardType, ByName) {
  Expect(ddGetBoardTypeByName);
}

constexpr char kMostMainForType[] =
    "\r\nddGetMainBoardTypeByName err!, ulSupportedBoardTypeNum = -1, MAX_OLT_BOARD_TYPE_NUM = 100";

const TypeRow kTypes[] = {
    {"MainBoard", kMain, kService, "CTLB", 0, 2},
    {"FirstOfTwoMainBoards", kMain, kService, "CTLA", 0, 1},
    {"MainBoardBeforeTheServiceBoard", kMain, kService, "BOTH", 0, 3},
    {"FirstOfTwoServiceBoards", kMain, kService, "PLBD", 0, 7},
    {"OtherCaseIsAnotherName", kMain, kService, "plbd", 0, 8},
    {"LongerName", kMain, kService, "PLBDE", 0, 14},
    {"LongestName", kMain, kService, k59, 0, 10},
    {"TypeZero", kMain, kService, "ZERO", 0, 0},
    {"EmptyNameOfTheLargestType", kMain, kService, "", 0, 0xffffffff},
    {"ComparedAsFarAsTheLengthSays", kMain, kService, "SHOVEL", 0, 15},
    {"ComparedNoLessFar", kMain, kService, "SHADE", -32},
    {"CorruptNamesPassedOver", kMain, kService, k60, -32},
    {"MoreThanAName", kMain, kService, "PLBDEF", -32},
    {"StartOfAName", kMain, kService, "PLB", -32},
    {"NoCaseOfAName", kMain, kService, "Plbd", -32},
    {"BlankAtTheEnd", kMain, kService, "PLBD ", -32},
    {"VeryLong", kMain, kService, string(2000, 'N'), -32},
    {"NoMainBoards", kNoArray, kService, "PLBD", 0, 7, kNoMainForType},
    {"NoMainBoardsAndUnknown", kNoArrayButCount, kService, "NONE", -32, kUntouched, kNoMainForType},
    {"CorruptMainBoards", kCorrupt, kService, "BOTH", 0, 12, kCorruptMainForType},
    {"CorruptMainBoardsAndUnknown", kCorruptMost, kService, "CTLA", -32, kUntouched,
     kMostMainForType},
    {"MainBoardBehindAHole", kMainWithHole, kService, "CTLA", 0, 1, kHoleForType},
    {"ServiceBoardAndHoles", kMainWithHole, kService, "PLBD", 0, 7, kHoleForType + kHoleForType},
    {"MainBoardWithoutServiceBoards", kMain, kNoArray, "CTLB", 0, 2},
    {"MainBoardAndCorruptServiceBoards", kMain, kCorrupt, "CTLB", 0, 2},
    {"NoServiceBoards", kMain, kNoArray, "PLBD", -10, kUntouched, kNoBoardsForType},
    {"NoServiceBoardsButACount", kMain, kNoArrayButCount, "PLBD", -10, kUntouched,
     kNoBoardsForType},
    {"CorruptServiceBoards", kMain, kCorrupt, "PLBD", -19, kUntouched, kCorruptForType},
    {"CorruptServiceBoardsWithoutArray", kMain, kCorruptNoArray, "PLBD", -19, kUntouched,
     kCorruptForType},
    {"CorruptMostServiceBoards", kMain, kCorruptMost, "PLBD", -19, kUntouched,
     "\r\nddGetBoardTypeByName err! ulSupportedBoardTypeNum = -1"},
    {"NoTables", kNoArray, kNoArray, "PLBD", -10, kUntouched, kNoMainForType + kNoBoardsForType},
    {"CorruptTables", kCorrupt, kCorrupt, "PLBD", -19, kUntouched,
     kCorruptMainForType + kCorruptForType},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardType, testing::ValuesIn(kTypes),
                         testing::PrintToStringParamName());

TEST_F(BoardNames, TypeWithoutANameOrAResult) {
  PutMainBoards(kMain);
  PutBoards(kService);
  uint32_t type = kUntouched;
  EXPECT_EQ(ddGetBoardTypeByName(nullptr, &type), -2);
  EXPECT_EQ(type, kUntouched);
  EXPECT_EQ(ddGetBoardTypeByName("CTLA", nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  AskTwice("\r\nddGetBoardTypeByName err!, pcBoardName = 0x1234, pulBoardType = 0x0", [] {
    EXPECT_EQ(ddGetBoardTypeByName(reinterpret_cast<const char*>(uintptr_t{0x1234}), nullptr), -2);
  });
  AskTwice("\r\nddGetBoardTypeByName err!, pcBoardName = 0x0, pulBoardType = 0x1230", [] {
    EXPECT_EQ(ddGetBoardTypeByName(nullptr, reinterpret_cast<uint32_t*>(uintptr_t{0x1230})), -2);
  });
}

// ---- Is there a board of this name? ------------------------------------------------

struct SupportedRow {
  const char* name;
  PlacedBoards boards;
  string asked;
  int32_t code;
  uint32_t supported = 0;
  uint32_t place = 0;
  string text = "";
  friend std::ostream& operator<<(std::ostream& out, const SupportedRow& row) {
    return out << row.name;
  }
};

class BoardSupported : public BoardTablesTest, public testing::WithParamInterface<SupportedRow> {};

TEST_P(BoardSupported, ByName) {
  PutMainBoards({.places = {PlacedBoard{1, "CTLA"}}});  // not asked
  PutBoards(GetParam().boards);
  const string& text = GetParam().asked;
  const std::vector<char> asked(text.c_str(), text.c_str() + text.size() + 1);
  AskTwice(GetParam().text, [&] {
    uint32_t supported = kUntouched;
    uint32_t place = kUntouched;
    EXPECT_EQ(ddIsBoardTypeSupportedByName(asked.data(), &supported, &place), GetParam().code);
    EXPECT_EQ(supported, GetParam().supported);
    EXPECT_EQ(place, GetParam().place);
  });
}

const PlacedBoards kSound = {.places = {PlacedBoard{7, "PLBD"}, kNull, PlacedBoard{8, "plbd"},
                                        PlacedBoard{9, "PLBD"}, PlacedBoard{10, k59},
                                        PlacedBoard{11, ""}, PlacedBoard{12, "PLBDE"},
                                        PlacedBoard{13, "SHORT", {}, {}, 3}}};
const PlacedBoards kCorruptName = {
    .places = {PlacedBoard{7, "PLBD"}, kNull, PlacedBoard{8, k60}, PlacedBoard{9, "BEHIND"}}};

const SupportedRow kSupported[] = {
    {"FirstOfTwo", kSound, "PLBD", 0, 1, 0},
    {"BehindAnEmptyPlace", kSound, "plbd", 0, 1, 2},
    {"Longest", kSound, k59, 0, 1, 4},
    {"Empty", kSound, "", 0, 1, 5},
    {"LongerName", kSound, "PLBDE", 0, 1, 6},
    {"ComparedAsFarAsTheLengthSays", kSound, "SHOVEL", 0, 1, 7},
    {"ComparedNoLessFar", kSound, "SHADE", -32},
    {"MainBoard", kSound, "CTLA", -32},
    {"StartOfAName", kSound, "PLB", -32},
    {"MoreThanAName", kSound, "PLBDEF", -32},
    {"NoCaseOfAName", kSound, "Plbd", -32},
    {"BlankAtTheEnd", kSound, "PLBD ", -32},
    {"ShorterThanTheLongest", kSound, string(58, 'N'), -32},
    {"TooLong", kSound, k60, -33, 0, 0,
     "\r\nddIsBoardTypeSupportedByName err! strlen(strBoardTypeSection) = 60"},
    {"MuchTooLong", kSound, string(2000, 'N'), -33, 0, 0,
     "\r\nddIsBoardTypeSupportedByName err! strlen(strBoardTypeSection) = 2000"},
    {"TooLongIsFoundBeforeTheCorruptCount", kCorruptNoArray, k60, -33, 0, 0,
     "\r\nddIsBoardTypeSupportedByName err! strlen(strBoardTypeSection) = 60"},
    {"TooLongIsFoundBeforeTheMissingArray", kNoArray, k60, -33, 0, 0,
     "\r\nddIsBoardTypeSupportedByName err! strlen(strBoardTypeSection) = 60"},
    {"InFrontOfACorruptName", kCorruptName, "PLBD", 0, 1, 0},
    {"BehindACorruptName", kCorruptName, "BEHIND", -33, 0, 0,
     "\r\nddIsBoardTypeSupportedByName err! ulNameLen = 61, ulSupportedBoardTypeNumIndex = 2"},
    {"UnknownAndACorruptName", kCorruptName, "NONE", -33, 0, 0,
     "\r\nddIsBoardTypeSupportedByName err! ulNameLen = 61, ulSupportedBoardTypeNumIndex = 2"},
    {"LargestNameLength",
     {.places = {PlacedBoard{7, "PLBD", {}, {}, 0xffffffff}}},
     "PLBD",
     -33,
     0,
     0,
     "\r\nddIsBoardTypeSupportedByName err! ulNameLen = -1, ulSupportedBoardTypeNumIndex = 0"},
    {"NoArrayButCount", kNoArrayButCount, "PLBD", -10, 0, 0,
     "\r\nddIsBoardTypeSupportedByName err! pBoardTypeArray = 0x0"},
    {"Corrupt", kCorrupt, "CTLA", -19, 0, 0,
     "\r\nddIsBoardTypeSupportedByName err! ulSupportedBoardTypeNum = 101"},
};
INSTANTIATE_TEST_SUITE_P(Boards, BoardSupported, testing::ValuesIn(kSupported),
                         testing::PrintToStringParamName());

TEST_F(BoardNames, SupportedWithNullArguments) {
  PutBoards(kSound);
  uint32_t supported = kUntouched;
  uint32_t place = kUntouched;
  EXPECT_EQ(ddIsBoardTypeSupportedByName(nullptr, &supported, &place), -2);
  EXPECT_EQ(ddIsBoardTypeSupportedByName("PLBD", nullptr, &place), -2);
  EXPECT_EQ(ddIsBoardTypeSupportedByName("PLBD", &supported, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(supported, kUntouched);
  EXPECT_EQ(place, kUntouched);
}

TEST_F(BoardNames, SupportedShowsItsArguments) {
  const char* const name = reinterpret_cast<const char*>(uintptr_t{0x1234});
  uint32_t* const supported = reinterpret_cast<uint32_t*>(uintptr_t{0x1230});
  uint32_t* const place = reinterpret_cast<uint32_t*>(uintptr_t{0x1238});
  AskTwice(
      "\r\nddIsBoardTypeSupportedByName err! strBoardTypeSection = 0x0, pIsSupported = 0x1230, pIndex = 0x1238",
      [=] { EXPECT_EQ(ddIsBoardTypeSupportedByName(nullptr, supported, place), -2); });
  AskTwice(
      "\r\nddIsBoardTypeSupportedByName err! strBoardTypeSection = 0x1234, pIsSupported = 0x0, pIndex = 0x1238",
      [=] { EXPECT_EQ(ddIsBoardTypeSupportedByName(name, nullptr, place), -2); });
  AskTwice(
      "\r\nddIsBoardTypeSupportedByName err! strBoardTypeSection = 0x1234, pIsSupported = 0x1230, pIndex = 0x0",
      [=] { EXPECT_EQ(ddIsBoardTypeSupportedByName(name, supported, nullptr), -2); });
}

}  // namespace
