// Single logic ports: what one serves, and which one serves a slot and port.
#include <algorithm>
#include <iterator>

#include "catalog/frame/logic_port.h"
#include "common/card_kinds.h"
#include "common/codes.h"
#include "common/messages.h"

namespace sys_context {
namespace {

// The entry of a logic port; null for unknown numbers and when the count is corrupt.
// kept as is: ddGetObjectInfoFromSwitchChipLogicPort shares the message.
const PlainEntry* FindEntry(uint32_t number) {
  const uint32_t count = gstFrame.ulSwitchChipLogicPortNum;
  if (count > MAX_SWITCH_CHIP_LOGIC_PORT_NUM || number == 0 || number > count) {
    DebugConsole("\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = %d", number);
    return nullptr;
  }
  return &gstFrame.astSwitchChipLogicPort[number - 1];
}

// The last entry that fulfils `wanted`, or `end`.
template <typename Wanted>
const PlainEntry* FindLast(const PlainEntry* begin, const PlainEntry* end, Wanted wanted) {
  const auto reverse_end = std::make_reverse_iterator(begin);
  const auto found = std::find_if(std::make_reverse_iterator(end), reverse_end, wanted);
  return found == reverse_end ? end : found.base() - 1;
}

}  // namespace
}  // namespace sys_context

int32_t ddGetSlotPortFromSwitchChipLogicPort(uint32_t ulChipLogicPort, uint32_t* pulSlotOut,
                                             uint32_t* pulSlotPort) {
  using namespace sys_context;
  if (pulSlotOut == nullptr || pulSlotPort == nullptr) {
    // kept as is: names another function.
    DebugConsole("\r\nddCanBoardPlugInSlot err! pulSlotOut = 0x%x, pulSlotPort = 0x%x",
                 LowBits(pulSlotOut), LowBits(pulSlotPort));
    return kNullArgument;
  }
  const PlainEntry* const entry = FindEntry(ulChipLogicPort);
  if (entry == nullptr) {
    return kNoSuchLogicPort;
  }
  if (entry->ucSlotPort > MAX_OLT_PORT_NUM_PER_BOARD) {
    DebugConsole(
        "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = %d, ulSlotOut = %d, ulSlotStart = %d, ulSlotEnd = %d, ulSlotPort = %d",
        ulChipLogicPort, uint32_t{entry->ucSlotOut}, gstFrame.stRealSlot.ulSlotStart,
        gstFrame.stRealSlot.ulSlotEnd, uint32_t{entry->ucSlotPort});
    return kBadSlotPort;
  }
  *pulSlotOut = entry->ucSlotOut;
  *pulSlotPort = entry->ucSlotPort;
  return kOk;
}

int32_t ddGetObjectInfoFromSwitchChipLogicPort(uint32_t ulChipLogicPort, uint32_t* pulSlotOut,
                                               uint32_t* pulSlotPort, uint32_t* pulSlotFlag) {
  using namespace sys_context;
  constexpr char kName[] = "ddGetObjectInfoFromSwitchChipLogicPort";
  if (pulSlotOut == nullptr || pulSlotPort == nullptr || pulSlotFlag == nullptr) {
    DebugConsole("\r\n%s: pulSlotOut = 0x%x, pulSlotPort = 0x%x, pulSlotFlag = 0x%x,", kName,
                 LowBits(pulSlotOut), LowBits(pulSlotPort), LowBits(pulSlotFlag));
    return kNullArgument;
  }
  const PlainEntry* const entry = FindEntry(ulChipLogicPort);
  if (entry == nullptr) {
    return kNoSuchLogicPort;
  }
  if (entry->ucSlotPort > MAX_OLT_PORT_NUM_PER_BOARD) {
    DebugConsole("\r\n%s err! ulChipLogicPort = %d, ulSlotOut = %d, ulSlotPort = %d", kName,
                 ulChipLogicPort, uint32_t{entry->ucSlotOut}, uint32_t{entry->ucSlotPort});
    return kBadSlotPort;
  }
  *pulSlotOut = entry->ucSlotOut;
  *pulSlotPort = entry->ucSlotPort;
  *pulSlotFlag = entry->ucSlotFlag;
  return kOk;
}

int32_t ddGetSwitchChipLogicPortFromSlotPort(uint32_t ulSlotOut, uint32_t ulSlotPort,
                                             uint32_t* pulChipLogicPort) {
  using namespace sys_context;
  if (pulChipLogicPort == nullptr) {
    DebugConsole("\r\nddGetSwitchChipLogicPortFromSlotPort err! pulChipLogicPort = 0x%x",
                 LowBits(pulChipLogicPort));
    return kNullArgument;
  }
  uint32_t is_valid = 0;
  if (ddIsValidSlot(ulSlotOut, &is_valid) != kOk) {
    DebugConsole("\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSlotOut = 0x%x", ulSlotOut);
    return kBadSlot;
  }
  const uint32_t count = gstFrame.ulSwitchChipLogicPortNum;
  if (count > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    DebugConsole("\r\nddGetSwitchChipLogicPortFromSlotPort err! ulSwitchChipLogicPortNum = 0x%x",
                 count);
    return kTooManyLogicPorts;
  }
  const auto serves = [=](const PlainEntry& entry) {
    return entry.ucSlotOut == static_cast<uint8_t>(ulSlotOut) && entry.ucSlotPort == ulSlotPort;
  };
  // An Ethernet card takes the last entry: its own stand behind those of other cards.
  const auto* const begin = gstFrame.astSwitchChipLogicPort;
  const auto* const end = begin + count;
  const auto* const found = HasCardOfKind(ulSlotOut, caCheckCardTypeIsEthCard)
                                ? FindLast(begin, end, serves)
                                : std::find_if(begin, end, serves);
  if (found == end) {
    *pulChipLogicPort = 0;
    return kNoSuchEntry;
  }
  *pulChipLogicPort = static_cast<uint32_t>(found - begin) + 1;
  return kOk;
}

int32_t ddGetEthLogicportRange(uint32_t* minLogicportNo, uint32_t* maxLogicPortNo) {
  using namespace sys_context;
  constexpr char kName[] = "ddGetEthLogicportRange";
  if (minLogicportNo == nullptr || maxLogicPortNo == nullptr) {
    DebugConsole("\r\n%s: pointer is null! minLogicportNo = 0x%x, maxLogicPortNo = 0x%x\r\n", kName,
                 LowBits(minLogicportNo), LowBits(maxLogicPortNo));
    return kNullArgument;
  }
  const uint32_t count = gstFrame.ulSwitchChipLogicPortNum;
  if (count > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    DebugConsole("\r\n%s: SwitchChipLogicPortNum(%d) is out of range(%d)!\r\n", kName, count,
                 MAX_SWITCH_CHIP_LOGIC_PORT_NUM);
    return kTooManyLogicPorts;
  }
  uint32_t lowest = 0;
  uint32_t highest = 0;
  for (uint32_t i = 0; i < count; ++i) {
    if (gstFrame.astSwitchChipLogicPort[i].ucSlotFlag == kEthernetFlag) {
      highest = i + 1;
      lowest = lowest == 0 ? highest : lowest;
    }
  }
  if (lowest == 0) {
    DebugConsole("\r\n%s: Range error, min = %d, max = %d!\r\n", kName, lowest, highest);
    return kNoEthernetPort;
  }
  *minLogicportNo = lowest;
  *maxLogicPortNo = highest;
  return kOk;
}
