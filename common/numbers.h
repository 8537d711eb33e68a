// The number conversion that every loader and command uses.
#pragma once

#include <cstdint>

namespace sys_context {

// Decimal text to a number as the card's C library converts it: leading white
// space and a sign are allowed, text behind the digits is ignored, text without
// digits is 0, and what exceeds 32 bits becomes the nearest 32-bit number.
int32_t ParseNumber(const char* text);

// The same for unsigned fields: a negative number becomes a very large one,
// which the limits then refuse.
inline uint32_t ParseUnsigned(const char* text) {
  return static_cast<uint32_t>(ParseNumber(text));
}

}  // namespace sys_context
