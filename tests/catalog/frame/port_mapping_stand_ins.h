// What the run-time mapping asks of the library: noted, and answered by the test
// where the library never answers so in real life.
#pragma once

#include <cstdint>
#include <optional>

#include "sys_context/olt.h"

namespace test {

// The notes stand among the platform's questions (FakePlatform::asked), in the order
// in which all are asked: "main board 101", "logic port 7", "special map 101 3301".
struct PortMappingStandIns {
  static PortMappingStandIns& Get();
  static void Reset();

  template <typename Record>
  struct LookupAnswer {
    int32_t code;
    Record* record;
  };
  std::optional<int32_t> main_type_code;
  std::optional<LookupAnswer<MainBoardInformation>> main_board;
  std::optional<LookupAnswer<PortMap>> special_map;
  std::optional<uint32_t> slot_of_port_0;  // which no chassis has
};

}  // namespace test
