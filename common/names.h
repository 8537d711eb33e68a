// Name fields: an array of characters with a companion length that counts the
// terminator. The records of every table hold their names so.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace sys_context {

// Stores `text` with its terminator and its length, if the field can hold them.
// Returns the length with the terminator either way: more than `size` means
// that nothing was stored.
[[nodiscard]] uint32_t StoreName(std::string_view text, char* field, size_t size, uint32_t& length);

// Do the first `length` bytes of `text` equal the field's? Since the length
// counts the terminator, that is an exact match of the whole name. A corrupt
// length, beyond the field's size, matches nothing.
bool NameEquals(const char* text, const char* field, size_t size, uint32_t length);

template <size_t size>
[[nodiscard]] uint32_t StoreName(std::string_view text, char (&field)[size], uint32_t& length) {
  return StoreName(text, field, size, length);
}

template <size_t size>
bool NameEquals(const char* text, const char (&field)[size], uint32_t length) {
  return NameEquals(text, field, size, length);
}

}  // namespace sys_context
