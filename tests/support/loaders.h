// The loaders of a start.
#pragma once

#include <cstdint>

namespace test {

// In their order: what each loads.
enum Loader : uint32_t {
  kVersions,
  kModules,
  kFunctions,
  kPortTypes,
  kMainBoards,
  kBoards,
  kFrame,
  kOnuPonTypes,
  kOnuLanTypes,
  kOnuPotsTypes,
  kOnuSpecialPortTypes,
  kOnus,
  kOpticalModules,
  kLoaderCount
};

}  // namespace test
