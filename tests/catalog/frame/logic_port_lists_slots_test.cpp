// Lists of logic ports of every slot, port and kind of card, against a second
// computation.
#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"
#include "support/rows.h"

namespace {

using test::BalancePortOf;
using test::Builder;
using test::Card;
using test::FakePlatform;
using test::LogicPortOf;
using test::NumbersFrom;
using test::PutBalancePorts;
using test::PutLogicPorts;
using test::PutSlots;

// All that fit in a byte, and numbers that are others in fewer bits.
const std::vector<uint32_t> kAsked = [] {
  std::vector<uint32_t> asked = NumbersFrom(0, 256);
  asked.insert(asked.end(), {0x100, 0x101, 0x103, 0x105, 0x1ff, 0x305, 801, 0x10000, 0x10005,
                             0x80000000, 0x80000005, 0xffffff05, 0xffffffff});
  return asked;
}();

struct Map {
  const char* name;
  void (*put)();
  friend std::ostream& operator<<(std::ostream& out, const Map& map) { return out << map.name; }
};

const Map kMaps[] = {
    {"Empty",
     [] {
       PutLogicPorts({}, LogicPortOf(5, 3, 1));
       PutBalancePorts({}, BalancePortOf(5, 3, 0, 0, 1));
     }},
    {"Small",
     [] {
       PutLogicPorts({LogicPortOf(5, 0), LogicPortOf(5, 3), LogicPortOf(5, 3, 1), LogicPortOf(0, 0),
                      LogicPortOf(5, 3, 2), LogicPortOf(5, 0, 1), LogicPortOf(5, 3, 255)},
                     LogicPortOf(5, 3, 1));
       PutBalancePorts({BalancePortOf(5, 0), BalancePortOf(5, 3, 0, 1, 1), BalancePortOf(0, 3),
                        BalancePortOf(6, 0, 0, 0, 255)},
                       BalancePortOf(5, 3, 0, 0, 1));
     }},
    {"FewSlots",
     [] {
       test::PutGenerated({{0, 1, 2, 5, 6, 255}, {0, 1, 3, 128, 255}}, 700, 128);
     }},
    {"NoSlotZero",
     [] {
       test::PutGenerated({{1, 5, 6}, {0, 3}}, 60, 100);
     }},
    {"AllSlots",
     [] {
       test::PutGenerated({NumbersFrom(0, 256), {0, 0, 3, 7}}, 1280, 1280);
     }},
};

class SlotsTest : public test::BuildersTest {
 protected:
  void SetUp() override {
    BuildersTest::SetUp();
    PutSlots(&FrameInformation::stRealSlot, {5, 1, 6});
    PutSlots(&FrameInformation::stServeBoardSlot, {6, 255});
  }

  // The slot has that card, and is an uplink slot or is none.
  static void PutSlot(uint32_t slot, const Card& card, bool is_uplink_slot) {
    PutCard(slot, card);
    PutSlots(&FrameInformation::stUplinkSlot, is_uplink_slot
                                                  ? std::vector<uint32_t>{1, slot}
                                                  : std::vector<uint32_t>{slot ^ 1, 300});
  }

  // No more entries than the builder walks.
  static void PutMap(const Map& map, const Builder& builder) {
    map.put();
    gstFrame.*builder.entries = std::min(gstFrame.*builder.entries, builder.limit);
  }

  static std::vector<uint32_t> SlotsFor(const Builder& builder) {
    return builder.is_of_slot ? kAsked : std::vector<uint32_t>{0, 1, 5, 6, 255, 801};
  }
};

// ---- Every slot ---------------------------------------------------------------------

class ListOfAnySlot : public SlotsTest,
                      public testing::WithParamInterface<std::tuple<Builder, Map>> {};

TEST_P(ListOfAnySlot, WithAnyCard) {
  const auto& [builder, map] = GetParam();
  PutMap(map, builder);
  ddDebugPrint = 1;
  for (const Card& card : test::kCards) {
    for (const uint32_t slot : SlotsFor(builder)) {
      for (const bool is_uplink_slot : {false, true}) {
        FakePlatform::Get() = FakePlatform();
        FakePlatform::Get().not_of_that_kind = slot % 2 == 0 ? 1 : -1;
        PutSlot(slot, card, is_uplink_slot);
        const test::ListAnswer expected = builder.expected(builder, {slot, 3}, 1280);
        ASSERT_EQ(AnswerTo(Asking(builder, slot, 3, 1280), expected.array.size(), Lines::kOwn),
                  expected)
            << card << " in slot " << slot << ", uplink slot: " << is_uplink_slot;
      }
    }
  }
}

TEST_P(ListOfAnySlot, WithRoomForAny) {
  const auto& [builder, map] = GetParam();
  PutMap(map, builder);
  for (const Card& card : test::kCards) {
    for (const bool is_uplink_slot : {false, true}) {
      FakePlatform::Get() = FakePlatform();
      PutSlot(5, card, is_uplink_slot);
      for (const uint32_t room : {0u, 1u, 2u, 3u, 4u, 7u, 20u, 55u, 56u, 57u, 58u, 59u, 100u}) {
        SCOPED_TRACE(std::string(card.name) + ", room for " + std::to_string(room));
        ExpectComputed(builder, 5, 3, room);
        ExpectComputed(builder, 5, 0, room);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(All, ListOfAnySlot,
                         testing::Combine(testing::ValuesIn(test::Builders()),
                                          testing::ValuesIn(kMaps)),
                         test::KindAndRow());

// ---- Every port ---------------------------------------------------------------------

struct PortsRow {
  const char* builder;
  Card card;
  friend std::ostream& operator<<(std::ostream& out, const PortsRow& row) {
    return out << row.builder << row.card;
  }
};

class ListOfAnyPort : public SlotsTest, public testing::WithParamInterface<PortsRow> {};

TEST_P(ListOfAnyPort, OfAnySlot) {
  const Builder& builder = test::BuilderOf(GetParam().builder);
  test::PutGenerated({{0, 1, 3, 5, 128, 255}, {0, 1, 2, 3, 128, 255}}, 150, 100);
  for (const uint32_t slot : kAsked) {
    FakePlatform::Get() = FakePlatform();
    PutCard(slot, GetParam().card);
    for (const uint32_t port : kAsked) {
      test::ListAnswer expected = builder.expected(builder, {slot, port}, 150);
      expected.text.clear();
      test::ListAnswer answer{.array = test::ArrayFor(150)};
      answer.code = builder.ask(slot, port, answer.array.data(), 150, &answer.count);
      ASSERT_EQ(answer, expected) << "slot " << slot << ", port " << port;
    }
  }
  EXPECT_EQ(console_.Text(), "");
}

const PortsRow kPortsRows[] = {
    {"OfSlotPort", test::kNoCard},
    {"OfSlotPort", test::kEthernetCard},
    {"OfSlotPort", test::kUplinkCard},
    {"BalanceOfSlotPort", test::kNoCard},
    {"BalanceOfSlotPort", test::kEthernetCard},
};

INSTANTIATE_TEST_SUITE_P(All, ListOfAnyPort, testing::ValuesIn(kPortsRows),
                         testing::PrintToStringParamName());

}  // namespace
