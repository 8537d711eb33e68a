// The plainest answer to the queries that look through a table: a straight loop,
// without a check of arguments or tables. They stand in a file of their own, so that
// the compiler cannot see through a call.
#pragma once

#include <cstdint>

#include "sys_context/frame.h"
#include "sys_context/olt.h"

namespace bench::plain {

// The place of an entry, counted from 1; 0 without.
uint32_t Version(const char* version);
uint32_t Module(uint32_t type);
uint32_t Module(const char* name);
uint32_t SystemFunction(uint32_t type);
uint32_t OltPortType(uint32_t type);
uint32_t OltPortType(const char* name);
uint32_t Board(uint32_t type);
uint32_t Board(const char* name);
uint32_t Card(const char* name);  // of a main board or of a service board
uint32_t Slot(const SlotClassInformation& slots, uint32_t slot);
uint32_t BoardOfSlot(uint32_t slot, uint32_t type);
uint32_t LogicPort(uint32_t slot, uint32_t port);
uint32_t BalancePort(uint32_t slot, uint32_t port, uint32_t chip);
uint32_t OnuLanPortType(const char* name);
uint32_t OnuType(uint32_t type);
uint32_t OnuType(const char* name);
uint32_t OptModule(uint16_t kind, uint32_t port_type, uint16_t phy_type);

// 0 without.
uint32_t PhyPort(const PortMap& map, uint32_t logic_port);

// Lists; they return the length.
uint32_t PhyPortUsers(const PortMap& map, uint32_t phy_port, uint32_t* logic_ports);
uint32_t Slots(const SlotClassInformation& slots, uint32_t* list);
uint32_t PortsOfSlot(uint32_t slot, uint8_t flag, uint32_t* logic_ports);
uint32_t UserPorts(uint32_t* logic_ports);
uint32_t UplinkPorts(uint32_t* logic_ports);
uint32_t OnuTypes(uint32_t* types);

}  // namespace bench::plain
