/* Facts about the equipment. A card asks its hardware and its configuration; here is the
 * chassis of the large sample with a main card in slot 9 and one PON card in slot 1. */
#include "sys_context/platform.h"

enum { kMainCard = 101, kPonCard = 3101, kMainSlot = 9, kPonSlot = 1 };

int32_t get_system_device_type(void) {
  return 15; /* a KT3300-L; docs/definition-file.md has the other numbers */
}

int32_t get_core_card_detect_type(void) {
  return kMainCard;
}

int32_t get_core_card_self_cardnumber(void) {
  return kMainSlot;
}

int32_t get_config_card_type(uint32_t slot) {
  switch (slot) {
    case kMainSlot:
      return kMainCard;
    case kPonSlot:
      return kPonCard;
    default:
      return 0; /* an empty slot */
  }
}

/* 0 means: it is. ddInit asks about the types of all service boards of the file. */
static int32_t unless(int is) {
  return is ? 0 : -1;
}

int32_t caCheckCardTypeIsPonCard(int16_t cardType) {
  return unless(cardType == kPonCard);
}

int32_t caCheckCardTypeIsEthCard(int16_t cardType) {
  (void)cardType;
  return unless(0);
}

int32_t caCheckCardTypeIsServiceCard(int16_t cardType) {
  (void)cardType;
  return unless(0);
}

int32_t caCheckCardTypeIsUplinkCard(int16_t cardType) {
  (void)cardType;
  return unless(0);
}

int32_t get_valid_onu_type(uint32_t address1, uint32_t address2, uint32_t address3) {
  (void)address1;
  (void)address2;
  (void)address3;
  return -1; /* no ONU is connected */
}
