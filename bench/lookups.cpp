// Writes one of the benchmark's files, or makes a number of lookups in a file:
// what scripts/count-instructions counts.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "bench/definition_file.h"
#include "sys_context/cfgfile.h"

namespace {

constexpr size_t kKilobyte = 1000;

// Prints the section, the key and the bytes of the lookup of the last key.
int Write(std::string_view kind, size_t bytes, const char* path) {
  const bench::DefinitionFile file =
      kind == "huge" ? bench::HugeSection(bytes) : bench::ManySections(bytes);
  std::FILE* const stream = std::fopen(path, "wb");
  if (stream == nullptr) {
    std::perror(path);
    return 1;
  }
  const bool written =
      std::fwrite(file.text.data(), 1, file.text.size(), stream) == file.text.size();
  if (std::fclose(stream) != 0 || !written) {
    std::perror(path);
    return 1;
  }
  std::printf("%s %s %zu\n", file.last.section.c_str(), file.last.key.c_str(), file.last.bytes);
  return 0;
}

int LookUp(const char* path, const char* section, const char* key, long times) {
  char value[CFG_VALUE_SIZE];
  for (; times > 0; --times) {
    if (const int32_t code = CFG_get_key(path, section, key, value); code != 0) {
      std::fprintf(stderr, "%s: [%s] %s: code %d\n", path, section, key, static_cast<int>(code));
      return 1;
    }
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 5 && std::strcmp(argv[1], "write") == 0) {
    return Write(argv[2], std::strtoul(argv[3], nullptr, 10) * kKilobyte, argv[4]);
  }
  if (argc == 6 && std::strcmp(argv[1], "run") == 0) {
    return LookUp(argv[2], argv[3], argv[4], std::strtol(argv[5], nullptr, 10));
  }
  std::fprintf(stderr,
               "usage: %s write many|huge KILOBYTES FILE\n"
               "       %s run FILE SECTION KEY TIMES\n",
               argv[0], argv[0]);
  return 2;
}
