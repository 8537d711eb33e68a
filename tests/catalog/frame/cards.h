// The cards that are configured for slots, and their kinds.
#pragma once

#include <cstdint>
#include <ostream>

#include "support/fake_platform.h"

namespace test {

struct Card {
  const char* name;
  int32_t type;  // what the platform answers for the slot; a failure is not positive
  bool is_ethernet = false;
  bool is_service = false;
  bool is_uplink = false;
  friend std::ostream& operator<<(std::ostream& out, const Card& card) { return out << card.name; }
};

inline constexpr Card kEthernetCard = {.name = "Ethernet", .type = 3201, .is_ethernet = true};
inline constexpr Card kUplinkCard = {.name = "Uplink", .type = 3301, .is_uplink = true};
inline constexpr Card kOtherCard = {.name = "Other", .type = 3101};
inline constexpr Card kNoCard = {.name = "NoCard", .type = -1};

// Configures the card for the slot, and tells its kinds by the low 16 bits of its type.
// A slot without any is answered as `no_card` says.
inline void PutCard(uint32_t slot, const Card& card) {
  FakePlatform& platform = FakePlatform::Get();
  platform.configured_cards[slot] = card.type;
  const auto type = static_cast<int16_t>(card.type);
  if (card.is_ethernet) {
    platform.ethernet_cards.insert(type);
  }
  if (card.is_service) {
    platform.service_cards.insert(type);
  }
  if (card.is_uplink) {
    platform.uplink_cards.insert(type);
  }
}

}  // namespace test
