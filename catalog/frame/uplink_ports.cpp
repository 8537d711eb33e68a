// The list of the logic ports of all uplink and Ethernet cards.
#include <algorithm>
#include <iterator>

#include "catalog/frame/logic_port_list.h"
#include "common/card_kinds.h"
#include "common/codes.h"
#include "common/messages.h"

namespace sys_context {
namespace {

constexpr LogicPortList<PlainEntry> kUplink = {
    .name = "ddGetUplinkLogicPortList",
    .table = kPlainTable,
    .number_of = get_switch_chip_logicport_portno_from_index,
    .null_argument = kUplinkNullArgument,
    .above_limit = "\r\n%s: SwitchChipLogicPortNum(%d) is out of range(%d)!\r\n",
    .too_small = kUplinkTooSmall,
};

// Gathers them, slot by slot.
class UplinkPorts {
 public:
  void AddSlot(uint32_t slot) {
    const int32_t card_type = get_config_card_type(slot);
    if (!IsCard(card_type)) {
      return;
    }
    const bool is_uplink_card = IsCardOfKind(card_type, caCheckCardTypeIsUplinkCard);
    const bool is_ethernet_card = IsCardOfKind(card_type, caCheckCardTypeIsEthCard);
    if (is_uplink_card || is_ethernet_card) {
      AddPorts(slot, is_ethernet_card ? kEthernetFlag : kOtherFlag);
    }
  }

  const uint32_t* numbers() const { return numbers_; }
  uint32_t count() const { return count_; }

 private:
  void AddPorts(uint32_t slot, uint8_t flag) {
    for (uint32_t i = 0; i < gstFrame.ulSwitchChipLogicPortNum; ++i) {
      const PlainEntry& entry = gstFrame.astSwitchChipLogicPort[i];
      if (entry.ucSlotOut == slot && entry.ucSlotPort != 0 && entry.ucSlotFlag == flag &&
          count_ < std::size(numbers_)) {
        numbers_[count_++] = i + 1;
      }
    }
  }

  uint32_t numbers_[MAX_SWITCH_CHIP_LOGIC_PORT_NUM];
  uint32_t count_ = 0;
};

}  // namespace
}  // namespace sys_context

int32_t ddGetUplinkLogicPortList(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                 uint32_t* pulPortAmount) {
  using namespace sys_context;
  if (const int32_t code = Check(kUplink, pulSlotArray, pulPortAmount); code != kOk) {
    return code;
  }
  uint32_t slots[MAX_SLOT_END];
  uint32_t slot_count = 0;
  if (const int32_t code = ddGetRealSlotList(slots, MAX_SLOT_END, &slot_count);
      code < 0 || slot_count > MAX_SLOT_END) {
    // kept as is: names the list of service slots.
    DebugConsole("\r\n%s -> ddGetServeSlotList: ret = %d, serve_slot_cnt = %d!\r\n", kUplink.name,
                 code, slot_count);
    return kTooManySlots;
  }
  UplinkPorts ports;
  std::for_each_n(slots, slot_count, [&](uint32_t slot) { ports.AddSlot(slot); });
  if (ports.count() > ulArrayAmount) {
    return RefuseTooSmall(kUplink, ulArrayAmount, ports.count());
  }
  std::copy_n(ports.numbers(), ports.count(), pulSlotArray);
  *pulPortAmount = ports.count();
  return kOk;
}
