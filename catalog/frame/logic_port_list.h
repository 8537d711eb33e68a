// One list of logic ports, and what the builders of all lists refuse.
#pragma once

#include <cstdint>

#include "catalog/frame/logic_port.h"
#include "common/codes.h"
#include "common/messages.h"

namespace sys_context {

// How the place of an entry becomes its number.
using NumberOf = int32_t (*)(uint32_t index, uint32_t* number);

// One list, and in what its builder differs from the others.
template <typename Entry>
struct LogicPortList {
  const char* name;  // as the messages show it
  const LogicPortTable<Entry>& table;
  NumberOf number_of;

  uint32_t limit = MAX_SWITCH_CHIP_LOGIC_PORT_NUM;  // of entries
  int32_t above_limit_code = kTooManyLogicPorts;
  int32_t empty_code = kEmptyList;

  // Each shows the name first.
  // Then: the array, the amount.
  Message<const char*, uint32_t, uint32_t> null_argument =
      "\r\n%s err! pulChipLogicPort = 0x%x, pulChipPortCnt = 0x%x";
  // The count, the limit.
  PartialMessage<const char*, uint32_t, uint32_t> above_limit =
      "\r\n%s err! ulSwitchChipLogicPortNum = %d";
  // The room, the numbers found.
  Message<const char*, uint32_t, uint32_t> too_small =
      "\r\n%s err! the range of list is small! ulPortListCnt = %d, realCnt = %d.";
  // The room, 0.
  // kept as is: an empty list is said to be too small.
  PartialMessage<const char*, uint32_t, uint32_t> empty =
      "\r\n%s err! the range of list is small! ulPortListCnt = %d, realCnt = %d.";
};

// The lists of all uplink ports share these texts.
constexpr Message<const char*, uint32_t, uint32_t> kUplinkNullArgument =
    "\r\n%s: pointer is null! pulSlotArray = 0x%x, pulPortAmount = 0x%x\r\n";
constexpr Message<const char*, uint32_t, uint32_t> kUplinkTooSmall =
    "\r\n%s: array space is not enough! ulArrayAmount = %d, ulUplinkLogicPortCount = %d";

template <typename Entry>
[[nodiscard]] int32_t CheckArguments(const LogicPortList<Entry>& list, const uint32_t* numbers,
                                     const uint32_t* amount) {
  if (numbers == nullptr || amount == nullptr) {
    Report(Gate::kDebug, list.null_argument, list.name, LowBits(numbers), LowBits(amount));
    return kNullArgument;
  }
  return kOk;
}

template <typename Entry>
[[nodiscard]] int32_t CheckCount(const LogicPortList<Entry>& list) {
  if (const uint32_t count = gstFrame.*list.table.count; count > list.limit) {
    Report(Gate::kDebug, list.above_limit, list.name, count, list.limit);
    return list.above_limit_code;
  }
  return kOk;
}

template <typename Entry>
[[nodiscard]] int32_t Check(const LogicPortList<Entry>& list, const uint32_t* numbers,
                            const uint32_t* amount) {
  const int32_t code = CheckArguments(list, numbers, amount);
  return code != kOk ? code : CheckCount(list);
}

template <typename Entry>
int32_t RefuseTooSmall(const LogicPortList<Entry>& list, uint32_t room, uint32_t found) {
  Report(Gate::kDebug, list.too_small, list.name, room, found);
  return kListTooSmall;
}

}  // namespace sys_context
