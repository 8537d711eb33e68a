// Questions by name: those that make sense, and what is said of the others.
#include "host/ask.h"

#include <gmock/gmock.h>

#include <ostream>

#include "sys_context/context.h"
#include "sys_context/frame.h"

namespace sysctx {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

struct Row {
  const char* name;
  Words words;
  const char* text;
  friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

// A frame with the slots 1 to 3, of which 3 is a main slot.
class SmallFrame : public testing::Test {
 protected:
  SmallFrame() {
    gstFrame.stRealSlot = {3, 1, 3, {1, 2, 3}};
    gstFrame.stMainSlot = {1, 3, 3, {3}};
  }
  ~SmallFrame() override {
    gstFrame = {};
    ddDebugPrint = 0;
  }
};

class Asked : public SmallFrame, public testing::WithParamInterface<Row> {};

TEST_P(Asked, IsAnswered) {
  EXPECT_EQ(DescribeAnswer(PrepareQuestion(GetParam().words)()), GetParam().text);
}

const Row kAnswered[] = {
    {"NumberOut", {"ddIsRealSlot", "3"}, "code = 0\npulCanPlugIn = 1\n"},
    {"Failure", {"ddIsRealSlot", "4"}, "code = -4\npulCanPlugIn = 0\n"},
    {"TwoNumbersOut",
     {"ddGetRealSlotRange"},
     "code = 0\npulRealSlotStart = 1\npulRealSlotEnd = 3\n"},
    {"List", {"ddGetRealSlotList", "3"}, "code = 0\npulSlotArray = 1 2 3\npulSlotAmount = 3\n"},
    {"ListTooLong",
     {"ddGetRealSlotList", "2"},
     "code = -25\npulSlotArray = (untouched)\npulSlotAmount = (untouched)\n"},
    {"LargestCapacity",
     {"ddGetAllSlotList", "0xffffffff"},
     "code = 0\npulSlotArray = 1 2 3\npulSlotAmount = 3\n"},
    {"SlotClass", {"ddIsSlotInSlotList", "3", "MainSlot"}, "code = 0\npulIsIn = 1\n"},
    {"OtherSlotClass", {"ddIsSlotInSlotList", "2", "MainSlot"}, "code = -4\npulIsIn = 0\n"},
    {"SlotClassList",
     {"ddGetBoardSlotList", "MainSlot", "1"},
     "code = 0\npulSlotArray = 3\npulSlotAmount = 1\n"},
    {"Value", {"ddGetMaxMainSlot"}, "value = 3\n"},
    {"NegativeNumber", {"ddIsSysSupportFunc", "-1"}, "code = -29\npulIsSupported = 0\n"},
    {"EmptyTextIn", {"ddGetCardTypeByName", ""}, "code = -32\npulCardType = (untouched)\n"},
};

INSTANTIATE_TEST_SUITE_P(All, Asked, testing::ValuesIn(kAnswered),
                         testing::PrintToStringParamName());

TEST_F(SmallFrame, MessagesAreKeptApart) {
  EXPECT_EQ(PrepareQuestion({"ddIsRealSlot", "0"})().console, "");
  ddDebugPrint = 1;
  EXPECT_EQ(PrepareQuestion({"ddIsRealSlot", "0"})().console,
            "\r\nddIsRealSlot err! ulSlotOut = 0");
}

class Refused : public testing::TestWithParam<Row> {};

TEST_P(Refused, WithTheReason) {
  EXPECT_THAT([] { PrepareQuestion(GetParam().words)(); },
              ThrowsMessage<BadQuestion>(GetParam().text));
}

const Row kRefused[] = {
    {"OtherCase",
     {"ddisrealslot", "3"},
     "unknown query 'ddisrealslot'\ndid you mean ddIsRealSlot?\n"},
    {"PartOfOneName",
     {"VectorBoard", "3"},
     "unknown query 'VectorBoard'\ndid you mean ddIsVectorBoardSlot?\n"},
    {"PartOfSeveralNames",
     {"RunGetSwitch"},
     "unknown query 'RunGetSwitch'\n"
     "did you mean ddRunGetSwitchChipPhyPortFromLogicPort,"
     " ddRunGetSwitchChipLogicPortFromPhyPort?\n"},
    {"Misspelt",
     {"ddIsRaelSlot", "1"},
     "unknown query 'ddIsRaelSlot'\ndid you mean ddIsRealSlot, ddIsValidSlot, ddIsVirtualSlot?\n"},
    {"WordsLeftOut",
     {"ddGetSlotFromLogicPort", "1"},
     "unknown query 'ddGetSlotFromLogicPort'\n"
     "did you mean ddGetSlotPortFromSwitchChipLogicPort?\n"},
    {"Unlike", {"zzz"}, "unknown query 'zzz'\n\"sysctx ask\" lists all queries\n"},
    {"TooFew",
     {"ddIsRealSlot"},
     "ddIsRealSlot takes 1 argument, not 0\nusage: sysctx ask ddIsRealSlot ulSlotOut\n"},
    {"TooMany",
     {"ddIsRealSlot", "1", "2"},
     "ddIsRealSlot takes 1 argument, not 2\nusage: sysctx ask ddIsRealSlot ulSlotOut\n"},
    {"TooManyForNone",
     {"ddGetFrameName", "x"},
     "ddGetFrameName takes 0 arguments, not 1\nusage: sysctx ask ddGetFrameName\n"},
    {"OutputsAreNotGiven",
     {"ddGetBoardAllPortTypesByType", "3101", "0", "30"},
     "ddGetBoardAllPortTypesByType takes 2 arguments, not 3\n"
     "usage: sysctx ask ddGetBoardAllPortTypesByType ulBoardType ulArrayAmount\n"},
    {"NumberThatMayChangeIsGiven",
     {"ddGetAllSupportedOnuType"},
     "ddGetAllSupportedOnuType takes 1 argument, not 0\n"
     "usage: sysctx ask ddGetAllSupportedOnuType pulOnuTypeNum\n"},
    {"NoNumber",
     {"ddIsRealSlot", "seven"},
     "bad ulSlotOut 'seven': a number from 0 to 4294967295 is wanted\n"
     "usage: sysctx ask ddIsRealSlot ulSlotOut\n"},
    {"NoSlotClass",
     {"ddIsSlotInSlotList", "3", "Slots"},
     "bad pstSlotClass 'Slots': there is no such slot class\n"
     "usage: sysctx ask ddIsSlotInSlotList ulSlotOut pstSlotClass\n"
     "pstSlotClass: one of RealSlot, VirtualSlot, HcuSlot, FanSlot, CioSlot, PowerSlot,"
     " ServeBoardSlot, MainSlot, UplinkSlot\n"},
    {"NoMainBoard",
     {"ddGetSwitchChipPhyPortFromLogicPort", "1", "101:0"},
     "bad pstChipLogicPortToPhyPortType '101:0': there is no main board of type 101\n"
     "usage: sysctx ask ddGetSwitchChipPhyPortFromLogicPort ulLogicPortIn"
     " pstChipLogicPortToPhyPortType\n"
     "pstChipLogicPortToPhyPortType: MAINBOARD:MAP, a main board's type and one of its port maps"
     " by number from 0 or by board name\n"},
};

INSTANTIATE_TEST_SUITE_P(All, Refused, testing::ValuesIn(kRefused),
                         testing::PrintToStringParamName());

TEST(RefusedEarly, BeforeTheTablesAreNeeded) {
  for (const Words& words : {Words{"zzz"}, Words{"ddIsRealSlot"}, Words{"ddIsRealSlot", "x"}}) {
    EXPECT_THROW(PrepareQuestion(words), BadQuestion);
  }
}

TEST(ListOfQueries, TellsTheirArgumentsByFamily) {
  const std::string text = DescribeQueries();
  EXPECT_THAT(text, testing::StartsWith("sysctx ask QUERY ARGUMENT ... calls one of these:\n"
                                        "\ncontext:\n  ddIsContextVerMatchSoftVer\n"
                                        "  ddGetModuleNameByType ulModuleType\n"));
  EXPECT_THAT(text, HasSubstr("\n\nolt:\n  ddIsOltPortTypeSupportedByName strOltPortTypeName\n"));
  EXPECT_THAT(text, HasSubstr("\n\nframe:\n  ddInquireFrameName\n"));
  EXPECT_THAT(text, HasSubstr("\n\nonu:\n  ddIsOnuPonTypeSupportedByName strOnuPonTypeName\n"));
  EXPECT_THAT(text, HasSubstr("\n  ddGetBoardSlotList pstSlotClass ulArrayAmount\n"));
  EXPECT_THAT(text, HasSubstr("\n\nNumbers are decimal, or hexadecimal behind 0x, and at most"
                              " 4294967295; signed ones may be negative.\n"
                              "pstChipLogicPortToPhyPortType: MAINBOARD:MAP, "));
  EXPECT_THAT(text, HasSubstr("\npstSlotClass: one of RealSlot, VirtualSlot, "));
}

}  // namespace
}  // namespace sysctx
