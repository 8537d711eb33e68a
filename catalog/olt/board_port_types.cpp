// The port types that a board carries.
#include <algorithm>

#include "catalog/olt/board_query.h"

namespace sys_context {
namespace {

constexpr BoardQuery kAllPortTypes = {
    .null_output = "\r\nddGetBoardAllPortTypesByType err! pulPortTypeNum = 0x%x",
    .table = BoardTableCheck("\r\nddGetBoardAllPortTypesByType err! ulSupportedBoardTypeNum = %d",
                             "\r\nddGetBoardAllPortTypesByType err! pBoardTypeArray = 0x%x"),
    .not_found = Message<uint32_t>("\r\nddGetBoardAllPortTypesByType err! ulBoardType = %d"),
};

// kept as is: its messages call it otherwise and begin with a blank; the last
// one is the other query's.
constexpr BoardQuery kOneTypePorts = {
    .null_output = "\r\n ddGetBoardAllPortsByType err! pulPortNum = 0x%x",
    .table = BoardTableCheck("\r\n ddGetBoardAllPortsByType err! ulSupportedBoardTypeNum = %d",
                             "\r\n ddGetBoardAllPortsByType err! pBoardTypeArray = 0x%x"),
    .not_found = Message<uint32_t>("\r\nddGetBoardAllPortTypesByType err! ulBoardType = %d"),
};

// Adds the types of some ports to a list that holds each type once.
int32_t AddPortTypes(uint32_t port_count, OltPortInformation* const* ports, uint32_t* list,
                     uint32_t room, uint32_t* count) {
  for (uint32_t i = 0; ports != nullptr && i < port_count; ++i) {
    if (ports[i] == nullptr ||
        std::find(list, list + *count, ports[i]->ulPortType) != list + *count) {
      continue;
    }
    if (*count >= room) {
      DebugConsole(
          "\r\n%s err! the range of list is small! ulArrayAmount = %d, realPortTypeNum = %d.",
          "ddGetBoardAllPortTypesByType", room, *count + 1);
      return kListTooSmall;
    }
    list[(*count)++] = ports[i]->ulPortType;
  }
  return kOk;
}

// Stores how many of some ports are of a type.
int32_t CountPorts(uint32_t port_count, OltPortInformation* const* ports, uint32_t type,
                   uint32_t* number) {
  uint32_t found = 0;
  for (uint32_t i = 0; ports != nullptr && i < port_count; ++i) {
    if (ports[i] == nullptr) {
      // kept as is: nothing parts the two values.
      DebugConsole(
          "\r\n ddGetBoardAllPortsByType err! ulSupportedPortIndex = %dpServePortArray = 0x%x", i,
          LowBits(ports[i]));
      return kHoleAmongPorts;
    }
    found += ports[i]->ulPortType == type ? 1 : 0;
  }
  *number = found;
  return kOk;
}

}  // namespace
}  // namespace sys_context

int32_t ddGetBoardAllPortTypesByType(uint32_t ulBoardType, uint32_t* pulPortTypeList,
                                     uint32_t ulArrayAmount, uint32_t* pulPortTypeNum) {
  using namespace sys_context;
  if (pulPortTypeList == nullptr) {
    // kept as is: shows the other pointer.
    Report(Gate::kDebug, kAllPortTypes.null_output, LowBits(pulPortTypeNum));
    return kNullArgument;
  }
  return AskBoard(kAllPortTypes, ulBoardType, pulPortTypeNum, [=](const BoardInformation& board) {
    *pulPortTypeNum = 0;
    const int32_t code = AddPortTypes(board.ulTotalServePortNum, board.pPortArray, pulPortTypeList,
                                      ulArrayAmount, pulPortTypeNum);
    return code != kOk ? code
                       : AddPortTypes(board.ulTotalSpecialPortNum, board.pSpecialPortArray,
                                      pulPortTypeList, ulArrayAmount, pulPortTypeNum);
  });
}

int32_t ddGetBoardOneTypePortsByType(uint32_t ulBoardType, uint32_t ulPortType,
                                     uint32_t* pulPortNum) {
  using namespace sys_context;
  return AskBoard(kOneTypePorts, ulBoardType, pulPortNum, [=](const BoardInformation& board) {
    const int32_t code =
        CountPorts(board.ulTotalServePortNum, board.pPortArray, ulPortType, pulPortNum);
    if (code != kOk || *pulPortNum != 0) {
      return code;
    }
    return CountPorts(board.ulTotalSpecialPortNum, board.pSpecialPortArray, ulPortType, pulPortNum);
  });
}
