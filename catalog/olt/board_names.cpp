// Names and types of boards.
#include <cstring>

#include "catalog/olt/board_query.h"
#include "common/names.h"

namespace sys_context {
namespace {

constexpr NameQuery kBoardByName = {
    .table = BoardTableCheck("\r\nddIsBoardTypeSupportedByName err! ulSupportedBoardTypeNum = %d",
                             "\r\nddIsBoardTypeSupportedByName err! pBoardTypeArray = 0x%x"),
    .null_argument =
        "\r\nddIsBoardTypeSupportedByName err! strBoardTypeSection = 0x%x, pIsSupported = 0x%x, pIndex = 0x%x",
    .name_too_long = "\r\nddIsBoardTypeSupportedByName err! strlen(strBoardTypeSection) = %d",
    .corrupt_length =
        "\r\nddIsBoardTypeSupportedByName err! ulNameLen = %d, ulSupportedBoardTypeNumIndex = %d",
};

constexpr TableCheck kNameByType =
    BoardTableCheck("\r\nddGetBoardNameByType err! ulSupportedBoardTypeNum = %d",
                    "\r\nddGetBoardNameByType err! pBoardTypeArray = 0x%x");
constexpr TableCheck kTypeByName =
    BoardTableCheck("\r\nddGetBoardTypeByName err! ulSupportedBoardTypeNum = %d",
                    "\r\nddGetBoardTypeByName err! pBoardTypeArray = 0x%x");

}  // namespace
}  // namespace sys_context

int32_t ddIsBoardTypeSupportedByName(const char* strBoardTypeSection, uint32_t* pIsSupported,
                                     uint32_t* pIndex) {
  using namespace sys_context;
  return AskForName(kBoardByName, gstSupportedBoardType.ulSupportedBoardTypeNum,
                    gstSupportedBoardType.pBoardTypeArray, strBoardTypeSection, pIsSupported,
                    pIndex);
}

int32_t ddGetBoardNameByType(uint32_t ulBoardType, char* pcBoardName) {
  using namespace sys_context;
  if (pcBoardName == nullptr) {
    DebugConsole("\r\nddGetBoardNameByType err!, pcBoardName = 0x%x", LowBits(pcBoardName));
    return kNullArgument;
  }
  if (ddGetMainBoardNameByType(ulBoardType, pcBoardName) == kOk) {
    return kOk;
  }
  if (const int32_t code = CheckBoardTable(kNameByType); code != kOk) {
    return code;
  }
  const BoardInformation* const board = FindBoard(
      [=](const BoardInformation& candidate) { return HasTypeAndName(candidate, ulBoardType); });
  if (board == nullptr) {
    return kNoSuchBoard;
  }
  std::memcpy(pcBoardName, board->acName, board->ulNameLen);
  return kOk;
}

int32_t ddGetBoardTypeByName(const char* pcBoardName, uint32_t* pulBoardType) {
  using namespace sys_context;
  if (pcBoardName == nullptr || pulBoardType == nullptr) {
    DebugConsole("\r\nddGetBoardTypeByName err!, pcBoardName = 0x%x, pulBoardType = 0x%x",
                 LowBits(pcBoardName), LowBits(pulBoardType));
    return kNullArgument;
  }
  if (ddGetMainBoardTypeByName(pcBoardName, pulBoardType) == kOk) {
    return kOk;
  }
  if (const int32_t code = CheckBoardTable(kTypeByName); code != kOk) {
    return code;
  }
  const BoardInformation* const board = FindBoard([=](const BoardInformation& candidate) {
    return NameEquals(pcBoardName, candidate.acName, candidate.ulNameLen);
  });
  if (board == nullptr) {
    return kNoSuchName;
  }
  *pulBoardType = board->ulType;
  return kOk;
}
