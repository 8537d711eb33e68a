// Is the frame, as it was loaded, consistent?
#include "catalog/frame/slot_numbers.h"
#include "common/codes.h"
#include "common/messages.h"

namespace sys_context {
namespace {

struct CheckedClass {
  SlotClassInformation FrameInformation::*slots;
  Message<uint32_t, uint32_t, uint32_t> corrupt;
};

// kept as is: the messages name ddGetMainSlotRange, and the virtual, HCU, fan and
// CIO slots are not checked.
constexpr CheckedClass kCheckedClasses[] = {
    {&FrameInformation::stRealSlot,
     "\r\nddGetMainSlotRange err! ulSlotRealNum = %d, ulSLotStart = %d, ulSLotEnd = %d"},
    {&FrameInformation::stPowerSlot,
     "\r\nddGetMainSlotRange err! ulPowerSlotAmount = %d, ulPowerSlotStart = %d, ulPowerSlotEnd = %d"},
    {&FrameInformation::stServeBoardSlot,
     "\r\nddGetMainSlotRange err! ulServeBoardSlotAmount = %d, ulServeBoardSlotStart = %d, ulServeBoardSlotEnd = %d"},
    {&FrameInformation::stMainSlot,
     "\r\nddGetMainSlotRange err! ulMainSlotAmount = %d, ulMainSlotStart = %d, ulMainSlotEnd = %d"},
    {&FrameInformation::stUplinkSlot,
     "\r\nddGetMainSlotRange err! ulUplinkSlotAmount = %d, ulUplinkSlotStart = %d, ulUplinkSlotEnd = %d"},
};

bool IsConsistent(const SlotClassInformation& slots) {
  return slots.ulSlotAmount <= MAX_SLOT_END && IsSlotRange(slots.ulSlotStart, slots.ulSlotEnd);
}

}  // namespace
}  // namespace sys_context

int32_t ddCheckFrameInformation() {
  using namespace sys_context;
  for (const CheckedClass& checked : kCheckedClasses) {
    const SlotClassInformation& slots = gstFrame.*checked.slots;
    if (!IsConsistent(slots)) {
      Report(Gate::kAlways, checked.corrupt, slots.ulSlotAmount, slots.ulSlotStart,
             slots.ulSlotEnd);
      return kCorruptFrame;
    }
  }
  if (gstFrame.ulSwitchChipLogicPortNum > MAX_SWITCH_CHIP_LOGIC_PORT_NUM ||
      gstFrame.ulType2SwitchChipLogicPortNum > MAX_SWITCH_CHIP_LOGIC_PORT_NUM) {
    Console(
        "\r\nddGetMainSlotRange err! ulSwitchChipLogicPortNum = %d,ulType2SwitchChipLogicPortNum = %d, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = %d",
        gstFrame.ulSwitchChipLogicPortNum, gstFrame.ulType2SwitchChipLogicPortNum,
        MAX_SWITCH_CHIP_LOGIC_PORT_NUM);
    return kCorruptFrame;
  }
  return kOk;
}
