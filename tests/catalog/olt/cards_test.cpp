// Asking for the names and the types of cards: of main boards first, then of
// service boards.
#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/board_tables.h"

namespace {

using std::string;
using test::Board;
using test::Boards;
using test::kNull;
using test::kUntouched;

const string k59(59, 'N');
const string k60(60, 'N');

const Boards kNoArray = {.has_array = false};
const Boards kCorrupt = {.places = {Board{1, "CTLA"}, Board{7, "PLBD"}}, .count = 101};

// Name lengths of 61 are corrupt.
const Boards kMain = {.places = {Board{1, "CTLA"}, Board{2, "CTLB"}, Board{1, "CTLC"},
                                 Board{3, "BOTH"}, Board{6, k60}, Board{4, "CTLA"},
                                 Board{5, "Ctl-M"}}};
const Boards kMainWithHole = {.places = {kNull, Board{1, "CTLA"}, kNull}};
const Boards kService = {.places = {Board{7, "PLBD"}, kNull, Board{8, "plbd"}, Board{1, "ONE"},
                                    Board{7, "SECOND"}, Board{10, k59}, Board{11, k60},
                                    Board{0, "ZERO"}, Board{0xffffffff, ""}, Board{6, "SIX"},
                                    Board{12, "BOTH"}, Board{13, "PLBD"}, Board{14, "PlBe"},
                                    Board{15, "A-1 {Z}[\xe4]"}}};

// ---- Type by name -------------------------------------------------------------------

struct TypeRow {
  const char* name;
  Boards main;
  Boards boards;
  string asked;
  int32_t code;
  uint32_t answer = kUntouched;
  string text = "";
  friend std::ostream& operator<<(std::ostream& out, const TypeRow& row) { return out << row.name; }
};

class CardTypeTest : public test::BoardTablesTest, public testing::WithParamInterface<TypeRow> {
 protected:
  void Expect(int32_t (*ask)(const char*, uint32_t*)) {
    PutMainBoards(GetParam().main);
    PutBoards(GetParam().boards);
    // Without a byte to spare, so that a look behind its end is noticed.
    const string& text = GetParam().asked;
    const std::vector<char> asked(text.c_str(), text.c_str() + text.size() + 1);
    AskTwice(GetParam().text, [&] {
      uint32_t type = kUntouched;
      EXPECT_EQ(ask(asked.data(), &type), GetParam().code);
      EXPECT_EQ(type, GetParam().answer);
    });
  }
};

class CardType : public CardTypeTest {};

TEST_P(CardType, ByName) {
  Expect(ddGetCardTypeByName);
}

// The main boards are asked twice for what is not among them.
string Twice(const string& text) {
  return text + text;
}

const string kNoMain = "\r\nddGetMainBoardTypeByName err!, pBoardTypeArray = 0x0";
const string kHole = "\r\nddGetMainBoardTypeByName err!, pstMainBoardInformation = 0x0";
const string kCorruptMain =
    "\r\nddGetMainBoardTypeByName err!, ulSupportedBoardTypeNum = 101, MAX_OLT_BOARD_TYPE_NUM = 100";
const string kNoBoards = "\r\nddGetBoardTypeByName err! pBoardTypeArray = 0x0";
const string kCorruptBoards = "\r\nddGetBoardTypeByName err! ulSupportedBoardTypeNum = 101";

string NoCard(const string& name) {
  return "\r\nddGetCardTypeByName err!, pcCardName = " + name;
}

const TypeRow kTypes[] = {
    {"MainBoard", kMain, kService, "CTLB", 0, 2},
    {"FirstOfTwoMainBoards", kMain, kService, "CTLA", 0, 1},
    {"MainBoardBeforeTheServiceBoard", kMain, kService, "BOTH", 0, 3},
    {"FirstOfTwoServiceBoards", kMain, kService, "PLBD", 0, 7},
    {"LowerCase", kMain, kService, "plbd", 0, 8},
    {"MixedCase", kMain, kService, "PlBe", 0, 14},
    {"Longest", kMain, kService, k59, 0, 10},
    {"TypeZero", kMain, kService, "ZERO", 0, 0},
    {"EmptyNameOfTheLargestType", kMain, kService, "", 0, 0xffffffff},
    {"NoCaseOfAName", kMain, kService, "Plbd", -32, kUntouched, NoCard("Plbd")},
    {"StartOfAName", kMain, kService, "CTL", -32, kUntouched, NoCard("CTL")},
    {"MoreThanAName", kMain, kService, "CTLA1", -32, kUntouched, NoCard("CTLA1")},
    {"CorruptNamesPassedOver", kMain, kService, k60, -32, kUntouched, NoCard(k60)},
    {"VeryLong", kMain, kService, string(2000, 'N'), -32, kUntouched, NoCard(string(2000, 'N'))},
    {"MainBoardBehindAHole", kMainWithHole, kService, "CTLA", 0, 1, kHole},
    {"ServiceBoardAndHoles", kMainWithHole, kService, "PLBD", 0, 7, Twice(kHole + kHole)},
    {"NoMainBoards", kNoArray, kService, "PLBD", 0, 7, Twice(kNoMain)},
    {"CorruptMainBoards", kCorrupt, kService, "BOTH", 0, 12, Twice(kCorruptMain)},
    {"CorruptMainBoardsAndUnknown", kCorrupt, kService, "CTLA", -32, kUntouched,
     Twice(kCorruptMain) + NoCard("CTLA")},
    {"MainBoardWithoutServiceBoards", kMain, kNoArray, "CTLB", 0, 2},
    {"MainBoardAndCorruptServiceBoards", kMain, kCorrupt, "CTLB", 0, 2},
    {"NoServiceBoards", kMain, kNoArray, "PLBD", -32, kUntouched, kNoBoards + NoCard("PLBD")},
    {"CorruptServiceBoards", kMain, kCorrupt, "PLBD", -32, kUntouched,
     kCorruptBoards + NoCard("PLBD")},
    {"NoTables", kNoArray, kNoArray, "PLBD", -32, kUntouched,
     Twice(kNoMain) + kNoBoards + NoCard("PLBD")},
    {"CorruptTables", kCorrupt, kCorrupt, "PLBD", -32, kUntouched,
     Twice(kCorruptMain) + kCorruptBoards + NoCard("PLBD")},
    {"EmptyTables", {}, {}, "PLBD", -32, kUntouched, NoCard("PLBD")},
};
INSTANTIATE_TEST_SUITE_P(Cards, CardType, testing::ValuesIn(kTypes),
                         testing::PrintToStringParamName());

// ---- Type by a name in any case -----------------------------------------------------

class CardTypeInAnyCase : public CardTypeTest {};

// A name that can be looked up is too short for the conversion to yield.
TEST_P(CardTypeInAnyCase, ByName) {
  Expect(ddGetCardTypeByNocaseName);
  EXPECT_EQ(test::FakePlatform::Get().delays, std::vector<int32_t>());
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
    {"OtherCharacters", kMain, {.places = {Board{16, "A-1 {Z}[\xe4]"}}}, "a-1 {z}[\xe4]", 0, 16},
    {"StoredInMixedCase", kMain, kService, "plbe", -32, kUntouched, NoCardInUpperCase("PLBE")},
    {"SpelledAsStoredInMixedCase", kMain, kService, "PlBe", -32, kUntouched,
     NoCardInUpperCase("PLBE")},
    {"MainBoardInMixedCase", kMain, kService, "Ctl-M", -32, kUntouched, NoCardInUpperCase("CTL-M")},
    {"StoredInLowerCase",
     kMain,
     {.places = {Board{8, "plbd"}}},
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
    {"NoMainBoards", kNoArray, kService, "plbd", 0, 7, Twice(kNoMain)},
    {"NoTables", kNoArray, kNoArray, "plbd", -32, kUntouched,
     Twice(kNoMain) + kNoBoards + NoCardInUpperCase("PLBD")},
    {"CorruptTables", kCorrupt, kCorrupt, "plbd", -32, kUntouched,
     Twice(kCorruptMain) + kCorruptBoards + NoCardInUpperCase("PLBD")},
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

class CardTypeNull : public test::BoardTablesTest, public testing::WithParamInterface<NullRow> {};

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

struct NameRow {
  const char* name;
  Boards main;
  Boards boards;
  uint32_t type;
  int32_t code;
  string answer = "";
  string text = "";
  friend std::ostream& operator<<(std::ostream& out, const NameRow& row) { return out << row.name; }
};

class CardName : public test::BoardTablesTest, public testing::WithParamInterface<NameRow> {};

TEST_P(CardName, ByType) {
  PutMainBoards(GetParam().main);
  PutBoards(GetParam().boards);
  AskTwice(GetParam().text, [] {
    string buffer(60, '#');
    EXPECT_EQ(ddGetCardNameByType(GetParam().type, buffer.data()), GetParam().code);
    // The name with its terminator, and not a byte more.
    string expected(60, '#');
    if (GetParam().code == 0) {
      const string& answer = GetParam().answer;
      std::copy_n(answer.c_str(), answer.size() + 1, expected.begin());
    }
    EXPECT_EQ(buffer, expected);
  });
}

const string kNoMainForName = "\r\nddGetMainBoardNameByType err!, pBoardTypeArray = 0x0";
const string kHoleForName = "\r\nddGetMainBoardNameByType err!, pstMainBoardInformation = 0x0";
const string kCorruptMainForName =
    "\r\nddGetMainBoardNameByType err!, ulSupportedBoardTypeNum = 101, MAX_OLT_BOARD_TYPE_NUM = 100";
const string kNoBoardsForName = "\r\nddGetBoardNameByType err! pBoardTypeArray = 0x0";
const string kCorruptForName = "\r\nddGetBoardNameByType err! ulSupportedBoardTypeNum = 101";

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

using CardNames = test::BoardTablesTest;

TEST_F(CardNames, NullBuffer) {
  PutMainBoards(kMain);
  AskTwice("\r\nddGetCardNameByType err!, pcCardName = 0x0",
           [] { EXPECT_EQ(ddGetCardNameByType(1, nullptr), -2); });
}

}  // namespace
