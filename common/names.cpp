// Name fields: storing and comparing.
#include "common/names.h"

#include <cstring>

namespace sys_context {

uint32_t StoreName(std::string_view text, char* field, size_t size, uint32_t& length) {
  const auto needed = static_cast<uint32_t>(text.size() + 1);
  if (needed <= size) {
    std::memcpy(field, text.data(), text.size());
    field[text.size()] = '\0';
    length = needed;
  }
  return needed;
}

bool NameEquals(const char* text, const char* field, size_t size, uint32_t length) {
  // strncmp does not read `text` behind its terminator.
  return length <= size && std::strncmp(text, field, length) == 0;
}

}  // namespace sys_context
