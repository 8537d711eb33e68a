// What the chassis holds at most.
#include "common/codes.h"
#include "common/messages.h"
#include "sys_context/frame.h"
#include "sys_context/platform.h"

namespace sys_context {
namespace {

// kept as is: only one device type goes by its definition file.
constexpr int32_t kDeviceTypeWithOwnMaximum = 17;
constexpr uint32_t kMaxOnuNumOfOthers = 17000;

}  // namespace
}  // namespace sys_context

int32_t ddGetMaxOnuNum(uint32_t* pulMaxOnuNum) {
  using namespace sys_context;
  if (pulMaxOnuNum == nullptr) {
    DebugConsole("\r\nddGetMaxOnuNum err! pulMaxOnuNum = 0x%x", LowBits(pulMaxOnuNum));
    return kNullArgument;
  }
  const bool has_own_maximum = get_system_device_type() == kDeviceTypeWithOwnMaximum;
  *pulMaxOnuNum = has_own_maximum ? gstFrame.ulMaxOnuNum : kMaxOnuNumOfOthers;
  return kOk;
}

int32_t ddGetMaxUserNum(uint32_t* pulMaxUserNum) {
  using namespace sys_context;
  if (pulMaxUserNum == nullptr) {
    DebugConsole("\r\nddGetMaxUserNum err! pulMaxUserNum = 0x%x", LowBits(pulMaxUserNum));
    return kNullArgument;
  }
  if (gstFrame.ulMaxUserNum > MAX_USER_NUM_PER_FRAME) {
    // kept as is: shows the users as ulMaxOnuNum.
    DebugConsole("\r\nddGetMaxUserNum err! ulMaxOnuNum = %d, MAX_USER_NUM_PER_FRAME = %d",
                 gstFrame.ulMaxUserNum, MAX_USER_NUM_PER_FRAME);
    return kAboveFrameLimit;
  }
  *pulMaxUserNum = gstFrame.ulMaxUserNum;
  return kOk;
}

int32_t ddGetMaxSlotNum(uint32_t* pulSlotRealNum) {
  using namespace sys_context;
  if (pulSlotRealNum == nullptr) {
    DebugConsole("\r\nddGetMaxSlotNum err! pulSlotRealNum = 0x%x", LowBits(pulSlotRealNum));
    return kNullArgument;
  }
  const uint32_t last_slot = gstFrame.stRealSlot.ulSlotEnd;
  if (last_slot > MAX_SLOT_END) {
    DebugConsole("\r\nddGetMaxSlotNum err! ulSLotEnd = %d", last_slot);
    return kBadSlotRange;
  }
  *pulSlotRealNum = last_slot;
  return kOk;
}

int32_t ddGetServeBoardSlotAmount(uint32_t* pulServeBoardSlotAmount) {
  using namespace sys_context;
  if (pulServeBoardSlotAmount == nullptr) {
    // kept as is: names another function.
    DebugConsole("\r\nddGetMaxSlotNum err! pulServeBoardSlotAmount = 0x%x",
                 LowBits(pulServeBoardSlotAmount));
    return kNullArgument;
  }
  *pulServeBoardSlotAmount = gstFrame.stServeBoardSlot.ulSlotAmount;
  return kOk;
}
