// Every port of a full chassis, against a plain computation from the same wires.
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "catalog/frame/port_mapping_test.h"
#include "support/numbers.h"

namespace {

using std::string;
using test::FakePlatform;
using test::kUntouched;

// A pair of a full map: 1280 of them, numbered as the reader does it. Some have more
// than 8 bits all the same, some are wired to nothing, some numbers are missing, and
// some physical ports have several logic ports.
std::pair<uint16_t, uint16_t> Wire(uint32_t seed, uint32_t i) {
  uint32_t logic_port = (i + 1) % 256;
  if (i % 29 == seed) {
    logic_port += 256 * (i % 200);
  }
  if ((i / 3) % 11 == seed % 11) {
    logic_port = 7;
  }
  const uint32_t phy_port = i % 13 == seed ? 0 : (i * (seed + 3) + i / 256) % 1000 + seed;
  return {static_cast<uint16_t>(logic_port), static_cast<uint16_t>(phy_port)};
}

test::Wires FullMap(uint32_t seed, uint32_t pairs) {
  test::Wires wires;
  for (uint32_t i = 0; i < 1280; ++i) {
    wires.push_back(i < pairs ? Wire(seed, i) : std::pair<uint16_t, uint16_t>());
  }
  return wires;
}

struct Size {
  const char* name;
  uint32_t frame_ports;  // announced
  uint32_t board_ports;  // pairs in use
  friend std::ostream& operator<<(std::ostream& out, const Size& size) { return out << size.name; }
};

class EveryPort : public test::PortMappingTest, public testing::WithParamInterface<Size> {
 protected:
  void SetUp() override {
    PortMappingTest::SetUp();
    for (uint32_t seed = 0; seed < 3; ++seed) {
      wires_.push_back(FullMap(seed, GetParam().board_ports));
    }
    PutMainBoards(test::kMainBoards);
    PutMaps(1, {{"NoSpecialUplinkBoard", wires_[0]}, {"UP4X", wires_[1]}, {"UP4Y", wires_[2]}});
    gstFrame.ulSwitchChipLogicPortNum = GetParam().frame_ports;
    for (uint32_t i = 0; i < 1280; ++i) {
      gstFrame.astSwitchChipLogicPort[i] = {static_cast<uint8_t>(SlotOf(i + 1)),
                                            static_cast<uint8_t>(PortOf(i + 1)), 1};
    }
    // Of seven slots in a row, four have cards.
    for (uint32_t slot = 0; slot < 256; ++slot) {
      const int32_t cards[] = {-1, 0, 3301, 3302, 101, 3303, -3301};
      FakePlatform::Get().configured_cards[slot] = cards[slot % 7];
    }
  }

  static uint32_t SlotOf(uint32_t logic_port) { return logic_port * 5 % 256; }
  static uint32_t PortOf(uint32_t logic_port) { return logic_port % 131; }  // two are corrupt

  std::vector<test::Wires> wires_;
};

// All ports and some behind them, and numbers that are others in fewer bits.
const std::vector<uint32_t> kAskedPorts = [] {
  std::vector<uint32_t> ports = test::NumbersFrom(0, 1301);
  const std::vector<uint32_t> above = test::NumbersFrom(65536, 1301);
  ports.insert(ports.end(), above.begin(), above.end());
  ports.insert(ports.end(), {0x7fffffff, 0x80000000, 0xffffffff});
  return ports;
}();

struct Translation {
  int32_t code;
  uint32_t phy_port;
  bool operator==(const Translation& other) const {
    return code == other.code && phy_port == other.phy_port;
  }
  friend std::ostream& operator<<(std::ostream& out, const Translation& translation) {
    return out << translation.code << ", " << translation.phy_port;
  }
};

TEST_P(EveryPort, ToPhyPort) {
  const auto translate = [&](uint32_t logic_port) -> Translation {
    const uint32_t count = GetParam().frame_ports;
    if (count > 1280 || logic_port < 1 || logic_port > count || PortOf(logic_port) > 128) {
      return {-22, kUntouched};
    }
    const uint32_t kind = SlotOf(logic_port) % 7;
    const size_t map = kind == 2 ? 1 : kind == 3 ? 2 : 0;
    for (const auto& [wired, phy_port] : wires_[map]) {
      if (wired % 256 != logic_port % 256) {
        continue;
      }
      return phy_port != 0 ? Translation{0, phy_port}
             : map == 0    ? Translation{0, 0}
                           : Translation{-22, 0xffffffff};
    }
    return {-22, kUntouched};
  };
  for (const uint32_t port : kAskedPorts) {
    uint32_t phy_port = kUntouched;
    const int32_t code = ddRunGetSwitchChipPhyPortFromLogicPort(port, &phy_port);
    ASSERT_EQ((Translation{code, phy_port}), translate(port)) << port;
  }
  EXPECT_EQ(console_.Text(), "");
}

TEST_P(EveryPort, ToLogicPort) {
  std::map<uint32_t, uint32_t> wired;  // logic ports of a physical port
  for (const auto& [logic_port, phy_port] : wires_[0]) {
    ++wired[phy_port];
  }
  for (const uint32_t port : kAskedPorts) {
    const bool is_known = port >= 1 && port <= 1280;
    uint32_t logic_port = kUntouched;
    ASSERT_EQ(ddRunGetSwitchChipLogicPortFromPhyPort(port, &logic_port), is_known ? -22 : -23)
        << port;
    ASSERT_EQ(logic_port, kUntouched);
    ASSERT_EQ(Asked(), port == 0 ? ""
                       : is_known && wired.count(port) != 0
                           ? "main card, main board 101, logic port 0"
                           : "main card, main board 101")
        << port;
  }
  EXPECT_EQ(console_.Text(), "");
}

const Size kSizes[] = {
    {"Full", 1280, 1280},
    {"SmallFrame", 255, 1280},
    {"FrameOf256", 256, 256},
    {"SmallBoard", 1280, 20},
    {"EmptyBoard", 1280, 0},
    {"EmptyFrame", 0, 1280},
    {"OnePort", 1, 1},
    {"CorruptFrame", 1281, 1280},
    {"CorruptIn16Bits", 65536 + 5, 1280},
    {"MostCorruptFrame", 0xffffffff, 1280},
};
INSTANTIATE_TEST_SUITE_P(PortMapping, EveryPort, testing::ValuesIn(kSizes),
                         testing::PrintToStringParamName());

}  // namespace
