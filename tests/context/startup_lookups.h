// Every lookup of a start on the complete file, and what its failure leads to.
#pragma once

#include <string>
#include <vector>

#include "context/start_outcome.h"

namespace test {

struct Lookup {
  // What is said if it alone fails, with the code that stands for the "%", and
  // what is said more under the debug switch: by the function list, that is
  // between the modules' words and those of the tables behind it.
  std::string console;
  std::string debug_console;

  Outcome once;      // if it alone fails
  Outcome for_ever;  // if all behind it fail as well
};

// In the order in which they are made.
const std::vector<Lookup>& Lookups();

}  // namespace test
