// A device definition file of arbitrary bytes, from ddInit to the last query.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace fuzz {

enum class Queries {
  kAll,
  kSome,  // a share of them, which the bytes choose: to run many files in little time
};

// What came of a file, with the debug switch off or on.
struct Outcome {
  int32_t code = 0;          // of ddInit
  std::vector<size_t> lost;  // sizes of the blocks that no table leads to
  size_t left = 0;           // blocks that the tables still held when they were released
};

// Loads the file, has everything shown on a terminal and asks the queries; the platform's
// answers follow from the bytes. Afterwards the library is as at its load, and what was lost
// is released. What the library prints goes to standard output.
Outcome Run(std::string_view bytes, int32_t debug, Queries queries);

// Was nothing lost but what the interface lets go: ports of boards and ONU types that are
// left out, those of ONU types by whole lists?
bool IsAccountedFor(const Outcome& outcome);

}  // namespace fuzz
