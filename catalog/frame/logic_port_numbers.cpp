// The numbers of the logic ports: entry to number and back, in both tables, and how
// many entries there are.
#include "catalog/frame/logic_port.h"
#include "common/codes.h"
#include "common/messages.h"

namespace sys_context {
namespace {

// The type-2 entries that have numbers: 1..56 and, for the last two, 200 and 201.
constexpr uint32_t kLowBalanceNumbers = 56;
constexpr uint32_t kHighBalanceNumbers = kNumberedBalanceEntries - kLowBalanceNumbers;
constexpr uint32_t kFirstHighBalanceNumber = 200;

constexpr Message<const char*, uint32_t> kNullNumber = "\r\n%s err! puChipLogicPort = 0x%x";
constexpr Message<const char*, uint32_t> kNullIndex = "\r\n%s err! puChipIndex = 0x%x";
constexpr Message<const char*, uint32_t> kNullAmount = "\r\n%s err! pulAmount = 0x%x";

// Refuses a null output with `refusal`.
int32_t CheckOutput(const char* name, const Message<const char*, uint32_t>& refusal,
                    const uint32_t* output) {
  if (output == nullptr) {
    Report(Gate::kDebug, refusal, name, LowBits(output));
    return kNullArgument;
  }
  return kOk;
}

// Refuses a count above the limit, too.
int32_t Check(const char* name, const Message<const char*, uint32_t>& refusal,
              const uint32_t* output, uint32_t count) {
  if (const int32_t code = CheckOutput(name, refusal, output); code != kOk) {
    return code;
  }
  if (count > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    DebugConsole("\r\n%s err! ulSwitchChipLogicPortNum = %d, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = %d",
                 name, count, MAX_SWITCH_CHIP_LOGIC_PORT_NUM);
    return kCorruptLogicPorts;
  }
  return kOk;
}

int32_t GetAmount(const char* name, uint32_t count, uint32_t* amount) {
  if (const int32_t code = Check(name, kNullAmount, amount, count); code != kOk) {
    return code;
  }
  *amount = count;
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t get_switch_chip_logicport_portno_from_index(uint32_t ulChipIndex,
                                                    uint32_t* puChipLogicPort) {
  using namespace sys_context;
  constexpr char kName[] = "get_switch_chip_logicport_portno_from_index";
  const uint32_t count = gstFrame.ulSwitchChipLogicPortNum;
  if (const int32_t code = Check(kName, kNullNumber, puChipLogicPort, count); code != kOk) {
    return code;
  }
  if (ulChipIndex >= count) {
    DebugConsole("\r\n%s err! ulChipIndex = %d, ulSwitchChipLogicPortNum = %d", kName, ulChipIndex,
                 count);
    return kBadLogicPortIndex;
  }
  *puChipLogicPort = ulChipIndex + 1;
  return kOk;
}

int32_t get_switch_chip_logicport_index_from_portno(uint32_t ulChipLogicPort,
                                                    uint32_t* puChipIndex) {
  using namespace sys_context;
  constexpr char kName[] = "get_switch_chip_logicport_index_from_portno";
  const uint32_t count = gstFrame.ulSwitchChipLogicPortNum;
  if (const int32_t code = Check(kName, kNullIndex, puChipIndex, count); code != kOk) {
    return code;
  }
  if (ulChipLogicPort == 0 || ulChipLogicPort > count) {
    DebugConsole("\r\n%s err! ulSwitchChipLogicPortNum = %d, ulChipLogicPort = %d", kName, count,
                 ulChipLogicPort);
    return kNoSuchEntry;
  }
  *puChipIndex = ulChipLogicPort - 1;
  return kOk;
}

int32_t get_balance_switch_logicport_portno_from_index(uint32_t ulChipIndex,
                                                       uint32_t* puChipLogicPort) {
  using namespace sys_context;
  constexpr char kName[] = "get_balance_switch_logicport_portno_from_index";
  if (const int32_t code = CheckOutput(kName, kNullNumber, puChipLogicPort); code != kOk) {
    return code;
  }
  *puChipLogicPort = 0;
  if (ulChipIndex >= kNumberedBalanceEntries) {
    DebugConsole("\r\n%s err! ulChipIndex = %d, max switchIndex = %d", kName, ulChipIndex,
                 kNumberedBalanceEntries - 1);
    return kNoSuchBalancePort;
  }
  *puChipLogicPort = ulChipIndex < kLowBalanceNumbers
                         ? ulChipIndex + 1
                         : ulChipIndex - kLowBalanceNumbers + kFirstHighBalanceNumber;
  return kOk;
}

int32_t get_balance_switch_logicport_index_from_portno(uint32_t ulChipLogicPort,
                                                       uint32_t* puChipIndex) {
  using namespace sys_context;
  constexpr char kName[] = "get_balance_switch_logicport_index_from_portno";
  if (const int32_t code = CheckOutput(kName, kNullIndex, puChipIndex); code != kOk) {
    return code;
  }
  *puChipIndex = 0;
  if (ulChipLogicPort >= 1 && ulChipLogicPort <= kLowBalanceNumbers) {
    *puChipIndex = ulChipLogicPort - 1;
    return kOk;
  }
  if (ulChipLogicPort >= kFirstHighBalanceNumber &&
      ulChipLogicPort < kFirstHighBalanceNumber + kHighBalanceNumbers) {
    *puChipIndex = ulChipLogicPort - kFirstHighBalanceNumber + kLowBalanceNumbers;
    return kOk;
  }
  DebugConsole("\r\n%s err! ulChipLogicPort = %d", kName, ulChipLogicPort);
  return kNoSuchBalancePort;
}

int32_t ddGetSwitchChipLogicPortAmount(uint32_t* pulAmount) {
  using namespace sys_context;
  return GetAmount("ddGetSwitchChipLogicPortAmount", gstFrame.ulSwitchChipLogicPortNum, pulAmount);
}

int32_t get_balance_switch_logicport_amount(uint32_t* pulAmount) {
  using namespace sys_context;
  return GetAmount("get_balance_switch_logicport_amount", gstFrame.ulType2SwitchChipLogicPortNum,
                   pulAmount);
}
