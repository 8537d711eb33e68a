// What the readers of the frame ask of others: noted, and answered by the test
// where others never answer so in real life.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace test {

struct FrameStandIns {
  static FrameStandIns& Get();
  static void Reset();

  std::vector<std::string> keys;      // looked up, as "section: key"
  std::vector<std::string> cards;     // whose type was asked for
  std::optional<int32_t> card_code;   // what is answered for every card
  std::optional<int32_t> frame_code;  // what is answered for the frame's name
};

}  // namespace test
