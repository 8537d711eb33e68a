// Samples to run commands and ask queries on.
#pragma once

#include <string>
#include <string_view>

#include "support/faults.h"

namespace fuzz {

struct Sample {
  std::string name;
  std::string device;   // the device definition file's content
  std::string optical;  // that of the optical modules' file
};

// The first one, which is small, when there is none of that name.
const Sample& SampleNamed(std::string_view name);

// Empty tables in place of those that PutTables put.
void RemoveTables();

// The tables of a sample in place of those that were put before, with a new platform for them;
// whatever opens the definition files from now on finds the sample's. The tables are loaded
// once and must only be read, but for what can be released: the boards of the frame's slots
// and the optical modules are copies.
void PutTables(const Sample& sample, test::Faults& faults);

}  // namespace fuzz
