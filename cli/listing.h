// What the listings share.
#pragma once

#include "sys_context/platform.h"

namespace sys_context {

// The two blank lines behind the last row.
inline void EndListing(void* vty) {
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\n");
}

}  // namespace sys_context
