// Main boards as a definition file describes them, and as the table holds them.
#pragma once

#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include "support/records.h"
#include "support/tables.h"
#include "sys_context/olt.h"

namespace test {

// Of a record, on every machine.
constexpr size_t kMainBoardSize = 103760;
static_assert(sizeof(MainBoardInformation) == kMainBoardSize);

// ---- Definition files --------------------------------------------------------

// The numbers `first`, `first` + 1, ... as values of keys.
inline std::vector<std::string> Numbers(int first, int count) {
  std::vector<std::string> numbers;
  for (int i = 0; i < count; ++i) {
    numbers.push_back(std::to_string(first + i));
  }
  return numbers;
}

// A board of two ports and two special maps.
inline const std::string kSection =
    "[Sec]\nType=7\nName=MPU\n"
    "SwitchChipLogicPortNum=2\nSwitchChipLogicPort1=11\nSwitchChipLogicPort2=12\n"
    "SpecialChipLogicPortMapPhyPortCardNum=2\n"
    "SpecialChipLogicPortMapPhyPortCard1=ETHA\n"
    "ETHA_SwitchChipLogicPort1=21\nETHA_SwitchChipLogicPort2=22\n"
    "SpecialChipLogicPortMapPhyPortCard2=ETHB\n"
    "ETHB_SwitchChipLogicPort1=31\nETHB_SwitchChipLogicPort2=32\n";

// A list section that announces `count` boards in the sections S1, S2, ...
inline std::string MainBoardList(int count) {
  std::string text =
      "[SupportedMainBoardType]\nSupportedMainBoardTypeNum=" + std::to_string(count) + "\n";
  for (int i = 1; i <= count; ++i) {
    text += "SupportedMainBoardType" + std::to_string(i) + "=S" + std::to_string(i) + "\n";
  }
  return text;
}

// The section S<n> of a board of type n, named N<n>, whose only port is wired to
// port n.
inline std::string SmallBoard(int number) {
  const std::string n = std::to_string(number);
  return "[S" + n + "]\nType=" + n + "\nName=N" + n +
         "\nSwitchChipLogicPortNum=1\nSwitchChipLogicPort1=" + n +
         "\nSpecialChipLogicPortMapPhyPortCardNum=0\n";
}

// ---- Records -----------------------------------------------------------------

using Pairs = std::vector<std::pair<uint16_t, uint16_t>>;  // logic port, physical port

struct Map {
  std::string name;
  Pairs pairs;
};

inline void StoreMap(const Map& map, PortMap& record) {
  StoreName(map.name, record.acBoardName, record.ulBoardNameLen);
  for (size_t i = 0; i < map.pairs.size(); ++i) {
    record.astPortPair[i] = {map.pairs[i].first, map.pairs[i].second};
  }
}

inline MainBoardInformation MainBoardRecord(uint32_t type, const std::string& name, uint32_t ports,
                                            const std::vector<Map>& maps) {
  MainBoardInformation board = {};
  board.ulType = type;
  StoreName(name, board.acName, board.ulNameLen);
  board.ulSwitchChipLogicPortNum = ports;
  board.ulChipLogicPortToPhyPortTypeNum = static_cast<uint32_t>(maps.size());
  for (size_t i = 0; i < maps.size(); ++i) {
    StoreMap(maps[i], board.astPortMap[i]);
  }
  return board;
}

// What kSection describes.
inline MainBoardInformation SectionBoard() {
  return MainBoardRecord(7, "MPU", 2,
                         {{"NoSpecialUplinkBoard", {{1, 11}, {2, 12}}},
                          {"ETHA", {{1, 21}, {2, 22}}},
                          {"ETHB", {{1, 31}, {2, 32}}}});
}

// What SmallBoard describes.
inline MainBoardInformation SmallRecord(int number) {
  return MainBoardRecord(static_cast<uint32_t>(number), "N" + std::to_string(number), 1,
                         {{"NoSpecialUplinkBoard", {{1, static_cast<uint16_t>(number)}}}});
}

inline void ExpectMap(const PortMap& map, const PortMap& expected) {
  EXPECT_EQ(map.ulBoardNameLen, expected.ulBoardNameLen);
  EXPECT_EQ(std::string(map.acBoardName, 60), std::string(expected.acBoardName, 60));
  for (size_t i = 0; i < MAX_SWITCH_CHIP_LOGIC_PORT_NUM; ++i) {
    ASSERT_EQ(map.astPortPair[i].usLogicPort, expected.astPortPair[i].usLogicPort) << "pair " << i;
    ASSERT_EQ(map.astPortPair[i].usPhyPort, expected.astPortPair[i].usPhyPort) << "pair " << i;
  }
}

// Every byte of the record, also of what is not in use.
inline void ExpectMainBoard(const MainBoardInformation& board,
                            const MainBoardInformation& expected) {
  if (std::memcmp(&board, &expected, sizeof board) == 0) {
    return;
  }
  ADD_FAILURE() << "the records differ";
  EXPECT_EQ(board.ulType, expected.ulType);
  EXPECT_EQ(board.ulSubType, expected.ulSubType);
  EXPECT_EQ(board.ulNameLen, expected.ulNameLen);
  EXPECT_EQ(std::string(board.acName, 60), std::string(expected.acName, 60));
  EXPECT_EQ(board.ulSwitchChipLogicPortNum, expected.ulSwitchChipLogicPortNum);
  EXPECT_EQ(board.ulChipLogicPortToPhyPortTypeNum, expected.ulChipLogicPortToPhyPortTypeNum);
  for (size_t i = 0; i < MAX_SWITCH_CHIP_LOGIC_PORT_TYPE_NUM; ++i) {
    SCOPED_TRACE("map " + std::to_string(i));
    ExpectMap(board.astPortMap[i], expected.astPortMap[i]);
  }
}

// ---- Tables ------------------------------------------------------------------

enum class MainBoardTable {
  kLoaded,        // eight boards, see below
  kEmptyPlaces,   // the same with an empty place in front of the first and of the second
  kFull,          // 100 boards, of type and name 1 to 100
  kNone,          // no array, count 0
  kNoneButCount,  // no array, count 3
  kCorrupt,       // 101 boards announced, array there
  kCorruptNone,   // 101 boards announced, no array
  kCorruptMost,   // the largest count, array there
};

class MainBoardTest : public LibraryTest {
 protected:
  void TearDown() override {
    gstSupportedMainBoardType = {};  // its records are this fixture's
    LibraryTest::TearDown();
  }

  void PutBoards(const std::vector<std::pair<uint32_t, std::string>>& boards) {
    boards_.clear();
    for (const auto& [type, name] : boards) {
      boards_.push_back(MainBoardRecord(type, name, 0, {{"NoSpecialUplinkBoard", {}}}));
    }
    places_.clear();
    for (MainBoardInformation& board : boards_) {
      places_.push_back(&board);
    }
    ShowPlaces();
  }

  void ShowPlaces() {
    gstSupportedMainBoardType = {static_cast<uint32_t>(places_.size()), places_.data()};
  }

  void Put(MainBoardTable table) {
    std::vector<std::pair<uint32_t, std::string>> boards = {
        {1, "MPU"},       {3, "SWU"}, {4, "swu"},
        {3, "SWU2"},      {5, "SWU"}, {6, std::string(59, 'n')},
        {0xffffffff, ""}, {0, "ZERO"}};
    if (table == MainBoardTable::kFull) {
      boards.clear();
      for (uint32_t i = 1; i <= 100; ++i) {
        boards.push_back({i, std::to_string(i)});
      }
    }
    PutBoards(boards);
    if (table == MainBoardTable::kEmptyPlaces) {
      places_.insert(places_.begin() + 1, nullptr);
      places_.insert(places_.begin(), nullptr);
      ShowPlaces();
    }
    SupportedMainBoardType& shown = gstSupportedMainBoardType;
    if (table == MainBoardTable::kNone) {
      shown = {};
    } else if (table == MainBoardTable::kNoneButCount) {
      shown = {3, nullptr};
    } else if (table == MainBoardTable::kCorrupt) {
      shown.ulSupportedBoardTypeNum = 101;
    } else if (table == MainBoardTable::kCorruptNone) {
      shown = {101, nullptr};
    } else if (table == MainBoardTable::kCorruptMost) {
      shown.ulSupportedBoardTypeNum = 0xffffffff;
    }
  }

  Console console_;
  std::vector<MainBoardInformation> boards_;
  std::vector<MainBoardInformation*> places_;
};

}  // namespace test
