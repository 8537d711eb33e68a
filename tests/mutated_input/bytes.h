// Changes of single bytes, drawn from a seed: the same on every machine.
#pragma once

#include <cstdint>
#include <string>

#include "mutated_input/start.h"

namespace mutated {

struct MutatedFiles {
  Files files;
  int32_t device_type = 0;
  uint32_t seed = 0;  // for the start
};

// Number `number` of the files of a seed: mostly a small device definition file, sometimes a
// sample's, now and then an optical module file; with 1 to 4 bytes flipped, replaced, inserted
// or deleted.
MutatedFiles MutatedFilesOf(uint32_t seed, uint32_t number);

}  // namespace mutated
