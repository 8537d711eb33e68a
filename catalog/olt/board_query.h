// What the questions about boards share: the checks in front and, for service
// boards, the search for the board.
#pragma once

#include <optional>

#include "common/codes.h"
#include "common/messages.h"
#include "common/table_queries.h"
#include "sys_context/olt.h"

namespace sys_context {

// The check of a table of boards, service or main, in the words of a query.
consteval TableCheck BoardTableCheck(const PartialMessage<uint32_t, uint32_t>& above_limit,
                                     const Message<uint32_t>& no_array) {
  return {
      .limit = MAX_OLT_BOARD_TYPE_NUM,
      .above_limit_code = kTooManyBoards,
      .no_array_code = kNoTable,
      .above_limit = above_limit,
      .no_array = no_array,
  };
}

inline int32_t CheckBoardTable(const TableCheck& check) {
  return CheckTable(check, gstSupportedBoardType.ulSupportedBoardTypeNum,
                    gstSupportedBoardType.pBoardTypeArray);
}

// How a query words its refusals, and what becomes of its output.
struct BoardQuery {
  Message<uint32_t> null_output;
  TableCheck table;
  std::optional<Message<uint32_t>> not_found = {};  // the type
  bool not_found_clears_output = true;
};

[[nodiscard]] int32_t CheckQuery(const BoardQuery& query, const uint32_t* output);

// The first board that fulfils `wanted`, or null.
template <typename Wanted>
const BoardInformation* FindBoard(Wanted wanted) {
  return FindRecord(gstSupportedBoardType.ulSupportedBoardTypeNum,
                    gstSupportedBoardType.pBoardTypeArray, wanted);
}

// The first board of the type. Null: the query has been refused, with kNoSuchBoard.
const BoardInformation* FindBoardOrRefuse(const BoardQuery& query, uint32_t type, uint32_t* output);

// Asks a board: `answer` stores what the board tells, or returns why it tells nothing.
template <typename Answer>
int32_t AskBoard(const BoardQuery& query, uint32_t type, uint32_t* output, Answer answer) {
  if (const int32_t code = CheckQuery(query, output); code != kOk) {
    return code;
  }
  const BoardInformation* const board = FindBoardOrRefuse(query, type, output);
  return board == nullptr ? kNoSuchBoard : answer(*board);
}

}  // namespace sys_context
