// Reading which boards each slot takes.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "catalog/frame/pieces.h"
#include "catalog/frame/slot_boards.h"
#include "cfgfile/keys.h"
#include "common/codes.h"
#include "common/memory.h"
#include "common/messages.h"

namespace sys_context {
namespace {

// A row for each slot up to the last, zeroed, or null.
SlotSupportBoard* NewRows(uint32_t last_slot) {
  if (last_slot == std::numeric_limits<uint32_t>::max()) {
    return nullptr;
  }
  return NewArray<SlotSupportBoard>(last_slot + 1).release();
}

// Stores the types of the boards that `names` lists.
void StoreBoards(const char* names, uint32_t slot_index, uint32_t slot) {
  SlotSupportBoard* const boards = FindSlotBoards(slot);
  uint32_t stored = 0;
  ForEachPiece(names, '|', [&](const char* text, uint32_t, bool) {
    Value name;
    std::copy(text, text + std::strcspn(text, "|"), name.text);
    uint32_t type = 0;
    if (const int32_t code = ddGetCardTypeByName(name.text, &type); code != kOk) {
      Console(
          "\r\nddReadSlotSupportBoard err! iResult = %d, _tmp = %s, ulSlotListIndex = %d, ulSlotOut = %d, ulSLotEnd = %d",
          code, name.text, slot_index, slot, gstFrame.stRealSlot.ulSlotEnd);
    } else if (boards != nullptr && stored < MAX_BOARD_TYPE_NUM_PER_SLOT) {
      boards->aulBoardType[stored++] = type;
    }
  });
}

}  // namespace
}  // namespace sys_context

int32_t ddReadSlotSupportBoard(const char* strFileName, const char* strSectionFrameName) {
  using namespace sys_context;
  if (strFileName == nullptr || strSectionFrameName == nullptr) {
    Console("\r\nddReadSlotSupportBoard err!, strFileName = 0x%x, strSectionFrameName = 0x%x",
            LowBits(strFileName), LowBits(strSectionFrameName));
    return kNullArgument;
  }
  const SlotClassInformation& real = gstFrame.stRealSlot;
  if (real.ulSlotEnd == 0) {
    Console("\r\nddReadSlotSupportBoard err!, ulSLotEnd = %d", real.ulSlotEnd);
    return kNoRealSlot;
  }
  std::free(gstFrame.pstSlotArray);
  gstFrame.pstSlotArray = NewRows(real.ulSlotEnd);
  if (gstFrame.pstSlotArray == nullptr) {
    Console("\r\nddReadSlotSupportBoard->malloc err! gstFrame.pstSlotArray = 0x%x",
            LowBits(gstFrame.pstSlotArray));
    return kNoMemory;
  }
  static constexpr KeyMessage kUnreadable =
      "\r\nddReadSlotSupportBoard err! iResult = %d, section = %s, key = %s";
  const uint32_t amount = std::min<uint32_t>(real.ulSlotAmount, MAX_SLOT_END);
  for (uint32_t i = 0; i < amount; ++i) {
    const uint32_t slot = real.ucSlotArray[i];
    const NumberedKey key("SupportedBoardTypeSlot", slot);
    Value names;
    if (ReadKey(strFileName, strSectionFrameName, key.text, names, kUnreadable) == kOk) {
      StoreBoards(names.text, i, slot);
    }
  }
  return kOk;
}
