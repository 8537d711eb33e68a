// The number conversion.
#include "common/numbers.h"

#include <algorithm>
#include <cstdlib>

namespace sys_context {

int32_t ParseNumber(const char* text) {
  // `long` has 32 bits on the card, where strtol itself stops at the borders.
  const long long number = std::strtol(text, nullptr, 10);
  return static_cast<int32_t>(std::clamp<long long>(number, INT32_MIN, INT32_MAX));
}

}  // namespace sys_context
