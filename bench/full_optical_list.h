// A list of as many optical modules as there may be.
#pragma once

#include <cstdint>

#include "sys_context/optmodule.h"

namespace bench {

// Of PON modules for one type of port. Number n has this physical type. The last has four
// paths, the others three.
constexpr uint32_t kFullListPortType = 2;
constexpr uint16_t FullListPhyType(uint32_t number) {
  return static_cast<uint16_t>(number);
}

// Puts the full list in the place of the loaded one, for as long as it lives.
class FullOpticalList {
 public:
  FullOpticalList();
  ~FullOpticalList();
  FullOpticalList(const FullOpticalList&) = delete;
  FullOpticalList& operator=(const FullOpticalList&) = delete;

 private:
  OptModuleInfoList loaded_;
};

}  // namespace bench
