// What builders of lists of logic ports ask the platform, and in which order.
#include <algorithm>
#include <string>
#include <vector>

#include "catalog/frame/logic_port_list_builders.h"

namespace {

using std::string;
using std::vector;
using test::BalancePortOf;
using test::Card;
using test::kEthernetCard;
using test::kNoCard;
using test::kOtherCard;
using test::kUplinkCard;
using test::LogicPortOf;
using test::PutBalancePorts;
using test::PutLogicPorts;
using test::PutSlots;

constexpr Card kAbove16Bits = {.name = "Above16Bits", .type = 0x10ce5, .is_uplink = true};

enum class Slot { kService, kUplink };

struct AskedRow {
  const char* builder;
  Slot slot;
  Card card;
  vector<string> asked;  // kinds asked several times in a row count once
  friend std::ostream& operator<<(std::ostream& out, const AskedRow& row) {
    return out << row.builder << (row.slot == Slot::kUplink ? "_Uplink_" : "_Service_") << row.card;
  }
};

const AskedRow kAskedRows[] = {
    {"OfSlotPort", Slot::kService, kNoCard, {"slot 5"}},
    {"OfSlotPort", Slot::kService, kEthernetCard, {"slot 5", "ethernet 3201"}},
    {"OfSlotPort", Slot::kUplink, kUplinkCard, {"slot 5", "ethernet 3301"}},
    {"OfSlotPort", Slot::kUplink, kAbove16Bits, {"slot 5", "ethernet 3301"}},
    {"OfSlot", Slot::kUplink, kNoCard, {"slot 5"}},
    {"OfSlot", Slot::kService, kEthernetCard, {"slot 5", "ethernet 3201"}},
    {"OfSlot", Slot::kUplink, kEthernetCard, {"slot 5", "ethernet 3201"}},
    {"OfSlot", Slot::kService, kOtherCard, {"slot 5", "ethernet 3101"}},
    {"OfSlot", Slot::kUplink, kOtherCard, {"slot 5", "ethernet 3101", "uplink 3101"}},
    {"OfSlot", Slot::kUplink, kUplinkCard, {"slot 5", "ethernet 3301", "uplink 3301"}},
    {"OfSlot", Slot::kUplink, kAbove16Bits, {"slot 5", "ethernet 3301", "uplink 3301"}},
    {"BalanceOfSlot", Slot::kUplink, kUplinkCard, {}},
    {"BalanceOfSlotPort", Slot::kUplink, kUplinkCard, {}},
    {"Higig", Slot::kUplink, kUplinkCard, {}},
    {"UplinkOfSlot", Slot::kService, kUplinkCard, {}},
    {"UplinkOfSlot", Slot::kUplink, kNoCard, {"slot 5"}},
    {"UplinkOfSlot", Slot::kUplink, kUplinkCard, {"slot 5", "uplink 3301"}},
    {"UplinkOfSlot", Slot::kUplink, kAbove16Bits, {"slot 5", "uplink 3301"}},
    {"UplinkOnly", Slot::kUplink, kUplinkCard, {}},
    {"NonzeroPort", Slot::kUplink, kUplinkCard, {}},
    {"AllUserPort", Slot::kUplink, kUplinkCard, {}},
    {"BalanceUserPort", Slot::kUplink, kUplinkCard, {}},
    {"Uplink", Slot::kService, kNoCard, {"slot 5", "slot 8"}},
    {"Uplink", Slot::kService, kOtherCard, {"slot 5", "uplink 3101", "ethernet 3101", "slot 8"}},
    {"Uplink", Slot::kUplink, kAbove16Bits, {"slot 5", "uplink 3301", "ethernet 3301", "slot 8"}},
};

class AskedOfThePlatform : public test::BuildersTest,
                           public testing::WithParamInterface<AskedRow> {};

TEST_P(AskedOfThePlatform, InThatOrder) {
  PutSlots(&FrameInformation::stRealSlot, {5, 8});
  PutSlots(GetParam().slot == Slot::kUplink ? &FrameInformation::stUplinkSlot
                                            : &FrameInformation::stServeBoardSlot,
           {5});
  PutCard(5, GetParam().card);
  PutLogicPorts(vector(4, LogicPortOf(5, 3)));
  PutBalancePorts(vector(4, BalancePortOf(5, 0)));
  vector<uint32_t> array(4);
  uint32_t count = 0;
  test::BuilderOf(GetParam().builder).ask(5, 3, array.data(), 4, &count);
  vector<string> asked = test::FakePlatform::TakeAsked();
  const auto is_same_kind = [](const string& question, const string& next) {
    return question == next && question.rfind("slot", 0) != 0;
  };
  asked.erase(std::unique(asked.begin(), asked.end(), is_same_kind), asked.end());
  EXPECT_EQ(asked, GetParam().asked);
}

INSTANTIATE_TEST_SUITE_P(All, AskedOfThePlatform, testing::ValuesIn(kAskedRows),
                         testing::PrintToStringParamName());

}  // namespace
