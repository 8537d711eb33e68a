// Values that are lists: pieces, each ended by a separator, and what stands behind
// the last one.
#pragma once

#include <cstdint>
#include <cstring>

namespace sys_context {

// Calls piece(text, place, is_last) for each, in order; `text` goes on behind the
// piece. A value without separator is one piece, the last.
template <typename Piece>
void ForEachPiece(const char* value, char separator, Piece piece) {
  uint32_t place = 0;
  for (const char* end = std::strchr(value, separator); end != nullptr;
       end = std::strchr(value, separator)) {
    piece(value, place, false);
    value = end + 1;
    ++place;
  }
  piece(value, place, true);
}

}  // namespace sys_context
