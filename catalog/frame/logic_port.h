// The two tables of logic ports in gstFrame, and what their flags mean.
#pragma once

#include <cstdint>

#include "sys_context/frame.h"

namespace sys_context {

// A logic port of an Ethernet card, of any other card.
constexpr uint8_t kEthernetFlag = 1;
constexpr uint8_t kOtherFlag = 0;

constexpr uint8_t kHigigFlag = 1;

// The type-2 ("balance") entries that have numbers; those behind them have none.
constexpr uint32_t kNumberedBalanceEntries = 58;

using PlainEntry = SwitchChipLogicPortToSlotPort;
using BalanceEntry = BalanceSwitchLogicPortInfo;

// One of the tables.
template <typename Entry>
struct LogicPortTable {
  uint32_t FrameInformation::*count;
  Entry (FrameInformation::*entries)[MAX_SWITCH_CHIP_LOGIC_PORT_NUM];
};

constexpr LogicPortTable<PlainEntry> kPlainTable = {
    .count = &FrameInformation::ulSwitchChipLogicPortNum,
    .entries = &FrameInformation::astSwitchChipLogicPort,
};

constexpr LogicPortTable<BalanceEntry> kBalanceTable = {
    .count = &FrameInformation::ulType2SwitchChipLogicPortNum,
    .entries = &FrameInformation::astType2SwitchChipLogicPort,
};

}  // namespace sys_context
