// The path mapping, and the fopen and open through which the library (and
// everything else in this program) opens files.
#include "host/root.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace sysctx {
namespace {

constexpr std::string_view kWorkFiles = "/mnt/work/";
constexpr std::string_view kMemoryFiles = "/mem/";

// A plain array: files are opened before the first constructor runs and after
// the last destructor, and opening must not allocate.
constinit char g_root[PATH_MAX] = "";

bool StartsWith(const char* text, std::string_view prefix) {
  return strncmp(text, prefix.data(), prefix.size()) == 0;
}

// The memory file system of the card is always there; on the desk its folder
// appears with the first file written to it.
void CreateMemoryFolder(const char* path) {
  if (!StartsWith(path, kMemoryFiles) || g_root[0] == '\0') {
    return;
  }
  char folder[PATH_MAX + 8];
  snprintf(folder, sizeof folder, "%s/mem", g_root);
  mkdir(folder, 0755);
}

// The root, `folder` and `path`, one behind the other; nullptr when they do not fit.
const char* BelowRoot(const char* folder, const char* path, char* buffer, size_t size) {
  const int length = snprintf(buffer, size, "%s%s%s", g_root, folder, path);
  return length >= 0 && static_cast<size_t>(length) < size ? buffer : nullptr;
}

// Also what cannot be looked at is there.
bool IsThere(const char* path) {
  struct stat status = {};
  return lstat(path, &status) == 0 || errno != ENOENT;
}

template <typename Function>
Function* NextInLine(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

void SetRoot(const std::string& folder) {
  if (folder.size() >= sizeof g_root) {
    throw std::runtime_error("root '" + folder + "': path too long");
  }
  memcpy(g_root, folder.c_str(), folder.size() + 1);
}

std::string Root() {
  return g_root;
}

const char* MapPath(const char* path, char* buffer, size_t size) {
  if (g_root[0] == '\0' || path == nullptr) {
    return path;
  }
  if (!StartsWith(path, kWorkFiles) && !StartsWith(path, kMemoryFiles)) {
    return path;
  }
  return BelowRoot("", path, buffer, size);
}

const char* MapFlashName(const char* name, char* buffer, size_t size) {
  return HasFlashCopy(name) ? BelowRoot("/flash", name, buffer, size) : MapPath(name, buffer, size);
}

bool HasFlashCopy(const char* name) {
  if (g_root[0] == '\0' || name == nullptr || !StartsWith(name, kWorkFiles)) {
    return false;
  }
  char buffer[PATH_MAX];
  const char* copy = BelowRoot("/flash", name, buffer, sizeof buffer);
  return copy == nullptr || IsThere(copy);
}

}  // namespace sysctx

extern "C" {

__attribute__((visibility("default"))) FILE* fopen(const char* path, const char* mode) {
  using RealFopen = FILE*(const char*, const char*);
  static RealFopen* const real = sysctx::NextInLine<RealFopen>("fopen");
  char buffer[PATH_MAX];
  const char* name = sysctx::MapPath(path, buffer, sizeof buffer);
  if (name == nullptr) {
    errno = ENAMETOOLONG;
    return nullptr;
  }
  if (name == buffer && mode[0] != 'r') {
    sysctx::CreateMemoryFolder(path);
  }
  return real(name, mode);
}

__attribute__((visibility("default"))) int open(const char* path, int flags, ...) {
  using RealOpen = int(const char*, int, ...);
  static RealOpen* const real = sysctx::NextInLine<RealOpen>("open");
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE) {
    va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  char buffer[PATH_MAX];
  const char* name = sysctx::MapPath(path, buffer, sizeof buffer);
  if (name == nullptr) {
    errno = ENAMETOOLONG;
    return -1;
  }
  if (name == buffer && (flags & O_CREAT) != 0) {
    sysctx::CreateMemoryFolder(path);
    // The card's file systems know no permissions and files are created with
    // whatever bits; on the desk they must open again.
    mode |= S_IRUSR | S_IWUSR;
  }
  return real(name, flags, mode);
}

}  // extern "C"
