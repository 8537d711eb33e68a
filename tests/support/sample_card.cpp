// The card of the large sample: the platform's answers to what queries ask, as
// definitions/kt3300-l/equipment.toml has them. Constants, so that any thread may ask,
// and next to nothing of a measured query's time is theirs.
//
// For programs without the fake platform: tests/threads, and the benchmarks of the queries.
#include <iterator>

#include "sys_context/platform.h"

namespace {

constexpr int32_t kYes = 0;
constexpr int32_t kNo = -1;
constexpr int32_t kNone = -1;

// By slot; slots 8, 17 and 18 are empty.
constexpr int32_t kConfiguredCards[] = {kNone, 3101, 3101, 3102, 3103, 3104, 3106, 3201, kNone,
                                        101,   101,  3111, 598,  3112, 3113, 3114, 3202, kNone,
                                        kNone, 3301, 3302, 3401, 3401, 3421, 3411};
constexpr uint32_t kHcuSlot = 801;
constexpr int32_t kHcuCard = 624;

// The ONUs that are fitted.
struct FittedOnu {
  uint32_t slot;
  uint32_t port;
  uint32_t number;
  int32_t type;
};
constexpr FittedOnu kFittedOnus[] = {
    {1, 1, 1, 6001},  {1, 1, 2, 6012},  {1, 16, 1, 6106}, {5, 1, 1, 6306}, {6, 2, 1, 6203},
    {11, 1, 1, 6404}, {13, 4, 1, 6502}, {14, 8, 1, 6605}, {2, 3, 1, 9001},
};

int32_t Answer(bool yes) {
  return yes ? kYes : kNo;
}

bool IsPonCard(int16_t type) {
  return (type >= 3101 && type <= 3107) || (type >= 3111 && type <= 3114);
}

bool IsEthCard(int16_t type) {
  return type == 3201 || type == 3202;
}

}  // namespace

extern "C" {

int32_t get_system_device_type(void) {
  return 15;
}

int32_t get_config_card_type(uint32_t slot) {
  if (slot == kHcuSlot) {
    return kHcuCard;
  }
  return slot < std::size(kConfiguredCards) ? kConfiguredCards[slot] : kNone;
}

int32_t get_core_card_self_cardnumber(void) {
  return 9;
}

int32_t get_core_card_detect_type(void) {
  return 101;
}

int32_t caCheckCardTypeIsPonCard(int16_t cardType) {
  return Answer(IsPonCard(cardType));
}

int32_t caCheckCardTypeIsEthCard(int16_t cardType) {
  return Answer(IsEthCard(cardType));
}

int32_t caCheckCardTypeIsServiceCard(int16_t cardType) {
  return Answer(IsPonCard(cardType) || IsEthCard(cardType) || cardType == 598);
}

int32_t caCheckCardTypeIsUplinkCard(int16_t cardType) {
  return Answer(cardType >= 3301 && cardType <= 3303);
}

int32_t get_valid_onu_type(uint32_t slot, uint32_t port, uint32_t number) {
  for (const FittedOnu& onu : kFittedOnus) {
    if (onu.slot == slot && onu.port == port && onu.number == number) {
      return onu.type;
    }
  }
  return kNone;
}

}  // extern "C"
