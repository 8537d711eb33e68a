// Questions about the main boards.
#include <cstring>

#include "catalog/olt/board_query.h"
#include "common/names.h"

namespace sys_context {
namespace {

// How a query words the failures of its look into the table, and its code when
// no board is found.
struct MainBoardQuery {
  int32_t not_found_code;
  TableCheck table;
  Message<uint32_t> empty_place;
};

constexpr MainBoardQuery kNameByType = {
    .not_found_code = kNoSuchBoard,
    .table = BoardTableCheck(
        "\r\nddGetMainBoardNameByType err!, ulSupportedBoardTypeNum = %d, MAX_OLT_BOARD_TYPE_NUM = %d",
        "\r\nddGetMainBoardNameByType err!, pBoardTypeArray = 0x%x"),
    .empty_place = "\r\nddGetMainBoardNameByType err!, pstMainBoardInformation = 0x%x",
};

constexpr MainBoardQuery kTypeByName = {
    .not_found_code = kNoSuchName,
    .table = BoardTableCheck(
        "\r\nddGetMainBoardTypeByName err!, ulSupportedBoardTypeNum = %d, MAX_OLT_BOARD_TYPE_NUM = %d",
        "\r\nddGetMainBoardTypeByName err!, pBoardTypeArray = 0x%x"),
    .empty_place = "\r\nddGetMainBoardTypeByName err!, pstMainBoardInformation = 0x%x",
};

constexpr MainBoardQuery kObjByType = {
    .not_found_code = kNoSuchBoard,
    .table = BoardTableCheck(
        "\r\nddGetMainBoardObjByType err!, ulSupportedBoardTypeNum = %d, MAX_OLT_BOARD_TYPE_NUM = %d",
        "\r\nddGetMainBoardObjByType err!, pBoardTypeArray = 0x%x"),
    .empty_place = "\r\nddGetMainBoardObjByType err!, pstMainBoardInformation = 0x%x",
};

// Finds the first board that fulfils `wanted`; null after a failure.
template <typename Wanted>
int32_t FindMainBoard(const MainBoardQuery& query, Wanted wanted, MainBoardInformation*& board) {
  const SupportedMainBoardType& table = gstSupportedMainBoardType;
  board = nullptr;
  if (const int32_t code =
          CheckTable(query.table, table.ulSupportedBoardTypeNum, table.pBoardTypeArray);
      code != kOk) {
    return code;
  }
  for (uint32_t i = 0; i < table.ulSupportedBoardTypeNum; ++i) {
    MainBoardInformation* const candidate = table.pBoardTypeArray[i];
    if (candidate == nullptr) {
      Report(Gate::kDebug, query.empty_place, LowBits(candidate));
    } else if (wanted(*candidate)) {
      board = candidate;
      return kOk;
    }
  }
  return query.not_found_code;
}

}  // namespace
}  // namespace sys_context

int32_t ddGetMainBoardNameByType(uint32_t ulType, char* pcBoardName) {
  using namespace sys_context;
  if (pcBoardName == nullptr) {
    DebugConsole("\r\nddGetMainBoardNameByType err!, pcBoardName = 0x%x", LowBits(pcBoardName));
    return kNullArgument;
  }
  MainBoardInformation* board = nullptr;
  const auto wanted = [=](const MainBoardInformation& candidate) {
    return HasTypeAndName(candidate, ulType);
  };
  if (const int32_t code = FindMainBoard(kNameByType, wanted, board); code != kOk) {
    return code;
  }
  std::memcpy(pcBoardName, board->acName, board->ulNameLen);
  return kOk;
}

int32_t ddGetMainBoardTypeByName(const char* pcBoardName, uint32_t* pulBoardType) {
  using namespace sys_context;
  if (pcBoardName == nullptr || pulBoardType == nullptr) {
    DebugConsole("\r\nddGetMainBoardTypeByName err!, pcBoardName = 0x%x, pulBoardType = 0x%x",
                 LowBits(pcBoardName), LowBits(pulBoardType));
    return kNullArgument;
  }
  MainBoardInformation* board = nullptr;
  const auto wanted = [=](const MainBoardInformation& candidate) {
    return NameEquals(pcBoardName, candidate.acName, candidate.ulNameLen);
  };
  if (const int32_t code = FindMainBoard(kTypeByName, wanted, board); code != kOk) {
    return code;
  }
  *pulBoardType = board->ulType;
  return kOk;
}

int32_t ddGetMainBoardObjByType(uint32_t ulType, MainBoardInformation** pBoardTypeObjAddr) {
  using namespace sys_context;
  if (pBoardTypeObjAddr == nullptr) {
    DebugConsole("\r\nddGetMainBoardObjByType err!, pBoardTypeObjAddr = 0x%x",
                 LowBits(pBoardTypeObjAddr));
    return kNullArgument;
  }
  MainBoardInformation* board = nullptr;
  const auto wanted = [=](const MainBoardInformation& candidate) {
    return candidate.ulType == ulType;
  };
  const int32_t code = FindMainBoard(kObjByType, wanted, board);
  if (code == kNoTable) {
    return code;  // kept as is: this failure alone leaves the output untouched.
  }
  *pBoardTypeObjAddr = board;
  return code;
}
