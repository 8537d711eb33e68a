// The boards that a slot takes.
#pragma once

#include <cstdint>

#include "sys_context/frame.h"

namespace sys_context {

// The boards of the slot; null when they are not loaded, or the slot lies behind
// the last real slot.
SlotSupportBoard* FindSlotBoards(uint32_t slot);

}  // namespace sys_context
