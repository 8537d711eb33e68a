// Are all blocks that the library holds reachable from its tables?
#pragma once

#include <set>

#include "support/faults.h"

namespace test {

// The blocks that the library holds and its tables do not lead to.
std::set<void*> LostBlocks(const Faults& faults);

// The library keeps exactly the blocks that its tables lead to.
void ExpectNoLeak(const Faults& faults);

// Expects that the library loses that many blocks, which is kept as it is, and
// releases them.
void ExpectAndReleaseLost(Faults& faults, size_t lost);

}  // namespace test
