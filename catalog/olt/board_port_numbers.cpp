// What a port is, by its number on the board.
#include "catalog/olt/board_query.h"

namespace sys_context {
namespace {

// The serving and the special ports are asked alike.
struct PortByNumberQuery {
  BoardQuery board;
  uint32_t BoardInformation::*count;
  OltPortInformation** BoardInformation::*ports;

  Message<uint32_t, uint32_t> bad_number;              // the port number, the limit
  Message<uint32_t, uint32_t, uint32_t> not_on_board;  // and the board's serving ports between
  Message<uint32_t, uint32_t, uint32_t> no_ports;      // the board type, the array, the number
  Message<uint32_t, uint32_t, uint32_t> no_port;       // the board type, the record, the number
};

constexpr PortByNumberQuery kServingPortType = {
    .board =
        {
            .null_output = "\r\nddGetPortTypeByBoardType err! pulPortType = 0x%x",
            .table =
                BoardTableCheck("\r\nddGetPortTypeByBoardType err! ulSupportedBoardTypeNum = %d",
                                "\r\nddGetPortTypeByBoardType err! pBoardTypeArray = 0x%x"),
        },
    .count = &BoardInformation::ulTotalServePortNum,
    .ports = &BoardInformation::pPortArray,
    .bad_number =
        "\r\nddGetPortTypeByBoardType err! ulPortNo = %d, MAX_OLT_PORT_NUM_PER_BOARD = %d",
    .not_on_board =
        "\r\nddGetPortTypeByBoardType err! ulPortNo = %d, ulTotalServePortNum = %d, MAX_OLT_PORT_NUM_PER_BOARD = %d",
    .no_ports =
        "\r\nddGetPortTypeByBoardType err! ulBoardType = %d, pServePortArray = 0x%x, ulPortNo = %d",
    .no_port =
        "\r\nddGetPortTypeByBoardType err! ulBoardType = %d, pstOltPortInformation = 0x%x, ulPortNo = %d",
};

// kept as is: `not_on_board` shows the serving ports.
constexpr PortByNumberQuery kSpecialPortType = {
    .board =
        {
            .null_output = "\r\nddGetSpecialPortTypeByBoardType err! pulPortType = 0x%x",
            .table = BoardTableCheck(
                "\r\nddGetSpecialPortTypeByBoardType err! ulSupportedBoardTypeNum = %d",
                "\r\nddGetSpecialPortTypeByBoardType err! pBoardTypeArray = 0x%x"),
        },
    .count = &BoardInformation::ulTotalSpecialPortNum,
    .ports = &BoardInformation::pSpecialPortArray,
    .bad_number =
        "\r\nddGetSpecialPortTypeByBoardType err! ulSpcPortNo = %d, MAX_OLT_PORT_NUM_PER_BOARD = %d",
    .not_on_board =
        "\r\nddGetSpecialPortTypeByBoardType err! ulPortNo = %d, ulTotalServePortNum = %d, MAX_OLT_PORT_NUM_PER_BOARD = %d",
    .no_ports =
        "\r\nddGetSpecialPortTypeByBoardType err! ulBoardType = %d, pSpecialPortArray = 0x%x, ulPortNo = %d",
    .no_port =
        "\r\nddGetSpecialPortTypeByBoardType err! ulBoardType = %d, pstOltPortInformation = 0x%x, ulPortNo = %d",
};

int32_t GetPortType(const PortByNumberQuery& query, const BoardInformation& board, uint32_t number,
                    uint32_t* type) {
  const uint32_t count = board.*query.count;
  if (number > count || count > MAX_OLT_PORT_NUM_PER_BOARD) {
    Report(Gate::kDebug, query.not_on_board, number, board.ulTotalServePortNum,
           MAX_OLT_PORT_NUM_PER_BOARD);
    return kBadPortNumber;
  }
  OltPortInformation** const ports = board.*query.ports;
  if (ports == nullptr) {
    Report(Gate::kDebug, query.no_ports, board.ulType, LowBits(ports), number);
    return kNoPortOfThatNumber;
  }
  const OltPortInformation* const port = ports[number - 1];
  if (port == nullptr) {
    Report(Gate::kDebug, query.no_port, board.ulType, LowBits(port), number);
    return kNoPortOfThatNumber;
  }
  *type = port->ulPortType;
  return kOk;
}

// The number is checked before the board is looked for.
int32_t AskForPortByNumber(const PortByNumberQuery& query, uint32_t board_type, uint32_t number,
                           uint32_t* type) {
  if (const int32_t code = CheckQuery(query.board, type); code != kOk) {
    return code;
  }
  if (number == 0 || number > MAX_OLT_PORT_NUM_PER_BOARD) {
    Report(Gate::kDebug, query.bad_number, number, MAX_OLT_PORT_NUM_PER_BOARD);
    return kBadPortNumber;
  }
  const BoardInformation* const board = FindBoardOrRefuse(query.board, board_type, type);
  return board == nullptr ? kNoSuchBoard : GetPortType(query, *board, number, type);
}

}  // namespace
}  // namespace sys_context

int32_t ddGetPortTypeByBoardType(uint32_t ulBoardType, uint32_t ulPortNo, uint32_t* pulPortType) {
  using namespace sys_context;
  return AskForPortByNumber(kServingPortType, ulBoardType, ulPortNo, pulPortType);
}

int32_t ddGetSpecialPortTypeByBoardType(uint32_t ulBoardType, uint32_t ulSpcPortNo,
                                        uint32_t* pulPortType) {
  using namespace sys_context;
  return AskForPortByNumber(kSpecialPortType, ulBoardType, ulSpcPortNo, pulPortType);
}

int32_t ddGetPonMaxOnuNumByBoardType(uint32_t ulBoardType, uint32_t ulPonNo,
                                     uint32_t* pulMaxOnuNumPerPon) {
  using namespace sys_context;
  if (pulMaxOnuNumPerPon == nullptr) {
    DebugConsole("\r\nddGetPonMaxOnuNumByBoardType err! pulMaxOnuNumPerPon = 0x%x",
                 LowBits(pulMaxOnuNumPerPon));
    return kNullArgument;
  }
  uint32_t type = 0;
  if (const int32_t code = ddGetPortTypeByBoardType(ulBoardType, ulPonNo, &type); code != kOk) {
    DebugConsole(
        "\r\nddGetPonMaxOnuNumByBoardType->ddGetPortTypeByBoardType err! ulBoardType = %d, ulPonNo = %d",
        ulBoardType, ulPonNo);
    return code;
  }
  uint32_t ratio = 0;
  if (const int32_t code = ddGetOltPortSplittingRatioByType(type, &ratio); code != kOk) {
    // kept as is: names the query before, which did not fail.
    DebugConsole(
        "\r\nddGetPonMaxOnuNumByBoardType->ddGetPortTypeByBoardType err! ulBoardType = %d, ulPonNo = %d, ulPortType = %d",
        ulBoardType, ulPonNo, type);
    return code;
  }
  *pulMaxOnuNumPerPon = ratio;
  return kOk;
}
