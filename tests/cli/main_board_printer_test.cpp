// The printer of the main boards: whole listings, and the boards that end one.
#include <ostream>
#include <string>
#include <vector>

#include "cli/olt_printer_test.h"

namespace {

using std::string;
using MainBoardPrinter = test::OltPrinterTest;

string Head(int count) {
  return "\r\n"
         "\r\nPrintAllSupportedMainBoardInformation: "
         "\r\ngstSupportedMainBoardType.ulSupportedBoardTypeNum = " +
         std::to_string(count);
}

TEST_F(MainBoardPrinter, MainBoards) {
  MainBoardInformation* const first = MainBoard(101, "MCXA", 3);
  AddMap(*first, "NoSpecialUplinkBoard", {{1, 5}, {2, 0}, {3, 120}});
  AddMap(*first, "UP4X", {{1, 7}, {255, 65535}, {0, 9}});
  MainBoardInformation* const second = MainBoard(0xffffffff, "100%s", 1);
  second->ulSubType = 3;
  AddMap(*second, "NoSpecialUplinkBoard", {{1, 1}});
  AddMainBoard(first);
  AddMainBoard(second);
  EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, 0,
                 "\r\n"
                 "\r\nPrintAllSupportedMainBoardInformation: "
                 "\r\ngstSupportedMainBoardType.ulSupportedBoardTypeNum = 2"
                 "\r\n0. ulType = 101, ulSubType = 0, ulNameLen = 5, acName = MCXA"
                 "\r\nulSwitchChipLogicPortNum = 3"
                 "\r\n  0. ulBoardNameLen = 21, acBoardName = NoSpecialUplinkBoard"
                 "\r\nNoSpecialUplinkBoard_SwitchChipLogicPort =  1  ---> PhyPort: 5"
                 "\r\nNoSpecialUplinkBoard_SwitchChipLogicPort =  2  ---> PhyPort: 0"
                 "\r\nNoSpecialUplinkBoard_SwitchChipLogicPort =  3  ---> PhyPort:120"
                 "\r\n"
                 "\r\n  1. ulBoardNameLen = 5, acBoardName = UP4X"
                 "\r\nUP4X_SwitchChipLogicPort =  1  ---> PhyPort: 7"
                 "\r\nUP4X_SwitchChipLogicPort = 255  ---> PhyPort:65535"
                 "\r\nUP4X_SwitchChipLogicPort =  0  ---> PhyPort: 9"
                 "\r\n"
                 "\r\n"
                 "\r\n1. ulType = -1, ulSubType = 3, ulNameLen = 6, acName = 100%s"
                 "\r\nulSwitchChipLogicPortNum = 1"
                 "\r\n  0. ulBoardNameLen = 21, acBoardName = NoSpecialUplinkBoard"
                 "\r\nNoSpecialUplinkBoard_SwitchChipLogicPort =  1  ---> PhyPort: 1"
                 "\r\n"
                 "\r\n"
                 "\r\n");
}

TEST_F(MainBoardPrinter, MainBoardWithoutLogicPorts) {
  MainBoardInformation* const board = MainBoard(101, "MCXA", 0);
  AddMap(*board, "NoSpecialUplinkBoard", {{1, 5}});
  AddMap(*board, "", {});
  AddMainBoard(board);
  EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, 0,
                 Head(1) +
                     "\r\n0. ulType = 101, ulSubType = 0, ulNameLen = 5, acName = MCXA"
                     "\r\nulSwitchChipLogicPortNum = 0"
                     "\r\n  0. ulBoardNameLen = 21, acBoardName = NoSpecialUplinkBoard"
                     "\r\n"
                     "\r\n  1. ulBoardNameLen = 1, acBoardName = "
                     "\r\n"
                     "\r\n"
                     "\r\n");
}

TEST_F(MainBoardPrinter, MainBoardWithAsManyLogicPortsAsPossible) {
  string expected = Head(1) +
                    "\r\n0. ulType = 101, ulSubType = 0, ulNameLen = 5, acName = MCXA"
                    "\r\nulSwitchChipLogicPortNum = 1280"
                    "\r\n  0. ulBoardNameLen = 3, acBoardName = UP";
  std::vector<PortPair> pairs;
  for (uint32_t i = 1; i <= 1280; ++i) {
    pairs.push_back({static_cast<uint16_t>(i), static_cast<uint16_t>(2000 + i)});
    expected += (i < 10 ? "\r\nUP_SwitchChipLogicPort =  " : "\r\nUP_SwitchChipLogicPort = ") +
                std::to_string(i) + "  ---> PhyPort:" + std::to_string(2000 + i);
  }
  MainBoardInformation* const board = MainBoard(101, "MCXA", 1280);
  AddMap(*board, "UP", pairs);
  AddMainBoard(board);
  EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, 0, expected + "\r\n\r\n\r\n");
}

TEST_F(MainBoardPrinter, MainBoardWithAsManyMapsAsPossible) {
  MainBoardInformation* const board = MainBoard(101, "MCXA", 1);
  string expected = Head(1) +
                    "\r\n0. ulType = 101, ulSubType = 0, ulNameLen = 5, acName = MCXA"
                    "\r\nulSwitchChipLogicPortNum = 1";
  for (uint32_t i = 0; i < 20; ++i) {
    AddMap(*board, "UP", {{1, static_cast<uint16_t>(30 + i)}});
    expected += "\r\n  " + std::to_string(i) +
                ". ulBoardNameLen = 3, acBoardName = UP"
                "\r\nUP_SwitchChipLogicPort =  1  ---> PhyPort:" +
                std::to_string(30 + i) + "\r\n";
  }
  AddMainBoard(board);
  EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, 0, expected + "\r\n\r\n");
}

TEST_F(MainBoardPrinter, LongestNamesOfAMainBoard) {
  MainBoardInformation* const board = MainBoard(101, string(59, 'm'), 1);
  AddMap(*board, string(59, 'u'), {{1, 5}});
  AddMainBoard(board);
  EXPECT_PRINTED(
      ddPrintAllSupportedMainBoardInformation, 0,
      Head(1) + "\r\n0. ulType = 101, ulSubType = 0, ulNameLen = 60, acName = " + string(59, 'm') +
          "\r\nulSwitchChipLogicPortNum = 1" +
          "\r\n  0. ulBoardNameLen = 60, acBoardName = " + string(59, 'u') + "\r\n" +
          string(59, 'u') + "_SwitchChipLogicPort =  1  ---> PhyPort: 5" + "\r\n\r\n\r\n");
}

TEST_F(MainBoardPrinter, EmptyPlacesOfMainBoardsKeepTheirNumbers) {
  MainBoardInformation* const board = MainBoard(102, "MCXB", 0);
  AddMap(*board, "UP4X", {});
  for (int i = 0; i < 100; ++i) {
    AddMainBoard(i == 10 || i == 99 ? board : nullptr);
  }
  constexpr char kBoard[] =
      ". ulType = 102, ulSubType = 0, ulNameLen = 5, acName = MCXB"
      "\r\nulSwitchChipLogicPortNum = 0"
      "\r\n  0. ulBoardNameLen = 5, acBoardName = UP4X"
      "\r\n"
      "\r\n";
  EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, 0,
                 Head(100) + "\r\n10" + kBoard + "\r\n99" + kBoard + "\r\n");
}

TEST_F(MainBoardPrinter, OnlyEmptyPlacesOfMainBoards) {
  AddMainBoard(nullptr);
  AddMainBoard(nullptr);
  EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, 0, Head(2) + "\r\n");
}

TEST_F(MainBoardPrinter, NoMainBoards) {
  MainBoardInformation* place = nullptr;  // all announced boards were left out
  gstSupportedMainBoardType = {0, &place};
  EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, 0, Head(0) + "\r\n");
}

TEST_F(MainBoardPrinter, MainBoardsDoNotPause) {
  MainBoardInformation* const board = MainBoard(102, "MCXB", 0);
  AddMap(*board, "UP4X", {});
  for (int i = 0; i < 100; ++i) {
    AddMainBoard(board);
  }
  const Printed printed = Print(ddPrintAllSupportedMainBoardInformation);
  EXPECT_EQ(printed.code, 0);
  ExpectNoPause(printed);
  EXPECT_NE(printed.text.find("\r\n99. ulType = 102"), string::npos);
}

// ---- Guards ----------------------------------------------------------------------

TEST_F(MainBoardPrinter, MainBoardsWithoutTheirList) {
  for (const int32_t debug : {0, 1}) {
    for (const uint32_t count : {0u, 1u, 100u}) {
      ddDebugPrint = debug;
      gstSupportedMainBoardType = {count, nullptr};
      EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, -10,
                     "\r\nddPrintAllSupportedMainBoardInformation err!, pBoardTypeArray = 0x0");
    }
  }
}

TEST_F(MainBoardPrinter, CorruptMainBoardCount) {
  MainBoardInformation* places[101] = {};
  for (const int32_t debug : {0, 1}) {
    for (MainBoardInformation** const list :
         {places, static_cast<MainBoardInformation**>(nullptr)}) {
      ddDebugPrint = debug;
      gstSupportedMainBoardType = {101, list};
      EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, -19,
                     "\r\nddPrintAllSupportedMainBoardInformation err!, ulSupportedBoardTypeNum = "
                     "101, MAX_OLT_BOARD_TYPE_NUM = 100");
      gstSupportedMainBoardType = {0xffffffff, list};
      EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, -19,
                     "\r\nddPrintAllSupportedMainBoardInformation err!, ulSupportedBoardTypeNum = "
                     "-1, MAX_OLT_BOARD_TYPE_NUM = 100");
    }
  }
}

// A board that is corrupt stands between two good ones.
struct CorruptRow {
  const char* name;
  uint32_t ports;
  uint32_t maps;
  const char* end;  // behind the corrupt board's first line
  friend std::ostream& operator<<(std::ostream& out, const CorruptRow& row) {
    return out << row.name;
  }
};

class CorruptMainBoard : public MainBoardPrinter, public testing::WithParamInterface<CorruptRow> {};

TEST_P(CorruptMainBoard, EndsTheListing) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    main_board_places_.clear();
    MainBoardInformation* const good = MainBoard(101, "MCXA", 1);
    AddMap(*good, "UP4X", {{1, 5}});
    MainBoardInformation* const corrupt = MainBoard(102, "MCXB", GetParam().ports);
    corrupt->ulChipLogicPortToPhyPortTypeNum = GetParam().maps;
    AddMainBoard(good);
    AddMainBoard(nullptr);
    AddMainBoard(corrupt);
    AddMainBoard(good);
    EXPECT_PRINTED(ddPrintAllSupportedMainBoardInformation, -24,
                   Head(4) +
                       "\r\n0. ulType = 101, ulSubType = 0, ulNameLen = 5, acName = MCXA"
                       "\r\nulSwitchChipLogicPortNum = 1"
                       "\r\n  0. ulBoardNameLen = 5, acBoardName = UP4X"
                       "\r\nUP4X_SwitchChipLogicPort =  1  ---> PhyPort: 5"
                       "\r\n"
                       "\r\n"
                       "\r\n2. ulType = 102, ulSubType = 0, ulNameLen = 5, acName = MCXB" +
                       GetParam().end);
  }
}

constexpr CorruptRow kCorrupt[] = {
    {"OneLogicPortTooMany", 1281, 1,
     "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! ulSupportedBoardTypeIndex = 2, "
     "ulType = 102, acName = MCXB, ulSwitchChipLogicPortNum = 1281, "
     "MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"},
    {"FarTooManyLogicPorts", 0xffffffff, 1,
     "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! ulSupportedBoardTypeIndex = 2, "
     "ulType = 102, acName = MCXB, ulSwitchChipLogicPortNum = -1, "
     "MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"},
    {"LogicPortsComeBeforeMaps", 1281, 0,
     "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! ulSupportedBoardTypeIndex = 2, "
     "ulType = 102, acName = MCXB, ulSwitchChipLogicPortNum = 1281, "
     "MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280"},
    {"NoMap", 1280, 0,
     "\r\nulSwitchChipLogicPortNum = 1280"
     "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! ulSupportedBoardTypeIndex = 2, "
     "ulType = 102, acName = MCXB, ulChipLogicPortToPhyPortTypeNum = 0, "
     "MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM = 20"},
    {"OneMapTooMany", 7, 21,
     "\r\nulSwitchChipLogicPortNum = 7"
     "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! ulSupportedBoardTypeIndex = 2, "
     "ulType = 102, acName = MCXB, ulChipLogicPortToPhyPortTypeNum = 21, "
     "MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM = 20"},
    {"FarTooManyMaps", 0, 0xffffffff,
     "\r\nulSwitchChipLogicPortNum = 0"
     "\r\ndebug_ddPrintAllSupportedMainBoardInformation err! ulSupportedBoardTypeIndex = 2, "
     "ulType = 102, acName = MCXB, ulChipLogicPortToPhyPortTypeNum = -1, "
     "MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM = 20"},
};
INSTANTIATE_TEST_SUITE_P(Cli, CorruptMainBoard, testing::ValuesIn(kCorrupt),
                         testing::PrintToStringParamName());

}  // namespace
