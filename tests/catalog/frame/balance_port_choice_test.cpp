// Which type-2 logic port answers where several might, or none.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/balance_port_lookups.h"
#include "catalog/frame/logic_port_maps.h"
#include "support/asking.h"

namespace {

using std::string;
using test::BalancePort;
using test::BalancePortOf;
using test::FakePlatform;
using test::Key;
using test::kOfChipPhyPort;
using test::kOfPhyPort;
using test::kOfSlotPort;
using test::kOfSlotPortChip;

struct Case {
  const char* name;
  const test::BalanceLookup& lookup;
  std::vector<BalancePort> entries;
  Key key;
  uint32_t in_slot_9;  // the numbers that are found, 0 for none
  uint32_t elsewhere;
  std::vector<string> questions = {};  // to the platform
  friend std::ostream& operator<<(std::ostream& out, const Case& row) { return out << row.name; }
};

// `count` entries of zeros, and these behind them.
std::vector<BalancePort> Behind(size_t count, const std::vector<BalancePort>& entries) {
  std::vector<BalancePort> all(count);
  all.insert(all.end(), entries.begin(), entries.end());
  return all;
}

const std::vector<BalancePort> kSlot3Port1 = {BalancePortOf(3, 2, 0, 1), BalancePortOf(3, 1, 0, 2),
                                              BalancePortOf(4, 1, 1, 3), BalancePortOf(3, 1, 1, 4)};

const Case kCases[] = {
    // Slot and port: the own chip counts only where several entries serve the port.
    {"NoneServes", kOfSlotPort, kSlot3Port1, {3, 3, 0, 0}, 0, 0},
    {"OneServes", kOfSlotPort, kSlot3Port1, {3, 2, 0, 0}, 1, 1},
    {"OneServesThroughChip1", kOfSlotPort, kSlot3Port1, {4, 1, 0, 0}, 3, 3},
    {"OneServesThroughAnotherChip", kOfSlotPort, {BalancePortOf(3, 1, 7)}, {3, 1, 0, 0}, 1, 1},
    {"TwoServe", kOfSlotPort, kSlot3Port1, {3, 1, 0, 0}, 2, 4, {"own slot"}},
    {"TwoServeTheOtherWayRound",
     kOfSlotPort,
     {BalancePortOf(3, 1, 1), BalancePortOf(3, 1, 0)},
     {3, 1, 0, 0},
     2,
     1,
     {"own slot"}},
    {"TwoServeThroughChip0",
     kOfSlotPort,
     {BalancePortOf(1, 1, 0), BalancePortOf(3, 1, 0), BalancePortOf(3, 1, 0)},
     {3, 1, 0, 0},
     2,
     0,
     {"own slot"}},
    {"TwoServeThroughChip1",
     kOfSlotPort,
     {BalancePortOf(1, 1, 0), BalancePortOf(3, 1, 1), BalancePortOf(3, 1, 1)},
     {3, 1, 0, 0},
     0,
     2,
     {"own slot"}},
    {"TwoServeThroughOtherChips",
     kOfSlotPort,
     {BalancePortOf(3, 1, 256), BalancePortOf(3, 1, 257)},
     {3, 1, 0, 0},
     0,
     0,
     {"own slot"}},
    {"ThreeServe",
     kOfSlotPort,
     {BalancePortOf(3, 1, 2), BalancePortOf(3, 1, 1), BalancePortOf(3, 1, 0)},
     {3, 1, 0, 0},
     3,
     2,
     {"own slot"}},
    {"TheLastTwoServe",
     kOfSlotPort,
     Behind(56, {BalancePortOf(3, 1, 1), BalancePortOf(3, 1, 0)}),
     {3, 1, 0, 0},
     201,
     200,
     {"own slot"}},
    {"TheSecondHasNoNumber",
     kOfSlotPort,
     Behind(57, {BalancePortOf(3, 1, 1), BalancePortOf(3, 1, 0)}),
     {3, 1, 0, 0},
     201,
     201},
    {"NoneOfTwoHasANumber",
     kOfSlotPort,
     Behind(58, {BalancePortOf(3, 1, 1), BalancePortOf(3, 1, 0)}),
     {3, 1, 0, 0},
     0,
     0},
    {"SlotInFull", kOfSlotPort, kSlot3Port1, {0x103, 1, 0, 0}, 0, 0},
    {"PortInFull", kOfSlotPort, kSlot3Port1, {3, 0x101, 0, 0}, 0, 0},

    // Slot, port and chip.
    {"OnChip0", kOfSlotPortChip, kSlot3Port1, {3, 1, 0, 0}, 2, 2},
    {"OnChip1", kOfSlotPortChip, kSlot3Port1, {3, 1, 1, 0}, 4, 4},
    {"OnChip2", kOfSlotPortChip, kSlot3Port1, {3, 1, 2, 0}, 0, 0},
    {"LowBitsOfAllThree", kOfSlotPortChip, kSlot3Port1, {0x103, 0x10001, 0xffffff01, 0}, 4, 4},
    {"StoredChipInFull",
     kOfSlotPortChip,
     {BalancePortOf(3, 1, 257), BalancePortOf(3, 1, 1)},
     {3, 1, 257, 0},
     2,
     2},

    // Chip and physical port.
    {"FirstOfTwo",
     kOfChipPhyPort,
     {BalancePortOf(1, 1, 3, 4), BalancePortOf(2, 2, 5, 6), BalancePortOf(3, 3, 5, 6)},
     {0, 0, 5, 6},
     2,
     2},
    {"LowBitsOfBoth", kOfChipPhyPort, kSlot3Port1, {0, 0, 0x101, 0xffffff04}, 4, 4},
    {"StoredChipAndPhyPortInFull",
     kOfChipPhyPort,
     {BalancePortOf(1, 1, 0x101, 4), BalancePortOf(1, 1, 1, 0x104),
      BalancePortOf(1, 1, 0x101, 0x104)},
     {0, 0, 0x101, 0x104},
     0,
     0},

    // Physical port of the own chip.
    {"OfBothChips",
     kOfPhyPort,
     {BalancePortOf(1, 1, 2, 4), BalancePortOf(1, 1, 1, 4), BalancePortOf(1, 1, 0, 4)},
     {0, 0, 2, 4},
     3,
     2,
     {"own slot"}},
    {"OfTheOtherChip", kOfPhyPort, {BalancePortOf(1, 1, 1, 4)}, {0, 0, 0, 4}, 0, 1, {"own slot"}},
    {"LowBitsOfThePhyPort", kOfPhyPort, kSlot3Port1, {0, 0, 0, 0x102}, 2, 0, {"own slot"}},
};

class BalancePortCase : public test::AskingTest, public testing::WithParamInterface<Case> {};

TEST_P(BalancePortCase, OnEachMainCard) {
  test::PutBalancePorts(GetParam().entries);
  for (const auto [slot, chip] : test::kOwnSlots) {
    SCOPED_TRACE(slot);
    FakePlatform::Get().own_slot = slot;
    AskTwice("", [&, number = chip == 0 ? GetParam().in_slot_9 : GetParam().elsewhere] {
      test::ExpectNumber(GetParam().lookup, GetParam().key, number);
      EXPECT_EQ(FakePlatform::TakeAsked(), GetParam().questions);
    });
  }
}

INSTANTIATE_TEST_SUITE_P(All, BalancePortCase, testing::ValuesIn(kCases),
                         testing::PrintToStringParamName());

}  // namespace
