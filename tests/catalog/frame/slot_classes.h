// The slot classes of the chassis as a query may find them.
#pragma once

#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "support/asking.h"
#include "support/numbers.h"
#include "support/text.h"
#include "sys_context/frame.h"

namespace test {

using SlotClass = SlotClassInformation FrameInformation::*;
constexpr SlotClass kSlotClasses[] = {
    &FrameInformation::stRealSlot,       &FrameInformation::stVirtualSlot,
    &FrameInformation::stHcuSlot,        &FrameInformation::stFanSlot,
    &FrameInformation::stPowerSlot,      &FrameInformation::stCioSlot,
    &FrameInformation::stServeBoardSlot, &FrameInformation::stMainSlot,
    &FrameInformation::stUplinkSlot,
};

// The slots that are asked for: all that fit in a byte, the HCU slot, and numbers that
// are others in fewer bits.
inline const std::vector<uint32_t> kAskedSlots = [] {
  std::vector<uint32_t> slots = NumbersFrom(0, 256);
  slots.insert(slots.end(), {0x100, 0x105, 801, 0x10000, 0x10001, 0x10005, 0x10321, 0x80000000,
                             0x80000001, 0x80000005, 0xffffff05, 0xffffffff});
  return slots;
}();

// What a class lists.
struct Slots {
  const char* name;
  std::vector<uint32_t> listed;
  std::optional<uint32_t> announced = {};  // if it is not the number of those listed

  uint32_t amount() const { return announced ? *announced : static_cast<uint32_t>(listed.size()); }
  bool is_corrupt() const { return amount() > 100; }
};

inline const Slots kSlots[] = {
    {"None", {}},
    {"One", {5}},
    {"Ascending", NumbersFrom(1, 14)},
    {"Unordered", {9, 2, 801, 13, 1, 255, 65537, 0xffffffff}},
    {"Duplicates", {4, 7, 4, 4, 7}},
    {"SlotZero", {0, 3}},
    {"Full", NumbersFrom(1, 100)},
    {"OneTooMany", NumbersFrom(1, 100), 101},
    {"CorruptBehind8Bits", NumbersFrom(1, 100), 0x103},
    {"CorruptBehind16Bits", NumbersFrom(1, 100), 0x10003},
    {"CorruptNegative", NumbersFrom(1, 100), 0x80000003},
    {"CorruptMost", NumbersFrom(1, 100), 0xffffffff},
};

// The class in memory. Its free places hold slots 150 and up, and its first and last
// slot are nonsense: only what is listed counts.
inline SlotClassInformation ClassOf(const Slots& slots) {
  SlotClassInformation result = {};
  result.ulSlotAmount = slots.amount();
  result.ulSlotStart = 0xffffffff;
  for (uint32_t place = 0; place < std::size(result.ucSlotArray); ++place) {
    result.ucSlotArray[place] = place < slots.listed.size() ? slots.listed[place] : 150 + place;
  }
  return result;
}

class SlotClassesTest : public AskingTest {
 protected:
  // No two classes have the same number of slots, the same first or last slot, or a
  // slot in common: the first class has slot 10, the second 20 and 21, and so on.
  static void PutDifferentClasses() {
    uint32_t count = 0;
    for (const SlotClass slots : kSlotClasses) {
      ++count;
      gstFrame.*slots = ClassOf({"Different", NumbersFrom(10 * count, count)});
      (gstFrame.*slots).ulSlotStart = 10 * count;
      (gstFrame.*slots).ulSlotEnd = 11 * count - 1;
    }
  }
};

}  // namespace test
