// OLT port types, main boards, service boards.
#include <algorithm>

#include "mutated_input/checker.h"
#include "support/fake_platform.h"
#include "sys_context/olt.h"

namespace mutated {
namespace {

void CheckPortTypes(Checker& checker) {
  const SupportedOltPortType& table = gstSupportedOltPortType;
  const uint32_t count = table.ulSupportedOltPortTypeNum;
  if (!checker.IsLoaded(kPortTypes)) {
    checker.ExpectNone(count, table.pOltPortTypeArray, "port types after a failure");
  }
  if (checker.ExpectRecords(count, MAX_OLT_PORT_TYPE_NUM, table.pOltPortTypeArray, "port type")) {
    for (uint32_t i = 0; i < count; ++i) {
      const OltPortInformation& type = *table.pOltPortTypeArray[i];
      checker.ExpectName(type.acName, type.ulNameLen, "port type's name", i);
      checker.Expect(type.ulSplittingRatio <= DD_MAX_ONU_NUM_PER_PON && type.ulLink == 0,
                     "port type's ratio", i);
    }
  }
}

void CheckMap(Checker& checker, const PortMap& map, uint32_t port_count) {
  checker.ExpectName(map.acBoardName, map.ulBoardNameLen, "map's name");
  for (uint32_t i = 0; i < MAX_SWITCH_CHIP_LOGIC_PORT_NUM; ++i) {
    const PortPair& pair = map.astPortPair[i];
    const uint32_t logic_port = i < port_count ? (i + 1) % 256 : 0;
    if (pair.usLogicPort != logic_port || (i >= port_count && pair.usPhyPort != 0)) {
      checker.Expect(false, "pair of a map", i);
    }
  }
}

void CheckMainBoard(Checker& checker, const MainBoardInformation& board, uint32_t place) {
  checker.ExpectName(board.acName, board.ulNameLen, "main board's name", place);
  checker.Expect(board.ulSubType == 0, "main board's sub-type", place);
  const uint32_t port_count = board.ulSwitchChipLogicPortNum;
  const uint32_t map_count = board.ulChipLogicPortToPhyPortTypeNum;
  if (port_count > MAX_SWITCH_CHIP_LOGIC_PORT_NUM || map_count == 0 ||
      map_count > MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM) {
    checker.Expect(false, "main board's numbers of ports and maps", place);
    return;
  }
  checker.Expect(std::strcmp(board.astPortMap[0].acBoardName, "NoSpecialUplinkBoard") == 0,
                 "name of the default map", place);
  for (uint32_t i = 0; i < map_count; ++i) {
    CheckMap(checker, board.astPortMap[i], port_count);
  }
}

void CheckMainBoards(Checker& checker) {
  const SupportedMainBoardType& table = gstSupportedMainBoardType;
  const uint32_t count = table.ulSupportedBoardTypeNum;
  if (!checker.IsLoaded(kMainBoards)) {
    checker.ExpectNone(count, table.pBoardTypeArray, "main boards after a failure");
  }
  if (checker.ExpectRecords(count, MAX_OLT_BOARD_TYPE_NUM, table.pBoardTypeArray, "main board")) {
    for (uint32_t i = 0; i < count; ++i) {
      CheckMainBoard(checker, *table.pBoardTypeArray[i], i);
    }
  }
}

void CheckBoard(Checker& checker, const BoardInformation& board, uint32_t place) {
  const SupportedOltPortType& types = gstSupportedOltPortType;
  checker.ExpectName(board.acName, board.ulNameLen, "board's name", place);
  checker.Expect(board.ulSubType == 0 && board.ulReserved == 0, "board's sub-type", place);
  checker.ExpectPorts(board.ulTotalServePortNum, MAX_OLT_PORT_NUM_PER_BOARD, board.pPortArray,
                      types.ulSupportedOltPortTypeNum, types.pOltPortTypeArray, "serving port");
  checker.ExpectPorts(board.ulTotalSpecialPortNum, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD,
                      board.pSpecialPortArray, types.ulSupportedOltPortTypeNum,
                      types.pOltPortTypeArray, "special port of a board");
}

// The first of the PON boards with most serving ports.
void CheckMaxPonBoard(Checker& checker) {
  const SupportedBoardType& table = gstSupportedBoardType;
  uint32_t type = 0;
  uint32_t most = 0;
  for (uint32_t i = 0; i < table.ulSupportedBoardTypeNum; ++i) {
    const BoardInformation& board = *table.pBoardTypeArray[i];
    const bool is_pon =
        test::FakePlatform::Get().pon_cards.count(static_cast<int16_t>(board.ulType)) != 0;
    if (is_pon && board.ulTotalServePortNum > most) {
      type = board.ulType;
      most = board.ulTotalServePortNum;
    }
  }
  checker.Expect(
      table.ulSupportedBoardMaxPonType == type && table.ulSupportedBoardMaxPonNum == most,
      "board with most PON ports", most);
}

void CheckBoards(Checker& checker) {
  const SupportedBoardType& table = gstSupportedBoardType;
  const uint32_t count = table.ulSupportedBoardTypeNum;
  if (checker.failed() == kBoards) {
    checker.ExpectUncounted(count, MAX_OLT_BOARD_TYPE_NUM, table.pBoardTypeArray, "failed board");
  } else if (!checker.IsLoaded(kBoards)) {
    checker.ExpectNone(count, table.pBoardTypeArray, "boards after a failure");
  } else if (checker.ExpectRecords(count, MAX_OLT_BOARD_TYPE_NUM, table.pBoardTypeArray, "board")) {
    for (uint32_t i = 0; i < count; ++i) {
      CheckBoard(checker, *table.pBoardTypeArray[i], i);
    }
    CheckMaxPonBoard(checker);
    return;
  }
  checker.Expect(table.ulSupportedBoardMaxPonType == 0 && table.ulSupportedBoardMaxPonNum == 0,
                 "most PON ports without boards", count);
}

}  // namespace

void CheckOltTables(Checker& checker) {
  CheckPortTypes(checker);
  CheckMainBoards(checker);
  CheckBoards(checker);
}

}  // namespace mutated
