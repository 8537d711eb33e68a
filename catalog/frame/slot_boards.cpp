// The boards that a slot takes.
#include "catalog/frame/slot_boards.h"

#include <algorithm>
#include <iterator>

#include "catalog/frame/slot_numbers.h"
#include "common/codes.h"
#include "common/messages.h"

namespace sys_context {

SlotSupportBoard* FindSlotBoards(uint32_t slot) {
  const bool has_row = gstFrame.pstSlotArray != nullptr && slot <= gstFrame.stRealSlot.ulSlotEnd;
  return has_row ? &gstFrame.pstSlotArray[slot] : nullptr;
}

namespace {

constexpr uint32_t kHcuBoardType = 624;

}  // namespace
}  // namespace sys_context

// kept as is: its messages name ddCanBoardPlugInSlot, a function that there is not.
int32_t ddCanBoardPlugInSlotByType(uint32_t ulSlotOut, uint32_t ulBoardType,
                                   uint32_t* pulCanPlugIn) {
  using namespace sys_context;
  if (pulCanPlugIn == nullptr) {
    DebugConsole("\r\nddCanBoardPlugInSlot err! pulCanPlugIn = 0x%x", LowBits(pulCanPlugIn));
    return kNullArgument;
  }
  *pulCanPlugIn = 0;
  if (ulSlotOut == kHcuSlot && ulBoardType == kHcuBoardType) {
    *pulCanPlugIn = 1;
    return kOk;
  }
  const uint32_t last_slot = gstFrame.stRealSlot.ulSlotEnd;
  if (ulSlotOut == 0 || ulSlotOut > last_slot) {
    DebugConsole("\r\nddCanBoardPlugInSlot err! ulSlotOut = %d, ulSLotEnd = %d", ulSlotOut,
                 last_slot);
    return kBadSlot;
  }
  const SlotSupportBoard* const boards = FindSlotBoards(ulSlotOut);
  if (boards == nullptr) {
    DebugConsole("\r\nddCanBoardPlugInSlot err! ulSlotOut = %d, pstSlotArray = 0x%x", ulSlotOut,
                 LowBits(boards));
    return kNoTable;
  }
  // kept as is: the places behind the last board hold type 0, which is found there.
  const auto end = std::end(boards->aulBoardType);
  if (std::find(std::begin(boards->aulBoardType), end, ulBoardType) == end) {
    return kBoardNotAllowed;
  }
  *pulCanPlugIn = 1;
  return kOk;
}
