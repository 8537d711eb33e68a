// A frame to print. What it leads to is the fixture's.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "cli/olt_printer_test.h"
#include "sys_context/frame.h"

namespace test {

constexpr char kNoSlots[] =
    "\r\nulSlotAmount =  0, ulSlotStart  =  0, ulSlotEnd  =  0"
    "\r\nucSlotArray = Empty"
    "\r\n";

// The listing of a frame that is empty but for its real slots, as they are shown,
// and what stands behind the slot classes.
inline std::string FrameListing(const std::string& real_slots, const std::string& rest) {
  std::string text =
      "\r\nFrameInfomation:"
      "\r\neType = 0, ulNameLen = 0, acName = "
      "\r\nulMaxOnuNum       =  0, ulMaxUserNum    =  0"
      "\r\n\r\nRealSlot:" +
      real_slots;
  for (const char* const header : {"FanSlot", "PowerSlot", "CioSlot", "ServeBoardClassSlot",
                                   "MainBoardClassSlot", "UplinkBoardClassSlot"}) {
    text += std::string("\r\n\r\n") + header + ":" + kNoSlots;
  }
  return text + rest;
}

class FramePrinterTest : public OltPrinterTest {
 protected:
  void TearDown() override {
    gstFrame = {};
    OltPrinterTest::TearDown();
  }

  static SlotClassInformation Slots(const std::vector<uint32_t>& slots) {
    SlotClassInformation slot_class = {};
    slot_class.ulSlotAmount = static_cast<uint32_t>(slots.size());
    if (!slots.empty()) {
      slot_class.ulSlotStart = slots.front();
      slot_class.ulSlotEnd = slots.back();
    }
    std::copy(slots.begin(), slots.end(), slot_class.ucSlotArray);
    return slot_class;
  }
  // A row for each slot up to the last real one.
  void AddBoardRows() {
    rows_.assign(gstFrame.stRealSlot.ulSlotEnd + 1, SlotSupportBoard());
    gstFrame.pstSlotArray = rows_.data();
  }
  static void SetBoards(uint32_t slot, const std::vector<uint32_t>& types) {
    std::copy(types.begin(), types.end(), gstFrame.pstSlotArray[slot].aulBoardType);
  }
  static void AddLogicPort(const SwitchChipLogicPortToSlotPort& entry) {
    gstFrame.astSwitchChipLogicPort[gstFrame.ulSwitchChipLogicPortNum++] = entry;
  }
  static void AddBalancePort(const BalanceSwitchLogicPortInfo& entry) {
    gstFrame.astType2SwitchChipLogicPort[gstFrame.ulType2SwitchChipLogicPortNum++] = entry;
  }

  std::vector<SlotSupportBoard> rows_;
};

}  // namespace test
