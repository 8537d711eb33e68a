// Checking the frame, and emptying it.
#include <cstdlib>
#include <cstring>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/frame_shown.h"
#include "support/leaks.h"
#include "support/rows.h"
#include "support/tables.h"
#include "sys_context/frame.h"

namespace {

using std::string;
using Class = SlotClassInformation FrameInformation::*;

class FrameCheck : public test::LibraryTest {
 protected:
  // Failures are always told of.
  void Expect(int32_t code, const string& console) {
    for (const int32_t debug : {0, 1}) {
      ddDebugPrint = debug;
      EXPECT_EQ(ddCheckFrameInformation(), code);
      EXPECT_EQ(console_.Text(), console);
    }
  }

  test::Console console_;
};

// ---- Slot classes -------------------------------------------------------------------

struct CheckedClass {
  const char* name;
  Class slots;
  string corrupt[3];  // before the amount, the start and the end
  friend std::ostream& operator<<(std::ostream& out, const CheckedClass& checked) {
    return out << checked.name;
  }
};

// In the order in which they are checked.
const CheckedClass kChecked[] = {
    {"Real",
     &FrameInformation::stRealSlot,
     {"\r\nddGetMainSlotRange err! ulSlotRealNum = ", ", ulSLotStart = ", ", ulSLotEnd = "}},
    {"Power",
     &FrameInformation::stPowerSlot,
     {"\r\nddGetMainSlotRange err! ulPowerSlotAmount = ", ", ulPowerSlotStart = ",
      ", ulPowerSlotEnd = "}},
    {"Service",
     &FrameInformation::stServeBoardSlot,
     {"\r\nddGetMainSlotRange err! ulServeBoardSlotAmount = ", ", ulServeBoardSlotStart = ",
      ", ulServeBoardSlotEnd = "}},
    {"Main",
     &FrameInformation::stMainSlot,
     {"\r\nddGetMainSlotRange err! ulMainSlotAmount = ", ", ulMainSlotStart = ",
      ", ulMainSlotEnd = "}},
    {"Uplink",
     &FrameInformation::stUplinkSlot,
     {"\r\nddGetMainSlotRange err! ulUplinkSlotAmount = ", ", ulUplinkSlotStart = ",
      ", ulUplinkSlotEnd = "}},
};

string Corrupt(const CheckedClass& checked, const string& amount, const string& start,
               const string& end) {
  return checked.corrupt[0] + amount + checked.corrupt[1] + start + checked.corrupt[2] + end;
}

struct RangeRow {
  const char* name;
  uint32_t amount;
  uint32_t start;
  uint32_t end;
  bool is_consistent;
  const char* shown[3];  // in the message
  friend std::ostream& operator<<(std::ostream& out, const RangeRow& row) {
    return out << row.name;
  }
};

const RangeRow kRanges[] = {
    {"Empty", 0, 0, 0, true, {}},
    {"OneSlot", 1, 7, 7, true, {}},
    {"Most", 100, 100, 100, true, {}},
    {"Widest", 100, 0, 100, true, {}},
    {"FewOfManySlots", 1, 1, 100, true, {}},
    {"ManyOfOneSlot", 100, 1, 1, true, {}},
    {"AmountWithoutSlots", 5, 0, 0, true, {}},
    {"SlotsWithoutAmount", 0, 3, 4, true, {}},
    {"Descending", 2, 5, 4, false, {"2", "5", "4"}},
    {"DescendingToNothing", 2, 1, 0, false, {"2", "1", "0"}},
    {"LargestAmount", 0xffffffff, 1, 2, false, {"-1", "1", "2"}},
    {"AmountAbove", 101, 1, 2, false, {"101", "1", "2"}},
    {"StartAbove", 2, 101, 101, false, {"2", "101", "101"}},
    {"StartAboveTheEnd", 2, 101, 100, false, {"2", "101", "100"}},
    {"EndAbove", 2, 1, 101, false, {"2", "1", "101"}},
    {"LargestStart", 2, 0xffffffff, 4, false, {"2", "-1", "4"}},
    {"LargestEnd", 2, 1, 0xffffffff, false, {"2", "1", "-1"}},
    {"SignBit", 0x80000000, 0, 1, false, {"-2147483648", "0", "1"}},
};

class CheckOfAClass : public FrameCheck,
                      public testing::WithParamInterface<std::tuple<CheckedClass, RangeRow>> {};

TEST_P(CheckOfAClass, LooksAtItsRange) {
  const auto& [checked, row] = GetParam();
  gstFrame.*checked.slots = {row.amount, row.start, row.end, {}};
  if (row.is_consistent) {
    Expect(0, "");
  } else {
    Expect(-3, Corrupt(checked, row.shown[0], row.shown[1], row.shown[2]));
  }
  EXPECT_EQ((gstFrame.*checked.slots).ulSlotAmount, row.amount);  // the check empties nothing
}

INSTANTIATE_TEST_SUITE_P(Frame, CheckOfAClass,
                         testing::Combine(testing::ValuesIn(kChecked), testing::ValuesIn(kRanges)),
                         test::KindAndRow());

TEST_F(FrameCheck, LooksAtTheClassesInOrderAndThenAtTheLogicPorts) {
  gstFrame.ulSwitchChipLogicPortNum = 1281;
  for (const CheckedClass& checked : kChecked) {
    gstFrame.*checked.slots = {2, 4, 3, {}};
  }
  for (const CheckedClass& checked : kChecked) {
    Expect(-3, Corrupt(checked, "2", "4", "3"));
    gstFrame.*checked.slots = {};
  }
  Expect(
      -3,
      "\r\nddGetMainSlotRange err! ulSwitchChipLogicPortNum = 1281,ulType2SwitchChipLogicPortNum = 0, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280");
}

TEST_F(FrameCheck, LooksAtTheRangeAlone) {
  for (const CheckedClass& checked : kChecked) {
    gstFrame.*checked.slots = {1, 1, 1, {0xffffffff, 101, 7}};
  }
  Expect(0, "");
}

struct UncheckedRow {
  const char* name;
  Class slots;
  friend std::ostream& operator<<(std::ostream& out, const UncheckedRow& row) {
    return out << row.name;
  }
};

class UncheckedClass : public FrameCheck, public testing::WithParamInterface<UncheckedRow> {};

TEST_P(UncheckedClass, MayHoldAnything) {
  for (const SlotClassInformation& slots :
       {SlotClassInformation{101, 1, 2, {}}, SlotClassInformation{1, 801, 801, {}},
        SlotClassInformation{1, 2, 1, {}},
        SlotClassInformation{0xffffffff, 0xffffffff, 0xfffffffe, {}}}) {
    gstFrame.*GetParam().slots = slots;
    Expect(0, "");
  }
}

INSTANTIATE_TEST_SUITE_P(Frame, UncheckedClass,
                         testing::Values(UncheckedRow{"Virtual", &FrameInformation::stVirtualSlot},
                                         UncheckedRow{"Hcu", &FrameInformation::stHcuSlot},
                                         UncheckedRow{"Fan", &FrameInformation::stFanSlot},
                                         UncheckedRow{"Cio", &FrameInformation::stCioSlot}),
                         testing::PrintToStringParamName());

// ---- Logic ports --------------------------------------------------------------------

struct PortsRow {
  const char* name;
  uint32_t ports;
  uint32_t type2_ports;
  int32_t code;
  string console = "";
  friend std::ostream& operator<<(std::ostream& out, const PortsRow& row) {
    return out << row.name;
  }
};

class CheckOfPorts : public FrameCheck, public testing::WithParamInterface<PortsRow> {};

TEST_P(CheckOfPorts, LooksAtBothCounts) {
  gstFrame.ulSwitchChipLogicPortNum = GetParam().ports;
  gstFrame.ulType2SwitchChipLogicPortNum = GetParam().type2_ports;
  Expect(GetParam().code, GetParam().console);
}

const PortsRow kPorts[] = {
    {"None", 0, 0, 0},
    {"Most", 1280, 1280, 0},
    {"OneTooMany", 1281, 0, -3,
     "\r\nddGetMainSlotRange err! ulSwitchChipLogicPortNum = 1281,ulType2SwitchChipLogicPortNum = 0, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"},
    {"OneTooManyOfType2", 5, 1281, -3,
     "\r\nddGetMainSlotRange err! ulSwitchChipLogicPortNum = 5,ulType2SwitchChipLogicPortNum = 1281, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"},
    {"Largest", 0xffffffff, 0xfffffffe, -3,
     "\r\nddGetMainSlotRange err! ulSwitchChipLogicPortNum = -1,ulType2SwitchChipLogicPortNum = -2, MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"},
};
INSTANTIATE_TEST_SUITE_P(Frame, CheckOfPorts, testing::ValuesIn(kPorts),
                         testing::PrintToStringParamName());

// ---- Emptying -----------------------------------------------------------------------

class EmptiedFrame : public test::LibraryTest {};

TEST_F(EmptiedFrame, HoldsNothing) {
  const std::vector<string> empty = test::Shown(FrameInformation{});
  test::Console console;
  test::Faults faults;
  std::memset(&gstFrame, 0xff, sizeof gstFrame);
  gstFrame.pstSlotArray = static_cast<SlotSupportBoard*>(std::malloc(sizeof(SlotSupportBoard)));
  for (const int32_t debug : {1, 0}) {
    ddDebugPrint = debug;
    EXPECT_EQ(ddEmptyFrameInformation(), 0);
    EXPECT_EQ(test::Shown(gstFrame), empty);
    EXPECT_EQ(gstFrame.pstSlotArray, nullptr);
    EXPECT_EQ(faults.frees, 1);
  }
  test::ExpectNoLeak(faults);
  EXPECT_EQ(console.Text(), "");
}

}  // namespace
