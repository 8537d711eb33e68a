// The lookups of type-2 logic ports: of a chip and physical port, of a slot and port.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

#include "support/asking.h"
#include "sys_context/frame.h"

namespace test {

// What a lookup is asked for; each takes its part of it.
struct Key {
  uint32_t slot;
  uint32_t port;
  uint32_t chip;
  uint32_t phy_port;
};

struct BalanceLookup {
  int32_t (*ask)(const Key& key, uint32_t* output);
  int32_t not_found;
};

inline constexpr BalanceLookup kOfChipPhyPort = {
    [](const Key& key, uint32_t* output) {
      return get_balance_switch_logicport_from_chipno_phyport(key.chip, key.phy_port, output);
    },
    -23,
};
inline constexpr BalanceLookup kOfPhyPort = {
    [](const Key& key, uint32_t* output) {
      return get_balance_switch_logicport_from_phyport(key.phy_port, output);
    },
    -23,
};
inline constexpr BalanceLookup kOfSlotPortChip = {
    [](const Key& key, uint32_t* output) {
      return get_balance_switch_logicport_from_slotport_chipno(key.slot, key.port, key.chip,
                                                               output);
    },
    -1,
};
inline constexpr BalanceLookup kOfSlotPort = {
    [](const Key& key, uint32_t* output) {
      return get_balance_switch_logicport_from_slotport(key.slot, key.port, output);
    },
    -1,
};

// Slots of the main card, and the chip that goes with each.
struct OwnSlot {
  int32_t slot;
  uint32_t chip;
};
inline constexpr OwnSlot kOwnSlots[] = {{9, 0},   {0, 1},       {1, 1},          {8, 1},
                                        {10, 1},  {109, 1},     {-1, 1},         {-9, 1},
                                        {265, 1}, {0x10009, 1}, {-2147483639, 1}};

// Asks, and expects that number; 0 when there is none.
inline void ExpectNumber(const BalanceLookup& lookup, const Key& key, uint32_t number) {
  uint32_t output = kUntouched;
  ASSERT_EQ(lookup.ask(key, &output), number == 0 ? lookup.not_found : 0)
      << key.slot << "/" << key.port << " " << key.chip << "/" << key.phy_port;
  ASSERT_EQ(output, number) << key.slot << "/" << key.port << " " << key.chip << "/"
                            << key.phy_port;
}

}  // namespace test
