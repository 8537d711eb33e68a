// Every query of the library, with all that it is asked for.
#pragma once

#include <vector>

#include "threads/ask.h"

namespace test {

// A query and all that it is asked for.
struct Sweep {
  const char* query;
  Asker ask;
  bool succeeds = true;  // at least once
};

// What the queries are asked for is taken from the tables, which must be loaded.
std::vector<Sweep> AllSweeps();

}  // namespace test
