// Every lookup of a start on the complete files, and what its failure leads to.
#pragma once

#include <string>
#include <vector>

#include "context/start_outcome.h"
#include "support/text.h"

namespace test {

struct Lookup {
  // What is said if it alone fails, with the code that stands for the "%". What
  // stands in braces is said under the debug switch only.
  std::string console;

  Outcome once;      // if it alone fails
  Outcome for_ever;  // if all behind it fail as well

  Names log = {};  // what is logged if it alone fails, with the code as above
};

// In an outcome: the code with which the lookup failed.
constexpr int32_t kOwnCode = 1;

// In the order in which they are made.
const std::vector<Lookup>& Lookups();

}  // namespace test
