// What the tables hold, to be compared and to be read.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace mutated {

// All of it, without the addresses: equal tables give equal bytes.
std::string Contents();

// The number of records in each table, as "modules 8".
struct Count {
  const char* table;
  size_t count;
};
std::vector<Count> Counts();

}  // namespace mutated
