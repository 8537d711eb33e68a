// Single type-2 ("balance") logic ports: what one serves, and which one serves.
#include <algorithm>

#include "catalog/frame/logic_port.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/platform.h"

namespace sys_context {
namespace {

// The entry of a logic port, whether it was loaded or not.
int32_t FindEntry(const char* name, uint32_t number, const BalanceEntry*& entry) {
  uint32_t index = 0;
  if (const int32_t code = get_balance_switch_logicport_index_from_portno(number, &index);
      code != kOk) {
    DebugConsole(
        "\r\n%s->get_balance_switch_logicport_index_from_portno err! ChipLogicPort = %d, iResult = %d",
        name, number, code);
    return code;
  }
  entry = &gstFrame.astType2SwitchChipLogicPort[index];
  return kOk;
}

int32_t CheckOutput(const char* name, const uint32_t* logic_port) {
  if (logic_port == nullptr) {
    DebugConsole("\r\n%s err! pulChipLogicPort = 0x%x", name, LowBits(logic_port));
    return kNullArgument;
  }
  return kOk;
}

// The chip of the main card on which this runs.
uint32_t OwnChip() {
  constexpr int32_t kSlotOfChipZero = 9;
  return get_core_card_self_cardnumber() == kSlotOfChipZero ? 0 : 1;
}

// How many of the loaded entries have numbers.
uint32_t NumberedEntries() {
  return std::min(gstFrame.ulType2SwitchChipLogicPortNum, kNumberedBalanceEntries);
}

// Gives the number of the first such entry that fulfils `wanted`; 0 without.
template <typename Wanted>
int32_t FindNumber(uint32_t* logic_port, int32_t not_found_code, Wanted wanted) {
  const BalanceEntry* const begin = gstFrame.astType2SwitchChipLogicPort;
  const BalanceEntry* const end = begin + NumberedEntries();
  const BalanceEntry* const found = std::find_if(begin, end, wanted);
  if (found == end) {
    *logic_port = 0;
    return not_found_code;
  }
  return get_balance_switch_logicport_portno_from_index(static_cast<uint32_t>(found - begin),
                                                        logic_port);
}

}  // namespace
}  // namespace sys_context

int32_t get_balance_slotport_from_switch_logicport(uint32_t ulChipLogicPort, uint32_t* pulSlotOut,
                                                   uint32_t* pulSlotPort) {
  using namespace sys_context;
  constexpr char kName[] = "get_balance_slotport_from_switch_logicport";
  if (pulSlotOut == nullptr || pulSlotPort == nullptr) {
    DebugConsole("\r\n%s err! pulSlotOut = 0x%x, pulSlotPort = 0x%x", kName, LowBits(pulSlotOut),
                 LowBits(pulSlotPort));
    return kNullArgument;
  }
  const BalanceEntry* entry = nullptr;
  if (const int32_t code = FindEntry(kName, ulChipLogicPort, entry); code != kOk) {
    return code;
  }
  *pulSlotOut = entry->ucSlotOut;
  *pulSlotPort = entry->ucSlotPort;
  return kOk;
}

int32_t get_balance_chipno_phyport_from_switch_logicport(uint32_t ulChipLogicPort,
                                                         uint32_t* pulChipPort,
                                                         uint32_t* pulPhyPort) {
  using namespace sys_context;
  constexpr char kName[] = "get_balance_chipno_phyport_from_switch_logicport";
  if (pulChipPort == nullptr && pulPhyPort == nullptr) {
    DebugConsole("\r\n%s err! pulChipPort = 0x%x, pulPhyPort = 0x%x", kName, LowBits(pulChipPort),
                 LowBits(pulPhyPort));
    return kNullArgument;
  }
  const BalanceEntry* entry = nullptr;
  if (const int32_t code = FindEntry(kName, ulChipLogicPort, entry); code != kOk) {
    return code;
  }
  if (pulChipPort != nullptr) {
    *pulChipPort = entry->usChipPort;
  }
  if (pulPhyPort != nullptr) {
    *pulPhyPort = entry->usPhyPort;
  }
  return kOk;
}

int32_t is_higigport_balance_switch_logicport(uint32_t ulChipLogicPort, uint32_t* pulIsTrue) {
  using namespace sys_context;
  constexpr char kName[] = "is_higigport_balance_switch_logicport";
  if (pulIsTrue == nullptr) {
    DebugConsole("\r\n%s err! pulIsTrue = 0x%x", kName, LowBits(pulIsTrue));
    return kNullArgument;
  }
  const BalanceEntry* entry = nullptr;
  if (const int32_t code = FindEntry(kName, ulChipLogicPort, entry); code != kOk) {
    return code;
  }
  *pulIsTrue = entry->ucHigigFlag == kHigigFlag ? 1 : 0;
  return kOk;
}

int32_t get_balance_switch_logicport_from_chipno_phyport(uint32_t ulChipPort, uint32_t ulPhyPort,
                                                         uint32_t* pulChipLogicPort) {
  using namespace sys_context;
  if (const int32_t code =
          CheckOutput("get_balance_switch_logicport_from_chipno_phyport", pulChipLogicPort);
      code != kOk) {
    return code;
  }
  return FindNumber(pulChipLogicPort, kNoSuchChipPort, [=](const BalanceEntry& entry) {
    return entry.usChipPort == static_cast<uint8_t>(ulChipPort) &&
           entry.usPhyPort == static_cast<uint8_t>(ulPhyPort);
  });
}

int32_t get_balance_switch_logicport_from_phyport(uint32_t ulPhyPort, uint32_t* pulChipLogicPort) {
  using namespace sys_context;
  if (const int32_t code =
          CheckOutput("get_balance_switch_logicport_from_phyport", pulChipLogicPort);
      code != kOk) {
    return code;
  }
  return get_balance_switch_logicport_from_chipno_phyport(OwnChip(), ulPhyPort, pulChipLogicPort);
}

int32_t get_balance_switch_logicport_from_slotport_chipno(uint32_t ulSlotOut, uint32_t ulSlotPort,
                                                          uint32_t ulChipPort,
                                                          uint32_t* pulChipLogicPort) {
  using namespace sys_context;
  if (const int32_t code =
          CheckOutput("get_balance_switch_logicport_from_slotport_chipno", pulChipLogicPort);
      code != kOk) {
    return code;
  }
  return FindNumber(pulChipLogicPort, kNoSuchEntry, [=](const BalanceEntry& entry) {
    return entry.ucSlotOut == static_cast<uint8_t>(ulSlotOut) &&
           entry.ucSlotPort == static_cast<uint8_t>(ulSlotPort) &&
           entry.usChipPort == static_cast<uint8_t>(ulChipPort);
  });
}

// kept as is: slot and port are compared in full here.
int32_t get_balance_switch_logicport_from_slotport(uint32_t ulSlotOut, uint32_t ulSlotPort,
                                                   uint32_t* pulChipLogicPort) {
  using namespace sys_context;
  if (const int32_t code =
          CheckOutput("get_balance_switch_logicport_from_slotport", pulChipLogicPort);
      code != kOk) {
    return code;
  }
  const auto serves = [=](const BalanceEntry& entry) {
    return entry.ucSlotOut == ulSlotOut && entry.ucSlotPort == ulSlotPort;
  };
  const auto* const begin = gstFrame.astType2SwitchChipLogicPort;
  if (std::count_if(begin, begin + NumberedEntries(), serves) <= 1) {
    return FindNumber(pulChipLogicPort, kNoSuchEntry, serves);
  }
  const uint32_t own_chip = OwnChip();
  return FindNumber(pulChipLogicPort, kNoSuchEntry, [=](const BalanceEntry& entry) {
    return serves(entry) && entry.usChipPort == own_chip;
  });
}
