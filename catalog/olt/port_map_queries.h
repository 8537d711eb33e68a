// Translations in one port map without the interface's limits and messages, for
// those who have less room than the interface asks for, or take a logic port that
// is wired to nothing for an answer.
#pragma once

#include <cstdint>

#include "sys_context/olt.h"

namespace sys_context {

// The first pair of the logic port, whatever it is wired to, or null. Ports are
// compared by their low 8 bits.
const PortPair* FindLogicPort(const PortMap& map, uint32_t logic_port);

// Stores the logic ports that are wired to the physical port, as many as there is
// room for. Returns how many there are in all.
uint32_t FindPhyPort(const PortMap& map, uint32_t phy_port, uint32_t* logic_ports, uint32_t room);

}  // namespace sys_context
