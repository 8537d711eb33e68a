// Questions about port maps: which one is special to a board, and what is wired
// to what in one.
#include "catalog/olt/port_map_queries.h"

#include <algorithm>
#include <iterator>

#include "common/codes.h"
#include "common/messages.h"
#include "common/names.h"

namespace sys_context {

const PortPair* FindLogicPort(const PortMap& map, uint32_t logic_port) {
  const PortPair* const end = std::end(map.astPortPair);
  const PortPair* const found =
      std::find_if(std::begin(map.astPortPair), end, [=](const PortPair& pair) {
        return static_cast<uint8_t>(pair.usLogicPort) == static_cast<uint8_t>(logic_port);
      });
  return found == end ? nullptr : found;
}

int32_t FindLogicPorts(uint32_t phy_port, const PortMap* map, uint32_t* logic_ports, uint32_t room,
                       uint32_t* count) {
  if (map == nullptr || logic_ports == nullptr) {
    DebugConsole(
        "\r\nddGetSwitchChipLogicPortFromPhyPort err!, pstChipLogicPortToPhyPortType = 0x%x, pulLogicPort = 0x%x",
        LowBits(map), LowBits(logic_ports));
    return kNullArgument;
  }
  if (phy_port > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    DebugConsole(
        "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = %d, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = %d",
        phy_port, MAX_SWITCH_CHIP_LOGIC_PORT_NUM);
    logic_ports[0] = 0;
    return kBadChipPort;
  }
  uint32_t found = 0;
  // kept as is: the pairs behind the board's ports count, too; they are 0/0.
  for (const PortPair& pair : map->astPortPair) {
    if (pair.usPhyPort != static_cast<uint16_t>(phy_port)) {
      continue;
    }
    if (found < room) {
      logic_ports[found] = static_cast<uint8_t>(pair.usLogicPort);
    }
    ++found;
  }
  *count = found;  // kept as is: this pointer is not checked.
  return kOk;
}

namespace {

// The map of that name, or null. The first map, the default one, is none of them.
PortMap* FindSpecialMap(MainBoardInformation& board, const char* name) {
  for (uint32_t i = 1; i < board.ulChipLogicPortToPhyPortTypeNum; ++i) {
    PortMap& map = board.astPortMap[i];
    if (NameEquals(name, map.acBoardName, map.ulBoardNameLen)) {
      return &map;
    }
  }
  return nullptr;
}

}  // namespace
}  // namespace sys_context

int32_t ddGetSpecialLogicPortToPhyPortObjByType(uint32_t ulMainBoardType, uint32_t ulBoardType,
                                                PortMap** pLogicPortToPhyPortTypeObjAddr) {
  using namespace sys_context;
  if (pLogicPortToPhyPortTypeObjAddr == nullptr) {
    DebugConsole(
        "\r\nddGetSpecialLogicPortToPhyPortObjByType err!, pLogicPortToPhyPortTypeObjAddr = 0x%x",
        LowBits(pLogicPortToPhyPortTypeObjAddr));
    return kNullArgument;
  }
  *pLogicPortToPhyPortTypeObjAddr = nullptr;
  MainBoardInformation* main_board = nullptr;
  if (const int32_t code = ddGetMainBoardObjByType(ulMainBoardType, &main_board);
      code != kOk || main_board == nullptr) {
    DebugConsole(
        "\r\nddGetSpecialLogicPortToPhyPortObjByType->ddGetMainBoardObjByType err! iResult = %d, ulMainBoardAddr = %d",
        code, LowBits(main_board));
    return kNoMainBoard;
  }
  const uint32_t map_count = main_board->ulChipLogicPortToPhyPortTypeNum;
  if (map_count > MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM) {
    DebugConsole(
        "\r\nddGetSpecialLogicPortToPhyPortObjByType err! ulChipLogicPortToPhyPortTypeNum = %d, MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM = %d",
        map_count, MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM);
    return kTooManyMaps;
  }
  char board_name[MAX_BOARD_NAME_LEN] = {};
  if (const int32_t code = ddGetBoardNameByType(ulBoardType, board_name); code != kOk) {
    DebugConsole(
        "\r\nddGetSpecialLogicPortToPhyPortObjByType->ddGetBoardNameByType err! iResult = %d, ulBoardType = %d",
        code, ulBoardType);
    return code;
  }
  *pLogicPortToPhyPortTypeObjAddr = FindSpecialMap(*main_board, board_name);
  return *pLogicPortToPhyPortTypeObjAddr == nullptr ? kNoSpecialMap : kOk;
}

int32_t ddGetSwitchChipLogicPortFromPhyPort(uint32_t ulPhyPortIn,
                                            const PortMap* pstChipLogicPortToPhyPortType,
                                            uint32_t* pulLogicPort, uint32_t* pulLogicPortNum) {
  return sys_context::FindLogicPorts(ulPhyPortIn, pstChipLogicPortToPhyPortType, pulLogicPort,
                                     MAX_SWITCH_CHIP_LOGIC_PORT_NUM, pulLogicPortNum);
}

// kept as is: its messages double the prefix of its name.
int32_t ddGetSwitchChipPhyPortFromLogicPort(uint32_t ulLogicPortIn,
                                            const PortMap* pstChipLogicPortToPhyPortType,
                                            uint32_t* pulPhyPort) {
  using namespace sys_context;
  if (pstChipLogicPortToPhyPortType == nullptr || pulPhyPort == nullptr) {
    DebugConsole(
        "\r\nddddGetSwitchChipPhyPortFromLogicPort err!, pstChipLogicPortToPhyPortType = 0x%x, pulPhyPort = 0x%x",
        LowBits(pstChipLogicPortToPhyPortType), LowBits(pulPhyPort));
    return kNullArgument;
  }
  if (ulLogicPortIn > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    DebugConsole(
        "\r\nddddGetSwitchChipPhyPortFromLogicPort err!, ulLogicPortIn = %d, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = %d",
        ulLogicPortIn, MAX_SWITCH_CHIP_LOGIC_PORT_NUM);
    *pulPhyPort = 0;
    return kBadChipPort;
  }
  const PortPair* const pair = FindLogicPort(*pstChipLogicPortToPhyPortType, ulLogicPortIn);
  if (pair == nullptr) {
    return kNoSuchLogicPort;
  }
  if (pair->usPhyPort == 0) {
    return kNotWired;
  }
  *pulPhyPort = pair->usPhyPort;
  return kOk;
}
