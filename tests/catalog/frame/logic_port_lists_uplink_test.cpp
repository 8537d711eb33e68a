// The logic ports of all uplink and Ethernet cards.
#include <functional>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"

namespace {

// Asked instead of ddGetRealSlotList, if there is one.
using GetSlots = std::function<int32_t(uint32_t* array, uint32_t room, uint32_t* amount)>;
GetSlots g_real_slots;

}  // namespace

extern "C" {

int32_t __real_ddGetRealSlotList(uint32_t* array, uint32_t room, uint32_t* amount);
int32_t __wrap_ddGetRealSlotList(uint32_t* array, uint32_t room, uint32_t* amount);

int32_t __wrap_ddGetRealSlotList(uint32_t* array, uint32_t room, uint32_t* amount) {
  return g_real_slots ? g_real_slots(array, room, amount)
                      : __real_ddGetRealSlotList(array, room, amount);
}

}  // extern "C"

namespace {

using std::string;
using std::vector;
using test::ArrayFor;
using test::Card;
using test::FakePlatform;
using test::kEthernetCard;
using test::kOtherCard;
using test::kUplinkCard;
using test::ListAnswer;
using test::LogicPort;
using test::LogicPortOf;
using test::PutLogicPorts;
using test::PutSlots;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Card kBoth = {.name = "Both", .type = 3401, .is_ethernet = true, .is_uplink = true};

class UplinkListTest : public test::LogicPortListsTest {
 protected:
  void SetUp() override {
    LogicPortListsTest::SetUp();
    g_real_slots = nullptr;
  }
  void TearDown() override {
    g_real_slots = nullptr;
    LogicPortListsTest::TearDown();
  }

  void Expect(const ListAnswer& expected, uint32_t room) {
    ExpectAnswer(
        expected,
        [=](uint32_t* array, uint32_t* count) {
          return ddGetUplinkLogicPortList(array, room, count);
        },
        Lines::kAll);
  }

  void ExpectListed(const vector<uint32_t>& numbers, uint32_t room = 1280) {
    ListAnswer expected{.array = ArrayFor(room), .count = static_cast<uint32_t>(numbers.size())};
    std::copy(numbers.begin(), numbers.end(), expected.array.begin());
    Expect(expected, room);
  }

  void ExpectTooSmall(uint32_t room, const string& text) {
    Expect({.code = -9, .array = ArrayFor(room), .text = text}, room);
  }

  static void PutRealSlots(const vector<uint32_t>& slots) {
    PutSlots(&FrameInformation::stRealSlot, slots);
  }
};

// ---- What is taken ------------------------------------------------------------------

TEST_F(UplinkListTest, SlotBySlot) {
  PutRealSlots({9, 2, 5});
  PutCard(9, kUplinkCard);
  PutCard(2, kEthernetCard);
  PutCard(5, kBoth);
  PutLogicPorts(
      {LogicPortOf(2, 1, 1), LogicPortOf(5, 1, 1), LogicPortOf(9, 1, 0), LogicPortOf(5, 2, 1),
       LogicPortOf(9, 255, 0), LogicPortOf(2, 9, 1), LogicPortOf(4, 1, 1), LogicPortOf(4, 1, 0)},
      LogicPortOf(9, 1, 0));
  ExpectListed({3, 5, 1, 6, 2, 4});
}

struct CardRow {
  Card card;
  vector<uint32_t> numbers;
  vector<string> asked;
  friend std::ostream& operator<<(std::ostream& out, const CardRow& row) { return out << row.card; }
};

const CardRow kCardRows[] = {
    {kUplinkCard, {2, 7}, {"slot 5", "uplink 3301", "ethernet 3301"}},
    {kEthernetCard, {3}, {"slot 5", "uplink 3201", "ethernet 3201"}},
    {kBoth, {3}, {"slot 5", "uplink 3401", "ethernet 3401"}},
    {kOtherCard, {}, {"slot 5", "uplink 3101", "ethernet 3101"}},
    {{.name = "First", .type = 1, .is_uplink = true}, {2, 7}, {"slot 5", "uplink 1", "ethernet 1"}},
    {{.name = "Zero", .type = 0, .is_ethernet = true, .is_uplink = true}, {}, {"slot 5"}},
    {{.name = "NoCard", .type = -1, .is_ethernet = true, .is_uplink = true}, {}, {"slot 5"}},
    {{.name = "OtherFailure", .type = -3301, .is_ethernet = true, .is_uplink = true},
     {},
     {"slot 5"}},
};

class UplinkListOfCard : public UplinkListTest, public testing::WithParamInterface<CardRow> {};

TEST_P(UplinkListOfCard, OfPortsWithItsFlag) {
  PutRealSlots({5});
  PutCard(5, GetParam().card);
  PutLogicPorts({LogicPortOf(5, 0, 0), LogicPortOf(5, 3, 0), LogicPortOf(5, 3, 1),
                 LogicPortOf(5, 0, 1), LogicPortOf(5, 3, 2), LogicPortOf(5, 3, 255),
                 LogicPortOf(5, 128, 0), LogicPortOf(6, 3, 0), LogicPortOf(0, 3, 1)},
                LogicPortOf(5, 3, 0));
  ExpectListed(GetParam().numbers);
  vector<string> asked_twice = GetParam().asked;
  asked_twice.insert(asked_twice.end(), GetParam().asked.begin(), GetParam().asked.end());
  EXPECT_EQ(FakePlatform::TakeAsked(), asked_twice);
}

INSTANTIATE_TEST_SUITE_P(All, UplinkListOfCard, testing::ValuesIn(kCardRows),
                         testing::PrintToStringParamName());

TEST_F(UplinkListTest, OfAMixOfCards) {
  PutRealSlots({1, 2, 3, 4});
  PutCard(1, kOtherCard);
  PutCard(2, kUplinkCard);
  PutCard(4, kEthernetCard);
  PutLogicPorts({LogicPortOf(1, 1, 0), LogicPortOf(4, 1, 1), LogicPortOf(3, 1, 0),
                 LogicPortOf(2, 1, 0), LogicPortOf(4, 1, 0), LogicPortOf(2, 1, 1)});
  ExpectListed({4, 2});
}

// All cards in all of three slots, against a second computation.
TEST_F(UplinkListTest, OfAnyCards) {
  const test::Builder& builder = test::BuilderOf("Uplink");
  test::PutGenerated({{0, 1, 5, 6, 255}, {0, 1, 128, 255}}, 200, 0);
  PutRealSlots({255, 1, 5});
  for (const Card& first : test::kCards) {
    for (const Card& second : test::kCards) {
      for (const Card& third : test::kCards) {
        PutCard(255, first);
        PutCard(1, second);
        PutCard(5, third);
        const ListAnswer expected = builder.expected(builder, {0, 0}, 200);
        const auto ask = [](uint32_t* array, uint32_t* count) {
          return ddGetUplinkLogicPortList(array, 200, count);
        };
        ASSERT_EQ(AnswerTo(ask, expected.array.size(), Lines::kAll), expected)
            << first << ", " << second << ", " << third;
      }
    }
  }
}

// Real slots need no place in the other classes, and are compared in full.
TEST_F(UplinkListTest, OfOddSlots) {
  PutRealSlots({0x105, 0, 801, 0xffffff05, 6});
  for (const uint32_t slot : {0x105u, 0u, 801u, 0xffffff05u, 6u}) {
    PutCard(slot, kUplinkCard);
  }
  PutLogicPorts({LogicPortOf(5, 3), LogicPortOf(0, 3), LogicPortOf(801, 3), LogicPortOf(6, 3)});
  ExpectListed({2, 4});
}

// ---- How many -----------------------------------------------------------------------

TEST_F(UplinkListTest, MayBeEmpty) {
  PutRealSlots({5});
  PutCard(5, kUplinkCard);
  PutLogicPorts({LogicPortOf(6, 3)});
  ExpectListed({}, 0);
  ExpectListed({}, 1);
}

TEST_F(UplinkListTest, MayBeEmptyWithoutSlots) {
  PutLogicPorts({LogicPortOf(6, 3)});
  ExpectListed({}, 0);
  EXPECT_THAT(FakePlatform::TakeAsked(), IsEmpty());
}

TEST_F(UplinkListTest, NothingCopiedWithoutRoomForAll) {
  PutRealSlots({5, 6});
  PutCard(5, kUplinkCard);
  PutCard(6, kUplinkCard);
  PutLogicPorts({LogicPortOf(5, 3), LogicPortOf(6, 3), LogicPortOf(5, 4)});
  ExpectListed({1, 3, 2}, 4);
  ExpectListed({1, 3, 2}, 3);
  ExpectTooSmall(
      2,
      "\r\nddGetUplinkLogicPortList: array space is not enough! ulArrayAmount = 2, ulUplinkLogicPortCount = 3");
  ExpectTooSmall(
      0,
      "\r\nddGetUplinkLogicPortList: array space is not enough! ulArrayAmount = 0, ulUplinkLogicPortCount = 3");
}

TEST_F(UplinkListTest, OfSlotsListedTwice) {
  PutRealSlots({5, 6, 5});
  PutCard(5, kUplinkCard);
  PutCard(6, kUplinkCard);
  PutLogicPorts({LogicPortOf(5, 3), LogicPortOf(6, 3), LogicPortOf(5, 4)});
  ExpectListed({1, 3, 2, 1, 3});
}

// 1281 hits and many more: what lies beyond 1280 numbers is dropped.
TEST_F(UplinkListTest, OfTooManyHits) {
  PutRealSlots({5, 6, 5});
  PutCard(5, kUplinkCard);
  PutCard(6, kUplinkCard);
  vector<LogicPort> ports(641, LogicPortOf(5, 3));
  PutLogicPorts(ports);
  vector<uint32_t> numbers = test::NumbersFrom(1, 641);
  const vector<uint32_t> again = test::NumbersFrom(1, 639);
  numbers.insert(numbers.end(), again.begin(), again.end());
  ExpectListed(numbers, 1280);
  ExpectListed(numbers, 1290);
  ExpectTooSmall(
      1279,
      "\r\nddGetUplinkLogicPortList: array space is not enough! ulArrayAmount = 1279, ulUplinkLogicPortCount = 1280");
  PutRealSlots(vector<uint32_t>(100, 5));
  ExpectListed(numbers, 1290);
}

// ---- Real slots that cannot be listed -----------------------------------------------

TEST_F(UplinkListTest, OfAHundredSlots) {
  PutRealSlots(test::NumbersFrom(1, 100));
  PutCard(100, kUplinkCard);
  PutLogicPorts({LogicPortOf(100, 3)});
  ExpectListed({1});
}

TEST_F(UplinkListTest, OfCorruptSlots) {
  PutLogicPorts({LogicPortOf(5, 3)});
  gstFrame.stRealSlot.ulSlotAmount = 101;
  Expect(
      {.code = -4,
       .array = ArrayFor(3),
       .text =
           "\r\nddGetBoardSlotList err! ulSlotAmount = 101, MAX_SLOT_END = 100, ulArrayAmount = 100"
           "\r\nddGetRealSlotList->ddGetBoardSlotList err! iResult = -25, ulArrayAmount = 100"
           "\r\nddGetUplinkLogicPortList -> ddGetServeSlotList: ret = -25, serve_slot_cnt = 0!\r\n"},
      3);
  EXPECT_THAT(FakePlatform::TakeAsked(), IsEmpty());
}

struct AnsweredRow {
  const char* name;
  int32_t code;
  uint32_t amount;
  string text;  // empty: it is listed
  friend std::ostream& operator<<(std::ostream& out, const AnsweredRow& row) {
    return out << row.name;
  }
};

const AnsweredRow kAnswered[] = {
    {"TooManyWithSuccess", 0, 101,
     "\r\nddGetUplinkLogicPortList -> ddGetServeSlotList: ret = 0, serve_slot_cnt = 101!\r\n"},
    {"TooManyBehind8Bits", 0, 0x101,
     "\r\nddGetUplinkLogicPortList -> ddGetServeSlotList: ret = 0, serve_slot_cnt = 257!\r\n"},
    {"NegativeAmount", 0, 0x80000001,
     "\r\nddGetUplinkLogicPortList -> ddGetServeSlotList: ret = 0, serve_slot_cnt = -2147483647!\r\n"},
    {"Failure", -1, 1,
     "\r\nddGetUplinkLogicPortList -> ddGetServeSlotList: ret = -1, serve_slot_cnt = 1!\r\n"},
    {"OtherFailure", INT32_MIN, 100,
     "\r\nddGetUplinkLogicPortList -> ddGetServeSlotList: ret = -2147483648, serve_slot_cnt = 100!\r\n"},
    {"FailureAndTooMany", -2, 101,
     "\r\nddGetUplinkLogicPortList -> ddGetServeSlotList: ret = -2, serve_slot_cnt = 101!\r\n"},
    {"PositiveCode", 1, 1, ""},
    {"AHundred", 0, 100, ""},
};

class UplinkListWithAnsweredSlots : public UplinkListTest,
                                    public testing::WithParamInterface<AnsweredRow> {};

TEST_P(UplinkListWithAnsweredSlots, IsRefusedOrListed) {
  PutCard(5, kUplinkCard);
  PutLogicPorts({LogicPortOf(6, 3), LogicPortOf(5, 3)});
  vector<uint32_t> rooms;
  g_real_slots = [&](uint32_t* array, uint32_t room, uint32_t* amount) {
    rooms.push_back(room);
    std::fill_n(array, 100, 7);
    array[0] = 5;
    *amount = GetParam().amount;
    return GetParam().code;
  };
  if (GetParam().text.empty()) {
    ExpectListed({2});
  } else {
    Expect({.code = -4, .array = ArrayFor(3), .text = GetParam().text}, 3);
    EXPECT_THAT(FakePlatform::TakeAsked(), IsEmpty());
  }
  EXPECT_THAT(rooms, ElementsAre(100, 100));
}

INSTANTIATE_TEST_SUITE_P(All, UplinkListWithAnsweredSlots, testing::ValuesIn(kAnswered),
                         testing::PrintToStringParamName());

}  // namespace
