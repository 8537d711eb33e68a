// What a line of a definition file is, told once for every source of bytes.
#pragma once

#include <cstdint>

namespace sys_context {

constexpr int32_t kLineEndOfFile = -1;
constexpr int32_t kLineReadError = -2;

// What a source of bytes answers instead of a byte.
constexpr int kSourceEnd = -1;
constexpr int kSourceError = -2;

constexpr char kFormFeed = '\f';
constexpr char kSubstitute = '\x1a';

// Copies the next line, at most `maximum` characters, into `buffer` and
// terminates it. `next_byte` gives 0..255, kSourceEnd or kSourceError. Returns
// the line's length, kLineEndOfFile or kLineReadError.
template <typename NextByte>
int32_t CopyLine(NextByte&& next_byte, char* buffer, int32_t maximum) {
  int32_t length = 0;
  bool consumed = false;
  while (length < maximum) {
    const int byte = next_byte();
    if (byte == kSourceError) {
      return kLineReadError;
    }
    if (byte == kSourceEnd) {
      if (!consumed) {
        return kLineEndOfFile;
      }
      break;
    }
    consumed = true;
    const char c = static_cast<char>(byte);
    if (c == '\n' || c == '\0') {
      break;
    }
    if (c == '\r') {
      continue;
    }
    buffer[length++] = c;
    if (c == kFormFeed || c == kSubstitute) {
      break;
    }
  }
  buffer[length] = '\0';
  return length;
}

}  // namespace sys_context
