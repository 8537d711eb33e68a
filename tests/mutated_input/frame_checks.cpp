// The frame: slots, the boards they take, logic ports.
#include <algorithm>
#include <iterator>

#include "mutated_input/checker.h"
#include "sys_context/frame.h"

namespace mutated {
namespace {

// Type-2 logic ports that have a number.
constexpr uint32_t kNumberedType2Ports = 58;

template <typename Value>
bool IsZero(const Value* values, size_t count) {
  const auto* const bytes = reinterpret_cast<const char*>(values);
  const size_t size = count * sizeof *values;
  return size == 0 || (bytes[0] == 0 && std::memcmp(bytes, bytes + 1, size - 1) == 0);
}

struct SlotClass {
  const char* name;
  SlotClassInformation FrameInformation::*slots;
  bool is_checked;  // its range, by the loader
};

constexpr SlotClass kSlotClasses[] = {
    {"real slots", &FrameInformation::stRealSlot, true},
    {"virtual slots", &FrameInformation::stVirtualSlot, false},
    {"HCU slots", &FrameInformation::stHcuSlot, false},
    {"fan slots", &FrameInformation::stFanSlot, false},
    {"power slots", &FrameInformation::stPowerSlot, true},
    {"CIO slots", &FrameInformation::stCioSlot, false},
    {"service board slots", &FrameInformation::stServeBoardSlot, true},
    {"main slots", &FrameInformation::stMainSlot, true},
    {"uplink slots", &FrameInformation::stUplinkSlot, true},
};

void CheckSlotClass(Checker& checker, const SlotClass& slot_class) {
  const SlotClassInformation& slots = gstFrame.*slot_class.slots;
  const uint32_t amount = slots.ulSlotAmount;
  if (amount > MAX_SLOT_END) {
    checker.Expect(false, slot_class.name, amount);
    return;
  }
  const uint32_t first = amount == 0 ? 0 : slots.ucSlotArray[0];
  const uint32_t last = amount == 0 ? 0 : slots.ucSlotArray[amount - 1];
  checker.Expect(slots.ulSlotStart == first && slots.ulSlotEnd == last, slot_class.name, last);
  if (checker.IsLoaded(kFrame) && slot_class.is_checked) {
    checker.Expect(first <= last && last <= MAX_SLOT_END, slot_class.name, last);
  }
}

template <typename Table>
bool HasType(const Table& boards, uint32_t type) {
  return std::any_of(boards.pBoardTypeArray,
                     boards.pBoardTypeArray + boards.ulSupportedBoardTypeNum,
                     [&](const auto* board) { return board->ulType == type; });
}

bool IsBoard(uint32_t type) {
  return type == 0 || HasType(gstSupportedMainBoardType, type) ||
         HasType(gstSupportedBoardType, type);
}

// A row for each slot up to the last; only the slots listed take boards, and only known ones.
void CheckSlotBoards(Checker& checker) {
  const SlotClassInformation& real = gstFrame.stRealSlot;
  const SlotSupportBoard* const rows = gstFrame.pstSlotArray;
  checker.Expect(!checker.IsLoaded(kFrame) || rows != nullptr, "no boards of slots");
  if (rows == nullptr) {
    return;
  }
  if (checker.SizeOf(rows) != (size_t{real.ulSlotEnd} + 1) * sizeof *rows) {
    checker.Expect(false, "rows of slots", real.ulSlotEnd);
    return;
  }
  const auto* const listed_end = real.ucSlotArray + real.ulSlotAmount;
  for (uint32_t slot = 0; slot <= real.ulSlotEnd; ++slot) {
    const auto& types = rows[slot].aulBoardType;
    if (std::find(real.ucSlotArray, listed_end, slot) == listed_end) {
      checker.Expect(IsZero(types, std::size(types)), "boards of a slot that is not listed", slot);
    } else {
      checker.Expect(std::all_of(std::begin(types), std::end(types), IsBoard),
                     "unknown board in a slot", slot);
    }
  }
}

template <typename Port>
void CheckLogicPorts(Checker& checker, uint32_t count,
                     const Port (&ports)[MAX_SWITCH_CHIP_LOGIC_PORT_NUM], const char* what) {
  if (count > std::size(ports)) {
    checker.Expect(false, what, count);
    return;
  }
  for (uint32_t i = 0; i < count; ++i) {
    checker.Expect(ports[i].ucSlotOut <= gstFrame.stRealSlot.ulSlotEnd &&
                       ports[i].ucSlotPort <= MAX_OLT_PORT_NUM_PER_BOARD,
                   what, i);
  }
  if (checker.IsLoaded(kFrame)) {
    checker.Expect(IsZero(ports + count, std::size(ports) - count), what, count);
  }
}

}  // namespace

void CheckFrame(Checker& checker) {
  if (checker.failed() < kFrame) {
    checker.Expect(IsZero(&gstFrame, 1), "frame after a failure");
    return;
  }
  if (checker.IsLoaded(kFrame) || gstFrame.ulNameLen != 0) {
    checker.ExpectName(gstFrame.acName, gstFrame.ulNameLen, "frame's name");
  }
  checker.Expect(gstFrame.ulMaxOnuNum <= MAX_ONU_NUM_PER_FRAME, "ONUs", gstFrame.ulMaxOnuNum);
  checker.Expect(gstFrame.ulMaxUserNum <= MAX_USER_NUM_PER_FRAME, "users", gstFrame.ulMaxUserNum);
  for (const SlotClass& slot_class : kSlotClasses) {
    CheckSlotClass(checker, slot_class);
  }
  checker.Expect(!checker.IsLoaded(kFrame) || gstFrame.stRealSlot.ulSlotEnd != 0, "no real slot");
  CheckSlotBoards(checker);
  CheckLogicPorts(checker, gstFrame.ulSwitchChipLogicPortNum, gstFrame.astSwitchChipLogicPort,
                  "logic port");
  CheckLogicPorts(checker, gstFrame.ulType2SwitchChipLogicPortNum,
                  gstFrame.astType2SwitchChipLogicPort, "type-2 logic port");
  checker.Expect(IsZero(gstFrame.astType2SwitchChipLogicPort + kNumberedType2Ports,
                        std::size(gstFrame.astType2SwitchChipLogicPort) - kNumberedType2Ports),
                 "type-2 logic port without number");
}

}  // namespace mutated
