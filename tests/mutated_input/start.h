// A start of the library with a pair of definition files, looked at from all sides.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "mutated_input/loaders.h"

namespace mutated {

struct Files {
  std::string device;
  std::string optical;
};

// What else is done with the tables; the seed chooses. One start in `show_one_in` shows
// everything, one in `ask_one_in` asks one query in `sweeps_one_in`.
struct Shares {
  uint32_t show_one_in = 64;
  uint32_t ask_one_in = 8;
  uint32_t sweeps_one_in = 32;
};

struct Outcome {
  int32_t code = 0;  // of ddInit
  Place failed = kNone;
  std::vector<std::string> wrong;  // what should not be
};

// Loads the files, checks the tables, calls `look`, shows, asks and releases them. Afterwards
// the library is as at its load. The seed decides the debug switch, the platform's answers, and
// what is shown and asked.
Outcome Start(const Files& files, int32_t device_type, uint32_t seed, const Shares& shares = {},
              const std::function<void()>& look = {});

}  // namespace mutated
