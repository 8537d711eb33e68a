// The frame as text, to compare with.
#pragma once

#include <string>
#include <vector>

#include "sys_context/frame.h"

namespace test {

// "2 3..5: 3 5": the amount, the first and the last slot, and the list without the
// zeros at its end.
std::string Shown(const SlotClassInformation& slots);

// "1/2/3 4/5/6": the entries as a line of the file has them, without the zeros at
// their end.
std::string Shown(const SwitchChipLogicPortToSlotPort (&ports)[MAX_SWITCH_CHIP_LOGIC_PORT_NUM]);
std::string Shown(const BalanceSwitchLogicPortInfo (&ports)[MAX_SWITCH_CHIP_LOGIC_PORT_NUM]);

// "1: 71 72, 4: 74": the boards of the slots that have some; "none" without rows.
std::string ShownBoards(const FrameInformation& frame);

// A line for each thing that the loader reads, in its order.
std::vector<std::string> Shown(const FrameInformation& frame);

}  // namespace test
