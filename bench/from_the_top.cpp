// The lookups of a load; see the header.
#include "bench/from_the_top.h"

#include "sys_context/cfgfile.h"

namespace bench {

bool LookUpFromTheTop(const TemporaryFile& file, const std::vector<Lookup>& lookups) {
  char value[CFG_VALUE_SIZE];
  bool found = true;
  for (const Lookup& lookup : lookups) {
    found = found &&
            CFG_get_key(file.path(), lookup.section.c_str(), lookup.key.c_str(), value) == 0 &&
            lookup.value == value;
  }
  return found;
}

}  // namespace bench
