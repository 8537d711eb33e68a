// A chassis with main board, cards and maps.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "catalog/frame/port_mapping_stand_ins.h"
#include "catalog/olt/board_tables.h"
#include "sys_context/frame.h"

namespace test {

using Wires = std::vector<std::pair<uint16_t, uint16_t>>;  // logic port, physical port

struct NamedWires {
  std::string card;
  Wires wires;
};

// Logic port 4 stands there twice; physical port 13 has two logic ports, 16 has three,
// and 25 has five.
inline const Wires kDefaultWires = {
    {1, 11},  {2, 0},   {3, 13},  {4, 14},  {5, 13},  {6, 16},  {7, 16},  {8, 16},     {4, 44},
    {11, 25}, {12, 25}, {13, 25}, {14, 25}, {15, 25}, {16, 26}, {18, 28}, {20, 65535},
};

// Of card UP4X. Physical port 144 has three logic ports.
inline const Wires kSpecialWires = {
    {1, 111}, {2, 112}, {3, 0}, {4, 144}, {5, 13}, {4, 145}, {7, 144}, {8, 144}, {19, 119},
};

inline const PlacedBoards kMainBoards = {{{{100, "MCX0"}}, {{101, "MCXA"}}}};

class PortMappingTest : public BoardTablesTest {
 protected:
  void SetUp() override {
    BoardTablesTest::SetUp();
    PortMappingStandIns::Reset();
    PutBoards({{{{3301, "UP4X"}}, {{3302, "UP4Y"}}}});
    FakePlatform::Get().main_card = 101;
    // Logic port n is port n of slot 20 + n; 17 and 18 are the ports 129 and 128.
    gstFrame.ulSwitchChipLogicPortNum = 20;
    for (uint8_t i = 0; i < 21; ++i) {
      gstFrame.astSwitchChipLogicPort[i] = {static_cast<uint8_t>(21 + i),
                                            static_cast<uint8_t>(1 + i), 0};
    }
    gstFrame.astSwitchChipLogicPort[16].ucSlotPort = 129;
    gstFrame.astSwitchChipLogicPort[17].ucSlotPort = 128;
  }
  void TearDown() override {
    PortMappingStandIns::Reset();
    BoardTablesTest::TearDown();
  }

  // MCX0 with a default map that wires logic port 1 to 91, and MCXA with the maps above and
  // one for cards of its own kind.
  void PutMainBoardsWithMaps() {
    PutMainBoards(kMainBoards);
    PutMaps(0, {{"NoSpecialUplinkBoard", {{1, 91}}}});
    PutMaps(
        1,
        {{"NoSpecialUplinkBoard", kDefaultWires}, {"UP4X", kSpecialWires}, {"MCXA", {{1, 211}}}});
  }

  static void PutMaps(size_t place, const std::vector<NamedWires>& maps) {
    MainBoardInformation& board = *gstSupportedMainBoardType.pBoardTypeArray[place];
    board.ulChipLogicPortToPhyPortTypeNum = static_cast<uint32_t>(maps.size());
    for (size_t i = 0; i < maps.size(); ++i) {
      PortMap& map = board.astPortMap[i];
      StoreName(maps[i].card, map.acBoardName, map.ulBoardNameLen);
      for (size_t j = 0; j < maps[i].wires.size(); ++j) {
        map.astPortPair[j] = {maps[i].wires[j].first, maps[i].wires[j].second};
      }
    }
  }

  // What was asked of the platform and of the library since the last call.
  static std::string Asked() {
    std::string text;
    for (const std::string& question : FakePlatform::TakeAsked()) {
      text += (text.empty() ? "" : ", ") + question;
    }
    return text;
  }
};

}  // namespace test
