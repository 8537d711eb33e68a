// Values that the loader of the frame refuses, and what it leaves behind.
#include <ostream>
#include <string>
#include <vector>

#include "catalog/frame/frame_file.h"
#include "catalog/frame/frame_shown.h"
#include "support/definition_file.h"
#include "support/leaks.h"
#include "support/text.h"

namespace {

using std::string;

struct Row {
  const char* name;
  string from;  // piece of the section
  string to;
  int32_t code;
  string console;
  string debug_console;   // behind it, under the debug switch
  size_t lines;           // of the frame that are loaded; the others are the old ones
  string half_line = "";  // behind them, loaded in part
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

class RefusedFrame : public test::FrameTest, public testing::WithParamInterface<Row> {};

TEST_P(RefusedFrame, KeepsWhatWasRead) {
  const Row& row = GetParam();
  const test::DefinitionFile file(test::Replaced(test::kFrameSection, row.from, row.to));
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PutOldFrame();
    test::Faults faults;
    EXPECT_EQ(ddReadFrameInformation(file.path()), row.code);
    EXPECT_EQ(console_.Text(), row.console + (debug != 0 ? row.debug_console : ""));
    EXPECT_EQ(test::Shown(gstFrame), test::PartlyLoadedShown(row.lines, row.half_line));
    EXPECT_EQ(faults.frees, 0);
    EXPECT_EQ(faults.blocks.size(), gstFrame.pstSlotArray != nullptr ? 1u : 0u);
    ddEmptyFrameInformation();
  }
}

const char kOnus[] = "\r\nddReadFrameInformation err! ulMaxOnuNum = ";
const char kUsers[] = "\r\nddReadFrameInformation err! ulMaxUserNum = ";

string TooManyOnus(const string& number) {
  return kOnus + number + ", MAX_ONU_NUM_PER_FRAME = 100000";
}
string TooManyUsers(const string& number) {
  return kUsers + number + ", MAX_USER_NUM_PER_FRAME = 2400000";
}
string TooManySlots(const string& number, const string& word) {
  return "\r\nddReadOneSlotClass err! ulSlotAmount = " + number +
         ", MAX_SLOT_END = 100"
         "\r\nddReadFrameInformation->ddReadOneSlotClass err! iResult = -4, "
         "strSectionFrameNameBuf = KT3300-L_FrameInfomation, Key = " +
         word;
}
string Passed(const string& reader, const string& code) {
  return "\r\nddReadFrameInformation->" + reader + " err! iResult = " + code +
         ", strSectionFrameNameBuf = KT3300-L_FrameInfomation";
}
const string kPlainFailed = "ddReadSwitchChipLogicPortToSlotPort";
const string kType2Failed = "read_balance_switch_logicport_to_portinfo";

const Row kRows[] = {
    {"NameOf60Characters", "Name=KT3300-L", "Name=" + string(60, 'f'), -33,
     "\r\nddReadFrameInformation err! ulFrameNameLen = 61", "", 1},
    {"NameOf61Characters", "Name=KT3300-L", "Name=" + string(61, 'f'), -33,
     "\r\nddReadFrameInformation err! ulFrameNameLen = 62", "", 1},
    {"NameOf300Characters", "Name=KT3300-L", "Name=" + string(300, 'f'), -33,
     "\r\nddReadFrameInformation err! ulFrameNameLen = 301", "", 1},
    {"OneOnuTooMany", "MaxOnuNum=32768", "MaxOnuNum=100001", -1, TooManyOnus("100001"), "", 2},
    {"NegativeOnus", "MaxOnuNum=32768", "MaxOnuNum=-1", -1, TooManyOnus("-1"), "", 2},
    {"SaturatingOnus", "MaxOnuNum=32768", "MaxOnuNum=4294967297", -1, TooManyOnus("2147483647"), "",
     2},
    {"OneUserTooMany", "MaxUserNum=1048576", "MaxUserNum=2400001", -1, TooManyUsers("2400001"), "",
     3},
    {"NegativeUsers", "MaxUserNum=1048576", "MaxUserNum=-2400000", -1, TooManyUsers("-2400000"), "",
     3},
    {"SaturatingUsers", "MaxUserNum=1048576", "MaxUserNum=-4294967297", -1,
     TooManyUsers("-2147483648"), "", 3},
    {"TooManyRealSlots", "RealSlotNum=3", "RealSlotNum=101", -4, TooManySlots("101", "RealSlot"),
     "", 4},
    {"TooManyFanSlots", "FanSlotNum=1", "FanSlotNum=-1", -4, TooManySlots("-1", "FanSlot"), "", 7},
    {"TooManyUplinkSlots", "UplinkSlotNum=1", "UplinkSlotNum=101", -4,
     TooManySlots("101", "UplinkSlot"), "", 12},
    {"SlotOfTheMapBehindTheLast", "SwitchChipLogicPort2=4,128,1", "SwitchChipLogicPort2=5,128,1",
     -3, "\r\nddReadSwitchChipLogicPortToSlotPort err! ucSlotOut = 5, ulSLotEnd = 4",
     Passed(kPlainFailed, "-3"), 14, "ports 94: 2/1/0"},
    {"PortOfTheMapAboveTheLimit", "SwitchChipLogicPort2=4,128,1", "SwitchChipLogicPort2=4,129,1",
     -5,
     "\r\nddReadSwitchChipLogicPortToSlotPort err! ucSlotOut = 129, MAX_OLT_PORT_NUM_PER_BOARD = "
     "128",
     Passed(kPlainFailed, "-5"), 14, "ports 94: 2/1/0"},
    {"TooManyLogicPorts", "\nSwitchChipLogicPortNum=2", "\nSwitchChipLogicPortNum=1281", -22,
     "\r\nddReadSwitchChipLogicPortToSlotPort err! ulSwitchChipLogicPortNum = 1281",
     Passed(kPlainFailed, "-22"), 14},
    {"SlotOfTheType2MapBehindTheLast", "Type2SwitchChipLogicPort2=4,",
     "Type2SwitchChipLogicPort2=5,", -3,
     "\r\nread_balance_switch_logicport_to_portinfo err! ucSlotOut = 5, ulSLotEnd = 4",
     Passed(kType2Failed, "-3"), 15, "type-2 ports 95: 2/1/3/5/1"},
    {"PortOfTheType2MapAboveTheLimit", "Type2SwitchChipLogicPort1=2,1,",
     "Type2SwitchChipLogicPort1=2,129,", -5,
     "\r\nread_balance_switch_logicport_to_portinfo err! ucSlotOut = 129, "
     "MAX_OLT_PORT_NUM_PER_BOARD = 128",
     Passed(kType2Failed, "-5"), 15},
    {"TooManyType2LogicPorts", "Type2SwitchChipLogicPortNum=2", "Type2SwitchChipLogicPortNum=-1",
     -22, "\r\nread_balance_switch_logicport_to_portinfo err! ulSwitchChipLogicPortNum = -1",
     Passed(kType2Failed, "-22"), 15},
};
INSTANTIATE_TEST_SUITE_P(Frame, RefusedFrame, testing::ValuesIn(kRows),
                         testing::PrintToStringParamName());

// ---- No real slots ------------------------------------------------------------------

class FrameWithoutRealSlots : public test::FrameTest,
                              public testing::WithParamInterface<const char*> {};

TEST_P(FrameWithoutRealSlots, CannotBeLoaded) {
  const test::DefinitionFile file(
      test::Replaced(test::kFrameSection, "RealSlotNum=3\nRealSlotList=1,2,4\n", GetParam()));
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PutOldFrame();
    test::FrameStandIns::Reset();
    test::Faults faults;
    EXPECT_EQ(ddReadFrameInformation(file.path()), -4);
    EXPECT_EQ(console_.Text(), "\r\nddReadSlotSupportBoard err!, ulSLotEnd = 0" +
                                   (debug != 0 ? Passed("ddReadSlotSupportBoard", "-4") : ""));
    EXPECT_EQ(gstFrame.stRealSlot.ulSlotEnd, 0u);
    EXPECT_EQ(test::Shown(gstFrame)[12], "uplink 1 4..4: 4");  // what else was read stays
    EXPECT_EQ(test::FrameStandIns::Get().keys.back(), "KT3300-L_FrameInfomation: UplinkSlotList");
    EXPECT_EQ(faults.allocations.count(), 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Frame, FrameWithoutRealSlots,
                         testing::Values("RealSlotNum=0\n", "RealSlotNum=2\nRealSlotList=1,0\n",
                                         "RealSlotNum=1\nRealSlotList=\n"));

// ---- What the check refuses ---------------------------------------------------------

struct CheckRow {
  const char* name;
  string from;  // piece of the section
  string to;
  string console;
  friend std::ostream& operator<<(std::ostream& out, const CheckRow& row) {
    return out << row.name;
  }
};

class InconsistentFrame : public test::FrameTest, public testing::WithParamInterface<CheckRow> {};

TEST_P(InconsistentFrame, IsEmptied) {
  const test::DefinitionFile file(
      test::Replaced(test::kFrameSection, GetParam().from, GetParam().to));
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    PutOldFrame();
    test::Faults faults;
    EXPECT_EQ(ddReadFrameInformation(file.path()), -3);
    EXPECT_EQ(
        console_.Text(),
        GetParam().console +
            (debug != 0 ? "\r\nddReadFrameInformation->ddCheckFrameInformation err! iResult = -3"
                        : ""));
    EXPECT_EQ(test::Shown(gstFrame), test::Shown(FrameInformation{}));
    EXPECT_EQ(faults.allocations.count(), 1);
    EXPECT_EQ(faults.frees, 1);
    EXPECT_TRUE(faults.blocks.empty());
  }
}

const CheckRow kChecks[] = {
    {"RealSlots", "RealSlotList=1,2,4", "RealSlotList=5,2,4",
     "\r\nddReadSlotSupportBoard err! iResult = -2, section = KT3300-L_FrameInfomation, key = "
     "SupportedBoardTypeSlot5"
     "\r\nddGetMainSlotRange err! ulSlotRealNum = 3, ulSLotStart = 5, ulSLotEnd = 4"},
    {"PowerSlots", "PowerSlotList=21,22", "PowerSlotList=22,21",
     "\r\nddGetMainSlotRange err! ulPowerSlotAmount = 2, ulPowerSlotStart = 22, ulPowerSlotEnd = "
     "21"},
    {"ServiceSlots", "ServeBoardSlotList=2", "ServeBoardSlotList=101",
     "\r\nddGetMainSlotRange err! ulServeBoardSlotAmount = 1, ulServeBoardSlotStart = 101, "
     "ulServeBoardSlotEnd = 101"},
    {"MainSlots", "MainSlotList=1", "MainSlotList=-1",
     "\r\nddGetMainSlotRange err! ulMainSlotAmount = 1, ulMainSlotStart = -1, ulMainSlotEnd = -1"},
    {"UplinkSlots", "UplinkSlotNum=1", "UplinkSlotNum=2",
     "\r\nddGetMainSlotRange err! ulUplinkSlotAmount = 2, ulUplinkSlotStart = 4, ulUplinkSlotEnd "
     "= 0"},
};
INSTANTIATE_TEST_SUITE_P(Frame, InconsistentFrame, testing::ValuesIn(kChecks),
                         testing::PrintToStringParamName());

}  // namespace
