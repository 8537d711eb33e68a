// The tables and verdicts made of what was measured of the lookups.
#pragma once

#include <string>
#include <vector>

#include "bench/definition_file.h"
#include "bench/measure.h"

namespace bench {

// One file and one lookup in it.
struct Scenario {
  // What a table calls it, and in which table it stands.
  enum class Group { kScan, kFirstKey, kOddLines };
  Group group;
  std::string name;
  std::string floor;  // which of the floors is under it
  Lookup lookup;
  size_t odd_lines = 0;
};

// Prints everything, as Markdown. False when a goal was missed.
bool PrintResults(const std::vector<Scenario>& scenarios, const Minima& minima);

}  // namespace bench
