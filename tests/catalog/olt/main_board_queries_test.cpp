// Asking the main boards for names, types and records.
#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/main_boards.h"
#include "support/records.h"
#include "support/text.h"

namespace {

using std::string;
using test::MainBoardTable;

using MainBoardQueries = test::MainBoardTest;

// ---- Name by type --------------------------------------------------------------

struct NameRow {
  const char* name;
  MainBoardTable table;
  uint32_t type;
  int32_t code;
  string answer = "";
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const NameRow& row) { return out << row.name; }
};

class MainBoardName : public test::MainBoardTest, public testing::WithParamInterface<NameRow> {};

TEST_P(MainBoardName, ByType) {
  Put(GetParam().table);
  for (const int32_t debug : {0, 1, -1}) {
    ddDebugPrint = debug;
    test::ExpectNameCopied(ddGetMainBoardNameByType, GetParam().type, GetParam().code,
                           GetParam().answer);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

constexpr char kEmptyForName[] = "\r\nddGetMainBoardNameByType err!, pstMainBoardInformation = 0x0";
constexpr char kTwoEmptyForName[] =
    "\r\nddGetMainBoardNameByType err!, pstMainBoardInformation = 0x0"
    "\r\nddGetMainBoardNameByType err!, pstMainBoardInformation = 0x0";
constexpr char kCorruptForName[] =
    "\r\nddGetMainBoardNameByType err!, ulSupportedBoardTypeNum = 101, MAX_OLT_BOARD_TYPE_NUM = "
    "100";
constexpr char kNoneForName[] = "\r\nddGetMainBoardNameByType err!, pBoardTypeArray = 0x0";

const NameRow kNames[] = {
    {"First", MainBoardTable::kLoaded, 1, 0, "MPU"},
    {"FirstOfTwo", MainBoardTable::kLoaded, 3, 0, "SWU"},
    {"Longest", MainBoardTable::kLoaded, 6, 0, string(59, 'n')},
    {"Empty", MainBoardTable::kLoaded, 0xffffffff, 0, ""},
    {"TypeZero", MainBoardTable::kLoaded, 0, 0, "ZERO"},
    {"Unknown", MainBoardTable::kLoaded, 2, -18},
    {"BehindAnEmptyPlace", MainBoardTable::kEmptyPlaces, 1, 0, "MPU", kEmptyForName},
    {"BehindTwoEmptyPlaces", MainBoardTable::kEmptyPlaces, 4, 0, "swu", kTwoEmptyForName},
    {"UnknownWithEmptyPlaces", MainBoardTable::kEmptyPlaces, 2, -18, "", kTwoEmptyForName},
    {"LastOfAFullTable", MainBoardTable::kFull, 100, 0, "100"},
    {"NoTable", MainBoardTable::kNone, 1, -10, "", kNoneForName},
    {"NoTableButACount", MainBoardTable::kNoneButCount, 1, -10, "", kNoneForName},
    {"CorruptCount", MainBoardTable::kCorrupt, 1, -19, "", kCorruptForName},
    {"CorruptCountNoTable", MainBoardTable::kCorruptNone, 1, -19, "", kCorruptForName},
    {"LargestCount", MainBoardTable::kCorruptMost, 1, -19, "",
     "\r\nddGetMainBoardNameByType err!, ulSupportedBoardTypeNum = -1, MAX_OLT_BOARD_TYPE_NUM = "
     "100"},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, MainBoardName, testing::ValuesIn(kNames),
                         testing::PrintToStringParamName());

TEST_F(MainBoardQueries, NameIntoANullBuffer) {
  Put(MainBoardTable::kCorruptNone);  // looked at later only
  EXPECT_EQ(ddGetMainBoardNameByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetMainBoardNameByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddGetMainBoardNameByType err!, pcBoardName = 0x0");
}

TEST_F(MainBoardQueries, RecordsWithACorruptNameLengthHaveNoName) {
  Put(MainBoardTable::kLoaded);
  ddDebugPrint = 1;
  boards_[1].ulNameLen = 61;  // the first of type 3
  char buffer[60] = {};
  EXPECT_EQ(ddGetMainBoardNameByType(3, buffer), 0);
  EXPECT_STREQ(buffer, "SWU2");
  boards_[3].ulNameLen = 0xffffffff;  // the second one
  buffer[0] = '#';
  EXPECT_EQ(ddGetMainBoardNameByType(3, buffer), -18);
  EXPECT_EQ(buffer[0], '#');
  boards_[3].ulNameLen = 60;
  EXPECT_EQ(ddGetMainBoardNameByType(3, buffer), 0);
  EXPECT_STREQ(buffer, "SWU2");
  EXPECT_EQ(console_.Text(), "");
}

TEST_F(MainBoardQueries, AsMuchOfTheNameIsGivenAsItsLengthTells) {
  Put(MainBoardTable::kLoaded);
  std::copy_n("SWU\0behind", 10, boards_[1].acName);
  for (const uint32_t length : {0u, 3u, 4u, 10u, 60u}) {
    boards_[1].ulNameLen = length;
    string buffer(61, '#');
    EXPECT_EQ(ddGetMainBoardNameByType(3, buffer.data()), 0);
    string expected(61, '#');
    std::copy_n(boards_[1].acName, length, expected.begin());
    EXPECT_EQ(buffer, expected) << length;
  }
}

// ---- Type by name --------------------------------------------------------------

struct TypeRow {
  const char* name;
  MainBoardTable table;
  string asked;
  int32_t code;
  uint32_t answer = 77;  // untouched
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const TypeRow& row) { return out << row.name; }
};

class MainBoardType : public test::MainBoardTest, public testing::WithParamInterface<TypeRow> {};

TEST_P(MainBoardType, ByName) {
  Put(GetParam().table);
  // Without a byte to spare, so that a look behind its end is noticed.
  const string& text = GetParam().asked;
  const std::vector<char> asked(text.c_str(), text.c_str() + text.size() + 1);
  for (const int32_t debug : {0, 1, -1}) {
    ddDebugPrint = debug;
    uint32_t type = 77;
    EXPECT_EQ(ddGetMainBoardTypeByName(asked.data(), &type), GetParam().code);
    EXPECT_EQ(type, GetParam().answer);
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

constexpr char kEmptyForType[] = "\r\nddGetMainBoardTypeByName err!, pstMainBoardInformation = 0x0";
constexpr char kTwoEmptyForType[] =
    "\r\nddGetMainBoardTypeByName err!, pstMainBoardInformation = 0x0"
    "\r\nddGetMainBoardTypeByName err!, pstMainBoardInformation = 0x0";
constexpr char kCorruptForType[] =
    "\r\nddGetMainBoardTypeByName err!, ulSupportedBoardTypeNum = 101, MAX_OLT_BOARD_TYPE_NUM = "
    "100";
constexpr char kNoneForType[] = "\r\nddGetMainBoardTypeByName err!, pBoardTypeArray = 0x0";

const TypeRow kTypes[] = {
    {"First", MainBoardTable::kLoaded, "MPU", 0, 1},
    {"FirstOfTwo", MainBoardTable::kLoaded, "SWU", 0, 3},
    {"OtherCaseIsAnotherName", MainBoardTable::kLoaded, "swu", 0, 4},
    {"LongerName", MainBoardTable::kLoaded, "SWU2", 0, 3},
    {"Longest", MainBoardTable::kLoaded, string(59, 'n'), 0, 6},
    {"Empty", MainBoardTable::kLoaded, "", 0, 0xffffffff},
    {"TypeZero", MainBoardTable::kLoaded, "ZERO", 0, 0},
    {"StartOfAName", MainBoardTable::kLoaded, "SW", -32},
    {"MoreThanAName", MainBoardTable::kLoaded, "SWU23", -32},
    {"NoCaseOfAName", MainBoardTable::kLoaded, "Swu", -32},
    {"BlankAtTheEnd", MainBoardTable::kLoaded, "SWU ", -32},
    {"LongerThanAnyName", MainBoardTable::kLoaded, string(60, 'n'), -32},
    {"ShorterThanTheLongest", MainBoardTable::kLoaded, string(58, 'n'), -32},
    {"BehindAnEmptyPlace", MainBoardTable::kEmptyPlaces, "MPU", 0, 1, kEmptyForType},
    {"BehindTwoEmptyPlaces", MainBoardTable::kEmptyPlaces, "swu", 0, 4, kTwoEmptyForType},
    {"UnknownWithEmptyPlaces", MainBoardTable::kEmptyPlaces, "none", -32, 77, kTwoEmptyForType},
    {"LastOfAFullTable", MainBoardTable::kFull, "100", 0, 100},
    {"NoTable", MainBoardTable::kNone, "MPU", -10, 77, kNoneForType},
    {"NoTableButACount", MainBoardTable::kNoneButCount, "MPU", -10, 77, kNoneForType},
    {"CorruptCount", MainBoardTable::kCorrupt, "MPU", -19, 77, kCorruptForType},
    {"CorruptCountNoTable", MainBoardTable::kCorruptNone, "MPU", -19, 77, kCorruptForType},
    {"LargestCount", MainBoardTable::kCorruptMost, "MPU", -19, 77,
     "\r\nddGetMainBoardTypeByName err!, ulSupportedBoardTypeNum = -1, MAX_OLT_BOARD_TYPE_NUM = "
     "100"},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, MainBoardType, testing::ValuesIn(kTypes),
                         testing::PrintToStringParamName());

TEST_F(MainBoardQueries, RecordsWithACorruptNameLengthAreNotFoundByName) {
  Put(MainBoardTable::kLoaded);
  ddDebugPrint = 1;
  uint32_t type = 77;
  boards_[1].ulNameLen = 61;  // the first SWU
  EXPECT_EQ(ddGetMainBoardTypeByName("SWU", &type), 0);
  EXPECT_EQ(type, 5u);
  boards_[4].ulNameLen = 0xffffffff;  // the second one
  type = 77;
  EXPECT_EQ(ddGetMainBoardTypeByName("SWU", &type), -32);
  EXPECT_EQ(type, 77u);
  EXPECT_EQ(console_.Text(), "");
}

string NullForType(const void* name, const void* type) {
  return "\r\nddGetMainBoardTypeByName err!, pcBoardName = " + test::Hex(name) +
         ", pulBoardType = " + test::Hex(type);
}

TEST_F(MainBoardQueries, AsMuchOfTheNameIsComparedAsItsLengthTells) {
  Put(MainBoardTable::kLoaded);
  boards_[1].ulNameLen = 3;  // SWU, without its terminator
  uint32_t type = 0;
  EXPECT_EQ(ddGetMainBoardTypeByName("SWUxx", &type), 0);
  EXPECT_EQ(type, 3u);
  EXPECT_EQ(ddGetMainBoardTypeByName("SWx", &type), -32);
}

TEST_F(MainBoardQueries, TypeWithoutANameOrAResult) {
  Put(MainBoardTable::kCorruptNone);  // looked at later only
  uint32_t type = 77;
  const char name[] = "MPU";
  EXPECT_EQ(ddGetMainBoardTypeByName(nullptr, &type), -2);
  EXPECT_EQ(ddGetMainBoardTypeByName(name, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetMainBoardTypeByName(nullptr, nullptr), -2);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetMainBoardTypeByName err!, pcBoardName = 0x0, pulBoardType = 0x0");
  EXPECT_EQ(ddGetMainBoardTypeByName(name, nullptr), -2);
  EXPECT_EQ(console_.Text(), NullForType(name, nullptr));
  EXPECT_EQ(ddGetMainBoardTypeByName(nullptr, &type), -2);
  EXPECT_EQ(console_.Text(), NullForType(nullptr, &type));
  EXPECT_EQ(type, 77u);
}

// ---- Record by type ------------------------------------------------------------

constexpr int kNull = -1;
constexpr int kUntouched = -2;
MainBoardInformation* const kMark = reinterpret_cast<MainBoardInformation*>(uintptr_t{0x1230});

struct ObjectRow {
  const char* name;
  MainBoardTable table;
  uint32_t type;
  int32_t code;
  int answer;  // place of the board in boards_, or one of the above
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const ObjectRow& row) {
    return out << row.name;
  }
};

class MainBoardObject : public test::MainBoardTest, public testing::WithParamInterface<ObjectRow> {
 protected:
  const MainBoardInformation* Answer() const {
    switch (GetParam().answer) {
      case kNull:
        return nullptr;
      case kUntouched:
        return kMark;
      default:
        return &boards_[static_cast<size_t>(GetParam().answer)];
    }
  }
};

TEST_P(MainBoardObject, ByType) {
  Put(GetParam().table);
  for (const int32_t debug : {0, 1, -1}) {
    ddDebugPrint = debug;
    MainBoardInformation* board = kMark;
    EXPECT_EQ(ddGetMainBoardObjByType(GetParam().type, &board), GetParam().code);
    EXPECT_EQ(board, Answer());
    EXPECT_EQ(console_.Text(), debug != 0 ? GetParam().debug_console : "");
  }
}

constexpr char kEmptyForObj[] = "\r\nddGetMainBoardObjByType err!, pstMainBoardInformation = 0x0";
constexpr char kTwoEmptyForObj[] =
    "\r\nddGetMainBoardObjByType err!, pstMainBoardInformation = 0x0"
    "\r\nddGetMainBoardObjByType err!, pstMainBoardInformation = 0x0";
constexpr char kCorruptForObj[] =
    "\r\nddGetMainBoardObjByType err!, ulSupportedBoardTypeNum = 101, MAX_OLT_BOARD_TYPE_NUM = 100";
constexpr char kNoneForObj[] = "\r\nddGetMainBoardObjByType err!, pBoardTypeArray = 0x0";

const ObjectRow kObjects[] = {
    {"First", MainBoardTable::kLoaded, 1, 0, 0},
    {"FirstOfTwo", MainBoardTable::kLoaded, 3, 0, 1},
    {"TypeZero", MainBoardTable::kLoaded, 0, 0, 7},
    {"LargestType", MainBoardTable::kLoaded, 0xffffffff, 0, 6},
    {"Unknown", MainBoardTable::kLoaded, 2, -18, kNull},
    {"BehindAnEmptyPlace", MainBoardTable::kEmptyPlaces, 1, 0, 0, kEmptyForObj},
    {"BehindTwoEmptyPlaces", MainBoardTable::kEmptyPlaces, 4, 0, 2, kTwoEmptyForObj},
    {"UnknownWithEmptyPlaces", MainBoardTable::kEmptyPlaces, 2, -18, kNull, kTwoEmptyForObj},
    {"LastOfAFullTable", MainBoardTable::kFull, 100, 0, 99},
    {"NoTable", MainBoardTable::kNone, 1, -10, kUntouched, kNoneForObj},
    {"NoTableButACount", MainBoardTable::kNoneButCount, 1, -10, kUntouched, kNoneForObj},
    {"CorruptCount", MainBoardTable::kCorrupt, 1, -19, kNull, kCorruptForObj},
    {"CorruptCountNoTable", MainBoardTable::kCorruptNone, 1, -19, kNull, kCorruptForObj},
    {"LargestCount", MainBoardTable::kCorruptMost, 1, -19, kNull,
     "\r\nddGetMainBoardObjByType err!, ulSupportedBoardTypeNum = -1, MAX_OLT_BOARD_TYPE_NUM = "
     "100"},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, MainBoardObject, testing::ValuesIn(kObjects),
                         testing::PrintToStringParamName());

TEST_F(MainBoardQueries, RecordsWithACorruptNameLengthAreFoundByType) {
  Put(MainBoardTable::kLoaded);
  boards_[1].ulNameLen = 61;
  MainBoardInformation* board = kMark;
  EXPECT_EQ(ddGetMainBoardObjByType(3, &board), 0);
  EXPECT_EQ(board, &boards_[1]);
}

TEST_F(MainBoardQueries, RecordWithoutAResult) {
  Put(MainBoardTable::kCorruptNone);  // looked at later only
  EXPECT_EQ(ddGetMainBoardObjByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetMainBoardObjByType(1, nullptr), -2);
  EXPECT_EQ(console_.Text(), "\r\nddGetMainBoardObjByType err!, pBoardTypeObjAddr = 0x0");
}

// ---- Empty tables --------------------------------------------------------------

TEST_F(MainBoardQueries, ATableOfNoBoardsKnowsNone) {
  Put(MainBoardTable::kLoaded);
  gstSupportedMainBoardType.ulSupportedBoardTypeNum = 0;
  ddDebugPrint = 1;
  char name[60] = {};
  uint32_t type = 77;
  MainBoardInformation* board = kMark;
  EXPECT_EQ(ddGetMainBoardNameByType(1, name), -18);
  EXPECT_EQ(ddGetMainBoardTypeByName("MPU", &type), -32);
  EXPECT_EQ(ddGetMainBoardObjByType(1, &board), -18);
  EXPECT_EQ(board, nullptr);
  EXPECT_EQ(console_.Text(), "");
}

}  // namespace
