// What the listings share.
#pragma once

#include <cstdint>

#include "sys_context/platform.h"

namespace sys_context {

// Lets other tasks run before every `period`th row of a long listing.
inline void PauseBeforeRow(uint32_t row, uint32_t period) {
  constexpr int32_t kTicks = 2;
  if (row % period == period - 1) {
    bep_taskDelayEx(kTicks);
  }
}

// The two blank lines behind the last row.
inline void EndListing(void* vty) {
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\n");
}

}  // namespace sys_context
