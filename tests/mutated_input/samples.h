// The definition files that are changed.
#pragma once

#include <string>
#include <vector>

#include "mutated_input/start.h"

namespace mutated {

// A chassis of the folder definitions/.
struct Sample {
  const char* name;
  int32_t device_type;
};
inline constexpr Sample kSmallSample = {"kt2200-a", 6};
inline constexpr Sample kLargeSample = {"kt3300-l", 15};

Files FilesOf(const Sample& sample);

// The fuzzer's seeds: small device definition files, by name.
std::vector<std::string> Seeds();

}  // namespace mutated
