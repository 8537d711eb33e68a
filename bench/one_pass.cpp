// One pass over a whole file; see the header.
#include "bench/one_pass.h"

#include <glib.h>
#include <ini.h>

#include <memory>

namespace bench {
namespace {

struct FreeKeys {
  void operator()(GKeyFile* keys) const { g_key_file_unref(keys); }
};
struct FreeNames {
  void operator()(char** names) const { g_strfreev(names); }
};
using Names = std::unique_ptr<char*, FreeNames>;

size_t CountEntries(GKeyFile* keys) {
  size_t entries = 0;
  const Names groups(g_key_file_get_groups(keys, nullptr));
  for (char** group = groups.get(); *group != nullptr; ++group) {
    gsize in_group = 0;
    const Names names(g_key_file_get_keys(keys, *group, &in_group, nullptr));
    entries += in_group;
  }
  return entries;
}

}  // namespace

bool InihPass(const char* file, size_t* entries) {
  size_t found = 0;
  const auto count = [](void* counter, const char*, const char*, const char*) {
    ++*static_cast<size_t*>(counter);
    return 1;
  };
  // Above 0: a line that it cannot read, mostly one of more than 199 characters; it goes
  // on behind that.
  const bool is_read = ini_parse(file, count, &found) >= 0;
  if (entries != nullptr) {
    *entries = found;
  }
  return is_read;
}

bool GKeyFilePass(const char* file, size_t* entries) {
  const std::unique_ptr<GKeyFile, FreeKeys> keys(g_key_file_new());
  if (g_key_file_load_from_file(keys.get(), file, G_KEY_FILE_NONE, nullptr) == 0) {
    return false;
  }
  if (entries != nullptr) {
    *entries = CountEntries(keys.get());
  }
  return true;
}

}  // namespace bench
