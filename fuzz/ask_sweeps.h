// The sweeps of tests/threads, on whatever tables there are.
#pragma once

#include <cstddef>

namespace fuzz {

// Asks sweep number `first`, and every `step`th behind it.
void AskSweeps(size_t first, size_t step);

}  // namespace fuzz
