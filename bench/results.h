// What was measured, and the tables and verdicts made of it.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "bench/definition_file.h"

namespace bench {

// The fastest repetition of each contestant in each scenario.
class Minima {
 public:
  void Add(const std::string& name, double microseconds);
  // 0 for what was not measured.
  double Get(const std::string& scenario, const std::string& contestant) const;

  static std::string Name(const std::string& scenario, const std::string& contestant) {
    return scenario + ": " + contestant;
  }

 private:
  std::map<std::string, double> minima_;
};

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
