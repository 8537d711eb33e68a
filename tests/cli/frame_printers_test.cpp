// The printer of the frame: whole listings.
#include <algorithm>
#include <string>
#include <vector>

#include "cli/frame_printer_test.h"
#include "support/type2_numbers.h"

namespace {

using std::string;
using test::FrameListing;
using test::kNoSlots;

constexpr char kNoPorts[] =
    "\r\n"
    "\r\nulSwitchChipLogicPortNum =  0";
constexpr char kNoBalancePorts[] =
    "\r\n"
    "\r\nulType2SwitchChipLogicPortNum =  0"
    "\r\n"
    "\r\n";

class FramePrinter : public test::FramePrinterTest {
 protected:
  // Prints while the debug switch is set; the queries then say that much on the
  // console, and the listing is the same.
  void ExpectQueriesToSay(const string& said, const string& listing) {
    ddDebugPrint = 1;
    const Printed printed = Print(ddPrintFrameInfomation);
    EXPECT_EQ(printed.code, 0);
    EXPECT_EQ(printed.text, listing);
    EXPECT_EQ(console_.Text(), said);
    ddDebugPrint = 0;
  }
};

TEST_F(FramePrinter, Frame) {
  gstFrame.eType = 15;
  test::StoreName("KT3300-L", gstFrame.acName, gstFrame.ulNameLen);
  gstFrame.ulMaxOnuNum = 16384;
  gstFrame.ulMaxUserNum = 1048576;
  gstFrame.stRealSlot = Slots({1, 2, 10});
  gstFrame.stVirtualSlot = Slots({31});  // not shown, nor are the HCU slots
  gstFrame.stHcuSlot = Slots({801});
  gstFrame.stFanSlot = Slots({4});
  gstFrame.stPowerSlot = Slots({5, 6});
  gstFrame.stCioSlot = Slots({7});
  gstFrame.stServeBoardSlot = Slots({1, 8});
  gstFrame.stMainSlot = Slots({2});
  gstFrame.stUplinkSlot = Slots({10});
  AddMainBoard(MainBoard(101, "MCXA", 0));
  AddBoard(Board(3102, "GP02A", {}, {}));
  AddBoard(Board(3301, "100%s", {}, {}));
  AddBoardRows();
  SetBoards(1, {3102, 3301});
  SetBoards(2, {101});
  AddLogicPort({1, 0, 0});
  AddLogicPort({10, 128, 1});
  AddBalancePort({1, 2, 0, 33, 0});
  AddBalancePort({10, 4, 1, 65535, 1});
  const string listing =
      "\r\nFrameInfomation:"
      "\r\neType = 15, ulNameLen = 9, acName = KT3300-L"
      "\r\nulMaxOnuNum       = 16384, ulMaxUserNum    = 1048576"
      "\r\n"
      "\r\nRealSlot:"
      "\r\nulSlotAmount =  3, ulSlotStart  =  1, ulSlotEnd  = 10"
      "\r\nucSlotArray = 1, 2, 10, "
      "\r\n"
      "\r\n"
      "\r\nFanSlot:"
      "\r\nulSlotAmount =  1, ulSlotStart  =  4, ulSlotEnd  =  4"
      "\r\nucSlotArray = 4, "
      "\r\n"
      "\r\n"
      "\r\nPowerSlot:"
      "\r\nulSlotAmount =  2, ulSlotStart  =  5, ulSlotEnd  =  6"
      "\r\nucSlotArray = 5, 6, "
      "\r\n"
      "\r\n"
      "\r\nCioSlot:"
      "\r\nulSlotAmount =  1, ulSlotStart  =  7, ulSlotEnd  =  7"
      "\r\nucSlotArray = 7, "
      "\r\n"
      "\r\n"
      "\r\nServeBoardClassSlot:"
      "\r\nulSlotAmount =  2, ulSlotStart  =  1, ulSlotEnd  =  8"
      "\r\nucSlotArray = 1, 8, "
      "\r\n"
      "\r\n"
      "\r\nMainBoardClassSlot:"
      "\r\nulSlotAmount =  1, ulSlotStart  =  2, ulSlotEnd  =  2"
      "\r\nucSlotArray = 2, "
      "\r\n"
      "\r\n"
      "\r\nUplinkBoardClassSlot:"
      "\r\nulSlotAmount =  1, ulSlotStart  = 10, ulSlotEnd  = 10"
      "\r\nucSlotArray = 10, "
      "\r\n"
      "\r\nulSLotOut =  1, GP02A|100%s|"
      "\r\nulSLotOut =  2, MCXA|"
      "\r\nulSLotOut = 10, "
      "\r\n"
      "\r\nulSwitchChipLogicPortNum =  2"
      "\r\nSwitchChipLogicPortNum =  1  ---> (SlotOut: 1, Port: 0)"
      "\r\nSwitchChipLogicPortNum =  2  ---> (SlotOut:10, Port:128)"
      "\r\n"
      "\r\nulType2SwitchChipLogicPortNum =  2"
      "\r\nType2SwitchChipLogicPortNum =  1 --->(SlotOut: 1, Port: 2, ChipPort: 0, PhyPort:33, "
      "HigigFlag: 0 )"
      "\r\nType2SwitchChipLogicPortNum =  2 --->(SlotOut:10, Port: 4, ChipPort: 1, "
      "PhyPort:65535, HigigFlag: 1 )"
      "\r\n"
      "\r\n";
  EXPECT_PRINTED(ddPrintFrameInfomation, 0, listing);
  EXPECT_TRUE(test::FakePlatform::Get().asked.empty());  // of the equipment
}

TEST_F(FramePrinter, ExtremeNumbers) {
  gstFrame.eType = -1;
  gstFrame.ulNameLen = 0xfffffffe;
  gstFrame.ulMaxOnuNum = 0xfffffffd;
  gstFrame.ulMaxUserNum = 0x80000000;
  test::StoreName(string(59, 'n'), gstFrame.acName, gstFrame.ulNameLen);
  const Printed printed = Print(ddPrintFrameInfomation);
  EXPECT_EQ(printed.code, 0);
  EXPECT_TRUE(
      printed.text.starts_with("\r\nFrameInfomation:"
                               "\r\neType = -1, ulNameLen = 60, acName = " +
                               string(59, 'n') +
                               "\r\nulMaxOnuNum       = -3, ulMaxUserNum    = -2147483648"
                               "\r\n\r\nRealSlot:"))
      << printed.text;
}

TEST_F(FramePrinter, NoFrame) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                   FrameListing(kNoSlots, string(kNoPorts) + kNoBalancePorts));
  }
}

// Each class shows its own amount, and its error text in its place when that is corrupt.
TEST_F(FramePrinter, CorruptSlotClasses) {
  SlotClassInformation* const classes[] = {&gstFrame.stFanSlot,     &gstFrame.stPowerSlot,
                                           &gstFrame.stCioSlot,     &gstFrame.stServeBoardSlot,
                                           &gstFrame.stMainSlot,    &gstFrame.stUplinkSlot,
                                           &gstFrame.stVirtualSlot, &gstFrame.stHcuSlot};
  uint32_t amount = 200;
  for (SlotClassInformation* const slot_class : classes) {
    slot_class->ulSlotAmount = ++amount;
  }
  EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                 string("\r\nFrameInfomation:"
                        "\r\neType = 0, ulNameLen = 0, acName = "
                        "\r\nulMaxOnuNum       =  0, ulMaxUserNum    =  0"
                        "\r\n\r\nRealSlot:") +
                     kNoSlots +
                     "\r\n\r\nFanSlot:"
                     "\r\nddPrintSlotClassInformation err! ulSlotAmount = 201, MAX_SLOT_END = 100"
                     "\r\n\r\nPowerSlot:"
                     "\r\nddPrintSlotClassInformation err! ulSlotAmount = 202, MAX_SLOT_END = 100"
                     "\r\n\r\nCioSlot:"
                     "\r\nddPrintSlotClassInformation err! ulSlotAmount = 203, MAX_SLOT_END = 100"
                     "\r\n\r\nServeBoardClassSlot:"
                     "\r\nddPrintSlotClassInformation err! ulSlotAmount = 204, MAX_SLOT_END = 100"
                     "\r\n\r\nMainBoardClassSlot:"
                     "\r\nddPrintSlotClassInformation err! ulSlotAmount = 205, MAX_SLOT_END = 100"
                     "\r\n\r\nUplinkBoardClassSlot:"
                     "\r\nddPrintSlotClassInformation err! ulSlotAmount = 206, MAX_SLOT_END = 100" +
                     kNoPorts + kNoBalancePorts);
}

// ---- The boards of the slots -----------------------------------------------------

TEST_F(FramePrinter, SlotsWithoutTheBlockOfTheirBoards) {
  gstFrame.stRealSlot = Slots({1, 2});
  EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                 FrameListing("\r\nulSlotAmount =  2, ulSlotStart  =  1, ulSlotEnd  =  2"
                              "\r\nucSlotArray = 1, 2, \r\n",
                              string("\r\nulSLotOut =  1, \r\nulSLotOut =  2, ") + kNoPorts +
                                  kNoBalancePorts));
}

TEST_F(FramePrinter, SlotsBehindTheBlockOfTheirBoards) {
  gstFrame.stRealSlot = Slots({4, 0xffffffff, 3, 2});
  AddBoard(Board(3102, "GP02A", {}, {}));
  AddBoardRows();  // of the slots 0 to 2
  SetBoards(0, {3102});
  SetBoards(2, {3102});
  EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                 FrameListing("\r\nulSlotAmount =  4, ulSlotStart  =  4, ulSlotEnd  =  2"
                              "\r\nucSlotArray = 4, -1, 3, 2, \r\n",
                              string("\r\nulSLotOut =  4, \r\nulSLotOut = -1, \r\nulSLotOut =  3, "
                                     "\r\nulSLotOut =  2, GP02A|") +
                                  kNoPorts + kNoBalancePorts));
}

TEST_F(FramePrinter, EmptyPlacesOfARowAreSkipped) {
  gstFrame.stRealSlot = Slots({1});
  AddMainBoard(MainBoard(101, "MCXA", 0));
  AddBoard(Board(3102, "GP02A", {}, {}));
  AddBoard(Board(0, "ZERO", {}, {}));  // of a type that no row can show
  AddBoardRows();
  SetBoards(1, {0, 3102, 0, 0, 101});
  gstFrame.pstSlotArray[1].aulBoardType[99] = 3102;
  EXPECT_PRINTED(
      ddPrintFrameInfomation, 0,
      FrameListing("\r\nulSlotAmount =  1, ulSlotStart  =  1, ulSlotEnd  =  1"
                   "\r\nucSlotArray = 1, \r\n",
                   string("\r\nulSLotOut =  1, GP02A|MCXA|GP02A|") + kNoPorts + kNoBalancePorts));
}

TEST_F(FramePrinter, LongestNameOfABoard) {
  gstFrame.stRealSlot = Slots({1});
  AddBoard(Board(3102, string(59, 'b'), {}, {}));
  AddBoardRows();
  SetBoards(1, {3102});
  EXPECT_PRINTED(
      ddPrintFrameInfomation, 0,
      FrameListing("\r\nulSlotAmount =  1, ulSlotStart  =  1, ulSlotEnd  =  1"
                   "\r\nucSlotArray = 1, \r\n",
                   "\r\nulSLotOut =  1, " + string(59, 'b') + "|" + kNoPorts + kNoBalancePorts));
}

TEST_F(FramePrinter, NameOfABoardWithoutItsTerminator) {
  gstFrame.stRealSlot = Slots({1});
  BoardInformation* const board = Board(3102, "", {}, {});
  std::fill(std::begin(board->acName), std::end(board->acName), 'n');
  board->ulNameLen = 60;
  board->ulTotalServePortNum = 0x41414141;  // what stands behind the name
  AddBoard(board);
  AddBoardRows();
  SetBoards(1, {3102, 3102});
  EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                 FrameListing("\r\nulSlotAmount =  1, ulSlotStart  =  1, ulSlotEnd  =  1"
                              "\r\nucSlotArray = 1, \r\n",
                              "\r\nulSLotOut =  1, " + string(60, 'n') + "|" + string(60, 'n') +
                                  "|" + kNoPorts + kNoBalancePorts));
}

TEST_F(FramePrinter, UnknownBoards) {
  gstFrame.stRealSlot = Slots({1, 12});
  AddMainBoard(MainBoard(101, "MCXA", 0));
  AddBoard(Board(3102, "GP02A", {}, {}));
  AddBoardRows();
  SetBoards(1, {3102, 9, 3102});
  SetBoards(12, {0xffffffff});
  const string listing = FrameListing(
      "\r\nulSlotAmount =  2, ulSlotStart  =  1, ulSlotEnd  = 12"
      "\r\nucSlotArray = 1, 12, \r\n",
      string("\r\nulSLotOut =  1, GP02A|"
             "\r\nddPrintFrameInfomation->ddGetCardNameByType err! iResult = -18, "
             "ulSLotOut = 1, ulBoardType = 9"
             "GP02A|"
             "\r\nulSLotOut = 12, "
             "\r\nddPrintFrameInfomation->ddGetCardNameByType err! iResult = -18, "
             "ulSLotOut = 12, ulBoardType = -1") +
          kNoPorts + kNoBalancePorts);
  EXPECT_PRINTED(ddPrintFrameInfomation, 0, listing);
}

TEST_F(FramePrinter, AsManySlotsAndBoardsAsPossible) {
  std::vector<uint32_t> slots;
  string boards;
  for (uint32_t slot = 1; slot <= 100; ++slot) {
    slots.push_back(slot);
    boards += "GP02A|";
  }
  gstFrame.stRealSlot = Slots(slots);
  AddBoard(Board(3102, "GP02A", {}, {}));
  AddBoardRows();
  SetBoards(100, std::vector<uint32_t>(100, 3102));
  const Printed printed = Print(ddPrintFrameInfomation);
  EXPECT_EQ(printed.code, 0);
  ExpectNoPause(printed);
  EXPECT_TRUE(
      printed.text.ends_with("\r\nulSLotOut = 99, "
                             "\r\nulSLotOut = 100, " +
                             boards + kNoPorts + kNoBalancePorts))
      << printed.text;
}

TEST_F(FramePrinter, MoreRealSlotsThanPossible) {
  gstFrame.stRealSlot = Slots(std::vector<uint32_t>(100, 7));
  string rows;
  for (int i = 0; i < 100; ++i) {
    rows += "\r\nulSLotOut =  7, ";
  }
  gstFrame.stRealSlot.ulSlotAmount = 101;
  EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                 FrameListing("\r\nddPrintSlotClassInformation err! ulSlotAmount = 101, "
                              "MAX_SLOT_END = 100",
                              rows + kNoPorts + kNoBalancePorts));
  gstFrame.stRealSlot.ulSlotAmount = 0xffffffff;
  EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                 FrameListing("\r\nddPrintSlotClassInformation err! ulSlotAmount = -1, "
                              "MAX_SLOT_END = 100",
                              rows + kNoPorts + kNoBalancePorts));
}

// ---- Logic ports -----------------------------------------------------------------

TEST_F(FramePrinter, LogicPortsOfCorruptPorts) {
  AddLogicPort({1, 128, 0});
  AddLogicPort({2, 129, 0});
  AddLogicPort({0, 0, 0});
  AddLogicPort({255, 255, 255});
  AddLogicPort({255, 1, 255});
  const string listing = FrameListing(
      kNoSlots, string("\r\n"
                       "\r\nulSwitchChipLogicPortNum =  5"
                       "\r\nSwitchChipLogicPortNum =  1  ---> (SlotOut: 1, Port:128)"
                       "\r\nddPrintFrameInfomation->ddGetCardNameByType err! iResult = -5, "
                       "ulSwitchChipLogicPortNumIndex = 2, ulSLotOut = 0, ulBoardType = 0"
                       "\r\nSwitchChipLogicPortNum =  3  ---> (SlotOut: 0, Port: 0)"
                       "\r\nddPrintFrameInfomation->ddGetCardNameByType err! iResult = -5, "
                       "ulSwitchChipLogicPortNumIndex = 4, ulSLotOut = 0, ulBoardType = 0"
                       "\r\nSwitchChipLogicPortNum =  5  ---> (SlotOut:255, Port: 1)") +
                    kNoBalancePorts);
  EXPECT_PRINTED(ddPrintFrameInfomation, 0, listing);
  ExpectQueriesToSay(
      "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 2, ulSlotOut = 2, "
      "ulSlotStart = 0, ulSlotEnd = 0, ulSlotPort = 129"
      "\r\nddGetSlotPortFromSwitchChipLogicPort err! ulChipLogicPort = 4, ulSlotOut = 255, "
      "ulSlotStart = 0, ulSlotEnd = 0, ulSlotPort = 255",
      listing);
}

TEST_F(FramePrinter, AsManyLogicPortsAsPossible) {
  string rows;
  for (int number = 1; number <= 1280; ++number) {
    AddLogicPort({20, 30, 0});
    rows += string("\r\nSwitchChipLogicPortNum = ") + (number < 10 ? " " : "") +
            std::to_string(number) + "  ---> (SlotOut:20, Port:30)";
  }
  EXPECT_PRINTED(
      ddPrintFrameInfomation, 0,
      FrameListing(kNoSlots, "\r\n\r\nulSwitchChipLogicPortNum = 1280" + rows + kNoBalancePorts));
}

TEST_F(FramePrinter, MoreLogicPortsThanPossible) {
  gstFrame.ulSwitchChipLogicPortNum = 1281;
  string rows;
  for (int number = 1; number <= 1281; ++number) {
    rows +=
        "\r\nddPrintFrameInfomation->ddGetCardNameByType err! iResult = -22, "
        "ulSwitchChipLogicPortNumIndex = " +
        std::to_string(number) + ", ulSLotOut = 0, ulBoardType = 0";
  }
  EXPECT_PRINTED(
      ddPrintFrameInfomation, 0,
      FrameListing(kNoSlots, "\r\n\r\nulSwitchChipLogicPortNum = 1281" + rows + kNoBalancePorts));
}

// ---- Type-2 logic ports ----------------------------------------------------------

TEST_F(FramePrinter, OnlyTheFlagOneIsShown) {
  AddBalancePort({255, 255, 65535, 65534, 2});
  AddBalancePort({0, 0, 0, 0, 255});
  AddBalancePort({0, 0, 0, 0, 1});
  EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                 FrameListing(kNoSlots, string(kNoPorts) +
                                            "\r\n"
                                            "\r\nulType2SwitchChipLogicPortNum =  3"
                                            "\r\nType2SwitchChipLogicPortNum =  1 "
                                            "--->(SlotOut:255, Port:255, ChipPort:65535, "
                                            "PhyPort:65534, HigigFlag: 0 )"
                                            "\r\nType2SwitchChipLogicPortNum =  2 "
                                            "--->(SlotOut: 0, Port: 0, ChipPort: 0, PhyPort: 0, "
                                            "HigigFlag: 0 )"
                                            "\r\nType2SwitchChipLogicPortNum =  3 "
                                            "--->(SlotOut: 0, Port: 0, ChipPort: 0, PhyPort: 0, "
                                            "HigigFlag: 1 )"
                                            "\r\n\r\n"));
}

// The entries that have numbers, each told by its physical port, and `unnumbered`
// ones behind them.
string BalanceRows(int unnumbered) {
  string rows;
  for (uint32_t i = 0; i < 58; ++i) {
    const uint32_t number = test::Type2NumberOf(i);
    rows += string("\r\nType2SwitchChipLogicPortNum = ") + (number < 10 ? " " : "") +
            std::to_string(number) +
            " --->(SlotOut: 1, Port: 2, ChipPort: 3, PhyPort:" + std::to_string(100 + i) +
            ", HigigFlag: 0 )";
  }
  for (int i = 58; i < 58 + unnumbered; ++i) {
    rows +=
        "\r\nddPrintFrameInfomation->get_balance_switch_logicport_portno_from_index err! "
        "iResult = -26, ulSwitchChipLogicPortNumIndex = " +
        std::to_string(i) + ", ulChipLogicPort = 0";
  }
  return rows;
}

TEST_F(FramePrinter, BalanceEntriesWithoutNumbers) {
  for (uint16_t i = 0; i < 60; ++i) {
    AddBalancePort({1, 2, 3, static_cast<uint16_t>(100 + i), 0});
  }
  const string listing = FrameListing(kNoSlots, string(kNoPorts) +
                                                    "\r\n"
                                                    "\r\nulType2SwitchChipLogicPortNum = 60" +
                                                    BalanceRows(2) + "\r\n\r\n");
  EXPECT_PRINTED(ddPrintFrameInfomation, 0, listing);
  ExpectQueriesToSay(
      "\r\nget_balance_switch_logicport_portno_from_index err! ulChipIndex = 58, "
      "max switchIndex = 57"
      "\r\nget_balance_switch_logicport_portno_from_index err! ulChipIndex = 59, "
      "max switchIndex = 57",
      listing);
}

TEST_F(FramePrinter, MoreBalancePortsThanPossible) {
  for (uint16_t i = 0; i < 58; ++i) {
    AddBalancePort({1, 2, 3, static_cast<uint16_t>(100 + i), 0});
  }
  gstFrame.ulType2SwitchChipLogicPortNum = 1281;
  EXPECT_PRINTED(ddPrintFrameInfomation, 0,
                 FrameListing(kNoSlots, string(kNoPorts) +
                                            "\r\n"
                                            "\r\nulType2SwitchChipLogicPortNum = 1281" +
                                            BalanceRows(1223) + "\r\n\r\n"));
}

TEST_F(FramePrinter, ATerminalThatIsNullIsHandedOn) {
  gstFrame.stRealSlot = Slots({1});
  AddLogicPort({1, 0, 0});
  AddBalancePort({1, 0, 0, 0, 0});
  EXPECT_EQ(ddPrintFrameInfomation(nullptr), 0);
  const std::vector<void*>& used = test::FakePlatform::Get().terminals_used;
  EXPECT_EQ(used, std::vector<void*>(used.size(), nullptr));
  EXPECT_NE(test::FakePlatform::Get().terminal, "");
}

}  // namespace
