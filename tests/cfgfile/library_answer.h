// What the library's lookups leave behind, in the words of the plain reader.
#pragma once

#include <cstdint>
#include <optional>

#include "cfgfile/plain_reader.h"

namespace plain {

// Asks CFG_get_key_offset from byte `from` on, CFG_get_key without it.
Answer AnswerOfLibrary(const char* path, const char* section, const char* key,
                       std::optional<int32_t> from);

}  // namespace plain
