// The logic ports of a slot whose card is no Ethernet card.
#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"

namespace {

using std::string;
using std::vector;
using test::ArrayFor;
using test::FakePlatform;
using test::kOtherCard;
using test::kUplinkCard;
using test::ListAnswer;
using test::LogicPort;
using test::LogicPortOf;
using test::PutLogicPorts;
using test::PutSlots;
using testing::ElementsAre;

constexpr char kTooSmall[] =
    "\r\nget_switch_logicportlist_from_slot err! the range of list is small! ulPortListCnt = {room}, realCnt = {room}.";
constexpr char kEmpty[] =
    "\r\nget_switch_logicportlist_from_slot err! the range of list is small! ulPortListCnt = {room}, realCnt = 0.";
constexpr char kNoUplinkSlot[] =
    "\r\nddIsUplinkBoardSlot->ddIsSlotInSlotList err! iResult = -4, ulSlotOut = 5";

// The entries of slot 5 may be of port 0 or others, and have flag 0 or others.
const LogicPort kElsewhere = LogicPortOf(6, 0);
const LogicPort kLink = LogicPortOf(5, 0);
const LogicPort kPort = LogicPortOf(5, 3);
const LogicPort kFlagged = LogicPortOf(5, 3, 1);
const LogicPort kOddFlag = LogicPortOf(5, 0, 2);
const LogicPort kHighFlag = LogicPortOf(5, 0, 255);

struct Row {
  const char* name;
  vector<LogicPort> entries;
  vector<uint32_t> numbers;  // listed, with room for them
  // The least room with which it is listed, if that is not the size of the list.
  uint32_t least_room = 0;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class OtherCardTest : public test::BuildersTest, public testing::WithParamInterface<Row> {
 protected:
  void SetUp() override {
    BuildersTest::SetUp();
    PutLogicPorts(GetParam().entries, kLink);
    PutSlots(&FrameInformation::stUplinkSlot, {5});
  }

  void ExpectSlotFive(const ListAnswer& expected, uint32_t room) {
    ExpectAnswer(
        expected,
        [=](uint32_t* array, uint32_t* count) {
          return get_switch_logicportlist_from_slot(5, array, room, count);
        },
        Lines::kAll);
  }

  // `asked_text` is printed for the first entry that there is room for.
  void ExpectListed(const string& asked_text = "") {
    const vector<uint32_t>& numbers = GetParam().numbers;
    const uint32_t least = std::max(GetParam().least_room, static_cast<uint32_t>(numbers.size()));
    for (uint32_t room = 0; room <= least + 1; ++room) {
      SCOPED_TRACE("room for " + std::to_string(room));
      const string shown_room = std::to_string(room);
      ListAnswer expected{.array = ArrayFor(room)};
      std::copy_n(numbers.begin(), std::min<size_t>(room, numbers.size()), expected.array.begin());
      if (room < least) {
        expected.code = -9;
        expected.text = test::With(kTooSmall, "{room}", shown_room);
      } else if (numbers.empty()) {
        expected.code = -3;
        expected.count = 0;
        expected.text = test::With(kEmpty, "{room}", shown_room);
      } else {
        expected.count = static_cast<uint32_t>(numbers.size());
        expected.text = asked_text;
      }
      ExpectSlotFive(expected, room);
    }
  }
};

// ---- In no uplink slot --------------------------------------------------------------

// The first entry ends the walk, whatever its port.
const Row kOnlyFirst[] = {
    {"None", {}, {}},
    {"Elsewhere", {kElsewhere, kElsewhere}, {}},
    {"OtherFlags", {kFlagged, kOddFlag, kHighFlag}, {}},
    {"Link", {kLink}, {1}},
    {"Port", {kPort}, {1}},
    {"LinkFirst", {kElsewhere, kLink, kPort, kPort}, {2}},
    {"PortFirst", {kOddFlag, kFlagged, kPort, kLink, kLink}, {3}},
};

class OutsideUplinkSlots : public OtherCardTest {
 protected:
  void SetUp() override {
    OtherCardTest::SetUp();
    PutSlots(&FrameInformation::stUplinkSlot, {4, 6, 0x105});
  }
};

TEST_P(OutsideUplinkSlots, OtherCard) {
  PutCard(5, kOtherCard);
  ExpectListed(kNoUplinkSlot);
}

TEST_P(OutsideUplinkSlots, UplinkCard) {
  PutCard(5, kUplinkCard);
  ExpectListed(kNoUplinkSlot);
}

TEST_P(OutsideUplinkSlots, CorruptUplinkSlots) {
  PutCard(5, kUplinkCard);
  PutSlots(&FrameInformation::stUplinkSlot, {5});
  gstFrame.stUplinkSlot.ulSlotAmount = 101;
  ExpectListed(
      "\r\nddGetBoardSlotList err! ulSlotAmount = 101, MAX_SLOT_END = 100, ulSlotAmount = 101"
      "\r\nddIsUplinkBoardSlot->ddIsSlotInSlotList err! iResult = -25, ulSlotOut = 5");
}

INSTANTIATE_TEST_SUITE_P(All, OutsideUplinkSlots, testing::ValuesIn(kOnlyFirst),
                         testing::PrintToStringParamName());

// ---- An uplink card in an uplink slot -----------------------------------------------

const Row kAllButLinks[] = {
    {"None", {}, {}},
    {"Elsewhere", {kElsewhere, kElsewhere}, {}},
    {"OtherFlags", {kFlagged, kOddFlag, kHighFlag}, {}},
    {"JustLinks", {kLink, kLink}, {}, 1},
    {"Ports", {kPort, kPort, kElsewhere, kPort}, {1, 2, 4}},
    {"LinkFirst", {kLink, kFlagged, kPort, kPort}, {3, 4}},
    {"LinkBetween", {kPort, kLink, kOddFlag, kPort}, {1, 4}},
    // A link needs room, too.
    {"LinkLast", {kPort, kPort, kLink}, {1, 2}, 3},
    {"OtherFlagsLast", {kPort, kPort, kHighFlag, kFlagged, kElsewhere}, {1, 2}},
};

class UplinkCardInUplinkSlot : public OtherCardTest {};

TEST_P(UplinkCardInUplinkSlot, IsListed) {
  PutCard(5, kUplinkCard);
  ExpectListed();
}

INSTANTIATE_TEST_SUITE_P(All, UplinkCardInUplinkSlot, testing::ValuesIn(kAllButLinks),
                         testing::PrintToStringParamName());

// ---- Another card in an uplink slot -------------------------------------------------

const Row kFirstLink[] = {
    {"None", {}, {}},
    {"Elsewhere", {kElsewhere, kElsewhere}, {}},
    {"OtherFlags", {kOddFlag, kHighFlag}, {}},
    // A port needs room, too.
    {"JustPorts", {kPort, kPort}, {}, 1},
    {"LinkFirst", {kLink, kPort, kLink}, {1}},
    {"PortFirst", {kPort, kElsewhere, kOddFlag, kLink, kLink}, {4}},
};

class OtherCardInUplinkSlot : public OtherCardTest {};

TEST_P(OtherCardInUplinkSlot, IsListed) {
  PutCard(5, kOtherCard);
  ExpectListed();
}

INSTANTIATE_TEST_SUITE_P(All, OtherCardInUplinkSlot, testing::ValuesIn(kFirstLink),
                         testing::PrintToStringParamName());

// ---- No card ------------------------------------------------------------------------

struct NoCardRow {
  const char* name;
  int32_t answer;
  string text;
  friend std::ostream& operator<<(std::ostream& out, const NoCardRow& row) {
    return out << row.name;
  }
};

const NoCardRow kNoCards[] = {
    {"Failure", -1,
     "\r\nget_switch_logicportlist_from_slot err! get_config_card_type failed! ret = -1"},
    {"OtherFailure", -42,
     "\r\nget_switch_logicportlist_from_slot err! get_config_card_type failed! ret = -42"},
    {"LeastFailure", INT32_MIN,
     "\r\nget_switch_logicportlist_from_slot err! get_config_card_type failed! ret = -2147483648"},
    {"Zero", 0, "\r\nget_switch_logicportlist_from_slot err! get_config_card_type failed! ret = 0"},
};

class SlotWithoutCard : public test::BuildersTest, public testing::WithParamInterface<NoCardRow> {
 protected:
  void ExpectAnswerOfThePlatform(uint32_t room) {
    test::PutCard(5,
                  {.name = "", .type = GetParam().answer, .is_ethernet = true, .is_uplink = true});
    ExpectAnswer(
        {.code = GetParam().answer, .array = ArrayFor(room), .text = GetParam().text},
        [=](uint32_t* array, uint32_t* count) {
          return get_switch_logicportlist_from_slot(5, array, room, count);
        },
        Lines::kAll);
    EXPECT_THAT(FakePlatform::TakeAsked(), ElementsAre("slot 5", "slot 5"));
  }
};

TEST_P(SlotWithoutCard, ReturnsTheAnswerAsItIs) {
  PutSlotFive();
  PutLogicPorts({kPort, kFlagged, kLink});
  ExpectAnswerOfThePlatform(3);
}

TEST_P(SlotWithoutCard, BeforeAnEmptyMapAndALackOfRoom) {
  ExpectAnswerOfThePlatform(0);
}

TEST_P(SlotWithoutCard, BeforeACorruptCount) {
  gstFrame.ulSwitchChipLogicPortNum = 1281;
  ExpectAnswerOfThePlatform(3);
}

INSTANTIATE_TEST_SUITE_P(All, SlotWithoutCard, testing::ValuesIn(kNoCards),
                         testing::PrintToStringParamName());

}  // namespace
