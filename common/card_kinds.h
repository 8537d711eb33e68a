// What kind of card is configured for a slot.
#pragma once

#include <cstdint>

#include "sys_context/platform.h"

namespace sys_context {

// A question to the platform: caCheckCardTypeIsEthCard and its like.
using CardKind = int32_t (*)(int16_t card_type);

// The platform takes the type in 16 bits.
inline bool IsCardOfKind(int32_t card_type, CardKind kind) {
  constexpr int32_t kIsOfThatKind = 0;
  return kind(static_cast<int16_t>(card_type)) == kIsOfThatKind;
}

inline bool IsCard(int32_t card_type) {
  return card_type > 0;
}

// A slot without configured card has a card of no kind.
inline bool HasCardOfKind(uint32_t slot, CardKind kind) {
  const int32_t card_type = get_config_card_type(slot);
  return IsCard(card_type) && IsCardOfKind(card_type, kind);
}

}  // namespace sys_context
