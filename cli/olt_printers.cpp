// The listings of OLT port types, main boards and service boards.
#include "cli/listing.h"
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/cli.h"
#include "sys_context/olt.h"

namespace sys_context {
namespace {

void PrintPorts(void* vty, uint32_t count, OltPortInformation* const* ports) {
  for (uint32_t i = 0; ports != nullptr && i < count; ++i) {
    if (ports[i] != nullptr) {
      vty_out(vty,
              "\r\n  %2d. ulPortType = %3d, ulNameLen = %2d, acName = %8s, ulSplittingRatio = %2d",
              i, ports[i]->ulPortType, ports[i]->ulNameLen, ports[i]->acName,
              ports[i]->ulSplittingRatio);
    }
  }
}

void PrintPortMap(void* vty, uint32_t index, const PortMap& map, uint32_t port_count) {
  vty_out(vty, "\r\n  %d. ulBoardNameLen = %d, acBoardName = %s", index, map.ulBoardNameLen,
          map.acBoardName);
  for (uint32_t i = 0; i < port_count; ++i) {
    const PortPair& pair = map.astPortPair[i];
    vty_out(vty, "\r\n%s_SwitchChipLogicPort = %2d  ---> PhyPort:%2d", map.acBoardName,
            pair.usLogicPort, pair.usPhyPort);
  }
  vty_out(vty, "\r\n");
}

// kept as is: the messages name themselves "debug_...", and the listing ends
// with a corrupt board.
int32_t PrintMainBoard(void* vty, uint32_t index, const MainBoardInformation& board) {
  vty_out(vty, "\r\n%d. ulType = %d, ulSubType = %d, ulNameLen = %d, acName = %s", index,
          board.ulType, board.ulSubType, board.ulNameLen, board.acName);
  const uint32_t port_count = board.ulSwitchChipLogicPortNum;
  if (port_count > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    vty_out(
        vty,
        "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! ulSupportedBoardTypeIndex = %d, ulType = %d, acName = %s, ulSwitchChipLogicPortNum = %d, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = %d",
        index, board.ulType, board.acName, port_count, MAX_SWITCH_CHIP_LOGIC_PORT_NUM);
    return kTooManyChipPorts;
  }
  vty_out(vty, "\r\nulSwitchChipLogicPortNum = %d", port_count);
  const uint32_t map_count = board.ulChipLogicPortToPhyPortTypeNum;
  if (map_count == 0 || map_count > MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM) {
    vty_out(
        vty,
        "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! ulSupportedBoardTypeIndex = %d, ulType = %d, acName = %s, ulChipLogicPortToPhyPortTypeNum = %d, MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM = %d",
        index, board.ulType, board.acName, map_count, MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM);
    return kTooManyMaps;
  }
  for (uint32_t i = 0; i < map_count; ++i) {
    PrintPortMap(vty, i, board.astPortMap[i], port_count);
  }
  vty_out(vty, "\r\n");
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddPrintAllSupportedOltPortInfomation(void* vty) {
  using namespace sys_context;
  const uint32_t count = gstSupportedOltPortType.ulSupportedOltPortTypeNum;
  if (count > MAX_OLT_PORT_TYPE_NUM) {
    vty_out(vty, "\r\nddPrintAllSupportedOltPortInfomation err! ulSupportedOltPortTypeNum = %d",
            count);
    return kTooManyPortTypes;
  }
  OltPortInformation* const* const types = gstSupportedOltPortType.pOltPortTypeArray;
  if (types == nullptr) {
    vty_out(vty, "\r\nddPrintAllSupportedOltPortInfomation err! pOltPortTypeArray = 0x%x",
            LowBits(types));
    return kNoPortTypes;
  }
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\nSupportedOltPort:");
  vty_out(vty, "\r\ngstSupportedOltPortType.ulSupportedOltPortTypeNum = %d", count);
  for (uint32_t i = 0; i < count; ++i) {
    const OltPortInformation* const type = types[i];
    if (type == nullptr) {
      continue;
    }
    PauseBeforeRow(i, 16);
    vty_out(vty,
            "\r\n%2d. ulPortType = %3d, ulNameLen = %2d, acName = %20s, ulSplittingRatio = %2d", i,
            type->ulPortType, type->ulNameLen, type->acName, type->ulSplittingRatio);
  }
  EndListing(vty);
  return kOk;
}

int32_t ddPrintAllSupportedMainBoardInformation(void* vty) {
  using namespace sys_context;
  const uint32_t count = gstSupportedMainBoardType.ulSupportedBoardTypeNum;
  if (count > MAX_OLT_BOARD_TYPE_NUM) {
    vty_out(
        vty,
        "\r\nddPrintAllSupportedMainBoardInformation err!, ulSupportedBoardTypeNum = %d, MAX_OLT_BOARD_TYPE_NUM = %d",
        count, MAX_OLT_BOARD_TYPE_NUM);
    return kTooManyBoards;
  }
  MainBoardInformation* const* const boards = gstSupportedMainBoardType.pBoardTypeArray;
  if (boards == nullptr) {
    vty_out(vty, "\r\nddPrintAllSupportedMainBoardInformation err!, pBoardTypeArray = 0x%x",
            LowBits(boards));
    return kNoTable;
  }
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\nPrintAllSupportedMainBoardInformation: ");
  vty_out(vty, "\r\ngstSupportedMainBoardType.ulSupportedBoardTypeNum = %d", count);
  for (uint32_t i = 0; i < count; ++i) {
    if (boards[i] == nullptr) {
      continue;
    }
    if (const int32_t code = PrintMainBoard(vty, i, *boards[i]); code != kOk) {
      return code;
    }
  }
  vty_out(vty, "\r\n");
  return kOk;
}

int32_t ddPrintAllSupportedBoardInfomation(void* vty) {
  using namespace sys_context;
  const uint32_t count = gstSupportedBoardType.ulSupportedBoardTypeNum;
  if (count > MAX_OLT_BOARD_TYPE_NUM) {
    vty_out(vty, "\r\nddPrintAllSupportedBoardInfomation err! ulSupportedBoardTypeNum = %d", count);
    return kTooManyBoards;
  }
  BoardInformation* const* const boards = gstSupportedBoardType.pBoardTypeArray;
  if (count != 0 && boards == nullptr) {
    vty_out(vty, "\r\nddPrintAllSupportedBoardInfomation err! pBoardTypeArray = 0x%x",
            LowBits(boards));
    return kNoTable;
  }
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\nAllSupportedBoard:");
  vty_out(vty, "\r\ngstSupportedBoardType.ulSupportedBoardTypeNum = %d", count);
  if (count == 0) {
    EndListing(vty);
    return kOk;
  }
  for (uint32_t i = 0; i < count; ++i) {
    if (boards[i] != nullptr) {
      vty_out(
          vty,
          "\r\n%2d. ulType = %d, ulSubType = %d, ulNameLen = %d, acName = %s, ulTotalPortNum = %d, ulTotalSpecialPortNum = %d",
          i, boards[i]->ulType, boards[i]->ulSubType, boards[i]->ulNameLen, boards[i]->acName,
          boards[i]->ulTotalServePortNum, boards[i]->ulTotalSpecialPortNum);
    }
  }
  vty_out(vty, "\r\n");
  for (uint32_t i = 0; i < count; ++i) {
    if (boards[i] != nullptr) {
      vty_out(vty, "\r\nIndex = %d", i);
      ddPrintOneSupportedBoardInfomation(boards[i], vty);
    }
  }
  EndListing(vty);
  return kOk;
}

int32_t ddPrintOneSupportedBoardInfomation(const BoardInformation* board, void* vty) {
  using namespace sys_context;
  if (board == nullptr) {
    return kNullArgument;
  }
  vty_out(
      vty,
      "\r\n ulType = %3d, ulSubType = %2d, ulNameLen = %2d, acName = %8s, ulTotalServePortNum = %2d, ulTotalSpecialPortNum = %2d",
      board->ulType, board->ulSubType, board->ulNameLen, board->acName, board->ulTotalServePortNum,
      board->ulTotalSpecialPortNum);
  vty_out(vty, "\r\nServePort = %d", board->ulTotalServePortNum);
  PrintPorts(vty, board->ulTotalServePortNum, board->pPortArray);
  vty_out(vty, "\r\nSpecialPort = %d", board->ulTotalSpecialPortNum);
  PrintPorts(vty, board->ulTotalSpecialPortNum, board->pSpecialPortArray);
  vty_out(vty, "\r\n");
  return kOk;
}
