// Definition files of optical modules to measure a load on.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "bench/definition_file.h"

namespace bench {

inline constexpr size_t kOptModulePaths = 4;  // of each module; the limit

struct OpticalFile {
  std::string text;
  std::vector<Lookup> lookups;  // those of a load, in its order
};

OpticalFile WriteOptModules(size_t modules);

}  // namespace bench
