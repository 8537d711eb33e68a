// The frame as text.
#include "catalog/frame/frame_shown.h"

#include <initializer_list>

namespace test {
namespace {

using std::string;
using std::to_string;

// The texts up to the last that is not `zero`, with blanks between them.
string Joined(const std::vector<string>& texts, const string& zero) {
  string joined;
  string zeros;
  for (const string& text : texts) {
    zeros += (joined.empty() && zeros.empty() ? "" : " ") + text;
    if (text != zero) {
      joined += zeros;
      zeros.clear();
    }
  }
  return joined;
}

template <typename Numbers>
string Numbered(const Numbers& numbers) {
  std::vector<string> texts;
  for (const uint32_t number : numbers) {
    texts.push_back(to_string(number));
  }
  return Joined(texts, "0");
}

string Line(std::initializer_list<uint32_t> numbers) {
  string line;
  for (const uint32_t number : numbers) {
    line += (line.empty() ? "" : "/") + to_string(number);
  }
  return line;
}

}  // namespace

string Shown(const SlotClassInformation& slots) {
  return to_string(slots.ulSlotAmount) + " " + to_string(slots.ulSlotStart) + ".." +
         to_string(slots.ulSlotEnd) + ": " + Numbered(slots.ucSlotArray);
}

string Shown(const SwitchChipLogicPortToSlotPort (&ports)[MAX_SWITCH_CHIP_LOGIC_PORT_NUM]) {
  std::vector<string> lines;
  for (const SwitchChipLogicPortToSlotPort& port : ports) {
    lines.push_back(Line({port.ucSlotOut, port.ucSlotPort, port.ucSlotFlag}));
  }
  return Joined(lines, "0/0/0");
}

string Shown(const BalanceSwitchLogicPortInfo (&ports)[MAX_SWITCH_CHIP_LOGIC_PORT_NUM]) {
  std::vector<string> lines;
  for (const BalanceSwitchLogicPortInfo& port : ports) {
    lines.push_back(
        Line({port.ucSlotOut, port.ucSlotPort, port.usChipPort, port.usPhyPort, port.ucHigigFlag}));
  }
  return Joined(lines, "0/0/0/0/0");
}

string ShownBoards(const FrameInformation& frame) {
  if (frame.pstSlotArray == nullptr) {
    return "none";
  }
  string text;
  for (uint32_t slot = 0; slot <= frame.stRealSlot.ulSlotEnd; ++slot) {
    const string boards = Numbered(frame.pstSlotArray[slot].aulBoardType);
    if (!boards.empty()) {
      text += (text.empty() ? "" : ", ") + to_string(slot) + ": " + boards;
    }
  }
  return text;
}

std::vector<string> Shown(const FrameInformation& frame) {
  string name(frame.acName, sizeof frame.acName);
  name.erase(name.find_last_not_of('\0') + 1);
  return {
      "type " + to_string(frame.eType),
      "name " + to_string(frame.ulNameLen) + " " + name,
      "onus " + to_string(frame.ulMaxOnuNum),
      "users " + to_string(frame.ulMaxUserNum),
      "real " + Shown(frame.stRealSlot),
      "virtual " + Shown(frame.stVirtualSlot),
      "hcu " + Shown(frame.stHcuSlot),
      "fan " + Shown(frame.stFanSlot),
      "cio " + Shown(frame.stCioSlot),
      "power " + Shown(frame.stPowerSlot),
      "service " + Shown(frame.stServeBoardSlot),
      "main " + Shown(frame.stMainSlot),
      "uplink " + Shown(frame.stUplinkSlot),
      "boards " + ShownBoards(frame),
      "ports " + to_string(frame.ulSwitchChipLogicPortNum) + ": " +
          Shown(frame.astSwitchChipLogicPort),
      "type-2 ports " + to_string(frame.ulType2SwitchChipLogicPortNum) + ": " +
          Shown(frame.astType2SwitchChipLogicPort),
  };
}

}  // namespace test
