// Are all blocks that the library holds reachable from its tables?
#pragma once

#include <cstddef>
#include <set>
#include <vector>

#include "support/faults.h"

namespace test {

// The blocks that the library holds and its tables do not lead to.
std::set<void*> LostBlocks(const Faults& faults);

// kept as is in the library: a section out of order ends the load, and the boards or ONU types
// read so far stay in their array but are not counted. Counts them, so that they can be looked
// at and released.
void CountForgotten(const Faults& faults);

// Releases the lost blocks; returns their sizes.
std::vector<size_t> ReleaseLost(Faults& faults);

// The library keeps exactly the blocks that its tables lead to.
void ExpectNoLeak(const Faults& faults);

// Expects that the library loses that many blocks, which is kept as it is, and
// releases them.
void ExpectAndReleaseLost(Faults& faults, size_t lost);

}  // namespace test
