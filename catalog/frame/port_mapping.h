// The way from a physical port to its logic port, behind the main board's default
// map.
#pragma once

#include <cstdint>

namespace sys_context {

// What the default map told about a physical port: how many logic ports it has, and
// the first two of them.
struct PhyPortQuestion {
  static constexpr uint32_t kRoom = 2;

  uint32_t phy_port = 0;
  uint32_t main_board_type = 0;
  uint32_t logic_ports[kRoom] = {};
  uint32_t logic_port_count = 0;
};

// Stores the logic port that the card behind `logic_port` makes of it. Apart from
// ddRunGetSwitchChipLogicPortFromPhyPort, whose last part it is, so that a test can give
// it a logic port that there is. Returns kOk, kNoSuchLogicPort, kNoMapGiven, or a code of
// FindLogicPorts; the messages name ddGetSwitchChipLogicPortFromPhyPort.
[[nodiscard]] int32_t ChooseLogicPort(PhyPortQuestion question, uint32_t logic_port,
                                      uint32_t* chosen);

}  // namespace sys_context
