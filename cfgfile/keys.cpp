// Reading a key for a loader.
#include "cfgfile/keys.h"

#include "common/codes.h"

namespace sys_context {

int32_t ReadKey(const char* file, const char* section, const char* key, Value& value,
                const KeyMessage& failure, Gate gate) {
  const int32_t code = CFG_get_key(file, section, key, value.text);
  if (code != kOk) {
    Report(gate, failure, code, section, key);
  }
  return code;
}

}  // namespace sys_context
