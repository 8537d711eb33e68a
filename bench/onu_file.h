// Definition files with ONU types to measure a load on.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "bench/definition_file.h"

namespace bench {

// The ports of each ONU type.
inline constexpr size_t kOnuPonPorts = 4;
inline constexpr size_t kOnuLanPorts = 32;
inline constexpr size_t kOnuPotsPorts = 16;
inline constexpr size_t kOnuSpecialPorts = 8;
inline constexpr size_t kOnuPorts = kOnuPonPorts + kOnuLanPorts + kOnuPotsPorts + kOnuSpecialPorts;

struct OnuFile {
  std::string text;
  std::vector<Lookup> lookups;  // those of a load of the ONU types, in its order
};

// The large sample with so many ONU types instead of its own.
OnuFile WriteOnuTypes(size_t types);

}  // namespace bench
