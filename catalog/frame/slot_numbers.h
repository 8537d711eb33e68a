// What numbers slots have.
#pragma once

#include <cstdint>

#include "sys_context/frame.h"

namespace sys_context {

// The one slot of the HCU class.
constexpr uint32_t kHcuSlot = 801;

// May these be the first and the last slot of any other class?
inline bool IsSlotRange(uint32_t first, uint32_t last) {
  return first <= last && last <= MAX_SLOT_END;
}

}  // namespace sys_context
