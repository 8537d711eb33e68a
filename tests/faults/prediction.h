// What a start comes to when some of its lookups or allocations fail.
#pragma once

#include <functional>

#include "faults/clean_start.h"

namespace faults {

struct Prediction {
  int32_t code = 0;
  Contents contents;
  size_t lost = 0;       // blocks: ports of boards that are left out
  bool forgets = false;  // records that the failing loader has not counted
};

// `lookup_code` is what failing lookups answer.
Prediction Predict(const std::function<bool(const Event&)>& fails, int32_t lookup_code);

}  // namespace faults
