// The library's own lookups.
#include "bench/contestants.h"

namespace bench {

bool Library(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]) {
  return CFG_get_key(file, lookup.section.c_str(), lookup.key.c_str(), value) == 0;
}

bool LibraryWithOffset(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]) {
  int32_t position = 0;
  return CFG_get_key_offset(file, lookup.section.c_str(), lookup.key.c_str(), value, 0,
                            &position) == 0;
}

}  // namespace bench
