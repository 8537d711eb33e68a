// Lists of logic ports: those of a slot, of uplink cards, of all users.
#include <algorithm>

#include "catalog/frame/logic_port_list.h"
#include "common/card_kinds.h"
#include "common/codes.h"
#include "common/messages.h"

namespace sys_context {
namespace {

constexpr LogicPortList<PlainEntry> kOfSlotPort = {
    .name = "get_switch_logicportlist_from_slotport",
    .table = kPlainTable,
    .number_of = get_switch_chip_logicport_portno_from_index,
};
constexpr LogicPortList<PlainEntry> kOfSlot = {
    .name = "get_switch_logicportlist_from_slot",
    .table = kPlainTable,
    .number_of = get_switch_chip_logicport_portno_from_index,
};
constexpr LogicPortList<BalanceEntry> kBalanceOfSlot = {
    .name = "get_balance_switch_logicportlist_from_slot",
    .table = kBalanceTable,
    .number_of = get_balance_switch_logicport_portno_from_index,
};
// kept as is: its limit is lower than that of its relatives.
constexpr LogicPortList<BalanceEntry> kBalanceOfSlotPort = {
    .name = "get_balance_switch_logicportlist_from_slotport",
    .table = kBalanceTable,
    .number_of = get_balance_switch_logicport_portno_from_index,
    .limit = MAX_TYPEB_SWITCH_CHIP_LOGIC_PORT_NUM,
};
constexpr LogicPortList<BalanceEntry> kHigig = {
    .name = "get_higicport_balance_switch_logicportlist",
    .table = kBalanceTable,
    .number_of = get_balance_switch_logicport_portno_from_index,
    .empty_code = kNoHigigPort,
    .null_argument = "\r\n%s err! pulHigigPortList = 0x%x, pulChipPortCnt = 0x%x",
    .empty = "\r\n%s err! the system has no higig port! realCnt = 0.",
};
constexpr LogicPortList<PlainEntry> kUplinkOfSlot = {
    .name = "ddGetUplinkPortLogicPortListFromSlot",
    .table = kPlainTable,
    .number_of = get_switch_chip_logicport_portno_from_index,
};
constexpr LogicPortList<PlainEntry> kUplinkOnly = {
    .name = "ddGetUplinkLogicPortListOnly",
    .table = kPlainTable,
    .number_of = get_switch_chip_logicport_portno_from_index,
    .null_argument = kUplinkNullArgument,
    .too_small = kUplinkTooSmall,
};
constexpr LogicPortList<PlainEntry> kNonzeroPort = {
    .name = "ddGetNonzeroPortSwitchChipLogicPortList",
    .table = kPlainTable,
    .number_of = get_switch_chip_logicport_portno_from_index,
    .too_small = "\r\n%s err! ulArrayAmount = %d, ulChipLogicPortCount = %d",
};
// kept as is: its messages name ddGetNonzeroPortSwitchChipLogicPortList.
constexpr LogicPortList<PlainEntry> kAllUserPort = kNonzeroPort;
// kept as is: the entries get the numbers of ordinary logic ports.
constexpr LogicPortList<BalanceEntry> kBalanceUserPort = {
    .name = "get_balance_user_port_switch_logicportlist",
    .table = kBalanceTable,
    .number_of = get_switch_chip_logicport_portno_from_index,
    .limit = MAX_TYPEB_SWITCH_CHIP_LOGIC_PORT_NUM,
    .above_limit_code = kCorruptLogicPorts,
    .above_limit =
        "\r\n%s err! ulSwitchChipLogicPortNum = %d, MAX_TYPEB_SWITCH_CHIP_LOGIC_PORT_NUM = %d",
};

// ---- What the builders share -----------------------------------------------------

// Stores the number of the entry at `index`, if it has one.
template <typename Entry>
void StoreNumber(const LogicPortList<Entry>& list, uint32_t index, uint32_t& stored) {
  uint32_t number = 0;
  if (list.number_of(index, &number) == kOk) {
    stored = number;
  }
}

template <typename Entry>
int32_t Finish(const LogicPortList<Entry>& list, uint32_t room, uint32_t found, uint32_t* amount) {
  *amount = found;
  if (found == 0) {
    Report(Gate::kDebug, list.empty, list.name, room, found);
    return list.empty_code;
  }
  return kOk;
}

// Stores the numbers of the entries that fulfil `wanted`, until there is no room.
template <typename Entry, typename Wanted>
int32_t Collect(const LogicPortList<Entry>& list, uint32_t* numbers, uint32_t room,
                uint32_t* amount, Wanted wanted) {
  uint32_t found = 0;
  for (uint32_t i = 0; i < gstFrame.*list.table.count; ++i) {
    if (!wanted((gstFrame.*list.table.entries)[i])) {
      continue;
    }
    if (found == room) {
      return RefuseTooSmall(list, room, found);
    }
    StoreNumber(list, i, numbers[found++]);
  }
  return Finish(list, room, found, amount);
}

template <typename Entry, typename Wanted>
int32_t CheckAndCollect(const LogicPortList<Entry>& list, uint32_t* numbers, uint32_t room,
                        uint32_t* amount, Wanted wanted) {
  const int32_t code = Check(list, numbers, amount);
  return code != kOk ? code : Collect(list, numbers, room, amount, wanted);
}

template <typename Entry, typename Wanted>
uint32_t Count(const LogicPortList<Entry>& list, Wanted wanted) {
  const Entry* const entries = gstFrame.*list.table.entries;
  return static_cast<uint32_t>(
      std::count_if(entries, entries + gstFrame.*list.table.count, wanted));
}

// Stores them only if there is room for all.
template <typename Wanted>
int32_t CountAndCollect(const LogicPortList<PlainEntry>& list, uint32_t* numbers, uint32_t room,
                        uint32_t* amount, Wanted wanted) {
  if (const uint32_t found = Count(list, wanted); found > room) {
    return RefuseTooSmall(list, room, found);
  }
  return Collect(list, numbers, room, amount, wanted);
}

// ---- Single builders --------------------------------------------------------------

// The ports of a slot with a card that is no Ethernet card. In an uplink slot an uplink
// card has all ports but 0, and another card has the first port 0; any other slot has
// just its first port.
// kept as is: where one port is all there is, the rest is not looked at; a list that is
// full refuses a port that would be passed over, too; the slot is asked for at every
// entry, so ddIsUplinkBoardSlot prints as often.
int32_t CollectOfOtherCard(uint32_t slot, int32_t card_type, uint32_t* numbers, uint32_t room,
                           uint32_t* amount) {
  uint32_t found = 0;
  for (uint32_t i = 0; i < gstFrame.ulSwitchChipLogicPortNum; ++i) {
    const PlainEntry& entry = gstFrame.astSwitchChipLogicPort[i];
    if (entry.ucSlotOut != slot || entry.ucSlotFlag != kOtherFlag) {
      continue;
    }
    if (found == room) {
      return RefuseTooSmall(kOfSlot, room, found);
    }
    uint32_t is_true = 0;
    const bool in_uplink_slot = ddIsUplinkBoardSlot(slot, &is_true) == kOk;
    const bool is_uplink_card =
        in_uplink_slot && IsCardOfKind(card_type, caCheckCardTypeIsUplinkCard);
    const bool is_link = entry.ucSlotPort == 0;
    if (in_uplink_slot && is_link == is_uplink_card) {
      continue;
    }
    StoreNumber(kOfSlot, i, numbers[found++]);
    if (!is_uplink_card) {
      *amount = 1;
      return kOk;
    }
  }
  return Finish(kOfSlot, room, found, amount);
}

// A port without slot makes the whole list corrupt.
int32_t CheckNonzeroPortsHaveSlots() {
  for (uint32_t i = 0; i < gstFrame.ulSwitchChipLogicPortNum; ++i) {
    const PlainEntry& entry = gstFrame.astSwitchChipLogicPort[i];
    if (entry.ucSlotPort != 0 && entry.ucSlotOut == 0) {
      DebugConsole(
          "\r\nddGetNonzeroPortSwitchChipLogicPortList err! ulChipLogicPortIndex = %d, ulSlotOut = %d, ulSlotPort = %d",
          i, uint32_t{entry.ucSlotOut}, uint32_t{entry.ucSlotPort});
      return kBadSlot;
    }
  }
  return kOk;
}

bool IsUserPort(const BalanceEntry& entry) {
  uint32_t is_true = 0;
  const bool in_service_slot = ddIsServeBoardSlot(entry.ucSlotOut, &is_true) == kOk;
  const bool in_uplink_slot = ddIsUplinkBoardSlot(entry.ucSlotOut, &is_true) == kOk;
  return in_uplink_slot || (in_service_slot && entry.ucSlotPort == 0);
}

}  // namespace
}  // namespace sys_context

int32_t get_switch_logicportlist_from_slotport(uint32_t ulSlotOut, uint32_t ulSlotPort,
                                               uint32_t* pulChipLogicPort, uint32_t ulArrayAmount,
                                               uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  if (const int32_t code = Check(kOfSlotPort, pulChipLogicPort, pulChipPortCnt); code != kOk) {
    return code;
  }
  const bool is_ethernet_card = HasCardOfKind(ulSlotOut, caCheckCardTypeIsEthCard);
  return Collect(kOfSlotPort, pulChipLogicPort, ulArrayAmount, pulChipPortCnt,
                 [=](const PlainEntry& entry) {
                   return entry.ucSlotOut == ulSlotOut && entry.ucSlotPort == ulSlotPort &&
                          (entry.ucSlotFlag == kEthernetFlag) == is_ethernet_card;
                 });
}

int32_t get_switch_logicportlist_from_slot(uint32_t ulSlotOut, uint32_t* pulChipLogicPort,
                                           uint32_t ulArrayAmount, uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  if (const int32_t code = CheckArguments(kOfSlot, pulChipLogicPort, pulChipPortCnt); code != kOk) {
    return code;
  }
  const int32_t card_type = get_config_card_type(ulSlotOut);
  if (!IsCard(card_type)) {
    DebugConsole("\r\n%s err! get_config_card_type failed! ret = %d", kOfSlot.name, card_type);
    return card_type;
  }
  if (const int32_t code = CheckCount(kOfSlot); code != kOk) {
    return code;
  }
  if (!IsCardOfKind(card_type, caCheckCardTypeIsEthCard)) {
    return CollectOfOtherCard(ulSlotOut, card_type, pulChipLogicPort, ulArrayAmount,
                              pulChipPortCnt);
  }
  return Collect(kOfSlot, pulChipLogicPort, ulArrayAmount, pulChipPortCnt,
                 [=](const PlainEntry& entry) {
                   return entry.ucSlotOut == ulSlotOut && entry.ucSlotFlag == kEthernetFlag;
                 });
}

int32_t get_balance_switch_logicportlist_from_slot(uint32_t ulSlotOut, uint32_t* pulChipLogicPort,
                                                   uint32_t ulArrayAmount,
                                                   uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  return CheckAndCollect(kBalanceOfSlot, pulChipLogicPort, ulArrayAmount, pulChipPortCnt,
                         [=](const BalanceEntry& entry) { return entry.ucSlotOut == ulSlotOut; });
}

int32_t get_balance_switch_logicportlist_from_slotport(uint32_t ulSlotOut, uint32_t ulSlotPort,
                                                       uint32_t* pulChipLogicPort,
                                                       uint32_t ulArrayAmount,
                                                       uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  return CheckAndCollect(kBalanceOfSlotPort, pulChipLogicPort, ulArrayAmount, pulChipPortCnt,
                         [=](const BalanceEntry& entry) {
                           return entry.ucSlotOut == ulSlotOut && entry.ucSlotPort == ulSlotPort;
                         });
}

int32_t get_higicport_balance_switch_logicportlist(uint32_t* pulHigigPortList,
                                                   uint32_t ulArrayAmount,
                                                   uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  return CheckAndCollect(kHigig, pulHigigPortList, ulArrayAmount, pulChipPortCnt,
                         [](const BalanceEntry& entry) { return entry.ucHigigFlag == kHigigFlag; });
}

int32_t ddGetUplinkPortLogicPortListFromSlot(uint32_t ulSlotOut, uint32_t* pulChipLogicPort,
                                             uint32_t ulArrayAmount, uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  if (const int32_t code = Check(kUplinkOfSlot, pulChipLogicPort, pulChipPortCnt); code != kOk) {
    return code;
  }
  uint32_t is_true = 0;
  const bool is_uplink = ddIsUplinkBoardSlot(ulSlotOut, &is_true) == kOk &&
                         HasCardOfKind(ulSlotOut, caCheckCardTypeIsUplinkCard);
  return Collect(kUplinkOfSlot, pulChipLogicPort, ulArrayAmount, pulChipPortCnt,
                 [=](const PlainEntry& entry) {
                   return is_uplink && entry.ucSlotOut == ulSlotOut && entry.ucSlotPort != 0;
                 });
}

int32_t ddGetUplinkLogicPortListOnly(uint32_t* pulSlotArray, uint32_t ulArrayAmount,
                                     uint32_t* pulPortAmount) {
  using namespace sys_context;
  return CheckAndCollect(kUplinkOnly, pulSlotArray, ulArrayAmount, pulPortAmount,
                         [](const PlainEntry& entry) {
                           return entry.ucSlotPort != 0 && entry.ucSlotFlag != kEthernetFlag;
                         });
}

int32_t ddGetNonzeroPortSwitchChipLogicPortList(uint32_t* pulChipLogicPort, uint32_t ulArrayAmount,
                                                uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  if (const int32_t code = Check(kNonzeroPort, pulChipLogicPort, pulChipPortCnt); code != kOk) {
    return code;
  }
  if (const int32_t code = CheckNonzeroPortsHaveSlots(); code != kOk) {
    return code;
  }
  return CountAndCollect(kNonzeroPort, pulChipLogicPort, ulArrayAmount, pulChipPortCnt,
                         [](const PlainEntry& entry) { return entry.ucSlotPort != 0; });
}

int32_t ddGetAllUserPortSwitchChipLogicPortList(uint32_t* pulChipLogicPort, uint32_t ulArrayAmount,
                                                uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  if (const int32_t code = Check(kAllUserPort, pulChipLogicPort, pulChipPortCnt); code != kOk) {
    return code;
  }
  return CountAndCollect(
      kAllUserPort, pulChipLogicPort, ulArrayAmount, pulChipPortCnt, [](const PlainEntry& entry) {
        return entry.ucSlotOut != 0 || entry.ucSlotPort != 0 || entry.ucSlotFlag != 0;
      });
}

int32_t get_balance_user_port_switch_logicportlist(uint32_t* pulChipLogicPort,
                                                   uint32_t ulArrayAmount,
                                                   uint32_t* pulChipPortCnt) {
  using namespace sys_context;
  if (const int32_t code = Check(kBalanceUserPort, pulChipLogicPort, pulChipPortCnt); code != kOk) {
    return code;
  }
  if (const uint32_t found = Count(kBalanceUserPort, IsUserPort); found > ulArrayAmount) {
    *pulChipPortCnt = 0;
    // kept as is: the message names ddGetNonzeroPortSwitchChipLogicPortList.
    return RefuseTooSmall(kNonzeroPort, ulArrayAmount, found);
  }
  return Collect(kBalanceUserPort, pulChipLogicPort, ulArrayAmount, pulChipPortCnt, IsUserPort);
}
