// Asking for the names and the types of cards: of main boards first, then of
// service boards.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/name_tables.h"

namespace {

using namespace test;  // for its tables, rows and texts
using std::string;

// ---- Type by name -------------------------------------------------------------------

class CardType : public TypeByNameTest {};

TEST_P(CardType, ByName) {
  Expect(ddGetCardTypeByName);
}

// The main boards are asked twice for what is not among them.
string Twice(const string& text) {
  return text + text;
}

string NoCard(const string& name) {
  return "\r\nddGetCardTypeByName err!, pcCardName = " + name;
}

const TypeRow kTypes[] = {
    {"MainBoard", kMain, kService, "CTLB", 0, 2},
    {"FirstOfTwoMainBoards", kMain, kService, "CTLA", 0, 1},
    {"MainBoardBeforeTheServiceBoard", kMain, kService, "BOTH", 0, 3},
    {"FirstOfTwoServiceBoards", kMain, kService, "PLBD", 0, 7},
    {"LowerCase", kMain, kService, "plbd", 0, 8},
    {"MixedCase", kMain, kService, "PlBe", 0, 17},
    {"Longest", kMain, kService, k59, 0, 10},
    {"TypeZero", kMain, kService, "ZERO", 0, 0},
    {"EmptyNameOfTheLargestType", kMain, kService, "", 0, 0xffffffff},
    {"NoCaseOfAName", kMain, kService, "Plbd", -32, kUntouched, NoCard("Plbd")},
    {"StartOfAName", kMain, kService, "CTL", -32, kUntouched, NoCard("CTL")},
    {"MoreThanAName", kMain, kService, "CTLA1", -32, kUntouched, NoCard("CTLA1")},
    {"CorruptNamesPassedOver", kMain, kService, k60, -32, kUntouched, NoCard(k60)},
    {"VeryLong", kMain, kService, string(2000, 'N'), -32, kUntouched, NoCard(string(2000, 'N'))},
    {"MainBoardBehindAHole", kMainWithHole, kService, "CTLA", 0, 1, kHoleForType},
    {"ServiceBoardAndHoles", kMainWithHole, kService, "PLBD", 0, 7,
     Twice(kHoleForType + kHoleForType)},
    {"NoMainBoards", kNoArray, kService, "PLBD", 0, 7, Twice(kNoMainForType)},
    {"CorruptMainBoards", kCorrupt, kService, "BOTH", 0, 12, Twice(kCorruptMainForType)},
    {"CorruptMainBoardsAndUnknown", kCorrupt, kService, "CTLA", -32, kUntouched,
     Twice(kCorruptMainForType) + NoCard("CTLA")},
    {"MainBoardWithoutServiceBoards", kMain, kNoArray, "CTLB", 0, 2},
    {"MainBoardAndCorruptServiceBoards", kMain, kCorrupt, "CTLB", 0, 2},
    {"NoServiceBoards", kMain, kNoArray, "PLBD", -32, kUntouched,
     kNoBoardsForType + NoCard("PLBD")},
    {"CorruptServiceBoards", kMain, kCorrupt, "PLBD", -32, kUntouched,
     kCorruptForType + NoCard("PLBD")},
    {"NoTables", kNoArray, kNoArray, "PLBD", -32, kUntouched,
     Twice(kNoMainForType) + kNoBoardsForType + NoCard("PLBD")},
    {"CorruptTables", kCorrupt, kCorrupt, "PLBD", -32, kUntouched,
     Twice(kCorruptMainForType) + kCorruptForType + NoCard("PLBD")},
    {"EmptyTables", {}, {}, "PLBD", -32, kUntouched, NoCard("PLBD")},
};
INSTANTIATE_TEST_SUITE_P(Cards, CardType, testing::ValuesIn(kTypes),
                         testing::PrintToStringParamName());

// ---- Type by a name in any case -----------------------------------------------------

class CardTypeInAnyCase : public TypeByNameTest {};

// A name that can be looked up is too short for the conversion to yield.
TEST_P(CardTypeInAnyCase, ByName) {
  Expect(ddGetCardTypeByNocaseName);
  EXPECT_EQ(FakePlatform::Get().delays, std::vector<int32_t>());
}

string NoCardInUpperCase(const string& name) {
  return NoCard(name) +
         "\r\nddGetCardTypeByNocaseName->ddGetCardTypeByName err! strCardNameUppercase = " + name;
}

string NotConverted(const string& conversion, const string& length) {
  return conversion +
         "\r\nddGetCardTypeByNocaseName->ddStringToUppercase err! ulOriLen = " + length +
         ", ulDstLen = 60";
}

const TypeRow kAnyCase[] = {
    {"UpperCase", kMain, kService, "PLBD", 0, 7},
    {"LowerCase", kMain, kService, "zero", 0, 0},
    {"LowerCaseIsNotFoundAsStored", kMain, kService, "plbd", 0, 7},
    {"AnyCase", kMain, kService, "pLbD", 0, 7},
    {"MainBoard", kMain, kService, "ctlb", 0, 2},
    {"MainBoardBeforeTheServiceBoard", kMain, kService, "Both", 0, 3},
    {"Empty", kMain, kService, "", 0, 0xffffffff},
    {"Longest", kMain, kService, string(59, 'n'), 0, 10},
    {"OtherCharacters", kMain, kService, "a-1 {z}[\xe4]", 0, 16},
    {"StoredInMixedCase", kMain, kService, "plbe", -32, kUntouched, NoCardInUpperCase("PLBE")},
    {"SpelledAsStoredInMixedCase", kMain, kService, "PlBe", -32, kUntouched,
     NoCardInUpperCase("PLBE")},
    {"MainBoardInMixedCase", kMain, kService, "Ctl-M", -32, kUntouched, NoCardInUpperCase("CTL-M")},
    {"StoredInLowerCase",
     kMain,
     {.places = {PlacedBoard{8, "plbd"}}},
     "plbd",
     -32,
     kUntouched,
     NoCardInUpperCase("PLBD")},
    {"LongestUnknown", kMain, kService, string(59, 'x'), -32, kUntouched,
     NoCardInUpperCase(string(59, 'X'))},
    {"TooLong", kMain, kService, string(60, 'n'), -33, kUntouched,
     NotConverted("\r\nddStringToUppercase, ulOriLen = 61, ulDstLen = 60", "61")},
    {"LongestConversion", kMain, kService, string(499, 'n'), -33, kUntouched,
     NotConverted("\r\nddStringToUppercase, ulOriLen = 500, ulDstLen = 60", "500")},
    {"TooLongForAnyConversion", kMain, kService, string(500, 'n'), -33, kUntouched,
     NotConverted("\r\nddStringToUppercase, ulOriLen = 501", "501")},
    {"MuchTooLong", kMain, kService, string(5000, 'n'), -33, kUntouched,
     NotConverted("\r\nddStringToUppercase, ulOriLen = 5001", "5001")},
    {"TooLongIsFoundBeforeTheMissingTables", kNoArray, kNoArray, string(60, 'n'), -33, kUntouched,
     NotConverted("\r\nddStringToUppercase, ulOriLen = 61, ulDstLen = 60", "61")},
    {"NoMainBoards", kNoArray, kService, "plbd", 0, 7, Twice(kNoMainForType)},
    {"NoTables", kNoArray, kNoArray, "plbd", -32, kUntouched,
     Twice(kNoMainForType) + kNoBoardsForType + NoCardInUpperCase("PLBD")},
    {"CorruptTables", kCorrupt, kCorrupt, "plbd", -32, kUntouched,
     Twice(kCorruptMainForType) + kCorruptForType + NoCardInUpperCase("PLBD")},
    {"EmptyTables", {}, {}, "plbd", -32, kUntouched, NoCardInUpperCase("PLBD")},
};
INSTANTIATE_TEST_SUITE_P(Cards, CardTypeInAnyCase, testing::ValuesIn(kAnyCase),
                         testing::PrintToStringParamName());

// ---- Null arguments of both ---------------------------------------------------------

struct NullRow {
  const char* name;
  int32_t (*ask)(const char*, uint32_t*);
  string text;  // before the arguments
  friend std::ostream& operator<<(std::ostream& out, const NullRow& row) { return out << row.name; }
};

class CardTypeNull : public BoardTablesTest, public testing::WithParamInterface<NullRow> {};

TEST_P(CardTypeNull, Arguments) {
  PutMainBoards({.has_array = false, .count = 101});  // looked at later only
  uint32_t type = kUntouched;
  EXPECT_EQ(GetParam().ask(nullptr, &type), -2);
  EXPECT_EQ(type, kUntouched);
  AskTwice(GetParam().text + "pcCardName = 0x0, pulCardType = 0x0",
           [] { EXPECT_EQ(GetParam().ask(nullptr, nullptr), -2); });
  AskTwice(GetParam().text + "pcCardName = 0x1234, pulCardType = 0x0", [] {
    EXPECT_EQ(GetParam().ask(reinterpret_cast<const char*>(uintptr_t{0x1234}), nullptr), -2);
  });
  AskTwice(GetParam().text + "pcCardName = 0x0, pulCardType = 0x1230", [] {
    EXPECT_EQ(GetParam().ask(nullptr, reinterpret_cast<uint32_t*>(uintptr_t{0x1230})), -2);
  });
}

const NullRow kNulls[] = {
    {"ByName", ddGetCardTypeByName, "\r\nddGetCardTypeByName err!, "},
    {"ByNocaseName", ddGetCardTypeByNocaseName, "\r\nddGetCardTypeByNocaseName err!, "},
};
INSTANTIATE_TEST_SUITE_P(Cards, CardTypeNull, testing::ValuesIn(kNulls),
                         testing::PrintToStringParamName());

// ---- Name by type -------------------------------------------------------------------

class CardName : public NameByTypeTest {};

TEST_P(CardName, ByType) {
  Expect(ddGetCardNameByType);
}

string NoCardOfType(const string& type) {
  return "\r\nddGetCardNameByType err!, ulBoardType = " + type;
}

const NameRow kNames[] = {
    {"MainBoard", kMain, kService, 2, 0, "CTLB"},
    {"FirstMainBoardBeforeTheServiceBoard", kMain, kService, 1, 0, "CTLA"},
    {"FirstOfTwoServiceBoards", kMain, kService, 7, 0, "PLBD"},
    {"TypeZero", kMain, kService, 0, 0, "ZERO"},
    {"LargestTypeWithAnEmptyName", kMain, kService, 0xffffffff, 0, ""},
    {"LongestName", kMain, kService, 10, 0, k59},
    {"CorruptMainNameAndAServiceBoard", kMain, kService, 6, 0, "SIX"},
    {"CorruptNameOnly", kMain, kService, 11, -18, "", NoCardOfType("11")},
    {"Unknown", kMain, kService, 77, -18, "", NoCardOfType("77")},
    {"LargestTypeUnknown", {}, {}, 0xffffffff, -18, "", NoCardOfType("-1")},
    {"MainBoardBehindAHole", kMainWithHole, kService, 1, 0, "CTLA", kHoleForName},
    {"ServiceBoardAndHoles", kMainWithHole, kService, 7, 0, "PLBD",
     Twice(kHoleForName + kHoleForName)},
    {"NoMainBoards", kNoArray, kService, 7, 0, "PLBD", Twice(kNoMainForName)},
    {"CorruptMainBoards", kCorrupt, kService, 1, 0, "ONE", Twice(kCorruptMainForName)},
    {"MainBoardWithoutServiceBoards", kMain, kNoArray, 2, 0, "CTLB"},
    {"MainBoardAndCorruptServiceBoards", kMain, kCorrupt, 2, 0, "CTLB"},
    {"NoServiceBoards", kMain, kNoArray, 7, -18, "", kNoBoardsForName + NoCardOfType("7")},
    {"CorruptServiceBoards", kMain, kCorrupt, 7, -18, "", kCorruptForName + NoCardOfType("7")},
    {"NoTables", kNoArray, kNoArray, 7, -18, "",
     Twice(kNoMainForName) + kNoBoardsForName + NoCardOfType("7")},
    {"CorruptTables", kCorrupt, kCorrupt, 7, -18, "",
     Twice(kCorruptMainForName) + kCorruptForName + NoCardOfType("7")},
};
INSTANTIATE_TEST_SUITE_P(Cards, CardName, testing::ValuesIn(kNames),
                         testing::PrintToStringParamName());

using CardNames = BoardTablesTest;

TEST_F(CardNames, NullBuffer) {
  PutMainBoards(kMain);
  AskTwice("\r\nddGetCardNameByType err!, pcCardName = 0x0",
           [] { EXPECT_EQ(ddGetCardNameByType(1, nullptr), -2); });
}

}  // namespace
