// iniparser, which loads the whole file into a dictionary.
#include <iniparser.h>

#include <cstdio>

#include "bench/contestants.h"

namespace bench {

bool Iniparser(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]) {
  dictionary* const entries = iniparser_load(file);
  if (entries == nullptr) {
    return false;
  }
  char name[2 * CFG_VALUE_SIZE];
  std::snprintf(name, sizeof name, "%s:%s", lookup.section.c_str(), lookup.key.c_str());
  const char* const found = iniparser_getstring(entries, name, nullptr);
  if (found != nullptr) {
    std::snprintf(value, sizeof value, "%s", found);
  }
  iniparser_freedict(entries);
  return found != nullptr;
}

}  // namespace bench
