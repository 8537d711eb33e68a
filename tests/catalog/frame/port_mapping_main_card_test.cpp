// The main card, and how both directions find its main board.
#include <optional>
#include <ostream>
#include <string>

#include "catalog/frame/port_mapping_test.h"
#include "support/text.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kNull;
using test::kUntouched;
using test::PlacedBoards;
using test::PortMappingStandIns;

constexpr char kRefusal[] = "KXCA: dd cannot get logic port - phy port\r\n";

class MainCard : public test::PortMappingTest {};

TEST_F(MainCard, IsInTheOnlyFrame) {
  AskTwice("", [] { EXPECT_EQ(get_current_frameno(), 1); });
}

TEST_F(MainCard, TypeIsWhatThePlatformDetects) {
  for (const int32_t type : {101, 0, 389, -1, 0x7fffffff}) {
    FakePlatform::Get().main_card = type;
    AskTwice("", [=] {
      uint32_t main_type = kUntouched;
      EXPECT_EQ(ddRunGetMainSlotType(&main_type), 0);
      EXPECT_EQ(main_type, static_cast<uint32_t>(type));
      EXPECT_EQ(Asked(), "main card");
    });
  }
}

TEST_F(MainCard, TypeGoesNowhere) {
  AskTwice("\r\nddRealGetMainSlotType err! pulMainBoardType = 0x0", [] {
    EXPECT_EQ(ddRunGetMainSlotType(nullptr), -2);
    EXPECT_EQ(Asked(), "");
  });
}

// ---- Both directions --------------------------------------------------------------

struct Direction {
  const char* name;
  int32_t (*ask)(uint32_t port, uint32_t* result);
  const char* null_text;
};

const Direction kToPhyPort = {"ToPhyPort", ddRunGetSwitchChipPhyPortFromLogicPort,
                              "\r\nddRunGetSwitchChipPhyPortFromLogicPort err! pulPhyPort = 0x0"};
const Direction kToLogicPort = {"ToLogicPort", ddRunGetSwitchChipLogicPortFromPhyPort,
                                "\r\nddGetSwitchChipLogicPortFromPhyPort err! pulLogicPort = 0x0"};

TEST_F(MainCard, IsNotAskedForWithoutOutput) {
  for (const int32_t main_card : {101, 389}) {
    FakePlatform::Get().main_card = main_card;
    for (const Direction& direction : {kToPhyPort, kToLogicPort}) {
      for (const uint32_t port : {0u, 1u, 1281u}) {
        SCOPED_TRACE(direction.name);
        AskTwice(direction.null_text, [&] {
          EXPECT_EQ(direction.ask(port, nullptr), -2);
          EXPECT_EQ(Asked(), "");
        });
      }
    }
  }
}

// The type is refused before anything is looked up, so also where there is no table.
TEST_F(MainCard, WithoutMapsIsRefusedAloud) {
  FakePlatform::Get().main_card = 389;
  for (const bool has_board : {false, true}) {
    if (has_board) {
      PutMainBoards({{{{389, "KXCA"}}}});
      PutMaps(0, {{"NoSpecialUplinkBoard", {{1, 1}}}});
    }
    for (const Direction& direction : {kToPhyPort, kToLogicPort}) {
      for (const uint32_t port : {1u, 9u, 21u, 1280u, 1281u, 0xffffffffu}) {
        for (const int32_t debug : {0, 1, -1}) {
          ddDebugPrint = debug;
          uint32_t result = kUntouched;
          ASSERT_EQ(direction.ask(port, &result), -1) << direction.name << port;
          ASSERT_EQ(console_.Text(), kRefusal);
          ASSERT_EQ(Asked(), "main card");
          ASSERT_EQ(result, kUntouched);
        }
      }
    }
  }
}

TEST_F(MainCard, WithoutMapsIsRefusedForPortZero) {
  FakePlatform::Get().main_card = 389;
  uint32_t result = kUntouched;
  EXPECT_EQ(ddRunGetSwitchChipPhyPortFromLogicPort(0, &result), -1);
  EXPECT_EQ(console_.Text(), kRefusal);
  // Physical port 0 is refused before the main card is asked for.
  EXPECT_EQ(ddRunGetSwitchChipLogicPortFromPhyPort(0, &result), -23);
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(result, kUntouched);
}

MainBoardInformation stray_record;

struct MainBoardRow {
  const char* name;
  int32_t main_card;
  PlacedBoards boards;
  std::optional<int32_t> main_type_code;
  std::optional<PortMappingStandIns::LookupAnswer<MainBoardInformation>> main_board;
  int32_t code;
  string asked;
  string lookup_text;  // the lookup's own, in front of ours
  string to_phy_text;  // ADDRESS: that of the stray record
  string to_logic_text;
  friend std::ostream& operator<<(std::ostream& out, const MainBoardRow& row) {
    return out << row.name;
  }
};

class MainBoard : public test::PortMappingTest, public testing::WithParamInterface<MainBoardRow> {
 protected:
  void SetUp() override {
    PortMappingTest::SetUp();
    FakePlatform::Get().main_card = GetParam().main_card;
    PutMainBoards(GetParam().boards);
    PortMappingStandIns::Get().main_type_code = GetParam().main_type_code;
    PortMappingStandIns::Get().main_board = GetParam().main_board;
  }

  void ExpectFailure(const Direction& direction, const string& text) {
    const string shown = test::With(test::With(text, "ADDRESS", test::Hex(&stray_record)),
                                    "DECIMAL", test::Decimal(&stray_record));
    AskTwice(GetParam().lookup_text + shown, [&] {
      uint32_t result = kUntouched;
      EXPECT_EQ(direction.ask(1, &result), GetParam().code);
      EXPECT_EQ(result, kUntouched);
      EXPECT_EQ(Asked(), GetParam().asked);
    });
  }
};

TEST_P(MainBoard, CannotBeHad) {
  ExpectFailure(kToPhyPort, GetParam().to_phy_text);
  ExpectFailure(kToLogicPort, GetParam().to_logic_text);
}

const string kToPhy = "\r\nddRunGetSwitchChipPhyPortFromLogicPort->";
const string kToLogic = "\r\nddGetSwitchChipLogicPortFromPhyPort->";

const MainBoardRow kMainBoardRows[] = {
    {"TheTypeFails",
     101,
     test::kMainBoards,
     -77,
     {},
     -77,
     "",
     "",
     kToPhy + "ddRunGetMainSlotType err! iResult = -77",
     kToLogic + "ddRunGetMainSlotType err! iResult = -77"},
    {"TheTypeOfTheRefusedFails",
     389,
     test::kMainBoards,
     -2,
     {},
     -2,
     "",
     "",
     kToPhy + "ddRunGetMainSlotType err! iResult = -2",
     kToLogic + "ddRunGetMainSlotType err! iResult = -2"},
    {"OfAnUnknownType",
     102,
     test::kMainBoards,
     {},
     {},
     -1,
     "main card, main board 102",
     "",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardType = 102, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardAddr = 0"},
    {"BelowTheRefused",
     388,
     test::kMainBoards,
     {},
     {},
     -1,
     "main card, main board 388",
     "",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardType = 388, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardAddr = 0"},
    {"AboveTheRefused",
     390,
     test::kMainBoards,
     {},
     {},
     -1,
     "main card, main board 390",
     "",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardType = 390, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardAddr = 0"},
    {"LikeTheRefusedIn16Bits",
     65536 + 389,
     test::kMainBoards,
     {},
     {},
     -1,
     "main card, main board 65925",
     "",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardType = 65925, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardAddr = 0"},
    {"OfANegativeType",
     -1,
     test::kMainBoards,
     {},
     {},
     -1,
     "main card, main board -1",
     "",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardType = -1, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardAddr = 0"},
    {"OfTypeZero",
     0,
     test::kMainBoards,
     {},
     {},
     -1,
     "main card, main board 0",
     "",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardType = 0, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardAddr = 0"},
    {"InAnEmptyPlace",
     101,
     {{kNull}},
     {},
     {},
     -1,
     "main card, main board 101",
     "\r\nddGetMainBoardObjByType err!, pstMainBoardInformation = 0x0",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardType = 101, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -18, ulMainBoardAddr = 0"},
    {"NotLoaded",
     101,
     {{}, false},
     {},
     {},
     -1,
     "main card, main board 101",
     "\r\nddGetMainBoardObjByType err!, pBoardTypeArray = 0x0",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -10, ulMainBoardType = 101, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -10, ulMainBoardAddr = 0"},
    {"OfACorruptTable",
     101,
     {{{{101, "MCXA"}}}, true, 101},
     {},
     {},
     -1,
     "main card, main board 101",
     "\r\nddGetMainBoardObjByType err!, ulSupportedBoardTypeNum = 101, MAX_OLT_BOARD_TYPE_NUM = 100",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -19, ulMainBoardType = 101, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -19, ulMainBoardAddr = 0"},
    {"FoundWithoutRecord",
     101,
     test::kMainBoards,
     {},
     {{0, nullptr}},
     -1,
     "main card, main board 101",
     "",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = 0, ulMainBoardType = 101, MainBoardAddr = 0x0",
     kToLogic + "ddGetMainBoardObjByType err! iResult = 0, ulMainBoardAddr = 0"},
    {"NotFoundButGiven",
     101,
     test::kMainBoards,
     {},
     {{-5, &stray_record}},
     -1,
     "main card, main board 101",
     "",
     kToPhy +
         "ddGetMainBoardObjByType err! iResult = -5, ulMainBoardType = 101, MainBoardAddr = ADDRESS",
     kToLogic + "ddGetMainBoardObjByType err! iResult = -5, ulMainBoardAddr = DECIMAL"},
};
INSTANTIATE_TEST_SUITE_P(PortMapping, MainBoard, testing::ValuesIn(kMainBoardRows),
                         testing::PrintToStringParamName());

}  // namespace
