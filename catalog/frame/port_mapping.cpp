// The way between a logic port and a physical port of the main board at hand: by
// the map that is special to the card behind the port, or by the default map.
#include "catalog/frame/port_mapping.h"

#include <cstdio>

#include "catalog/olt/port_map_queries.h"
#include "common/card_kinds.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/frame.h"
#include "sys_context/platform.h"

namespace sys_context {
namespace {

constexpr uint32_t kTypeWithoutMaps = 389;
constexpr uint32_t kWiredToNothing = 0xffffffff;

int32_t RefuseMainBoardWithoutMaps() {
  std::puts("KXCA: dd cannot get logic port - phy port\r");
  return kMainBoardWithoutMaps;
}

// The map that is special to the card in the slot. False: there is none, the
// default map applies. A null map with true would be a fault of the query; its
// answer is checked all the same.
bool FindMapOfCard(uint32_t main_board_type, int32_t card_type, PortMap*& map) {
  return IsCard(card_type) && ddGetSpecialLogicPortToPhyPortObjByType(
                                  main_board_type, static_cast<uint32_t>(card_type), &map) == kOk;
}

int32_t TranslateBySpecialMap(const PortMap* map, int32_t card_type, uint32_t logic_port,
                              uint32_t* phy_port) {
  if (map == nullptr) {
    *phy_port = 0;
    return kNoMapGiven;
  }
  const PortPair* const pair = FindLogicPort(*map, logic_port);
  if (pair == nullptr) {
    DebugConsole(
        "\r\nddRunGetSwitchChipPhyPortFromLogicPort->ddGetSwitchChipPhyPortFromLogicPort err! ulLogicPort = %d, iBoardType = %d",
        logic_port, card_type);
    return kNoSuchLogicPort;
  }
  if (pair->usPhyPort == 0) {
    DebugConsole("\r\nddRunGetSwitchChipPhyPortFromLogicPort err! ulLogicPort = %d, ulPhyPort = %d",
                 logic_port, uint32_t{pair->usPhyPort});
    *phy_port = kWiredToNothing;
    return kNoSuchLogicPort;
  }
  *phy_port = pair->usPhyPort;
  return kOk;
}

// kept as is: a port that is wired to nothing is an answer here.
int32_t TranslateByDefaultMap(const MainBoardInformation& main_board, uint32_t logic_port,
                              uint32_t* phy_port) {
  const PortPair* const pair = FindLogicPort(main_board.astPortMap[0], logic_port);
  if (pair == nullptr) {
    DebugConsole(
        "\r\nddRunGetSwitchChipPhyPortFromLogicPort->ddGetSwitchChipPhyPortFromLogicPort err! Default map. iResult = %d, ulLogicPort = %d",
        kNoSuchLogicPort, logic_port);
    return kNoSuchLogicPort;
  }
  *phy_port = pair->usPhyPort;
  return kOk;
}

// kept as is: where the special map has no logic port, the default map's stays.
int32_t ChooseBySpecialMap(const PortMap* map, int32_t card_type, PhyPortQuestion& question,
                           uint32_t* chosen) {
  if (map == nullptr) {
    *chosen = 0;
    return kNoMapGiven;
  }
  if (const int32_t code = FindLogicPorts(question.phy_port, map, question.logic_ports,
                                          PhyPortQuestion::kRoom, &question.logic_port_count);
      code != kOk) {
    DebugConsole(
        "\r\nddGetSwitchChipLogicPortFromPhyPort->ddGetSwitchChipLogicPortFromPhyPort err! ulPhyPort = %d, iBoardType = %d",
        question.phy_port, card_type);
    return code;
  }
  *chosen = question.logic_ports[0];
  return kOk;
}

}  // namespace

int32_t ChooseLogicPort(PhyPortQuestion question, uint32_t logic_port, uint32_t* chosen) {
  uint32_t slot = 0;
  uint32_t slot_port = 0;
  if (const int32_t code = ddGetSlotPortFromSwitchChipLogicPort(logic_port, &slot, &slot_port);
      code != kOk) {
    DebugConsole(
        "\r\nddGetSwitchChipLogicPortFromPhyPort->ddGetSlotPortFromSwitchChipLogicPort err! iResult = %d, ulLogicPort = %d",
        code, logic_port);
    return kNoSuchLogicPort;
  }
  const int32_t card_type = get_config_card_type(slot);
  PortMap* special_map = nullptr;
  if (FindMapOfCard(question.main_board_type, card_type, special_map)) {
    return ChooseBySpecialMap(special_map, card_type, question, chosen);
  }
  const bool takes_second = question.logic_port_count != 1 &&
                            IsCardOfKind(card_type, caCheckCardTypeIsServiceCard) &&
                            IsCardOfKind(card_type, caCheckCardTypeIsUplinkCard);
  *chosen = question.logic_ports[takes_second ? 1 : 0];
  return kOk;
}

}  // namespace sys_context

int32_t ddRunGetSwitchChipPhyPortFromLogicPort(uint32_t ulLogicPort, uint32_t* pulPhyPort) {
  using namespace sys_context;
  if (pulPhyPort == nullptr) {
    DebugConsole("\r\nddRunGetSwitchChipPhyPortFromLogicPort err! pulPhyPort = 0x%x",
                 LowBits(pulPhyPort));
    return kNullArgument;
  }
  uint32_t main_board_type = 0;
  if (const int32_t code = ddRunGetMainSlotType(&main_board_type); code != kOk) {
    DebugConsole(
        "\r\nddRunGetSwitchChipPhyPortFromLogicPort->ddRunGetMainSlotType err! iResult = %d", code);
    return code;
  }
  if (main_board_type == kTypeWithoutMaps) {
    return RefuseMainBoardWithoutMaps();
  }
  MainBoardInformation* main_board = nullptr;
  if (const int32_t code = ddGetMainBoardObjByType(main_board_type, &main_board);
      code != kOk || main_board == nullptr) {
    DebugConsole(
        "\r\nddRunGetSwitchChipPhyPortFromLogicPort->ddGetMainBoardObjByType err! iResult = %d, ulMainBoardType = %d, MainBoardAddr = 0x%x",
        code, main_board_type, LowBits(main_board));
    return kNoMainBoard;
  }
  uint32_t slot = 0;
  uint32_t slot_port = 0;
  if (const int32_t code = ddGetSlotPortFromSwitchChipLogicPort(ulLogicPort, &slot, &slot_port);
      code != kOk) {
    DebugConsole(
        "\r\nddRunGetSwitchChipPhyPortFromLogicPort->ddGetSlotPortFromSwitchChipLogicPort err! iResult = %d, ulLogicPort = %d",
        code, ulLogicPort);
    return kNoSuchLogicPort;
  }
  const int32_t card_type = get_config_card_type(slot);
  PortMap* special_map = nullptr;
  if (FindMapOfCard(main_board_type, card_type, special_map)) {
    return TranslateBySpecialMap(special_map, card_type, ulLogicPort, pulPhyPort);
  }
  return TranslateByDefaultMap(*main_board, ulLogicPort, pulPhyPort);
}

// kept as is: its messages name ddGetSwitchChipLogicPortFromPhyPort, and it asks for the
// slot of logic port 0 instead of the one found, so that it never succeeds.
int32_t ddRunGetSwitchChipLogicPortFromPhyPort(uint32_t ulPhyPort, uint32_t* pulLogicPort) {
  using namespace sys_context;
  if (pulLogicPort == nullptr) {
    DebugConsole("\r\nddGetSwitchChipLogicPortFromPhyPort err! pulLogicPort = 0x%x",
                 LowBits(pulLogicPort));
    return kNullArgument;
  }
  if (ulPhyPort == 0) {
    DebugConsole("\r\nddGetSwitchChipLogicPortFromPhyPort err! ulPhyPort = 0x%x", ulPhyPort);
    return kBadChipPort;
  }
  PhyPortQuestion question = {.phy_port = ulPhyPort};
  if (const int32_t code = ddRunGetMainSlotType(&question.main_board_type); code != kOk) {
    DebugConsole("\r\nddGetSwitchChipLogicPortFromPhyPort->ddRunGetMainSlotType err! iResult = %d",
                 code);
    return code;
  }
  if (question.main_board_type == kTypeWithoutMaps) {
    return RefuseMainBoardWithoutMaps();
  }
  MainBoardInformation* main_board = nullptr;
  if (const int32_t code = ddGetMainBoardObjByType(question.main_board_type, &main_board);
      code != kOk || main_board == nullptr) {
    DebugConsole(
        "\r\nddGetSwitchChipLogicPortFromPhyPort->ddGetMainBoardObjByType err! iResult = %d, ulMainBoardAddr = %d",
        code, LowBits(main_board));
    return kNoMainBoard;
  }
  if (const int32_t code =
          FindLogicPorts(ulPhyPort, &main_board->astPortMap[0], question.logic_ports,
                         PhyPortQuestion::kRoom, &question.logic_port_count);
      code != kOk) {
    DebugConsole(
        "\r\nddGetSwitchChipLogicPortFromPhyPort->ddGetSwitchChipLogicPortFromPhyPort err! Default map. ulPhyPort = %d",
        ulPhyPort);
    return code;
  }
  const uint32_t logic_port = 0;
  if (question.logic_port_count == 0) {
    DebugConsole("\r\nddGetSwitchChipLogicPortFromPhyPort err! ulLogicPort = %d", logic_port);
    return kNoSuchLogicPort;
  }
  return ChooseLogicPort(question, logic_port, pulLogicPort);
}
