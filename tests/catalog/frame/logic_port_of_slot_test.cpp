// The logic port that serves a slot and port.
#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/cards.h"
#include "catalog/frame/logic_port_maps.h"
#include "catalog/frame/slot_classes.h"

namespace {

using std::string;
using test::Card;
using test::ClassOf;
using test::FakePlatform;
using test::kEthernetCard;
using test::kOtherCard;
using test::kUntouched;
using test::LogicPort;
using test::LogicPortOf;
using test::NumbersFrom;
using test::PutCard;

class LogicPortOfSlot : public test::SlotClassesTest {
 protected:
  // Slots 1..100 are real, slots 101..200 virtual.
  void SetUp() override {
    SlotClassesTest::SetUp();
    PutValidSlots(1);
  }

  // The 200 slots from this one on.
  static void PutValidSlots(uint32_t first) {
    gstFrame.stRealSlot = ClassOf({"Real", NumbersFrom(first, 100)});
    gstFrame.stVirtualSlot = ClassOf({"Virtual", NumbersFrom(first + 100, 100)});
  }

  // `number` is 0 when there is no such logic port.
  void Expect(uint32_t slot, uint32_t port, uint32_t number, const std::vector<string>& questions) {
    AskTwice("", [&] {
      uint32_t output = kUntouched;
      EXPECT_EQ(ddGetSwitchChipLogicPortFromSlotPort(slot, port, &output), number == 0 ? -1 : 0);
      EXPECT_EQ(output, number);
      EXPECT_EQ(FakePlatform::TakeAsked(), questions);
    });
  }

  void ExpectRefused(uint32_t slot, int32_t code, const string& text) {
    AskTwice(text, [&] {
      uint32_t output = kUntouched;
      EXPECT_EQ(ddGetSwitchChipLogicPortFromSlotPort(slot, 1, &output), code);
      EXPECT_EQ(output, kUntouched);
      EXPECT_EQ(FakePlatform::TakeAsked(), std::vector<string>());
    });
  }
};

// ---- Which of several: the direction of the search --------------------------------------

struct CardRow {
  const char* name;
  Card card;                      // of slot 7
  std::vector<string> questions;  // about it
  int32_t not_of_that_kind = 1;   // what the platform answers about other cards
  friend std::ostream& operator<<(std::ostream& out, const CardRow& row) { return out << row.name; }
};

const CardRow kCards[] = {
    {"Ethernet", kEthernetCard, {"slot 7", "ethernet 3201"}},
    {"Uplink", test::kUplinkCard, {"slot 7", "ethernet 3301"}},
    {"Other", kOtherCard, {"slot 7", "ethernet 3101"}},
    {"OtherWithNegativeAnswer", kOtherCard, {"slot 7", "ethernet 3101"}, -1},
    {"OtherWithAnswerBehind8Bits", kOtherCard, {"slot 7", "ethernet 3101"}, 0x100},
    {"OtherWithAnswerBehind16Bits", kOtherCard, {"slot 7", "ethernet 3101"}, 0x10000},
    {"LowestCard", {"", 1, true}, {"slot 7", "ethernet 1"}},
    {"HighestCard", {"", 32767, true}, {"slot 7", "ethernet 32767"}},
    {"NoCard", test::kNoCard, {"slot 7"}, 0},
    {"LowestFailure", {"", -2147483647 - 1}, {"slot 7"}, 0},
    {"CardZero", {"", 0}, {"slot 7"}, 0},
};

class LogicPortOfCard : public LogicPortOfSlot, public testing::WithParamInterface<CardRow> {
 protected:
  void SetUp() override {
    LogicPortOfSlot::SetUp();
    PutCard(7, GetParam().card);
    FakePlatform::Get().not_of_that_kind = GetParam().not_of_that_kind;
  }
};

// Whatever the flags of the entries say.
TEST_P(LogicPortOfCard, OfSeveralLogicPorts) {
  for (const uint32_t flag : {0u, 1u, 2u}) {
    test::PutLogicPorts({LogicPortOf(7, 3, 1), LogicPortOf(7, 2, flag), LogicPortOf(8, 2, 1),
                         LogicPortOf(7, 2, 1 - flag), LogicPortOf(7, 3, 0), LogicPortOf(7, 2, flag),
                         LogicPortOf(6, 2, 0)},
                        LogicPortOf(7, 2, flag));
    Expect(7, 2, GetParam().card.is_ethernet ? 6 : 2, GetParam().questions);
    Expect(7, 3, GetParam().card.is_ethernet ? 5 : 1, GetParam().questions);
    Expect(7, 4, 0, GetParam().questions);
  }
}

TEST_P(LogicPortOfCard, OfAllEntriesAtAllCounts) {
  test::PutLogicPorts({}, LogicPortOf(7, 2));
  for (const uint32_t count : {0u, 1u, 2u, 48u, 1279u, 1280u}) {
    SCOPED_TRACE(count);
    gstFrame.ulSwitchChipLogicPortNum = count;
    Expect(7, 2, GetParam().card.is_ethernet || count == 0 ? count : 1, GetParam().questions);
  }
}

TEST_P(LogicPortOfCard, OfEachEntryAlone) {
  for (uint32_t number = 1; number <= 1280; ++number) {
    SCOPED_TRACE(number);
    test::PutLogicPorts(std::vector<LogicPort>(1280, LogicPortOf(7, 1)));
    gstFrame.astSwitchChipLogicPort[number - 1] = LogicPortOf(7, 2);
    Expect(7, 2, number, GetParam().questions);
  }
}

INSTANTIATE_TEST_SUITE_P(All, LogicPortOfCard, testing::ValuesIn(kCards),
                         testing::PrintToStringParamName());

// The card of the asked slot counts, not those of other slots.
TEST_F(LogicPortOfSlot, CardsOfOtherSlots) {
  test::PutLogicPorts({LogicPortOf(7, 2), LogicPortOf(8, 2), LogicPortOf(8, 2), LogicPortOf(7, 2)});
  PutCard(7, kOtherCard);
  PutCard(8, kEthernetCard);
  PutCard(2, kEthernetCard);
  Expect(7, 2, 1, {"slot 7", "ethernet 3101"});
  Expect(8, 2, 3, {"slot 8", "ethernet 3201"});
}

// ---- Every slot and port ----------------------------------------------------------------

// 500 different slots and ports, which come round two or three times in a full map.
LogicPort EntryOf(uint32_t i) {
  const uint32_t place = i % 500;
  return LogicPortOf(place * 37 % 256, place * 91 + place / 256, i % 3);
}

// The first and the last logic port of each slot and port; 0 where there is none.
struct PlainTable {
  std::array<std::array<uint32_t, 256>, 256> first = {};
  std::array<std::array<uint32_t, 256>, 256> last = {};
};

PlainTable TableOf(const std::vector<LogicPort>& ports) {
  PlainTable table;
  for (uint32_t i = 0; i < ports.size(); ++i) {
    uint32_t& first = table.first[ports[i].ucSlotOut][ports[i].ucSlotPort];
    first = first == 0 ? i + 1 : first;
    table.last[ports[i].ucSlotOut][ports[i].ucSlotPort] = i + 1;
  }
  return table;
}

class EverySlotAndPort : public LogicPortOfSlot {
 protected:
  void SetUp() override {
    LogicPortOfSlot::SetUp();
    std::vector<LogicPort> ports;
    for (uint32_t i = 0; i < 1280; ++i) {
      ports.push_back(EntryOf(i));
    }
    test::PutLogicPorts(ports);
    table_ = TableOf(ports);
    ddDebugPrint = 1;
  }

  // Asks for all ports of a slot, whose entries are those of `stored_slot`.
  void AskForPorts(uint32_t slot, uint32_t stored_slot, bool is_ethernet) {
    PutCard(slot, is_ethernet ? kEthernetCard : kOtherCard);
    for (uint32_t port = 0; port < 256; ++port) {
      const uint32_t number = (is_ethernet ? table_.last : table_.first)[stored_slot][port];
      uint32_t output = kUntouched;
      ASSERT_EQ(ddGetSwitchChipLogicPortFromSlotPort(slot, port, &output), number == 0 ? -1 : 0)
          << slot << "/" << port;
      ASSERT_EQ(output, number) << slot << "/" << port;
      found_ += number != 0;
    }
    FakePlatform::TakeAsked();
  }

  PlainTable table_;
  uint32_t found_ = 0;
};

TEST_F(EverySlotAndPort, OfAFullMap) {
  for (const bool is_ethernet : {false, true}) {
    PutValidSlots(1);
    for (uint32_t slot = 1; slot <= 200; ++slot) {
      AskForPorts(slot, slot, is_ethernet);
    }
    PutValidSlots(56);
    for (uint32_t slot = 201; slot <= 255; ++slot) {
      AskForPorts(slot, slot, is_ethernet);
    }
  }
  EXPECT_EQ(console_.Text(), "");
  EXPECT_EQ(found_, 2 * 498u);  // all but the two of slot 0
}

// Slots are compared by their low 8 bits, once they are valid.
TEST_F(EverySlotAndPort, OfSlotsBehind8Bits) {
  for (const uint32_t first : {0x100u, 0x10000u, 0xffffff00u}) {
    PutValidSlots(first);
    for (uint32_t slot = 0; slot < 200; ++slot) {
      AskForPorts(first + slot, slot, slot % 2 == 1);
    }
  }
  EXPECT_EQ(console_.Text(), "");
}

// Ports are compared in full.
TEST_F(EverySlotAndPort, OfPortsBehind8Bits) {
  for (uint32_t slot = 1; slot <= 200; ++slot) {
    for (uint32_t port = 0; port < 256; ++port) {
      for (const uint32_t more : {0x100u, 0x10000u, 0x80000000u, 0xffffff00u}) {
        if (table_.first[slot][port] != 0) {
          uint32_t output = kUntouched;
          ASSERT_EQ(ddGetSwitchChipLogicPortFromSlotPort(slot, more + port, &output), -1);
          ASSERT_EQ(output, 0u);
        }
      }
    }
  }
  EXPECT_EQ(console_.Text(), "");
}

// The platform is asked for the slot as it is.
TEST_F(LogicPortOfSlot, CardOfASlotBehind8Bits) {
  gstFrame.stRealSlot = ClassOf({"Real", {33, 801}});
  test::PutLogicPorts({LogicPortOf(33, 2), LogicPortOf(33, 2)});
  PutCard(33, kEthernetCard);
  PutCard(801, kOtherCard);
  Expect(801, 2, 1, {"slot 801", "ethernet 3101"});
  Expect(33, 2, 2, {"slot 33", "ethernet 3201"});
}

// ---- What is refused --------------------------------------------------------------------

TEST_F(LogicPortOfSlot, SlotZero) {
  test::PutLogicPorts({LogicPortOf(0, 1)});
  ExpectRefused(0, -3,
                "\r\nddIsVirtualSlot err! ulSlotOut = 0"
                "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSlotOut = 0x0");
}

// Slot 0x101 has the low bits of a valid one.
TEST_F(LogicPortOfSlot, SlotsThatAreNotValid) {
  struct Row {
    uint32_t slot;
    string text;
  };
  const Row kRows[] = {
      {201,
       "\r\nddddIsValidSlot->ddIsSlotInSlotList err!             iResult1 = -4, iResult2 = -4, ulSlotOut = 201"
       "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSlotOut = 0xc9"},
      {0x101,
       "\r\nddddIsValidSlot->ddIsSlotInSlotList err!             iResult1 = -4, iResult2 = -4, ulSlotOut = 257"
       "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSlotOut = 0x101"},
      {0x10001,
       "\r\nddddIsValidSlot->ddIsSlotInSlotList err!             iResult1 = -4, iResult2 = -4, ulSlotOut = 65537"
       "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSlotOut = 0x10001"},
      {0xffffffff,
       "\r\nddddIsValidSlot->ddIsSlotInSlotList err!             iResult1 = -4, iResult2 = -4, ulSlotOut = -1"
       "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSlotOut = 0xffffffff"},
  };
  for (const Row& row : kRows) {
    test::PutLogicPorts({LogicPortOf(row.slot, 1)});
    ExpectRefused(row.slot, -3, row.text);
  }
}

TEST_F(LogicPortOfSlot, CorruptSlots) {
  test::PutLogicPorts({LogicPortOf(1, 1)});
  gstFrame.stRealSlot.ulSlotAmount = 101;
  gstFrame.stVirtualSlot.ulSlotAmount = 0;
  ExpectRefused(
      1, -3,
      "\r\nddGetBoardSlotList err! ulSlotAmount = 101, MAX_SLOT_END = 100, ulSlotAmount = 101"
      "\r\nddddIsValidSlot->ddIsSlotInSlotList err!             iResult1 = -25, iResult2 = -4, ulSlotOut = 1"
      "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSlotOut = 0x1");
}

// Slots of the other classes alone are not valid.
TEST_F(LogicPortOfSlot, SlotsOfOtherClasses) {
  PutDifferentClasses();
  for (const test::SlotClass slots : test::kSlotClasses) {
    const uint32_t slot = (gstFrame.*slots).ulSlotStart;
    const bool counts =
        slots == &FrameInformation::stRealSlot || slots == &FrameInformation::stVirtualSlot;
    test::PutLogicPorts({LogicPortOf(slot, 1)});
    uint32_t output = kUntouched;
    EXPECT_EQ(ddGetSwitchChipLogicPortFromSlotPort(slot, 1, &output), counts ? 0 : -3);
    EXPECT_EQ(output, counts ? 1u : kUntouched);
  }
}

TEST_F(LogicPortOfSlot, CorruptCount) {
  struct Row {
    uint32_t count;
    string text;
  };
  const Row kRows[] = {
      {1281, "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSwitchChipLogicPortNum = 0x501"},
      {0x10030, "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSwitchChipLogicPortNum = 0x10030"},
      {0xffffffff,
       "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSwitchChipLogicPortNum = 0xffffffff"},
  };
  PutCard(1, kEthernetCard);
  test::PutLogicPorts({}, LogicPortOf(1, 1));
  for (const Row& row : kRows) {
    gstFrame.ulSwitchChipLogicPortNum = row.count;
    ExpectRefused(1, -22, row.text);
  }
}

// The slot is looked at before the count.
TEST_F(LogicPortOfSlot, BadSlotAndCorruptCount) {
  gstFrame.ulSwitchChipLogicPortNum = 1281;
  ExpectRefused(0, -3,
                "\r\nddIsVirtualSlot err! ulSlotOut = 0"
                "\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSlotOut = 0x0");
}

// Refused before anything is looked at.
TEST_F(LogicPortOfSlot, NullOutput) {
  test::PutLogicPorts({LogicPortOf(1, 1)});
  for (const uint32_t count : {0u, 1u, 1281u}) {
    gstFrame.ulSwitchChipLogicPortNum = count;
    for (const uint32_t slot : {0u, 1u, 201u}) {
      AskTwice("\r\nddGetSwitchChipLogicPortFromSlotPort err! pulChipLogicPort = 0x0", [=] {
        EXPECT_EQ(ddGetSwitchChipLogicPortFromSlotPort(slot, 1, nullptr), -2);
        EXPECT_EQ(FakePlatform::TakeAsked(), std::vector<string>());
      });
    }
  }
}

}  // namespace
