// The printers of the service boards, of all and of one: whole listings.
#include <string>
#include <vector>

#include "cli/olt_printer_test.h"

namespace {

using std::string;

class ServiceBoardPrinters : public test::OltPrinterTest {
 protected:
  static Printed PrintOne(const BoardInformation* board) {
    return Print([board](void* vty) { return ddPrintOneSupportedBoardInfomation(board, vty); });
  }
};

// What one board shows on the terminal, which is all that it does.
#define EXPECT_BOARD_PRINTED(board, expected_text) \
  do {                                             \
    const Printed printed = PrintOne(board);       \
    EXPECT_EQ(printed.code, 0);                    \
    EXPECT_EQ(printed.text, expected_text);        \
    EXPECT_EQ(console_.Text(), "");                \
  } while (false)

// ---- One board -------------------------------------------------------------------

TEST_F(ServiceBoardPrinters, OneBoard) {
  OltPortInformation* const gpon = Port(2, "GPON", 128);
  OltPortInformation* const clock = Port(1234, "1PPS-TOD-CLOCK", 0);
  BoardInformation* const board = Board(3102, "GP02A", {gpon, Port(31, "GE", 0)}, {clock});
  EXPECT_BOARD_PRINTED(
      board,
      "\r\n ulType = 3102, ulSubType =  0, ulNameLen =  6, acName =    GP02A, "
      "ulTotalServePortNum =  2, ulTotalSpecialPortNum =  1"
      "\r\nServePort = 2"
      "\r\n   0. ulPortType =   2, ulNameLen =  5, acName =     GPON, ulSplittingRatio = 128"
      "\r\n   1. ulPortType =  31, ulNameLen =  3, acName =       GE, ulSplittingRatio =  0"
      "\r\nSpecialPort = 1"
      "\r\n   0. ulPortType = 1234, ulNameLen = 15, acName = 1PPS-TOD-CLOCK, "
      "ulSplittingRatio =  0"
      "\r\n");
}

TEST_F(ServiceBoardPrinters, OneBoardWithExtremeNumbers) {
  BoardInformation* const board =
      Board(0xffffffff, string(59, 'b'), {}, {Port(0xffffffff, "100%s", 0xffffffff)});
  board->ulSubType = 0xfffffffe;
  EXPECT_BOARD_PRINTED(
      board,
      "\r\n ulType =  -1, ulSubType = -2, ulNameLen = 60, acName = " + string(59, 'b') +
          ", ulTotalServePortNum =  0, ulTotalSpecialPortNum =  1"
          "\r\nServePort = 0"
          "\r\nSpecialPort = 1"
          "\r\n   0. ulPortType =  -1, ulNameLen =  6, acName =    100%s, ulSplittingRatio = -1"
          "\r\n");
}

TEST_F(ServiceBoardPrinters, OneBoardWithoutPorts) {
  BoardInformation board = {};
  board.ulType = 7;
  board.ulNameLen = 1;
  EXPECT_BOARD_PRINTED(&board,
                       "\r\n ulType =   7, ulSubType =  0, ulNameLen =  1, acName =         , "
                       "ulTotalServePortNum =  0, ulTotalSpecialPortNum =  0"
                       "\r\nServePort = 0"
                       "\r\nSpecialPort = 0"
                       "\r\n");
}

TEST_F(ServiceBoardPrinters, OneBoardWithoutItsLists) {
  BoardInformation* const board = Board(3102, "GP02A", {}, {});
  board->ulTotalServePortNum = 128;
  board->pPortArray = nullptr;
  board->ulTotalSpecialPortNum = 0xffffffff;
  board->pSpecialPortArray = nullptr;
  EXPECT_BOARD_PRINTED(board,
                       "\r\n ulType = 3102, ulSubType =  0, ulNameLen =  6, acName =    GP02A, "
                       "ulTotalServePortNum = 128, ulTotalSpecialPortNum = -1"
                       "\r\nServePort = 128"
                       "\r\nSpecialPort = -1"
                       "\r\n");
}

TEST_F(ServiceBoardPrinters, EmptyPlacesOfPortsKeepTheirNumbers) {
  OltPortInformation* const gpon = Port(2, "GPON", 128);
  std::vector<OltPortInformation*> serving(12, nullptr);
  serving[1] = gpon;
  serving[11] = gpon;
  EXPECT_BOARD_PRINTED(
      Board(3102, "GP02A", serving, {nullptr, nullptr, gpon}),
      "\r\n ulType = 3102, ulSubType =  0, ulNameLen =  6, acName =    GP02A, "
      "ulTotalServePortNum = 12, ulTotalSpecialPortNum =  3"
      "\r\nServePort = 12"
      "\r\n   1. ulPortType =   2, ulNameLen =  5, acName =     GPON, ulSplittingRatio = 128"
      "\r\n  11. ulPortType =   2, ulNameLen =  5, acName =     GPON, ulSplittingRatio = 128"
      "\r\nSpecialPort = 3"
      "\r\n   2. ulPortType =   2, ulNameLen =  5, acName =     GPON, ulSplittingRatio = 128"
      "\r\n");
}

TEST_F(ServiceBoardPrinters, OneBoardWithAsManyPortsAsPossible) {
  const std::vector<OltPortInformation*> ports(128, Port(2, "GPON", 128));
  string rows;
  for (int i = 0; i < 128; ++i) {
    rows += (i < 10 ? "\r\n   " : "\r\n  ") + std::to_string(i) +
            ". ulPortType =   2, ulNameLen =  5, acName =     GPON, ulSplittingRatio = 128";
  }
  EXPECT_BOARD_PRINTED(Board(3102, "GP99A", ports, ports),
                       "\r\n ulType = 3102, ulSubType =  0, ulNameLen =  6, acName =    GP99A, "
                       "ulTotalServePortNum = 128, ulTotalSpecialPortNum = 128"
                       "\r\nServePort = 128" +
                           rows + "\r\nSpecialPort = 128" + rows + "\r\n");
}

TEST_F(ServiceBoardPrinters, NoBoardAtAll) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    const Printed printed = PrintOne(nullptr);
    EXPECT_EQ(printed.code, -2);
    EXPECT_EQ(printed.text, "");
    EXPECT_EQ(console_.Text(), "");
  }
}

// ---- All boards ------------------------------------------------------------------

string Head(int count) {
  return "\r\n"
         "\r\nAllSupportedBoard:"
         "\r\ngstSupportedBoardType.ulSupportedBoardTypeNum = " +
         std::to_string(count);
}

TEST_F(ServiceBoardPrinters, Boards) {
  OltPortInformation* const gpon = Port(2, "GPON", 128);
  AddBoard(Board(3102, "GP02A", {gpon, gpon}, {}));
  AddBoard(Board(3401, "PWDA", {}, {}));
  AddBoard(Board(3421, "100%s", {}, {Port(41, "ALARM-IN", 0)}));
  boards_[1].ulSubType = 9;
  gstSupportedBoardType.ulSupportedBoardMaxPonType = 3102;
  gstSupportedBoardType.ulSupportedBoardMaxPonNum = 2;
  EXPECT_PRINTED(
      ddPrintAllSupportedBoardInfomation, 0,
      "\r\n"
      "\r\nAllSupportedBoard:"
      "\r\ngstSupportedBoardType.ulSupportedBoardTypeNum = 3"
      "\r\n 0. ulType = 3102, ulSubType = 0, ulNameLen = 6, acName = GP02A, ulTotalPortNum = 2, "
      "ulTotalSpecialPortNum = 0"
      "\r\n 1. ulType = 3401, ulSubType = 9, ulNameLen = 5, acName = PWDA, ulTotalPortNum = 0, "
      "ulTotalSpecialPortNum = 0"
      "\r\n 2. ulType = 3421, ulSubType = 0, ulNameLen = 6, acName = 100%s, ulTotalPortNum = 0, "
      "ulTotalSpecialPortNum = 1"
      "\r\n"
      "\r\nIndex = 0"
      "\r\n ulType = 3102, ulSubType =  0, ulNameLen =  6, acName =    GP02A, "
      "ulTotalServePortNum =  2, ulTotalSpecialPortNum =  0"
      "\r\nServePort = 2"
      "\r\n   0. ulPortType =   2, ulNameLen =  5, acName =     GPON, ulSplittingRatio = 128"
      "\r\n   1. ulPortType =   2, ulNameLen =  5, acName =     GPON, ulSplittingRatio = 128"
      "\r\nSpecialPort = 0"
      "\r\n"
      "\r\nIndex = 1"
      "\r\n ulType = 3401, ulSubType =  9, ulNameLen =  5, acName =     PWDA, "
      "ulTotalServePortNum =  0, ulTotalSpecialPortNum =  0"
      "\r\nServePort = 0"
      "\r\nSpecialPort = 0"
      "\r\n"
      "\r\nIndex = 2"
      "\r\n ulType = 3421, ulSubType =  0, ulNameLen =  6, acName =    100%s, "
      "ulTotalServePortNum =  0, ulTotalSpecialPortNum =  1"
      "\r\nServePort = 0"
      "\r\nSpecialPort = 1"
      "\r\n   0. ulPortType =  41, ulNameLen =  9, acName = ALARM-IN, ulSplittingRatio =  0"
      "\r\n"
      "\r\n"
      "\r\n");
}

TEST_F(ServiceBoardPrinters, EmptyPlacesOfBoardsKeepTheirNumbers) {
  BoardInformation* const board = Board(0xffffffff, "PWDA", {}, {});
  for (int i = 0; i < 100; ++i) {
    AddBoard(i == 1 || i == 99 ? board : nullptr);
  }
  constexpr char kRow[] =
      ". ulType = -1, ulSubType = 0, ulNameLen = 5, acName = PWDA, ulTotalPortNum = 0, "
      "ulTotalSpecialPortNum = 0";
  constexpr char kDetails[] =
      "\r\n ulType =  -1, ulSubType =  0, ulNameLen =  5, acName =     PWDA, "
      "ulTotalServePortNum =  0, ulTotalSpecialPortNum =  0"
      "\r\nServePort = 0"
      "\r\nSpecialPort = 0"
      "\r\n";
  EXPECT_PRINTED(ddPrintAllSupportedBoardInfomation, 0,
                 Head(100) + "\r\n 1" + kRow + "\r\n99" + kRow + "\r\n" + "\r\nIndex = 1" +
                     kDetails + "\r\nIndex = 99" + kDetails + "\r\n\r\n");
}

TEST_F(ServiceBoardPrinters, OnlyEmptyPlacesOfBoards) {
  AddBoard(nullptr);
  AddBoard(nullptr);
  EXPECT_PRINTED(ddPrintAllSupportedBoardInfomation, 0, Head(2) + "\r\n\r\n\r\n");
}

TEST_F(ServiceBoardPrinters, BoardsDoNotPause) {
  BoardInformation* const board = Board(3401, "PWDA", {}, {});
  for (int i = 0; i < 100; ++i) {
    AddBoard(board);
  }
  const Printed printed = Print(ddPrintAllSupportedBoardInfomation);
  EXPECT_EQ(printed.code, 0);
  ExpectNoPause(printed);
  EXPECT_NE(printed.text.find("\r\n99. ulType = 3401"), string::npos);
  EXPECT_NE(printed.text.find("\r\nIndex = 99\r\n"), string::npos);
}

TEST_F(ServiceBoardPrinters, NoBoards) {
  EXPECT_PRINTED(ddPrintAllSupportedBoardInfomation, 0, Head(0) + "\r\n\r\n");
  BoardInformation* place = nullptr;  // all announced boards were left out
  gstSupportedBoardType.pBoardTypeArray = &place;
  EXPECT_PRINTED(ddPrintAllSupportedBoardInfomation, 0, Head(0) + "\r\n\r\n");
}

TEST_F(ServiceBoardPrinters, BoardsWithoutTheirList) {
  for (const int32_t debug : {0, 1}) {
    for (const uint32_t count : {1u, 100u}) {
      ddDebugPrint = debug;
      gstSupportedBoardType.ulSupportedBoardTypeNum = count;
      EXPECT_PRINTED(ddPrintAllSupportedBoardInfomation, -10,
                     "\r\nddPrintAllSupportedBoardInfomation err! pBoardTypeArray = 0x0");
    }
  }
}

TEST_F(ServiceBoardPrinters, CorruptBoardCount) {
  BoardInformation* places[101] = {};
  for (const int32_t debug : {0, 1}) {
    for (BoardInformation** const list : {places, static_cast<BoardInformation**>(nullptr)}) {
      ddDebugPrint = debug;
      gstSupportedBoardType.pBoardTypeArray = list;
      gstSupportedBoardType.ulSupportedBoardTypeNum = 101;
      EXPECT_PRINTED(ddPrintAllSupportedBoardInfomation, -19,
                     "\r\nddPrintAllSupportedBoardInfomation err! ulSupportedBoardTypeNum = 101");
      gstSupportedBoardType.ulSupportedBoardTypeNum = 0xffffffff;
      EXPECT_PRINTED(ddPrintAllSupportedBoardInfomation, -19,
                     "\r\nddPrintAllSupportedBoardInfomation err! ulSupportedBoardTypeNum = -1");
    }
  }
}

}  // namespace
