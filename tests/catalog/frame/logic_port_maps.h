// The logic ports of both maps as tests put them into gstFrame. The balance ports are
// the type-2 entries.
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

#include "sys_context/frame.h"

namespace test {

using LogicPort = SwitchChipLogicPortToSlotPort;
using BalancePort = BalanceSwitchLogicPortInfo;

// Entries from numbers, of which each field keeps its low bits.
inline LogicPort LogicPortOf(uint32_t slot, uint32_t port, uint32_t flag = 0) {
  return {static_cast<uint8_t>(slot), static_cast<uint8_t>(port), static_cast<uint8_t>(flag)};
}

inline BalancePort BalancePortOf(uint32_t slot, uint32_t port, uint32_t chip = 0,
                                 uint32_t phy_port = 0, uint32_t higig_flag = 0) {
  return {static_cast<uint8_t>(slot), static_cast<uint8_t>(port), static_cast<uint16_t>(chip),
          static_cast<uint16_t>(phy_port), static_cast<uint8_t>(higig_flag)};
}

// Puts these entries and their count; all entries behind them become `behind`.
inline void PutLogicPorts(const std::vector<LogicPort>& ports, const LogicPort& behind = {}) {
  auto& map = gstFrame.astSwitchChipLogicPort;
  std::fill(std::copy(ports.begin(), ports.end(), std::begin(map)), std::end(map), behind);
  gstFrame.ulSwitchChipLogicPortNum = static_cast<uint32_t>(ports.size());
}

inline void PutBalancePorts(const std::vector<BalancePort>& ports, const BalancePort& behind = {}) {
  auto& map = gstFrame.astType2SwitchChipLogicPort;
  std::fill(std::copy(ports.begin(), ports.end(), std::begin(map)), std::end(map), behind);
  gstFrame.ulType2SwitchChipLogicPortNum = static_cast<uint32_t>(ports.size());
}

// Counts of entries: few, about the limit, and numbers that are others in fewer bits.
inline const std::vector<uint32_t> kLogicPortCounts = {0,    1,       48,         1279,      1280,
                                                       1281, 0x10030, 0x80000030, 0xffffffff};

}  // namespace test
