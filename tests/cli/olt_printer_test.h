// OLT tables to print. Their records are the fixture's.
#pragma once

#include <algorithm>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include "cli/printer_test.h"
#include "support/records.h"

namespace test {

class OltPrinterTest : public PrinterTest {
 protected:
  void TearDown() override {
    gstSupportedOltPortType = {};
    gstSupportedMainBoardType = {};
    gstSupportedBoardType = {};
    PrinterTest::TearDown();
  }

  // A port type; also what a board keeps of one for each of its ports.
  OltPortInformation* Port(uint32_t type, const std::string& name, uint32_t ratio) {
    OltPortInformation& port = ports_.emplace_back();
    port = {type, 0, "", ratio, 0};
    StoreName(name, port.acName, port.ulNameLen);
    return &port;
  }
  void AddPortType(OltPortInformation* type) {
    port_types_.push_back(type);
    gstSupportedOltPortType = {static_cast<uint32_t>(port_types_.size()), port_types_.data()};
  }

  // A main board of so many logic ports; its maps are added.
  MainBoardInformation* MainBoard(uint32_t type, const std::string& name, uint32_t ports) {
    main_boards_.push_back(std::make_unique<MainBoardInformation>());
    MainBoardInformation& board = *main_boards_.back();
    board.ulType = type;
    board.ulSwitchChipLogicPortNum = ports;
    StoreName(name, board.acName, board.ulNameLen);
    return &board;
  }
  static void AddMap(MainBoardInformation& board, const std::string& name,
                     const std::vector<PortPair>& pairs) {
    ASSERT_LT(board.ulChipLogicPortToPhyPortTypeNum, 20u);
    PortMap& map = board.astPortMap[board.ulChipLogicPortToPhyPortTypeNum++];
    StoreName(name, map.acBoardName, map.ulBoardNameLen);
    std::copy(pairs.begin(), pairs.end(), map.astPortPair);
  }
  void AddMainBoard(MainBoardInformation* board) {
    main_board_places_.push_back(board);
    gstSupportedMainBoardType = {static_cast<uint32_t>(main_board_places_.size()),
                                 main_board_places_.data()};
  }

  // A service board with these ports.
  BoardInformation* Board(uint32_t type, const std::string& name,
                          const std::vector<OltPortInformation*>& serving,
                          const std::vector<OltPortInformation*>& special) {
    BoardInformation& board = boards_.emplace_back();
    board.ulType = type;
    StoreName(name, board.acName, board.ulNameLen);
    board.ulTotalServePortNum = static_cast<uint32_t>(serving.size());
    board.pPortArray = port_lists_.emplace_back(serving).data();
    board.ulTotalSpecialPortNum = static_cast<uint32_t>(special.size());
    board.pSpecialPortArray = port_lists_.emplace_back(special).data();
    return &board;
  }
  void AddBoard(BoardInformation* board) {
    board_places_.push_back(board);
    gstSupportedBoardType.ulSupportedBoardTypeNum = static_cast<uint32_t>(board_places_.size());
    gstSupportedBoardType.pBoardTypeArray = board_places_.data();
  }

  std::deque<OltPortInformation> ports_;
  std::vector<OltPortInformation*> port_types_;
  std::vector<std::unique_ptr<MainBoardInformation>> main_boards_;
  std::vector<MainBoardInformation*> main_board_places_;
  std::deque<BoardInformation> boards_;
  std::deque<std::vector<OltPortInformation*>> port_lists_;
  std::vector<BoardInformation*> board_places_;
};

}  // namespace test
