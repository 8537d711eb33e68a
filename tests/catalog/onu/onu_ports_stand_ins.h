// Answers of the ONU port types that no catalog gives.
#pragma once

#include <cstdint>

#include "catalog/onu/onu_type_files.h"

namespace test {

// The functions of one kind of ports answer so for the name "ODD"; its copies are of the
// kind's second type.
struct OddPort {
  int32_t lookup_code = 0;
  uint32_t supported = 1;
  uint32_t index = 0;
  int32_t copy_code = 0;
};

void SetOddPort(const OnuPortKind& kind, const OddPort& port);
void ForgetOddPort();

}  // namespace test
