// Reading a key for a loader: its value, or a message that says which section
// and key failed.
#pragma once

#include <cstdint>
#include <cstdio>

#include "common/messages.h"
#include "sys_context/cfgfile.h"

namespace sys_context {

// The value of a key, as the lookups fill it.
struct Value {
  char text[CFG_VALUE_SIZE] = {};
};

// "... iResult = %d, section = %s, key = %s"; some loaders word it otherwise.
using KeyMessage = Message<int32_t, const char*, const char*>;

// The name of a numbered key: "Module" and 3 give "Module3".
struct NumberedKey {
  NumberedKey(const char* prefix, uint32_t number) {
    std::snprintf(text, sizeof text, "%s%u", prefix, static_cast<unsigned>(number));
  }
  char text[CFG_VALUE_SIZE];
};

// Reads a key; a failure is reported. Returns the lookup's code.
[[nodiscard]] int32_t ReadKey(const char* file, const char* section, const char* key, Value& value,
                              const KeyMessage& failure, Gate gate = Gate::kAlways);

}  // namespace sys_context
