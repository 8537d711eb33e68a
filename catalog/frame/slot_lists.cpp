// The slots of each class.
#include <algorithm>

#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/frame.h"

namespace sys_context {
namespace {

int32_t GetList(const char* name, const SlotClassInformation& slots, uint32_t* list, uint32_t room,
                uint32_t* amount) {
  if (list == nullptr || amount == nullptr) {
    // kept as is: here and below, a pointer is shown with %d.
    DebugConsole("\r\n%s err! pulSlotArray = 0x%x, pulSlotAmount = %d", name, LowBits(list),
                 LowBits(amount));
    return kNullArgument;
  }
  const int32_t code = ddGetBoardSlotList(&slots, list, room, amount);
  if (code != kOk) {
    DebugConsole("\r\n%s->ddGetBoardSlotList err! iResult = %d, ulArrayAmount = %d", name, code,
                 room);
  }
  return code;
}

}  // namespace
}  // namespace sys_context

int32_t ddGetBoardSlotList(const SlotClassInformation* pstSlotClass, uint32_t* pulSlotArray,
                           uint32_t ulArrayAmount, uint32_t* pulSlotAmount) {
  using namespace sys_context;
  if (pstSlotClass == nullptr || pulSlotArray == nullptr || pulSlotAmount == nullptr) {
    // kept as is: "SlotSlot".
    DebugConsole(
        "\r\nddGetBoardSlotList err! pstSlotClass = 0x%x, pulSlotArray = 0x%x, pulSlotSlotAmount = %d",
        LowBits(pstSlotClass), LowBits(pulSlotArray), LowBits(pulSlotAmount));
    return kNullArgument;
  }
  const uint32_t amount = pstSlotClass->ulSlotAmount;
  if (amount > MAX_SLOT_END || amount > ulArrayAmount) {
    DebugConsole(
        "\r\nddGetBoardSlotList err! ulSlotAmount = %d, MAX_SLOT_END = %d, ulArrayAmount = %d",
        amount, MAX_SLOT_END, ulArrayAmount);
    return kSlotListTooSmall;
  }
  std::copy_n(pstSlotClass->ucSlotArray, amount, pulSlotArray);
  *pulSlotAmount = amount;
  return kOk;
}

// The query for the slots of one class.
#define SLOT_LIST(name, slots)                                                            \
  int32_t name(uint32_t* pulSlotArray, uint32_t ulArrayAmount, uint32_t* pulSlotAmount) { \
    return sys_context::GetList(#name, gstFrame.slots, pulSlotArray, ulArrayAmount,       \
                                pulSlotAmount);                                           \
  }

SLOT_LIST(ddGetRealSlotList, stRealSlot)
SLOT_LIST(ddGetVirtualSlotList, stVirtualSlot)
SLOT_LIST(ddGetMainBoardSlotList, stMainSlot)
SLOT_LIST(ddGetServeSlotList, stServeBoardSlot)
SLOT_LIST(ddGetUplinkSlotList, stUplinkSlot)
SLOT_LIST(ddGetFanSlotList, stFanSlot)
SLOT_LIST(ddGetPowerSlotList, stPowerSlot)
SLOT_LIST(ddGetCioSlotList, stCioSlot)
SLOT_LIST(ddGetHcuSlotList, stHcuSlot)

// kept as is: the prefix is doubled in one message, another names ddGetVirtualSlotList,
// the virtual slots are not checked against the room left, and what cannot be listed is
// left out with success.
int32_t ddGetAllSlotList(uint32_t* pulSlotArray, uint32_t ulArrayAmount, uint32_t* pulSlotAmount) {
  using namespace sys_context;
  if (pulSlotArray == nullptr || pulSlotAmount == nullptr) {
    DebugConsole("\r\nddddGetAllSlotList err! pulSlotArray = 0x%x, pulSlotAmount = %d",
                 LowBits(pulSlotArray), LowBits(pulSlotAmount));
    return kNullArgument;
  }
  uint32_t real = 0;
  if (const int32_t code =
          ddGetBoardSlotList(&gstFrame.stRealSlot, pulSlotArray, ulArrayAmount, &real);
      code != kOk) {
    DebugConsole(
        "\r\nddGetAllSlotList->ddGetBoardSlotList err!             iResult = %d, ulArrayAmount = %d, ulSlotAmount = %d",
        code, ulArrayAmount, gstFrame.stRealSlot.ulSlotAmount);
  }
  uint32_t virtual_slots = 0;
  if (const int32_t code = ddGetBoardSlotList(&gstFrame.stVirtualSlot, pulSlotArray + real,
                                              ulArrayAmount, &virtual_slots);
      code != kOk) {
    DebugConsole(
        "\r\nddGetVirtualSlotList->ddGetBoardSlotList err!             iResult = %d, ulArrayAmount = %d, ulSlotAmount = %d",
        code, ulArrayAmount, gstFrame.stVirtualSlot.ulSlotAmount);
  }
  *pulSlotAmount = real + virtual_slots;
  return kOk;
}
