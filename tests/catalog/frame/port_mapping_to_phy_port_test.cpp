// From a logic port to the physical port of the main board.
#include <optional>
#include <ostream>
#include <string>

#include "catalog/frame/port_mapping_test.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kDefaultWires;
using test::kUntouched;
using test::PortMappingStandIns;

constexpr int32_t kWithMap = 3301;
constexpr int32_t kWithoutMap = 3302;
constexpr uint32_t kAllOnes = 0xffffffff;

struct Row {
  const char* name;
  uint32_t logic_port;
  int32_t card_type;  // of its slot
  int32_t code;
  uint32_t phy_port;
  string asked;  // behind the main card
  string text = {};
  int32_t main_card = 101;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class ToPhyPort : public test::PortMappingTest, public testing::WithParamInterface<Row> {
 protected:
  void SetUp() override {
    PortMappingTest::SetUp();
    PutMainBoardsWithMaps();
  }

  void Expect(const Row& row) {
    FakePlatform::Get().main_card = row.main_card;
    FakePlatform::Get().configured_cards = {{20 + row.logic_port, row.card_type}};
    FakePlatform::Get().no_card = 4711;
    AskTwice(row.text, [&] {
      uint32_t phy_port = kUntouched;
      EXPECT_EQ(ddRunGetSwitchChipPhyPortFromLogicPort(row.logic_port, &phy_port), row.code);
      EXPECT_EQ(phy_port, row.phy_port);
      EXPECT_EQ(Asked(), "main card, " + row.asked);
    });
  }
};

TEST_P(ToPhyPort, OfOneLogicPort) {
  Expect(GetParam());
}

const string kSlotText =
    "\r\nddRunGetSwitchChipPhyPortFromLogicPort->ddGetSlotPortFromSwitchChipLogicPort err! ";
const string kMapText =
    "\r\nddRunGetSwitchChipPhyPortFromLogicPort->ddGetSwitchChipPhyPortFromLogicPort err! ";
const string kUnknownCardText =
    "\r\nddGetSpecialLogicPortToPhyPortObjByType->ddGetBoardNameByType err! iResult = -18, ";

const Row kRows[] = {
    // The default map
    {"NoCard", 1, 0, 0, 11, "main board 101, logic port 1, slot 21"},
    {"NegativeCard", 1, -1, 0, 11, "main board 101, logic port 1, slot 21"},
    {"MostNegativeCard", 1, -2147483647 - 1, 0, 11, "main board 101, logic port 1, slot 21"},
    {"NegativeLikeTheCardIn16Bits", 1, kWithMap - 65536, 0, 11,
     "main board 101, logic port 1, slot 21"},
    {"CardOfTypeOne", 1, 1, 0, 11, "main board 101, logic port 1, slot 21, special map 101 1",
     kUnknownCardText + "ulBoardType = 1"},
    {"CardWithoutMap", 1, kWithoutMap, 0, 11,
     "main board 101, logic port 1, slot 21, special map 101 3302"},
    {"UnknownCard", 1, 9999, 0, 11, "main board 101, logic port 1, slot 21, special map 101 9999",
     kUnknownCardText + "ulBoardType = 9999"},
    {"UnknownCardLikeAnotherIn16Bits", 1, 65536 + kWithMap, 0, 11,
     "main board 101, logic port 1, slot 21, special map 101 68837",
     kUnknownCardText + "ulBoardType = 68837"},
    {"WiredToNothing", 2, 0, 0, 0, "main board 101, logic port 2, slot 22"},
    {"WiredToNothingForACardWithoutMap", 2, kWithoutMap, 0, 0,
     "main board 101, logic port 2, slot 22, special map 101 3302"},
    {"TheFirstOfTwo", 4, 0, 0, 14, "main board 101, logic port 4, slot 24"},
    {"TheLastOfTheBoard", 18, 0, 0, 28, "main board 101, logic port 18, slot 38"},
    {"TheLastOfTheFrame", 20, 0, 0, 65535, "main board 101, logic port 20, slot 40"},
    {"NotInTheMap", 9, 0, -22, kUntouched, "main board 101, logic port 9, slot 29",
     kMapText + "Default map. iResult = -22, ulLogicPort = 9"},
    {"InTheOtherMapOnly", 19, kWithoutMap, -22, kUntouched,
     "main board 101, logic port 19, slot 39, special map 101 3302",
     kMapText + "Default map. iResult = -22, ulLogicPort = 19"},
    {"OtherMainBoard", 1, 0, 0, 91, "main board 100, logic port 1, slot 21", "", 100},
    {"OtherMainBoardAndCard", 1, kWithMap, 0, 91,
     "main board 100, logic port 1, slot 21, special map 100 3301", "", 100},

    // The special map
    {"CardWithMap", 1, kWithMap, 0, 111,
     "main board 101, logic port 1, slot 21, special map 101 3301"},
    {"MainBoardAsCard", 1, 101, 0, 211,
     "main board 101, logic port 1, slot 21, special map 101 101"},
    {"CardWithMapAndPortThatTheDefaultMapWiresToNothing", 2, kWithMap, 0, 112,
     "main board 101, logic port 2, slot 22, special map 101 3301"},
    {"CardWithMapAndPortOfThatOnly", 19, kWithMap, 0, 119,
     "main board 101, logic port 19, slot 39, special map 101 3301"},
    {"CardWithMapAndTheFirstOfTwo", 4, kWithMap, 0, 144,
     "main board 101, logic port 4, slot 24, special map 101 3301"},
    {"CardWithMapAndPortWiredToNothing", 3, kWithMap, -22, kAllOnes,
     "main board 101, logic port 3, slot 23, special map 101 3301",
     "\r\nddRunGetSwitchChipPhyPortFromLogicPort err! ulLogicPort = 3, ulPhyPort = 0"},
    {"CardWithMapAndPortOfNoMap", 9, kWithMap, -22, kUntouched,
     "main board 101, logic port 9, slot 29, special map 101 3301",
     kMapText + "ulLogicPort = 9, iBoardType = 3301"},
    {"CardWithMapAndPortOfTheDefaultMapOnly", 6, kWithMap, -22, kUntouched,
     "main board 101, logic port 6, slot 26, special map 101 3301",
     kMapText + "ulLogicPort = 6, iBoardType = 3301"},

    // Logic ports that the frame does not have
    {"PortZero", 0, kWithMap, -22, kUntouched, "main board 101, logic port 0",
     "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 0" + kSlotText +
         "iResult = -22, ulLogicPort = 0"},
    {"PortBehindTheLast", 21, kWithMap, -22, kUntouched, "main board 101, logic port 21",
     "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 21" + kSlotText +
         "iResult = -22, ulLogicPort = 21"},
    {"PortLikeTheFirstIn8Bits", 257, kWithMap, -22, kUntouched, "main board 101, logic port 257",
     "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 257" + kSlotText +
         "iResult = -22, ulLogicPort = 257"},
    {"TheHighestPort", 0xffffffff, kWithMap, -22, kUntouched,
     "main board 101, logic port 4294967295",
     "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = -1" + kSlotText +
         "iResult = -22, ulLogicPort = -1"},
    {"CorruptPort", 17, kWithMap, -22, kUntouched, "main board 101, logic port 17",
     "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 17, ulSlotOut = 37, "
     "ulSlotStart = 0, ulSlotEnd = 0, ulSlotPort = 129" +
         kSlotText + "iResult = -5, ulLogicPort = 17"},
};
INSTANTIATE_TEST_SUITE_P(PortMapping, ToPhyPort, testing::ValuesIn(kRows),
                         testing::PrintToStringParamName());

using ToPhyPortFaults = ToPhyPort;

TEST_F(ToPhyPortFaults, CorruptFrame) {
  for (const uint32_t count : {1281u, 0x80000000u, 0xffffffffu}) {
    gstFrame.ulSwitchChipLogicPortNum = count;
    Expect({"", 1, kWithMap, -22, kUntouched, "main board 101, logic port 1",
            "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 1" + kSlotText +
                "iResult = -22, ulLogicPort = 1"});
  }
}

TEST_F(ToPhyPortFaults, CorruptNumberOfMaps) {
  gstSupportedMainBoardType.pBoardTypeArray[1]->ulChipLogicPortToPhyPortTypeNum = 21;
  Expect({"", 1, kWithMap, 0, 11, "main board 101, logic port 1, slot 21, special map 101 3301",
          "\r\nddGetSpecialLogicPortToPhyPortObjByType err! ulChipLogicPortToPhyPortTypeNum = 21, "
          "MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM = 20"});
}

TEST_F(ToPhyPortFaults, MissingSpecialMap) {
  PortMappingStandIns::Get().special_map = {0, nullptr};
  Expect(
      {"", 1, kWithoutMap, -23, 0, "main board 101, logic port 1, slot 21, special map 101 3302"});
  Expect({"", 1, 0, 0, 11, "main board 101, logic port 1, slot 21"});
}

TEST_F(ToPhyPortFaults, MapOfAFailedLookup) {
  PortMap& map = gstSupportedMainBoardType.pBoardTypeArray[1]->astPortMap[1];
  PortMappingStandIns::Get().special_map = {-18, &map};
  Expect({"", 1, kWithMap, 0, 11, "main board 101, logic port 1, slot 21, special map 101 3301"});
}

}  // namespace
