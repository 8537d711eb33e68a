// What the questions about service boards share.
#include "catalog/olt/board_query.h"

namespace sys_context {

int32_t CheckQuery(const BoardQuery& query, const uint32_t* output) {
  if (output == nullptr) {
    Report(Gate::kDebug, query.null_output, LowBits(output));
    return kNullArgument;
  }
  return CheckBoardTable(query.table);
}

const BoardInformation* FindBoardOrRefuse(const BoardQuery& query, uint32_t type,
                                          uint32_t* output) {
  const BoardInformation* const board =
      FindBoard([=](const BoardInformation& candidate) { return candidate.ulType == type; });
  if (board == nullptr) {
    if (query.not_found) {
      Report(Gate::kDebug, *query.not_found, type);
    }
    if (query.not_found_clears_output) {
      *output = 0;
    }
  }
  return board;
}

}  // namespace sys_context
