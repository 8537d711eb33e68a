// The map of a main board that is special to a service board.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/main_boards.h"
#include "support/records.h"

namespace {

bool succeeds_without_board = false;

}  // namespace

extern "C" {

int32_t __real_ddGetMainBoardObjByType(uint32_t type, MainBoardInformation** board);
int32_t __wrap_ddGetMainBoardObjByType(uint32_t type, MainBoardInformation** board);

// Stands in front of the query, as a host's own may.
int32_t __wrap_ddGetMainBoardObjByType(uint32_t type, MainBoardInformation** board) {
  return succeeds_without_board ? 0 : __real_ddGetMainBoardObjByType(type, board);
}

}  // extern "C"

namespace {

using std::string;

PortMap* const kMark = reinterpret_cast<PortMap*>(uintptr_t{0x1230});

// Main boards: MPU, type 10, with special maps; CTL, type 11, without; and AUX,
// type 12, of whose name there is a special map. Service boards of the types 20
// and up.
class SpecialMapTest : public test::MainBoardTest {
 protected:
  void SetUp() override {
    test::MainBoardTest::SetUp();
    PutBoards({{10, "MPU"}, {11, "CTL"}, {12, "AUX"}});
    PutMaps(
        {"NoSpecialUplinkBoard", "ETHA", "ETHB", "ETHA", "etha", "AUX", "LONER", string(59, 'u')});
    PutServiceBoards({{20, "ETHA"},
                      {21, "ETHB"},
                      {22, "ETHC"},
                      {23, "NoSpecialUplinkBoard"},
                      {24, "ETH"},
                      {25, "ETHAB"},
                      {26, "etha"},
                      {12, "ETHB"},
                      {27, string(59, 'u')},
                      {28, ""}});
  }
  void TearDown() override {
    succeeds_without_board = false;
    gstSupportedBoardType = {};  // its records are this fixture's
    test::MainBoardTest::TearDown();
  }

  // The maps of the first main board; the first is its default one.
  void PutMaps(const std::vector<string>& names) {
    MainBoardInformation& board = boards_[0];
    for (size_t i = 0; i < names.size(); ++i) {
      test::StoreMap({names[i], {}}, board.astPortMap[i]);
    }
    board.ulChipLogicPortToPhyPortTypeNum = static_cast<uint32_t>(names.size());
  }
  void PutServiceBoards(const std::vector<std::pair<uint32_t, string>>& boards) {
    for (const auto& [type, name] : boards) {
      BoardInformation board = {};
      board.ulType = type;
      test::StoreName(name, board.acName, board.ulNameLen);
      service_boards_.push_back(board);
    }
    for (BoardInformation& board : service_boards_) {
      service_places_.push_back(&board);
    }
    gstSupportedBoardType = {static_cast<uint32_t>(service_places_.size()), service_places_.data(),
                             0, 0};
  }
  PortMap* Map(int place) { return &boards_[0].astPortMap[place]; }

  // Asks with both values of the switch.
  void Expect(uint32_t main_board, uint32_t board, int32_t code, const PortMap* answer,
              const string& debug_console = "") {
    for (const int32_t debug : {0, 1}) {
      ddDebugPrint = debug;
      PortMap* map = kMark;
      EXPECT_EQ(ddGetSpecialLogicPortToPhyPortObjByType(main_board, board, &map), code);
      EXPECT_EQ(map, answer);
      EXPECT_EQ(console_.Text(), debug != 0 ? debug_console : "");
      if (HasFailure()) {
        return;  // its words are on the caught console as well
      }
    }
  }

  std::vector<BoardInformation> service_boards_;
  std::vector<BoardInformation*> service_places_;
};

string NoName(const string& code, const string& type) {
  return "\r\nddGetSpecialLogicPortToPhyPortObjByType->ddGetBoardNameByType err! iResult = " +
         code + ", ulBoardType = " + type;
}
string NoMainBoard(const string& code) {
  return "\r\nddGetSpecialLogicPortToPhyPortObjByType->ddGetMainBoardObjByType err! iResult = " +
         code + ", ulMainBoardAddr = 0";
}

// ---- Which map answers -----------------------------------------------------------

struct MapRow {
  const char* name;
  uint32_t main_board;
  uint32_t board;
  int32_t code;
  int answer = 0;  // place of the map
  string debug_console = "";
  friend std::ostream& operator<<(std::ostream& out, const MapRow& row) { return out << row.name; }
};

class SpecialMap : public SpecialMapTest, public testing::WithParamInterface<MapRow> {};

TEST_P(SpecialMap, ByTypes) {
  Expect(GetParam().main_board, GetParam().board, GetParam().code,
         GetParam().answer == 0 ? nullptr : Map(GetParam().answer), GetParam().debug_console);
}

const MapRow kMaps[] = {
    {"FirstOfTwo", 10, 20, 0, 1},
    {"Second", 10, 21, 0, 2},
    {"OtherCaseIsAnotherName", 10, 26, 0, 4},
    {"LongestName", 10, 27, 0, 7},
    {"NoMapOfThatName", 10, 22, -18},
    {"NotTheDefaultMap", 10, 23, -18},
    {"StartOfAName", 10, 24, -18},
    {"MoreThanAName", 10, 25, -18},
    {"EmptyName", 10, 28, -18},
    {"NameOfAMainBoard", 10, 12, 0, 5},  // which is asked before the service boards
    {"MainBoardWithoutSpecialMaps", 11, 20, -18},
    {"UnknownBoard", 10, 29, -18, 0, NoName("-18", "29")},
    {"LargestBoard", 10, 0xffffffff, -18, 0, NoName("-18", "-1")},
    {"UnknownMainBoard", 13, 20, -1, 0, NoMainBoard("-18")},
    {"ServiceBoardIsNoMainBoard", 20, 20, -1, 0, NoMainBoard("-18")},
    {"NeitherIsKnown", 13, 29, -1, 0, NoMainBoard("-18")},
};
INSTANTIATE_TEST_SUITE_P(MainBoards, SpecialMap, testing::ValuesIn(kMaps),
                         testing::PrintToStringParamName());

// Map 6 is for LONER, of which there is no service board.
TEST_F(SpecialMapTest, OfAnAbsentServiceBoardIsNeverFound) {
  for (uint32_t type = 0; type < 200; ++type) {
    PortMap* map = kMark;
    ddGetSpecialLogicPortToPhyPortObjByType(10, type, &map);
    EXPECT_NE(map, Map(6));
    EXPECT_NE(map, Map(0));
  }
}

TEST_F(SpecialMapTest, AsMuchOfTheNameIsComparedAsItsLengthTells) {
  Map(1)->ulBoardNameLen = 3;  // ETHA, without its last letter
  Expect(10, 22, 0, Map(1));   // ETHC
  Map(1)->ulBoardNameLen = 5;
  Map(1)->acBoardName[10] = 'x';  // behind the name
  Expect(10, 20, 0, Map(1));
}

TEST_F(SpecialMapTest, OfANameWithoutItsTerminator) {
  service_boards_[0].ulNameLen = 4;  // ETHA; what it is copied into ends it
  Expect(10, 20, 0, Map(1));
}

TEST_F(SpecialMapTest, SkipsNamesLongerThanTheirField) {
  Map(1)->ulBoardNameLen = 61;
  Expect(10, 20, 0, Map(3));
  Map(3)->ulBoardNameLen = 0xffffffff;
  Expect(10, 20, -18, nullptr);
}

TEST_F(SpecialMapTest, SkipsAMainBoardWhoseNameIsLongerThanItsField) {
  boards_[2].ulNameLen = 61;  // type 12: the service board of that type answers
  Expect(10, 12, 0, Map(2));
}

// ---- Numbers of maps ---------------------------------------------------------------

TEST_F(SpecialMapTest, OnlyMapsInUseAreLookedAt) {
  boards_[0].ulChipLogicPortToPhyPortTypeNum = 3;
  Expect(10, 21, 0, Map(2));
  boards_[0].ulChipLogicPortToPhyPortTypeNum = 2;
  Expect(10, 21, -18, nullptr);
  Expect(10, 20, 0, Map(1));
  boards_[0].ulChipLogicPortToPhyPortTypeNum = 1;
  Expect(10, 20, -18, nullptr);
  boards_[0].ulChipLogicPortToPhyPortTypeNum = 0;
  Expect(10, 20, -18, nullptr);
}

TEST_F(SpecialMapTest, LastOfAsManyMapsAsPossible) {
  for (int place = 8; place < 19; ++place) {
    test::StoreMap({"OTHER", {}}, *Map(place));
  }
  test::StoreMap({"ETHC", {}}, *Map(19));
  boards_[0].ulChipLogicPortToPhyPortTypeNum = 20;
  Expect(10, 22, 0, Map(19));
  boards_[0].ulChipLogicPortToPhyPortTypeNum = 19;
  Expect(10, 22, -18, nullptr);
}

TEST_F(SpecialMapTest, CorruptNumberOfMaps) {
  boards_[0].ulChipLogicPortToPhyPortTypeNum = 21;
  const string console =
      "\r\nddGetSpecialLogicPortToPhyPortObjByType err! ulChipLogicPortToPhyPortTypeNum = 21, "
      "MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM = 20";
  Expect(10, 20, -24, nullptr, console);
  Expect(10, 29, -24, nullptr, console);  // the board is not asked for
  boards_[0].ulChipLogicPortToPhyPortTypeNum = 0xffffffff;
  Expect(10, 20, -24, nullptr,
         "\r\nddGetSpecialLogicPortToPhyPortObjByType err! ulChipLogicPortToPhyPortTypeNum = -1, "
         "MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM = 20");
}

// ---- Missing tables ----------------------------------------------------------------

TEST_F(SpecialMapTest, NoMainBoards) {
  gstSupportedMainBoardType = {};
  Expect(10, 20, -1, nullptr,
         "\r\nddGetMainBoardObjByType err!, pBoardTypeArray = 0x0" + NoMainBoard("-10"));
}

TEST_F(SpecialMapTest, CorruptNumberOfMainBoards) {
  gstSupportedMainBoardType.ulSupportedBoardTypeNum = 101;
  Expect(10, 20, -1, nullptr,
         "\r\nddGetMainBoardObjByType err!, ulSupportedBoardTypeNum = 101, "
         "MAX_OLT_BOARD_TYPE_NUM = 100" +
             NoMainBoard("-19"));
}

TEST_F(SpecialMapTest, QueryThatSucceedsWithoutAMainBoard) {
  succeeds_without_board = true;
  Expect(10, 20, -1, nullptr, NoMainBoard("0"));
}

TEST_F(SpecialMapTest, EmptyPlacesAmongTheMainBoards) {
  places_.insert(places_.begin(), nullptr);
  ShowPlaces();
  const string object = "\r\nddGetMainBoardObjByType err!, pstMainBoardInformation = 0x0";
  const string name = "\r\nddGetMainBoardNameByType err!, pstMainBoardInformation = 0x0";
  Expect(10, 20, 0, Map(1), object + name);
  Expect(10, 29, -18, nullptr, object + name + NoName("-18", "29"));
  Expect(13, 20, -1, nullptr, object + NoMainBoard("-18"));
}

TEST_F(SpecialMapTest, NoServiceBoards) {
  gstSupportedBoardType = {};
  Expect(10, 20, -10, nullptr,
         "\r\nddGetBoardNameByType err! pBoardTypeArray = 0x0" + NoName("-10", "20"));
  Expect(10, 12, 0, Map(5));  // a main board needs none
}

TEST_F(SpecialMapTest, CorruptNumberOfServiceBoards) {
  gstSupportedBoardType.ulSupportedBoardTypeNum = 101;
  Expect(10, 20, -19, nullptr,
         "\r\nddGetBoardNameByType err! ulSupportedBoardTypeNum = 101" + NoName("-19", "20"));
}

TEST_F(SpecialMapTest, NullOutput) {
  gstSupportedMainBoardType = {};  // looked at later only
  EXPECT_EQ(ddGetSpecialLogicPortToPhyPortObjByType(10, 20, nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetSpecialLogicPortToPhyPortObjByType(10, 20, nullptr), -2);
  EXPECT_EQ(
      console_.Text(),
      "\r\nddGetSpecialLogicPortToPhyPortObjByType err!, pLogicPortToPhyPortTypeObjAddr = 0x0");
}

}  // namespace
