// The type-2 logic port of every chip and physical port, and of every slot and port,
// against a plain computation.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/balance_port_lookups.h"
#include "catalog/frame/logic_port_maps.h"
#include "support/asking.h"
#include "support/type2_numbers.h"

namespace {

using std::string;
using test::BalancePort;
using test::BalancePortOf;
using test::ExpectNumber;
using test::FakePlatform;
using test::Key;
using test::kUntouched;

bool IsSlotPort(const BalancePort& entry, uint32_t slot, uint32_t port) {
  return entry.ucSlotOut == slot && entry.ucSlotPort == port;
}

bool IsChipPhyPort(const BalancePort& entry, uint32_t chip, uint32_t phy_port) {
  return entry.usChipPort == chip && entry.usPhyPort == phy_port;
}

// The number of the first loaded entry that has a number and fulfils this, or 0.
template <typename Wanted>
uint32_t PlainFirst(Wanted wanted) {
  for (uint32_t i = 0; i < 58 && i < gstFrame.ulType2SwitchChipLogicPortNum; ++i) {
    if (wanted(gstFrame.astType2SwitchChipLogicPort[i])) {
      return test::Type2NumberOf(i);
    }
  }
  return 0;
}

uint32_t PlainOfChipPhyPort(const Key& key, uint32_t) {
  return PlainFirst([=](const BalancePort& entry) {
    return IsChipPhyPort(entry, key.chip % 256, key.phy_port % 256);
  });
}

uint32_t PlainOfPhyPort(const Key& key, uint32_t own_chip) {
  return PlainFirst(
      [=](const BalancePort& entry) { return IsChipPhyPort(entry, own_chip, key.phy_port % 256); });
}

uint32_t PlainOfSlotPortChip(const Key& key, uint32_t) {
  return PlainFirst([=](const BalancePort& entry) {
    return IsSlotPort(entry, key.slot % 256, key.port % 256) && entry.usChipPort == key.chip % 256;
  });
}

uint32_t PlainOfSlotPort(const Key& key, uint32_t own_chip) {
  uint32_t count = 0;
  const uint32_t of_own_chip = PlainFirst([&](const BalancePort& entry) {
    return IsSlotPort(entry, key.slot, key.port) && entry.usChipPort == own_chip;
  });
  const uint32_t first =
      PlainFirst([&](const BalancePort& entry) { return IsSlotPort(entry, key.slot, key.port); });
  PlainFirst([&](const BalancePort& entry) {
    count += IsSlotPort(entry, key.slot, key.port);
    return false;
  });
  return count <= 1 ? first : of_own_chip;
}

struct Lookup {
  const char* name;
  test::BalanceLookup lookup;
  uint32_t (*plain)(const Key& key, uint32_t own_chip);
  string null_output;
  // The key of two of its numbers, and of the chip where that is a third.
  Key (*key)(uint32_t first, uint32_t second, uint32_t chip);
  friend std::ostream& operator<<(std::ostream& out, const Lookup& row) { return out << row.name; }
};

const Lookup kLookups[] = {
    {"ChipPhyPort", test::kOfChipPhyPort, PlainOfChipPhyPort,
     "\r\nget_balance_switch_logicport_from_chipno_phyport err! pulChipLogicPort = 0x0",
     [](uint32_t first, uint32_t second, uint32_t) {
       return Key{1, 2, first, second};
     }},
    {"PhyPort", test::kOfPhyPort, PlainOfPhyPort,
     "\r\nget_balance_switch_logicport_from_phyport err! pulChipLogicPort = 0x0",
     [](uint32_t, uint32_t second, uint32_t) {
       return Key{1, 2, 3, second};
     }},
    {"SlotPortChip", test::kOfSlotPortChip, PlainOfSlotPortChip,
     "\r\nget_balance_switch_logicport_from_slotport_chipno err! pulChipLogicPort = 0x0",
     [](uint32_t first, uint32_t second, uint32_t chip) {
       return Key{first, second, chip, 4};
     }},
    {"SlotPort", test::kOfSlotPort, PlainOfSlotPort,
     "\r\nget_balance_switch_logicport_from_slotport err! pulChipLogicPort = 0x0",
     [](uint32_t first, uint32_t second, uint32_t) {
       return Key{first, second, 3, 4};
     }},
};

class BalancePortLookups : public test::AskingTest, public testing::WithParamInterface<Lookup> {
 protected:
  void SetUp() override {
    AskingTest::SetUp();
    ddDebugPrint = 1;
  }
  void TearDown() override {
    EXPECT_EQ(console_.Text(), "");
    AskingTest::TearDown();
  }

  // Asks for all these keys as each main card; some must be found, some not.
  void ExpectAll(const std::vector<Key>& keys) {
    uint32_t found = 0;
    for (const auto [slot, chip] : {test::kOwnSlots[0], test::kOwnSlots[1]}) {
      FakePlatform::Get().own_slot = slot;
      for (const Key& key : keys) {
        const uint32_t number = GetParam().plain(key, chip);
        ASSERT_NO_FATAL_FAILURE(ExpectNumber(GetParam().lookup, key, number))
            << "own slot " << slot;
        found += number != 0;
      }
      FakePlatform::TakeAsked();
    }
    EXPECT_NE(found, 0u);
    EXPECT_NE(found, 2 * keys.size());
  }
};

Key KeyOf(const BalancePort& entry) {
  return {entry.ucSlotOut, entry.ucSlotPort, entry.usChipPort, entry.usPhyPort};
}

// Entries of which no two have the same slot and port, or chip and physical port: seven
// of chip 0, seven of chip 1, and so on.
std::vector<BalancePort> DifferentEntries() {
  std::vector<BalancePort> entries;
  for (uint32_t i = 0; i < 1280; ++i) {
    entries.push_back(BalancePortOf(1 + i % 200, i / 200, i / 7 % 2, i % 256));
  }
  return entries;
}

// Entries without number, and those behind the count, are not found.
TEST_P(BalancePortLookups, OfEachEntryAtAllCounts) {
  const std::vector<BalancePort> entries = DifferentEntries();
  std::vector<Key> keys;
  for (const BalancePort& entry : entries) {
    keys.push_back(KeyOf(entry));
  }
  test::PutBalancePorts(entries);
  for (const uint32_t count :
       {1u, 2u, 8u, 48u, 55u, 56u, 57u, 58u, 59u, 130u, 1280u, 1281u, 0x10000u, 0xffffffffu}) {
    SCOPED_TRACE(count);
    gstFrame.ulType2SwitchChipLogicPortNum = count;
    gstFrame.ulSwitchChipLogicPortNum = count < 58 ? 1281 : 0;
    ExpectAll(keys);
  }
}

TEST_P(BalancePortLookups, OfNoEntry) {
  test::PutBalancePorts({}, BalancePortOf(1, 1, 0, 1));
  ExpectNumber(GetParam().lookup, {1, 1, 0, 1}, 0);
}

// Even when an entry without number is the only one.
TEST_P(BalancePortLookups, OfEntriesWithoutNumber) {
  for (uint32_t place = 0; place < 1280; ++place) {
    test::PutBalancePorts(std::vector<BalancePort>(1280));
    gstFrame.astType2SwitchChipLogicPort[place] = BalancePortOf(1, 1, 0, 1);
    ASSERT_NO_FATAL_FAILURE(
        ExpectNumber(GetParam().lookup, {1, 1, 0, 1}, test::Type2NumberOf(place)))
        << place;
  }
}

// 29 entries and the same once more. Some slots and ports are served through chips 0
// and 1, the others through any chips.
void PutTwins() {
  std::vector<BalancePort> entries;
  for (uint32_t i = 0; i < 58; ++i) {
    const uint32_t twin = i % 29;
    const uint32_t chip = twin % 2 == 0 ? i / 29 : twin * 9 % 256;
    entries.push_back(BalancePortOf(twin * 37, twin * 91, chip, twin * 55 % 256));
  }
  test::PutBalancePorts(entries);
}

TEST_P(BalancePortLookups, OfAllPairs) {
  PutTwins();
  std::vector<Key> keys;
  for (uint32_t first = 0; first < 256; ++first) {
    for (uint32_t second = 0; second < 256; ++second) {
      for (const uint32_t chip : {0u, 1u, 9u}) {
        keys.push_back(GetParam().key(first, second, chip));
      }
    }
  }
  ExpectAll(keys);
}

TEST_P(BalancePortLookups, OfAllChipsOfEachEntry) {
  PutTwins();
  std::vector<Key> keys = {{255, 255, 255, 255}};
  for (uint32_t i = 0; i < 58; ++i) {
    Key key = KeyOf(gstFrame.astType2SwitchChipLogicPort[i]);
    for (key.chip = 0; key.chip < 600; ++key.chip) {
      keys.push_back(key);
    }
  }
  ExpectAll(keys);
}

// Keys that are those of an entry in fewer bits.
TEST_P(BalancePortLookups, OfNumbersBehind8Bits) {
  PutTwins();
  std::vector<Key> keys = {{255, 255, 255, 255}};
  for (uint32_t i = 0; i < 58; ++i) {
    const Key key = KeyOf(gstFrame.astType2SwitchChipLogicPort[i]);
    keys.push_back(key);
    for (const uint32_t more : {0x100u, 0x200u, 0x10000u, 0x80000000u, 0xffffff00u}) {
      for (uint32_t Key::*const field : {&Key::slot, &Key::port, &Key::chip, &Key::phy_port}) {
        keys.push_back(key);
        keys.back().*field += more;
      }
      keys.push_back({key.slot + more, key.port + more, key.chip + more, key.phy_port + more});
    }
  }
  ExpectAll(keys);
}

// Refused before anything is looked at and asked.
TEST_P(BalancePortLookups, NullOutput) {
  test::PutBalancePorts({BalancePortOf(1, 1, 0, 1), BalancePortOf(1, 1, 1, 1)});
  for (const uint32_t count : {0u, 2u, 1281u}) {
    gstFrame.ulType2SwitchChipLogicPortNum = count;
    AskTwice(GetParam().null_output, [&] {
      EXPECT_EQ(GetParam().lookup.ask({1, 1, 0, 1}, nullptr), -2);
      EXPECT_EQ(FakePlatform::TakeAsked(), std::vector<string>());
    });
  }
}

INSTANTIATE_TEST_SUITE_P(All, BalancePortLookups, testing::ValuesIn(kLookups),
                         testing::PrintToStringParamName());

}  // namespace
