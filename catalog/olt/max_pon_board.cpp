// The PON board with most serving ports.
#include "catalog/olt/board_query.h"
#include "common/card_kinds.h"

namespace sys_context {
namespace {

constexpr TableCheck kTableCheck =
    BoardTableCheck("\r\nddFindSupportedBoardMaxPonNum err! ulSupportedBoardTypeNum = %d",
                    "\r\nddFindSupportedBoardMaxPonNum err! pBoardTypeArray = 0x%x");

bool IsPonBoard(const BoardInformation& board) {
  return IsCardOfKind(static_cast<int32_t>(board.ulType), caCheckCardTypeIsPonCard);
}

}  // namespace
}  // namespace sys_context

int32_t ddFindSupportedBoardMaxPonNum() {
  using namespace sys_context;
  SupportedBoardType& boards = gstSupportedBoardType;
  if (const int32_t code = CheckBoardTable(kTableCheck); code != kOk) {
    return code;
  }
  uint32_t best_type = 0;
  uint32_t best_count = 0;
  for (uint32_t i = 0; i < boards.ulSupportedBoardTypeNum; ++i) {
    const BoardInformation* const board = boards.pBoardTypeArray[i];
    if (board != nullptr && IsPonBoard(*board) && board->ulTotalServePortNum > best_count) {
      best_type = board->ulType;
      best_count = board->ulTotalServePortNum;
    }
  }
  boards.ulSupportedBoardMaxPonType = best_type;
  boards.ulSupportedBoardMaxPonNum = best_count;
  return kOk;
}

int32_t ddGetSupportedBoardMaxPonNum(uint32_t* pulSupportedBoardMaxPonNum) {
  using namespace sys_context;
  if (pulSupportedBoardMaxPonNum == nullptr) {
    DebugConsole("\r\nddGetSupportedBoardMaxPonNum, pulSupportedBoardMaxPonNum = 0x%x",
                 LowBits(pulSupportedBoardMaxPonNum));
    return kNullArgument;
  }
  const uint32_t count = gstSupportedBoardType.ulSupportedBoardMaxPonNum;
  if (count == 0 || count > MAX_OLT_PORT_NUM_PER_BOARD) {
    DebugConsole(
        "\r\nddGetSupportedBoardMaxPonNum err! ulSupportedBoardMaxPonNum = %d, MAX_OLT_PORT_NUM_PER_BOARD = %d",
        count, MAX_OLT_PORT_NUM_PER_BOARD);
    return kNoPonBoard;
  }
  *pulSupportedBoardMaxPonNum = count;
  return kOk;
}
