// What the listings share.
#pragma once

#include <cstdint>
#include <type_traits>

#include "common/messages.h"
#include "sys_context/platform.h"

namespace sys_context {

// Writes a text of a table to the terminal.
template <typename... Values>
void Write(void* vty, const Message<Values...>& text, std::type_identity_t<Values>... values) {
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
#pragma GCC diagnostic ignored "-Wformat-security"
  vty_out(vty, text.text(), values...);
#pragma GCC diagnostic pop
}

// Lets other tasks run before every `period`th row of a long listing.
inline void PauseBeforeRow(uint32_t row, uint32_t period) {
  constexpr int32_t kTicks = 2;
  if (row % period == period - 1) {
    bep_taskDelayEx(kTicks);
  }
}

// Ends the last row, and adds a blank line.
inline void EndListing(void* vty) {
  vty_out(vty, "\r\n");
  vty_out(vty, "\r\n");
}

}  // namespace sys_context
