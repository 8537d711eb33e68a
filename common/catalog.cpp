// The look at a table before the look into it.
#include "common/catalog.h"

namespace sys_context {

int32_t CheckTable(const TableCheck& check, uint32_t count, const void* records) {
  if (count > check.limit) {
    Report(Gate::kDebug, check.above_limit, count);
    return check.above_limit_code;
  }
  if (records == nullptr) {
    Report(Gate::kDebug, check.no_array, LowBits(records));
    return check.no_array_code;
  }
  return kOk;
}

}  // namespace sys_context
