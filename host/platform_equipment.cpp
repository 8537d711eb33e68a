// Equipment facts: device type, main card, configured cards, card kinds, fitted
// ONUs, and the addresses that uploads must not go to.
#include <arpa/inet.h>

#include <algorithm>
#include <vector>

#include "host/equipment.h"
#include "sys_context/platform.h"

namespace {

constexpr int32_t kFailure = -1;

template <typename Value>
bool Holds(const std::vector<Value>& list, Value value) {
  return std::find(list.begin(), list.end(), value) != list.end();
}

int32_t AnswerKind(const std::vector<int16_t>& kind, int16_t card_type) {
  return Holds(kind, card_type) ? 0 : kFailure;
}

}  // namespace

extern "C" {

int32_t get_system_device_type(void) {
  return sysctx::TheEquipment().device_type;
}

int32_t get_config_card_type(uint32_t slot) {
  const auto& cards = sysctx::TheEquipment().configured_cards;
  const auto card = cards.find(slot);
  return card == cards.end() ? kFailure : card->second;
}

int32_t get_core_card_self_cardnumber(void) {
  return sysctx::TheEquipment().main_card_slot;
}

int32_t get_core_card_detect_type(void) {
  return sysctx::TheEquipment().main_card_type;
}

int32_t caCheckCardTypeIsEthCard(int16_t cardType) {
  return AnswerKind(sysctx::TheEquipment().card_kinds.ethernet, cardType);
}

int32_t caCheckCardTypeIsPonCard(int16_t cardType) {
  return AnswerKind(sysctx::TheEquipment().card_kinds.pon, cardType);
}

int32_t caCheckCardTypeIsServiceCard(int16_t cardType) {
  return AnswerKind(sysctx::TheEquipment().card_kinds.service, cardType);
}

int32_t caCheckCardTypeIsUplinkCard(int16_t cardType) {
  return AnswerKind(sysctx::TheEquipment().card_kinds.uplink, cardType);
}

int32_t get_valid_onu_type(uint32_t first, uint32_t second, uint32_t third) {
  const auto& onus = sysctx::TheEquipment().fitted_onus;
  const auto onu = onus.find({first, second, third});
  return onu == onus.end() ? kFailure : onu->second;
}

int32_t is_manage_ipAddr(uint32_t address) {
  return Holds(sysctx::TheEquipment().management_addresses, address) ? 1 : 0;
}

int32_t diags_is_outbandip(const char* address) {
  in_addr parsed = {};
  if (address == nullptr || inet_pton(AF_INET, address, &parsed) != 1) {
    return 0;
  }
  return Holds(sysctx::TheEquipment().outband_addresses, parsed.s_addr) ? 1 : 0;
}

}  // extern "C"
