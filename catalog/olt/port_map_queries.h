// Translations in one port map for those who take a logic port that is wired to
// nothing for an answer, or have less room than the interface asks for.
#pragma once

#include <cstdint>

#include "sys_context/olt.h"

namespace sys_context {

// The first pair of the logic port, whatever it is wired to, or null. Ports are
// compared by their low 8 bits.
const PortPair* FindLogicPort(const PortMap& map, uint32_t logic_port);

// ddGetSwitchChipLogicPortFromPhyPort, but with room for `room` ports, at least
// one. Counts all there are.
[[nodiscard]] int32_t FindLogicPorts(uint32_t phy_port, const PortMap* map, uint32_t* logic_ports,
                                     uint32_t room, uint32_t* count);

}  // namespace sys_context
