// Translations in one port map, for every port, against a plain computation from
// the wires that the map was read from.
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "catalog/olt/main_boards.h"
#include "catalog/olt/port_map_queries.h"
#include "support/asking.h"
#include "support/definition_file.h"
#include "support/text.h"

namespace {

using std::string;
using test::kUntouched;

// The value of logic port i + 1 in the file: most physical ports have some logic
// ports, some have none; some logic ports are wired to nothing, some to ports
// that no chip has, some to more than 16 bits hold.
uint32_t Wire(uint32_t i) {
  if (i % 17 == 4) {
    return 0;
  }
  if (i % 31 == 5) {
    return 65536 + i % 50;
  }
  if (i % 37 == 6) {
    return 60000 + i;
  }
  return (i * 7 + i / 256) % 1281;
}

struct PlainPair {
  uint32_t logic_port;
  uint32_t phy_port;
};

// All 1280 pairs of a map with that many ports.
std::vector<PlainPair> PlainMap(uint32_t ports) {
  std::vector<PlainPair> pairs;
  for (uint32_t i = 0; i < 1280; ++i) {
    pairs.push_back(i < ports ? PlainPair{(i + 1) & 0xff, Wire(i) & 0xffff} : PlainPair{0, 0});
  }
  return pairs;
}

std::vector<uint32_t> PlainLogicPorts(const std::vector<PlainPair>& pairs, uint32_t phy_port) {
  std::vector<uint32_t> ports;
  for (const PlainPair& pair : pairs) {
    if (pair.phy_port == phy_port) {
      ports.push_back(pair.logic_port);
    }
  }
  return ports;
}

// The place of the first pair of the logic port; 1280 when there is none.
uint32_t PlainPlace(const std::vector<PlainPair>& pairs, uint32_t logic_port) {
  uint32_t place = 0;
  while (place < 1280 && pairs[place].logic_port != logic_port % 256) {
    ++place;
  }
  return place;
}

// ---- Every port --------------------------------------------------------------------

class Translations : public test::LibraryTest, public testing::WithParamInterface<uint32_t> {
 protected:
  void SetUp() override {
    test::LibraryTest::SetUp();
    std::vector<string> values;
    for (uint32_t i = 0; i < GetParam(); ++i) {
      values.push_back(std::to_string(Wire(i)));
    }
    const test::DefinitionFile file("[Sec]\n" + test::Numbered("P", values));
    ASSERT_EQ(ddReadOneSwitchChipLogicPortToPhyPort(file.path(), "Sec", GetParam(), "P",
                                                    map_->astPortPair),
              0);
    plain_ = PlainMap(GetParam());
  }

  std::unique_ptr<PortMap> map_ = std::make_unique<PortMap>();
  std::vector<PlainPair> plain_;
};

TEST_P(Translations, OfEveryPhysicalPort) {
  for (uint32_t port = 0; port <= 1280; ++port) {
    const std::vector<uint32_t> expected = PlainLogicPorts(plain_, port);
    std::vector<uint32_t> logic_ports(1280, kUntouched);
    uint32_t count = kUntouched;
    ASSERT_EQ(ddGetSwitchChipLogicPortFromPhyPort(port, map_.get(), logic_ports.data(), &count), 0);
    ASSERT_EQ(count, expected.size()) << port;
    for (size_t i = 0; i < 1280; ++i) {
      ASSERT_EQ(logic_ports[i], i < expected.size() ? expected[i] : kUntouched) << port;
    }
  }
}

TEST_P(Translations, OfPhysicalPortsThatNoChipHas) {
  test::Console console;
  std::vector<uint32_t> refused = {1281, 1282, 60006, 65535, 0x7fffffff, 0x80000000, 0xffffffff};
  for (uint32_t port = 0; port <= 1281; ++port) {
    refused.push_back(65536 + port);
  }
  for (const uint32_t port : refused) {
    std::vector<uint32_t> logic_ports(1280, kUntouched);
    uint32_t count = kUntouched;
    ASSERT_EQ(ddGetSwitchChipLogicPortFromPhyPort(port, map_.get(), logic_ports.data(), &count),
              -23);
    EXPECT_EQ(count, kUntouched);
    EXPECT_EQ(logic_ports[0], 0u);
    for (size_t i = 1; i < 1280; ++i) {
      ASSERT_EQ(logic_ports[i], kUntouched);
    }
  }
  EXPECT_EQ(console.Text(), "");
}

TEST_P(Translations, OfEveryLogicPort) {
  test::Console console;
  for (uint32_t port = 0; port <= 1280; ++port) {
    const uint32_t place = PlainPlace(plain_, port);
    const bool is_wired = place < 1280 && plain_[place].phy_port != 0;
    uint32_t phy_port = kUntouched;
    ASSERT_EQ(ddGetSwitchChipPhyPortFromLogicPort(port, map_.get(), &phy_port), place == 1280 ? -22
                                                                                : is_wired    ? 0
                                                                                              : -23)
        << port;
    ASSERT_EQ(phy_port, is_wired ? plain_[place].phy_port : kUntouched) << port;
  }
  ddDebugPrint = 1;  // none of these answers has a text
  uint32_t phy_port = 0;
  for (uint32_t port = 0; port <= 1280; ++port) {
    ddGetSwitchChipPhyPortFromLogicPort(port, map_.get(), &phy_port);
  }
  EXPECT_EQ(console.Text(), "");
}

TEST_P(Translations, OfLogicPortsThatNoChipHas) {
  test::Console console;
  for (const uint32_t port : {1281u, 1282u, 65536u, 65537u, 0x7fffffffu, 0x80000000u, ~0u}) {
    uint32_t phy_port = kUntouched;
    EXPECT_EQ(ddGetSwitchChipPhyPortFromLogicPort(port, map_.get(), &phy_port), -23);
    EXPECT_EQ(phy_port, 0u);
  }
  EXPECT_EQ(console.Text(), "");
}

// The place of the pair, and ports beyond 1280.
TEST_P(Translations, ToThePair) {
  for (uint32_t port = 0; port <= 1500; ++port) {
    const uint32_t place = PlainPlace(plain_, port);
    const PortPair* const pair = sys_context::FindLogicPort(*map_, port);
    ASSERT_EQ(pair, place == 1280 ? nullptr : &map_->astPortPair[place]) << port;
    ASSERT_EQ(sys_context::FindLogicPort(*map_, 0xffffff00u + port % 256), pair) << port;
  }
}

INSTANTIATE_TEST_SUITE_P(MainBoards, Translations, testing::Values(0, 1, 255, 256, 300, 1280),
                         testing::PrintToStringParamName());

// ---- Single maps -------------------------------------------------------------------

class PortMapTest : public test::LibraryTest {
 protected:
  int32_t LogicPorts(uint32_t phy_port) {
    return ddGetSwitchChipLogicPortFromPhyPort(phy_port, map_.get(), logic_ports_.data(), &count_);
  }
  int32_t PhyPort(uint32_t logic_port) {
    return ddGetSwitchChipPhyPortFromLogicPort(logic_port, map_.get(), &phy_port_);
  }

  std::unique_ptr<PortMap> map_ = std::make_unique<PortMap>();
  std::vector<uint32_t> logic_ports_ = std::vector<uint32_t>(1280, kUntouched);
  uint32_t count_ = kUntouched;
  uint32_t phy_port_ = kUntouched;
  test::Console console_;
};

TEST_F(PortMapTest, AnEmptyMapWiresPort0OnceForEveryPair) {
  EXPECT_EQ(LogicPorts(0), 0);
  EXPECT_EQ(count_, 1280u);
  EXPECT_EQ(logic_ports_, std::vector<uint32_t>(1280, 0));
  EXPECT_EQ(LogicPorts(1), 0);
  EXPECT_EQ(count_, 0u);
}

TEST_F(PortMapTest, TheFirstPairOfALogicPortAnswers) {
  map_->astPortPair[0] = {5, 50};
  map_->astPortPair[1] = {5, 51};
  EXPECT_EQ(PhyPort(5), 0);
  EXPECT_EQ(phy_port_, 50u);
  map_->astPortPair[0].usPhyPort = 0;  // also when it is wired to nothing
  phy_port_ = kUntouched;
  EXPECT_EQ(PhyPort(5), -23);
  EXPECT_EQ(phy_port_, kUntouched);
}

TEST_F(PortMapTest, ThePairInTheLastPlace) {
  for (PortPair& pair : map_->astPortPair) {
    pair = {1, 2};
  }
  map_->astPortPair[1279] = {8, 1280};
  EXPECT_EQ(PhyPort(8), 0);
  EXPECT_EQ(phy_port_, 1280u);
  EXPECT_EQ(LogicPorts(1280), 0);
  EXPECT_EQ(count_, 1u);
  EXPECT_EQ(logic_ports_[0], 8u);
  EXPECT_EQ(PhyPort(9), -22);
}

TEST_F(PortMapTest, LogicPortsCountBy8Bits) {
  map_->astPortPair[0] = {0x0105, 50};
  map_->astPortPair[1] = {0xff06, 50};
  EXPECT_EQ(LogicPorts(50), 0);
  ASSERT_EQ(count_, 2u);
  EXPECT_EQ(logic_ports_[0], 5u);
  EXPECT_EQ(logic_ports_[1], 6u);
  EXPECT_EQ(PhyPort(6), 0);
  EXPECT_EQ(PhyPort(256 + 6), 0);
  EXPECT_EQ(phy_port_, 50u);
}

TEST_F(PortMapTest, LogicPort1280IsLogicPort0) {
  map_->astPortPair[3] = {0, 33};
  for (int i = 0; i < 3; ++i) {
    map_->astPortPair[i] = {static_cast<uint16_t>(i + 1), 1};
  }
  EXPECT_EQ(PhyPort(1280), 0);
  EXPECT_EQ(phy_port_, 33u);
}

TEST_F(PortMapTest, RoomForLessThanAll) {
  map_->astPortPair[1] = {11, 50};
  map_->astPortPair[4] = {14, 50};
  map_->astPortPair[9] = {19, 50};
  const std::vector<uint32_t> all = {11, 14, 19};
  for (uint32_t room = 1; room <= 5; ++room) {
    std::vector<uint32_t> ports(6, kUntouched);
    uint32_t count = kUntouched;
    EXPECT_EQ(sys_context::FindLogicPorts(50, map_.get(), ports.data(), room, &count), 0);
    EXPECT_EQ(count, 3u);
    for (uint32_t i = 0; i < 6; ++i) {
      EXPECT_EQ(ports[i], i < room && i < 3 ? all[i] : kUntouched) << room;
    }
  }
}

// ---- Refusals ----------------------------------------------------------------------

TEST_F(PortMapTest, PhysicalPortAboveTheLimit) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    logic_ports_[0] = kUntouched;
    EXPECT_EQ(LogicPorts(1281), -23);
    EXPECT_EQ(logic_ports_[0], 0u);
    EXPECT_EQ(count_, kUntouched);
    EXPECT_EQ(console_.Text(),
              debug == 0 ? ""
                         : "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = 1281, "
                           "MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280");
  }
  EXPECT_EQ(LogicPorts(0xffffffff), -23);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetSwitchChipLogicPortFromPhyPort err!, ulPhyPortIn = -1, "
            "MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280");
  // The array's first place is cleared alone, and the count is not looked at.
  uint32_t place = kUntouched;
  EXPECT_EQ(ddGetSwitchChipLogicPortFromPhyPort(1281, map_.get(), &place, nullptr), -23);
  EXPECT_EQ(place, 0u);
}

TEST_F(PortMapTest, LogicPortAboveTheLimit) {
  for (const int32_t debug : {0, 1}) {
    ddDebugPrint = debug;
    phy_port_ = kUntouched;
    EXPECT_EQ(PhyPort(1281), -23);
    EXPECT_EQ(phy_port_, 0u);
    EXPECT_EQ(console_.Text(),
              debug == 0 ? ""
                         : "\r\nddddGetSwitchChipPhyPortFromLogicPort err!, ulLogicPortIn = 1281, "
                           "MAX_SWITCH_CHIP_LOGIC_PORT_NUM = 1280");
  }
}

string NullForLogicPorts(const void* map, const void* ports) {
  return "\r\nddGetSwitchChipLogicPortFromPhyPort err!, pstChipLogicPortToPhyPortType = " +
         test::Hex(map) + ", pulLogicPort = " + test::Hex(ports);
}

TEST_F(PortMapTest, LogicPortsWithoutAMapOrAnArray) {
  uint32_t* const ports = logic_ports_.data();
  // The port is looked at later only.
  EXPECT_EQ(ddGetSwitchChipLogicPortFromPhyPort(1281, nullptr, ports, &count_), -2);
  EXPECT_EQ(ddGetSwitchChipLogicPortFromPhyPort(1281, map_.get(), nullptr, &count_), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetSwitchChipLogicPortFromPhyPort(1281, nullptr, ports, &count_), -2);
  EXPECT_EQ(console_.Text(), NullForLogicPorts(nullptr, ports));
  EXPECT_EQ(ddGetSwitchChipLogicPortFromPhyPort(1, map_.get(), nullptr, &count_), -2);
  EXPECT_EQ(console_.Text(), NullForLogicPorts(map_.get(), nullptr));
  EXPECT_EQ(ddGetSwitchChipLogicPortFromPhyPort(1, nullptr, nullptr, nullptr), -2);
  EXPECT_EQ(console_.Text(),
            "\r\nddGetSwitchChipLogicPortFromPhyPort err!, pstChipLogicPortToPhyPortType = 0x0, "
            "pulLogicPort = 0x0");
  EXPECT_EQ(logic_ports_[0], kUntouched);
  EXPECT_EQ(count_, kUntouched);
}

string NullForPhyPort(const void* map, const void* port) {
  return "\r\nddddGetSwitchChipPhyPortFromLogicPort err!, pstChipLogicPortToPhyPortType = " +
         test::Hex(map) + ", pulPhyPort = " + test::Hex(port);
}

TEST_F(PortMapTest, PhysicalPortWithoutAMapOrAResult) {
  // The port is looked at later only.
  EXPECT_EQ(ddGetSwitchChipPhyPortFromLogicPort(1281, nullptr, &phy_port_), -2);
  EXPECT_EQ(ddGetSwitchChipPhyPortFromLogicPort(1281, map_.get(), nullptr), -2);
  EXPECT_EQ(console_.Text(), "");
  ddDebugPrint = 1;
  EXPECT_EQ(ddGetSwitchChipPhyPortFromLogicPort(1281, nullptr, &phy_port_), -2);
  EXPECT_EQ(console_.Text(), NullForPhyPort(nullptr, &phy_port_));
  EXPECT_EQ(ddGetSwitchChipPhyPortFromLogicPort(1, map_.get(), nullptr), -2);
  EXPECT_EQ(console_.Text(), NullForPhyPort(map_.get(), nullptr));
  EXPECT_EQ(ddGetSwitchChipPhyPortFromLogicPort(1, nullptr, nullptr), -2);
  EXPECT_EQ(console_.Text(),
            "\r\nddddGetSwitchChipPhyPortFromLogicPort err!, pstChipLogicPortToPhyPortType = 0x0, "
            "pulPhyPort = 0x0");
  EXPECT_EQ(phy_port_, kUntouched);
}

}  // namespace
