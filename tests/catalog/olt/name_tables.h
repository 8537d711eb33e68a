// Boards to ask for by name and by type. Boards and cards are asked for alike:
// the main boards come first, then the service boards.
#pragma once

#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/board_tables.h"
#include "support/records.h"

namespace test {

inline const std::string k59(59, 'N');
inline const std::string k60(60, 'N');

// ---- Tables -------------------------------------------------------------------------

// Tables that the queries refuse.
inline const PlacedBoards kNoArray = {.has_array = false};
inline const PlacedBoards kNoArrayButCount = {.has_array = false, .count = 100};
inline const PlacedBoards kCorrupt = {.places = {PlacedBoard{1, "CTLA"}, PlacedBoard{7, "PLBD"}},
                                      .count = 101};
inline const PlacedBoards kCorruptNoArray = {.has_array = false, .count = 101};
inline const PlacedBoards kCorruptMost = {
    .places = {PlacedBoard{1, "CTLA"}, PlacedBoard{7, "PLBD"}}, .count = 0xffffffff};

// Tables that they look into. Name lengths of 61 are corrupt.
inline const PlacedBoards kMain = {
    .places = {PlacedBoard{1, "CTLA"}, PlacedBoard{2, "CTLB"}, PlacedBoard{1, "CTLC"},
               PlacedBoard{3, "BOTH"}, PlacedBoard{6, k60}, PlacedBoard{5, k60},
               PlacedBoard{5, "FIVE"}, PlacedBoard{4, "CTLA"}, PlacedBoard{18, "Ctl-M"}}};
inline const PlacedBoards kMainWithHole = {.places = {kNull, PlacedBoard{1, "CTLA"}, kNull}};
inline const PlacedBoards kService = {
    .places = {PlacedBoard{7, "PLBD"}, kNull, PlacedBoard{8, "plbd"}, PlacedBoard{1, "ONE"},
               PlacedBoard{7, "SECOND"}, PlacedBoard{9, k60}, PlacedBoard{9, "NINE"},
               PlacedBoard{10, k59}, PlacedBoard{11, k60}, PlacedBoard{0, "ZERO"},
               PlacedBoard{0xffffffff, ""}, PlacedBoard{6, "SIX"}, PlacedBoard{12, "BOTH"},
               PlacedBoard{13, "PLBD"}, PlacedBoard{14, "PLBDE"},
               PlacedBoard{15, "SHORT", {}, {}, 3}, PlacedBoard{16, "A-1 {Z}[\xe4]"},
               PlacedBoard{17, "PlBe"}}};

// ---- Name by type -------------------------------------------------------------------

struct NameRow {
  const char* name;
  PlacedBoards main;
  PlacedBoards boards;
  uint32_t type;
  int32_t code;
  std::string answer = "";
  std::string text = "";
  friend std::ostream& operator<<(std::ostream& out, const NameRow& row) { return out << row.name; }
};

class NameByTypeTest : public BoardTablesTest, public testing::WithParamInterface<NameRow> {
 protected:
  void Expect(int32_t (*ask)(uint32_t type, char* name)) {
    PutMainBoards(GetParam().main);
    PutBoards(GetParam().boards);
    AskTwice(GetParam().text,
             [ask] { ExpectNameCopied(ask, GetParam().type, GetParam().code, GetParam().answer); });
  }
};

// What is said of the tables of main boards and of service boards.
inline const std::string kNoMainForName =
    "\r\nddGetMainBoardNameByType err!, pBoardTypeArray = 0x0";
inline const std::string kHoleForName =
    "\r\nddGetMainBoardNameByType err!, pstMainBoardInformation = 0x0";
inline const std::string kCorruptMainForName =
    "\r\nddGetMainBoardNameByType err!, ulSupportedBoardTypeNum = 101, MAX_OLT_BOARD_TYPE_NUM = 100";
inline const std::string kNoBoardsForName = "\r\nddGetBoardNameByType err! pBoardTypeArray = 0x0";
inline const std::string kCorruptForName =
    "\r\nddGetBoardNameByType err! ulSupportedBoardTypeNum = 101";

// ---- Type by name -------------------------------------------------------------------

struct TypeRow {
  const char* name;
  PlacedBoards main;
  PlacedBoards boards;
  std::string asked;
  int32_t code;
  uint32_t answer = kUntouched;
  std::string text = "";
  friend std::ostream& operator<<(std::ostream& out, const TypeRow& row) { return out << row.name; }
};

class TypeByNameTest : public BoardTablesTest, public testing::WithParamInterface<TypeRow> {
 protected:
  void Expect(int32_t (*ask)(const char* name, uint32_t* type)) {
    PutMainBoards(GetParam().main);
    PutBoards(GetParam().boards);
    // Without a byte to spare, so that a look behind its end is noticed.
    const std::string& text = GetParam().asked;
    const std::vector<char> asked(text.c_str(), text.c_str() + text.size() + 1);
    AskTwice(GetParam().text, [&] {
      uint32_t type = kUntouched;
      EXPECT_EQ(ask(asked.data(), &type), GetParam().code);
      EXPECT_EQ(type, GetParam().answer);
    });
  }
};

// What is said of the tables then.
inline const std::string kNoMainForType =
    "\r\nddGetMainBoardTypeByName err!, pBoardTypeArray = 0x0";
inline const std::string kHoleForType =
    "\r\nddGetMainBoardTypeByName err!, pstMainBoardInformation = 0x0";
inline const std::string kCorruptMainForType =
    "\r\nddGetMainBoardTypeByName err!, ulSupportedBoardTypeNum = 101, MAX_OLT_BOARD_TYPE_NUM = 100";
inline const std::string kNoBoardsForType = "\r\nddGetBoardTypeByName err! pBoardTypeArray = 0x0";
inline const std::string kCorruptForType =
    "\r\nddGetBoardTypeByName err! ulSupportedBoardTypeNum = 101";

}  // namespace test
