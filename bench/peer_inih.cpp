// inih. Its parser hands every entry to a handler and cannot be stopped by it,
// so its lines come from a reader that ends the file once the key was found.
#include <ini.h>

#include <cstdio>

#include "bench/contestants.h"

namespace bench {
namespace {

struct Search {
  std::FILE* stream;
  const Lookup* lookup;
  char* value;
  bool found;
};

char* NextLine(char* line, int size, void* search) {
  const auto* const state = static_cast<Search*>(search);
  return state->found ? nullptr : std::fgets(line, size, state->stream);
}

int TakeEntry(void* search, const char* section, const char* key, const char* value) {
  auto* const state = static_cast<Search*>(search);
  if (state->lookup->key == key && state->lookup->section == section) {
    std::snprintf(state->value, CFG_VALUE_SIZE, "%s", value);
    state->found = true;
  }
  return 1;
}

}  // namespace

bool Inih(const char* file, const Lookup& lookup, char (&value)[CFG_VALUE_SIZE]) {
  std::FILE* const stream = std::fopen(file, "rb");
  if (stream == nullptr) {
    return false;
  }
  Search search{stream, &lookup, value, false};
  ini_parse_stream(NextLine, &search, TakeEntry, &search);
  std::fclose(stream);
  return search.found;
}

}  // namespace bench
