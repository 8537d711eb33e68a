// From a physical port to a logic port: as far as the exported function gets, and
// the rest behind it.
#include <ostream>
#include <string>

#include "catalog/frame/cards.h"
#include "catalog/frame/port_mapping.h"
#include "catalog/frame/port_mapping_test.h"

namespace {

using std::string;
using sys_context::ChooseLogicPort;
using test::FakePlatform;
using test::kUntouched;
using test::PortMappingStandIns;

constexpr int16_t kWithMap = 3301;
constexpr int16_t kWithoutMap = 3302;

class ToLogicPortTest : public test::PortMappingTest {
 protected:
  void SetUp() override {
    PortMappingTest::SetUp();
    PutMainBoardsWithMaps();
  }

  // The only card of the chassis.
  static void PutCard(uint32_t slot, int32_t type, bool is_service, bool is_uplink) {
    FakePlatform& platform = FakePlatform::Get();
    platform.configured_cards.clear();
    platform.service_cards.clear();
    platform.uplink_cards.clear();
    test::PutCard(slot,
                  {.name = "", .type = type, .is_service = is_service, .is_uplink = is_uplink});
  }
};

// ---- The exported function ----------------------------------------------------------

struct Row {
  const char* name;
  uint32_t phy_port;
  int32_t code;
  string asked;
  string text;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class ToLogicPort : public ToLogicPortTest, public testing::WithParamInterface<Row> {};

TEST_P(ToLogicPort, NeverSucceeds) {
  AskTwice(GetParam().text, [] {
    uint32_t logic_port = kUntouched;
    EXPECT_EQ(ddRunGetSwitchChipLogicPortFromPhyPort(GetParam().phy_port, &logic_port),
              GetParam().code);
    EXPECT_EQ(logic_port, kUntouched);
    EXPECT_EQ(Asked(), GetParam().asked);
  });
}

const string kAboveText = ", MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280";
const string kMapText =
    "\r\nddGetSwitchChipLogicPortFromPhyPort->ddGetSwitchChipLogicPortFromPhyPort err! ";
const string kSlotText =
    "\r\nddGetSwitchChipLogicPortFromPhyPort->ddGetSlotPortFromSwitchChipLogicPort err! ";
const string kPortZeroText = "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 0" +
                             kSlotText + "iResult = -22, ulLogicPort = 0";

const Row kRows[] = {
    {"PortZero", 0, -23, "", "\r\nddGetSwitchChipLogicPortFromPhyPort err! ulPhyPort = 0x0"},
    {"WiredOnce", 11, -22, "main card, main board 101, logic port 0", kPortZeroText},
    {"WiredTwice", 13, -22, "main card, main board 101, logic port 0", kPortZeroText},
    {"WiredThreeTimes", 16, -22, "main card, main board 101, logic port 0", kPortZeroText},
    {"WiredFiveTimes", 25, -22, "main card, main board 101, logic port 0", kPortZeroText},
    {"NotWired", 12, -22, "main card, main board 101",
     "\r\nddGetSwitchChipLogicPortFromPhyPort err! ulLogicPort = 0"},
    {"WiredInAnotherMapOnly", 111, -22, "main card, main board 101",
     "\r\nddGetSwitchChipLogicPortFromPhyPort err! ulLogicPort = 0"},
    {"WiredOnAnotherBoardOnly", 91, -22, "main card, main board 101",
     "\r\nddGetSwitchChipLogicPortFromPhyPort err! ulLogicPort = 0"},
    {"TheLastPort", 1280, -22, "main card, main board 101",
     "\r\nddGetSwitchChipLogicPortFromPhyPort err! ulLogicPort = 0"},
    {"BehindTheLastPort", 1281, -23, "main card, main board 101",
     "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = 1281" + kAboveText + kMapText +
         "Default map. ulPhyPort = 1281"},
    {"BehindTheLastPortAndWired", 65535, -23, "main card, main board 101",
     "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = 65535" + kAboveText + kMapText +
         "Default map. ulPhyPort = 65535"},
    {"LikeAnotherIn16Bits", 65536 + 11, -23, "main card, main board 101",
     "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = 65547" + kAboveText + kMapText +
         "Default map. ulPhyPort = 65547"},
    {"TheHighestPort", 0xffffffff, -23, "main card, main board 101",
     "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = -1" + kAboveText + kMapText +
         "Default map. ulPhyPort = -1"},
};
INSTANTIATE_TEST_SUITE_P(PortMapping, ToLogicPort, testing::ValuesIn(kRows),
                         testing::PrintToStringParamName());

// ---- If logic port 0 were found -------------------------------------------------------

struct WiredRow {
  const char* name;
  uint32_t phy_port;
  uint32_t first;
  uint32_t second;
  friend std::ostream& operator<<(std::ostream& out, const WiredRow& row) {
    return out << row.name;
  }
};

class ToLogicPortAnyhow : public ToLogicPortTest, public testing::WithParamInterface<WiredRow> {
 protected:
  void SetUp() override {
    ToLogicPortTest::SetUp();
    PortMappingStandIns::Get().slot_of_port_0 = 7;
  }
};

TEST_P(ToLogicPortAnyhow, GivesTheSecondPortToCardsOfBothKinds) {
  for (const bool is_service : {false, true}) {
    for (const bool is_uplink : {false, true}) {
      PutCard(7, kWithoutMap, is_service, is_uplink);
      const uint32_t expected = is_service && is_uplink ? GetParam().second : GetParam().first;
      AskTwice("", [&] {
        uint32_t logic_port = kUntouched;
        EXPECT_EQ(ddRunGetSwitchChipLogicPortFromPhyPort(GetParam().phy_port, &logic_port), 0);
        EXPECT_EQ(logic_port, expected);
      });
    }
  }
}

const WiredRow kWiredRows[] = {
    {"WiredOnce", 11, 1, 1},
    {"WiredTwice", 13, 3, 5},
    {"WiredThreeTimes", 16, 6, 7},
    {"WiredFiveTimes", 25, 11, 12},
};
INSTANTIATE_TEST_SUITE_P(PortMapping, ToLogicPortAnyhow, testing::ValuesIn(kWiredRows),
                         testing::PrintToStringParamName());

TEST_F(ToLogicPortAnyhow, AsksInThisOrder) {
  PutCard(7, kWithoutMap, true, true);
  uint32_t logic_port = kUntouched;
  EXPECT_EQ(ddRunGetSwitchChipLogicPortFromPhyPort(13, &logic_port), 0);
  EXPECT_EQ(Asked(),
            "main card, main board 101, logic port 0, slot 7, special map 101 3302, "
            "service 3302, uplink 3302");
}

TEST_F(ToLogicPortAnyhow, TakesTheSpecialMap) {
  PutCard(7, kWithMap, true, true);
  uint32_t logic_port = kUntouched;
  EXPECT_EQ(ddRunGetSwitchChipLogicPortFromPhyPort(13, &logic_port), 0);
  EXPECT_EQ(logic_port, 5u);
  EXPECT_EQ(Asked(), "main card, main board 101, logic port 0, slot 7, special map 101 3301");
}

// ---- Behind the default map -------------------------------------------------------------

class ChosenPort : public ToLogicPortTest {
 protected:
  // Asks for the port that the card behind logic port 1, in slot 21, makes of it. The
  // default map gave the logic ports 31 and 32.
  void Expect(uint32_t phy_port, uint32_t count, int32_t code, uint32_t chosen, const string& asked,
              const string& text = "", uint32_t logic_port = 1) {
    AskTwice(text, [&] {
      uint32_t result = kUntouched;
      EXPECT_EQ(ChooseLogicPort({phy_port, 101, {31, 32}, count}, logic_port, &result), code);
      EXPECT_EQ(result, chosen);
      EXPECT_EQ(Asked(), asked);
    });
  }
};

struct ChoiceRow {
  uint32_t count;  // of logic ports in the default map
  bool is_service;
  bool is_uplink;
  uint32_t chosen;
  const char* kinds;  // asked about
};

const ChoiceRow kChoices[] = {
    {0, false, false, 31, "service"},
    {0, true, false, 31, "service uplink"},
    {0, false, true, 31, "service"},
    {0, true, true, 32, "service uplink"},
    {1, false, false, 31, ""},
    {1, true, false, 31, ""},
    {1, false, true, 31, ""},
    {1, true, true, 31, ""},
    {2, false, false, 31, "service"},
    {2, true, false, 31, "service uplink"},
    {2, false, true, 31, "service"},
    {2, true, true, 32, "service uplink"},
    {3, false, false, 31, "service"},
    {3, true, false, 31, "service uplink"},
    {3, false, true, 31, "service"},
    {3, true, true, 32, "service uplink"},
    {257, true, true, 32, "service uplink"},
    {0xffffffff, true, true, 32, "service uplink"},
};

struct CardRow {
  const char* name;
  int32_t type;
  const char* shown;  // its low 16 bits
  const char* asked;  // behind the slot
  const char* text;
};

TEST_F(ChosenPort, OfACardWithoutMap) {
  const CardRow kCards[] = {
      {"WithoutMap", kWithoutMap, "3302", ", special map 101 3302", ""},
      {"None", 0, "0", "", ""},
      {"Negative", -1, "-1", "", ""},
      {"Beyond16Bits", 65536 + kWithMap, "3301", ", special map 101 68837",
       "\r\nddGetSpecialLogicPortToPhyPortObjByType->ddGetBoardNameByType err! iResult = -18, "
       "ulBoardType = 68837"},
  };
  for (const CardRow& card : kCards) {
    for (const ChoiceRow& row : kChoices) {
      SCOPED_TRACE(string(card.name) + ", " + std::to_string(row.count) + row.kinds);
      PutCard(21, card.type, row.is_service, row.is_uplink);
      const string kinds = row.kinds;
      string asked = string("logic port 1, slot 21") + card.asked;
      if (kinds != "") {
        asked += string(", service ") + card.shown;
      }
      if (kinds == "service uplink") {
        asked += string(", uplink ") + card.shown;
      }
      Expect(11, row.count, 0, row.chosen, asked, card.text);
    }
  }
}

TEST_F(ChosenPort, OfACardWhoseKindsAreRefusedWithAnyCode) {
  for (const int32_t refusal : {1, -1, 256, -2147483647 - 1}) {
    FakePlatform::Get().not_of_that_kind = refusal;
    PutCard(21, kWithoutMap, true, false);
    Expect(11, 2, 0, 31, "logic port 1, slot 21, special map 101 3302, service 3302, uplink 3302");
    PutCard(21, kWithoutMap, false, true);
    Expect(11, 2, 0, 31, "logic port 1, slot 21, special map 101 3302, service 3302");
  }
}

TEST_F(ChosenPort, IsThatOfTheSpecialMap) {
  const string asked = "logic port 1, slot 21, special map 101 3301";
  PutCard(21, kWithMap, true, true);  // kinds do not matter
  for (const uint32_t count : {1u, 2u}) {
    Expect(111, count, 0, 1, asked);
    Expect(13, count, 0, 5, asked);
    Expect(144, count, 0, 4, asked);  // three ports
    Expect(0, count, 0, 3, asked);    // and all pairs that are not in use
    Expect(16, count, 0, 31, asked);  // none: what the default map gave stays
  }
}

TEST_F(ChosenPort, AboveTheSpecialMap) {
  const string asked = "logic port 1, slot 21, special map 101 3301";
  PutCard(21, kWithMap, false, false);
  Expect(1281, 1, -23, kUntouched, asked,
         "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = 1281" + kAboveText +
             kMapText + "ulPhyPort = 1281, iBoardType = 3301");
  Expect(65536 + 111, 1, -23, kUntouched, asked,
         "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = 65647" + kAboveText +
             kMapText + "ulPhyPort = 65647, iBoardType = 3301");
}

TEST_F(ChosenPort, OfAMissingSpecialMap) {
  PortMappingStandIns::Get().special_map = {0, nullptr};
  PutCard(21, kWithoutMap, true, true);
  Expect(11, 2, -23, 0, "logic port 1, slot 21, special map 101 3302");
  PutCard(21, 0, false, false);
  Expect(11, 2, 0, 31, "logic port 1, slot 21, service 0");
}

TEST_F(ChosenPort, OfAMapOfAFailedLookup) {
  PortMap& map = gstSupportedMainBoardType.pBoardTypeArray[1]->astPortMap[1];
  PortMappingStandIns::Get().special_map = {-1, &map};
  PutCard(21, kWithMap, false, false);
  Expect(111, 1, 0, 31, "logic port 1, slot 21, special map 101 3301");
}

TEST_F(ChosenPort, OfLogicPortsThatTheFrameDoesNotHave) {
  Expect(11, 1, -22, kUntouched, "logic port 0", kPortZeroText, 0);
  Expect(11, 1, -22, kUntouched, "logic port 21",
         "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 21" + kSlotText +
             "iResult = -22, ulLogicPort = 21",
         21);
  Expect(11, 1, -22, kUntouched, "logic port 17",
         "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 17, ulSlotOut = 37, "
         "ulSlotStart = 0, ulSlotEnd = 0, ulSlotPort = 129" +
             kSlotText + "iResult = -5, ulLogicPort = 17",
         17);
}

TEST_F(ChosenPort, OfTheMainBoardAtHand) {
  PutCard(21, kWithMap, false, false);
  uint32_t chosen = kUntouched;
  EXPECT_EQ(ChooseLogicPort({111, 100, {31, 32}, 1}, 1, &chosen), 0);
  EXPECT_EQ(chosen, 31u);
  EXPECT_EQ(Asked(), "logic port 1, slot 21, special map 100 3301");
}

}  // namespace
