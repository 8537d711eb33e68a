// Asking queries: they print with the debug switch only, and change no frame.
#pragma once

#include <cstdint>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "support/console.h"
#include "support/tables.h"
#include "support/text.h"
#include "sys_context/context.h"
#include "sys_context/frame.h"

namespace test {

constexpr uint32_t kUntouched = 7777;  // in the outputs, before a query is asked

using Outputs = std::vector<uint32_t*>;

// The text with the outputs' addresses for {out0}, {out1}, ...
inline std::string WithOutputs(std::string text, const Outputs& outputs) {
  for (size_t i = 0; i < outputs.size(); ++i) {
    text = With(text, "{out" + std::to_string(i) + "}", Hex(outputs[i]));
  }
  return text;
}

// Asks with some of these outputs and null for the others, in all ways but the one
// with all of them.
inline void ForEachMissing(const Outputs& all, const std::function<void(const Outputs&)>& ask) {
  for (uint32_t given = 0; given + 1 < 1u << all.size(); ++given) {
    SCOPED_TRACE("outputs given, as bits: " + std::to_string(given));
    Outputs outputs = all;
    for (size_t i = 0; i < all.size(); ++i) {
      outputs[i] = (given >> i) % 2 == 1 ? all[i] : nullptr;
    }
    ask(outputs);
  }
}

class AskingTest : public LibraryTest {
 protected:
  // Asks with the debug switch off and on: then, and only then, `text` is printed. The
  // frame stays as it is. Words of a failing test come to the console too, so it asks
  // no further.
  void AskTwice(const std::string& text, const std::function<void()>& ask) {
    for (const int32_t debug : {0, 1}) {
      if (HasFailure()) {
        return;
      }
      ddDebugPrint = debug;
      std::memcpy(&frame_before_, &gstFrame, sizeof gstFrame);
      ask();
      EXPECT_EQ(std::memcmp(&frame_before_, &gstFrame, sizeof gstFrame), 0);
      EXPECT_EQ(console_.Text(), debug != 0 ? text : "");
    }
  }

  Console console_;

 private:
  FrameInformation frame_before_;
};

}  // namespace test
