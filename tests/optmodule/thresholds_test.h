// Asking for the limits of an optical module: the port types that the queries find, and
// what they tell.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "support/asking.h"
#include "support/optmodules.h"
#include "sys_context/olt.h"
#include "sys_context/onu.h"

namespace test {

// What a query is expected to tell, and whom it asks. Without success it stores nothing.
struct Told {
  int32_t code;
  Paths paths = {};
  Names log = {};
  std::vector<std::string> asked = {};
  std::string console = "";  // with the debug switch only
};

class ThresholdsTest : public AskingTest {
 protected:
  using Ask = std::function<int32_t(uint16_t* path_count, OptModuleThreshold* paths)>;

  // The list has these modules, unless a test puts others.
  explicit ThresholdsTest(OptModules modules = {}) : modules_(std::move(modules)) {}
  void SetUp() override {
    AskingTest::SetUp();
    PutOptModules(modules_);
  }

  // Asks for as many paths as a module may have.
  void ExpectTold(const Ask& ask, const Told& told) { ExpectTold(ask, 4, told); }
  // Asks for at most `capacity` paths.
  void ExpectTold(const Ask& ask, uint16_t capacity, const Told& told) {
    AskTwice(told.console, [&] {
      FakePlatform::TakeAsked();
      FakePlatform::TakeLog();
      uint16_t count = capacity;
      std::vector<OptModuleThreshold> paths(capacity + 2u, kUntouchedPath.Record());
      EXPECT_EQ(ask(&count, paths.data()), told.code);
      EXPECT_EQ(count, told.code == 0 ? told.paths.size() : capacity);
      Paths expected = told.paths;
      expected.resize(paths.size(), kUntouchedPath);
      EXPECT_EQ(LimitsOf(paths), expected);
      EXPECT_EQ(FakePlatform::TakeLog(), told.log);
      EXPECT_EQ(FakePlatform::TakeAsked(), told.asked);
    });
  }

  // The only service board is of that type, and has serving ports of these types.
  static void PutCard(uint32_t type, const std::vector<uint32_t>& port_types) {
    BoardInformation* const board = ZeroedBlocks<BoardInformation>(1);
    board->ulType = type;
    StoreName("CARD", board->acName, board->ulNameLen);
    board->ulTotalServePortNum = static_cast<uint32_t>(port_types.size());
    board->pPortArray = NewPorts<OltPortInformation>(port_types);
    gstSupportedBoardType.ulSupportedBoardTypeNum = 1;
    gstSupportedBoardType.pBoardTypeArray = ZeroedBlocks<BoardInformation*>(1);
    gstSupportedBoardType.pBoardTypeArray[0] = board;
  }

  // The only ONU type is that, and has PON ports of these types.
  static void PutOnu(uint32_t type, const std::vector<uint32_t>& pon_port_types) {
    OnuInformation* const onu = ZeroedBlocks<OnuInformation>(1);
    onu->ulOnuType = type;
    StoreName("ONU", onu->acName, onu->ulNameLen);
    onu->ulTotalPonNum = static_cast<uint32_t>(pon_port_types.size());
    onu->pOnuPonArray = NewPorts<OnuPortTypeInformation>(pon_port_types);
    gstSupportedOnuType.ulSupportedOnuTypeNum = 1;
    gstSupportedOnuType.pOnuTypeArray = ZeroedBlocks<OnuInformation*>(1);
    gstSupportedOnuType.pOnuTypeArray[0] = onu;
  }

 private:
  static constexpr PathLimits kUntouchedPath = {7777, 7777, 7777, 7777};

  static Paths LimitsOf(const std::vector<OptModuleThreshold>& paths) {
    Paths limits;
    for (const OptModuleThreshold& path : paths) {
      limits.push_back(PathLimits::Of(path));
    }
    return limits;
  }

  template <typename Port>
  static Port** NewPorts(const std::vector<uint32_t>& types) {
    Port** const ports = ZeroedBlocks<Port*>(types.size());
    for (size_t i = 0; i < types.size(); ++i) {
      ports[i] = ZeroedBlocks<Port>(1);
      ports[i]->ulPortType = types[i];
    }
    return ports;
  }

  const OptModules modules_;
};

}  // namespace test
