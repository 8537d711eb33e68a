// A frame for tests.
#include "catalog/frame/frame_file.h"

#include <algorithm>

#include "support/records.h"

namespace test {

const std::string kFrameSection =
    "[KT3300-L_FrameInfomation]\n"
    "Type=15\n"
    "Name=KT3300-L\n"
    "MaxOnuNum=32768\n"
    "MaxUserNum=1048576\n"
    "RealSlotNum=3\n"
    "RealSlotList=1,2,4\n"
    "VirtualSlotNum=2\n"
    "VirtualSlotList=31,32\n"
    "HcuSlotNum=1\n"
    "HcuSlotList=801\n"
    "FanSlotNum=1\n"
    "FanSlotList=24\n"
    "CioSlotNum=1\n"
    "CioSlotList=23\n"
    "PowerSlotNum=2\n"
    "PowerSlotList=21,22\n"
    "ServeBoardSlotNum=1\n"
    "ServeBoardSlotList=2\n"
    "MainSlotNum=1\n"
    "MainSlotList=1\n"
    "UplinkSlotNum=1\n"
    "UplinkSlotList=4\n"
    "SupportedBoardTypeSlot1=CTLA\n"
    "SupportedBoardTypeSlot2=GP16|XS08|VT48\n"
    "SupportedBoardTypeSlot4=ETHA|GP16\n"
    "SwitchChipLogicPortNum=2\n"
    "SwitchChipLogicPort1=2,1,0\n"
    "SwitchChipLogicPort2=4,128,1\n"
    "Type2SwitchChipLogicPortNum=2\n"
    "Type2SwitchChipLogicPort1=2,1,3,5,1\n"
    "Type2SwitchChipLogicPort2=4,128,300,65535,0\n";

const std::vector<std::string> kFrameShown = {
    "type 15",
    "name 9 KT3300-L",
    "onus 32768",
    "users 1048576",
    "real 3 1..4: 1 2 4",
    "virtual 2 31..32: 31 32",
    "hcu 1 801..801: 801",
    "fan 1 24..24: 24",
    "cio 1 23..23: 23",
    "power 2 21..22: 21 22",
    "service 1 2..2: 2",
    "main 1 1..1: 1",
    "uplink 1 4..4: 4",
    "boards 1: 11, 2: 71 72 74, 4: 73 71",
    "ports 2: 2/1/0 4/128/1",
    "type-2 ports 2: 2/1/3/5/1 4/128/300/65535/0",
};

const std::vector<std::string> kOldFrameShown = {
    "type 91",          "name 4 OLD",        "onus 92",           "users 93",
    "real 8 61..9: ",   "virtual 8 62..9: ", "hcu 8 63..9: ",     "fan 8 64..9: ",
    "cio 8 65..9: ",    "power 8 66..9: ",   "service 8 67..9: ", "main 8 68..9: ",
    "uplink 8 69..9: ", "boards none",       "ports 94: ",        "type-2 ports 95: ",
};

std::vector<std::string> PartlyLoadedShown(size_t lines, const std::string& half_line) {
  std::vector<std::string> shown = kOldFrameShown;
  std::copy_n(kFrameShown.begin(), lines, shown.begin());
  if (!half_line.empty()) {
    shown[lines] = half_line;
  }
  return shown;
}

void FrameTest::SetUp() {
  BoardTablesTest::SetUp();
  FrameStandIns::Reset();
  PutMainBoards({.places = {PlacedBoard{11, "CTLA"}}});
  PutBoards({.places = {PlacedBoard{71, "GP16"}, PlacedBoard{72, "XS08"}, PlacedBoard{73, "ETHA"},
                        PlacedBoard{74, "VT48"}}});
}

void FrameTest::TearDown() {
  FrameStandIns::Reset();
  BoardTablesTest::TearDown();
}

void FrameTest::PutOldFrame() {
  ddEmptyFrameInformation();
  gstFrame.eType = 91;
  StoreName("OLD", gstFrame.acName, gstFrame.ulNameLen);
  gstFrame.ulMaxOnuNum = 92;
  gstFrame.ulMaxUserNum = 93;
  uint32_t start = 61;
  for (SlotClassInformation* const slots :
       {&gstFrame.stRealSlot, &gstFrame.stVirtualSlot, &gstFrame.stHcuSlot, &gstFrame.stFanSlot,
        &gstFrame.stCioSlot, &gstFrame.stPowerSlot, &gstFrame.stServeBoardSlot,
        &gstFrame.stMainSlot, &gstFrame.stUplinkSlot}) {
    *slots = {8, start++, 9, {}};
  }
  gstFrame.ulSwitchChipLogicPortNum = 94;
  gstFrame.ulType2SwitchChipLogicPortNum = 95;
}

}  // namespace test
