// How many ports a board has.
#include "catalog/olt/board_query.h"

namespace sys_context {
namespace {

// kept as is: two queries share these messages, which name neither.
constexpr BoardQuery kServePortAmount = {
    .null_output = "\r\nddGetBoardServePortNumByType err! pulBoardServePortAmount = 0x%x",
    .table = BoardTableCheck("\r\nddGetBoardServePortNumByType err! ulSupportedBoardTypeNum = %d",
                             "\r\nddGetBoardServePortNumByType err! pBoardTypeArray = 0x%x"),
};

constexpr BoardQuery kSpecialPortNum = {
    .null_output = "\r\nddGetBoardSpecialPortNumByType err! pulBoardSpecialPortNum = 0x%x",
    .table = BoardTableCheck("\r\nddGetBoardSpecialPortNumByType err! ulSupportedBoardTypeNum = %d",
                             "\r\nddGetBoardSpecialPortNumByType err! pBoardTypeArray = 0x%x"),
    .not_found_clears_output = false,
};

constexpr BoardQuery kTotalSpecialPortNum = {
    .null_output = "\r\nddGetBoardTotalSpecialPortNum err! pulBoardSpecialPortNum = 0x%x",
    .table = BoardTableCheck("\r\nddGetBoardTotalSpecialPortNum err! ulSupportedBoardTypeNum = %d",
                             "\r\nddGetBoardTotalSpecialPortNum err! pBoardTypeArray = 0x%x"),
    .not_found_clears_output = false,
};

int32_t CountSpecialPorts(const BoardInformation& board, uint32_t board_type, uint32_t port_type,
                          uint32_t* number) {
  const uint32_t total = board.ulTotalSpecialPortNum;
  if (total > MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD) {
    DebugConsole(
        "\r\nddGetBoardSpecialPortNumByType err! ulBoardType = %d, ulPortType = %d, ulBoardSpecialPortNum = %d, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = %d",
        board_type, port_type, total, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD);
    return kTooManyPorts;
  }
  if (total != 0 && board.pSpecialPortArray == nullptr) {
    DebugConsole("\r\nddGetBoardSpecialPortNumByType err! pSpecialPortArray = 0x%x",
                 LowBits(board.pSpecialPortArray));
    return kCorruptPorts;
  }
  uint32_t found = 0;
  for (uint32_t i = 0; i < total; ++i) {
    const OltPortInformation* const port = board.pSpecialPortArray[i];
    if (port == nullptr) {
      DebugConsole(
          "\r\nddGetBoardSpecialPortNumByType err! ulBoardType = %d, ulPortType = %d, pstOltPortInformation = 0x%x",
          board_type, port_type, LowBits(port));
      return kCorruptPorts;
    }
    found += port->ulPortType == port_type ? 1 : 0;
  }
  *number = found;
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddGetBoardServePortAmountByType(uint32_t ulBoardType, uint32_t* pulBoardServePortAmount) {
  using namespace sys_context;
  return AskBoard(kServePortAmount, ulBoardType, pulBoardServePortAmount,
                  [=](const BoardInformation& board) {
                    *pulBoardServePortAmount = board.ulTotalServePortNum;
                    return kOk;
                  });
}

int32_t ddGetBoardTotailPortAmountByType(uint32_t, uint32_t* pulBoardServePortAmount) {
  using namespace sys_context;
  if (const int32_t code = CheckQuery(kServePortAmount, pulBoardServePortAmount); code != kOk) {
    return code;
  }
  // kept as is: this query finds no board, whatever boards there are.
  *pulBoardServePortAmount = 0;
  return kNoSuchBoard;
}

int32_t ddGetBoardSpecialPortNumByType(uint32_t ulBoardType, uint32_t ulPortType,
                                       uint32_t* pulBoardSpecialPortNum) {
  using namespace sys_context;
  return AskBoard(
      kSpecialPortNum, ulBoardType, pulBoardSpecialPortNum, [=](const BoardInformation& board) {
        return CountSpecialPorts(board, ulBoardType, ulPortType, pulBoardSpecialPortNum);
      });
}

int32_t ddGetBoardTotalSpecialPortNum(uint32_t ulBoardType, uint32_t* pulBoardSpecialPortNum) {
  using namespace sys_context;
  return AskBoard(
      kTotalSpecialPortNum, ulBoardType, pulBoardSpecialPortNum,
      [=](const BoardInformation& board) {
        const uint32_t total = board.ulTotalSpecialPortNum;
        if (total > MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD) {
          DebugConsole(
              "\r\nddGetBoardTotalSpecialPortNum err! ulBoardType = %d, ulBoardSpecialPortNum = %d, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD = %d",
              ulBoardType, total, MAX_OLT_SPECIAL_PORT_NUM_PER_BOARD);
          return kTooManyPorts;
        }
        *pulBoardSpecialPortNum = total;
        return kOk;
      });
}
